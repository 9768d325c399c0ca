#pragma once

#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/sweep/points.hpp"

#include <map>
#include <string>
#include <vector>

namespace kelmar::test {

/// A small sample Mac, the program at work on it, and what must hold of a run in which something
/// went wrong.
class SweptMac {
public:
    /// What the program is asked for: "scan", "keep" or "delete". Runs it once undisturbed, to know
    /// what it leaves.
    explicit SweptMac(const std::string& request);

    /// Everything is as before the first run.
    void prepare();

    [[nodiscard]] const Program& program() const { return program_; }

    /// What is wrong with how a run ended that `point` disturbed, and with the one after it, which
    /// this makes; a sentence each. Nothing crashes, hangs, or is lost; what is not removed is
    /// listed; the next run ends clean.
    [[nodiscard]] std::vector<std::string> complaints(const Point& point, const ProgramEnd& end);

private:
    using Contents = std::map<std::string, std::string>;

    void judgeTree(const Contents& now);
    void judgeEnd(const Point& point, const ProgramEnd& end);
    void judgeListing(const Point& point, const ProgramEnd& end);
    void judgeUninstall(const Point& point, const ProgramEnd& end, const Contents& now);
    void judgeNextRun();
    /// Paths of things that an undisturbed run removes.
    [[nodiscard]] std::vector<std::string> leftIn(const Contents& now) const;

    void complain(const std::string& what) { complaints_.push_back(what); }

    TemporaryFolder folder_;
    std::string root_ = folder_ / "t";
    bool isScan_;
    Program program_;
    ProgramEnd undisturbed_;
    Contents after_; ///< an undisturbed run
    std::vector<std::string> complaints_;
};

} // namespace kelmar::test
