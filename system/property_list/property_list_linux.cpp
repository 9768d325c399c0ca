#include "system/property_list/binary.hpp"
#include "system/property_list/old_style.hpp"
#include "system/property_list/property_list.hpp"
#include "system/property_list/xml.hpp"
#include "system/text/utf16.hpp"
#include "system/text/utf8.hpp"

#include <plist/plist.h>

#include <algorithm>
#include <cstdint>
#include <memory>

#include <iconv.h>
#include <strings.h>

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
    // Not plist_get_string_val: it aborts on a text with a null character in it.
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

/// The encoding that an XML declaration names, read as the ASCII that all encodings here share;
/// empty without one.
std::string declaredEncoding(std::string_view text) {
    constexpr std::string_view name = "encoding=";
    const std::string_view declaration =
        text.starts_with("<?xml") ? text.substr(0, text.find("?>")) : std::string_view();
    const std::size_t at = declaration.find(name);
    if (at == std::string_view::npos || at + name.size() >= declaration.size()) {
        return {};
    }
    const char quote = declaration[at + name.size()];
    const std::string_view value = declaration.substr(at + name.size() + 1);
    const std::size_t end = value.find(quote);
    return std::string(end == std::string_view::npos ? std::string_view() : value.substr(0, end));
}

struct CloseConverter {
    void operator()(iconv_t converter) const { ::iconv_close(converter); }
};

/// `bytes` converted from `encoding` to UTF-8 by iconv(3); absent if the encoding is unknown or the
/// bytes are invalid in it.
std::optional<std::string> utf8From(const std::string& encoding, std::string_view bytes) {
    iconv_t opened = ::iconv_open("UTF-8", encoding.c_str());
    // iconv_open(3) reports an error as -1 cast to a pointer.
    if (reinterpret_cast<std::intptr_t>(opened) == -1) {
        return std::nullopt;
    }
    const std::unique_ptr<void, CloseConverter> converter(opened);
    constexpr std::size_t longest = 4; // the longest UTF-8 sequence, in bytes
    std::string text(bytes.size() * longest, '\0');
    char* from = const_cast<char*>(bytes.data()); // iconv(3) only reads it
    std::size_t left = bytes.size();
    char* to = text.data();
    std::size_t room = text.size();
    if (::iconv(converter.get(), &from, &left, &to, &room) == static_cast<std::size_t>(-1)) {
        return std::nullopt;
    }
    text.resize(text.size() - room);
    return text;
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
    const std::string encoding = declaredEncoding(text);
    const bool isAscii = std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
    if (!isAscii && !encoding.empty() && ::strcasecmp(encoding.c_str(), "UTF-8") != 0) {
        const std::optional<std::string> converted = utf8From(encoding, text);
        return converted && isUtf8(*converted) ? stringInXml(*converted, key) : std::nullopt;
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
