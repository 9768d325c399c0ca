#include "tests/gnustep/harness/sample_pages.hpp"

#include "tests/ui/samples.hpp"
#include "ui/uninstaller_view.hpp"

namespace kelmar::test {

namespace {

using Published = UninstallerModel::Published;
using State = UninstallerModel::StageRow::State;

Inventory inventory() {
    const KelmarPaths paths = machinePaths();
    Inventory all;
    all.installations = {installation(paths, Scope::me), installation(paths, Scope::allUsers)};
    all.dataRoots = {dataRoot(paths, Scope::me, {"Store", "Logs"}, {"notes.txt"}),
                     dataRoot(paths, Scope::allUsers, {"CDN"})};
    all.appRunning = true;
    all.settings = {"/Users/ada/Library/Preferences/x.plist"};
    return all;
}

Published ready() {
    Published published = readyWith(inventory());
    std::int64_t bytes = 1'500'000;
    for (const DataFolder& folder : published.inventory.dataFolders()) {
        published.selectedData.insert(folder.path);
        published.sizes[folder.path] = bytes;
        bytes *= 3;
    }
    return published;
}

Page page(const Published& published, bool folders = false, bool details = false) {
    return UninstallerView::page(published, machinePaths(), folders, details);
}

Published running(const LogLines& log) {
    Published published = ready();
    published.phase = UninstallerModel::Working{};
    published.removed = published.inventory;
    published.deletedData = published.selectedFolders();
    published.stages = {{Uninstaller::Stage::close, "Closing Kelmar", State::done},
                        {Uninstaller::Stage::administrator, "Removing the app", State::running},
                        {Uninstaller::Stage::account, "Removing your settings", State::pending},
                        {Uninstaller::Stage::data, "Deleting your data", State::pending}};
    published.detail = "Removing ~/Applications/Kelmar.app";
    published.log = log;
    return published;
}

} // namespace

Page scanningPage() {
    return page({});
}

Page nothingFoundPage() {
    return page(readyWith({}));
}

Page readyPage() {
    return page(ready());
}

Page noticePage() {
    Published published = ready();
    published.notice = "The administrator's password was not entered. Nothing was removed.";
    return page(published);
}

Page foldersPage() {
    Published published = ready();
    published.sizes.erase(published.sizes.begin());
    published.selectedData.erase(published.selectedData.begin());
    return page(published, true);
}

Page confirmingPage() {
    Published published = ready();
    published.confirmingDataDeletion = true;
    return page(published);
}

Page workingPage(const LogLines& log, bool unfolded) {
    return page(running(log), false, unfolded);
}

Page finishedPage(const LogLines& log, bool unfolded) {
    Published published = running(log);
    published.phase = UninstallerModel::Finished{};
    return page(published, false, unfolded);
}

Page problemsPage(const LogLines& log, bool unfolded) {
    Published published = running(log);
    published.phase = UninstallerModel::Finished{
        {{"/Users/ada/Applications/Kelmar.app", "it is still there"},
         {"/Users/ada/Library/Kelmar/Store", "a disk is mounted inside it"}}};
    return page(published, false, unfolded);
}

std::vector<std::pair<std::string, Page>> everyPage() {
    const LogLines log({"Closing Kelmar", "Removed ~/Applications/Kelmar.app", "Done"});
    return {{"scanning", scanningPage()}, {"nothing-found", nothingFoundPage()},
            {"ready", readyPage()},       {"notice", noticePage()},
            {"folders", foldersPage()},   {"confirming", confirmingPage()},
            {"working", workingPage()},   {"working-details", workingPage(log, true)},
            {"finished", finishedPage()}, {"finished-details", finishedPage(log, true)},
            {"problems", problemsPage()}, {"problems-details", problemsPage(log, true)}};
}

} // namespace kelmar::test
