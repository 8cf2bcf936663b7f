// SPDX-License-Identifier: MIT
// What does each language call itself?
#pragma once

#include <array>

namespace assistantwindow
{
struct LanguageName {
    const char *code; ///< as in the table of languages
    const char *name;
};

inline constexpr std::array<LanguageName, 10> languageNames{{{"EN", "English"},
                                                             {"ZH", "简体中文"},
                                                             {"JA", "日本語"},
                                                             {"RU", "Русский"},
                                                             {"FR", "Français"},
                                                             {"DE", "Deutsch"},
                                                             {"ES", "Español"},
                                                             {"PT", "Português"},
                                                             {"IT", "Italiano"},
                                                             {"KO", "한국어"}}};
} // namespace assistantwindow
