#include "system/files/attribute_records_macos.hpp"
#include "system/files/folder_batches_macos.hpp"
#include "system/files/folder_entries_portable.hpp"

#include <array>
#include <cstddef>

#include <sys/attr.h>
#include <sys/vnode.h>
#include <unistd.h>

namespace kelmar {

namespace {

constexpr std::size_t bufferSize = 32768;

static_assert(AttributeBits::name == ATTR_CMN_NAME &&
              AttributeBits::objectType == ATTR_CMN_OBJTYPE &&
              AttributeBits::owner == ATTR_CMN_OWNERID && AttributeBits::error == ATTR_CMN_ERROR &&
              AttributeBits::returned == ATTR_CMN_RETURNED_ATTRS &&
              AttributeBits::folderMountStatus == ATTR_DIR_MOUNTSTATUS);
static_assert(folderObjectType == VDIR && isMountPoint == DIR_MNTSTATUS_MNTPOINT);

attrlist wanted() {
    attrlist list{};
    list.bitmapcount = ATTR_BIT_MAP_COUNT;
    list.commonattr = AttributeBits::common;
    list.dirattr = AttributeBits::folderMountStatus;
    return list;
}

/// Takes the entry's values from its record, or from lstat(2) if the record is incomplete. For a
/// mount point the record describes the covered folder, lstat(2) the volume.
bool describe(int folder, const AttributeRecord& record, FolderEntry& entry) {
    const bool covered = (record.mountStatus.value_or(0) & isMountPoint) != 0;
    if (record.error.value_or(0) != 0 || !record.objectType || !record.owner || covered) {
        return lookAtEntry(folder, record.name.data(), entry);
    }
    entry = {record.name, *record.owner, *record.objectType == folderObjectType};
    return true;
}

FolderReading visitRecords(int folder, std::string_view bytes, int count,
                           const std::function<bool(const FolderEntry&)>& visit) {
    for (int index = 0; index < count; ++index) {
        const std::optional<AttributeRecord> record = takeAttributeRecord(bytes);
        FolderEntry entry{};
        if (!record || !describe(folder, *record, entry)) {
            return FolderReading::failed;
        }
        if (!visit(entry)) {
            return FolderReading::stopped;
        }
    }
    return FolderReading::complete;
}

} // namespace

FolderReading readFolder(int descriptor, const std::function<bool(const FolderEntry&)>& visit) {
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    alignas(std::uint64_t) std::array<char, bufferSize> buffer;
    return readInBatches(
        {[&] {
             attrlist list = wanted();
             return ::getattrlistbulk(descriptor, &list, buffer.data(), buffer.size(), 0);
         },
         [&](int count) {
             return visitRecords(descriptor, {buffer.data(), buffer.size()}, count, visit);
         },
         [&] { return readFolderPortably(descriptor, visit); }});
}

} // namespace kelmar
