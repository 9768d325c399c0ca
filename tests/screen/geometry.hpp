#pragma once

namespace kelmar::test {

/// In pixels from the top left corner of the screen.
struct Point {
    int x = 0;
    int y = 0;
};

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] Point centre() const { return {x + width / 2, y + height / 2}; }

    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

} // namespace kelmar::test
