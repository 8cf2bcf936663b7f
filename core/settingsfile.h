// SPDX-License-Identifier: MIT
// What does the program remember from one run to the next, and how is it stored?
#pragma once

#include <QString>

/// Everything that the settings file holds, with the defaults. Values from the file are used as
/// they are, without a range check.
struct Settings {
    QString styleName = QStringLiteral("Color");  ///< "Color" or "Mono"
    QString languageCode = QStringLiteral("EN");  ///< two capital letters
    QString regionName = QStringLiteral("North"); ///< "North" or "South"
    float zoomFactor = 1.0F;                      ///< 1, 0.75 or 0.5
    float latitude = 39.9F;                       ///< degrees
    float longitude = 116.3F;                     ///< degrees
    float P = 101.0F;                             ///< air pressure in P_unit
    float T = 10.0F;                              ///< degrees Celsius
    bool enabledCorrect = false;                  ///< refraction correction on
    QString P_unit = QStringLiteral("kPa");       ///< "kPa" or "hPa"
    double axisX = 0.0;                           ///< the RA axis in frame pixels; 0, 0 = none
    double axisY = 0.0;
};

/// "Quorvandel.ini" in the folder of the executable, with native separators.
QString settingsFilePath();

/// Reads `path` into `settings`. A missing key gives its default, a text that is not a number gives
/// 0, and one that is not a truth value gives false. A value that is a serialised Qt object counts
/// as missing, and a path that is not a regular file, or cannot be read, gives the defaults; all
/// are logged as warnings. Returns false, with `settings` unchanged, if nothing exists at `path`. A
/// large file needs no more memory than a small one.
bool readSettings(const QString &path, Settings &settings);

/// Writes every key to `path`; numbers with 6 significant digits. Other keys are kept. The file is
/// replaced atomically: if the process is killed, either the old or the new file is complete. No
/// lock is taken: of two programs that save at the same time, the later one's file remains. Content
/// that cannot be read, and a file that is too large, are first kept beside it (see
/// settingsplace.h), with a warning in the log. False, with a warning that says why, if the file
/// cannot be written or is not a regular file: it is left unchanged.
bool writeSettings(const QString &path, const Settings &settings);
