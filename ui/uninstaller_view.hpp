#pragma once

#include "ui/page.hpp"
#include "ui/uninstaller_model.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kelmar {

/// What the window shows: a pure function of what the model publishes and of two switches of the
/// window's own, and the way back from its controls to the model. On the main thread only.
class UninstallerView {
public:
    /// `terminate` asks the application to end, which it refuses while a run is going on.
    UninstallerView(std::shared_ptr<UninstallerModel> shown, std::function<void()> terminate);

    const std::shared_ptr<UninstallerModel> model;

    [[nodiscard]] Page page() const {
        return page(model->published(), model->paths, showFolders_, showDetails_);
    }

    static Page page(const UninstallerModel::Published& published, const KelmarPaths& paths,
                     bool showFolders, bool showDetails);

    /// Called before each change of what `page` answers. One observer.
    void observe(std::function<void()> observer);

    /// What a button of the page asks for. A press that the page no longer offers, such as the
    /// second of a double click, does nothing.
    void perform(Action action);

    /// The switch for all data, and the check box of one folder. Only while there is a choice: not
    /// under the confirmation, which has told its size.
    void setDeleteAllData(bool all);
    void setSelected(const std::string& path, bool selected);

private:
    [[nodiscard]] bool offers(Action action) const;
    [[nodiscard]] bool offersChoice() const;

    std::function<void()> terminate_;
    std::function<void()> observer_ = [] {};
    bool showFolders_ = false;
    bool showDetails_ = false;
};

} // namespace kelmar
