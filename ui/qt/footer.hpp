#pragma once

#include "ui/page.hpp"
#include "ui/qt/note_row.hpp"
#include "ui/qt/row_list.hpp"

#include <QWidget>
#include <functional>

class QVBoxLayout;

namespace kelmar {

class BusyRow;
class ButtonRow;

/// Notes or a spinner on the leading side, buttons on the trailing one.
class FooterWidget : public QWidget {
public:
    explicit FooterWidget(const std::function<void(Action)>& perform, QWidget* parent = nullptr);

    void render(const Footer& footer);

    [[nodiscard]] ButtonRow& buttons() const { return *buttons_; }

private:
    QVBoxLayout* leading_;
    RowList<NoteRow> notes_;
    BusyRow* busy_;
    ButtonRow* buttons_;
};

} // namespace kelmar
