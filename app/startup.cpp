// SPDX-License-Identifier: MIT
// Runs the start-up steps in order.
#include "app/startup.h"

#include "app/logging.h"
#include "app/stylesheet.h"
#include "resources/resources.h"

#include <QApplication>
#include <QDateTime>
#include <algorithm>
#include <array>
#include <cstring>

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

bool asksForText(int argc, char *argv[])
{
    constexpr std::array<const char *, 5> texts{"--help", "-h", "--help-all", "--version", "-v"};
    return std::any_of(argv + 1, argv + argc, [&texts](const char *argument) {
        return std::any_of(texts.begin(), texts.end(), [argument](const char *text) {
            return std::strcmp(argument, text) == 0;
        });
    });
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
