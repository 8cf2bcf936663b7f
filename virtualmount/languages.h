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
/// The first of a user's languages, such as "de-AT", that there is; English if there is none.
const Language &bestLanguage(const QStringList &userLanguages);
/// Lets the program speak a language from here on. To be called before there is a window.
/// \return false if the catalogue is not there
bool installTranslator(const Language &language);
/// Speaks the language of a code and writes numbers as it does; for an empty code the system's.
/// \return false for a code that there is not
bool installRequestedLanguage(const QString &code);
} // namespace virtualmount
