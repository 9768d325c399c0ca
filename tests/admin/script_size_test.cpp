#include "system/files/file_descriptor.hpp"
#include "tests/admin/script_fixture.hpp"
#include "tests/support/unremovable.hpp"

#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>

namespace kelmar {
namespace {

/// Items larger than a path, a pipe or a list of arguments.
class ScriptAndSize : public test::Script {
protected:
    std::string item = system("/Library/Kelmar");
};

TEST_F(ScriptAndSize, ATreeDeeperThanAnyPathGoes) {
    tree.folder(item);
    const std::string name(255, 'd');
    FileDescriptor here(::open(item.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int depth = 0; depth < 260; ++depth) { // 66,560 characters
        ASSERT_EQ(::mkdirat(here.get(), name.c_str(), 0700), 0);
        here =
            FileDescriptor(::openat(here.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        ASSERT_TRUE(here.isOpen());
    }
    EXPECT_EQ(run({"--all-users"}), (Lines{"DOING " + item, "OK " + item, "DONE"}));
    EXPECT_FALSE(isThere(item));
}

TEST_F(ScriptAndSize, OfManyComplaintsTheFirstIsTheReason) {
    const std::string locked = item + "/locked";
    tree.folder(locked);
    for (int number = 0; number < 10000; ++number) {
        std::ofstream(locked + "/" + std::to_string(number)).close();
    }
    const test::Unremovable lock(locked);
    if (!lock.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    const Lines lines = run({"--all-users"});
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_TRUE(lines[1].starts_with("FAIL " + item + "\trm: ")) << lines[1];
    EXPECT_NE(lines[1].find("locked/"), std::string::npos) << lines[1];
    EXPECT_TRUE(lines[1].ends_with(": Operation not permitted")) << lines[1];
    EXPECT_EQ(lines[2], "DONE");
}

} // namespace
} // namespace kelmar
