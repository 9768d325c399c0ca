#pragma once

#include "ui/page.hpp"
#include "ui/qt/row_list.hpp"

#include <QWidget>
#include <functional>
#include <string>

class QVBoxLayout;

namespace kelmar {

class CheckBox;
class SizeLabel;
class TextLabel;

/// Requests that one folder be selected or not.
using SelectFolder = std::function<void(const std::string& path, bool selected)>;

class FolderRowWidget : public QWidget {
public:
    explicit FolderRowWidget(const SelectFolder& select, QWidget* parent = nullptr);

    void render(const FolderRow& row);

    /// The width that its box and name need, and the width that they get: summaries form a column.
    [[nodiscard]] int nameWidth() const;
    void setNameWidth(int width);

private:
    std::string path_;
    CheckBox* check_;
    TextLabel* summary_;
    SizeLabel* size_;
};

/// The folders of one data root.
class FolderListWidget : public QWidget {
public:
    explicit FolderListWidget(SelectFolder select, QWidget* parent = nullptr);

    void render(const FolderList& list);

    /// The widest of its rows, and the width for all of them.
    [[nodiscard]] int nameWidth() const;
    void setNameWidth(int width);

private:
    SelectFolder select_;
    TextLabel* heading_;
    TextLabel* others_;
    QVBoxLayout* folders_;
    RowList<FolderRowWidget> rows_;
};

} // namespace kelmar
