#pragma once

#include "ui/look.hpp"
#include "ui/qt/log_text.hpp"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <cstddef>
#include <optional>

namespace kelmar {

/// Shows the log of a run, to read, select and copy. New lines are appended; neither the scroll
/// position nor the selection moves, but a view at the end stays at the end. Lays out a long log in
/// portions, each within one frame, and takes little more memory than its text: only visible rows
/// are drawn.
class LogView : public QAbstractScrollArea {
public:
    using Place = LogText::Place;

    explicit LogView(QWidget* parent = nullptr);

    void render(const LogLines& log);

    [[nodiscard]] const LogText& text() const { return text_; }

    /// Returns true if the view has laid out the whole log.
    [[nodiscard]] bool isComplete() const { return text_.isComplete(); }

    // The selection lies between anchor and cursor, in either order.
    [[nodiscard]] Place anchor() const { return anchor_; }

    [[nodiscard]] Place cursor() const { return cursor_; }

    [[nodiscard]] bool hasSelection() const { return anchor_ != cursor_; }

    [[nodiscard]] QString selectedText() const;
    void select(Place anchor, Place cursor);
    void selectAll();

    /// Copies the selection to the clipboard.
    void copy() const;

    /// Scrolls just far enough to make `place` visible.
    void bringIntoSight(Place place);

    /// The rectangle of the character after `place`, in the viewport.
    [[nodiscard]] QRect placeInViewport(Place place) const;
    [[nodiscard]] Place placeAt(QPoint inViewport) const;

    /// The smallest useful height; the layout adds what is left.
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
    bool following_ = true; ///< the end is shown, and must stay visible
    QBasicTimer more_;
    QBasicTimer dragging_; ///< active while the mouse selects beyond the edge
};

} // namespace kelmar
