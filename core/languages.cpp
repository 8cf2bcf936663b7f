// SPDX-License-Identifier: MIT
// The table of the ten languages.
#include "core/languages.h"

#include <algorithm>

const std::array<Language, 10> languages{{
    {"EN", "actionEnglish", ":/languages/lan_en_us.qm"},
    {"ZH", "actionChinese", ":/languages/lan_zh_cn.qm"},
    {"JA", "actionJapanese", ":/languages/lan_ja_jp.qm"},
    {"RU", "actionRussian", ":/languages/lan_ru_ru.qm"},
    {"FR", "actionFrench", ":/languages/lan_fr_fr.qm"},
    {"DE", "actionGerman", ":/languages/lan_de_de.qm"},
    {"ES", "actionSpanish", ":/languages/lan_es_es.qm"},
    {"PT", "actionPortuguese", ":/languages/lan_pt_pt.qm"},
    {"IT", "actionItalian", ":/languages/lan_it_it.qm"},
    {"KO", "actionKorean", ":/languages/lan_ko_kr.qm"},
}};

const Language &languageOf(const QString &code)
{
    const auto found = std::find_if(languages.begin(), languages.end(), [&](const Language &l) {
        return code == QLatin1String(l.code);
    });
    return found != languages.end() ? *found : languages.front();
}
