#include "system/property_list/xml.hpp"
#include "tests/system/property_list/samples.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

using test::repeated;

TEST(XmlPropertyList, OfAnOrdinarySizeIsModest) {
    EXPECT_TRUE(isModestXmlPropertyList(""));
    EXPECT_TRUE(isModestXmlPropertyList("<plist><dict><key>a</key><array/></dict></plist>"));
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<dict><array></array></dict>", 4'000)));
}

TEST(XmlPropertyList, WithTooManyContainersIsNot) {
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<dict></dict>", 10'000)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<dict></dict>", 10'001)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<array></array>", 10'001)));
}

TEST(XmlPropertyList, NestedTooDeepIsNot) {
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<dict>", 128)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<dict>", 129)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<array key='a'>", 129)));
}

TEST(XmlPropertyList, WithEmptyElementsSideBySideIsNotNested) {
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<array/>", 5'000)));
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<dict />", 5'000)));
    EXPECT_TRUE(isModestXmlPropertyList(repeated("<dict\n\t/>", 5'000)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<dict a='/>'>", 129)))
        << "a quoted value may look like an end";
}

TEST(XmlPropertyList, DoesNotCloseAContainerInAComment) {
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<dict><!-- </dict> -->", 129)));
    EXPECT_FALSE(isModestXmlPropertyList(repeated("<dict><![CDATA[</dict>]]>", 129)));
    EXPECT_TRUE(isModestXmlPropertyList("<!--" + repeated("<dict>", 20'000) + "-->"));
}

TEST(XmlPropertyList, EndsWithAPassageThatDoesNot) {
    EXPECT_TRUE(isModestXmlPropertyList("<dict><!-- " + repeated("<dict>", 200)));
}

TEST(XmlPropertyList, HoldsNoNullCharacter) {
    EXPECT_FALSE(isModestXmlPropertyList(std::string_view("<dict>\0</dict>", 14)));
}

} // namespace
} // namespace kelmar
