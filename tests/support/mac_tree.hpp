#pragma once

#include "discovery/kelmar_paths.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace kelmar::test {

/// Builds the folder tree of a Mac, or any part of it, below a test root. Every step creates what
/// it needs and returns the builder, so a tree reads as a list of its content:
///
///     MacTree(root).app(Scope::me, "4.2").agents(Scope::me).dataFolder(Scope::me, "Store", 5000);
class MacTree {
public:
    /// `root` is the test root; creates it and its three folders.
    explicit MacTree(const std::string& root);

    /// Builds a tree at the places that `paths` gives.
    explicit MacTree(KelmarPaths paths);

    MacTree& app(Scope scope, std::string_view version);
    MacTree& appWithoutVersion(Scope scope);
    MacTree& services(Scope scope);
    MacTree& agents(Scope scope);
    MacTree& settings();
    MacTree& temporaryFiles();

    /// A folder in the scope's data root with `bytes` of files in it.
    MacTree& dataFolder(Scope scope, std::string_view name, std::size_t bytes = 0);

    /// A file in the scope's data root.
    MacTree& otherItem(Scope scope, std::string_view name);

    /// A file at an absolute path, with the folders above it.
    MacTree& file(const std::string& path, std::string_view contents = "");
    MacTree& folder(const std::string& path);
    MacTree& link(const std::string& path, const std::string& target);

    /// Everything of the product, in both scopes.
    MacTree& everything();

    [[nodiscard]] const KelmarPaths& paths() const { return paths_; }

private:
    KelmarPaths paths_;
};

/// The paths below the test root `root`, independent of the environment.
KelmarPaths pathsUnder(const std::string& root);

/// A version record in the XML form.
std::string versionRecord(std::string_view version);

} // namespace kelmar::test
