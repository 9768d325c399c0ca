#pragma once

#include "ui/page.hpp"

#include <QWidget>

namespace kelmar {

class NoteRow;

/// A notice above the content, on a tinted background.
class CalloutBox : public QWidget {
public:
    explicit CalloutBox(QWidget* parent = nullptr);

    void render(const Callout& callout);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    NoteRow* note_;
    Tint tint_ = Tint::orange;
};

} // namespace kelmar
