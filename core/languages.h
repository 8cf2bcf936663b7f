// SPDX-License-Identifier: MIT
// Which languages are available, which one is requested, and how is its catalogue installed?
//
// Each program with a window has a family of catalogues, which its file names begin with: "lan" for
// quorvandel, "mount" for quorvandel-mount. In main(), where "DE" may be any code or empty:
//     Q_INIT_RESOURCE(mount_catalogues);
//     installRequestedLanguage("mount", "DE");
#pragma once

#include <QString>
#include <QStringList>
#include <array>

class QTranslator;

struct Language {
    const char *code;   ///< as written in the settings file and on the command line
    const char *locale; ///< as QLocale expects it; in lower case what a catalogue's name ends with
    const char *action; ///< object name of the menu action
};

/// All of them, in the order of the language menu; English, the source language, comes first. CMake
/// reads the locales from here too (cmake/Catalogues.cmake).
inline constexpr std::array languages{
    Language{"EN", "en_US", "actionEnglish"},  Language{"ZH", "zh_CN", "actionChinese"},
    Language{"JA", "ja_JP", "actionJapanese"}, Language{"RU", "ru_RU", "actionRussian"},
    Language{"FR", "fr_FR", "actionFrench"},   Language{"DE", "de_DE", "actionGerman"},
    Language{"ES", "es_ES", "actionSpanish"},  Language{"PT", "pt_PT", "actionPortuguese"},
    Language{"IT", "it_IT", "actionItalian"},  Language{"KO", "ko_KR", "actionKorean"},
};

/// The language with this code (case-sensitive); English for any other text.
const Language &languageOf(const QString &code);
/// The language with this code in small or capital letters; nullptr for any other text.
const Language *findLanguage(const QString &code);
/// The first of a user's languages, such as "de-AT", that is available; English if none is.
const Language &bestLanguage(const QStringList &userLanguages);
/// For help texts: "EN, ZH, ... or KO".
QString languageCodes();

/// The resource path of a compiled catalogue.
QString cataloguePath(const QString &family, const Language &language);
/// @return false if the catalogue is missing: then the translator keeps the one that it has
bool loadCatalogue(QTranslator &translator, const QString &family, const Language &language);
/// Installs the catalogue in place of the one installed before. To be called before there is a
/// window. In English, a family without an English catalogue shows the texts of the sources.
/// @return false if the catalogue is missing
bool installTranslator(const QString &family, const Language &language);
/// Installs the language with this code (any case) and its number format; for an empty code the
/// best of the system's languages.
/// @return false for an unknown code, or if the catalogue is missing
bool installRequestedLanguage(const QString &family, const QString &code);
