#pragma once

#include "ui/page.hpp"
#include "ui/qt/folder_list_widget.hpp"
#include "ui/qt/section.hpp"

#include <functional>

namespace kelmar {

class PushButton;
class ToggleSwitch;

/// The choice of data: one switch for all, and the single folders below it.
class DataSectionWidget : public Section {
public:
    using DeleteAll = std::function<void(bool)>;
    using Perform = std::function<void(Action)>;

    DataSectionWidget(const DeleteAll& deleteAll, const SelectFolder& select,
                      const Perform& perform, QWidget* parent = nullptr);

    void render(const DataSection& section);

private:
    SelectFolder select_;
    TextLabel* label_;
    SizeLabel* total_;
    ToggleSwitch* switch_;
    TextLabel* line_;
    PushButton* folders_;
    QVBoxLayout* listed_;
    RowList<FolderListWidget> lists_;
};

} // namespace kelmar
