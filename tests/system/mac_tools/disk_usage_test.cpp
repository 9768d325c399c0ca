#include "system/mac_tools/disk_usage.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>

namespace kelmar {
namespace {

TEST(Kibibytes, AreTheFirstFieldOfTheOutput) {
    EXPECT_EQ(DiskUsage::kibibytesIn("12\t/home/ann/Kelmar/Store\n"), 12);
    EXPECT_EQ(DiskUsage::kibibytesIn("  \n\t7 x"), 7);
    EXPECT_EQ(DiskUsage::kibibytesIn("0\t/x"), 0);
    EXPECT_EQ(DiskUsage::kibibytesIn("8"), 8);
    EXPECT_EQ(DiskUsage::kibibytesIn("+8\t/x"), 8);
    EXPECT_EQ(DiskUsage::kibibytesIn("-8\t/x"), -8);
    EXPECT_EQ(DiskUsage::kibibytesIn("007\t/x"), 7);
    EXPECT_EQ(DiskUsage::kibibytesIn("9223372036854775807 x"),
              std::numeric_limits<std::int64_t>::max());
}

TEST(Kibibytes, AreAbsentWithoutAWholeNumberThere) {
    for (const char* const output :
         {"", " ", "\n\t\v\f\r ", "du: cannot access '/x': No such file or directory\n", "12K\t/x",
          "1.5\t/x", "0x10\t/x", "+", "-", "+-8", "-+8", "--8", "1,000\t/x",
          "9223372036854775808\t/x", "\xFF"}) {
        EXPECT_EQ(DiskUsage::kibibytesIn(output), std::nullopt) << output;
    }
}

} // namespace
} // namespace kelmar
