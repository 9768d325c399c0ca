#include "tests/ui/model_fixture.hpp"
#include "ui/uninstaller_view.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {
namespace {

using Actions = std::set<Action>;

const Actions allActions{Action::scan,         Action::uninstallClicked,    Action::uninstall,
                         Action::quit,         Action::dismissConfirmation, Action::toggleFolders,
                         Action::toggleDetails};

class View : public test::ModelFixture {
protected:
    /// Ready, with all data chosen.
    void becomeReady() {
        found.installations = {test::installation(tree.paths(), Scope::me)};
        findData({"Store", "Logs"});
        sizes = {{mine("Store"), 1}, {mine("Logs"), 2}};
        scanAndMeasure();
    }

    /// The end of a run that left something over.
    void becomeFailed() {
        tree.services(Scope::allUsers);
        becomeReady();
        found.installations = {test::installation(tree.paths(), Scope::allUsers)};
        scanAndMeasure();
        model->uninstall();
        dispatcher->settle();
        ASSERT_FALSE(std::get<Model::Finished>(published().phase).failures.empty());
    }

    /// The actions that do anything where `become` leads, each tried on a model of its own. The two
    /// switches of the view's own are always there, and left out of the answer.
    [[nodiscard]] Actions answered(const std::function<void()>& become) {
        Actions answered;
        for (const Action action : allActions) {
            model = std::make_shared<Model>(tree.paths(), dispatcher, sources());
            UninstallerView pressed(model, [this] { ++quits; });
            become();
            int told = 0;
            pressed.observe([&told] { ++told; });
            const int quitsBefore = quits;
            pressed.perform(action);
            if (told != 0 || quits != quitsBefore || !dispatcher->initiated.empty()) {
                answered.insert(action);
            }
            model->observe([] {});
            dispatcher->settle();
        }
        EXPECT_EQ(answered.erase(Action::toggleFolders), 1U);
        EXPECT_EQ(answered.erase(Action::toggleDetails), 1U);
        return answered;
    }

