// SPDX-License-Identifier: MIT
// Which languages are there, and which catalogue belongs to a language code?
#pragma once

#include <QString>
#include <array>

struct Language {
    const char *code;      ///< as the settings file spells it
    const char *action;    ///< object name of the menu action
    const char *catalogue; ///< resource path of the compiled catalogue
};

/// All ten, in the order of the language menu; English, the source language, comes first.
extern const std::array<Language, 10> languages;

/// The language of a code, told apart by case; English for every other text.
const Language &languageOf(const QString &code);
