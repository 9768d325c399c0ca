#include "system/text/path_text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

struct Path {
    std::string path;
    std::string standard;
};

class Standardised : public testing::TestWithParam<Path> {};

TEST_P(Standardised, GoesByTheTextAlone) {
    EXPECT_EQ(standardised(GetParam().path), GetParam().standard) << GetParam().path;
}

TEST_P(Standardised, IsItsOwnStandardForm) {
    EXPECT_EQ(standardised(GetParam().standard), GetParam().standard);
}

INSTANTIATE_TEST_SUITE_P(Paths, Standardised,
                         testing::Values(Path{"/", "/"}, Path{"//", "/"}, Path{"/..", "/"},
                                         Path{"/../..", "/"}, Path{"/.", "/"},
                                         Path{"/tmp/t", "/tmp/t"}, Path{"/tmp/t/", "/tmp/t"},
                                         Path{"/tmp/t///", "/tmp/t"}, Path{"//tmp//t", "/tmp/t"},
                                         Path{"/tmp/x/../t", "/tmp/t"},
                                         Path{"/tmp/./t/.", "/tmp/t"}, Path{"/tmp/../../t", "/t"},
                                         Path{"/a/b/c/../..", "/a"}, Path{"/tmp/...", "/tmp/..."},
                                         Path{"/tmp/.t", "/tmp/.t"}, Path{"/tmp/t..", "/tmp/t.."},
                                         Path{"/a b/\"'\n", "/a b/\"'\n"},
                                         Path{"/\xC3\xA9/\xFF\xFE", "/\xC3\xA9/\xFF\xFE"}));

TEST(StandardisedPath, OfALinkIsTheLinkItself) {
    // /proc/self is a link on every Linux; looked up, it would become a number.
    EXPECT_EQ(standardised("/proc/self/"), "/proc/self");
    EXPECT_EQ(standardised("/proc/self/.."), "/proc");
}

} // namespace
} // namespace kelmar
