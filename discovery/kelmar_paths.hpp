#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelmar {

/// For whom an installation or a data root exists.
enum class Scope {
    allUsers,
    me,
};

/// The program builds every path that it inspects or removes from this record, which is made once
/// at start-up and passed by value. With a test root, all paths lie below that folder.
struct KelmarPaths {
    /// Empty on the real machine, so that system paths have no prefix; else an absolute path
    /// without a trailing slash.
    std::string systemRoot;
    std::string home;               ///< absolute, standardised
    std::string temporaryDirectory; ///< absolute, standardised
    std::optional<std::string> testRoot;

    /// Names of files that the desktop's file browser leaves in folders; they do not count as
    /// content.
    static constexpr std::array<std::string_view, 2> ignorableNames{".DS_Store", ".localized"};
    static bool isIgnorable(std::string_view name);

    /// The paths below the folder that the environment variable KELMAR_UNINSTALLER_TEST_ROOT names,
    /// if it holds an absolute path other than "/"; else those of this machine and user. Creates
    /// and checks nothing.
    static KelmarPaths current();

    /// `path` as people see it: "~" replaces the home folder, and a system path under a test root
    /// loses the test root's prefix.
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
