#include "ui/qt/accessibility.hpp"

#include <gtest/gtest.h>

#include <QApplication>

/// Widgets need an application, and no screen: the toolkit draws into memory.
int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    kelmar::installAccessibleRoles();
    return RUN_ALL_TESTS();
}
