// SPDX-License-Identifier: MIT
// What does the program remember from one run to the next, and how is it written down?
#pragma once

#include <QString>

/// Everything that the settings file holds, with the values that hold without one. What the file
/// says is taken as it is: nothing is checked for its range.
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

/// Whether the settings can be written to `path`: neither its folder nor the file, if there is one,
/// keeps this user from it.
bool canWriteSettings(const QString &path);

/// Reads `path` into `settings`; a missing key gives its default, a text that is no number 0, one
/// that is no truth value false. Returns false, with `settings` untouched, where nothing exists at
/// `path`. A value that is one of the toolkit's serialised objects counts as missing, and what is
/// no file gives the defaults, each with a warning in the log. A large file takes no more memory
/// than a small one.
bool readSettings(const QString &path, Settings &settings);

/// Writes every key to `path`; numbers with 6 significant digits. Keys of others stay. A file that
/// can not be written is left as it is, without a message; so is what is no file. The file is
/// replaced at once: whenever the process is killed, the old or the new one is there whole. What
/// can not be read of a file, and one that is too large, is kept beside it first (see
/// settingsplace.h), with a warning in the log.
void writeSettings(const QString &path, const Settings &settings);
