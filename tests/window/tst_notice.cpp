// SPDX-License-Identifier: MIT
// Which notice follows from the known facts, and what of an alignment is remembered for it?
#include "core/languages.h"
#include "mainwindow/alignmentprogress.h"
#include "mainwindow/notice.h"
#include "mainwindow/wizardtable.h"
#include "resources/resources.h"

#include <QTest>
#include <QTranslator>
#include <cmath>
#include <functional>
#include <limits>

Q_DECLARE_METATYPE(NoticeFacts)
Q_DECLARE_METATYPE(std::optional<Notice>)

char *toString(const std::optional<Notice> &notice)
{
    return QTest::toString(notice ? noticeText(*notice) : QStringLiteral("nothing"));
}

namespace
{
const TemplateFit good{27, 28, 80};
const TemplateFit bad{4, 28, 80};

/// An alignment without any problem, in some step.
NoticeFacts wellIn(int step)
{
    NoticeFacts f;
    f.connected = true;
    f.pageShown = true;
    f.step = step;
    f.hasAxis = true;
    f.monitoring = step == FineAdjustment;
    f.monitorPrepared = step >= StartMonitor;
    f.poleStarPicked = true;
    f.templateShown = showsTemplate(step);
    f.fit = f.fitAtStart = good;
    if (step > SecondPick)
        f.movedPixels = 120.0;
    if (step > ThirdPick)
        f.turnDegrees = 30.0;
    return f;
}

NoticeFacts with(int step, const std::function<void(NoticeFacts &)> &change)
{
    NoticeFacts facts = wellIn(step);
    change(facts);
    return facts;
}

/// Every code with the largest numbers that it may show.
QVector<Notice> allNotices()
{
    QVector<Notice> all;
    for (int code = 0; code <= int(NoticeCode::SettingsNotKept); ++code)
        all.append({NoticeCode(code), 17, 38});
    return all;
}
} // namespace

class NoticeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void nothingWhileAllIsWell_data();
    void nothingWhileAllIsWell();
    void notices_data();
    void notices();
    void theMostUrgentOne();
    void sentences_data();
    void sentences();
    void turns_data();
    void turns();
    void picksAreRemembered();
    void poleStarIsAskedForAgain();
    void preparationIsForgotten();
};

void NoticeTest::nothingWhileAllIsWell_data()
{
    QTest::addColumn<NoticeFacts>("facts");
    for (int step = 1; step <= wizardStepCount; ++step)
        QTest::addRow("step %d", step) << wellIn(step);
    QTest::newRow("at rest, nothing known") << NoticeFacts();
    QTest::newRow("a first night: no axis in the first steps")
        << with(ConfirmAxis, [](auto &f) { f.hasAxis = false; });
    QTest::newRow("a picture is a little late")
        << with(MatchTemplate, [](auto &f) { f.secondsWithoutPicture = 4.9; });
    QTest::newRow("the smallest zoom of the menu")
        << with(MatchTemplate, [](auto &f) { f.zoomFactor = 0.5F; });
    QTest::newRow("half of what the page asks for")
        << with(ConfirmAxis, [](auto &f) { f.turnDegrees = 15.0; });
    QTest::newRow("nothing picked yet, nothing shown") << with(ExpectedPosition, [](auto &f) {
        f.poleStarPicked = false;
        f.templateShown = false;
        f.fit = bad;
    });
    QTest::newRow("dial turned during monitoring")
        << with(FineAdjustment, [](auto &f) { f.dialDegrees = 90; });
    QTest::newRow("dial reset") << with(FineAdjustment, [](auto &f) { f.dialAtStart = 90; });
    QTest::newRow("few stars through a gap in the clouds") << with(CurrentPosition, [](auto &f) {
        f.fit = {1, 28, 3};
    });
    QTest::newRow("half of the rings") << with(CurrentPosition, [](auto &f) {
        f.fit = {14, 28, 80};
    });
    QTest::newRow("a short exposure: five of the six stars") << with(CurrentPosition, [](auto &f) {
        f.fit = {5, 28, 6};
    });
    QTest::newRow("magnifier over the target in another step")
        << with(ExpectedPosition, [](auto &f) { f.ringUnderMagnifier = true; });
    QTest::newRow("no camera, everything else unknown") << with(FineAdjustment, [](auto &f) {
        f.connected = false;
        f.pageShown = false;
        f.starAFound = f.starBFound = false;
    });
}

