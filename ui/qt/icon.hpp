#pragma once

#include "ui/page.hpp"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QLabel>
#include <string>

class QPainter;

namespace kelmar {

/// A symbol, a picture or a spinner. If its accessible name is empty, the icon is decorative and
/// hidden from screen readers. Its timer runs only while a spinner is visible.
class IconLabel : public QLabel {
public:
    /// Centres its content.
    IconLabel(int width, int height, QWidget* parent = nullptr);

    explicit IconLabel(int side, QWidget* parent = nullptr) : IconLabel(side, side, parent) {}

    void showSymbol(const std::string& name, Tint tint, int size);
    void showPicture(const std::string& name);
    void showSpinner(int size);

    [[nodiscard]] const std::string& shown() const { return name_; }

    [[nodiscard]] bool isTurning() const { return timer_.isActive(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    enum class Kind {
        nothing,
        symbol,
        picture,
        spinner,
    };

    void become(Kind kind, const std::string& name, Tint tint, int size);
    void turnWhileSeen();
    void paintSpinner(QPainter& painter) const;

    Kind kind_ = Kind::nothing;
    std::string name_;
    Tint tint_ = Tint::secondary;
    int size_ = 0;
    QBasicTimer timer_;
    QElapsedTimer turning_;
};

} // namespace kelmar
