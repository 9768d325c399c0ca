#include "ui/sections.hpp"

namespace kelmar {

Confirmation confirmation(const UninstallerModel::Published& published) {
    const std::optional<std::int64_t> bytes = published.bytes(published.selectedFolders());
    Confirmation alert;
    alert.title = bytes ? "Delete " + SizeText{bytes, {}}.text() + " of Kelmar data?"
                        : "Delete your Kelmar data?";
    alert.message = "Your cases, imported documents, exports and downloaded AI models will be "
                    "deleted for good. You can't undo this.";
    Button goOn{"Uninstall and Delete Data", Action::uninstall};
    goOn.destructive = true;
    // Return as well as Escape cancels: pressing Return twice deletes nothing.
    alert.buttons = {goOn, {"Cancel", Action::dismissConfirmation, ButtonKey::both}};
    return alert;
}

} // namespace kelmar