void NoticeTest::nothingWhileAllIsWell()
{
    QFETCH(NoticeFacts, facts);
    QCOMPARE(noticeFor(facts), std::optional<Notice>());
}

void NoticeTest::notices_data()
{
    QTest::addColumn<NoticeFacts>("facts");
    QTest::addColumn<std::optional<Notice>>("expected");
    const auto row = [](const char *name, const NoticeFacts &facts, const Notice &expected) {
        QTest::newRow(name) << facts << std::optional(expected);
    };
    using Code = NoticeCode;
    const float none = std::numeric_limits<float>::quiet_NaN();

    row("unusable library",
        with(SetExposure, [](auto &f) { f.libraryUsable = f.connected = false; }),
        {Code::LibraryUnusable});
    row("no camera", with(SetExposure, [](auto &f) { f.connected = false; }), {Code::NoCamera});
    row("monitoring without a camera", with(FineAdjustment, [](auto &f) { f.connected = false; }),
        {Code::NoCamera});
    row("no picture", with(SetExposure, [](auto &f) { f.secondsWithoutPicture = 5.0; }),
        {Code::NoPicture, 5});
    row("none for long", with(FineAdjustment, [](auto &f) { f.secondsWithoutPicture = 61.7; }),
        {Code::NoPicture, 61});
    for (const float zoom : {0.0F, -1.0F, 0.0005F, none})
        QTest::addRow("zoom %g", double(zoom))
            << with(SetExposure, [&](auto &f) { f.zoomFactor = zoom; })
            << std::optional(Notice{Code::ZoomShowsNothing});
    for (int step = ExpectedPosition; step <= FineAdjustment; ++step)
        QTest::addRow("no axis in step %d", step) << with(step, [](auto &f) { f.hasAxis = false; })
                                                  << std::optional(Notice{Code::NoAxis});
    row("monitoring in step 1", with(FineAdjustment, [](auto &f) { f.monitorPrepared = false; }),
        {Code::MonitorNotPrepared});
    for (const int step : {int(MoveBolts), int(StartMonitor), int(FineAdjustment)})
        QTest::addRow("no pole star in step %d", step)
            << with(step, [](auto &f) { f.poleStarPicked = false; })
            << std::optional(Notice{Code::PoleStarNotPicked});
    row("no template", with(FirstPick, [](auto &f) { f.poleStarPicked = false; }),
        {Code::TemplateNotPlaced});
    row("saved axis, old template",
        with(ExpectedPosition, [](auto &f) { f.poleStarPicked = false; }),
        {Code::TemplateLeftOver});
    for (const int step : {int(MatchTemplate), int(ExpectedPosition), int(MoveBolts),
                           int(CurrentPosition), int(StartMonitor), int(FineAdjustment)})
        QTest::addRow("empty sky in step %d", step)
            << with(step, [](auto &f) { f.poleStarOnStar = false; })
            << std::optional(Notice{Code::NoStarHere});
    row("empty second pick", with(ConfirmAxis, [](auto &f) { f.emptyPick = 2; }),
        {Code::NoStarInPick, 2});
    row("star A", with(FineAdjustment, [](auto &f) { f.starAFound = false; }), {Code::StarALost});
    row("star B", with(FineAdjustment, [](auto &f) { f.starBFound = false; }), {Code::StarBLost});
    row("both stars", with(FineAdjustment, [](auto &f) { f.starAFound = f.starBFound = false; }),
        {Code::StarsLost});
    for (const int step :
         {int(MatchTemplate), int(ExpectedPosition), int(CurrentPosition), int(FineAdjustment)})
        QTest::addRow("misfit in step %d", step)
            << with(step, [](auto &f) { f.fit = bad; })
            << std::optional(Notice{Code::TemplateMisfit, 4, 28});
    for (const int step : {int(StartMonitor), int(FineAdjustment)})
        QTest::addRow("confirmed misfit in step %d", step)
            << with(step, [](auto &f) { f.fitAtStart = bad; })
            << std::optional(Notice{Code::TemplateMisfit, 4, 28});
    row("second pick in the same place", with(SecondTurn, [](auto &f) { f.movedPixels = 0.4; }),
        {Code::StarMovedLittle, 0});
    row("three picks in the same place",
        with(ConfirmAxis,
             [](auto &f) {
                 f.movedPixels = 0.6;
                 f.turnDegrees = 100.0; // caused by the noise
             }),
        {Code::StarMovedLittle, 1});
    for (const int step : {int(ConfirmAxis), int(ExpectedPosition), int(FineAdjustment)})
        QTest::addRow("turned too little, in step %d", step)
            << with(step, [](auto &f) { f.turnDegrees = 2.6; })
            << std::optional(Notice{Code::AxisTurnedLittle, 2});
    row("dial", with(StartMonitor, [](auto &f) { f.dialDegrees = f.dialAtStart = 90; }),
        {Code::DialNotReset, 90});
    row("dial turned on",
        with(FineAdjustment,
             [](auto &f) {
                 f.dialDegrees = 91;
                 f.dialAtStart = 90;
             }),
        {Code::DialNotReset, 91});
    row("ring", with(MoveBolts, [](auto &f) { f.ringUnderMagnifier = true; }),
        {Code::RingUnderMagnifier});
    NoticeFacts rest;
    const struct {
        const char *name;
        SaveTrouble trouble;
        Code code;
    } troubles[] = {
        {"folder", SaveTrouble::FolderNotWritable, Code::SettingsNotKept},
        {"file", SaveTrouble::FileNotAccessible, Code::SettingsFileNotAccessible},
        {"something else", SaveTrouble::NotAFile, Code::SettingsPlaceTaken},
        {"full disk", SaveTrouble::DiskFull, Code::SettingsDiskFull},
    };
    for (const auto &[name, trouble, code] : troubles) {
        rest.saveTrouble = trouble;
        QTest::addRow("settings, %s, at rest", name) << rest << std::optional(Notice{code});
        NoticeFacts connected = wellIn(MatchTemplate);
        connected.saveTrouble = trouble;
        QTest::addRow("settings, %s", name) << connected << std::optional(Notice{code});
    }
}

