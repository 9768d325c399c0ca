#pragma once

#include "ui/page.hpp"

#include <QPointer>
#include <QWidget>
#include <functional>

namespace kelmar {

class ButtonRow;
class TextLabel;

/// A question over the page, which stays visible but disabled. The window itself can still be
/// closed. Focuses the button that cancels, and restores the focus afterwards.
class ConfirmationOverlay : public QWidget {
public:
    /// Covers `page` and disables it until the question is gone.
    ConfirmationOverlay(QWidget& page, std::function<void(Action)> perform, QWidget* parent);

    void render(const Confirmation& confirmation);
    void dismiss();

    [[nodiscard]] ButtonRow& buttons() const { return *buttons_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget& page_;
    QPointer<QWidget> focus_; ///< the previous focus
    TextLabel* title_;
    TextLabel* message_;
    ButtonRow* buttons_;
};

} // namespace kelmar
