#pragma once

#include "ui/page.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/window_actions.hpp"

#include <QPointer>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

namespace kelmar {

class ConfirmationOverlay;
class ContentWidget;
class FooterWidget;
class HeaderWidget;

/// Shows pages; updates only what differs from the previous page.
class PageWidget : public QWidget {
public:
    explicit PageWidget(WindowActions actions, QWidget* parent = nullptr);
    PageWidget(const PageWidget&) = delete;
    PageWidget& operator=(const PageWidget&) = delete;
    ~PageWidget() override;

    void render(const Page& page);

    /// Calls `observer` when a question appears and when it goes. One observer.
    void observeAsking(std::function<void(bool asking)> observer) { asking_ = std::move(observer); }

    /// The number of `render` calls that changed anything.
    [[nodiscard]] std::size_t changes() const { return changes_; }

    /// Returns true while a question is shown.
    [[nodiscard]] bool isAsking() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The focused widget, and the action of a focused button.
    struct Focus {
        QWidget* widget = nullptr; ///< may have been deleted
        std::optional<Action> action;

        friend bool operator==(const Focus&, const Focus&) = default;
    };

    [[nodiscard]] Focus focused() const;
    /// The button that `key` presses now; null if none.
    [[nodiscard]] PushButton* pressedBy(ButtonKey key) const;
    void press(ButtonKey key);
    void highlight();
    void renderAlert(const std::optional<Confirmation>& confirmation);
    void orderFocus();

    WindowActions actions_;
    QWidget* below_; ///< everything except the alert
    HeaderWidget* header_;
    ContentWidget* content_;
    FooterWidget* footer_;
    ConfirmationOverlay* alert_ = nullptr; ///< created for the first question
    QPointer<PushButton> highlighted_;
    std::optional<Page> shown_;
    std::function<void(bool)> asking_ = [](bool) {};
    std::size_t changes_ = 0;
};

} // namespace kelmar
