// SPDX-License-Identifier: MIT
// What does every executable with windows do before it opens one?
#pragma once

#include <QtGlobal>

class QApplication;

/// Sets what must be set before the application object is created. Nothing is drawn with OpenGL, so
/// its libraries are not loaded.
void prepareApplication();

/// Whether `--help` or `--version` is all that is asked for, which needs no screen: then the
/// options are processed with a QCoreApplication.
bool asksForText(int argc, char *argv[]);

/// Registers the bundled resources and applies the program's style sheet.
void startWindows(QApplication &application);

/// Sets up the program itself: the resources, the name of this run's log file, the message handler,
/// the style sheet.
/// @param handler null keeps Qt's own output
void startProgram(QApplication &application, QtMessageHandler handler);
