// SPDX-License-Identifier: MIT
// Is every text of the virtual mount present in every language, and is the right language chosen?
#include "core/languages.h"
#include "tests/support/catalogues.h"
#include "virtualcamera/skyfile.h"
#include "virtualmount/faulttexts.h"
#include "virtualmount/toolkittexts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <cerrno>
#include <set>

using virtualsky::SkyFaultCode;

namespace
{
QString sourceFile(const Language &language)
{
    const QString name = QFileInfo(cataloguePath("mount", language)).completeBaseName();
    return QStringLiteral(PROJECT_SOURCE_DIR "/virtualmount/languages/%1.ts").arg(name);
}

/// Texts that are the same in every language: numbers, signs, and keys as they are labelled.
bool isUniversal(const QString &source)
{
    static const QRegularExpression withoutWords(R"(^[^\p{L}]*$)");
    return source == "Ctrl" || withoutWords.match(source).hasMatch();
}

/// Words that one language writes as English does.
const QMap<QString, QSet<QString>> &loanWords()
{
    static const QMap<QString, QSet<QString>> words{
        {"ZH", {"Shift"}},
        {"JA", {"Shift"}},
        {"RU", {"Shift"}},
        {"KO", {"Shift"}},
        {"FR", {"&Home", "&Latitude", "L&ongitude", "&Date"}},
        {"DE", {"&Home", "◀ West", "West ▶", "West", "%1 West", "&Seeing"}},
        {"ES", {"&Home"}},
        {"PT", {"&Home", "&Latitude", "L&ongitude", "Shift"}},
        {"IT", {"&Home", "Camera"}},
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

class MountCataloguesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(mount_catalogues); }
    void init() { QVERIFY(installTranslator("mount", languages.front())); }
    void isComplete_data() { forEachLanguage(); }
    void isComplete();
    void keepsPlaceholders_data() { forEachLanguage(); }
    void keepsPlaceholders();
    void isTranslated_data() { forEachLanguage(); }
    void isTranslated();
    void isCompiledIn_data() { forEachLanguage(); }
    void isCompiledIn();
    void saysFaults_data() { forEachLanguage(); }
    void saysFaults();
    void saysWhyAFileCannotBeRead_data();
    void saysWhyAFileCannotBeRead();
    void keepsTheFilesWords_data();
    void keepsTheFilesWords();
    void followsTheUsersLanguages_data();
    void followsTheUsersLanguages();
    void followsTheOption_data();
    void followsTheOption();
    void unknownOptionsAreRefused();
};

void MountCataloguesTest::isComplete()
{
    QFETCH(int, number);
    const auto reference = messagesOf(sourceFile(languages.at(1)));
    const auto messages = messagesOf(sourceFile(languages.at(std::size_t(number))));
    QVERIFY(reference.size() > 110);
    QCOMPARE(messages.size(), reference.size());
    for (int i = 0; i < messages.size(); ++i) {
        QCOMPARE(messages[i].context, reference[i].context);
        QCOMPARE(messages[i].source, reference[i].source);
        QCOMPARE(messages[i].state, QString());
        QVERIFY2(!messages[i].translation.trimmed().isEmpty(), qPrintable(messages[i].source));
    }
}

/// Also underlined letters and line ends.
void MountCataloguesTest::keepsPlaceholders()
{
    QFETCH(int, number);
    for (const Message &m : messagesOf(sourceFile(languages.at(std::size_t(number))))) {
        QVERIFY2(placeholdersIn(m.source) == placeholdersIn(m.translation), qPrintable(m.source));
        for (const char sign : {'&', '\n'})
            QVERIFY2(m.source.count(sign) == m.translation.count(sign), qPrintable(m.translation));
    }
}

void MountCataloguesTest::isTranslated()
{
    QFETCH(int, number);
    const Language &language = languages.at(std::size_t(number));
    for (const Message &m : messagesOf(sourceFile(language))) {
        const bool maySame =
            isUniversal(m.source) || loanWords().value(language.code).contains(m.source);
        QVERIFY2(maySame || m.translation != m.source, qPrintable(m.source));
    }
}

void MountCataloguesTest::isCompiledIn()
{
    QFETCH(int, number);
    const Language &language = languages.at(std::size_t(number));
    QVERIFY(installTranslator("mount", language));
    const auto messages = messagesOf(sourceFile(language));
    QVERIFY(!messages.isEmpty());
    for (const Message &m : messages)
        QCOMPARE(QCoreApplication::translate(m.context.toUtf8(), m.source.toUtf8()), m.translation);
    QTranslator translator;
    QVERIFY(translator.load(cataloguePath("mount", language)));
    for (const ToolkitText &text : sharedToolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
    for (const ToolkitText &text : virtualmount::toolkitTexts)
        QVERIFY2(!translator.translate(text.context, text.text).isEmpty(), text.text);
}

/// Every kind of fault that the sky file's reader reports is translated, and in English it says
/// what the camera's log says, which cuts sentences about values.
void MountCataloguesTest::saysFaults()
{
    QFETCH(int, number);
    std::set<SkyFaultCode> said;
    for (const char *const text :
         {"", "[site]", "[site\n", "[nowhere]\n", "[site]\nlatitude\n", "latitude = 1\n",
          "[site]\nheight = 1\n", "[site]\nlatitude = 1\nlatitude = 1\n", "[site]\nlatitude = 91\n",
          "[mount]\ntracking = yes\n", "[faults]\npicture = blue\n",
          "[faults]\nfail = everything\n", "[time]\ndate = today\n", "[faults]\ncameras = one\n",
          "[site]\nlatitude = far\n", "[camera]\nchannels = 2\n"}) {
        try {
            virtualsky::parse(text);
        } catch (const virtualsky::SkyFileError &error) {
            const QString log = error.what();
            QVERIFY(installTranslator("mount", languages.front()));
            const QString english = virtualmount::faultText(error);
            QVERIFY2(english.startsWith(log), qPrintable(english));
            QVERIFY2(english == log || log.endsWith("like 2026-11-20T20:0"), qPrintable(english));
            QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
            const QString translated = virtualmount::faultText(error);
            const QString key = QString::fromStdString(error.key());
            QVERIFY2(translated.contains(key), qPrintable(translated));
            const QString fault = english.section(": ", (error.line() > 0) + !key.isEmpty());
            QVERIFY2(!translated.endsWith(fault), qPrintable(translated));
            QVERIFY2(!translated.contains("line "), qPrintable(translated));
            QVERIFY2(!translated.contains('%'), qPrintable(translated));
            for (const std::string &argument : error.fault().arguments)
                QVERIFY2(translated.contains(argument.c_str()), qPrintable(translated));
            said.insert(error.fault().code);
        }
    }
    // All but those that are not of the text: unreadable, not an ordinary file, too long.
    QCOMPARE(int(said.size()), int(virtualsky::lastSkyFaultCode) + 1 - 3);
}

void MountCataloguesTest::saysWhyAFileCannotBeRead_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    QTest::newRow("no ordinary file")
        << int(SkyFaultCode::NotOrdinaryFile) << "not an ordinary file"
        << "keine gewöhnliche Datei";
    QTest::newRow("too long") << int(SkyFaultCode::TooLong) << "longer than 64 KiB"
                              << QString::fromUtf8("länger als 64\u00a0KiB");
    QTest::newRow("the system's reason") << int(SkyFaultCode::SystemError) << "Permission denied"
                                         << "Zugriff verweigert";
}

void MountCataloguesTest::saysWhyAFileCannotBeRead()
{
    QFETCH(int, code);
    QFETCH(QString, english);
    QFETCH(QString, german);
    virtualsky::SkyFault fault{SkyFaultCode(code)};
    fault.systemError = EACCES;
    const virtualsky::SkyFileError error(0, {}, fault);
    QCOMPARE(QString(error.what()), english);
    QCOMPARE(virtualmount::faultText(error), english);
    QVERIFY(installTranslator("mount", languageOf("DE")));
    QCOMPARE(virtualmount::faultText(error), german);
}

void MountCataloguesTest::keepsTheFilesWords_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("german");
    QTest::newRow("a date is named in full")
        << QByteArray("[time]\ndate = today\n")
        << "Zeile 2: date: muss now sein oder ein Datum von 1973 bis 2100 wie 2026-11-20T20:00:00Z";
    QTest::newRow("a long name") << "[faults]\nfail = " + QByteArray(50, 'x') + '\n'
                                 << "Zeile 2: fail: nennt keine Operation: „" + QString(50, 'x') +
                                        "“";
    QTest::newRow("a name like a placeholder") << QByteArray("[faults]\nfail = 100 %1\n")
                                               << "Zeile 2: fail: nennt keine Operation: „100 %1“";
    QTest::newRow("a section like a placeholder")
        << QByteArray("[%2]\n") << "Zeile 1: unbekannter Abschnitt [%2]";
}

