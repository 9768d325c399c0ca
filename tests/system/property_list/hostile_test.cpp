#include "system/property_list/binary.hpp"
#include "system/property_list/property_list.hpp"
#include "tests/support/durations.hpp"
#include "tests/system/property_list/samples.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using test::key;
using test::repeated;

std::string bigEndian(std::uint64_t value, int size) {
    std::string bytes;
    for (int shift = (size - 1) * 8; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<char>((value >> shift) & 0xFF));
    }
    return bytes;
}

/// A binary property list put together by hand: the given objects, one-byte references, object 0 on
/// top.
std::string binary(const std::vector<std::string>& objects) {
    std::string bytes = "bplist00";
    std::string table;
    for (const std::string& object : objects) {
        table += bigEndian(bytes.size(), 4);
        bytes += object;
    }
    const std::uint64_t tableOffset = bytes.size();
    return bytes + table + std::string(6, '\0') + "\x04\x01" + bigEndian(objects.size(), 8) +
           bigEndian(0, 8) + bigEndian(tableOffset, 8);
}

std::string reference(std::size_t index) {
    return {static_cast<char>(index)};
}

/// A dictionary that is sound in itself: the key, its text, and one member more under the key "x".
std::vector<std::string> withMember(const std::vector<std::string>& member) {
    std::vector<std::string> objects{"\xD2" + reference(1) + reference(2) + reference(3) +
                                         reference(4),
                                     "\x5F\x10\x1A" + std::string(key), "\x51x",
                                     "\x53"
                                     "4.2"};
    objects.insert(objects.end(), member.begin(), member.end());
    return objects;
}

/// A file that is read in no time, whatever it claims to hold.
void expectNothingQuickly(const std::string& bytes) {
    const auto work =
        test::workOf([&bytes] { EXPECT_EQ(stringInPropertyList(bytes, key), std::nullopt); });
    EXPECT_LT(work, std::chrono::seconds(2));
}

TEST(HostileBinaryPropertyList, TheHandMadeFormIsReadWhenItIsHarmless) {
    EXPECT_EQ(stringInPropertyList(binary(withMember({"\x51y"})), key), "4.2");
    EXPECT_EQ(stringInPropertyList(binary(withMember({"\xA1" + reference(3)})), key), "4.2");
}

TEST(HostileBinaryPropertyList, AnObjectThatContainsItselfHoldsNothing) {
    expectNothingQuickly(binary(withMember({"\xA1" + reference(4)})));
    expectNothingQuickly(binary(withMember({"\xA1" + reference(5), "\xA1" + reference(4)})));
    expectNothingQuickly(binary(withMember({"\xA1" + reference(0)})));
}

TEST(HostileBinaryPropertyList, AFewBytesThatStandForAnEnormousTreeHoldNothing) {
    std::vector<std::string> doubling;
    for (std::size_t index = 4; index < 40; ++index) {
        doubling.push_back("\xA2" + reference(index + 1) + reference(index + 1));
    }
    doubling.emplace_back("\x51z");
    expectNothingQuickly(binary(withMember(doubling)));
}

TEST(HostileBinaryPropertyList, ALongTextReferredToOftenHoldsNothing) {
    const std::string text =
        std::string("\x5F\x12") + bigEndian(500'000, 4) + std::string(500'000, 't');
    const std::string often = "\xAF\x11" + bigEndian(1000, 2) + repeated(reference(5), 1000);
    expectNothingQuickly(binary(withMember({often, text})));
}

TEST(HostileBinaryPropertyList, DeepNestingHoldsNothing) {
    std::vector<std::string> deep;
    for (std::size_t index = 4; index < 120; ++index) {
        deep.push_back("\xA1" + reference(index + 1));
    }
    deep.emplace_back("\x51z");
    expectNothingQuickly(binary(withMember(deep)));
}

TEST(HostileBinaryPropertyList, CountsAndReferencesBeyondTheFileHoldNothing) {
    for (const std::string& member :
         {std::string("\xAF\x13") + bigEndian(~std::uint64_t{0}, 8),
          "\xAF\x13" + bigEndian(1ULL << 62, 8), std::string("\x5F\x12\x7F\xFF\xFF\xFF"),
          std::string("\x6F\x13") + bigEndian(1ULL << 63, 8), std::string("\x5F\x51x"),
          std::string("\x5F"), "\xA1" + reference(200), "\xDF\x12" + bigEndian(0xFFFFFFFF, 4)}) {
        expectNothingQuickly(binary(withMember({member})));
    }
}

