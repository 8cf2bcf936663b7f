// SPDX-License-Identifier: MIT
// What does the assistant write for a number, an advice, a star, an option?
#include "assistantapp/options.h"
#include "assistantwindow/advicetexts.h"
#include "assistantwindow/display.h"
#include "assistantwindow/figures.h"
#include "assistantwindow/languagenames.h"
#include "assistantwindow/siteentry.h"
#include "assistantwindow/starlabel.h"
#include "core/languages.h"
#include "tests/assistantwindow/figurevalues.h"

#include <QSet>
#include <QtTest>
#include <cmath>
#include <limits>

using namespace assistantwindow;
using assistant::AdviceCode;

namespace
{
const QLocale german(QLocale::German);

/// Every code of the enumeration, by its last one.
std::vector<AdviceCode> allCodes()
{
    std::vector<AdviceCode> codes;
    for (int i = 0; i <= int(AdviceCode::RecordingFull); ++i)
        codes.push_back(AdviceCode(i));
    return codes;
}
} // namespace

class AssistantTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void angle_data();
    void angle();
    void smallTexts();
    void everyAdviceHasItsOwnSentence();
    void adviceCarriesItsNumber();
    void starLabels_data();
    void starLabels();
    void languagesAreThoseOfTheTable();
    void options_data();
    void options();
    void printsWithoutAScreen();
    void clockHintIsExplainedAndDismissed();
    void typedAngles_data();
    void typedAngles();
};

void AssistantTextsTest::angle_data()
{
    QTest::addColumn<double>("arcseconds");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << english << "0.0″";
    QTest::newRow("seconds") << 12.34 << english << "12.3″";
    QTest::newRow("decimal comma") << 12.34 << german << "12,3″";
    QTest::newRow("negative") << -12.34 << english << "12.3″";
    QTest::newRow("just below a minute") << 59.94 << english << "59.9″";
    QTest::newRow("rounded up to a minute") << 59.96 << english << "1′00″";
    QTest::newRow("minutes") << 245.0 << english << "4′05″";
    QTest::newRow("rounded up to a degree") << 3599.7 << english << "1°00′";
    QTest::newRow("degrees") << 4320.0 << english << "1°12′";
    QTest::newRow("degrees round their minutes") << 7190.0 << english << "2°00′";
    QTest::newRow("not a number") << noNumber << english << "—";
    QTest::newRow("infinite") << infinity << english << "—";
}

void AssistantTextsTest::angle()
{
    QFETCH(double, arcseconds);
    QFETCH(QLocale, locale);
    QTEST(angleText(arcseconds, locale), "text");
}

void AssistantTextsTest::smallTexts()
{
    QCOMPARE(uncertaintyText(3.14, english), QStringLiteral("± 3.1″"));
    QCOMPARE(uncertaintyText(noNumber, english), dash());
    QCOMPARE(degreesText(22.6, english), QStringLiteral("23°"));
    QCOMPARE(exposureText(250000.0, english), QStringLiteral("250 ms"));
    QCOMPARE(exposureText(2500000.0, german), QStringLiteral("2,5 s"));
    QCOMPARE(exposureText(0.0, english), dash());
    QCOMPARE(durationText(42.0), QStringLiteral("0:42"));
    QCOMPARE(durationText(725.0), QStringLiteral("12:05"));
    QCOMPARE(durationText(3723.0), QStringLiteral("1:02:03"));
    QCOMPARE(durationText(-1.0), dash());
}

void AssistantTextsTest::everyAdviceHasItsOwnSentence()
{
    QSet<QString> sentences;
    for (const AdviceCode code : allCodes()) {
        const QString sentence = adviceText({code, 7.0, 90.0, "why"}, true, english);
        QVERIFY2(!sentence.isEmpty() && !sentence.contains('%'), qPrintable(sentence));
        QVERIFY2(sentence.size() <= 75, qPrintable(sentence));
        QVERIFY2(!sentences.contains(sentence), qPrintable(sentence));
        sentences.insert(sentence);
    }
}

void AssistantTextsTest::adviceCarriesItsNumber()
{
    const auto text = [](AdviceCode code, double first, bool hasBolts = true) {
        return adviceText({code, first, 0.0, "full"}, hasBolts, english);
    };
    QVERIFY(text(AdviceCode::ExposeLonger, 4.0).contains("(4)"));
    QVERIFY(text(AdviceCode::TurnFurther, 17.2).contains("17°"));
    QVERIFY(text(AdviceCode::TurnBolts, 245.0).contains("4′05″"));
    QVERIFY(text(AdviceCode::TurnBolts, 245.0, false).contains("until the arrow is gone"));
    QVERIFY(text(AdviceCode::Focus, 7.26).contains("7.3"));
    QVERIFY(text(AdviceCode::RecordingFailed, 0.0).contains("folder full"));
    QVERIFY(text(AdviceCode::CameraRefuses, 0.0).contains("camera full"));
    QVERIFY(text(AdviceCode::CameraUnusable, 0.0).endsWith(": full"));
    QCOMPARE(adviceText({AdviceCode::CameraUnusable, 0.0, 0.0, {}}, true, english),
             QStringLiteral("The camera library cannot be used."));
    QCOMPARE(moodOf(AdviceCode::Aligned), AdviceMood::Good);
    QCOMPARE(moodOf(AdviceCode::CameraLost), AdviceMood::Warning);
}

