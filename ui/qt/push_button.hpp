#pragma once

#include "ui/look.hpp"
#include "ui/page.hpp"

#include <QPushButton>

namespace kelmar {

/// A button of the page. It does not handle Return: the page decides what Return presses, and
/// highlights that button.
class PushButton : public QPushButton {
public:
    enum class Size {
        regular,
        large,
    };

    explicit PushButton(Size size, QWidget* parent = nullptr);

    void render(const Button& button);

    void setHighlighted(bool highlighted);

    [[nodiscard]] const Button& shown() const { return shown_; }

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] Look::Padding padding() const;
    [[nodiscard]] int textRoom() const;
    [[nodiscard]] bool wraps() const; ///< its text is wider than the button may be

    Size size_;
    Button shown_;
    bool highlighted_ = false;
};

} // namespace kelmar
