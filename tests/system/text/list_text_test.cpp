#include "system/text/list_text.hpp"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

TEST(Listed, IsASentencesList) {
    EXPECT_EQ(listed({}), "");
    EXPECT_EQ(listed({"a"}), "a");
    EXPECT_EQ(listed({"a", "b"}), "a and b");
    EXPECT_EQ(listed({"a", "b", "c"}), "a, b, and c");
    EXPECT_EQ(listed({"a", "b", "c", "d"}), "a, b, c, and d");
}

TEST(Listed, TakesWordsAsTheyAre) {
    EXPECT_EQ(listed({"salt and pepper", "x, y"}), "salt and pepper and x, y");
    EXPECT_EQ(listed({"a", "a", "a"}), "a, a, and a");
}

} // namespace
} // namespace kelmar
