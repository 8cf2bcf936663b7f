// SPDX-License-Identifier: MIT
// Which languages are available, and which catalogue belongs to a language code?
#pragma once

#include <QString>
#include <array>

struct Language {
    const char *code;      ///< as written in the settings file
    const char *action;    ///< object name of the menu action
    const char *catalogue; ///< resource path of the compiled catalogue
};

/// All ten, in the order of the language menu; English, the source language, comes first.
extern const std::array<Language, 10> languages;

/// The language with this code (case-sensitive); English for any other text.
const Language &languageOf(const QString &code);
