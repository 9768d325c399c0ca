#include "system/process/standard_streams.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/app_delegate.hpp"
#include "ui/texts.hpp"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <unistd.h>

// The one name that the module shows to the executable that loads it.
extern "C" __attribute__((visibility("default"))) void kelmarRunWindow();

namespace {

/// Until there is a window, what the toolkit has to say ends up in one line of ours. It has no
/// other way to report that there is no display than to end the program.
void untilThereIsAWindow(QtMsgType type, const QMessageLogContext& /*where*/,
                         const QString& /*message*/) {
    if (type == QtFatalMsg) {
        kelmar::printErrorLine(kelmar::Texts::noDisplay);
        ::_exit(2);
    }
}

/// Some desktops' plugins talk; nobody is there to listen.
void afterwards(QtMsgType type, const QMessageLogContext& /*where*/, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        kelmar::printErrorLine(kelmar::Texts::errorPrefix + message.toStdString());
    }
}

} // namespace

extern "C" void kelmarRunWindow() {
    // No argument is the toolkit's: "-style" and the like are not options of this program.
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
    // A folder may still be being measured, on a thread that knows nothing of this: leave it to
    // the system, instead of taking things down under it.
    std::fflush(nullptr);
    ::_exit(status);
}
