// SPDX-License-Identifier: MIT
// Does loading a third-party library crash or block the program?
#pragma once

class QByteArray;

/// Loads the library (a path, or a name that the loader finds) in a forked copy of this process,
/// and unloads it there with its destructors and exit handlers, so that it gives back what it
/// holds: a lock file, for example. False if the copy crashed or exited in the library's
/// initialisation, or if it hung there for four seconds and a second copy for six; what happens as
/// it is unloaded does not count, and may take two seconds. True does not mean that the library
/// exists. Call it on the thread that then loads the library.
bool canLoadSafely(const QByteArray &name);
