#include "admin/apple_script_error.hpp"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

using Kind = AdministratorError::Kind;

TEST(AppleScriptError, OfARefusedPromptIsCancelledForExactlyFourNumbers) {
    for (std::int64_t number = -70'000; number <= 1'000; ++number) {
        const bool refused =
            number == -128 || number == -60'005 || number == -60'006 || number == -60'007;
        EXPECT_EQ(administratorError(number, "text").kind(),
                  refused ? Kind::cancelled : Kind::failed)
            << number;
    }
}

TEST(AppleScriptError, OfAScriptSaysWhatTheScriptSaid) {
    const AdministratorError error = administratorError(1, "no such volume");
    EXPECT_EQ(error.kind(), Kind::failed);
    EXPECT_STREQ(error.what(), "no such volume");
}

TEST(AppleScriptError, WithoutAMessageSaysItsNumber) {
    EXPECT_STREQ(administratorError(-60'008, std::nullopt).what(), "error -60008");
    EXPECT_STREQ(administratorError(std::nullopt, std::nullopt).what(), "error 0");
}

TEST(AppleScriptError, WithoutANumberIsAFailure) {
    const AdministratorError error = administratorError(std::nullopt, "odd");
    EXPECT_EQ(error.kind(), Kind::failed);
    EXPECT_STREQ(error.what(), "odd");
}

TEST(AppleScriptError, KeepsAnEmptyMessage) {
    EXPECT_STREQ(administratorError(2, "").what(), "");
}

} // namespace
} // namespace kelmar
