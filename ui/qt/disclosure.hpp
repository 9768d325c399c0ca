#pragma once

#include "ui/page.hpp"

#include <QPushButton>

namespace kelmar {

/// A text with a chevron that unfolds the content below it.
class Disclosure : public QPushButton {
public:
    explicit Disclosure(QWidget* parent = nullptr);

    void render(const Button& button, bool unfolded);

    [[nodiscard]] bool isUnfolded() const { return unfolded_; }

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool unfolded_ = false;
};

} // namespace kelmar
