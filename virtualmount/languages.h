// SPDX-License-Identifier: MIT
// Which languages does the virtual mount support, and which one is requested?
#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace virtualmount
{
struct Language {
    const char *code;      ///< as on the command line
    const char *locale;    ///< as QLocale expects it
    const char *catalogue; ///< resource path of the compiled catalogue; empty for the source texts
};

/// All ten; English, the source language, comes first.
extern const std::array<Language, 10> languages;

/// The language of a code, case-insensitive; nullptr for any other text.
const Language *languageOf(const QString &code);
/// The first supported language of a user's list, such as "de-AT"; English if there is none.
const Language &languageAmong(const QStringList &userLanguages);
/// Activates a language. Call it before creating a window.
/// \return false if the catalogue is missing
bool speak(const Language &language);
/// Activates the language of a code and its number format; an empty code means the system's
/// language.
/// \return false for an unknown code
bool speakAsAsked(const QString &code);
} // namespace virtualmount
