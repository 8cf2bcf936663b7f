// SPDX-License-Identifier: MIT
// Is every text of the assistant translated in every language, and are the plurals right?
#include "assistantwindow/guidance.h"
#include "assistantwindow/toolkittexts.h"
#include "core/languages.h"
#include "tests/support/catalogues.h"

#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QTest>
#include <QTranslator>

namespace
{
QString sourceFile(const Language &language)
{
    const QString name = QFileInfo(cataloguePath("assistant", language)).completeBaseName();
    return QStringLiteral(PROJECT_SOURCE_DIR "/assistantwindow/languages/%1.ts").arg(name);
}

bool isUniversal(const QString &source)
{
    static const QRegularExpression withoutWords(R"(^[^\p{L}]*$)");
    static const QSet<QString> units{"Ctrl", "%1 ms", "%1 s", "%1, %2"};
    return units.contains(source) || withoutWords.match(source).hasMatch();
}

/// Words that one language writes as English does.
const QMap<QString, QSet<QString>> &loanWords()
{
    static const QMap<QString, QSet<QString>> words{
        {"FR", {"Altitude", "1 minute", "%n minutes"}},
        {"PT", {"Altitude", "Shift"}},
        {"IT", {"Camera"}},
        {"ZH", {"Shift"}},
        {"JA", {"Shift"}},
        {"RU", {"Shift"}},
        {"KO", {"Shift"}},
    };
    return words;
}

void forEachLanguage()
{
    QTest::addColumn<int>("number");
    for (std::size_t i = 1; i < languages.size(); ++i)
        QTest::newRow(languages[i].code) << int(i);
}
} // namespace

class AssistantCataloguesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(assistant_catalogues); }
    void cleanup() { installTranslator("assistant", languages.front()); }
    void isComplete_data() { forEachLanguage(); }
    void isComplete();
    void isTranslated_data() { forEachLanguage(); }
    void isTranslated();
    void isCompiledIn_data() { forEachLanguage(); }
    void isCompiledIn();
    void saysPlurals_data();
    void saysPlurals();
};

void AssistantCataloguesTest::isComplete()
{
    QFETCH(int, number);
    const auto reference = messagesOf(sourceFile(languages.at(1)));
    const auto messages = messagesOf(sourceFile(languages.at(std::size_t(number))));
    QVERIFY(reference.size() > 110);
    QCOMPARE(messages.size(), reference.size());
    for (int i = 0; i < messages.size(); ++i) {
        const Message &m = messages[i];
        QCOMPARE(m.context, reference[i].context);
        QCOMPARE(m.source, reference[i].source);
        QCOMPARE(m.state, QString());
        QVERIFY2(!m.translation.trimmed().isEmpty(), qPrintable(m.source));
        // A plural repeats its placeholder in every form.
        const QStringList wanted = placeholdersIn(m.source), found = placeholdersIn(m.translation);
        QCOMPARE(QSet<QString>(found.begin(), found.end()),
                 QSet<QString>(wanted.begin(), wanted.end()));
        QVERIFY2(m.source.count('&') == m.translation.count('&'), qPrintable(m.translation));
    }
}

void AssistantCataloguesTest::isTranslated()
{
    QFETCH(int, number);
    const Language &language = languages.at(std::size_t(number));
    for (const Message &m : messagesOf(sourceFile(language))) {
        const bool maySame =
            isUniversal(m.source) || loanWords().value(language.code).contains(m.source);
        QVERIFY2(maySame || m.translation != m.source, qPrintable(m.source));
    }
}

void AssistantCataloguesTest::isCompiledIn()
{
    QFETCH(int, number);
    QTranslator translator;
    QVERIFY(translator.load(cataloguePath("assistant", languages.at(std::size_t(number)))));
    for (const ToolkitText &text : sharedToolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
    for (const ToolkitText &text : assistantwindow::toolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
    QVERIFY(!translator.translate("Stage", "Bolts").isEmpty());
}

void AssistantCataloguesTest::saysPlurals_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("said");
    QTest::newRow("English") << "EN" << 3 << "up, 3 minutes";
    QTest::newRow("English, one") << "EN" << 1 << "up, 1 minute";
    QTest::newRow("Russian, few") << "RU" << 3 << "вверх, 3 минуты";
    QTest::newRow("Russian, many") << "RU" << 25 << "вверх, 25 минут";
    QTest::newRow("Russian, twenty-one") << "RU" << 21 << "вверх, 21 минута";
    QTest::newRow("French") << "FR" << 2 << "haut, 2 minutes";
    QTest::newRow("Japanese") << "JA" << 2 << "上、2 分";
}

void AssistantCataloguesTest::saysPlurals()
{
    QFETCH(QString, language);
    QFETCH(int, minutes);
    QVERIFY(installTranslator("assistant", languageOf(language)));
    assistant::ErrorFigures error;
    error.total = {60.0 * minutes, 1.0};
    error.altitude = recognition::Measured{-60.0 * minutes, 1.0};
    error.azimuth = recognition::Measured{0.0, 1.0};
    QTEST(assistantwindow::spokenPhrase(error, 40.0, 20.0), "said");
}

QTEST_MAIN(AssistantCataloguesTest)
#include "tst_assistantcatalogues.moc"
