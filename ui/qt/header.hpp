#pragma once

#include "ui/page.hpp"

#include <QWidget>

namespace kelmar {

class TextLabel;

/// The product's icon, the headline and the line below it.
class HeaderWidget : public QWidget {
public:
    explicit HeaderWidget(QWidget* parent = nullptr);

    /// With `announced`, screen readers are told the headline.
    void render(const Header& header, bool announced);

private:
    TextLabel* title_;
    TextLabel* subtitle_;
    QWidget* announcer_;
};

} // namespace kelmar
