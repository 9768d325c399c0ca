#include "admin/prompt_process.hpp"

#include "system/text/strings.hpp"

#include <string_view>

namespace kelmar::PromptProcess {

namespace {

constexpr std::string_view option = "--ask-administrator";
constexpr std::size_t fixedCount = 3; // the option, the marker, the script
constexpr std::string_view doneWord = "done";
constexpr std::string_view cancelledWord = "cancelled";
constexpr std::string_view failedWord = "failed ";

std::string answer(const std::optional<AdministratorError>& error) {
    if (!error) {
        return std::string(doneWord);
    }
    return error->kind() == AdministratorError::Kind::cancelled
               ? std::string(cancelledWord)
               : std::string(failedWord) + error->what();
}

/// The text between the first two markers.
std::optional<std::string> between(const std::string& marker, const std::string& output) {
    const std::size_t first = output.find(marker);
    if (first == std::string::npos) {
        return std::nullopt;
    }
    const std::size_t begin = first + marker.size();
    const std::size_t end = output.find(marker, begin);
    return end == std::string::npos ? std::nullopt
                                    : std::optional(output.substr(begin, end - begin));
}

} // namespace

std::vector<std::string> options(const Request& request) {
    std::vector<std::string> options{std::string(option), request.marker, request.script};
    options.insert(options.end(), request.arguments.begin(), request.arguments.end());
    return options;
}

std::optional<Request> request(const std::vector<std::string>& options) {
    if (options.size() < fixedCount || options[0] != option || options[1].empty()) {
        return std::nullopt;
    }
    return Request{options[1], options[2], {options.begin() + fixedCount, options.end()}};
}

std::string report(const std::string& marker, const std::optional<AdministratorError>& error) {
    return marker + answer(error) + marker + "\n";
}

void checkReport(const std::string& marker, const std::string& output) {
    const std::optional<std::string> answer = between(marker, output);
    if (answer == doneWord) {
        return;
    }
    if (answer == cancelledWord) {
        throw AdministratorError::cancelled();
    }
    if (answer && answer->starts_with(failedWord)) {
        throw AdministratorError::failed(answer->substr(failedWord.size()));
    }
    const std::string said = trimmed(output);
    throw AdministratorError::failed(said.empty() ? "the password prompt ended without an answer"
                                                  : said);
}

} // namespace kelmar::PromptProcess
