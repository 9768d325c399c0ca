#pragma once

#include "tests/support/mac_tree.hpp"
#include "tests/support/manual_dispatcher.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/ui/samples.hpp"
#include "ui/uninstaller_model.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kelmar::test {

/// A model whose jobs wait for the test, and whose scans and sizes are what the test says. Runs are
/// real, below a fresh test root.
class ModelFixture : public testing::Test {
public:
    ModelFixture(const ModelFixture&) = delete;
    ModelFixture& operator=(const ModelFixture&) = delete;

    ~ModelFixture() override {
        // A waiting job holds the model, and the model the dispatcher that it waits in.
        dispatcher->main.clear();
        dispatcher->initiated.clear();
        dispatcher->later.clear();
    }

protected:
    ModelFixture() = default;

    using Model = UninstallerModel;
    using Published = UninstallerModel::Published;
    using Paths = std::vector<std::string>;

    [[nodiscard]] const Published& published() const { return model->published(); }

    template <typename Phase>
    [[nodiscard]] bool isIn() const {
        return std::holds_alternative<Phase>(published().phase);
    }

    [[nodiscard]] std::string mine(const std::string& name) const {
        return dataFolder(tree.paths(), Scope::me, name).path;
    }

    [[nodiscard]] std::string shared(const std::string& name) const {
        return dataFolder(tree.paths(), Scope::allUsers, name).path;
    }

    /// What the scans from now on find: the data folders of the current user with these names.
    void findData(const std::vector<std::string>& names) {
        found.dataRoots = {dataRoot(tree.paths(), Scope::me, names)};
    }

    /// A whole scan; the sizes wait to be measured.
    void scan() {
        model->scan();
        dispatcher->runAll(dispatcher->initiated);
        dispatcher->runAll(dispatcher->main);
    }

    /// A whole scan whose folders are all measured.
    void scanAndMeasure() {
        model->scan();
        dispatcher->settle();
    }

    /// Runs from now on are refused the password, if they ask for it.
    void refuseThePassword() {
        runner = std::make_shared<ScriptedRunner>(
            [](const std::string&) { throw AdministratorError::cancelled(); });
    }

    TemporaryFolder folder;
    MacTree tree{folder / "t"};
    Inventory found;
    std::map<std::string, std::int64_t> sizes; ///< by path; what isn't here can't be measured
    Paths measured;                            ///< in the order in which sizes were asked for
    std::vector<KelmarPaths> scanned;          ///< what the scans were given
    std::shared_ptr<AdministratorRunner> runner =
        std::make_shared<ScriptedRunner>(writes("DONE\n"));
    std::shared_ptr<ManualDispatcher> dispatcher = std::make_shared<ManualDispatcher>();
    std::shared_ptr<Model> model = std::make_shared<Model>(tree.paths(), dispatcher, sources());

    /// What a model of the test asks of the machine: the fields above.
    Model::Sources sources() {
        return {[this](const KelmarPaths& paths) {
                    scanned.push_back(paths);
                    return found;
                },
                [this](const std::string& path) {
                    measured.push_back(path);
                    const auto size = sizes.find(path);
                    return size == sizes.end() ? std::nullopt : std::optional(size->second);
                },
                [this](const KelmarPaths&) { return runner; }};
    }
};

} // namespace kelmar::test
