#pragma once

#include <QMenuBar>

namespace kelmar {

/// The window's menu bar, with one line below it on light and dark desktops and at every scale.
class MenuBar : public QMenuBar {
public:
    explicit MenuBar(QWidget* parent = nullptr);

    /// Dims the bar like the page while the page asks a question; the bar stays usable.
    void setDimmed(bool dimmed);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool dimmed_ = false;
};

} // namespace kelmar
