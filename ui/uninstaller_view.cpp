#include "ui/uninstaller_view.hpp"

#include "ui/sections.hpp"

#include <algorithm>
#include <utility>
#include <variant>

namespace kelmar {

namespace {

using Model = UninstallerModel;

Header header(const Model::Published& published) {
    if (std::holds_alternative<Model::Scanning>(published.phase)) {
        return {"Uninstall Kelmar", "Looking for Kelmar on this Mac…"};
    }
    if (std::holds_alternative<Model::Working>(published.phase)) {
        return {"Uninstalling Kelmar…", "Deleting a lot of data can take a few minutes."};
    }
    if (const auto* const finished = std::get_if<Model::Finished>(&published.phase)) {
        if (finished->failures.empty()) {
            return {"Kelmar has been removed",
                    "You can install the latest version of Kelmar whenever you're ready."};
        }
        return {"Kelmar wasn't completely removed",
                "Some items couldn't be removed. Restart your Mac, then open Kelmar Uninstaller "
                "again."};
    }
    if (published.inventory.isEmpty()) {
        return {"Kelmar isn't on this Mac", "There's nothing of Kelmar's here to remove."};
    }
    return {"Uninstall Kelmar", "Removes the Kelmar app, its background services, its settings "
                                "and the permissions you gave it."};
}

Details details(const LogLines& log, bool shown) {
    Details result;
    result.toggle.text = "Details";
    result.toggle.action = Action::toggleDetails;
    result.shown = shown;
    if (shown) {
        result.log = log;
    }
    return result;
}

Content ready(const Model::Published& published, const KelmarPaths& paths, bool showFolders) {
    if (published.inventory.isEmpty()) {
        return NothingFoundContent{
            "Kelmar Uninstaller looked for the Kelmar app, its background services, its settings "
            "and its data, for your account and for all users of this Mac, and found none of "
            "them."};
    }
    ReadyContent content;
    if (published.notice) {
        content.notice = {"exclamationmark.triangle.fill", Tint::orange, *published.notice};
    }
    content.found = foundSection(published.inventory, paths);
    if (!published.inventory.dataFolders().empty()) {
        content.data = dataSection(published, paths, showFolders);
    }
    return content;
}

Content working(const Model::Published& published, bool showDetails) {
    WorkingContent content;
    for (const Model::StageRow& row : published.stages) {
        content.stages.push_back({stageIcon(row.state), row.title});
    }
    content.detail = published.detail;
    content.details = details(published.log, showDetails);
    return content;
}

Content finished(const Model::Published& published, const KelmarPaths& paths,
                 const std::vector<Uninstaller::Failure>& failures, bool showDetails) {
    FinishedContent content;
    content.summary = summary(published, paths);
    if (!failures.empty()) {
        content.problems = ProblemsSection{{"Not removed"}, {}};
        for (const Uninstaller::Failure& failure : failures) {
            content.problems->rows.push_back({paths.display(failure.path), failure.reason});
        }
    }
    content.details = details(published.log, showDetails);
    return content;
}

Content content(const Model::Published& published, const KelmarPaths& paths, bool showFolders,
                bool showDetails) {
    if (std::holds_alternative<Model::Scanning>(published.phase)) {
        return ScanningContent{{"Looking for Kelmar…"}};
    }
    if (std::holds_alternative<Model::Working>(published.phase)) {
        return working(published, showDetails);
    }
    if (const auto* const ended = std::get_if<Model::Finished>(&published.phase)) {
        return finished(published, paths, ended->failures, showDetails);
    }
    return ready(published, paths, showFolders);
}

} // namespace

StageIcon stageIcon(Model::StageRow::State state) {
    switch (state) {
    case Model::StageRow::State::pending:
        return {"circle", Tint::secondary, "Waiting"};
    case Model::StageRow::State::running:
        return {std::nullopt, Tint::secondary, "In progress"};
    case Model::StageRow::State::done:
        break;
    }
    return {"checkmark.circle.fill", Tint::green, "Done"};
}

Page UninstallerView::page(const Model::Published& published, const KelmarPaths& paths,
                           bool showFolders, bool showDetails) {
    Page page{header(published), content(published, paths, showFolders, showDetails),
              footer(published), std::nullopt};
    if (published.confirmingDataDeletion) {
        page.confirmation = confirmation(published);
    }
    return page;
}

UninstallerView::UninstallerView(std::shared_ptr<Model> shown, std::function<void()> terminate)
    : model(std::move(shown)),
      terminate_(std::move(terminate)) {}

void UninstallerView::observe(std::function<void()> observer) {
    observer_ = observer;
    model->observe(std::move(observer));
}

bool UninstallerView::offers(Action action) const {
    // Computes footer and question only, not the page: a page may list folders.
    if (action == Action::toggleFolders || action == Action::toggleDetails) {
        return true;
    }
    if (model->published().confirmingDataDeletion) {
        return action == Action::uninstall || action == Action::dismissConfirmation ||
               action == Action::quit;
    }
    const Footer shown = footer(model->published());
    return std::any_of(shown.buttons.begin(), shown.buttons.end(), [action](const Button& each) {
        return each.action == action && each.enabled;
    });
}

void UninstallerView::perform(Action action) {
    if (!offers(action)) {
        return;
    }
    switch (action) {
    case Action::scan:
        model->scan();
        break;
    case Action::uninstallClicked:
        model->uninstallClicked();
        break;
    case Action::uninstall:
        model->setConfirmingDataDeletion(false);
        model->uninstall();
        break;
    case Action::dismissConfirmation:
        model->setConfirmingDataDeletion(false);
        break;
    case Action::quit:
        terminate_();
        break;
    case Action::toggleFolders:
        observer_();
        showFolders_ = !showFolders_;
        break;
    case Action::toggleDetails:
        observer_();
        showDetails_ = !showDetails_;
        break;
    }
}

bool UninstallerView::offersChoice() const {
    return std::holds_alternative<Model::Ready>(model->published().phase) &&
           !model->published().confirmingDataDeletion;
}

void UninstallerView::setDeleteAllData(bool all) {
    if (offersChoice()) {
        model->setDeleteAllData(all);
    }
}

void UninstallerView::setSelected(const std::string& path, bool selected) {
    const std::vector<DataFolder> folders = model->published().inventory.dataFolders();
    const auto folder = std::find_if(folders.begin(), folders.end(),
                                     [&path](const auto& each) { return each.path == path; });
    if (offersChoice() && folder != folders.end()) {
        model->setSelected(*folder, selected);
    }
}

} // namespace kelmar
