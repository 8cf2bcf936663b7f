// SPDX-License-Identifier: MIT
// Which options does the tour accept, and which are rejected?
#pragma once

#include <QString>

class QCommandLineParser;

void addTourOptions(QCommandLineParser &options);

/// What is wrong with parsed options, one line; empty = nothing. Options that the parser itself
/// does not know are not checked.
QString tourOptionsFault(const QCommandLineParser &options);