void MountCataloguesTest::keepsTheFilesWords()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, german);
    QVERIFY(installTranslator("mount", languageOf("DE")));
    try {
        virtualsky::parse(text.toStdString());
        QFAIL("accepted");
    } catch (const virtualsky::SkyFileError &error) {
        QCOMPARE(virtualmount::faultText(error), german);
    }
}

void MountCataloguesTest::followsTheUsersLanguages_data()
{
    QTest::addColumn<QStringList>("user");
    QTest::addColumn<QString>("code");
    QTest::newRow("with a country") << QStringList{"de-AT"} << "DE";
    QTest::newRow("with a script") << QStringList{"zh-Hans-CN"} << "ZH";
    QTest::newRow("alone") << QStringList{"ja"} << "JA";
    QTest::newRow("the first that there is") << QStringList{"sv-SE", "fr-CA", "de"} << "FR";
    QTest::newRow("English first") << QStringList{"en-GB", "de-DE"} << "EN";
    QTest::newRow("unknown") << QStringList{"sv-SE"} << "EN";
    QTest::newRow("three letters") << QStringList{"fry-NL"} << "EN";
    QTest::newRow("the C locale") << QStringList{"C"} << "EN";
    QTest::newRow("none") << QStringList{} << "EN";
}

void MountCataloguesTest::followsTheUsersLanguages()
{
    QFETCH(QStringList, user);
    QFETCH(QString, code);
    QCOMPARE(QString(bestLanguage(user).code), code);
}

