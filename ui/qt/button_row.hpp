#pragma once

#include "ui/page.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/row_list.hpp"

#include <QHBoxLayout>
#include <functional>
#include <vector>

namespace kelmar {

/// The buttons of the footer or of an alert, in a row.
class ButtonRow : public QWidget {
public:
    /// Places the buttons in a row, or one below the other if they don't fit into `room`.
    ButtonRow(std::function<void(Action)> perform, int room, QWidget* parent = nullptr);

    void render(const std::vector<Button>& buttons);

    /// The enabled button for `key`; null if there is none.
    [[nodiscard]] PushButton* pressedBy(ButtonKey key) const;

    /// The button that cancels, else the last one.
    [[nodiscard]] PushButton* safest() const;

private:
    std::function<void(Action)> perform_;
    int room_;
    RowList<PushButton> buttons_;
};

} // namespace kelmar
