#include "system/mac_tools/launchctl.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace kelmar {
namespace {

TEST(PropertyListPath, IsOnTheFirstLineThatNamesIt) {
    EXPECT_EQ(
        Launchctl::propertyListIn("gui/501/com.kelmar.api = {\n\tactive count = 1\n"
                                  "\tpath = /Users/ann/Library/LaunchAgents/com.kelmar.api.plist\n"
                                  "\tprogram = /x\n\tpath = /second\n}\n"),
        "/Users/ann/Library/LaunchAgents/com.kelmar.api.plist");
    EXPECT_EQ(Launchctl::propertyListIn("path = /a"), "/a");
    EXPECT_EQ(Launchctl::propertyListIn(" \t path = /a b\t \n"), "/a b");
    EXPECT_EQ(Launchctl::propertyListIn("\n\npath = (submitted by launchd)\n"),
              "(submitted by launchd)");
}

TEST(PropertyListPath, IsAbsentWhenNoLineBeginsSo) {
    for (const char* const output :
         {"", "\n", "path=/a", "path =/a", "stdout path = /a", "Path = /a", "path = ",
          "Bad request.\nCould not find service \"com.kelmar.api\" in domain for user gui: "
          "501\n"}) {
        EXPECT_EQ(Launchctl::propertyListIn(output), std::nullopt) << output;
    }
}

} // namespace
} // namespace kelmar
