// SPDX-License-Identifier: MIT
// The entry point: start-up, window, event loop.
#include "app/logging.h"
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "camera/session.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <cstdlib>

int main(int argc, char *argv[])
{
    prepareApplication();
    QApplication application(argc, argv);
    // Without a log file, Qt's own output is kept.
    startProgram(application, QUORVANDEL_FILE_LOG ? logMessageHandler : nullptr);
    Session session;
    MainWindow window(session);
    const TerminationSignals closing(window);
    if (QApplication::arguments().contains(QLatin1String("--maximized")))
        window.showMaximized();
    else
        window.show();
    const int status = QApplication::exec();
    // A thread that hangs in a library can neither be ended nor outlive its objects.
    if (!window.stopCaptureAndWait())
        std::_Exit(status);
    return status;
}
