#pragma once

#include "ui/page.hpp"
#include "ui/qt/row_list.hpp"
#include "ui/qt/section.hpp"

namespace kelmar {

class IconLabel;
class TextLabel;

class ProgressRowWidget : public QWidget {
public:
    explicit ProgressRowWidget(bool first, QWidget* parent = nullptr);

    void render(const ProgressRow& row);

private:
    IconLabel* icon_;
    TextLabel* title_;
};

/// The stages of a run, and below them the current step.
class ProgressSectionWidget : public Section {
public:
    explicit ProgressSectionWidget(QWidget* parent = nullptr);

    void render(const WorkingContent& content);

private:
    RowList<ProgressRowWidget> rows_;
    TextLabel* detail_;
};

} // namespace kelmar
