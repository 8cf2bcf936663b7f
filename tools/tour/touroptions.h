// SPDX-License-Identifier: MIT
// What can be asked of the tour, and what is refused?
#pragma once

#include <QString>

class QCommandLineParser;

void addTourOptions(QCommandLineParser &options);

/// What is wrong with options that were parsed, one line; empty = nothing. What the parser itself
/// does not know is not looked at.
QString tourOptionsFault(const QCommandLineParser &options);
