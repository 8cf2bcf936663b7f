// SPDX-License-Identifier: MIT
// The entry point: log file name, style sheet, window, event loop.
#include "app/logging.h"
#include "app/stylesheet.h"
#include "app/terminationsignals.h"
#include "mainwindow/mainwindow.h"
#include "resources/resources.h"

#include <QApplication>
#include <QDateTime>

int main(int argc, char *argv[])
{
    // Nothing is drawn with OpenGL: its libraries are not even loaded.
    QApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    QApplication application(argc, argv);
    initialiseResources();
    prepareLogFile(QDateTime::currentDateTime());
    // Without a log file Qt's own output stays.
    qInstallMessageHandler(QUORVANDEL_FILE_LOG ? logMessageHandler : nullptr);
    applyStyleSheet(application, QStringLiteral(":/qss/default.qss"));
    MainWindow window;
    const TerminationSignals closing(window);
    window.show();
    return QApplication::exec();
}