TEST(HostileBinaryPropertyList, ATrailerThatLiesHoldsNothing) {
    const std::string whole = binary(withMember({"\x51y"}));
    const std::size_t trailer = whole.size() - 32;
    for (std::size_t at = trailer + 6; at < whole.size(); ++at) {
        for (const char byte : {'\x00', '\x01', '\x08', '\x10', '\x7F', '\xFF'}) {
            std::string changed = whole;
            changed[at] = byte;
            const std::optional<std::string> found = stringInPropertyList(changed, key);
            EXPECT_TRUE(!found || *found == "4.2") << at;
        }
    }
    EXPECT_FALSE(isModestBinaryPropertyList(""));
    EXPECT_FALSE(isModestBinaryPropertyList("bplist00"));
    EXPECT_FALSE(isModestBinaryPropertyList("bplist00" + std::string(32, '\xFF')));
}

TEST(HostileXmlPropertyList, DeepNestingHoldsNothing) {
    expectNothingQuickly("<plist>" + repeated("<array>", 140'000));
    expectNothingQuickly("<plist>" + repeated("<dict><key>a</key>", 50'000));
    expectNothingQuickly("<plist><dict><key>CFBundleShortVersionString</key>" +
                         repeated("<array>", 60'000) + repeated("</array>", 60'000) +
                         "</dict></plist>");
}

TEST(HostileXmlPropertyList, EntitiesOfItsOwnHoldNothing) {
    std::string text = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a0 \"aaaaaaaaaa\">";
    for (int level = 1; level < 20; ++level) {
        const std::string below = "&a" + std::to_string(level - 1) + ";";
        text += "<!ENTITY a" + std::to_string(level) + " \"" + repeated(below, 10) + "\">";
    }
    text +=
        "]><plist><dict><key>CFBundleShortVersionString</key><string>&a19;</string></dict></plist>";
    expectNothingQuickly(text);
    expectNothingQuickly(
        "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY f SYSTEM \"file:///etc/passwd\">]>"
        "<plist><dict><key>CFBundleShortVersionString</key><string>&f;</string></dict>"
        "</plist>");
}

TEST(HostileXmlPropertyList, ATextWithANullCharacterInItHoldsNothing) {
    const std::string null(1, '\0');
    expectNothingQuickly("<plist><dict><key>CFBundleShortVersionString</key><string>4" + null +
                         "2</string></dict></plist>");
    expectNothingQuickly("<plist><dict>" + null +
                         "<key>CFBundleShortVersionString</key><string>4</string>" +
                         "</dict></plist>");
}

TEST(HostileBinaryPropertyList, ATextEndsAtANullCharacterInItOrHoldsNothing) {
    const std::string null(1, '\0');
    std::vector<std::string> objects = withMember({"\x51y"});
    for (const std::string& text : {"\x53"
                                    "4" +
                                        null + "2",
                                    "\x62" + null + "4" + null + null}) {
        objects[3] = text;
        EXPECT_EQ(stringInPropertyList(binary(objects), key).value_or("4"), "4");
    }
}

TEST(HostileXmlPropertyList, ManyKeysAndLongTextsTakeNoTime) {
    std::string many = "<plist><dict>";
    for (int index = 0; many.size() < 1'000'000; ++index) {
        many += "<key>" + std::to_string(index) + "</key><true/>";
    }
    expectNothingQuickly(many + "</dict></plist>");
    expectNothingQuickly("<plist><dict><key>CFBundleShortVersionString</key><string>" +
                         repeated("&amp;", 200'000));
    expectNothingQuickly("<plist><dict>" + repeated("<!-- -->", 125'000));
    expectNothingQuickly("<plist><dict><key>" + std::string(1'000'000, 'k'));
}

TEST(HostileOldStylePropertyList, DeepNestingHoldsNothing) {
    expectNothingQuickly("{ a = " + repeated("(", 500'000));
    expectNothingQuickly(repeated("{ a = ", 150'000));
    expectNothingQuickly("{ a = " + repeated("(", 65) + repeated(")", 65) +
                         "; CFBundleShortVersionString = 4; }");
}

} // namespace
} // namespace kelmar
