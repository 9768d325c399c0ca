#include "ui/qt/menu.hpp"

#include "ui/qt/log_view.hpp"
#include "ui/qt/selectable_text.hpp"

#include <QApplication>
#include <QMenu>

namespace kelmar {

namespace {

/// The log view that has the focus; its selection is what can be copied.
LogView* focusedText() {
    return dynamic_cast<LogView*>(QApplication::focusWidget());
}

/// The selectable label of the page that has the focus.
SelectableText* focusedLabel() {
    return dynamic_cast<SelectableText*>(QApplication::focusWidget());
}

/// A Linux program has no control over other programs' windows, and the desktop itself restores a
/// hidden one.
bool isNeverAnswered(MenuAction action) {
    return action == MenuAction::hideOthers || action == MenuAction::showAll;
}

/// Returns true if something responds to the action now.
bool isAnswered(MenuAction action, const MenuActions& actions) {
    const LogView* const text = focusedText();
    const SelectableText* const label = focusedLabel();
    if (action == MenuAction::copy) {
        return (text != nullptr && text->hasSelection()) ||
               (label != nullptr && !label->selected().isEmpty());
    }
    if (action == MenuAction::selectAll) {
        return text != nullptr || label != nullptr;
    }
    return !isNeverAnswered(action) && actions.offers(action);
}

QKeySequence keys(const MenuItem& item) {
    if (item.key == 0) {
        return {};
    }
    const QString letter(QChar(QLatin1Char(item.key)).toUpper());
    return {(item.option ? "Ctrl+Alt+" : "Ctrl+") + letter};
}

void perform(MenuAction action, const MenuActions& actions) {
    if (!isAnswered(action, actions)) {
        return;
    }
    SelectableText* const label = focusedLabel();
    if (action == MenuAction::copy && label != nullptr) {
        label->copy();
    } else if (action == MenuAction::selectAll && label != nullptr) {
        label->selectAll();
    } else if (action == MenuAction::copy) {
        focusedText()->copy();
    } else if (action == MenuAction::selectAll) {
        focusedText()->selectAll();
    } else {
        actions.perform(action);
    }
}

QAction* add(QMenu& menu, const MenuItem& item, const MenuActions& actions) {
    QAction* const action = menu.addAction(QString::fromStdString(item.title));
    action->setShortcut(keys(item));
    action->setMenuRole(QAction::NoRole);
    const MenuAction kind = item.action;
    if (isNeverAnswered(kind)) {
        action->setEnabled(false);
        return action;
    }
    QObject::connect(action, &QAction::triggered, &menu,
                     [kind, actions] { perform(kind, actions); });
    // Disabled only while the menu is open: a shortcut must stay enabled to work later. Its key
    // does nothing if nothing responds.
    QObject::connect(&menu, &QMenu::aboutToShow, action,
                     [action, kind, actions] { action->setEnabled(isAnswered(kind, actions)); });
    QObject::connect(&menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
    return action;
}

/// Adds the open windows to the menu, as the Mac itself does.
void addWindow(QMenu& menu, QWidget& window) {
    menu.addSeparator();
    QAction* const action = menu.addAction(window.windowTitle());
    action->setCheckable(true);
    action->setChecked(true);
    QObject::connect(action, &QAction::triggered, &window, [action, &window] {
        action->setChecked(true);
        window.raise();
        window.activateWindow();
    });
}

} // namespace

void fillMenuBar(QMenuBar& bar, const std::vector<Menu>& menus, const MenuActions& actions) {
    for (const Menu& described : menus) {
        QMenu* const menu = bar.addMenu(QString::fromStdString(described.title));
        for (const std::optional<MenuItem>& item : described.items) {
            if (item) {
                add(*menu, *item, actions);
            } else {
                menu->addSeparator();
            }
        }
        if (described.listsWindows) {
            addWindow(*menu, *bar.window());
        }
    }
}

} // namespace kelmar
