#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// One parsed line of the administrator's script about its progress. A line is a keyword, one
/// blank, and the rest verbatim; blanks before the keyword are skipped.
struct StatusLine {
    enum class Keyword {
        doing, ///< about to remove `subject`
        ok,    ///< removed `subject`
        log,   ///< `subject` is a free message
        fail,  ///< could not remove `subject`, because of `reason`
    };
    Keyword keyword;
    std::string subject; ///< a path or a message; empty for a FAIL line that breaks the contract
    std::string reason;  ///< for `fail` only

    friend bool operator==(const StatusLine&, const StatusLine&) = default;
};

/// Absent for lines without content: empty ones, unknown keywords, DONE.
std::optional<StatusLine> parseStatusLine(std::string_view line);

} // namespace kelmar
