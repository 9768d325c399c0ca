#pragma once

#include "ui/log_lines.hpp"

#include <QFont>
#include <QString>
#include <QTextLayout>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelmar {

/// The layout of a log's lines in rows of equal height. Stores only where each line ends; text and
/// glyphs are created for the lines that are drawn.
class LogText {
public:
    /// A position in the text, before the character at `column` in UTF-16.
    struct Place {
        std::size_t line = 0;
        int column = 0;

        // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler compares is no pointer
        friend auto operator<=>(const Place&, const Place&) = default;
    };

    explicit LogText(const QFont& font);

    /// Shows `log` from its beginning, or continues if it is the shown log with new lines.
    void setLog(const LogLines& log);

    /// Sets the width of rows, and lays out again the lines laid out so far.
    void setWidth(int width);

    /// Lays out at most `lines` more lines.
    void layOutMore(std::size_t lines);

    /// The number of lines laid out, and whether that is all of them.
    [[nodiscard]] std::size_t lineCount() const { return ends_.size(); }

    [[nodiscard]] bool isComplete() const { return ends_.size() == log_.size(); }

    /// The text of `line`, and its layout in rows.
    [[nodiscard]] QString line(std::size_t line) const;
    [[nodiscard]] std::unique_ptr<QTextLayout> layout(std::size_t line) const;

    [[nodiscard]] int rowHeight() const { return rowHeight_; }

    [[nodiscard]] int rowCount() const { return static_cast<int>(firstRow(lineCount())); }

    /// The first row of `line`; `line` may be one past the last.
    [[nodiscard]] std::uint32_t firstRow(std::size_t line) const;

    /// The line that contains `row`, or the last line for a later row. Needs at least one line.
    [[nodiscard]] std::size_t lineOfRow(int row) const;

    [[nodiscard]] int rowOf(Place place) const;
    [[nodiscard]] Place placeAt(int row, double x) const;

    [[nodiscard]] Place end() const;

    /// The text from `from` to `to`, lines separated by line feeds. `from` must not be after `to`.
    [[nodiscard]] QString text(Place from, Place to) const;

    // Converts a position to a number of UTF-16 characters before it, including line feeds.
    [[nodiscard]] int offsetOf(Place place) const;
    [[nodiscard]] Place placeOf(int offset) const;

private:
    /// Where a line ends, from the beginning of the log.
    struct End {
        std::uint32_t row;
        std::uint32_t offset; ///< after the line feed
    };

    [[nodiscard]] std::uint32_t rowsOf(const QString& line) const;
    [[nodiscard]] std::uint32_t firstOffset(std::size_t line) const;

    QFont font_;
    int rowHeight_;
    double widest_; ///< width of the widest ASCII character
    int width_ = 1;
    LogLines log_;
    std::vector<End> ends_;
};

} // namespace kelmar
