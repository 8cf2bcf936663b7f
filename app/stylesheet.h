// SPDX-License-Identifier: MIT
// How does the program get its style sheet?
#pragma once

class QApplication;
class QString;

/// Applies the style sheet in `path`, up to its first NUL byte. If the file cannot be opened, the
/// application stays unstyled, without a message.
void applyStyleSheet(QApplication &application, const QString &path);
