// SPDX-License-Identifier: MIT
// The choice of a language, and the active catalogue.
#include "core/languages.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

namespace
{
const Language *findLanguage(const QString &code, Qt::CaseSensitivity sensitivity)
{
    const auto found = std::find_if(languages.begin(), languages.end(), [&](const Language &l) {
        return code.compare(QLatin1String(l.code), sensitivity) == 0;
    });
    return found != languages.end() ? &*found : nullptr;
}
} // namespace

const Language &languageOf(const QString &code)
{
    const Language *const language = findLanguage(code, Qt::CaseSensitive);
    return language ? *language : languages.front();
}

const Language *findLanguage(const QString &code)
{
    return findLanguage(code, Qt::CaseInsensitive);
}

const Language &bestLanguage(const QStringList &userLanguages)
{
    for (const QString &name : userLanguages) {
        const QString code = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
        if (const Language *const language = findLanguage(code))
            return *language;
    }
    return languages.front();
}

QString languageCodes()
{
    QStringList codes;
    for (const Language &language : languages)
        codes.append(QLatin1String(language.code));
    const QString last = codes.takeLast();
    return codes.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

QString cataloguePath(const QString &family, const Language &language)
{
    return QStringLiteral(":/languages/%1_%2.qm")
        .arg(family, QString::fromLatin1(language.locale).toLower());
}

bool loadCatalogue(QTranslator &translator, const QString &family, const Language &language)
{
    const QString path = cataloguePath(family, language);
    const QString none = QStringLiteral("");
    // Tried separately first: a failed load would clear the active translator.
    return QTranslator().load(path, none, none, none) && translator.load(path, none, none, none);
}

bool installTranslator(const QString &family, const Language &language)
{
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    if (&language == &languages.front() && !QFile::exists(cataloguePath(family, language)))
        return true;
    return loadCatalogue(translator, family, language) &&
           QCoreApplication::installTranslator(&translator);
}

bool installRequestedLanguage(const QString &family, const QString &code)
{
    if (code.isEmpty())
        return installTranslator(family, bestLanguage(QLocale::system().uiLanguages()));
    const Language *const language = findLanguage(code);
    if (!language)
        return false;
    QLocale::setDefault(QLocale(QLatin1String(language->locale)));
    return installTranslator(family, *language);
}
