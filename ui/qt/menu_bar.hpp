#pragma once

#include <QMenuBar>

namespace kelmar {

/// The window's menu bar, with one line below it on light and dark desktops and at every scale.
class MenuBar : public QMenuBar {
public:
    explicit MenuBar(QWidget* parent = nullptr);

    /// While the page asks something the bar is as dim as the page; it can be used all the same.
    void setDimmed(bool dimmed);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool dimmed_ = false;
};

} // namespace kelmar
