#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelmar {

/// Whom an installation, or a data root, is there for.
enum class Scope {
    allUsers,
    me,
};

/// Where things are: every path that the program inspects or removes is built from this record,
/// made once at start-up and passed by value. With a test root all of them lie below that folder.
struct KelmarPaths {
    /// Empty on the real machine, so that the system's paths come out as they are; else an absolute
    /// path without a trailing slash.
    std::string systemRoot;
    std::string home;               ///< absolute, standardised
    std::string temporaryDirectory; ///< absolute, standardised
    std::optional<std::string> testRoot;

    /// Names that the desktop's file browser leaves in folders. They never count as content.
    static constexpr std::array<std::string_view, 2> ignorableNames{".DS_Store", ".localized"};
    static bool isIgnorable(std::string_view name);

    /// The paths below the folder that the environment variable KELMAR_UNINSTALLER_TEST_ROOT names,
    /// when it holds an absolute path other than "/"; else those of this machine and user. Nothing
    /// is created or checked.
    static KelmarPaths current();

    /// `path` in the short form that people are shown: "~" for the home folder, and without the
    /// test root's prefix for a system path under a test root.
    [[nodiscard]] std::string display(const std::string& path) const;

    /// The folder that a scope's paths begin with: `systemRoot` or `home`.
    [[nodiscard]] const std::string& root(Scope scope) const;

    [[nodiscard]] std::string app(Scope scope) const;      ///< the app bundle
    [[nodiscard]] std::string services(Scope scope) const; ///< the services folder
    [[nodiscard]] std::string dataRoot(Scope scope) const;

    /// The property lists of the launch agents, the API's before the Worker's.
    [[nodiscard]] std::vector<std::string> agents(Scope scope) const;

    friend bool operator==(const KelmarPaths&, const KelmarPaths&) = default;
};

} // namespace kelmar