void AssistantTextsTest::starLabels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::newRow("Bayer's letter") << "zet Oct"
                                    << "ζ Oct";
    QTest::newRow("name") << "Polaris"
                          << "Polaris";
    QTest::newRow("letter and name") << "alp UMi, Polaris"
                                     << "Polaris";
    QTest::newRow("number") << "HD 5848"
                            << "HD 5848";
    QTest::newRow("place") << "72.261-88.271"
                           << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void AssistantTextsTest::starLabels()
{
    QFETCH(QString, name);
    QTEST(starLabel(name.toStdString()), "label");
}

void AssistantTextsTest::languagesAreThoseOfTheTable()
{
    QCOMPARE(languageNames.size(), languages.size());
    for (std::size_t i = 0; i < languages.size(); ++i)
        QCOMPARE(languageNames[i].code, languages[i].code);
}

void AssistantTextsTest::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isGood");
    QTest::addColumn<double>("longitude");
    QTest::newRow("none") << QStringList{} << true << 0.0;
    QTest::newRow("site") << QStringList{"--site", "51.5,-0.25"} << true << -0.25;
    QTest::newRow("joined") << QStringList{"--site=-34,149"} << true << 149.0;
    QTest::newRow("one number") << QStringList{"--site", "51.5"} << false << 0.0;
    QTest::newRow("out of range") << QStringList{"--site", "91,0"} << false << 0.0;
    QTest::newRow("no value") << QStringList{"--site"} << false << 0.0;
    QTest::newRow("language") << QStringList{"--language", "de", "--connect"} << true << 0.0;
    QTest::newRow("no such language") << QStringList{"--language", "XX"} << false << 0.0;
    QTest::newRow("no such option") << QStringList{"--large"} << false << 0.0;
}

void AssistantTextsTest::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(double, longitude);
    const assistantapp::Options found = assistantapp::parse(arguments);
    QTEST(found.fault.isEmpty(), "isGood");
    QCOMPARE(found.connects, arguments.contains("--connect"));
    if (found.site)
        QCOMPARE(found.site->longitude, longitude);
    else
        QCOMPARE(longitude, 0.0);
}

void AssistantTextsTest::printsWithoutAScreen()
{
    QVERIFY(assistantapp::printedFor({"--connect", "--help"}).startsWith("usage: "));
    QCOMPARE(assistantapp::printedFor({"--version"}).section(' ', 0, 0),
             QStringLiteral("quorvandel-assistant"));
    QVERIFY(assistantapp::printedFor({"--connect"}).isEmpty());
}

void AssistantTextsTest::clockHintIsExplainedAndDismissed()
{
    int dismissible = 0;
    for (const AdviceCode code : allCodes()) {
        dismissible += canBeDismissed(code) ? 1 : 0;
        QCOMPARE(canBeDismissed(code), !reasonText(code).isEmpty());
    }
    QCOMPARE(dismissible, 1);
    // 15 degrees an hour are 0.25 a minute.
    QVERIFY(reasonText(AdviceCode::ClockUnsure).contains("0.25°"));
    assistant::Status status;
    status.advice = {{AdviceCode::TurnBolts, 99.0, 0.0, {}},
                     {AdviceCode::ClockUnsure, 0.0, 0.0, {}},
                     {AdviceCode::SiteMissing, 0.0, 0.0, {}}};
    const Display first = displayOf(status, {}, english);
    QVERIFY(first.hint.contains("clock") && first.hintCanBeDismissed);
    QVERIFY(!first.hintReason.isEmpty());
    const Display next = displayOf(status, {}, english, true);
    QVERIFY(next.hint.contains("site") && !next.hintCanBeDismissed);
    QVERIFY(next.hintReason.isEmpty());
}

void AssistantTextsTest::typedAngles_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("angle");
    QTest::newRow("decimal") << "34.5" << 34.5;
    QTest::newRow("decimal comma") << "34,5" << 34.5;
    QTest::newRow("negative") << "-34.5" << -34.5;
    QTest::newRow("minus sign") << QStringLiteral("−34.5°") << -34.5;
    QTest::newRow("south") << "34.5 S" << -34.5;
    QTest::newRow("small letter before it") << "s34.5" << -34.5;
    QTest::newRow("north") << "34.5°N" << 34.5;
    QTest::newRow("minutes") << "34 30 S" << -34.5;
    QTest::newRow("seconds") << QStringLiteral("34° 30′ 18″ N") << 34.505;
    QTest::newRow("south of the equator by less than a degree") << "0 30 S" << -0.5;
    QTest::newRow("pole") << "90" << 90.0;
    QTest::newRow("too far") << "90.1" << noNumber;
    QTest::newRow("sign and letter") << "-34 S" << noNumber;
    QTest::newRow("two letters") << "34 N S" << noNumber;
    QTest::newRow("other side") << "34 E" << noNumber;
    QTest::newRow("60 minutes") << "34 60" << noNumber;
    QTest::newRow("parts of a degree and minutes") << "34.5 30" << noNumber;
    QTest::newRow("four parts") << "1 2 3 4" << noNumber;
    QTest::newRow("nothing") << "" << noNumber;
    QTest::newRow("a letter alone") << "N" << noNumber;
    QTest::newRow("word") << "nan" << noNumber;
    QTest::newRow("exponent") << "1e1" << noNumber;
}

void AssistantTextsTest::typedAngles()
{
    QFETCH(QString, typed);
    QFETCH(double, angle);
    const auto found = typedAngle(typed, {'N', 'S'}, 90.0);
    QCOMPARE(found.has_value(), std::isfinite(angle));
    if (found)
        QVERIFY2(std::abs(*found - angle) < 1e-9, qPrintable(QString::number(*found)));
}

QTEST_MAIN(AssistantTextsTest)
#include "tst_assistanttexts.moc"
