// SPDX-License-Identifier: MIT
// Does a foreign library let the program live when it is loaded?
#pragma once

class QByteArray;

/// Loads the library (a file's name, or one that the loader finds) in a copy of this process that
/// is thrown away; false if the copy crashed, ended or hung for ten seconds in the library's own
/// start. True says nothing about whether there is such a library. For the thread that loads it.
bool survivesLoading(const QByteArray &name);
