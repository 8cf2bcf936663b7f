// SPDX-License-Identifier: MIT
// What does the command line ask of the assistant?
#pragma once

#include "assistant/settings.h"

#include <QStringList>

namespace assistantapp
{
struct Options {
    bool connects = false; ///< connect at once
    bool maximized = false;
    std::optional<astrometry::Site> site;
    QString language; ///< a code; empty: as in the settings
    QString fault;    ///< why the command line cannot be used; empty: it can
};

/// @param arguments without the program's name, and without --camera (camera/cameraoption.h)
Options parse(const QStringList &arguments);

QString usage();

/// What `--help` or `--version` print, on a screen or without one; empty if neither is among the
/// arguments.
QString printedFor(const QStringList &arguments);
} // namespace assistantapp
