// SPDX-License-Identifier: MIT
// How does the program get its look?
#pragma once

class QApplication;
class QString;

/// Gives the application the style sheet in `path`, up to its first NUL byte; a file that can not
/// be opened leaves it unstyled, without a word.
void applyStyleSheet(QApplication &application, const QString &path);
