#pragma once

#include "ui/page.hpp"
#include "ui/qt/card.hpp"

#include <QWidget>

namespace kelmar {

class TextLabel;

/// A card, with a title above it if it has one.
class Section : public QWidget {
public:
    explicit Section(QWidget* parent = nullptr);

protected:
    void renderTitle(const SectionTitle& title);

    [[nodiscard]] TextLabel& title() const { return *title_; }

    [[nodiscard]] Card& card() { return *card_; }

    /// Below the card.
    [[nodiscard]] QVBoxLayout& column() { return *column_; }

private:
    QVBoxLayout* column_;
    TextLabel* title_;
    Card* card_;
};

} // namespace kelmar
