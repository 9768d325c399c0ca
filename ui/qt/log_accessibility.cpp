#include "ui/qt/log_accessibility.hpp"

#include "ui/qt/log_view.hpp"

#include <QAccessibleWidget>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace kelmar {

namespace {

/// The log as a text of many lines. The toolkit's default implementations copy the whole text to
/// find what surrounds an offset; these look at one line.
class AccessibleLog : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit AccessibleLog(LogView& view)
        : QAccessibleWidget(&view, QAccessible::EditableText),
          view_(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    [[nodiscard]] int selectionCount() const override { return view_.hasSelection() ? 1 : 0; }

    void selection(int index, int* start, int* end) const override {
        const LogText::Place from = std::min(view_.anchor(), view_.cursor());
        const LogText::Place to = std::max(view_.anchor(), view_.cursor());
        const bool any = index == 0 && from < to;
        *start = any ? content().offsetOf(from) : 0;
        *end = any ? content().offsetOf(to) : 0;
    }

    void addSelection(int start, int end) override { setSelection(0, start, end); }

    void setSelection(int /*index*/, int start, int end) override {
        view_.select(content().placeOf(start), content().placeOf(end));
    }

    void removeSelection(int /*index*/) override { view_.select(view_.cursor(), view_.cursor()); }

    [[nodiscard]] int cursorPosition() const override { return content().offsetOf(view_.cursor()); }

    void setCursorPosition(int offset) override {
        const LogText::Place place = content().placeOf(offset);
        view_.select(place, place);
        scrollToSubstring(offset, offset);
    }

    using QAccessibleWidget::text;

    [[nodiscard]] QString text(int start, int end) const override {
        return content().text(content().placeOf(start), content().placeOf(std::max(start, end)));
    }

    [[nodiscard]] int characterCount() const override {
        return content().offsetOf(content().end());
    }

    [[nodiscard]] QRect characterRect(int offset) const override {
        const QRect inside = view_.placeInViewport(content().placeOf(offset));
        return {view_.viewport()->mapToGlobal(inside.topLeft()), inside.size()};
    }

    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        return content().offsetOf(view_.placeAt(view_.viewport()->mapFromGlobal(point)));
    }

    void scrollToSubstring(int start, int /*end*/) override {
        if (content().lineCount() != 0) {
            view_.bringIntoSight(content().placeOf(start));
        }
    }

    [[nodiscard]] QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                       int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        if (boundary != QAccessible::NoBoundary) {
            const LogText::Place place = content().placeOf(offset);
            const auto [from, to] = around(place, boundary);
            const int line = offset - place.column;
            *start = std::min(line + from, *end);
            *end = std::min(line + to, *end);
        }
        return text(*start, *end);
    }

    [[nodiscard]] QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                           int* start, int* end) const override {
        static_cast<void>(textAtOffset(offset, boundary, start, end));
        return *start == 0 ? nothing(start, end) : textAtOffset(*start - 1, boundary, start, end);
    }

    [[nodiscard]] QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                          int* start, int* end) const override {
        static_cast<void>(textAtOffset(offset, boundary, start, end));
        return *end == characterCount() ? nothing(start, end)
                                        : textAtOffset(*end, boundary, start, end);
    }

private:
    struct Columns {
        int from;
        int to;
    };

    [[nodiscard]] const LogText& content() const { return view_.text(); }

    static QString nothing(int* start, int* end) {
        *start = -1;
        *end = -1;
        return {};
    }

    /// The unit of text at `place`, within its line and the line feed after it.
    [[nodiscard]] Columns around(LogText::Place place,
                                 QAccessible::TextBoundaryType boundary) const {
        const QString line =
            (content().lineCount() == 0 ? QString() : content().line(place.line)) + '\n';
        const auto whole = static_cast<int>(line.size());
        if (boundary != QAccessible::CharBoundary && boundary != QAccessible::WordBoundary) {
            return {0, whole};
        }
        QTextBoundaryFinder finder(boundary == QAccessible::WordBoundary
                                       ? QTextBoundaryFinder::Word
                                       : QTextBoundaryFinder::Grapheme,
                                   line);
        finder.setPosition(place.column);
        const auto to = static_cast<int>(finder.toNextBoundary());
        const auto from = static_cast<int>(finder.toPreviousBoundary());
        return {std::max(from, 0), to < 0 ? whole : to};
    }

    LogView& view_;
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* const view = dynamic_cast<LogView*>(object);
    return view == nullptr ? nullptr : new AccessibleLog(*view);
}

} // namespace

void installAccessibleLog() {
    QAccessible::installFactory(interfaceFor);
}

} // namespace kelmar
