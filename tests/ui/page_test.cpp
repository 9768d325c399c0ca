#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"
#include "ui/uninstaller_view.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {
namespace {

using Model = UninstallerModel;
using Published = Model::Published;
using State = Model::StageRow::State;

const Header removes{"Uninstall Kelmar", "Removes the Kelmar app, its background services, its "
                                         "settings and the permissions you gave it."};
const Header absent{"Kelmar isn't on this Mac", "There's nothing of Kelmar's here to remove."};
const NothingFoundContent nothingFound{
    "Kelmar Uninstaller looked for the Kelmar app, its background services, its settings and its "
    "data, for your account and for all users of this Mac, and found none of them."};
const Model::Finished failed{{{"/Users/ada/Kelmar/Store", "it is still there"}}};

Page pageOf(const Published& published, bool showFolders = false, bool showDetails = false) {
    return UninstallerView::page(published, test::machine, showFolders, showDetails);
}

Published in(Model::Phase phase) {
    Published published = test::readyWith(test::usualInventory(test::machine));
    published.phase = std::move(phase);
    return published;
}

template <typename Content>
Content contentOf(const Page& page) {
    return std::get<Content>(page.content);
}

Details folded() {
    return {{"Details", Action::toggleDetails}, false, {}};
}

TEST(Page, ScanningLooks) {
    EXPECT_EQ(pageOf(Published()), (Page{{"Uninstall Kelmar", "Looking for Kelmar on this Mac…"},
                                         ScanningContent{{"Looking for Kelmar…"}},
                                         footer(Published()),
                                         std::nullopt}));
    EXPECT_EQ(pageOf(in(Model::Scanning{})), pageOf(Published()));
}

TEST(Page, ReadyWithNothingFoundSaysSo) {
    const Published published = test::readyWith({});
    EXPECT_EQ(pageOf(published), (Page{absent, nothingFound, footer(published), std::nullopt}));
}

TEST(Page, ARunningAppAloneIsNothingFound) {
    Inventory inventory;
    inventory.appRunning = true;
    const Page page = pageOf(test::readyWith(inventory));
    EXPECT_EQ(page.header, absent);
    EXPECT_EQ(page.content, Content(nothingFound));
}

TEST(Page, EachKindOfThingIsSomethingFound) {
    std::vector<Inventory> found(5);
    found[0].installations = {test::installation(test::machine, Scope::allUsers)};
    found[1].loadedServices = {"com.kelmar.api"};
    found[2].settings = {"/s"};
    found[3].keychainItems = {"Kelmar Safe Storage"};
    found[4].dataRoots = {test::dataRoot(test::machine, Scope::allUsers, {"CDN"})};
    for (const Inventory& inventory : found) {
        const Page page = pageOf(test::readyWith(inventory));
        EXPECT_EQ(page.header, removes);
        EXPECT_EQ(contentOf<ReadyContent>(page).found, foundSection(inventory, test::machine));
    }
}

TEST(Page, NothingFoundHasNoNotice) {
    Published published = test::readyWith({});
    published.notice = "Nothing was removed.";
    EXPECT_EQ(pageOf(published).content, Content(nothingFound));
}

TEST(Page, ReadyShowsWhatWasFoundAndTheData) {
    const Published published = in(Model::Ready{});
    const Page expected{removes,
                        ReadyContent{std::nullopt, foundSection(published.inventory, test::machine),
                                     dataSection(published, test::machine, false)},
                        footer(published), std::nullopt};
    EXPECT_EQ(pageOf(published), expected);
}

TEST(Page, ReadyWithoutDataHasNoDataSection) {
    Inventory inventory;
    inventory.settings = {"/s"};
    EXPECT_EQ(contentOf<ReadyContent>(pageOf(test::readyWith(inventory))).data, std::nullopt);
    inventory.dataRoots = {{Scope::me, "/d", {}, {"notes.txt"}}};
    EXPECT_EQ(contentOf<ReadyContent>(pageOf(test::readyWith(inventory))).data, std::nullopt);
}

TEST(Page, ReadyUnfoldsTheFolders) {
    const Published published = in(Model::Ready{});
    const auto section = contentOf<ReadyContent>(pageOf(published, true)).data;
    EXPECT_EQ(section, dataSection(published, test::machine, true));
    EXPECT_NE(section, dataSection(published, test::machine, false));
}

TEST(Page, ReadyShowsTheNoticeAbove) {
    Published published = in(Model::Ready{});
    published.notice = "Nothing was removed.";
    const std::optional<Callout> expected{
        {"exclamationmark.triangle.fill", Tint::orange, "Nothing was removed."}};
    EXPECT_EQ(contentOf<ReadyContent>(pageOf(published)).notice, expected);
}

TEST(Page, AStageHasItsIconByItsState) {
    EXPECT_EQ(stageIcon(State::pending), (StageIcon{"circle", Tint::secondary, "Waiting"}));
    EXPECT_EQ(stageIcon(State::running).symbol, std::nullopt);
    EXPECT_EQ(stageIcon(State::running).label, "In progress");
    EXPECT_EQ(stageIcon(State::done), (StageIcon{"checkmark.circle.fill", Tint::green, "Done"}));
}

TEST(Page, WorkingShowsTheStagesTheStepAndTheDetails) {
    Published published = in(Model::Working{});
    published.stages = {{Uninstaller::Stage::close, "One", State::done},
                        {Uninstaller::Stage::account, "Two", State::running},
                        {Uninstaller::Stage::data, "Three", State::pending}};
    published.detail = "Removing ~/Library/Kelmar";
    published.log = LogLines({"a", "b"});
    const Header working{"Uninstalling Kelmar…", "Deleting a lot of data can take a few minutes."};
    WorkingContent content{{{stageIcon(State::done), "One"},
                            {stageIcon(State::running), "Two"},
                            {stageIcon(State::pending), "Three"}},
                           "Removing ~/Library/Kelmar",
                           folded()};
    EXPECT_EQ(pageOf(published), (Page{working, content, footer(published), std::nullopt}));
    content.details.shown = true;
    content.details.log = published.log;
    EXPECT_EQ(pageOf(published, false, true).content, Content(content));
}

TEST(Page, FinishedSaysThatAllIsGone) {
    const Published published = in(Model::Finished{});
    const Header expected{"Kelmar has been removed",
                          "You can install the latest version of Kelmar whenever you're ready."};
    EXPECT_EQ(
        pageOf(published),
        (Page{expected, FinishedContent{summary(published, test::machine), std::nullopt, folded()},
              footer(published), std::nullopt}));
}

TEST(Page, FinishedShowsTheSummaryOfTheRun) {
    Published published = in(Model::Finished{});
    published.removed = published.inventory;
    published.deletedData = published.removed.dataFolders();
    const auto rows = contentOf<FinishedContent>(pageOf(published)).summary;
    EXPECT_EQ(rows, summary(published, test::machine));
    EXPECT_EQ(rows.size(), 3U);
}

TEST(Page, FinishedWithFailuresSaysWhatToDo) {
    const Published published = in(failed);
    const Header expected{"Kelmar wasn't completely removed",
                          "Some items couldn't be removed. Restart your Mac, then open Kelmar "
                          "Uninstaller again."};
    EXPECT_EQ(pageOf(published),
              (Page{expected,
                    FinishedContent{
                        summary(published, test::machine),
                        ProblemsSection{{"Not removed"}, {{"~/Kelmar/Store", "it is still there"}}},
                        folded()},
                    footer(published), std::nullopt}));
}

TEST(Page, ProblemsKeepTheirOrderAndLabelsStayAsTheyAre) {
    const KelmarPaths under = test::pathsUnder("/t");
    const Published published =
        in(Model::Finished{{{"Install record com.kelmar.pkg.app", "no receipt"},
                            {"/t/system/Library/Kelmar", "busy"},
                            {"/t/home/Library/Kelmar", "it is still there"}}});
    const auto content =
        contentOf<FinishedContent>(UninstallerView::page(published, under, false, false));
    ASSERT_TRUE(content.problems.has_value());
    EXPECT_EQ(content.problems->rows,
              (std::vector<ProblemRow>{{"Install record com.kelmar.pkg.app", "no receipt"},
                                       {"/Library/Kelmar", "busy"},
                                       {"~/Library/Kelmar", "it is still there"}}));
}

TEST(Page, FinishedUnfoldsTheRecord) {
    Published published = in(failed);
    published.log = LogLines({"one", "two"});
    const Details expected{{"Details", Action::toggleDetails}, true, published.log};
    const auto details = contentOf<FinishedContent>(pageOf(published, false, true)).details;
    EXPECT_EQ(details, expected);
    EXPECT_EQ(details.log.text(), "one\ntwo");
    EXPECT_TRUE(details.log.continues(published.log));
}

TEST(Page, AsksWhileTheQuestionIsUp) {
    Published published = in(Model::Ready{});
    published.selectedData = {test::dataFolder(test::machine, Scope::me, "Store").path};
    EXPECT_EQ(pageOf(published).confirmation, std::nullopt);
    Page expected = pageOf(published);
    published.confirmingDataDeletion = true;
    expected.confirmation = confirmation(published);
    EXPECT_EQ(pageOf(published), expected);
}

TEST(HeaderOfThePage, IsAnnouncedWithOneStopBetweenItsLines) {
    EXPECT_EQ((Header{"Kelmar has been removed", "Now."}).announcement(),
              "Kelmar has been removed. Now.");
    EXPECT_EQ((Header{"Uninstalling Kelmar…", "Now."}).announcement(), "Uninstalling Kelmar… Now.");
}

TEST(SizeTexts, AreSpokenWithWhatHasTheSize) {
    EXPECT_EQ((SizeText{4096, "Store"}).text(), "4 KB");
    EXPECT_EQ((SizeText{std::nullopt, "Store"}).text(), "Measuring…");
    EXPECT_EQ((SizeText{4096, "Store"}).accessibleName(), "Store, 4 KB");
    EXPECT_EQ((SizeText{std::nullopt, "Store"}).accessibleName(), "Store, Measuring…");
    EXPECT_EQ((SizeText{0, "Store"}).accessibleName(), "Store, Empty");
}

} // namespace
} // namespace kelmar
