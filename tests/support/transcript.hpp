#pragma once

#include "engine/uninstaller.hpp"

#include <string>
#include <variant>
#include <vector>

namespace kelmar::test {

/// The events of a run as lines, "started close", "log Removed ~/x", for comparison as a whole.
class Transcript {
public:
    void operator()(const Uninstaller::Event& event) { std::visit(*this, event); }

    void operator()(const Uninstaller::StageStarted& event) {
        lines.push_back("started " + name(event.stage));
    }

    void operator()(const Uninstaller::StageFinished& event) {
        lines.push_back("finished " + name(event.stage));
    }

    void operator()(const Uninstaller::Doing& event) { lines.push_back("doing " + event.text); }

    void operator()(const Uninstaller::Log& event) { lines.push_back("log " + event.text); }

    /// A callback for the engine, which keeps its own copy.
    Uninstaller::Emit emit() {
        return [this](const Uninstaller::Event& event) { (*this)(event); };
    }

    std::vector<std::string> lines;

private:
    static std::string name(Uninstaller::Stage stage) {
        switch (stage) {
        case Uninstaller::Stage::close:
            return "close";
        case Uninstaller::Stage::administrator:
            return "administrator";
        case Uninstaller::Stage::account:
            return "account";
        case Uninstaller::Stage::data:
            return "data";
        }
        return "?";
    }
};

} // namespace kelmar::test