void NoticeTest::notices()
{
    QFETCH(NoticeFacts, facts);
    QFETCH(std::optional<Notice>, expected);
    QCOMPARE(noticeFor(facts), expected);
}

/// With everything wrong at first and one thing fixed after the other, they come in order.
void NoticeTest::theMostUrgentOne()
{
    NoticeFacts f = with(FineAdjustment, [](auto &facts) {
        facts.secondsWithoutPicture = 9;
        facts.zoomFactor = 0;
        facts.hasAxis = false;
        facts.fit = facts.fitAtStart = bad;
        facts.starAFound = facts.starBFound = false;
        facts.turnDegrees = 2;
        facts.saveTrouble = SaveTrouble::FolderNotWritable;
        facts.connected = false;
    });
    QVector<int> order;
    const auto note = [&] { order.append(int(noticeFor(f).value().code)); };
    note();
    f.connected = true;
    note();
    f.secondsWithoutPicture = 0;
    note();
    f.zoomFactor = 1;
    note();
    f.hasAxis = true;
    note();
    f.starAFound = f.starBFound = true;
    note();
    f.fit = f.fitAtStart = good;
    note();
    f.turnDegrees = 40;
    note();
    const QVector<int> expected{
        int(NoticeCode::NoCamera),         int(NoticeCode::NoPicture),
        int(NoticeCode::ZoomShowsNothing), int(NoticeCode::NoAxis),
        int(NoticeCode::StarsLost),        int(NoticeCode::TemplateMisfit),
        int(NoticeCode::AxisTurnedLittle), int(NoticeCode::SettingsNotKept)};
    QCOMPARE(order, expected);
    QVERIFY(std::is_sorted(order.begin(), order.end()));
}

void NoticeTest::sentences_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < languages.size(); ++i)
        QTest::newRow(languages[i].code) << int(i);
}

/// In every language each notice is one sentence of its own, its numbers filled in.
void NoticeTest::sentences()
{
    QFETCH(int, number);
    QTranslator translator;
    QVERIFY(translator.load(cataloguePath("lan", languages[std::size_t(number)]), "", "", ""));
    QCoreApplication::installTranslator(&translator);
    QSet<QString> seen;
    for (const Notice &notice : allNotices()) {
        const QString text = noticeText(notice);
        QVERIFY2(!text.isEmpty() && !text.contains('%'), qPrintable(text));
        QVERIFY2(text.endsWith('.') || text.endsWith(QChar(0x3002)), qPrintable(text));
        QVERIFY2(!seen.contains(text), qPrintable(text));
        seen.insert(text);
    }
    const QString misfit = noticeText({NoticeCode::TemplateMisfit, 17, 38});
    QVERIFY2(misfit.contains("17") && misfit.contains("38"), qPrintable(misfit));
    QVERIFY(noticeText({NoticeCode::DialNotReset, 90}).contains("90"));
    if (languages[std::size_t(number)].code == QLatin1String("EN"))
        QCOMPARE(noticeText({NoticeCode::TemplateMisfit, 4, 28}),
                 QString("The template does not fit: 4 of 28 rings hold a star."));
}

