#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kelmar {
namespace {

/// With Store and Logs there, and Store chosen.
UninstallerModel::Published asking(std::optional<std::int64_t> storeBytes) {
    UninstallerModel::Published published = test::readyWith(test::usualInventory(test::machine));
    const std::string store = test::dataFolder(test::machine, Scope::me, "Store").path;
    published.selectedData = {store};
    if (storeBytes) {
        published.sizes[store] = *storeBytes;
    }
    return published;
}

std::string titleFor(std::optional<std::int64_t> storeBytes) {
    return confirmation(asking(storeBytes)).title;
}

TEST(Confirmation, GoesOnByAPressAndIsLeftByEitherKey) {
    const Confirmation expected{
        "Delete 12.3 MB of Kelmar data?",
        "Your cases, imported documents, exports and downloaded AI models will be deleted for "
        "good. You can't undo this.",
        {{"Uninstall and Delete Data", Action::uninstall, ButtonKey::none, true, true},
         {"Cancel", Action::dismissConfirmation, ButtonKey::both}}};
    EXPECT_EQ(confirmation(asking(12'300'000)), expected);
}

TEST(Confirmation, TellsTheSizeOnceItIsMeasured) {
    EXPECT_EQ(titleFor(std::nullopt), "Delete your Kelmar data?");
    EXPECT_EQ(titleFor(1), "Delete 1 byte of Kelmar data?");
    EXPECT_EQ(titleFor(3'210'000'000), "Delete 3.21 GB of Kelmar data?");
}

TEST(Confirmation, OfNothingSaysEmpty) {
    EXPECT_EQ(titleFor(0), "Delete Empty of Kelmar data?");
}

TEST(Confirmation, TellsNoSizeWhileOneChosenFolderIsMeasured) {
    UninstallerModel::Published published = asking(5'000'000);
    const std::string logs = test::dataFolder(test::machine, Scope::me, "Logs").path;
    published.selectedData.insert(logs);
    EXPECT_EQ(confirmation(published).title, "Delete your Kelmar data?");
    published.sizes[logs] = 2'000'000;
    EXPECT_EQ(confirmation(published).title, "Delete 7 MB of Kelmar data?");
    published.selectedData.erase(logs);
    EXPECT_EQ(confirmation(published).title, "Delete 5 MB of Kelmar data?");
}

} // namespace
} // namespace kelmar
