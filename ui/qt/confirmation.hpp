#pragma once

#include "ui/page.hpp"

#include <QPointer>
#include <QWidget>
#include <functional>

namespace kelmar {

class ButtonRow;
class TextLabel;

/// A question laid over the page, which stays in sight and out of reach below it. The window
/// itself can still be closed. The focus comes to the button that leads out, and goes back to
/// where it was.
class ConfirmationOverlay : public QWidget {
public:
    /// Covers `page`, which is enabled again when the question goes.
    ConfirmationOverlay(QWidget& page, std::function<void(Action)> perform, QWidget* parent);

    void render(const Confirmation& confirmation);
    void dismiss();

    [[nodiscard]] ButtonRow& buttons() const { return *buttons_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget& page_;
    QPointer<QWidget> focus_; ///< where the focus was
    TextLabel* title_;
    TextLabel* message_;
    ButtonRow* buttons_;
};

} // namespace kelmar
