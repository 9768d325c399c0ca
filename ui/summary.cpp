#include "system/files/files.hpp"
#include "system/text/list_text.hpp"
#include "ui/sections.hpp"

#include <algorithm>
#include <optional>

namespace kelmar {

namespace {

SummaryRow done(std::string text) {
    return {"checkmark.circle.fill", Tint::green, std::move(text)};
}

bool isDeleted(const DataRoot& root, const std::vector<DataFolder>& deleted) {
    return std::any_of(root.folders.begin(), root.folders.end(), [&deleted](const auto& folder) {
        return std::any_of(deleted.begin(), deleted.end(),
                           [&folder](const DataFolder& each) { return each.path == folder.path; });
    });
}

/// What is left of a data root; absent if it is gone or there is nothing to report.
std::optional<std::string> kept(const DataRoot& root, const std::vector<DataFolder>& deleted,
                                const KelmarPaths& paths) {
    std::optional<std::vector<std::string>> names = sortedNames(root.path);
    if (!names) {
        return std::nullopt;
    }
    const std::string place = paths.display(root.path);
    if (!isDeleted(root, deleted)) {
        return "Kept your Kelmar data in " + place + ".";
    }
    std::erase_if(*names, KelmarPaths::isIgnorable);
    if (names->empty()) {
        return std::nullopt;
    }
    return "Kept " + place + ", which still holds " + listed(*names) + ".";
}

} // namespace

std::vector<SummaryRow> summary(const UninstallerModel::Published& published,
                                const KelmarPaths& paths) {
    std::vector<SummaryRow> rows;
    if (!published.removed.installations.empty() || !published.removed.loadedServices.empty()) {
        rows.push_back(done("The Kelmar app and its background services are gone."));
    }
    rows.push_back(done("Its settings and the permissions you gave it are removed."));
    if (!published.deletedData.empty()) {
        const std::optional<std::int64_t> bytes = published.bytes(published.deletedData);
        rows.push_back(done(bytes ? "Deleted " + SizeText{bytes, {}}.text() + " of Kelmar data."
                                  : "Deleted your Kelmar data."));
    }
    for (const DataRoot& root : published.removed.dataRoots) {
        if (std::optional<std::string> text = kept(root, published.deletedData, paths)) {
            rows.push_back({"folder", Tint::secondary, std::move(*text)});
        }
    }
    return rows;
}

} // namespace kelmar
