// SPDX-License-Identifier: MIT
// Do the ring, the large view and the end of an alignment show what is true and what matters?
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/largepage.h"
#include "assistantwindow/mainpage.h"
#include "assistantwindow/report.h"
#include "tests/assistantwindow/scenes.h"

#include <QPushButton>
#include <cstdlib>

using namespace assistantwindow;
using assistant::AdviceCode;
using assistant::Stage;

Q_DECLARE_METATYPE(assistant::Stage)

namespace
{
const QLocale inBritain(QLocale::English, QLocale::UnitedKingdom);

Display displayWith(const std::vector<assistant::Advice> &advice)
{
    assistant::Status status;
    status.advice = advice;
    return assistantwindow::displayOf(status, {}, inBritain);
}

QImage largeImage(QSize size, Stage stage, const QStringList &further)
{
    Display display;
    display.stage = stage;
    display.stageText = QStringLiteral("Axis");
    display.advice = QStringLiteral("Turn the bolts as the arrows say: 41′52″ to go.");
    display.further = further;
    display.hasBolts = stage == Stage::Bolts;
    display.ways = {Way::Down, Way::West, Way::Down, Way::West};
    display.altitude.text = display.azimuth.text = QStringLiteral("41′08″");
    display.axisTurn = QStringLiteral("18°");
    LargePage page;
    page.resize(size);
    page.show(display);
    return page.grab().toImage();
}

/// The height of the first run of rows with ink of the text's colour, in the columns right of the
/// arrows and left of the button.
int digitsHeight(const QImage &image)
{
    const QRgb ink = theme(false).text.rgb();
    int run = 0;
    for (int y = 0; y < image.height(); ++y) {
        bool isInk = false;
        for (int x = image.width() / 3; x < image.width() - 80; ++x)
            isInk = isInk || image.pixel(x, y) == ink;
        if (!isInk && run > 0)
            break;
        run += isInk;
    }
    return run;
}

/// Whether a pixel differs by more than the edges of large letters do from one drawing to the next.
bool differ(const QImage &a, const QImage &b)
{
    constexpr int edge = 64; // levels
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > edge)
                return true;
    return false;
}
} // namespace

class AssistantPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void ringIsFullWhenItIsEnough_data();
    void ringIsFullWhenItIsEnough();
    void turnIsNotRoundedUp();
    void hintNamesTheCondition();
    void goalStaysReached_data();
    void goalStaysReached();
    void goalLeadsToTheReport();
    void allAdviceIsKept();
    void largeViewHasRoom_data();
    void largeViewHasRoom();
    void largeViewShowsAllAdvice_data();
    void largeViewShowsAllAdvice();
    void whatMattersMostFits();
    void reportSaysWhichSide_data();
    void reportSaysWhichSide();
};

void AssistantPagesTest::ringIsFullWhenItIsEnough_data()
{
    QTest::addColumn<double>("turned");
    QTest::addColumn<bool>("enough");
    QTest::addColumn<double>("share");
    QTest::newRow("not begun") << 0.0 << false << 0.0;
    QTest::newRow("half") << 15.0 << false << 0.5;
    QTest::newRow("enough at half, known to 5 arcseconds") << 15.5 << true << 1.0;
    QTest::newRow("nearly") << 27.0 << false << 0.9;
    QTest::newRow("30 degrees that do not agree") << 30.0 << false << 0.96;
    QTest::newRow("far, and unchecked") << 75.0 << false << 0.96;
    QTest::newRow("far, and enough") << 75.0 << true << 1.0;
}

void AssistantPagesTest::ringIsFullWhenItIsEnough()
{
    QFETCH(double, turned);
    QFETCH(bool, enough);
    assistant::AxisProgress axis;
    axis.turnedDegrees = turned;
    axis.enough = enough;
    QTEST(turnShare(axis), "share");
}

