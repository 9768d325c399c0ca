#include "system/files/attribute_records_macos.hpp"

#include <array>
#include <cstring>

namespace kelmar {

namespace {

/// The groups of attributes that a record contains: common, volume, folder, file, fork.
using AttributeSet = std::array<std::uint32_t, 5>;
constexpr std::size_t commonGroup = 0;
constexpr std::size_t folderGroup = 2;

/// Reads values one after another; after one that does not fit, all later ones are absent.
class Reader {
public:
    explicit Reader(std::string_view record) : record_(record) {}

    template <typename Value>
    std::optional<Value> take() {
        Value value{};
        if (record_.size() - at_ < sizeof value) {
            at_ = record_.size();
            return std::nullopt;
        }
        std::memcpy(&value, record_.data() + at_, sizeof value);
        at_ += sizeof value;
        return value;
    }

    std::optional<std::uint32_t> takeIf(std::uint32_t set, std::uint32_t bit) {
        return (set & bit) != 0 ? take<std::uint32_t>() : std::nullopt;
    }

    [[nodiscard]] std::size_t position() const { return at_; }

private:
    std::string_view record_;
    std::size_t at_ = 0;
};

/// getattrlist(2), attrreference_t: where a value of variable length begins, counted from the
/// reference itself, and its length with the null character.
struct Reference {
    std::int32_t offset;
    std::uint32_t length;
};

std::string_view referred(std::string_view record, std::size_t from, Reference reference) {
    const std::int64_t begin = static_cast<std::int64_t>(from) + reference.offset;
    if (begin < 0 || reference.length == 0 ||
        begin + reference.length > static_cast<std::int64_t>(record.size())) {
        return {};
    }
    const std::string_view whole = record.substr(static_cast<std::size_t>(begin), reference.length);
    return whole.substr(0, whole.find('\0') == std::string_view::npos ? 0 : whole.find('\0'));
}

} // namespace

std::optional<AttributeRecord> takeAttributeRecord(std::string_view& bytes) {
    const std::optional<std::uint32_t> length = Reader(bytes).take<std::uint32_t>();
    if (!length || *length < sizeof *length + sizeof(AttributeSet) || *length > bytes.size()) {
        return std::nullopt;
    }
    const std::string_view record = bytes.substr(0, *length);
    bytes.remove_prefix(*length);
    Reader reader(record);
    reader.take<std::uint32_t>();
    const AttributeSet sets = reader.take<AttributeSet>().value();
    const std::uint32_t common = sets[commonGroup];
    AttributeRecord read;
    read.error = reader.takeIf(common, AttributeBits::error); // first, whatever its bit
    const std::size_t from = reader.position();
    const std::optional<Reference> reference =
        (common & AttributeBits::name) != 0 ? reader.take<Reference>() : std::nullopt;
    if (!reference) {
        return std::nullopt;
    }
    read.name = referred(record, from, *reference);
    read.objectType = reader.takeIf(common, AttributeBits::objectType);
    read.owner = reader.takeIf(common, AttributeBits::owner);
    read.mountStatus = reader.takeIf(sets[folderGroup], AttributeBits::folderMountStatus);
    return read.name.empty() ? std::nullopt : std::optional(read);
}

} // namespace kelmar
