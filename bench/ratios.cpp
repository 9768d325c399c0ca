// Measures the program beside the system's own tools, alternating at random within one run, and
// prints the ratios of their medians. Its one argument is the folder in which to build its trees.

#include "bench/pair_reporter.hpp"
#include "bench/require.hpp"
#include "discovery/scanner.hpp"
#include "system/files/file_descriptor.hpp"
#include "system/process/shell.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/spawn.hpp"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar::bench {
namespace {

constexpr int repetitions = 15;

/// Ten data folders of 2,000 files in 100 folders each.
std::vector<std::string> tenDataFolders(const std::string& root) {
    test::MacTree tree(root);
    std::vector<std::string> folders;
    for (const auto& [scope, count] : {std::pair{Scope::me, 8}, std::pair{Scope::allUsers, 2}}) {
        for (int index = 0; index < count; ++index) {
            const DataFolder::Known& known = DataFolder::known.at(static_cast<std::size_t>(index));
            folders.push_back(tree.paths().dataRoot(scope) + "/" + std::string(known.name));
            for (int file = 0; file < 2000; ++file) {
                tree.file(folders.back() + "/" + std::to_string(file % 100) + "/" +
                              std::to_string(file),
                          "some bytes");
            }
        }
    }
    return folders;
}

/// 100,000 files in 5,000 folders, a hundred at the top and 49 in each of those.
std::string manyFiles(const std::string& root) {
    test::MacTree tree(root);
    const std::string top = root + "/many";
    for (int outer = 0; outer < 100; ++outer) {
        const std::string folder = top + "/" + std::to_string(outer);
        tree.folder(folder);
        for (int inner = 0; inner < 50; ++inner) {
            const std::string path =
                inner == 0 ? folder : folder + "/folder" + std::to_string(inner);
            tree.folder(path);
            for (int file = 0; file < 20; ++file) {
                tree.file(path + "/file" + std::to_string(file));
            }
        }
    }
    return top;
}

void add(const std::string& name, int iterations, const std::function<void()>& step) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [step](benchmark::State& state) {
                                     for (auto _ : state) {
                                         step();
                                     }
                                 })
        ->Iterations(iterations)
        ->Repetitions(repetitions)
        ->UseRealTime();
}

void measureStartUp() {
    add("1-start-up/ours", 50, [] { test::spawnAndWait({KELMAR_EXECUTABLE, "--help"}, true); });
    add("1-start-up/beside", 50, [] { test::spawnAndWait({"/bin/true"}, true); });
}

void measureScan(const std::string& root) {
    const std::vector<std::string> folders = tenDataFolders(root);
    add("2-scan/ours", 5, [root] {
        ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", root.c_str(), 1);
        test::spawnAndWait({KELMAR_EXECUTABLE, "--scan"}, true);
    });
    add("2-scan/beside", 5, [folders] {
        for (const std::string& folder : folders) {
            test::spawnAndWait({"/usr/bin/du", "-sk", folder}, true);
        }
    });
}

void measureOwnership(const std::string& root) {
    const std::string top = manyFiles(root);
    const std::string user = std::to_string(::getuid());
    require(Scanner::ownedByMe(top), "the whole tree is ours");
    add("3-ownership/ours", 1, [top] { benchmark::DoNotOptimize(Scanner::ownedByMe(top)); });
    add("3-ownership/beside", 1, [top, user] {
        test::spawnAndWait({"/usr/bin/find", top, "!", "-user", user, "-print", "-quit"}, true);
    });
}

/// A data folder of 200,000 files in 2,000 folders, created again before each removal.
class Rubbish {
public:
    explicit Rubbish(std::string root) : root_(std::move(root)) {}

    void make() const {
        const test::MacTree tree(root_);
        const std::string store = tree.paths().dataRoot(Scope::me) + "/Store";
        for (int folder = 0; folder < 2000; ++folder) {
            const std::string path = store + "/" + std::to_string(folder);
            std::filesystem::create_directories(path);
            const FileDescriptor opened(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            for (int file = 0; file < 100; ++file) {
                ::mknodat(opened.get(), std::to_string(file).c_str(), S_IFREG | 0600, 0);
            }
        }
    }

    [[nodiscard]] const std::string& root() const { return root_; }

private:
    std::string root_;
};

void addRemoval(const std::string& name, const Rubbish& rubbish,
                const std::function<void()>& step) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [rubbish, step](benchmark::State& state) {
                                     for (auto _ : state) {
                                         state.PauseTiming();
                                         rubbish.make();
                                         state.ResumeTiming();
                                         step();
                                     }
                                 })
        ->Iterations(1)
        ->Repetitions(11)
        ->UseRealTime();
}

