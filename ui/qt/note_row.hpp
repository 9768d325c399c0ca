#pragma once

#include "ui/look.hpp"
#include "ui/page.hpp"
#include "ui/qt/text_label.hpp"

#include <QBasicTimer>
#include <QWidget>

namespace kelmar {

class IconLabel;

/// A symbol beside a text: a footer's note, a line of the summary, the text of a callout.
class NoteRow : public QWidget {
public:
    /// `size` is the symbol's, in points.
    NoteRow(const Look::IconColumn& icons, TextStyle style, TextTone tone,
            QWidget* parent = nullptr);

    void render(const FooterNote& note);
    void render(const SummaryRow& row);
    void render(const Callout& callout);

    /// Shows the note's help and focus ring while the note has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void showNote(const std::string& symbol, Tint tint, const std::string& text);

    int size_;
    QBasicTimer help_; ///< active until the help is shown
    IconLabel* symbol_;
    TextLabel* text_;
};

} // namespace kelmar
