#pragma once

#include <QCheckBox>
#include <functional>

namespace kelmar {

/// A control that is on or off. Whatever a person does to it, by the mouse, by a key or through a
/// screen reader, asks for the other state and changes nothing: only `setChecked` does, with what
/// the page says.
class Choice : public QCheckBox {
public:
    explicit Choice(QWidget* parent = nullptr);

    /// `request` is told the state that a person asks for.
    void onRequest(std::function<void(bool on)> request);

protected:
    /// Where the toolkit would change the state, after a click of any kind.
    void nextCheckState() final;
    [[nodiscard]] bool hitButton(const QPoint& point) const override;

private:
    std::function<void(bool on)> request_ = [](bool /*on*/) {};
};

} // namespace kelmar
