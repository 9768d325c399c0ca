#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Selection = std::set<std::string>;

class ModelChoice : public test::ModelFixture {
protected:
    void SetUp() override {
        found.dataRoots = {test::dataRoot(tree.paths(), Scope::me, {"Store", "Logs"}),
                           test::dataRoot(tree.paths(), Scope::allUsers, {"CDN"})};
        scan();
        folders = found.dataFolders();
    }

    /// Whether `change` tells the observer exactly once, with the old value still there.
    template <typename Change>
    [[nodiscard]] bool tellsBefore(Change change) {
        const Published before = published();
        int told = 0;
        bool old = true;
        model->observe([&] {
            ++told;
            old = old && published() == before;
        });
        change();
        model->observe([] {});
        return told == 1 && old && published() != before;
    }

    std::vector<DataFolder> folders;
};

TEST_F(ModelChoice, AFolderIsTakenOutAndPutBack) {
    EXPECT_TRUE(model->isSelected(folders[0]));
    model->setSelected(folders[0], false);
    EXPECT_FALSE(model->isSelected(folders[0]));
    EXPECT_EQ(published().selectedData, (Selection{mine("Logs"), shared("CDN")}));
    model->setSelected(folders[0], false);
    EXPECT_EQ(published().selectedData, (Selection{mine("Logs"), shared("CDN")}));
    model->setSelected(folders[0], true);
    model->setSelected(folders[0], true);
    EXPECT_TRUE(model->isSelected(folders[0]));
    EXPECT_EQ(published().selectedData, (Selection{mine("Store"), mine("Logs"), shared("CDN")}));
}

TEST_F(ModelChoice, AFolderIsKnownByItsPathAlone) {
    DataFolder renamed = folders[1];
    renamed.name = "Other";
    renamed.bytes = 5;
    EXPECT_TRUE(model->isSelected(renamed));
    model->setSelected(renamed, false);
    EXPECT_FALSE(model->isSelected(folders[1]));
}

TEST_F(ModelChoice, TheOneSwitchTakesAllOrNothing) {
    EXPECT_TRUE(model->deleteAllData());
    model->setDeleteAllData(false);
    EXPECT_FALSE(model->deleteAllData());
    EXPECT_EQ(published().selectedData, Selection{});
    model->setDeleteAllData(true);
    EXPECT_TRUE(model->deleteAllData());
    EXPECT_EQ(published().selectedData, (Selection{mine("Store"), mine("Logs"), shared("CDN")}));
}

TEST_F(ModelChoice, TheOneSwitchIsOnWhileAnyFolderIsChosen) {
    model->setDeleteAllData(false);
    model->setSelected(folders[2], true);
    EXPECT_TRUE(model->deleteAllData());
    model->setDeleteAllData(true);
    EXPECT_EQ(published().selectedData.size(), 3U);
}

TEST_F(ModelChoice, SelectedFoldersComeInTheOrderOfTheInventory) {
    EXPECT_EQ(model->selectedFolders(), folders);
    model->setSelected(folders[1], false);
    EXPECT_EQ(model->selectedFolders(), (std::vector{folders[0], folders[2]}));
    model->setDeleteAllData(false);
    EXPECT_EQ(model->selectedFolders(), std::vector<DataFolder>{});
}

TEST_F(ModelChoice, WithChosenDataTheMainButtonOnlyAsks) {
    dispatcher->settle();
    Published expected = published();
    model->uninstallClicked();
    expected.confirmingDataDeletion = true;
    EXPECT_EQ(published(), expected);
    EXPECT_TRUE(dispatcher->initiated.empty());
    EXPECT_TRUE(dispatcher->main.empty());
}

TEST_F(ModelChoice, WithOneFolderChosenTheMainButtonAsksToo) {
    model->setDeleteAllData(false);
    model->setSelected(folders[2], true);
    model->uninstallClicked();
    EXPECT_TRUE(published().confirmingDataDeletion);
    EXPECT_FALSE(model->isWorking());
}

TEST_F(ModelChoice, WithoutChosenDataTheMainButtonStartsAtOnce) {
    model->setDeleteAllData(false);
    model->uninstallClicked();
    EXPECT_TRUE(model->isWorking());
    EXPECT_FALSE(published().confirmingDataDeletion);
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
}

TEST_F(ModelChoice, TheQuestionIsTakenBack) {
    model->uninstallClicked();
    model->setConfirmingDataDeletion(false);
    EXPECT_FALSE(published().confirmingDataDeletion);
    EXPECT_TRUE(isIn<Model::Ready>());
}

TEST_F(ModelChoice, EachChangeIsToldBefore) {
    EXPECT_TRUE(tellsBefore([this] { model->setSelected(folders[0], false); }));
    EXPECT_TRUE(tellsBefore([this] { model->setSelected(folders[0], true); }));
    EXPECT_TRUE(tellsBefore([this] { model->uninstallClicked(); }));
    EXPECT_TRUE(tellsBefore([this] { model->setConfirmingDataDeletion(false); }));
    EXPECT_TRUE(tellsBefore([this] { model->setDeleteAllData(false); }));
    EXPECT_TRUE(tellsBefore([this] { model->setDeleteAllData(true); }));
}

} // namespace
} // namespace kelmar
