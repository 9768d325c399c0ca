#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// The records in which getattrlistbulk(2) answers.
namespace kelmar {

/// The bits of the attributes that are asked for, as <sys/attr.h> has them.
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

/// One record; what the file system did not give is absent.
struct AttributeRecord {
    std::string_view name; ///< ends in a null character; inside the bytes that were read
    std::optional<std::uint32_t> error; ///< the errno value, where the entry could not be read
    std::optional<std::uint32_t> objectType;
    std::optional<std::uint32_t> owner;
    std::optional<std::uint32_t> mountStatus;
};

/// Reads the record at the beginning of `bytes` and takes it away from there. Absent when it is not
/// whole or has no name: what follows can't be read either.
std::optional<AttributeRecord> takeAttributeRecord(std::string_view& bytes);

} // namespace kelmar
