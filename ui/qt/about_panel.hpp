#pragma once

#include <QDialog>

namespace kelmar {

/// The program's name and version, in a small window that is not modal.
class AboutPanel : public QDialog {
public:
    explicit AboutPanel(QWidget* parent);
};

} // namespace kelmar
