#pragma once

#include "ui/page.hpp"

#include <QWidget>

namespace kelmar {

class TextLabel;

/// A spinner beside the words that say what it stands for.
class BusyRow : public QWidget {
public:
    explicit BusyRow(QWidget* parent = nullptr);

    void render(const Busy& busy);

private:
    TextLabel* text_;
};

} // namespace kelmar