void NoticeTest::turns_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<double>("least");
    QTest::newRow("even") << 30.0 << 30.0 << 30.0;
    QTest::newRow("second too small") << 55.0 << 2.0 << 2.0;
    QTest::newRow("first too small") << 3.0 << 40.0 << 3.0;
    QTest::newRow("the other way") << -40.0 << -35.0 << 35.0;
    QTest::newRow("to and fro") << 40.0 << -38.0 << 2.0;
    QTest::newRow("across 360") << 170.0 << 170.0 << 20.0;
}

void NoticeTest::turns()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(double, least);
    const QPointF axis(600, 500);
    const auto at = [&](double degrees) {
        const double angle = (70 + degrees) * 3.14159265358979 / 180;
        return axis + 200 * QPointF(std::cos(angle), std::sin(angle));
    };
    const PickTurns turns = turnsBetween({at(0), at(first), at(first + second)}, axis);
    QVERIFY2(std::abs(turns.turnDegrees - least) < 1e-9,
             QByteArray::number(turns.turnDegrees).constData());
}

void NoticeTest::picksAreRemembered()
{
    AlignmentProgress progress;
    progress.enter(FirstPick);
    progress.pick(FirstPick, {100, 100}, true);
    QVERIFY(!progress.movedPixels());
    progress.enter(SecondPick);
    progress.pick(SecondPick, {103, 104}, false);
    QCOMPARE(progress.movedPixels().value(), 5.0);
    QCOMPARE(progress.emptyPick(), 2);
    progress.fitAxis({0, 0}); // two picks make no circle
    QVERIFY(!progress.turns());
    progress.enter(ThirdPick);
    progress.pick(ThirdPick, {103, 105}, true);
    QCOMPARE(progress.movedPixels().value(), 1.0);
    QVERIFY(!progress.turns());
    progress.fitAxis({0, 0});
    QCOMPARE(progress.turns()->movedPixels, 1.0);
    progress.enter(FineAdjustment);
    QVERIFY(progress.turns() && progress.emptyPick() == 2);
    progress.enter(FirstPick); // "Reset"
    QVERIFY(!progress.turns() && !progress.movedPixels());
    QCOMPARE(progress.emptyPick(), 0);
    progress.fitAxis({0, 0}); // without picks there is nothing to report about them
    QVERIFY(!progress.turns());
}

void NoticeTest::poleStarIsAskedForAgain()
{
    AlignmentProgress progress;
    progress.enter(MatchTemplate);
    QVERIFY(!progress.poleStarPicked());
    progress.pick(MatchTemplate, {400, 400}, false);
    QVERIFY(progress.poleStarPicked() && !progress.poleStarOnStar());
    progress.pick(MatchTemplate, {400, 400}, true);
    QVERIFY(progress.poleStarPicked() && progress.poleStarOnStar());
    progress.enter(FirstPick);
    progress.pick(FirstPick, {10, 10}, false); // another star's
    QVERIFY(progress.poleStarPicked() && progress.poleStarOnStar());
    for (const int step : {int(ExpectedPosition), int(CurrentPosition)}) {
        progress.enter(step);
        QVERIFY(!progress.poleStarPicked());
        progress.pick(step, {400, 400}, true);
        progress.enter(step + 1);
        QVERIFY(progress.poleStarPicked());
    }
}

void NoticeTest::preparationIsForgotten()
{
    AlignmentProgress progress;
    progress.enter(CurrentPosition);
    progress.prepareMonitor(90, bad);
    progress.enter(StartMonitor);
    progress.enter(FineAdjustment);
    QVERIFY(progress.monitorPrepared());
    QCOMPARE(progress.dialAtStart(), 90);
    QCOMPARE(progress.fitAtStart().held, bad.held);
    progress.enter(SetExposure);
    progress.enter(FineAdjustment); // "Start Monitor" by the panel
    QVERIFY(!progress.monitorPrepared());
}

QTEST_GUILESS_MAIN(NoticeTest)
#include "tst_notice.moc"
