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

/// Shows pages, each by changing what the one before it left different.
class PageWidget : public QWidget {
public:
    explicit PageWidget(WindowActions actions, QWidget* parent = nullptr);
    PageWidget(const PageWidget&) = delete;
    PageWidget& operator=(const PageWidget&) = delete;
    ~PageWidget() override;

    void render(const Page& page);

    /// `observer` is told when a question comes and when it goes. One observer.
    void observeAsking(std::function<void(bool asking)> observer) { asking_ = std::move(observer); }

    /// How often `render` has changed anything.
    [[nodiscard]] std::size_t changes() const { return changes_; }

    /// A question is laid over the page.
    [[nodiscard]] bool isAsking() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What has the focus, and what a button that has it stands for.
    struct Focus {
        QWidget* widget = nullptr; ///< may be gone by now
        std::optional<Action> action;

        friend bool operator==(const Focus&, const Focus&) = default;
    };

    [[nodiscard]] Focus focused() const;
    /// What `key` presses now; null if nothing.
    [[nodiscard]] PushButton* pressedBy(ButtonKey key) const;
    void press(ButtonKey key);
    void highlight();
    void renderAlert(const std::optional<Confirmation>& confirmation);
    void orderFocus();

    WindowActions actions_;
    QWidget* below_; ///< all but the alert
    HeaderWidget* header_;
    ContentWidget* content_;
    FooterWidget* footer_;
    ConfirmationOverlay* alert_ = nullptr; ///< made for the first question
    QPointer<PushButton> highlighted_;
    std::optional<Page> shown_;
    std::function<void(bool)> asking_ = [](bool) {};
    std::size_t changes_ = 0;
};

} // namespace kelmar