    int quits = 0;
    UninstallerView view{model, [this] { ++quits; }};
};

TEST_F(View, ShowsItsModelWithBothSwitchesOff) {
    EXPECT_EQ(view.page(), UninstallerView::page(Published(), tree.paths(), false, false));
    becomeReady();
    EXPECT_EQ(view.page(), UninstallerView::page(published(), tree.paths(), false, false));
}

TEST_F(View, EachSwitchTurnsItsOwnPart) {
    becomeReady();
    view.perform(Action::toggleFolders);
    EXPECT_EQ(view.page(), UninstallerView::page(published(), tree.paths(), true, false));
    view.perform(Action::toggleDetails);
    view.perform(Action::toggleFolders);
    model->uninstall();
    EXPECT_EQ(view.page(), UninstallerView::page(published(), tree.paths(), false, true));
    EXPECT_NE(view.page(), UninstallerView::page(published(), tree.paths(), false, false));
    view.perform(Action::toggleDetails);
    EXPECT_EQ(view.page(), UninstallerView::page(published(), tree.paths(), false, false));
}

TEST_F(View, TheSwitchesKeepTheirValuesAcrossPhases) {
    becomeReady();
    view.perform(Action::toggleFolders);
    view.perform(Action::toggleDetails);
    model->uninstall();
    dispatcher->settle();
    EXPECT_TRUE(std::get<FinishedContent>(view.page().content).details.shown);
    model->scan();
    dispatcher->settle();
    EXPECT_FALSE(std::get<ReadyContent>(view.page().content).data->lists.empty());
}

TEST_F(View, AsksAndGoesOn) {
    becomeReady();
    view.perform(Action::uninstallClicked);
    EXPECT_TRUE(view.page().confirmation.has_value());
    EXPECT_FALSE(model->isWorking());
    view.perform(Action::uninstall);
    EXPECT_FALSE(view.page().confirmation.has_value());
    EXPECT_TRUE(model->isWorking());
    EXPECT_EQ(published().deletedData.size(), 2U);
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
}

TEST_F(View, AsksAndIsCalledOff) {
    becomeReady();
    const Published before = published();
    view.perform(Action::uninstallClicked);
    view.perform(Action::dismissConfirmation);
    EXPECT_EQ(published(), before);
    EXPECT_TRUE(dispatcher->initiated.empty());
}

TEST_F(View, WithoutDataStartsAtOnce) {
    becomeReady();
    view.setDeleteAllData(false);
    view.perform(Action::uninstallClicked);
    EXPECT_TRUE(model->isWorking());
    EXPECT_FALSE(view.page().confirmation.has_value());
}

TEST_F(View, TwoPressesStartOneRun) {
    becomeReady();
    view.setDeleteAllData(false);
    view.perform(Action::uninstallClicked);
    view.perform(Action::uninstallClicked);
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
}

TEST_F(View, TwoPressesOnTheQuestionStartOneRun) {
    becomeReady();
    view.perform(Action::uninstallClicked);
    view.perform(Action::uninstall);
    view.perform(Action::uninstall);
    view.perform(Action::dismissConfirmation);
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
    EXPECT_TRUE(model->isWorking());
}

TEST_F(View, TwoPressesTryAgainOnce) {
    becomeFailed();
    view.perform(Action::scan);
    view.perform(Action::scan);
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
    EXPECT_TRUE(isIn<Model::Scanning>());
}

TEST_F(View, QuitAsksTheApplicationToEnd) {
    view.perform(Action::quit);
    EXPECT_EQ(quits, 1);
    becomeReady();
    view.perform(Action::quit);
    EXPECT_EQ(quits, 2);
    model->uninstall();
    view.perform(Action::quit);
    EXPECT_EQ(quits, 2);
    dispatcher->settle();
    view.perform(Action::quit);
    EXPECT_EQ(quits, 3);
}

TEST_F(View, AnswersToWhatItsPageOffersAndToNothingElse) {
    EXPECT_EQ(answered([] {}), Actions{Action::quit}) << "scanning";
    EXPECT_EQ(answered([this] { scanAndMeasure(); }), Actions{Action::quit}) << "nothing found";
    EXPECT_EQ(answered([this] { becomeReady(); }),
              (Actions{Action::quit, Action::uninstallClicked}));
    EXPECT_EQ(answered([this] {
                  becomeReady();
                  model->uninstallClicked();
              }),
              (Actions{Action::quit, Action::uninstall, Action::dismissConfirmation}));
    EXPECT_EQ(answered([this] {
                  becomeReady();
                  model->uninstall();
                  dispatcher->initiated.clear();
              }),
              Actions{})
        << "working";
    EXPECT_EQ(answered([this] {
                  becomeReady();
                  model->uninstall();
                  dispatcher->settle();
              }),
              Actions{Action::quit})
        << "finished";
    EXPECT_EQ(answered([this] { becomeFailed(); }), (Actions{Action::quit, Action::scan}));
}

TEST_F(View, IsToldBeforeChangesOfTheModelAndOfItsOwn) {
    becomeReady();
    Page before = view.page();
    int told = 0;
    view.observe([&] {
        ++told;
        EXPECT_EQ(view.page(), before) << told;
    });
    const auto tells = [&](const std::function<void()>& change) {
        before = view.page();
        told = 0;
        change();
        return told == 1 && view.page() != before;
    };
    EXPECT_TRUE(tells([this] { view.perform(Action::toggleFolders); }));
    EXPECT_TRUE(tells([this] { view.setDeleteAllData(false); }));
    EXPECT_TRUE(tells([this] { view.setSelected(mine("Store"), true); }));
    EXPECT_TRUE(tells([this] { view.perform(Action::uninstallClicked); }));
    EXPECT_TRUE(tells([this] { view.perform(Action::dismissConfirmation); }));
    EXPECT_TRUE(tells([this] { model->uninstall(); }));
    EXPECT_TRUE(tells([this] { view.perform(Action::toggleDetails); }));
}

TEST_F(View, IsNotToldOfPressesThatDoNothing) {
    becomeReady();
    int told = 0;
    view.observe([&told] { ++told; });
    view.perform(Action::uninstall);
    view.perform(Action::scan);
    view.perform(Action::dismissConfirmation);
    view.perform(Action::quit);
    EXPECT_EQ(told, 0);
}

} // namespace
} // namespace kelmar
