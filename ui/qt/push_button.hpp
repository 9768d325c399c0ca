#pragma once

#include "ui/look.hpp"
#include "ui/page.hpp"

#include <QPushButton>

namespace kelmar {

/// A button of the page. Return never presses it by the focus alone: the window gives Return to
/// the page's default button, wherever the focus is.
class PushButton : public QPushButton {
public:
    enum class Size {
        regular,
        large,
    };

    explicit PushButton(Size size, QWidget* parent = nullptr);

    void render(const Button& button);

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
};

} // namespace kelmar
