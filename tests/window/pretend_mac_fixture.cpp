#include "tests/window/pretend_mac_fixture.hpp"

#include <filesystem>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* blocked = "/box/blocked";
constexpr const char* unblocked = "/box/unblocked";

std::string blockingScript() {
    return std::string("touch ") + blocked + "\nwhile [ ! -e " + unblocked +
           " ]; do sleep 0.02; done\n";
}

} // namespace

void WindowOnAPretendMac::SetUp() {
    if (const auto reason = Box::skipReason()) {
        GTEST_SKIP() << *reason;
    }
    Window::SetUp();
    if (IsSkipped()) {
        return;
    }
    box = std::make_unique<Box>();
    const std::string module = "kelmar-window.so";
    fs::copy_file(fs::path(test::uninstaller({}, {}).path).parent_path() / module,
                  box->outside("/box/bin/" + module));
    box->set("/box/state"); // and with it lets everybody put files there
    box->answerPasswordWith(blockingScript() + "echo '" + Box::password + "'\n");
}

void WindowOnAPretendMac::TearDown() {
    if (box) {
        unblock(); // also those whom the window has left behind
    }
    running.reset();
    Window::TearDown();
}

void WindowOnAPretendMac::open() {
    Window::open(box->uninstaller({}));
}

void WindowOnAPretendMac::installForBoth() const {
    box->tree()
        .app(Scope::me, "4.3")
        .app(Scope::allUsers, "4.2.1")
        .dataFolder(Scope::me, "Store", 2'000'000)
        .dataFolder(Scope::allUsers, "CDN", 1'000'000);
    box->chownToUser("/Users/ann");
}

void WindowOnAPretendMac::block(const std::string& path) const {
    box->replace(path, blockingScript());
}

bool WindowOnAPretendMac::isBlocked() const {
    return fs::exists(box->outside(blocked));
}

void WindowOnAPretendMac::unblock() const {
    box->set(unblocked);
}

void WindowOnAPretendMac::startAndStopAtThePassword() const {
    click("push button", "Uninstall");
    click("push button", "Uninstall and Delete Data");
    ASSERT_TRUE(shows("heading: Uninstalling Kelmar…"));
    ASSERT_TRUE(eventually([this] { return isBlocked(); }));
}

} // namespace kelmar::test
