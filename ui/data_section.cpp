#include "system/text/strings.hpp"
#include "ui/sections.hpp"

#include <algorithm>

namespace kelmar {

namespace {

const std::string switchLabel = "Delete Kelmar data";

const DataRoot* firstRoot(const Inventory& inventory, Scope scope) {
    const auto root = std::find_if(inventory.dataRoots.begin(), inventory.dataRoots.end(),
                                   [scope](const DataRoot& each) { return each.scope == scope; });
    return root == inventory.dataRoots.end() ? nullptr : &*root;
}

std::string whereItStays(const Inventory& inventory, const KelmarPaths& paths) {
    std::vector<std::string> sentences;
    if (const DataRoot* const mine = firstRoot(inventory, Scope::me)) {
        sentences.push_back("Your data stays in " + paths.display(mine->path) +
                            ". If you install Kelmar for your account again, it picks up where "
                            "you left off.");
    }
    if (const DataRoot* const shared = firstRoot(inventory, Scope::allUsers)) {
        sentences.push_back("The shared data stays in " + paths.display(shared->path) +
                            ". Kelmar now installs for one account at a time and doesn't use "
                            "that folder.");
    }
    return joined(sentences, " ");
}

std::string otherItems(const DataRoot& root, const std::string& place) {
    const bool many = root.otherItems.size() > 1;
    return "Also in " + place + ": " + joined(root.otherItems, ", ") + ". Kelmar didn't create " +
           (many ? "these, so they stay." : "it, so it stays.");
}

FolderList folderList(const DataRoot& root, const UninstallerModel::Published& published,
                      const KelmarPaths& paths) {
    const std::string place = paths.display(root.path);
    FolderList list;
    list.heading =
        (root.scope == Scope::me ? "In your home folder, " : "Shared by all users, ") + place;
    for (const DataFolder& folder : root.folders) {
        list.rows.push_back({folder.path,
                             folder.name,
                             folder.summary,
                             published.selectedData.contains(folder.path),
                             {published.bytes({folder}), folder.name}});
    }
    if (!root.otherItems.empty()) {
        list.otherItems = otherItems(root, place);
    }
    return list;
}

} // namespace

DataSection dataSection(const UninstallerModel::Published& published, const KelmarPaths& paths,
                        bool showFolders) {
    DataSection section;
    section.title = {"Your data"};
    section.label = switchLabel;
    section.on = !published.selectedData.empty();
    section.total = {published.bytes(published.selectedFolders()), switchLabel};
    section.line =
        section.on ? "Cases, imported documents, exports, AI models and logs. You can't undo this."
                   : whereItStays(published.inventory, paths);
    section.folders.text = showFolders ? "Hide folders" : "Choose folders";
    section.folders.action = Action::toggleFolders;
    if (showFolders) {
        for (const DataRoot& root : published.inventory.dataRoots) {
            section.lists.push_back(folderList(root, published, paths));
        }
    }
    return section;
}

} // namespace kelmar
