#include "admin/askpass_linux.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar {
namespace {

using Words = std::vector<std::string>;

const std::string asked = "kelmar-uninstaller: a password is asked for\n";

TEST(Askpass, ARefusalHasNoWordsOfItsOwn) {
    for (const char* const refusal :
         {"sudo: no password was provided\nsudo: a password is required\n",
          "Sorry, try again.\nSorry, try again.\nsudo: 3 incorrect password attempts\n",
          "Sorry, try again.\nsudo: no password was provided\nsudo: 1 incorrect password attempt\n",
          ""}) {
        const Askpass::Said said = Askpass::understood(asked + refusal);
        EXPECT_TRUE(said.asked);
        EXPECT_EQ(said.words, Words{}) << refusal;
    }
}

TEST(Askpass, WhatElseSudoSaysIsKept) {
    const Askpass::Said denied = Askpass::understood(asked + "Sorry, user ann is not allowed.\n");
    EXPECT_TRUE(denied.asked);
    EXPECT_EQ(denied.words, Words{"Sorry, user ann is not allowed."});
    const Askpass::Said broken =
        Askpass::understood("sudo: /etc/sudoers is world writable\nsudo: error initializing\n");
    EXPECT_FALSE(broken.asked);
    EXPECT_EQ(broken.words,
              (Words{"sudo: /etc/sudoers is world writable", "sudo: error initializing"}));
}

} // namespace
} // namespace kelmar
