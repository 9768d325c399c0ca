#pragma once

#include "ui/page.hpp"

#include <QLabel>

namespace kelmar {

/// A size at the trailing edge of its row, in tabular digits, so that a changing number does not
/// move.
class SizeLabel : public QLabel {
public:
    explicit SizeLabel(QWidget* parent = nullptr);

    void render(const SizeText& size);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kelmar
