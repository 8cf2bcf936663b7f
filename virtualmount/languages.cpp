// SPDX-License-Identifier: MIT
// The table of the ten languages, and the active catalogue.
#include "virtualmount/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

// Q_INIT_RESOURCE must be used in the global namespace.
static void initialiseCatalogues()
{
    Q_INIT_RESOURCE(mountlanguages);
}

namespace virtualmount
{
const std::array<Language, 10> languages{{
    {"EN", "en_US", ""},
    {"ZH", "zh_CN", ":/mount/mount_zh_cn.qm"},
    {"JA", "ja_JP", ":/mount/mount_ja.qm"},
    {"RU", "ru_RU", ":/mount/mount_ru.qm"},
    {"FR", "fr_FR", ":/mount/mount_fr.qm"},
    {"DE", "de_DE", ":/mount/mount_de.qm"},
    {"ES", "es_ES", ":/mount/mount_es.qm"},
    {"PT", "pt_PT", ":/mount/mount_pt.qm"},
    {"IT", "it_IT", ":/mount/mount_it.qm"},
    {"KO", "ko_KR", ":/mount/mount_ko.qm"},
}};

const Language *languageOf(const QString &code)
{
    const auto found = std::find_if(languages.begin(), languages.end(), [&](const Language &l) {
        return code.compare(QLatin1String(l.code), Qt::CaseInsensitive) == 0;
    });
    return found != languages.end() ? &*found : nullptr;
}

const Language &bestLanguage(const QStringList &userLanguages)
{
    for (const QString &name : userLanguages) {
        const QString code = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
        if (const Language *const language = languageOf(code))
            return *language;
    }
    return languages.front();
}

bool installTranslator(const Language &language)
{
    initialiseCatalogues();
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    if (*language.catalogue == '\0')
        return true;
    const QString none = QStringLiteral("");
    return translator.load(QLatin1String(language.catalogue), none, none, none) &&
           QCoreApplication::installTranslator(&translator);
}

bool installRequestedLanguage(const QString &code)
{
    if (code.isEmpty())
        return installTranslator(bestLanguage(QLocale::system().uiLanguages()));
    const Language *const language = languageOf(code);
    if (!language)
        return false;
    QLocale::setDefault(QLocale(QLatin1String(language->locale)));
    return installTranslator(*language);
}
} // namespace virtualmount
