#include "tests/sweep/swept_mac.hpp"

#include "tests/support/lines.hpp"
#include "tests/support/snapshot.hpp"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string_view>

#include <sys/syscall.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

constexpr int cannotStart = 127; ///< the dynamic loader's, and a shell's

const std::map<std::string, std::vector<std::string>>& requests() {
    static const std::map<std::string, std::vector<std::string>> all{
        {"scan", {"--scan"}},
        {"keep", {"--uninstall", "--keep-data"}},
        {"delete", {"--uninstall", "--delete-data"}}};
    return all;
}

/// A path below the test root as the program shows it.
std::string shown(const std::string& path) {
    constexpr std::string_view home = "/home";
    constexpr std::string_view system = "/system";
    return path.starts_with(home) ? "~" + path.substr(home.size()) : path.substr(system.size());
}

bool isTemporary(const std::string& path) {
    return path == "/tmp" || path.starts_with("/tmp/");
}

bool isData(const std::string& path) {
    return path.starts_with("/home/Kelmar/") || path.starts_with("/system/Users/Shared/@Kelmar/");
}

bool isBy(const Point& point, const Program& program) {
    return point.call.executable == program.path;
}

/// Whether the undisturbed listing has this line, or could have it of a thing that one probe less
/// is known of.
bool mayBeListed(const std::string& line, const std::vector<std::string>& listing) {
    const auto has = [&listing](const std::string& start) {
        return std::any_of(listing.begin(), listing.end(),
                           [&start](const std::string& each) { return each.starts_with(start); });
    };
    constexpr std::size_t nameColumn = 16;
    return std::find(listing.begin(), listing.end(), line) != listing.end() ||
           line.find("(app missing)") != std::string::npos ||
           line.find("(some files belong to another user") != std::string::npos ||
           (line.size() > nameColumn && has(line.substr(0, nameColumn))) ||
           line == "Kelmar isn't on this Mac.";
}

} // namespace

SweptMac::SweptMac(const std::string& request)
    : isScan_(request == "scan"),
      program_(uninstaller(requests().at(request), root_)) {
    program_.timeout = std::chrono::seconds(60);
    prepare();
    undisturbed_ = program_.run();
    after_ = contents(root_);
    prepare();
}

void SweptMac::prepare() {
    fs::remove_all(root_);
    MacTree tree(root_);
    for (const Scope scope : {Scope::allUsers, Scope::me}) {
        tree.app(scope, "4.3").services(scope).agents(scope);
        tree.dataFolder(scope, "Store", 5'000).dataFolder(scope, "Logs", 100);
        tree.otherItem(scope, "notes.txt");
    }
    tree.settings().temporaryFiles();
    tree.file(tree.paths().home + "/Library/Preferences/com.other.plist", "somebody else's");
    tree.file(tree.paths().systemRoot + "/Applications/Other.app/file", "somebody else's");
}

std::vector<std::string> SweptMac::complaints(const Point& point, const ProgramEnd& end) {
    complaints_.clear();
    const Contents now = contents(root_);
    judgeTree(now);
    judgeEnd(point, end);
    if (isScan_) {
        judgeListing(point, end);
    } else if (point.verdict.kind == Verdict::Kind::fail) {
        judgeUninstall(point, end, now);
    }
    judgeNextRun();
    return complaints_;
}

void SweptMac::judgeTree(const Contents& now) {
    for (const auto& [path, what] : after_) {
        const auto found = now.find(path);
        if (!isTemporary(path) && (found == now.end() || found->second != what)) {
            complain("lost or changed: " + path);
        }
    }
}

void SweptMac::judgeEnd(const Point& point, const ProgramEnd& end) {
    if (end.timedOut) {
        complain("it hung");
    } else if (point.verdict.kind == Verdict::Kind::kill ? end.status != -SIGKILL
                                                         : end.status < 0) {
        complain("it ended with " + std::to_string(end.status) + ": " + end.error);
    }
}

void SweptMac::judgeListing(const Point& point, const ProgramEnd& end) {
    if (contents(root_).size() != after_.size()) {
        complain("a scan changed something");
    }
    if (point.verdict.kind == Verdict::Kind::kill) {
        return;
    }
    if (end.status != 0 && end.status != cannotStart) {
        complain("a scan ended with " + std::to_string(end.status));
    }
    const std::vector<std::string> listing = linesOf(undisturbed_.output);
    for (const std::string& line : linesOf(end.output)) {
        if (!mayBeListed(line, listing)) {
            complain("it lists what is not so: " + line);
        }
    }
}

std::vector<std::string> SweptMac::leftIn(const Contents& now) const {
    std::vector<std::string> left;
    for (const auto& [path, what] : now) {
        if (!isTemporary(path) && !after_.contains(path)) {
            left.push_back(path);
        }
    }
    return left;
}

void SweptMac::judgeUninstall(const Point& point, const ProgramEnd& end, const Contents& now) {
    const std::vector<std::string> left = leftIn(now);
    if (end.status == cannotStart && isBy(point, program_)) {
        if (!end.output.empty()) {
            complain("it began, and ended with 127");
        }
        return;
    }
    if (end.status != 0 && end.status != 1) {
        complain("it ended with " + std::to_string(end.status));
        return;
    }
    if (isBy(point, program_) && point.call.number == SYS_write) {
        if (end.status == 0 && !left.empty()) {
            complain("status 0, and still there: " + left.front());
        }
        return; // a line of the record may be what was lost
    }
    const std::vector<std::string> lines = linesOf(end.output);
    const auto list = std::find(lines.begin(), lines.end(), "Not removed:");
    if ((end.status == 1) != (list != lines.end() && list + 1 != lines.end()) ||
        (end.status == 0 && lines.back() != "Kelmar has been removed.")) {
        complain("its words are not those of status " + std::to_string(end.status));
    }
    for (const std::string& path : left) {
        const std::string name = shown(path);
        const bool listed = std::any_of(list, lines.end(), [&name](const std::string& line) {
            const std::string item = line.substr(std::min<std::size_t>(4, line.size()));
            const std::string listedPath = item.substr(0, item.find(": "));
            return name == listedPath || name.starts_with(listedPath + "/");
        });
        // A data root that could not be read by the scan counts as not there: its data was not
        // chosen, and is not said to be gone.
        const bool unseen = isData(path) && end.output.find(name) == std::string::npos;
        if (!listed && !unseen) {
            complain("still there, and not listed: " + path);
        }
    }
}

void SweptMac::judgeNextRun() {
    const ProgramEnd next = program_.run();
    const Contents now = contents(root_);
    if (next.timedOut || next.status != 0) {
        complain("the next run ended with " + std::to_string(next.status) + ": " + next.output);
    }
    judgeTree(now);
    for (const std::string& path : leftIn(now)) {
        complain("the next run left " + path);
    }
    if (isScan_ && next.output != undisturbed_.output) {
        complain("the next scan differs");
    }
}

} // namespace kelmar::test
