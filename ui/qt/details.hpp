#pragma once

#include "ui/page.hpp"

#include <QWidget>
#include <functional>

namespace kelmar {

class Disclosure;
class LogView;

/// The log of a run behind a control that unfolds it.
class DetailsWidget : public QWidget {
public:
    explicit DetailsWidget(const std::function<void(Action)>& perform, QWidget* parent = nullptr);

    void render(const Details& details);

private:
    Disclosure* toggle_;
    QWidget* frame_;
    LogView* log_;
};

} // namespace kelmar
