#pragma once

#include "ui/page.hpp"

#include <QWidget>

namespace kelmar {

class TextLabel;

/// A spinner beside its text.
class BusyRow : public QWidget {
public:
    explicit BusyRow(QWidget* parent = nullptr);

    void render(const Busy& busy);

private:
    TextLabel* text_;
};

} // namespace kelmar
