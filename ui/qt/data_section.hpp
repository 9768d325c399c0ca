#pragma once

#include "ui/page.hpp"
#include "ui/qt/folder_list.hpp"
#include "ui/qt/section.hpp"
#include "ui/window_actions.hpp"

namespace kelmar {

class PushButton;
class ToggleSwitch;

/// The choice of data: one switch for all, and the folders below it.
class DataSectionWidget : public Section {
public:
    explicit DataSectionWidget(WindowActions actions, QWidget* parent = nullptr);

    void render(const DataSection& section);

private:
    WindowActions actions_;
    TextLabel* label_;
    SizeLabel* total_;
    ToggleSwitch* switch_;
    TextLabel* line_;
    PushButton* folders_;
    QVBoxLayout* listed_;
    RowList<FolderListWidget> lists_;
};

} // namespace kelmar
