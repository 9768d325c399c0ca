#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>

namespace kelmar {
namespace {

using Selection = std::set<std::string>;

/// Results of scans that were started while another was going on.
class ModelLateResult : public test::ModelFixture {
protected:
    /// Does the background job at `index`, and shows what it posts.
    void arrive(std::size_t index = 0) {
        dispatcher->runOne(dispatcher->initiated, index);
        dispatcher->runAll(dispatcher->main);
    }
};

TEST_F(ModelLateResult, OfTwoTheResultThatArrivesLastIsShown) {
    for (const std::size_t first : {0U, 1U}) {
        model->scan();
        model->scan();
        ASSERT_EQ(dispatcher->initiated.size(), 2U);
        findData({"Store", "Logs"});
        arrive(first);
        EXPECT_TRUE(isIn<Model::Ready>());
        EXPECT_EQ(published().inventory.dataFolders().size(), 2U);
        findData({"Store"});
        arrive();
        EXPECT_TRUE(isIn<Model::Ready>());
        EXPECT_EQ(published().inventory, found);
        EXPECT_EQ(published().selectedData, Selection{mine("Store")});
    }
}

TEST_F(ModelLateResult, TheSameResultTwiceChangesNothing) {
    findData({"Store"});
    model->scan();
    model->scan();
    arrive();
    model->setDeleteAllData(false);
    const Published before = published();
    arrive();
    EXPECT_EQ(published(), before);
}

TEST_F(ModelLateResult, AResultThatComesLateDoesNotEndARun) {
    findData({"Store"});
    model->scan();
    model->scan();
    arrive();
    model->uninstall();
    found = {};
    arrive();
    EXPECT_TRUE(model->isWorking());
    EXPECT_EQ(published().inventory, Inventory{});
    EXPECT_EQ(published().removed.dataFolders().size(), 1U);
    EXPECT_EQ(published().deletedData.size(), 1U);
    EXPECT_EQ(published().stages.size(), 1U);
}

TEST_F(ModelLateResult, AResultThatComesAfterARunDoesNotTakeItsOutcomeAway) {
    findData({"Store"});
    model->scan();
    model->scan();
    arrive();
    model->uninstall();
    arrive(1);
    ASSERT_TRUE(isIn<Model::Finished>());
    arrive();
    EXPECT_TRUE(isIn<Model::Finished>());
}

} // namespace
} // namespace kelmar
