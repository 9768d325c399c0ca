// A minimal window with a line of text: the baseline for the program's own.

#include <QApplication>
#include <QLabel>

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    QWidget window;
    window.setFixedSize(600, 620);
    QLabel label("A bare window", &window);
    label.move(24, 40);
    window.show();
    return QApplication::exec();
}
