// SPDX-License-Identifier: MIT
// Is the table of languages in step with the catalogues of every program, the glossaries and the
// man page?
#include "core/languages.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTest>
#include <algorithm>

namespace
{
const QString root = QStringLiteral(PROJECT_SOURCE_DIR "/");

/// Empty if it cannot be read.
QByteArray contentsOf(const QString &path)
{
    QFile file(root + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Their name and the folder of their catalogues, in the file that the build reads.
QList<QPair<QString, QString>> families()
{
    QList<QPair<QString, QString>> found;
    for (const QByteArray &line : contentsOf("cmake/catalogues.txt").split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (!line.startsWith('#') && words.size() > 2)
            found.append({words[0], words[1]});
    }
    return found;
}
} // namespace

class LanguageTableTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsDiffer();
    void everyLanguageHasACatalogue_data();
    void everyLanguageHasACatalogue();
    void everyCatalogueIsInTheTable_data();
    void everyCatalogueIsInTheTable();
    void everyFolderOfCataloguesIsAFamily();
    void everyLanguageHasAGlossary();
    void programsNameAllCodes();
};

void LanguageTableTest::rowsDiffer()
{
    QSet<QString> codes, locales, actions;
    for (const Language &language : languages) {
        codes.insert(language.code);
        locales.insert(language.locale);
        actions.insert(language.action);
        QVERIFY2(QString(language.locale).startsWith(QString(language.code).toLower() + '_'),
                 language.locale);
    }
    for (const auto &column : {codes, locales, actions})
        QCOMPARE(std::size_t(column.size()), languages.size());
}

void LanguageTableTest::everyLanguageHasACatalogue_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("attribute");
    for (const auto &[family, folder] : families()) {
        for (const Language &language : languages) {
            const QString name =
                cataloguePath(family, language).section('/', -1).section('.', 0, 0);
            const QString path = folder + '/' + name + ".ts";
            // The texts of the sources are English.
            if (&language == &languages.front() && !QFile::exists(root + path))
                continue;
            QTest::newRow(qPrintable(name))
                << path << QByteArray(" language=\"") + language.locale + '"';
        }
    }
}

void LanguageTableTest::everyLanguageHasACatalogue()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, attribute);
    QVERIFY2(contentsOf(path).contains(attribute), attribute);
}

void LanguageTableTest::everyCatalogueIsInTheTable_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("file");
    for (const auto &[family, folder] : families())
        for (const QString &file : QDir(root + folder).entryList({"*.ts"}))
            QTest::newRow(qPrintable(file)) << family << file;
}

void LanguageTableTest::everyCatalogueIsInTheTable()
{
    QFETCH(QString, family);
    QFETCH(QString, file);
    const QString compiled = ":/languages/" + file.section('.', 0, 0) + ".qm";
    QVERIFY(std::any_of(languages.begin(), languages.end(), [&](const Language &language) {
        return cataloguePath(family, language) == compiled;
    }));
}

void LanguageTableTest::everyFolderOfCataloguesIsAFamily()
{
    QStringList declared, found;
    for (const auto &[family, folder] : families())
        declared << folder;
    for (const QString &folder : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (!QDir(root + folder + "/languages").entryList({"*.ts"}).isEmpty())
            found << folder + "/languages";
    declared.sort();
    found.sort();
    QVERIFY(declared.size() >= 2);
    QCOMPARE(found, declared);
}

void LanguageTableTest::everyLanguageHasAGlossary()
{
    for (std::size_t i = 1; i < languages.size(); ++i) {
        const QString page =
            QString("docs/glossary/%1.md").arg(QString(languages[i].code).toLower());
        QVERIFY2(!contentsOf(page).isEmpty(), qPrintable(page));
    }
}

void LanguageTableTest::programsNameAllCodes()
{
    QCOMPARE(languageCodes(), QString("EN, ZH, JA, RU, FR, DE, ES, PT, IT or KO"));
    QVERIFY(contentsOf("packaging/man/quorvandel-mount.1").contains(languageCodes().toUtf8()));
}

QTEST_GUILESS_MAIN(LanguageTableTest)
#include "tst_languagetable.moc"
