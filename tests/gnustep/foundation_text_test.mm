#include "system/text/foundation_text_macos.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

using namespace std::string_literals;

class FoundationText : public testing::Test {
protected:
    ~FoundationText() override { [pool_ drain]; }

private:
    NSAutoreleasePool* pool_ = [NSAutoreleasePool new];
};

TEST_F(FoundationText, IsNeverNilAndHoldsEveryByteThatIsText) {
    for (const std::string& bytes :
         {""s, "a"s, "\xff"s, "\xc3"s, "\xed\xa0\x80"s, "\xf5\x80\x80\x80"s, "\xfe\xff"s, "\0"s,
          "a\0b"s, "\xef\xbf\xbf"s, "\xf0\x9f\x98\x80"s,
          "a\xff\xfe"
          "b"s}) {
        EXPECT_NE(foundationText(bytes), nil) << testing::PrintToString(bytes);
    }
    EXPECT_TRUE([foundationText("a\xff"
                                "b") isEqualToString:@"a\uFFFDb"]);
    EXPECT_EQ([foundationText("a\0b"s) length], 3U);
    EXPECT_EQ([foundationText("\xf0\x9f\x98\x80") length], 2U) << "a pair of surrogates";
}

TEST_F(FoundationText, ComesBackAsItWas) {
    for (const std::string& text : {""s, "plain"s, "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"s,
                                    "before\0after"s, std::string(100'000, 'x')}) {
        EXPECT_EQ(plainText(foundationText(text)), text);
    }
}

TEST_F(FoundationText, OfNilIsEmpty) {
    EXPECT_EQ(plainText(nil), "");
}

} // namespace
} // namespace kelmar
