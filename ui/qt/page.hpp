#pragma once

#include "ui/page.hpp"
#include "ui/window_actions.hpp"

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

    void render(const Page& page);

    /// `observer` is told when a question comes and when it goes. One observer.
    void observeAsking(std::function<void(bool asking)> observer) { asking_ = std::move(observer); }

    /// How often `render` has changed anything.
    [[nodiscard]] std::size_t changes() const { return changes_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void press(ButtonKey key);
    void renderAlert(const std::optional<Confirmation>& confirmation);
    void orderFocus();

    WindowActions actions_;
    QWidget* below_; ///< all but the alert
    HeaderWidget* header_;
    ContentWidget* content_;
    FooterWidget* footer_;
    ConfirmationOverlay* alert_ = nullptr; ///< made for the first question
    std::optional<Page> shown_;
    std::function<void(bool)> asking_ = [](bool) {};
    std::size_t changes_ = 0;
};

} // namespace kelmar
