#include "system/property_list/binary.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace kelmar {

namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;
constexpr std::size_t depthLimit = 64;
constexpr std::uint64_t costLimit = 64'000'000; ///< bytes of the expanded tree
constexpr std::uint64_t nodeCost = 128;         ///< bytes of a node besides its content

/// What an object takes when it is expanded.
struct Extent {
    std::uint64_t cost = 0;
    std::size_t height = 0;
};

enum class Visit : unsigned char { none, open, done };

struct Object {
    Visit visit = Visit::none;
    Extent extent;
};

/// The layout is that of CFBinaryPList.c: header, objects, table of their offsets, trailer.
class Measure {
public:
    explicit Measure(std::string_view bytes) : bytes_(bytes) {}

    bool isModest() {
        if (bytes_.size() < headerSize + trailerSize) {
            return false;
        }
        const std::size_t trailer = bytes_.size() - trailerSize;
        offsetSize_ = static_cast<unsigned char>(bytes_[trailer + 6]);
        referenceSize_ = static_cast<unsigned char>(bytes_[trailer + 7]);
        const std::uint64_t count = integer(trailer + 8, 8).value_or(0);
        const std::uint64_t top = integer(trailer + 16, 8).value_or(0);
        table_ = integer(trailer + 24, 8).value_or(0);
        if (offsetSize_ < 1 || offsetSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8 ||
            table_ > trailer || count > (trailer - table_) / offsetSize_) {
            return false;
        }
        objects_.resize(count);
        return measure(top, 0).has_value();
    }

private:
    /// The big-endian integer of `size` bytes (up to 8) at `at`.
    [[nodiscard]] std::optional<std::uint64_t> integer(std::uint64_t at, std::uint64_t size) const {
        if (size > 8 || at > bytes_.size() || size > bytes_.size() - at) {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        for (const char byte : bytes_.substr(at, size)) {
            value = (value << 8) | static_cast<unsigned char>(byte);
        }
        return value;
    }

    std::optional<Extent> measure(std::uint64_t index, std::size_t depth) {
        if (index >= objects_.size() || depth >= depthLimit) {
            return std::nullopt;
        }
        Object& object = objects_[index];
        if (object.visit == Visit::open) {
            return std::nullopt; // it contains itself
        }
        if (object.visit == Visit::none) {
            object.visit = Visit::open;
            const auto offset = integer(table_ + index * offsetSize_, offsetSize_);
            const auto extent = offset ? contents(*offset, depth) : std::nullopt;
            if (!extent) {
                return std::nullopt;
            }
            object = {Visit::done, *extent};
        }
        if (object.extent.cost > costLimit || depth + object.extent.height > depthLimit) {
            return std::nullopt;
        }
        return object.extent;
    }

    std::optional<Extent> contents(std::uint64_t at, std::size_t depth) {
        const auto marker = integer(at, 1);
        if (!marker || at < headerSize || at >= table_) {
            return std::nullopt;
        }
        const std::uint64_t kind = *marker >> 4;
        std::uint64_t count = *marker & 0xF;
        ++at;
        const bool counted =
            (kind >= 0x4 && kind <= 0x6) || kind == 0xA || kind == 0xC || kind == 0xD;
        if (!counted) {
            return Extent{nodeCost, 1};
        }
        if (count == 0xF) {
            // A count of 15 or more follows as an integer object: 0001nnnn, 2 to the n bytes.
            const auto form = integer(at, 1);
            const std::uint64_t size = form ? std::uint64_t{1} << (*form & 0xF) : 0;
            const auto value = form && (*form >> 4) == 1 ? integer(at + 1, size) : std::nullopt;
            if (!value) {
                return std::nullopt;
            }
            count = *value;
            at += 1 + size;
        }
        if (count > bytes_.size()) {
            return std::nullopt;
        }
        return kind < 0xA ? Extent{nodeCost + 2 * count, 1}
                          : members(at, kind == 0xD ? 2 * count : count, depth);
    }

    std::optional<Extent> members(std::uint64_t at, std::uint64_t count, std::size_t depth) {
        Extent all{nodeCost, 1};
        for (std::uint64_t member = 0; member < count; ++member) {
            const auto reference = integer(at + member * referenceSize_, referenceSize_);
            const auto extent = reference ? measure(*reference, depth + 1) : std::nullopt;
            if (!extent) {
                return std::nullopt;
            }
            all.cost += extent->cost;
            all.height = std::max(all.height, extent->height + 1);
            if (all.cost > costLimit) {
                return std::nullopt;
            }
        }
        return all;
    }

    std::string_view bytes_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t table_ = 0;
    std::vector<Object> objects_;
};

} // namespace

bool isModestBinaryPropertyList(std::string_view bytes) {
    return Measure(bytes).isModest();
}

} // namespace kelmar
