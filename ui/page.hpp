#pragma once

#include "ui/log_lines.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The content of the window as plain records: every text, symbol, colour, state and key. A
/// renderer draws them and sends actions back; it decides nothing.
namespace kelmar {

/// A colour by its meaning; the renderer maps it to the platform's own.
enum class Tint {
    secondary, ///< quieter than text
    green,     ///< done
    orange,    ///< careful
};

/// What a button does.
enum class Action {
    scan,
    uninstallClicked,
    uninstall,
    dismissConfirmation,
    quit,
    toggleFolders,
    toggleDetails,
};

/// The key that presses a button, whatever has the focus.
enum class ButtonKey {
    none,
    defaultAction, ///< Return
    cancelAction,  ///< Escape
    both,          ///< both keys: Return cancels as well
};

struct Button {
    std::string text;
    Action action = Action::quit;
    ButtonKey key = ButtonKey::none;
    bool enabled = true;
    bool destructive = false; ///< drawn as a warning; never the default button

    friend bool operator==(const Button&, const Button&) = default;
};

struct Header {
    std::string title;
    std::string subtitle;

    /// Both texts, as a screen reader announces them.
    [[nodiscard]] std::string announcement() const;

    friend bool operator==(const Header&, const Header&) = default;
};

struct SectionTitle {
    std::string text;

    friend bool operator==(const SectionTitle&, const SectionTitle&) = default;
};

/// A spinner with its text.
struct Busy {
    std::string text;

    friend bool operator==(const Busy&, const Busy&) = default;
};

/// A row of the found section.
struct FoundRow {
    /// A symbol by its name.
    struct Symbol {
        std::string name;
        friend bool operator==(const Symbol&, const Symbol&) = default;
    };

    /// The icon that the desktop shows for the file at this path.
    struct Image {
        std::string path;
        friend bool operator==(const Image&, const Image&) = default;
    };

    using Icon = std::variant<Symbol, Image>;

    Icon icon;
    std::string title;
    std::string detail;

    friend bool operator==(const FoundRow&, const FoundRow&) = default;
};

/// A size, in tabular digits and the secondary colour.
struct SizeText {
    std::optional<std::int64_t> bytes; ///< absent while it is being measured
    std::string of;                    ///< what has that size, for screen readers

    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::string accessibleName() const;

    friend bool operator==(const SizeText&, const SizeText&) = default;
};

struct Callout {
    std::string symbol;
    Tint tint = Tint::orange;
    std::string text;

    friend bool operator==(const Callout&, const Callout&) = default;
};

struct FooterNote {
    std::string symbol;
    std::string text;
    std::string help;

    friend bool operator==(const FooterNote&, const FooterNote&) = default;
};

struct SummaryRow {
    std::string symbol;
    Tint tint = Tint::green;
    std::string text;

    friend bool operator==(const SummaryRow&, const SummaryRow&) = default;
};

/// The state of a stage's row: a symbol, or, if it has none, a spinner.
struct StageIcon {
    std::optional<std::string> symbol;
    Tint tint = Tint::secondary;
    std::string label; ///< its accessible name

    friend bool operator==(const StageIcon&, const StageIcon&) = default;
};

struct ProgressRow {
    StageIcon icon;
    std::string title;

    friend bool operator==(const ProgressRow&, const ProgressRow&) = default;
};

struct FolderRow {
    std::string path; ///< identifies the folder; not shown
    std::string name;
    std::string summary;
    bool checked = false;
    SizeText size;

    friend bool operator==(const FolderRow&, const FolderRow&) = default;
};

/// The folders of one data root.
struct FolderList {
    std::string heading;
    std::vector<FolderRow> rows;
    std::optional<std::string> otherItems;

    friend bool operator==(const FolderList&, const FolderList&) = default;
};

struct FoundSection {
    SectionTitle title;
    std::vector<FoundRow> rows;

    friend bool operator==(const FoundSection&, const FoundSection&) = default;
};

struct DataSection {
    SectionTitle title;
    std::string label; ///< of the switch
    bool on = false;
    SizeText total;
    std::string line; ///< the text under the switch
    Button folders;   ///< shows the lists, or hides them
    std::vector<FolderList> lists;

    friend bool operator==(const DataSection&, const DataSection&) = default;
};

/// The log of a run, and whether it is unfolded.
struct Details {
    Button toggle;
    bool shown = false;
    LogLines log; ///< empty while folded

    friend bool operator==(const Details&, const Details&) = default;
};

struct ProblemRow {
    static constexpr const char* symbol = "exclamationmark.circle";
    static constexpr Tint tint = Tint::orange;

    std::string path;
    std::string reason;

    friend bool operator==(const ProblemRow&, const ProblemRow&) = default;
};

struct ProblemsSection {
    SectionTitle title;
    std::vector<ProblemRow> rows;

    friend bool operator==(const ProblemsSection&, const ProblemsSection&) = default;
};

struct ScanningContent {
    Busy busy;

    friend bool operator==(const ScanningContent&, const ScanningContent&) = default;
};

struct NothingFoundContent {
    std::string text;

    friend bool operator==(const NothingFoundContent&, const NothingFoundContent&) = default;
};

struct ReadyContent {
    std::optional<Callout> notice;
    FoundSection found;
    std::optional<DataSection> data;

    friend bool operator==(const ReadyContent&, const ReadyContent&) = default;
};

struct WorkingContent {
    std::vector<ProgressRow> stages;
    std::string detail;
    Details details;

    friend bool operator==(const WorkingContent&, const WorkingContent&) = default;
};

struct FinishedContent {
    std::vector<SummaryRow> summary;
    std::optional<ProblemsSection> problems;
    Details details;

    friend bool operator==(const FinishedContent&, const FinishedContent&) = default;
};

using Content = std::variant<ScanningContent, NothingFoundContent, ReadyContent, WorkingContent,
                             FinishedContent>;

struct Footer {
    std::vector<FooterNote> notes;
    std::optional<Busy> busy;    ///< on the leading side
    std::vector<Button> buttons; ///< from left to right, at the trailing side

    friend bool operator==(const Footer&, const Footer&) = default;
};

/// An alert before data is deleted.
struct Confirmation {
    std::string title;
    std::string message;
    std::vector<Button> buttons; ///< the one that continues comes first

    friend bool operator==(const Confirmation&, const Confirmation&) = default;
};

struct Page {
    Header header;
    Content content;
    Footer footer;
    std::optional<Confirmation> confirmation;

    /// What a screen reader announces when the page's phase changes, or when this text does: the
    /// headline, and the notice if there is one.
    [[nodiscard]] std::string announcement() const;

    friend bool operator==(const Page&, const Page&) = default;
};

} // namespace kelmar
