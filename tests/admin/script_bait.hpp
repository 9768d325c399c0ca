#pragma once

#include "tests/admin/script_fixture.hpp"
#include "tests/support/snapshot.hpp"

#include <map>
#include <string>

namespace kelmar::test {

/// The script where ordinary users have put links, and a bait behind those that must never be
/// touched.
class ScriptWithABait : public Script {
protected:
    using Script::Script;

    void SetUp() override {
        tree.file(bait + "/Kelmar/precious", "bait").file(bait + "/Store/precious", "bait");
        tree.file(bait + "/@Kelmar/Store/precious", "bait")
            .file(bait + "/Kelmar.app/precious", "bait");
        tree.file(bait + "/com.kelmar.api.plist", "bait").file(bait + "/bin/precious", "bait");
        before = contents(bait);
    }

    void TearDown() override { EXPECT_EQ(contents(bait), before) << "the bait was touched"; }

    [[nodiscard]] static std::string throughALink(const std::string& path) {
        return "FAIL " + path + "\tit is reached through a link";
    }

    std::string bait = folder / "bait";
    std::map<std::string, std::string> before;
};

} // namespace kelmar::test
