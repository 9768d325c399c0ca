#include "admin/prompt_process.hpp"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

using PromptProcess::checkReport;
using PromptProcess::report;
using PromptProcess::Request;

constexpr const char* marker = "marker-1234 ";

/// What `output` comes to: "done", "cancelled", or the words of the failure.
std::string outcome(const std::string& output) {
    try {
        checkReport(marker, output);
        return "done";
    } catch (const AdministratorError& error) {
        return error.kind() == AdministratorError::Kind::cancelled ? "cancelled" : error.what();
    }
}

TEST(PromptProcess, IsToldItsRequestInOptions) {
    const Request request{marker, "/A/u.sh", {"--status", "/t/it's a \"b\"", ""}};
    EXPECT_EQ(PromptProcess::request(PromptProcess::options(request)), request);
    const Request bare{marker, "/A/u.sh", {}};
    EXPECT_EQ(PromptProcess::request(PromptProcess::options(bare)), bare);
}

TEST(PromptProcess, IsNotMeantByOtherOptions) {
    EXPECT_FALSE(PromptProcess::request({}));
    EXPECT_FALSE(PromptProcess::request({"--scan"}));
    EXPECT_FALSE(PromptProcess::request({"--scan", marker, "/A/u.sh"}));
    EXPECT_FALSE(PromptProcess::request({"--ask-administrator", marker}));
    EXPECT_FALSE(PromptProcess::request({"--ask-administrator", "", "/A/u.sh"}));
}

TEST(PromptProcess, ReportsEachOutcome) {
    EXPECT_EQ(outcome(report(marker, std::nullopt)), "done");
    EXPECT_EQ(outcome(report(marker, AdministratorError::cancelled())), "cancelled");
    EXPECT_EQ(outcome(report(marker, AdministratorError::failed("no such volume"))),
              "no such volume");
}

TEST(PromptProcess, KeepsTheLinesAndBlanksOfAFailure) {
    EXPECT_EQ(outcome(report(marker, AdministratorError::failed(" two\nlines "))), " two\nlines ");
    EXPECT_EQ(outcome(report(marker, AdministratorError::failed(""))), "");
}

TEST(PromptProcess, DoesNotTakeAFailuresWordsForAnotherOutcome) {
    EXPECT_EQ(outcome(report(marker, AdministratorError::failed("done"))), "done");
    EXPECT_THROW(checkReport(marker, report(marker, AdministratorError::failed("done"))),
                 AdministratorError);
    EXPECT_THROW(checkReport(marker, report(marker, AdministratorError::failed("cancelled"))),
                 AdministratorError);
}

TEST(PromptProcess, IsHeardThroughWhatTheSystemPrints) {
    EXPECT_EQ(
        outcome("2026-11-21 Kelmar[7] some warning\n" + report(marker, std::nullopt) + "another\n"),
        "done");
}

TEST(PromptProcess, ThatEndsWithoutAWholeReportHasFailed) {
    EXPECT_EQ(outcome(""), "the password prompt ended without an answer");
    EXPECT_EQ(outcome(" it broke \n"), "it broke");
    EXPECT_NE(outcome(std::string(marker) + "done"), "done");
    EXPECT_NE(outcome("done"), "cancelled");
    EXPECT_EQ(outcome("other-marker done other-marker \n"), "other-marker done other-marker");
}

TEST(PromptProcess, IsNotNeededHere) {
    EXPECT_FALSE(PromptProcess::run(PromptProcess::options({marker, "/A/u.sh", {}})))
        << "sudo asks by itself";
}

} // namespace
} // namespace kelmar
