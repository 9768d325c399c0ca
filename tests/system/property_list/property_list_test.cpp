#include "system/property_list/property_list.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/system/property_list/samples.hpp"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <sys/stat.h>

namespace kelmar {
namespace {

using Text = std::optional<std::string>;
using test::key;

std::string xml(const std::string& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
           "</plist>\n";
}

std::string dictionary(const std::string& value) {
    return xml("<dict><key>CFBundleShortVersionString</key>" + value + "</dict>");
}

std::string binary(const std::string& value) {
    plist_t root = ::plist_new_dict();
    ::plist_dict_set_item(root, "CFBundleName", ::plist_new_string("Kelmar"));
    ::plist_dict_set_item(root, key, ::plist_new_string(value.c_str()));
    char* bytes = nullptr;
    std::uint32_t length = 0;
    ::plist_to_bin(root, &bytes, &length);
    std::string result(bytes, length);
    std::free(bytes);
    ::plist_free(root);
    return result;
}

std::string utf16(const std::string& ascii, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : ascii) {
        bytes += bigEndian ? std::string{'\0', character} : std::string{character, '\0'};
    }
    return bytes;
}

TEST(PropertyList, XmlHoldsTheText) {
    EXPECT_EQ(stringInPropertyList(test::versionRecord("4.2.1"), key), "4.2.1");
    EXPECT_EQ(stringInPropertyList(dictionary("<string>1 &amp; &lt;2&gt; \xC3\xA9</string>"), key),
              "1 & <2> \xC3\xA9");
    EXPECT_EQ(stringInPropertyList(dictionary("<string></string>"), key), "");
}

TEST(PropertyList, XmlMayBeginWithAByteOrderMarkOrBlanks) {
    EXPECT_EQ(stringInPropertyList("\xEF\xBB\xBF" + test::versionRecord("4"), key), "4");
    EXPECT_EQ(stringInPropertyList("\n \t" + test::versionRecord("4"), key), "4");
}

TEST(PropertyList, XmlMayBeUtf16) {
    EXPECT_EQ(stringInPropertyList(utf16(test::versionRecord("5.1"), true), key), "5.1");
    EXPECT_EQ(stringInPropertyList(utf16(test::versionRecord("5.1"), false), key), "5.1");
}

TEST(PropertyList, BinaryHoldsTheText) {
    EXPECT_EQ(stringInPropertyList(binary("4.2.1"), key), "4.2.1");
    EXPECT_EQ(stringInPropertyList(binary("vier \xE2\x82\xAC"), key), "vier \xE2\x82\xAC");
    const std::string longText(5000, 'v');
    EXPECT_EQ(stringInPropertyList(binary(longText), key), longText);
}

TEST(PropertyList, TheOldTextFormHoldsTheText) {
    EXPECT_EQ(stringInPropertyList("{ CFBundleShortVersionString = \"1.2\"; }", key), "1.2");
    EXPECT_EQ(stringInPropertyList(utf16("{ CFBundleShortVersionString = 1.3; }", true), key),
              "1.3");
}

TEST(PropertyList, OnlyTextUnderTheKeyOfADictionaryCounts) {
    for (const char* const value :
         {"<integer>4</integer>", "<real>4.2</real>", "<true/>",
          "<array><string>4</string></array>",
          "<dict><key>CFBundleShortVersionString</key><string>4</string></dict>",
          "<data>NA==</data>", "<date>2026-01-01T00:00:00Z</date>"}) {
        EXPECT_EQ(stringInPropertyList(dictionary(value), key), std::nullopt) << value;
    }
    EXPECT_EQ(stringInPropertyList(xml("<string>4</string>"), key), std::nullopt);
    EXPECT_EQ(stringInPropertyList(xml("<array><string>4</string></array>"), key), std::nullopt);
    EXPECT_EQ(stringInPropertyList(xml("<dict/>"), key), std::nullopt);
    EXPECT_EQ(stringInPropertyList(xml("<dict><key>cfbundleshortversionstring</key>"
                                       "<string>4</string></dict>"),
                                   key),
              std::nullopt);
}

TEST(PropertyList, MalformedXmlHoldsNothing) {
    for (const std::string& text :
         {std::string(), std::string(" "), std::string("<"), std::string("<plist>"),
          std::string("<dict><key>CFBundleShortVersionString</key><string>4"),
          dictionary("<string>4</dict>"), dictionary("<string>&unknown;</string>"),
          dictionary("<string>\xFF</string>"), std::string("not a list at all")}) {
        EXPECT_EQ(stringInPropertyList(text, key), std::nullopt) << text;
    }
}

TEST(PropertyList, NoTruncationOfAnyFormIsMoreThanNothing) {
    for (const std::string& whole : {binary("4.2.1"), dictionary("<string>4.2.1</string>"),
                                     std::string("{ CFBundleShortVersionString = \"4.2.1\"; }")}) {
        const std::size_t needed = whole.find_last_not_of('\n');
        for (std::size_t length = 0; length < needed; ++length) {
            const Text found = stringInPropertyList(whole.substr(0, length), key);
            EXPECT_TRUE(!found || *found == "4.2.1") << length << ": " << *found;
        }
        EXPECT_EQ(stringInPropertyList(whole, key), "4.2.1");
    }
}

TEST(PropertyList, IsReadFromAFileThroughLinks) {
    const test::TemporaryFolder folder;
    std::ofstream(folder / "real") << test::versionRecord("4.2.1");
    std::filesystem::create_symlink("real", folder / "link");
    EXPECT_EQ(propertyListString(folder / "real", key), "4.2.1");
    EXPECT_EQ(propertyListString(folder / "link", key), "4.2.1");
}

TEST(PropertyList, OfMegabytesIsReadAsAnyOther) {
    const test::TemporaryFolder folder;
    std::ofstream(folder / "large") << test::versionRecord("5") << std::string(3'000'000, ' ');
    EXPECT_EQ(propertyListString(folder / "large", key), "5");
}

TEST(PropertyList, WithManyEmptyElementsIsReadAsAnyOther) {
    std::string many = "<dict><key>a</key><array>";
    for (int count = 0; count < 2'000; ++count) {
        many += count % 2 == 0 ? "<array/>" : "<dict />";
    }
    many += "</array><key>CFBundleShortVersionString</key><string>7</string></dict>";
    EXPECT_EQ(stringInPropertyList(xml(many), key), "7");
}

TEST(PropertyList, WithManyContainersInTheOldTextFormIsReadAsAnyOther) {
    std::string many = "{ a = (";
    for (int count = 0; count < 500; ++count) {
        many += "(), {},";
    }
    EXPECT_EQ(stringInPropertyList(many + "); CFBundleShortVersionString = \"8\"; }", key), "8");
}

TEST(PropertyList, XmlIsReadInTheEncodingThatItDeclares) {
    const std::string body = "<plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key>"
                             "<string>4 b\xEAta</string></dict></plist>";
    EXPECT_EQ(stringInPropertyList("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + body, key),
              "4 b\xC3\xAAta");
    EXPECT_EQ(stringInPropertyList("<?xml version='1.0' encoding='iso-8859-1'?>" + body, key),
              "4 b\xC3\xAAta");
    for (const char* const other : {"UTF-8", "no-such-encoding", ""}) {
        EXPECT_EQ(stringInPropertyList(std::string("<?xml version=\"1.0\" encoding=\"") + other +
                                           "\"?>" + body,
                                       key),
                  std::nullopt)
            << other;
    }
}

TEST(PropertyList, WhatIsNoSensibleFileHoldsNothing) {
    const test::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::string enormous = test::versionRecord("4");
    enormous.resize(enormous.size() + 16'777'216, ' ');
    std::ofstream(folder / "enormous") << enormous;
    for (const std::string& path : {folder / "missing", folder.path(), folder / "pipe",
                                    folder / "enormous", std::string("/dev/zero")}) {
        EXPECT_EQ(propertyListString(path, key), std::nullopt) << path;
    }
}

} // namespace
} // namespace kelmar
