#include "system/process/standard_streams.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/app_delegate.hpp"
#include "ui/texts.hpp"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <unistd.h>

// The only symbol that the module exports to the executable that loads it.
extern "C" __attribute__((visibility("default"))) void kelmarRunWindow();

namespace {

/// While the application is constructed, a fatal message becomes one line of ours. Without a
/// display the toolkit ends the program and reports it in no other way.
void untilThereIsAWindow(QtMsgType type, const QMessageLogContext& /*where*/,
                         const QString& /*message*/) {
    if (type == QtFatalMsg) {
        kelmar::printErrorLine(kelmar::Texts::noDisplay);
        ::_exit(2);
    }
}

/// Prints errors only: some desktops' plugins print messages that nobody needs.
void afterwards(QtMsgType type, const QMessageLogContext& /*where*/, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        kelmar::printErrorLine(kelmar::Texts::errorPrefix + message.toStdString());
    }
}

} // namespace

extern "C" void kelmarRunWindow() {
    // Passes no arguments to the toolkit: "-style" and the like are not options of this program.
    int count = 1;
    char name[] = "kelmar-uninstaller";
    char* arguments[] = {name, nullptr};
    qInstallMessageHandler(untilThereIsAWindow);
    QApplication application(count, arguments);
    qInstallMessageHandler(afterwards);
    QApplication::setApplicationDisplayName(kelmar::Texts::program);
    QApplication::setDesktopFileName("kelmar-uninstaller");
    kelmar::installAccessibleRoles();
    kelmar::AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const int status = QApplication::exec();
    // A thread may still be measuring a folder: exit without destroying what it uses.
    std::fflush(nullptr);
    ::_exit(status);
}