void MountCataloguesTest::followsTheOption_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("north");
    QTest::addColumn<QString>("number");
    QTest::newRow("EN") << "EN"
                        << "North"
                        << "1.5";
    QTest::newRow("ZH") << "ZH"
                        << "北纬"
                        << "1.5";
    QTest::newRow("JA") << "JA"
                        << "北緯"
                        << "1.5";
    QTest::newRow("RU") << "RU"
                        << "Север"
                        << "1,5";
    QTest::newRow("FR") << "FR"
                        << "Nord"
                        << "1,5";
    QTest::newRow("DE") << "DE"
                        << "Nord"
                        << "1,5";
    QTest::newRow("ES") << "ES"
                        << "Norte"
                        << "1,5";
    QTest::newRow("PT") << "PT"
                        << "Norte"
                        << "1,5";
    QTest::newRow("IT") << "IT"
                        << "Nord"
                        << "1,5";
    QTest::newRow("KO") << "KO"
                        << "북위"
                        << "1.5";
    QTest::newRow("small letters") << "ko"
                                   << "북위"
                                   << "1.5";
}

void MountCataloguesTest::followsTheOption()
{
    QFETCH(QString, code);
    QFETCH(QString, north);
    QFETCH(QString, number);
    QVERIFY(installRequestedLanguage("mount", code));
    QCOMPARE(QCoreApplication::translate("virtualmount::MountWindow", "North"), north);
    QCOMPARE(QLocale().toString(1.5, 'f', 1), number);
    QLocale::setDefault(QLocale::system());
}

void MountCataloguesTest::unknownOptionsAreRefused()
{
    QVERIFY(installTranslator("mount", languages.at(5)));
    for (const char *const code : {"XX", "german", "D", "de_DE"})
        QVERIFY2(!installRequestedLanguage("mount", code), code);
    QCOMPARE(QCoreApplication::translate("virtualmount::MountWindow", "South"), QString("Süd"));
    QVERIFY(installRequestedLanguage("mount", QString())); // the tests' locale is C
    QCOMPARE(QCoreApplication::translate("virtualmount::MountWindow", "South"), QString("South"));
}

QTEST_GUILESS_MAIN(MountCataloguesTest)
#include "tst_mountcatalogues.moc"
