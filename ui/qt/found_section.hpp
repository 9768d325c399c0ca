#pragma once

#include "ui/page.hpp"
#include "ui/qt/row_list.hpp"
#include "ui/qt/section.hpp"

namespace kelmar {

class IconLabel;
class TextLabel;

class FoundRowWidget : public QWidget {
public:
    /// The first row has no line above it.
    explicit FoundRowWidget(bool first, QWidget* parent = nullptr);

    void render(const FoundRow& row);

private:
    IconLabel* icon_;
    TextLabel* title_;
    TextLabel* detail_;
};

class FoundSectionWidget : public Section {
public:
    explicit FoundSectionWidget(QWidget* parent = nullptr);

    void render(const FoundSection& section);

private:
    RowList<FoundRowWidget> rows_;
};

} // namespace kelmar
