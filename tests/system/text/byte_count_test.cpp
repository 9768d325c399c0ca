#include "system/text/byte_count.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace kelmar {
namespace {

struct Size {
    std::int64_t bytes;
    std::string text;
};

class ByteCountText : public testing::TestWithParam<Size> {};

TEST_P(ByteCountText, FollowsTheFileStyle) {
    EXPECT_EQ(byteCountText(GetParam().bytes), GetParam().text) << GetParam().bytes;
}

constexpr std::int64_t kilo = 1000;
constexpr std::int64_t mega = kilo * kilo;
constexpr std::int64_t giga = kilo * mega;
constexpr std::int64_t tera = kilo * giga;
constexpr std::int64_t peta = kilo * tera;
constexpr std::int64_t exa = kilo * peta;

INSTANTIATE_TEST_SUITE_P(Bytes, ByteCountText,
                         testing::Values(Size{0, "0 bytes"}, Size{1, "1 byte"}, Size{2, "2 bytes"},
                                         Size{512, "512 bytes"}, Size{999, "999 bytes"}));

INSTANTIATE_TEST_SUITE_P(WholeKilobytes, ByteCountText,
                         testing::Values(Size{1000, "1 KB"}, Size{1499, "1 KB"}, Size{1500, "2 KB"},
                                         Size{4096, "4 KB"}, Size{12'288, "12 KB"},
                                         Size{999'499, "999 KB"}, Size{999'500, "1 MB"}));

INSTANTIATE_TEST_SUITE_P(MegabytesWithOneDecimal, ByteCountText,
                         testing::Values(Size{mega, "1 MB"}, Size{1'049'999, "1 MB"},
                                         Size{1'050'000, "1.1 MB"}, Size{1'500'000, "1.5 MB"},
                                         Size{10 * mega, "10 MB"}, Size{123'449'999, "123.4 MB"},
                                         Size{123'450'000, "123.5 MB"},
                                         Size{999'949'999, "999.9 MB"}, Size{999'950'000, "1 GB"}));

INSTANTIATE_TEST_SUITE_P(
    GigabytesWithTwoDecimals, ByteCountText,
    testing::Values(Size{giga, "1 GB"}, Size{1'004'999'999, "1 GB"}, Size{1'005'000'000, "1.01 GB"},
                    Size{1'100'000'000, "1.1 GB"}, Size{1'120'000'000, "1.12 GB"},
                    Size{3'210'000'000, "3.21 GB"}, Size{999'994'999'999, "999.99 GB"},
                    Size{999'995'000'000, "1 TB"}));

INSTANTIATE_TEST_SUITE_P(
    AboveGigabytes, ByteCountText,
    testing::Values(Size{tera, "1 TB"}, Size{5 * tera + 250 * giga, "5.25 TB"},
                    Size{999'995 * giga - 1, "999.99 TB"}, Size{999'995 * giga, "1 PB"},
                    Size{peta + 70 * tera, "1.07 PB"}, Size{999'995 * tera - 1, "999.99 PB"},
                    Size{999'995 * tera, "1 EB"}, Size{exa, "1 EB"},
                    Size{std::numeric_limits<std::int64_t>::max(), "9.22 EB"}));

INSTANTIATE_TEST_SUITE_P(Negative, ByteCountText,
                         testing::Values(Size{-1, "-1 byte"}, Size{-4096, "-4 KB"},
                                         Size{std::numeric_limits<std::int64_t>::min(),
                                              "-9.22 EB"}));

} // namespace
} // namespace kelmar
