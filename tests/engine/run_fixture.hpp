#pragma once

#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

namespace kelmar::test {

/// A whole run on a tree, with everything that it says.
class WholeRun : public testing::Test {
protected:
    [[nodiscard]] Uninstaller::Outcome run(const std::set<std::string>& selected = {},
                                           const Uninstaller::ShouldEnd& shouldEnd = nullptr) {
        Uninstaller engine(tree.paths(), Scanner::scan(tree.paths()), selected, runner);
        return engine.run(transcript.emit(), shouldEnd);
    }

    TemporaryFolder folder;
    MacTree tree{folder / "t"};
    std::shared_ptr<ScriptedRunner> runner;
    Transcript transcript;
};

} // namespace kelmar::test
