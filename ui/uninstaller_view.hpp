#pragma once

#include "ui/page.hpp"
#include "ui/uninstaller_model.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kelmar {

/// Computes the window's page, a pure function of the model's published state and of two switches
/// of the window, and passes actions back to the model. Main thread only.
class UninstallerView {
public:
    /// `terminate` requests the application's end, which the application refuses during a run.
    UninstallerView(std::shared_ptr<UninstallerModel> shown, std::function<void()> terminate);

    const std::shared_ptr<UninstallerModel> model;

    [[nodiscard]] Page page() const {
        return page(model->published(), model->paths, showFolders_, showDetails_);
    }

    static Page page(const UninstallerModel::Published& published, const KelmarPaths& paths,
                     bool showFolders, bool showDetails);

    /// Calls `observer` before each change of `page`. One observer.
    void observe(std::function<void()> observer);

    /// Performs the action of a button. Does nothing if the page no longer offers it, as at the
    /// second press of a double click.
    void perform(Action action);

    /// The switch for all data, and the check box of one folder. They have an effect only while
    /// there is a choice, and not while the confirmation shows its total.
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