/// "15°" is not shown before 15 degrees count as such.
void AssistantPagesTest::turnIsNotRoundedUp()
{
    assistant::Status status;
    status.stage = Stage::Axis;
    status.axis.turnedDegrees = 14.98;
    status.advice = {{AdviceCode::TurnFurther, 14.98, 0.0, {}}};
    const Display display = assistantwindow::displayOf(status, {}, inBritain);
    QCOMPARE(display.axisTurn, QStringLiteral("14°"));
    QCOMPARE(display.advice, QStringLiteral("Turn the RA axis further: 14° so far."));
    QCOMPARE(turnText(15.0, inBritain), QStringLiteral("15°"));
    QCOMPARE(turnText(0.3, inBritain), QStringLiteral("0°"));
}

void AssistantPagesTest::hintNamesTheCondition()
{
    madestatus::MadeInstrument instrument;
    scenes::fill(instrument, scenes::all()[std::size_t(scenes::numberOf("axis"))]);
    const AssistantWindow window(instrument, {}, [](const auto &) {});
    const QString hint = window.findChild<QLabel *>("label_axisHint")->text();
    QVERIFY2(hint.startsWith("30° are enough, 15° if the axis is then known to 5″."),
             qPrintable(hint));
}

void AssistantPagesTest::goalStaysReached_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("aligned");
    QTest::addColumn<double>("total"); // arcseconds; 0: none
    QTest::addColumn<bool>("reached");
    QTest::newRow("on the way") << Stage::Bolts << false << false << 25.0 << false;
    QTest::newRow("now") << Stage::Bolts << false << true << 19.0 << true;
    QTest::newRow("the number wavers") << Stage::Bolts << true << false << 25.0 << true;
    QTest::newRow("a cloud") << Stage::Bolts << true << false << 0.0 << true;
    QTest::newRow("far off again") << Stage::Bolts << true << false << 60.0 << false;
    QTest::newRow("a goal of two arcminutes") << Stage::Bolts << false << true << 90.0 << true;
    QTest::newRow("begun again") << Stage::Sky << true << false << 0.0 << false;
    QTest::newRow("the axis is measured again") << Stage::Axis << true << false << 0.0 << false;
}

void AssistantPagesTest::goalStaysReached()
{
    QFETCH(Stage, stage);
    QFETCH(bool, before);
    QFETCH(bool, aligned);
    QFETCH(double, total);
    Display display;
    if (total > 0.0)
        display.total.arcseconds = total;
    display.stage = stage;
    display.aligned = aligned;
    QTEST(isGoalReached(before, display), "reached");
}

/// With the mouse, at the smallest size.
void AssistantPagesTest::goalLeadsToTheReport()
{
    const scenes::Scene &scene = scenes::all()[std::size_t(scenes::numberOf("aligned"))];
    madestatus::MadeInstrument instrument;
    scenes::fill(instrument, scene);
    instrument.snapshot.status.advice = {{AdviceCode::TurnBolts, 454.8, 0.0, {}}};
    AssistantWindow window(instrument, scenes::settingsOf(scene, false, QString()),
                           [](const auto &) {});
    window.resize(800, 480);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    scenes::addHistory(window, instrument);
    auto *const button = window.findChild<QPushButton *>("pushButton_toReport");
    QVERIFY(button && !button->isVisible());
    instrument.snapshot.status.advice = {scene.advice};
    window.refresh();
    QVERIFY(button->isVisible() && !button->text().isEmpty());
    QVERIFY(button->width() >= 40 && button->height() >= 40);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(window.findChild<QWidget *>("reportPage")->isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    instrument.snapshot.status.stage = Stage::Sky; // begun again
    instrument.snapshot.status.advice = {{AdviceCode::Searching, 0.0, 0.0, {}}};
    window.refresh();
    QVERIFY(!button->isVisible());
}

void AssistantPagesTest::allAdviceIsKept()
{
    const Display display = displayWith({{AdviceCode::TurnAxis, 0.0, 0.0, {}},
                                         {AdviceCode::PoleThatWay, 6.0, 0.0, {}},
                                         {AdviceCode::ClockUnsure, 0.0, 0.0, {}},
                                         {AdviceCode::SiteMissing, 0.0, 0.0, {}}});
    QCOMPARE(display.further.size(), 3);
    QCOMPARE(display.further.first(), display.hint);
    QCOMPARE(display.further.first(),
             QStringLiteral("The pole is 6.0° outside the picture. Follow the arrow."));
    QCOMPARE(largeContent(display).further, display.further);
}

void AssistantPagesTest::largeViewHasRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<int>("further");
    for (const QSize &size : {QSize(800, 480), QSize(1366, 768)})
        for (const int further : {0, 1, 4}) {
            QTest::addRow("bolts, %d, %d more", size.height(), further)
                << size << Stage::Bolts << further;
            QTest::addRow("axis, %d, %d more", size.height(), further)
                << size << Stage::Axis << further;
        }
}

