#pragma once

#include "ui/look.hpp"
#include "ui/qt/log_text.hpp"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <cstddef>
#include <optional>

namespace kelmar {

/// The record of a run, to be read, selected and copied. Lines are added below what is there:
/// neither the place that is being read nor a selection moves. Whoever reads at the end stays at
/// the end. A long record comes in portions, each within one picture of the screen, and takes
/// little more memory than its text: only the rows in sight are drawn.
class LogView : public QAbstractScrollArea {
public:
    using Place = LogText::Place;

    explicit LogView(QWidget* parent = nullptr);

    void render(const LogLines& log);

    [[nodiscard]] const LogText& text() const { return text_; }

    /// Whether all of the record is in the view.
    [[nodiscard]] bool isComplete() const { return text_.isComplete(); }

    // What is selected lies between the anchor and the cursor, in whichever order.
    [[nodiscard]] Place anchor() const { return anchor_; }

    [[nodiscard]] Place cursor() const { return cursor_; }

    [[nodiscard]] bool hasSelection() const { return anchor_ != cursor_; }

    [[nodiscard]] QString selectedText() const;
    void select(Place anchor, Place cursor);
    void selectAll();

    /// Puts what is selected on the clipboard.
    void copy() const;

    /// Scrolls until `place` is in sight, and no further.
    void bringIntoSight(Place place);

    /// Where the character after `place` is drawn, in the viewport.
    [[nodiscard]] QRect placeInViewport(Place place) const;
    [[nodiscard]] Place placeAt(QPoint inViewport) const;

    /// As low as is of use; its place gives it what height there is.
    [[nodiscard]] QSize sizeHint() const override { return {200, Look::logHeight}; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {100, Look::logHeight}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void addPortion();
    void updateRange();
    void extendTo(Place place);
    [[nodiscard]] std::optional<Place> movedBy(const QKeyEvent& event) const;
    [[nodiscard]] int rowsInSight() const;

    LogText text_;
    Place anchor_;
    Place cursor_;
    bool following_ = true; ///< the end is being read, and stays in sight
    QBasicTimer more_;
    QBasicTimer dragging_; ///< runs while the mouse selects beyond the edge
};

} // namespace kelmar
