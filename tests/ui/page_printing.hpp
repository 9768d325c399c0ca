#pragma once

#include "ui/page.hpp"

#include <ostream>
#include <variant>

/// How a failing test shows the page's rows.
namespace kelmar {

inline std::ostream& operator<<(std::ostream& out, const Header& header) {
    return out << header.title << " / " << header.subtitle;
}

inline std::ostream& operator<<(std::ostream& out, const Button& button) {
    return out << button.text << " (action " << static_cast<int>(button.action) << ", key "
               << static_cast<int>(button.key) << (button.enabled ? "" : ", disabled")
               << (button.destructive ? ", destructive)" : ")");
}

inline std::ostream& operator<<(std::ostream& out, const FoundRow& row) {
    if (const auto* const image = std::get_if<FoundRow::Image>(&row.icon)) {
        out << "icon of " << image->path;
    } else {
        out << std::get<FoundRow::Symbol>(row.icon).name;
    }
    return out << " / " << row.title << " / " << row.detail;
}

inline std::ostream& operator<<(std::ostream& out, const SizeText& size) {
    return out << size.accessibleName();
}

inline std::ostream& operator<<(std::ostream& out, const FooterNote& note) {
    return out << note.symbol << " / " << note.text << " / " << note.help;
}

inline std::ostream& operator<<(std::ostream& out, const SummaryRow& row) {
    return out << row.symbol << " (tint " << static_cast<int>(row.tint) << ") " << row.text;
}

inline std::ostream& operator<<(std::ostream& out, const FolderRow& row) {
    return out << (row.checked ? "[x] " : "[ ] ") << row.path << " / " << row.name << " / "
               << row.summary << " / " << row.size.accessibleName();
}

inline std::ostream& operator<<(std::ostream& out, const ProblemRow& row) {
    return out << row.path << ": " << row.reason;
}

} // namespace kelmar
