#pragma once

#include "ui/page.hpp"
#include "ui/qt/announcer.hpp"

#include <QWidget>

namespace kelmar {

class TextLabel;

/// The product's icon, the headline and the line below it.
class HeaderWidget : public QWidget {
public:
    explicit HeaderWidget(QWidget* parent = nullptr);

    void render(const Header& header);

    /// Makes screen readers announce `text` now.
    void announce(const std::string& text);

private:
    TextLabel* title_;
    TextLabel* subtitle_;
    Announcer announcer_;
};

} // namespace kelmar
