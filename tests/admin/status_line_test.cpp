#include "admin/status_line.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kelmar {
namespace {

using Keyword = StatusLine::Keyword;

struct Case {
    std::string line;
    std::optional<StatusLine> parsed;
};

class StatusLines : public testing::TestWithParam<Case> {};

TEST_P(StatusLines, AreTakenApart) {
    EXPECT_EQ(parseStatusLine(GetParam().line), GetParam().parsed) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(Keywords, StatusLines,
                         testing::Values(Case{"DOING /a b", StatusLine{Keyword::doing, "/a b", ""}},
                                         Case{"OK /a  b ", StatusLine{Keyword::ok, "/a  b ", ""}},
                                         Case{"LOG two words",
                                              StatusLine{Keyword::log, "two words", ""}},
                                         Case{"   OK /a", StatusLine{Keyword::ok, "/a", ""}},
                                         Case{"OK  /a", StatusLine{Keyword::ok, " /a", ""}},
                                         Case{"OK", StatusLine{Keyword::ok, "", ""}},
                                         Case{"LOG ", StatusLine{Keyword::log, "", ""}},
                                         Case{"LOG x\r", StatusLine{Keyword::log, "x\r", ""}}));

INSTANTIATE_TEST_SUITE_P(
    Failures, StatusLines,
    testing::Values(Case{"FAIL /a\twhy", StatusLine{Keyword::fail, "/a", "why"}},
                    Case{"FAIL /a b\twhy\tso ", StatusLine{Keyword::fail, "/a b", "why\tso "}},
                    Case{"FAIL /a", StatusLine{Keyword::fail, "/a", "could not be removed"}},
                    Case{"FAIL /a\t", StatusLine{Keyword::fail, "/a", "could not be removed"}},
                    Case{"FAIL \t\t/a\twhy", StatusLine{Keyword::fail, "/a", "why"}},
                    Case{"FAIL", StatusLine{Keyword::fail, "", "could not be removed"}},
                    Case{"FAIL \t\t", StatusLine{Keyword::fail, "", "could not be removed"}}));

INSTANTIATE_TEST_SUITE_P(Nothing, StatusLines,
                         testing::Values(Case{"", {}}, Case{"   ", {}}, Case{"DONE", {}},
                                         Case{"DONE well", {}}, Case{"done", {}}, Case{"ok /a", {}},
                                         Case{"OKAY /a", {}}, Case{"\tOK /a", {}},
                                         Case{"DOING\t/a", {}}, Case{"\xFF", {}}));

} // namespace
} // namespace kelmar
