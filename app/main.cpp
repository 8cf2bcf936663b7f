// SPDX-License-Identifier: MIT
// The entry point: start-up, window, event loop.
#include "app/logging.h"
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <QDateTime>
#include <cstdlib>
#include <optional>

namespace
{
/// The present date for `--angles-of-date`, as UTC since 1970.
std::optional<double> dateOfAngles()
{
    if (!QCoreApplication::arguments().contains(QStringLiteral("--angles-of-date")))
        return {};
    return double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}
} // namespace

int main(int argc, char *argv[])
{
    prepareApplication();
    QApplication application(argc, argv);
    // Without a log file Qt's own output stays.
    startProgram(application, QUORVANDEL_FILE_LOG ? logMessageHandler : nullptr);
    MainWindow window(nullptr, dateOfAngles());
    const TerminationSignals closing(window);
    window.show();
    const int status = QApplication::exec();
    // A thread inside a library that does not return can neither be ended nor outlive its objects.
    if (!window.captureEnds())
        std::_Exit(status);
    return status;
}
