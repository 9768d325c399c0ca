#include "ui/page.hpp"
#include "ui/size_text.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace kelmar {
namespace {

TEST(SizeTexts, AreMeasuringEmptyOrASize) {
    EXPECT_EQ(sizeText(std::nullopt), "Measuring…");
    EXPECT_EQ(sizeText(0), "Empty");
    EXPECT_EQ(sizeText(1), "1 byte");
    EXPECT_EQ(sizeText(4096), "4 KB");
    EXPECT_EQ(sizeText(12'300'000), "12.3 MB");
    EXPECT_EQ(sizeText(3'210'000'000), "3.21 GB");
}

TEST(SizeTexts, AreSpokenWithWhatHasTheSize) {
    EXPECT_EQ((SizeText{4096, "Store"}).text(), "4 KB");
    EXPECT_EQ((SizeText{4096, "Store"}).accessibleName(), "Store, 4 KB");
    EXPECT_EQ((SizeText{std::nullopt, "Store"}).accessibleName(), "Store, Measuring…");
    EXPECT_EQ((SizeText{0, "Store"}).accessibleName(), "Store, Empty");
}

} // namespace
} // namespace kelmar
