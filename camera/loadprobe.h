// SPDX-License-Identifier: MIT
// Does loading a third-party library crash or block the program?
#pragma once

class QByteArray;

/// Loads the library (a path, or a name that the loader finds) in a forked copy of this process.
/// False if the copy crashed, exited or hung for ten seconds in the library's initialisation. True
/// does not mean that the library exists. Call it on the thread that then loads the library.
bool canLoadSafely(const QByteArray &name);