void AssistantPagesTest::largeViewHasRoom()
{
    QFETCH(QSize, size);
    QFETCH(Stage, stage);
    QFETCH(int, further);
    QStringList texts;
    for (int i = 0; i < further; ++i)
        texts.append(QStringLiteral("The computer’s clock may be wrong. Check date and time."));
    const int digits = digitsHeight(largeImage(size, stage, texts));
    QVERIFY2(digits >= size.height() / 5, qPrintable(QString::number(digits)));
}

void AssistantPagesTest::largeViewShowsAllAdvice_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<int>("shown"); // of three
    QTest::newRow("bolts, small") << QSize(800, 480) << Stage::Bolts << 1;
    QTest::newRow("bolts, large") << QSize(1366, 768) << Stage::Bolts << 2;
    QTest::newRow("axis, small") << QSize(800, 480) << Stage::Axis << 3;
    QTest::newRow("axis, large") << QSize(1366, 768) << Stage::Axis << 3;
    QTest::newRow("no number, small") << QSize(800, 480) << Stage::Sky << 3;
}

/// One more advice changes the picture as long as it is shown.
void AssistantPagesTest::largeViewShowsAllAdvice()
{
    QFETCH(QSize, size);
    QFETCH(Stage, stage);
    const QStringList texts{QStringLiteral("The clock was set by 3 600 s. Check date and time."),
                            QStringLiteral("The stars are 7.4 pixels wide. Focus the lens."),
                            QStringLiteral("Enter the site to see which way each bolt must go.")};
    int shown = 0;
    for (int i = 0; i < texts.size(); ++i)
        if (differ(largeImage(size, stage, texts.mid(0, i)),
                   largeImage(size, stage, texts.mid(0, i + 1))))
            ++shown;
    QTEST(shown, "shown");
}

void AssistantPagesTest::whatMattersMostFits()
{
    QCOMPARE(fitting({}, 100.0), std::size_t(0));
    QCOMPARE(fitting({40.0, 40.0, 10.0}, 100.0), std::size_t(3));
    QCOMPARE(fitting({40.0, 70.0, 10.0}, 100.0),
             std::size_t(1)); // not the third without the second
    QCOMPARE(fitting({120.0, 10.0}, 100.0), std::size_t(0));
    QVERIFY(adviceRoom(480.0, 1) > adviceRoom(480.0, 2));
    QCOMPARE(adviceRoom(100.0, 2), 0.0);
}

void AssistantPagesTest::reportSaysWhichSide_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const char *label, double altitude, double azimuth,
                        const char *value) {
        QTest::newRow(name) << QString(label) << altitude << azimuth << QString::fromUtf8(value);
    };
    row("above", "in altitude", 130.0, 0.0, "axis 2′10″ ± 2.2″ above the pole");
    row("below", "in altitude", -5.0, 0.0, "axis 5.0″ ± 2.2″ below the pole");
    row("east", "in azimuth", 0.0, 4.0, "axis 4.0″ ± 2.9″ east of the pole");
    row("west", "in azimuth", 0.0, -3700.0, "axis 1°02′ ± 2.9″ west of the pole");
    row("nothing to speak of", "in azimuth", 0.0, -0.04, "0.0″ ± 2.9″");
}

void AssistantPagesTest::reportSaysWhichSide()
{
    QFETCH(QString, row);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    assistant::Report report;
    report.after = madestatus::figuresOf({altitude, azimuth}, true);
    QString value;
    for (const ReportRow &one : reportRows(report, inBritain))
        if (one.name == row)
            value = one.value;
    QTEST(value, "value");
}

QTEST_MAIN(AssistantPagesTest)
#include "tst_assistantpages.moc"
