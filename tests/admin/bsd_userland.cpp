#include "tests/admin/bsd_userland.hpp"

#include "tests/support/can_be_constructed.hpp"
#include "tests/support/lines.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include <unistd.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

/// Where a Mac has the tools that the script uses.
const std::map<std::string, std::vector<std::string>> toolsByFolder{
    {"/bin", {"chmod", "launchctl", "ln", "ls", "mkdir", "ps", "pwd", "rm", "rmdir", "sleep"}},
    {"/sbin", {"mount"}},
    {"/usr/bin", {"env", "find", "id", "readlink", "sort", "tr", "uname"}},
    {"/usr/sbin", {"pkgutil"}}};

/// Tools that a script may reach for, and that have no fake. A call of one is told even if its
/// message goes nowhere, as that of a tool that is not there at all would not be.
constexpr const char* strangers[] = {
    "awk",      "basename", "cat",     "chflags", "chown", "cp",    "cut",    "date",
    "df",       "diff",     "dirname", "du",      "expr",  "grep",  "head",   "kill",
    "lsof",     "mktemp",   "mv",      "perl",    "pgrep", "pkill", "printf", "python3",
    "realpath", "sed",      "seq",     "stat",    "su",    "sudo",  "tail",   "tee",
    "test",     "timeout",  "touch",   "uniq",    "wc",    "which", "xargs"};

/// Where this machine has its libraries, of which bash and the fakes' own tools need some.
constexpr const char* libraryFolders[] = {"/usr/lib", "/usr/lib64", "/lib", "/lib64"};

void write(const std::string& path, const std::string& text, int permissions) {
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path) << text;
    fs::permissions(path, fs::perms(permissions));
}

} // namespace

std::optional<std::string> BsdUserland::skipReason() {
    if (::getuid() != 0) {
        return "a Mac's tools need mounts of their own, and so root";
    }
    if (!fs::is_symlink("/bin") || !fs::exists("/usr/bin/setpriv")) {
        return "a Mac's tools are made of this machine's in /usr/bin, and not all are there";
    }
    static const bool works = canBeConstructed<BsdUserland>();
    return works ? std::nullopt
                 : std::optional<std::string>("this machine lets nobody mount anything");
}

BsdUserland::BsdUserland() : root_(folder_ / "root") {
    for (const char* const library : libraryFolders) {
        if (fs::is_symlink(library)) {
            fs::copy_symlink(library, outside(library));
        } else if (fs::is_directory(library)) {
            mounts_.bind(library, outside(library));
        }
    }
    mounts_.bind("/etc", outside("/etc"));
    mounts_.bind("/usr/bin", outside("/mnt/gnu"));
    mounts_.bind("/proc", outside("/mnt/proc"));
    write(outside("/dev/null"), "", 0666);
    mounts_.bind("/dev/null", outside("/dev/null"));
    fs::create_directory_symlink("/mnt/proc/self/fd", outside("/dev/fd"));
    write(outside("/mnt/calls"), "", 0666);
    addTools();
    for (const char* const empty : {"/Applications", "/Library/LaunchAgents", "/Users/Shared",
                                    "/mnt/state/services", "/mnt/state/receipts"}) {
        fs::create_directories(outside(empty));
    }
}

void BsdUserland::addTools() const {
    const std::string fakes = KELMAR_BSD_FAKES;
    fs::copy_file(fakes + "/support.sh", outside("/mnt/support.sh"));
    for (const auto& [place, names] : toolsByFolder) {
        fs::create_directories(outside(place));
        for (const std::string& name : names) {
            fs::copy_file(fakes + "/" + name, outside(place + "/" + name));
        }
    }
    // Not /bin/bash of this machine: that may be taken over already.
    fs::copy_file(outside("/mnt/gnu/bash"), outside("/bin/bash"));
    fs::copy_file(fakes + "/unknown", outside("/mnt/unknown"));
    for (const char* const name : strangers) {
        fs::create_symlink("/mnt/unknown", outside("/usr/sbin/") + name);
    }
}

void BsdUserland::share(const std::string& path) {
    mounts_.bind(path, outside(path));
}

void BsdUserland::mountDisk(const std::string& path) {
    fs::create_directories(outside("/mnt/disk"));
    mounts_.bind(outside("/mnt/disk"), outside(path));
}

void BsdUserland::setState(const std::string& name, const std::string& text) const {
    write(outside("/mnt/state/" + name), text, 0644);
}

Program BsdUserland::program(const std::string& path,
                             const std::vector<std::string>& arguments) const {
    Program program;
    program.path = path;
    program.arguments = arguments;
    program.root = root_;
    return program;
}

void BsdUserland::takeOverBash() {
    const std::string into = folder_ / "bash";
    write(into, "#!/bin/sh\nexec /usr/sbin/chroot '" + root_ + "' /bin/bash \"$@\"\n", 0755);
    mounts_.bind(into, "/usr/bin/bash");
}

std::vector<std::string> BsdUserland::calls() const {
    return linesOfFile(outside("/mnt/calls"));
}

std::vector<std::string> BsdUserland::refusals() const {
    const std::vector<std::string> all = calls();
    std::vector<std::string> refused;
    std::copy_if(all.begin(), all.end(), std::back_inserter(refused),
                 [](const std::string& line) { return line.starts_with("REFUSED "); });
    return refused;
}

} // namespace kelmar::test
