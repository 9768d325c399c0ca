#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// The records that getattrlistbulk(2) returns.
namespace kelmar {

/// The bits of the requested attributes, as in <sys/attr.h>.
namespace AttributeBits {
constexpr std::uint32_t name = 0x00000001;
constexpr std::uint32_t objectType = 0x00000008;
constexpr std::uint32_t owner = 0x00008000;
constexpr std::uint32_t error = 0x20000000;
constexpr std::uint32_t returned = 0x80000000;
constexpr std::uint32_t common = name | objectType | owner | error | returned;
constexpr std::uint32_t folderMountStatus = 0x00000004; ///< in the group for folders
} // namespace AttributeBits

constexpr std::uint32_t folderObjectType = 2; ///< VDIR
constexpr std::uint32_t isMountPoint = 1;     ///< DIR_MNTSTATUS_MNTPOINT

/// One record; attributes that the file system did not return are absent.
struct AttributeRecord {
    std::string_view name; ///< ends in a null character; inside the bytes that were read
    std::optional<std::uint32_t> error; ///< the errno value, where the entry could not be read
    std::optional<std::uint32_t> objectType;
    std::optional<std::uint32_t> owner;
    std::optional<std::uint32_t> mountStatus;
};

/// Reads the record at the beginning of `bytes` and removes it from there. Absent if the record is
/// incomplete or has no name; the rest can't be read then.
std::optional<AttributeRecord> takeAttributeRecord(std::string_view& bytes);

} // namespace kelmar
