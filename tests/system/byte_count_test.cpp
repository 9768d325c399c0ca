#include "system/byte_count.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace kelmar {
namespace {

struct Case {
    std::int64_t bytes;
    std::string text;
};

class ByteCountText : public testing::TestWithParam<Case> {};

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
                         testing::Values(Case{0, "0 bytes"}, Case{1, "1 byte"}, Case{2, "2 bytes"},
                                         Case{512, "512 bytes"}, Case{999, "999 bytes"}));

INSTANTIATE_TEST_SUITE_P(WholeKilobytes, ByteCountText,
                         testing::Values(Case{1000, "1 KB"}, Case{1499, "1 KB"}, Case{1500, "2 KB"},
                                         Case{4096, "4 KB"}, Case{12'288, "12 KB"},
                                         Case{999'499, "999 KB"}, Case{999'500, "1 MB"}));

INSTANTIATE_TEST_SUITE_P(MegabytesWithOneDecimal, ByteCountText,
                         testing::Values(Case{mega, "1 MB"}, Case{1'049'999, "1 MB"},
                                         Case{1'050'000, "1.1 MB"}, Case{1'500'000, "1.5 MB"},
                                         Case{10 * mega, "10 MB"}, Case{123'449'999, "123.4 MB"},
                                         Case{123'450'000, "123.5 MB"},
                                         Case{999'949'999, "999.9 MB"}, Case{999'950'000, "1 GB"}));

INSTANTIATE_TEST_SUITE_P(
    GigabytesWithTwoDecimals, ByteCountText,
    testing::Values(Case{giga, "1 GB"}, Case{1'004'999'999, "1 GB"}, Case{1'005'000'000, "1.01 GB"},
                    Case{1'100'000'000, "1.1 GB"}, Case{1'120'000'000, "1.12 GB"},
                    Case{3'210'000'000, "3.21 GB"}, Case{999'994'999'999, "999.99 GB"},
                    Case{999'995'000'000, "1 TB"}));

INSTANTIATE_TEST_SUITE_P(
    AboveGigabytes, ByteCountText,
    testing::Values(Case{tera, "1 TB"}, Case{5 * tera + 250 * giga, "5.25 TB"},
                    Case{999'995 * giga - 1, "999.99 TB"}, Case{999'995 * giga, "1 PB"},
                    Case{peta + 70 * tera, "1.07 PB"}, Case{999'995 * tera - 1, "999.99 PB"},
                    Case{999'995 * tera, "1 EB"}, Case{exa, "1 EB"},
                    Case{std::numeric_limits<std::int64_t>::max(), "9.22 EB"}));

INSTANTIATE_TEST_SUITE_P(Negative, ByteCountText,
                         testing::Values(Case{-1, "-1 byte"}, Case{-4096, "-4 KB"},
                                         Case{std::numeric_limits<std::int64_t>::min(),
                                              "-9.22 EB"}));

} // namespace
} // namespace kelmar
