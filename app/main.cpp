// SPDX-License-Identifier: MIT
// The entry point: start-up, window, event loop.
#include "app/logging.h"
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "camera/cameraoption.h"
#include "camera/session.h"
#include "core/settingsfile.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <QDateTime>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace
{
/// Milliseconds after a signal: for a camera library that does not return from its call, and for a
/// save that is under way in a thread that does not respond.
constexpr int closingTimeout = 2000;
constexpr int lastSaveTimeout = 500;

/// The present date for `--angles-of-date`, as UTC since 1970.
std::optional<double> dateOfAngles()
{
    if (!QCoreApplication::arguments().contains(QStringLiteral("--angles-of-date")))
        return {};
    return double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

constexpr char usage[] =
    "usage: quorvandel [--camera ADDRESS] [--maximized] [--angles-of-date] [--help]\n";
constexpr char options[] =
    "  --maximized       fill the screen from the start\n"
    "  --angles-of-date  compute the template stars' angles for the present date,\n"
    "                    instead of using the built-in table\n"
    "  --help            print this and exit\n";

int printHelp()
{
    const bool printed = std::fputs(usage, stdout) >= 0 &&
                         std::fputs(cameraOptionHelp, stdout) >= 0 &&
                         std::fputs(options, stdout) >= 0;
    return printed ? EXIT_SUCCESS : EXIT_FAILURE;
}

constexpr int misuse = 2; // exit status for a bad option
} // namespace

int main(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--help") == 0)
            return printHelp();
    if (!takeCameraOption(argc, argv))
        return misuse;
    prepareApplication();
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("example.quorvandel.quorvandel"));
    // Without a log file, Qt's own output is kept.
    startProgram(application, QUORVANDEL_FILE_LOG ? logMessageHandler : nullptr);
    Session session;
    // Before the window, which calls the camera library as it is built.
    TerminationSignals termination([&session, path = settingsFilePath()] {
        session.latestSettings.save(path, lastSaveTimeout);
    });
    MainWindow window(session, nullptr, dateOfAngles());
    termination.closeWindow(window, [&window] { window.hurry(closingTimeout); });
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
