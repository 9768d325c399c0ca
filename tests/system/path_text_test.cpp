#include "system/path_text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

struct Case {
    std::string path;
    std::string standard;
};

class Standardised : public testing::TestWithParam<Case> {};

TEST_P(Standardised, GoesByTheTextAlone) {
    EXPECT_EQ(standardised(GetParam().path), GetParam().standard) << GetParam().path;
}

TEST_P(Standardised, IsItsOwnStandardForm) {
    EXPECT_EQ(standardised(GetParam().standard), GetParam().standard);
}

INSTANTIATE_TEST_SUITE_P(Paths, Standardised,
                         testing::Values(Case{"/", "/"}, Case{"//", "/"}, Case{"/..", "/"},
                                         Case{"/../..", "/"}, Case{"/.", "/"},
                                         Case{"/tmp/t", "/tmp/t"}, Case{"/tmp/t/", "/tmp/t"},
                                         Case{"/tmp/t///", "/tmp/t"}, Case{"//tmp//t", "/tmp/t"},
                                         Case{"/tmp/x/../t", "/tmp/t"},
                                         Case{"/tmp/./t/.", "/tmp/t"}, Case{"/tmp/../../t", "/t"},
                                         Case{"/a/b/c/../..", "/a"}, Case{"/tmp/...", "/tmp/..."},
                                         Case{"/tmp/.t", "/tmp/.t"}, Case{"/tmp/t..", "/tmp/t.."},
                                         Case{"/a b/\"'\n", "/a b/\"'\n"},
                                         Case{"/\xC3\xA9/\xFF\xFE", "/\xC3\xA9/\xFF\xFE"}));

TEST(StandardisedPath, OfALinkIsTheLinkItself) {
    // /proc/self is a link on every Linux; looked up, it would become a number.
    EXPECT_EQ(standardised("/proc/self/"), "/proc/self");
    EXPECT_EQ(standardised("/proc/self/.."), "/proc");
}

} // namespace
} // namespace kelmar
