// SPDX-License-Identifier: MIT
// Is every text present in every language, finished, with its placeholders, and really translated?
#include "core/languages.h"
#include "mainwindow/toolkittexts.h"
#include "resources/resources.h"
#include "tests/support/catalogues.h"

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <algorithm>

namespace
{
QString sourceFile(const Language &language)
{
    const QString name = QFileInfo(cataloguePath("lan", language)).completeBaseName();
    return QStringLiteral(PROJECT_SOURCE_DIR "/resources/languages/%1.ts").arg(name);
}

/// Texts that are the same in every language: names, numbers, signs, formulas.
bool isUniversal(const QString &source)
{
    static const QRegularExpression withoutWords(R"(^[^\p{L}]*$)");
    static const QSet<QString> names{"Quorvandel",
                                     "English",
                                     "简体中文",
                                     "日本語",
                                     "русский",
                                     "français",
                                     "Deutsch",
                                     "Español",
                                     "português",
                                     "italiano",
                                     "한국어",
                                     "P(kPa)",
                                     "P(hPa)",
                                     "T(℃)",
                                     "OK",
                                     "Ctrl",
                                     "Quorvandel V1.3.2.6, release 2016-08-10"};
    return names.contains(source) || withoutWords.match(source).hasMatch() ||
           source.startsWith("<html>");
}

/// Words that one language writes as English does.
const QMap<QString, QSet<QString>> &loanWords()
{
    static const QMap<QString, QSet<QString>> words{
        {"DE", {"Gain", "Traffic", "Position:", "Zoom", "Name", "Computer"}},
        {"FR", {"Latitude", "Longitude", "Gain", "Zoom", "Question", "Position:", "Type"}},
        {"ES", {"Zoom", "Error", "&No"}},
        {"PT", {"Zoom", "Latitude", "Longitude", "Shift"}},
        {"IT", {"File", "Zoom", "Computer", "&No"}},
        {"ZH", {"Shift"}},
        {"JA", {"Shift"}},
        {"RU", {"Shift"}},
        {"KO", {"Shift"}},
    };
    return words;
}
} // namespace

class CataloguesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void isComplete_data();
    void isComplete();
    void keepsPlaceholders_data() { isComplete_data(); }
    void keepsPlaceholders();
    void keepsMnemonics_data() { isComplete_data(); }
    void keepsMnemonics();
    void isTranslated_data() { isComplete_data(); }
    void isTranslated();
    void isCompiledIn_data() { isComplete_data(); }
    void isCompiledIn();
    void hasTheToolkitsTexts_data() { isComplete_data(); }
    void hasTheToolkitsTexts();
};

void CataloguesTest::isComplete_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < languages.size(); ++i)
        QTest::newRow(languages[i].code) << int(i);
}

void CataloguesTest::isComplete()
{
    QFETCH(int, number);
    const auto english = messagesOf(sourceFile(languages.front()));
    const auto messages = messagesOf(sourceFile(languages.at(std::size_t(number))));
    QVERIFY(english.size() > 150);
    QCOMPARE(messages.size(), english.size());
    for (int i = 0; i < messages.size(); ++i) {
        QCOMPARE(messages[i].context, english[i].context);
        QCOMPARE(messages[i].source, english[i].source);
        QCOMPARE(messages[i].state, QString());
        QVERIFY2(!messages[i].translation.trimmed().isEmpty(), qPrintable(messages[i].source));
    }
}

void CataloguesTest::keepsPlaceholders()
{
    QFETCH(int, number);
    for (const Message &m : messagesOf(sourceFile(languages.at(std::size_t(number)))))
        QVERIFY2(placeholdersIn(m.source) == placeholdersIn(m.translation), qPrintable(m.source));
}

/// As many ampersands as the source has: none in our own texts, one in some of the toolkit's.
void CataloguesTest::keepsMnemonics()
{
    QFETCH(int, number);
    for (const Message &m : messagesOf(sourceFile(languages.at(std::size_t(number)))))
        QVERIFY2(m.source.count('&') == m.translation.count('&'), qPrintable(m.translation));
}

void CataloguesTest::isTranslated()
{
    QFETCH(int, number);
    const Language &language = languages.at(std::size_t(number));
    const bool isEnglish = number == 0;
    for (const Message &m : messagesOf(sourceFile(language))) {
        if (isEnglish) {
            QCOMPARE(m.translation, m.source);
            continue;
        }
        const bool maySame =
            isUniversal(m.source) || loanWords().value(language.code).contains(m.source);
        QVERIFY2(maySame || m.translation != m.source, qPrintable(m.source));
    }
}

void CataloguesTest::isCompiledIn()
{
    QFETCH(int, number);
    QTranslator translator;
    QVERIFY(translator.load(cataloguePath("lan", languages.at(std::size_t(number)))));
    QVERIFY(!translator.isEmpty());
}

void CataloguesTest::hasTheToolkitsTexts()
{
    QFETCH(int, number);
    QTranslator translator;
    QVERIFY(translator.load(cataloguePath("lan", languages.at(std::size_t(number)))));
    for (const ToolkitText &text : sharedToolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
    for (const ToolkitText &text : toolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
}

QTEST_MAIN(CataloguesTest)
#include "tst_catalogues.moc"
