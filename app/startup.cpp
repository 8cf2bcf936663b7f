// SPDX-License-Identifier: MIT
// Runs the start-up steps in order.
#include "app/startup.h"

#include "app/logging.h"
#include "app/stylesheet.h"
#include "resources/resources.h"

#include <QApplication>
#include <QDateTime>

namespace
{
void applyBundledStyleSheet(QApplication &application)
{
    applyStyleSheet(application, QStringLiteral(":/qss/default.qss"));
}
} // namespace

void prepareApplication()
{
    QApplication::setAttribute(Qt::AA_ForceRasterWidgets);
}

void startWindows(QApplication &application)
{
    initialiseResources();
    applyBundledStyleSheet(application);
}

void startProgram(QApplication &application, QtMessageHandler handler)
{
    initialiseResources();
    prepareLogFile(QDateTime::currentDateTime());
    qInstallMessageHandler(handler);
    applyBundledStyleSheet(application);
}
