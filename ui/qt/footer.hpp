#pragma once

#include "ui/page.hpp"
#include "ui/qt/note_row.hpp"
#include "ui/qt/row_list.hpp"

#include <QWidget>
#include <functional>

class QBoxLayout;
class QVBoxLayout;

namespace kelmar {

class BusyRow;
class ButtonRow;

/// Notes or a spinner at the leading side, buttons at the trailing side; buttons go below the rest
/// if both do not fit side by side.
class FooterWidget : public QWidget {
public:
    explicit FooterWidget(const std::function<void(Action)>& perform, QWidget* parent = nullptr);

    void render(const Footer& footer);

    [[nodiscard]] ButtonRow& buttons() const { return *buttons_; }

private:
    /// The width of everything side by side, with each note on one line.
    [[nodiscard]] int neededWidth(const Footer& footer) const;

    QBoxLayout* row_;
    QVBoxLayout* noted_;
    RowList<NoteRow> notes_;
    BusyRow* busy_;
    ButtonRow* buttons_;
};

} // namespace kelmar
