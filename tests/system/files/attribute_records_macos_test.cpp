#include "system/files/attribute_records_macos.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace kelmar {
namespace {

void append(std::string& bytes, std::uint32_t value) {
    char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    bytes.append(raw, sizeof raw);
}

/// A record as getattrlist(2) lays it out: its length, the sets of attributes that follow, these,
/// and last the name that the reference points to.
struct Layout {
    std::string name = "Store";
    std::uint32_t common = AttributeBits::returned | AttributeBits::name |
                           AttributeBits::objectType | AttributeBits::owner;
    std::uint32_t folder = 0;
    std::uint32_t error = 0;
    std::uint32_t objectType = folderObjectType;
    std::uint32_t owner = 501;
    std::uint32_t mountStatus = 0;

    [[nodiscard]] std::string bytes() const {
        std::string fields;
        if ((common & AttributeBits::error) != 0) {
            append(fields, error);
        }
        const std::size_t reference = fields.size();
        append(fields, 0);
        append(fields, static_cast<std::uint32_t>(name.size() + 1));
        if ((common & AttributeBits::objectType) != 0) {
            append(fields, objectType);
        }
        if ((common & AttributeBits::owner) != 0) {
            append(fields, owner);
        }
        if ((folder & AttributeBits::folderMountStatus) != 0) {
            append(fields, mountStatus);
        }
        const auto offset = static_cast<std::uint32_t>(fields.size() - reference);
        std::memcpy(fields.data() + reference, &offset, sizeof offset);
        fields += name + '\0';
        fields.append((4 - fields.size() % 4) % 4, '\0');
        std::string record;
        append(record, static_cast<std::uint32_t>(sizeof(std::uint32_t) * 6 + fields.size()));
        append(record, common);
        append(record, 0);
        append(record, folder);
        append(record, 0);
        append(record, 0);
        return record + fields;
    }
};

TEST(AttributeRecord, HoldsNameKindAndOwner) {
    const std::string bytes = Layout{}.bytes();
    std::string_view rest = bytes;
    const auto record = takeAttributeRecord(rest);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->name, "Store");
    EXPECT_EQ(record->objectType, folderObjectType);
    EXPECT_EQ(record->owner, 501U);
    EXPECT_FALSE(record->error);
    EXPECT_FALSE(record->mountStatus);
    EXPECT_TRUE(rest.empty());
}

TEST(AttributeRecord, HasItsErrorBeforeItsName) {
    Layout layout;
    layout.common = AttributeBits::returned | AttributeBits::error | AttributeBits::name;
    layout.error = 13;
    const std::string bytes = layout.bytes();
    std::string_view rest = bytes;
    const auto record = takeAttributeRecord(rest);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->error, 13U);
    EXPECT_EQ(record->name, "Store");
    EXPECT_FALSE(record->objectType);
    EXPECT_FALSE(record->owner);
}

TEST(AttributeRecord, SaysThatAVolumeIsMountedThere) {
    Layout layout;
    layout.folder = AttributeBits::folderMountStatus;
    layout.mountStatus = isMountPoint;
    const std::string bytes = layout.bytes();
    std::string_view rest = bytes;
    EXPECT_EQ(takeAttributeRecord(rest)->mountStatus, isMountPoint);
}

TEST(AttributeRecord, ComesOneAfterAnother) {
    Layout first;
    first.name = "a";
    Layout second;
    second.name = "größer";
    second.owner = 0;
    const std::string bytes = first.bytes() + second.bytes();
    std::string_view rest = bytes;
    EXPECT_EQ(takeAttributeRecord(rest)->name, "a");
    const auto record = takeAttributeRecord(rest);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->name, "größer");
    EXPECT_EQ(record->owner, 0U);
}

TEST(AttributeRecord, WithoutANameIsNone) {
    Layout layout;
    layout.common = AttributeBits::returned | AttributeBits::owner;
    const std::string unnamed = layout.bytes();
    std::string_view rest = unnamed;
    EXPECT_FALSE(takeAttributeRecord(rest));
    layout = {};
    layout.name = "";
    const std::string empty = layout.bytes();
    rest = empty;
    EXPECT_FALSE(takeAttributeRecord(rest));
}

TEST(AttributeRecord, CutShortAnywhereIsNeverReadBeyond) {
    const std::string whole = Layout{}.bytes();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        // A copy of just this length: a read beyond it is one that the sanitizer sees.
        const std::string cut(whole.data(), length);
        std::string_view rest = cut;
        EXPECT_FALSE(takeAttributeRecord(rest)) << length;
    }
}

TEST(AttributeRecord, OfAnyBytesStaysInsideThem) {
    // NOLINTNEXTLINE(cert-msc*): the same bytes in every run
    std::mt19937 random(7);
    std::uniform_int_distribution<int> position(0, 43);
    std::uniform_int_distribution<int> byte(0, 255);
    int read = 0;
    for (int round = 0; round < 200'000; ++round) {
        std::string bytes = Layout{}.bytes();
        for (int change = 0; change < 3; ++change) {
            bytes[static_cast<std::size_t>(position(random)) % bytes.size()] =
                static_cast<char>(byte(random));
        }
        const std::string copy(bytes.data(), bytes.size());
        std::string_view rest = copy;
        if (const auto record = takeAttributeRecord(rest)) {
            ++read;
            ASSERT_GE(record->name.data(), copy.data());
            ASSERT_LT(record->name.data() + record->name.size(), copy.data() + copy.size());
            ASSERT_EQ(*(record->name.data() + record->name.size()), '\0');
        }
    }
    EXPECT_GT(read, 100) << "nearly everything was refused: the changes are too wild to show much";
}

} // namespace
} // namespace kelmar
