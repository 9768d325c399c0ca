#pragma once

#include "ui/look.hpp"
#include "ui/page.hpp"
#include "ui/qt/text_label.hpp"

#include <QWidget>

namespace kelmar {

class IconLabel;

/// A symbol beside a text: a footer's note, a line of the summary, what a callout says.
class NoteRow : public QWidget {
public:
    /// `size` is the symbol's, in units.
    NoteRow(const Look::IconColumn& icons, TextStyle style, TextTone tone,
            QWidget* parent = nullptr);

    void render(const FooterNote& note);
    void render(const SummaryRow& row);
    void render(const Callout& callout);

protected:
    bool event(QEvent* event) override;

private:
    void showNote(const std::string& symbol, Tint tint, const std::string& text);

    int size_;
    IconLabel* symbol_;
    TextLabel* text_;
};

} // namespace kelmar
