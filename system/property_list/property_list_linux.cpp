#include "system/property_list/binary.hpp"
#include "system/property_list/old_style.hpp"
#include "system/property_list/property_list.hpp"
#include "system/property_list/xml.hpp"
#include "system/text/utf16.hpp"
#include "system/text/utf8.hpp"

#include <plist/plist.h>

#include <cstdint>
#include <memory>

namespace kelmar {

namespace {

struct FreeNode {
    void operator()(plist_t node) const { ::plist_free(node); }
};

using Node = std::unique_ptr<void, FreeNode>;

std::optional<std::string> stringInDictionary(const Node& root, std::string_view key) {
    if (!root || ::plist_get_node_type(root.get()) != PLIST_DICT) {
        return std::nullopt;
    }
    plist_t value = ::plist_dict_get_item(root.get(), std::string(key).c_str());
    if (value == nullptr || ::plist_get_node_type(value) != PLIST_STRING) {
        return std::nullopt;
    }
    // Not plist_get_string_val: it ends the program over a text with a null character in it.
    std::uint64_t length = 0;
    const char* const text = ::plist_get_string_ptr(value, &length);
    const std::string_view found(text == nullptr ? "" : text, text == nullptr ? 0 : length);
    const bool sound = text != nullptr && found.find('\0') == std::string_view::npos;
    return sound ? std::optional(std::string(found)) : std::nullopt;
}

std::optional<std::string> stringInBinary(std::string_view bytes, std::string_view key) {
    if (!isModestBinaryPropertyList(bytes)) {
        return std::nullopt;
    }
    plist_t root = nullptr;
    ::plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    return stringInDictionary(Node(root), key);
}

std::optional<std::string> stringInXml(std::string_view text, std::string_view key) {
    if (!isModestXmlPropertyList(text)) {
        return std::nullopt;
    }
    plist_t root = nullptr;
    ::plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &root);
    return stringInDictionary(Node(root), key);
}

std::optional<std::string> stringInText(std::string_view text, std::string_view key) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    if (!isUtf8(text)) {
        return std::nullopt;
    }
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    const bool isXml = first != std::string_view::npos && text[first] == '<';
    return isXml ? stringInXml(text.substr(first), key) : stringInOldStylePropertyList(text, key);
}

} // namespace

std::optional<std::string> stringInPropertyList(std::string_view bytes, std::string_view key) {
    if (bytes.size() > UINT32_MAX) {
        return std::nullopt;
    }
    if (bytes.starts_with("bplist")) {
        return stringInBinary(bytes, key);
    }
    const std::optional<std::string> transcoded = utf8FromMarkedUtf16(bytes);
    return stringInText(transcoded ? *transcoded : bytes, key);
}

} // namespace kelmar
