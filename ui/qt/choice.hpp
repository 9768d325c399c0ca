#pragma once

#include <QCheckBox>
#include <functional>

namespace kelmar {

/// A control that is on or off. Input by mouse, key or screen reader requests the other state and
/// changes nothing; only `setChecked` does, with the state from the page.
class Choice : public QCheckBox {
public:
    explicit Choice(QWidget* parent = nullptr);

    /// `request` receives the state that a person asks for.
    void onRequest(std::function<void(bool on)> request);

protected:
    /// The toolkit would change the state here, after a click of any kind.
    void nextCheckState() final;
    [[nodiscard]] bool hitButton(const QPoint& point) const override;

private:
    std::function<void(bool on)> request_ = [](bool /*on*/) {};
};

} // namespace kelmar
