#pragma once

#include <QDialog>

namespace kelmar {

/// The program's name and version, in a small window of its own that is in nobody's way.
class AboutPanel : public QDialog {
public:
    explicit AboutPanel(QWidget* parent);
};

} // namespace kelmar
