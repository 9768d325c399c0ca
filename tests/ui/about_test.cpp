#include "ui/about.hpp"

#include <gtest/gtest.h>

#include <regex>

namespace kelmar {
namespace {

TEST(About, NamesTheProgramAndItsVersion) {
    const About shown = about();
    EXPECT_EQ(shown.title, "About Kelmar Uninstaller");
    EXPECT_EQ(shown.name, "Kelmar Uninstaller");
    EXPECT_TRUE(std::regex_match(shown.version, std::regex(R"(Version \d+(\.\d+)+)")))
        << shown.version;
}

} // namespace
} // namespace kelmar
