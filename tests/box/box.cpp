#include "tests/box/box.hpp"

#include "tests/support/can_be_constructed.hpp"
#include "tests/support/lines.hpp"
#include "tests/support/mac_userland.hpp"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <sys/utsname.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

/// `Box::password` as crypt(5) hashes it with SHA-256: `openssl passwd -5 -salt kelmar`.
constexpr const char* hashOfPassword = "$5$kelmar$1MrLPMdVJzB//kbPbLHEUs3CbyGLoYmfLX6nUltdKb7";

void write(const std::string& path, const std::string& text, fs::perms permissions) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::app) << text;
    fs::permissions(path, permissions);
}

/// Replaces slashes: volumes and service names become file names in /box.
std::string flat(std::string name) {
    for (char& character : name) {
        character = character == '/' ? ':' : character;
    }
    return name;
}

} // namespace

std::optional<std::string> Box::skipReason() {
    if (::getuid() != 0) {
        return "a pretend Mac needs mounts of its own, and so root";
    }
    if (MacUserland::isWanted() && MacUserland::skipReason()) {
        return MacUserland::skipReason();
    }
    return canBeConstructed<Box>()
               ? std::nullopt
               : std::optional<std::string>("this machine lets nobody mount an overlay");
}

Box::Box() : root_(folder_ / "root") {
    const std::string layer = folder_ / "layer";
    mounts_.add("tmpfs", layer, "mode=755");
    fs::create_directories(layer + "/upper");
    fs::create_directories(layer + "/work");
    mounts_.add("overlay", root_,
                "lowerdir=/,upperdir=" + layer + "/upper,workdir=" + layer + "/work");
    mounts_.bindWithMounts("/proc", outside("/proc"));
    mounts_.bindWithMounts("/dev", outside("/dev"));

    for (const char* const tool : {"/bin/launchctl", "/usr/sbin/pkgutil", "/usr/bin/security",
                                   "/usr/bin/defaults", "/usr/bin/tccutil"}) {
        const std::string place = outside(tool);
        fs::remove(place);
        fs::copy_file(std::string(KELMAR_FAKE_TOOLS) + "/" + fs::path(tool).filename().native(),
                      place);
        fs::permissions(place, fs::perms(0755));
    }
    write(outside("/box/calls"), "", fs::perms(0666));
    if (MacUserland::isWanted()) {
        MacUserland::install(mounts_, root_);
    }
    addAccounts();
    fs::create_directories(outside("/box/bin"));
    const fs::path executable = test::uninstaller({}, {}).path;
    fs::copy_file(executable, outside("/box/bin/kelmar-uninstaller"));
    fs::copy_file(executable.parent_path() / "uninstall-as-admin.sh",
                  outside("/box/bin/uninstall-as-admin.sh"));
    for (const char* const own : {"/Users/ann", "/Users/ann/Library", "/box/tmp"}) {
        fs::create_directories(outside(own));
        chownToUser(own);
    }
    fs::create_directories(outside("/Users/Shared"));
    fs::permissions(outside("/Users/Shared"), fs::perms(01777));
    fs::create_directories(outside("/Applications"));
    fs::create_directories(outside("/Library/LaunchAgents"));
}

Box::~Box() {
    sleepers_.clear();
    for (const pid_t process : background_) {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }
}

MacTree Box::tree() const {
    return MacTree(KelmarPaths{root_, outside("/Users/ann"), outside("/box/tmp"), std::nullopt});
}

void Box::chownToUser(const std::string& path) const {
    const std::string place = outside(path);
    if (::lchown(place.c_str(), user, user) != 0) {
        throw std::system_error(errno, std::generic_category(), place);
    }
    if (fs::is_directory(fs::symlink_status(place))) {
        for (const fs::directory_entry& entry : fs::directory_iterator(place)) {
            chownToUser(entry.path().native().substr(root_.size()));
        }
    }
}

void Box::set(const std::string& path, const std::string& text) const {
    write(outside(path), text, fs::perms(0666));
    fs::permissions(fs::path(outside(path)).parent_path(), fs::perms(0777));
}

void Box::addReceipt(const std::string& identifier, const std::string& volume,
                     const std::string& error) const {
    set("/box/receipts/" + flat(volume) + "/" + identifier, error);
}

void Box::addService(const std::string& label, const std::string& plist) const {
    set("/box/services/gui:" + std::to_string(user) + ":" + label, plist);
}

void Box::addKeychainItem(const std::string& service, const std::string& item) const {
    set("/box/keychain/" + service, item + "\n");
}

/// Makes root and the user the only accounts, since this machine may already use the user's name or
/// number. Gives the user the password and the right to run anything with it. The machine's own
/// name is known: sudo complains of one that it can't resolve.
void Box::addAccounts() const {
    for (const char* const file : {"/etc/passwd", "/etc/shadow"}) {
        fs::remove(outside(file));
    }
    write(outside("/etc/passwd"),
          "root:x:0:0:root:/root:/bin/sh\nann:x:501:501:Ann:/Users/ann/:/bin/sh\n",
          fs::perms(0644));
    write(outside("/etc/shadow"),
          "root:*:20000::::::\nann:" + std::string(hashOfPassword) + ":20000::::::\n",
          fs::perms(0640));
    write(outside("/etc/sudoers.d/ann"), "ann ALL=(ALL) ALL\n", fs::perms(0440));
    utsname machine = {};
    ::uname(&machine);
    write(outside("/etc/hosts"), std::string("127.0.0.1 ") + machine.nodename + "\n",
          fs::perms(0644));
}

Sleeper& Box::start(const std::string& path, uid_t asUser, const std::vector<int>& ignoring,
                    const Sleeper::Preparation& first) const {
    sleepers_.push_back(
        std::make_unique<Sleeper>(outside(path), [ignore = Sleeper::ignoring(ignoring),
                                                  become = Sleeper::asUser(asUser), first] {
            ignore();
            become();
            if (first) {
                first();
            }
        }));
    sleepers_.back()->reapInBackground();
    return *sleepers_.back();
}

void Box::runInBackground(const std::string& script) const {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::chroot(root_.c_str()) == 0 && ::chdir("/") == 0) {
            ::execl("/bin/sh", "sh", "-c", script.c_str(), nullptr);
        }
        ::_exit(127);
    }
    background_.push_back(child);
}

void Box::mountOver(const std::string& path) const {
    const std::string empty = folder_ / "layer/empty";
    fs::create_directories(empty);
    mounts_.bind(empty, outside(path));
}

void Box::replace(const std::string& path, const std::string& script) const {
    fs::remove(outside(path));
    write(outside(path), "#!/bin/sh\n" + script, fs::perms(0755));
}

Program Box::uninstaller(const std::vector<std::string>& arguments) const {
    Program program = test::uninstaller(arguments, std::nullopt);
    program.path = "/box/bin/kelmar-uninstaller";
    program.root = root_;
    program.user = user;
    program.environment["TMPDIR"] = "/box/tmp";
    program.environment["HOME"] = "/nowhere";
    program.environment["SUDO_ASKPASS"] = askpass();
    return program;
}

std::vector<std::string> Box::calls() const {
    return linesOfFile(outside("/box/calls"));
}

} // namespace kelmar::test
