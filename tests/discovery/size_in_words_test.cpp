#include "discovery/size_in_words.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace kelmar {
namespace {

TEST(SizeInWords, IsUnknownEmptyOrASize) {
    EXPECT_EQ(sizeInWords(std::nullopt, "?"), "?");
    EXPECT_EQ(sizeInWords(0, "?"), "Empty");
    EXPECT_EQ(sizeInWords(1, "?"), "1 byte");
    EXPECT_EQ(sizeInWords(4096, "?"), "4 KB");
    EXPECT_EQ(sizeInWords(12'300'000, "?"), "12.3 MB");
    EXPECT_EQ(sizeInWords(3'210'000'000, "?"), "3.21 GB");
}

} // namespace
} // namespace kelmar
