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

/// The lines of a record as they are laid out in rows of one height. Keeps no more of each line
/// than where it ends: text and glyphs are made for the lines that are drawn.
class LogText {
public:
    /// A place in the text, before the character at `column` in UTF-16.
    struct Place {
        std::size_t line = 0;
        int column = 0;

        friend auto operator<=>(const Place&, const Place&) = default;
    };

    explicit LogText(const QFont& font);

    /// Shows `log` from its beginning, or goes on with what it has become.
    void setLog(const LogLines& log);

    /// Rows are that wide from now on; lays out anew what has been laid out.
    void setWidth(int width);

    /// Lays out at most `lines` more.
    void layOutMore(std::size_t lines);

    /// Lines that are laid out, and whether those are all.
    [[nodiscard]] std::size_t lineCount() const { return ends_.size(); }

    [[nodiscard]] bool isComplete() const { return ends_.size() == log_.size(); }

    /// What `line` reads, and the line laid out in rows.
    [[nodiscard]] QString line(std::size_t line) const;
    [[nodiscard]] std::unique_ptr<QTextLayout> layout(std::size_t line) const;

    [[nodiscard]] int rowHeight() const { return rowHeight_; }

    [[nodiscard]] int rowCount() const { return static_cast<int>(firstRow(lineCount())); }

    /// The first row of `line`, which may be the one after the last.
    [[nodiscard]] std::uint32_t firstRow(std::size_t line) const;

    /// The line that `row` is a part of; the last one beyond it. There are lines.
    [[nodiscard]] std::size_t lineOfRow(int row) const;

    [[nodiscard]] int rowOf(Place place) const;
    [[nodiscard]] Place placeAt(int row, double x) const;

    [[nodiscard]] Place end() const;

    /// The text in between, lines separated by line feeds. `from` is not after `to`.
    [[nodiscard]] QString text(Place from, Place to) const;

    // A place as the number of the characters of UTF-16 before it, each line feed among them.
    [[nodiscard]] int offsetOf(Place place) const;
    [[nodiscard]] Place placeOf(int offset) const;

private:
    /// Where a line ends, counted from the beginning of the record.
    struct End {
        std::uint32_t row;
        std::uint32_t offset; ///< after the line feed
    };

    [[nodiscard]] std::uint32_t rowsOf(const QString& line) const;
    [[nodiscard]] std::uint32_t firstOffset(std::size_t line) const;

    QFont font_;
    int rowHeight_;
    double widest_; ///< character of ASCII
    int width_ = 1;
    LogLines log_;
    std::vector<End> ends_;
};

} // namespace kelmar
