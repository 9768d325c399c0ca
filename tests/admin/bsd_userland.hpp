#pragma once

#include "tests/support/private_mounts.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kelmar::test {

/// A root folder whose tools are the fakes of tests/admin/bsd: they take what macOS's manual
/// pages document, refuse everything else, and write both down. There is bash, this machine's, and
/// no /proc. Its mounts are in a mount namespace of this process, so that nothing outside sees
/// them; what is made in it are ordinary files, which this process sees at `outside(path)`.
class BsdUserland {
public:
    /// Why this machine can't have one, if it can't.
    static std::optional<std::string> skipReason();

    BsdUserland();
    BsdUserland(const BsdUserland&) = delete;
    BsdUserland& operator=(const BsdUserland&) = delete;
    ~BsdUserland() = default;

    [[nodiscard]] std::string outside(const std::string& path) const { return root_ + path; }

    /// Puts a folder of this machine at the same path in there.
    void share(const std::string& path);

    /// Mounts an empty disk over a folder in there.
    void mountDisk(const std::string& path);

    /// Something that the fakes look for; see tests/admin/bsd/support.sh.
    void setState(const std::string& name, const std::string& text = "") const;

    /// A program in there, as root and with this process's environment.
    [[nodiscard]] Program program(const std::string& path,
                                  const std::vector<std::string>& arguments) const;

    /// In this process's mount namespace, lets whoever runs /bin/bash run the one in there.
    void takeOverBash();

    /// The calls of the fakes so far, one line each: "rm <-rf> <--> <./x>".
    [[nodiscard]] std::vector<std::string> calls() const;

    /// What they refused, one line each; empty: everything was such as a Mac's tools know it.
    [[nodiscard]] std::vector<std::string> refusals() const;

private:
    void addTools() const;

    TemporaryFolder folder_;
    std::string root_;
    PrivateMounts mounts_;
};

} // namespace kelmar::test