void measureRemoval(const std::string& root) {
    const Rubbish rubbish(root);
    addRemoval("5-removal/ours", rubbish, [root] {
        ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", root.c_str(), 1);
        test::spawnAndWait({KELMAR_EXECUTABLE, "--uninstall", "--delete-data"}, true);
    });
    addRemoval("5-removal/beside", rubbish, [root] {
        test::spawnAndWait({"/bin/rm", "-rf", root + "/home/Kelmar"}, true);
    });
}

/// An uninstall of a small tree beside the programs that it runs: seven times rm and once the
/// script.
void measureSmallRun(const std::string& root) {
    const auto make = [root] {
        test::MacTree(root)
            .services(Scope::allUsers)
            .services(Scope::me)
            .temporaryFiles()
            .dataFolder(Scope::me, "Store");
    };
    const auto addSmall = [make](const char* name, const std::function<void()>& step) {
        benchmark::RegisterBenchmark(name,
                                     [make, step](benchmark::State& state) {
                                         for (auto _ : state) {
                                             state.PauseTiming();
                                             make();
                                             state.ResumeTiming();
                                             step();
                                         }
                                     })
            ->Iterations(10)
            ->Repetitions(repetitions)
            ->UseRealTime();
    };
    const test::MacTree tree(root);
    const KelmarPaths paths = tree.paths();
    addSmall("6-small-run/ours", [root] {
        ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", root.c_str(), 1);
        test::spawnAndWait({KELMAR_EXECUTABLE, "--uninstall", "--delete-data"}, true);
    });
    addSmall("6-small-run/beside", [paths, root] {
        const std::string status = root + "/status/file";
        std::filesystem::create_directories(root + "/status");
        std::ofstream(status).close();
        test::spawnAndWait({"/bin/bash", KELMAR_SCRIPT, "--status", status, "--all-users",
                            "--test-root", paths.systemRoot},
                           true);
        for (const std::string& path :
             {paths.services(Scope::me), paths.temporaryDirectory + "/Kelmar",
              paths.temporaryDirectory + "/Kelmar_temp",
              paths.temporaryDirectory + "/sd-soffice-diagram",
              paths.dataRoot(Scope::me) + "/Store", paths.dataRoot(Scope::me)}) {
            test::spawnAndWait({"/bin/rm", "-rf", "--", path}, true);
        }
    });
}

void measureShell() {
    require(Shell::run("/bin/true", {}).status == 0, "/bin/true runs");
    add("4-shell/ours", 100, [] { Shell::run("/bin/true", {}); });
    add("4-shell/beside", 100, [] { test::spawnAndWait({"/bin/true"}, false); });
}

} // namespace
} // namespace kelmar::bench

int main(int count, char** arguments) {
    using namespace kelmar::bench;
    if (count != 2) {
        std::fprintf(stderr, "usage: ratios FOLDER\n");
        return EXIT_FAILURE;
    }
    std::string program = arguments[0];
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> options{program.data(), interleave.data()};
    int optionCount = static_cast<int>(options.size());
    benchmark::Initialize(&optionCount, options.data());

    const std::string folder = arguments[1];
    measureStartUp();
    measureScan(folder + "/scan");
    measureOwnership(folder);
    measureShell();
    measureRemoval(folder + "/removal");
    measureSmallRun(folder + "/small");
    PairReporter reporter(
        {{"1-start-up", {"start-up (`--help`)", "`/bin/true`", 2.0}},
         {"2-scan", {"`--scan` of ten data folders", "ten `du -sk`", 1.1}},
         {"3-ownership",
          {"`ownedByMe`, 100,000 files in 5,000 folders", "`find DIR ! -user ID -print -quit`",
           0.6}},
         {"4-shell", {"`Shell::run` of `/bin/true`", "bare `posix_spawn` and wait", 1.2}},
         {"5-removal",
          {"`--uninstall --delete-data` of 200,000 files", "`rm -rf` of the same tree", 1.1}},
         {"6-small-run", {"`--uninstall` of a small tree", "the programs it runs", 2.0}}});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printTable();
    return EXIT_SUCCESS;
}
