#include "tests/ui/model_fixture.hpp"
#include "ui/uninstaller_view.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kelmar {
namespace {

using Selection = std::set<std::string>;

class ViewChoice : public test::ModelFixture {
protected:
    void SetUp() override {
        tree.services(Scope::allUsers);
        found.installations = {test::installation(tree.paths(), Scope::allUsers)};
        findData({"Store", "Logs"});
        scanAndMeasure();
    }

    /// Tries every control of the choice, and says whether any of them changed anything.
    [[nodiscard]] bool takesAChoice() {
        const Published before = published();
        bool changed = false;
        view.setSelected(mine("Store"), false);
        changed = changed || published() != before;
        view.setSelected(mine("Logs"), false);
        changed = changed || published() != before;
        view.setDeleteAllData(true);
        changed = changed || published() != before;
        view.setDeleteAllData(false);
        return changed || published() != before;
    }

    UninstallerView view{model, [] {}};
};

TEST_F(ViewChoice, ABoxIsTickedAndCleared) {
    view.setSelected(mine("Store"), false);
    EXPECT_EQ(published().selectedData, Selection{mine("Logs")});
    view.setSelected(mine("Store"), true);
    EXPECT_EQ(published().selectedData, (Selection{mine("Logs"), mine("Store")}));
}

TEST_F(ViewChoice, TheSwitchTakesAllOrNothing) {
    view.setDeleteAllData(false);
    EXPECT_EQ(published().selectedData, Selection{});
    view.setDeleteAllData(true);
    EXPECT_EQ(published().selectedData, (Selection{mine("Logs"), mine("Store")}));
}

TEST_F(ViewChoice, AFolderThatIsNotThereCannotBeChosen) {
    view.setSelected(mine("CDN"), true);
    view.setSelected("", true);
    EXPECT_EQ(published().selectedData, (Selection{mine("Logs"), mine("Store")}));
}

TEST_F(ViewChoice, IsTakenWhileReady) {
    EXPECT_TRUE(takesAChoice());
}

TEST_F(ViewChoice, IsRefusedUnderTheQuestion) {
    view.perform(Action::uninstallClicked);
    ASSERT_TRUE(published().confirmingDataDeletion);
    EXPECT_FALSE(takesAChoice());
    view.perform(Action::dismissConfirmation);
    EXPECT_TRUE(takesAChoice());
}

TEST_F(ViewChoice, IsRefusedWhileScanning) {
    model->scan();
    EXPECT_FALSE(takesAChoice());
}

TEST_F(ViewChoice, IsRefusedWhileWorking) {
    model->uninstall();
    EXPECT_FALSE(takesAChoice());
}

TEST_F(ViewChoice, IsRefusedWhenFinished) {
    model->uninstall();
    dispatcher->settle();
    ASSERT_TRUE(isIn<Model::Finished>());
    EXPECT_FALSE(takesAChoice());
}

} // namespace
} // namespace kelmar
