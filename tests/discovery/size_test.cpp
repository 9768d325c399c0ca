#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace kelmar {
namespace {

TEST(Size, OfAPathThatDoesNotExistIsAbsent) {
    EXPECT_EQ(Scanner::size("/no/such/folder"), std::nullopt);
}

TEST(Size, IsWhatTheFolderTakesOnDisk) {
    const test::TemporaryFolder folder;
    const std::optional<std::int64_t> empty = Scanner::size(folder.path());
    ASSERT_TRUE(empty);
    EXPECT_GE(*empty, 0);
    EXPECT_EQ(*empty % 1024, 0);
    test::MacTree(folder / "t").file(folder / "t/home/file", std::string(1'000'000, 'x'));
    const std::optional<std::int64_t> full = Scanner::size(folder.path());
    ASSERT_TRUE(full);
    EXPECT_GE(*full - *empty, 1'000'000);
    EXPECT_LT(*full - *empty, 1'200'000);
}

TEST(Size, OfANameWithBlanksQuotesAndNewlinesIsMeasuredAsAnyOther) {
    const test::TemporaryFolder folder;
    const std::string odd = folder / "a b\n9\t\"'\xFF";
    std::filesystem::create_directory(odd);
    std::filesystem::create_directory(folder / "plain");
    ASSERT_TRUE(Scanner::size(odd));
    EXPECT_EQ(Scanner::size(odd), Scanner::size(folder / "plain"));
}

} // namespace
} // namespace kelmar
