// SPDX-License-Identifier: MIT
// What does every executable with windows do before its first one?
#pragma once

#include <QtGlobal>

class QApplication;

/// What must be said before the application object is made. Nothing is drawn with OpenGL: its
/// libraries are not even loaded.
void prepareApplication();

/// Makes the bundled resources known and gives the application the program's look.
void startWindows(QApplication &application);

/// Starts the program itself: the resources, the name of this run's log file, the messages' way,
/// the look.
/// @param handler null leaves Qt's own output
void startProgram(QApplication &application, QtMessageHandler handler);
