// SPDX-License-Identifier: MIT
// What does entering each step change, and which button leads to which step?
#include "tests/support/logrecorder.h"
#include "tests/window/freshwindowtest.h"
#include "tests/window/wizardnames.h"

#include <QRadioButton>
#include <QTabWidget>

namespace
{
const char *const sectionNames[] = {"region", "setting", "confirm", "rough", "precise"};

/// What a step does, written as a row: '1' on, '0' off, '-' unchanged.
struct StepRow {
    const char *sections; ///< region, setting, confirm, rough, precise
    char shownTemplate, arrow;
    const char *lamps; ///< the three, or null
    char axisMark, starCircle, rotatingArc, monitor;
    char blinking;
};

const StepRow stepRows[stepCount] = {
    {"11000", '0', '0', nullptr, '0', '0', '0', '0', '-'},
    {"10100", '-', '0', nullptr, '-', '-', '-', '-', '-'},
    {"10010", '0', '0', "000", '0', '0', '-', '-', '0'},
    {"10010", '0', '1', "100", '0', '0', '-', '-', '-'},
    {"10010", '0', '0', "100", '0', '0', '-', '-', '-'},
    {"10010", '0', '1', "110", '0', '0', '-', '-', '-'},
    {"10010", '0', '0', "110", '0', '0', '-', '-', '-'},
    {"10010", '0', '0', "111", '1', '1', '-', '-', '-'},
    {"10010", '-', '0', "111", '1', '0', '1', '-', '-'},
    {"10010", '0', '0', nullptr, '1', '0', '1', '-', '0'},
    {"10010", '-', '0', nullptr, '1', '0', '0', '-', '-'},
    {"10001", '0', '0', nullptr, '-', '-', '-', '-', '0'},
    {"10001", '0', '0', nullptr, '-', '-', '-', '1', '-'},
};

const char *lampPicture(bool isMono, bool isLit)
{
    if (isMono)
        return isLit ? ":/images/lighton_mono.png" : ":/images/lightoff_mono.png";
    return isLit ? ":/images/lighton_color.png" : ":/images/lightoff_color.png";
}
} // namespace

class WizardTableTest : public FreshWindowTest
{
    Q_OBJECT

private slots:
    void steps_data();
    void steps();
    void restingSteps_data();
    void restingSteps();
    void buttons_data();
    void buttons();
    void hemisphereRestartsTheWizard_data();
    void hemisphereRestartsTheWizard();
    void sameHemisphereChangesNothing();
    void doneKeepsTheOverlays();
    void restartClearsTheOverlays();
    void sectionHeads_data();
    void sectionHeads();
    void headsStayDisabled();

private:
    QTabWidget &tabs() { return named<QTabWidget>(*window, "tabWidget_tipMsg"); }
    void setAll(bool on, bool isMono);
    QString state();
};

/// Sets everything that a step may change to one extreme.
void WizardTableTest::setAll(bool on, bool isMono)
{
    named<QAction>(*window, "actionMono_Style").setChecked(isMono);
    for (const char *const section : sectionNames)
        named<QPushButton>(*window, QString("pushButton_head_%1").arg(section)).setChecked(on);
    for (const char *const label : {"label_templateImg", "directionArrow"})
        named<QLabel>(*window, label).setVisible(on);
    for (const char *const lamp : lampNames)
        named<QLabel>(*window, lamp).setPixmap(QPixmap(lampPicture(isMono, on)));
    OverlayFlags &flags = session().overlayFlags;
    for (Relaxed<bool> *const flag :
         {&flags.showAxisMark, &flags.showStarCircle, &flags.showRotatingArc,
          &flags.monitorTracking, &flags.showPoleRect, &flags.showMonitorCross})
        *flag = on;
    if (on)
        probe->effectTimer().start();
    else
        probe->effectTimer().stop();
    tabs().setVisible(on);
    tabs().setCurrentIndex(on ? stepCount - 1 : 0);
}

/// The whole state in one line, for comparison.
QString WizardTableTest::state()
{
    const auto digit = [](bool on) { return QString(on ? "1" : "0"); };
    const bool isMono = session().overlayFlags.monoStyle;
    QString heads, bodies, lamps;
    for (const QString section : sectionNames) {
        heads += digit(named<QPushButton>(*window, "pushButton_head_" + section).isChecked());
        bodies += digit(isOpen(named<QWidget>(*window, "widget_" + section)));
    }
    for (const char *const name : lampNames) {
        const auto &lamp = named<QLabel>(*window, name);
        lamps += shows(lamp, lampPicture(isMono, true))    ? '1'
                 : shows(lamp, lampPicture(isMono, false)) ? '0'
                                                           : '?';
    }
    return QString("heads %1 bodies %2 template %3 arrow %4 lamps %5 axis %6 circle %7 arc %8 ")
               .arg(heads, bodies, digit(isOpen(named<QLabel>(*window, "label_templateImg"))),
                    digit(isOpen(named<QLabel>(*window, "directionArrow"))), lamps,
                    digit(session().overlayFlags.showAxisMark),
                    digit(session().overlayFlags.showStarCircle),
                    digit(session().overlayFlags.showRotatingArc)) +
           QString("monitor %1%2%3 blinking %4 pages %5 page %6")
               .arg(digit(session().overlayFlags.monitorTracking),
                    digit(session().overlayFlags.showPoleRect),
                    digit(session().overlayFlags.showMonitorCross),
                    digit(probe->effectTimer().isActive()), digit(isOpen(tabs())),
                    QString::number(tabs().currentIndex()));
}

void WizardTableTest::steps_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("isMono");
    for (int step = 1; step <= stepCount; ++step) {
        for (const bool isMono : {false, true}) {
            const char *const style = isMono ? "mono" : "colour";
            QTest::addRow("%d from all on, %s", step, style) << step << true << isMono;
            QTest::addRow("%d from all off, %s", step, style) << step << false << isMono;
        }
    }
}

void WizardTableTest::steps()
{
    QFETCH(int, step);
    QFETCH(bool, before);
    QFETCH(bool, isMono);
    setAll(before, isMono);
    probe->switchStep(step);
    const StepRow &row = stepRows[step - 1];
    const char kept = before ? '1' : '0';
    const auto after = [kept](char cell) { return QString(QChar(cell == '-' ? kept : cell)); };
    const QString lamps = row.lamps ? QString(row.lamps) : QString(3, kept);
    const QString expected =
        QString("heads %1 bodies %1 template %2 arrow %3 lamps %4 axis %5 circle %6 arc %7 ")
            .arg(row.sections, after(row.shownTemplate), after(row.arrow), lamps,
                 after(row.axisMark), after(row.starCircle), after(row.rotatingArc)) +
        QString("monitor %1%1%1 blinking %2 pages 1 page %3")
            .arg(after(row.monitor), after(row.blinking), QString::number(step - 1));
    QCOMPARE(state(), expected);
    QCOMPARE(window->step(), step);
}

void WizardTableTest::restingSteps_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("isDone");
    QTest::newRow("0, at disconnection") << 0 << false;
    QTest::newRow("14, done") << 14 << true;
    QTest::newRow("15") << 15 << false;
    QTest::newRow("-1") << -1 << false;
    QTest::newRow("least") << INT_MIN << false;
    QTest::newRow("most") << INT_MAX << false;
}

void WizardTableTest::restingSteps()
{
    QFETCH(int, step);
    QFETCH(bool, isDone);
    probe->switchStep(13);
    setAll(true, false);
    QString expected = state();
    expected.replace("pages 1", "pages 0");
    if (!isDone)
        expected.replace("heads 11111 bodies 11111 template 1 arrow 1",
                         "heads 00000 bodies 00000 template 0 arrow 0");
    probe->switchStep(step);
    QCOMPARE(state(), expected);
    QCOMPARE(window->step(), 13);
}

void WizardTableTest::buttons_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("to");
    const struct {
        int from;
        const char *button;
        int to;
    } rows[] = {
        {1, "pushButton_setting_done", 2},         {2, "pushButton_confirm_done", 3},
        {4, "pushButton_rotateStar1_done", 5},     {4, "pushButton_rotateStar1_reset", 3},
        {5, "pushButton_getStar2_reset", 3},       {6, "pushButton_rotateStar2_done", 7},
        {6, "pushButton_rotateStar2_reset", 3},    {7, "pushButton_getStar3_reset", 3},
        {8, "pushButton_validateCenter_done", 9},  {8, "pushButton_validateCenter_reset", 3},
        {9, "pushButton_getEptPolaris_done", 10},  {10, "pushButton_movePolaris_done", 11},
        {11, "pushButton_getCurPolaris_done", 12}, {12, "pushButton_monitor", 13},
        {13, "pushButton_finetunePole_reset", 1},  {13, "pushButton_finetunePole_done", 13}};
    for (const auto &row : rows)
        QTest::addRow("%d %s", row.from, row.button) << row.from << QString(row.button) << row.to;
}

/// With the mouse, on the page over the picture.
void WizardTableTest::buttons()
{
    QFETCH(int, from);
    QFETCH(QString, button);
    QFETCH(int, to);
    window->resize(1280, 900);
    window->show();
    probe->switchStep(from);
    auto &pressed = named<QPushButton>(*window, button);
    QVERIFY(pressed.isVisible());
    QTest::mouseClick(&pressed, Qt::LeftButton);
    QCOMPARE(window->step(), to);
    QCOMPARE(tabs().isVisible(), button != "pushButton_finetunePole_done");
    QCOMPARE(tabs().currentIndex(), to - 1);
}

void WizardTableTest::hemisphereRestartsTheWizard_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= stepCount; ++step)
        QTest::addRow("%d", step) << step;
}

void WizardTableTest::hemisphereRestartsTheWizard()
{
    QFETCH(int, step);
    probe->switchStep(step);
    named<QRadioButton>(*window, "radioButton_south").click();
    QCOMPARE(window->step(), 1);
    QVERIFY(isOpen(tabs()));
    probe->switchStep(step);
    named<QRadioButton>(*window, "radioButton_north").click();
    QCOMPARE(window->step(), 1);
}

void WizardTableTest::sameHemisphereChangesNothing()
{
    probe->switchStep(5);
    const LogRecorder log;
    named<QRadioButton>(*window, "radioButton_north").click();
    QCOMPARE(window->step(), 5);
    QCOMPARE(log.lines().size(), 0);
}

void WizardTableTest::doneKeepsTheOverlays()
{
    probe->switchStep(13);
    named<QPushButton>(*window, "pushButton_finetunePole_done").click();
    QVERIFY(session().overlayFlags.monitorTracking);
    QVERIFY(session().overlayFlags.showPoleRect);
    QVERIFY(session().overlayFlags.showMonitorCross);
    QCOMPARE(window->step(), 13);
    QVERIFY(!isOpen(tabs()));
    QVERIFY(isOpen(named<QWidget>(*window, "widget_precise")));
}

void WizardTableTest::restartClearsTheOverlays()
{
    setAll(true, false);
    probe->switchStep(13);
    named<QPushButton>(*window, "pushButton_finetunePole_reset").click();
    OverlayFlags &flags = session().overlayFlags;
    for (const Relaxed<bool> *const flag :
         {&flags.showAxisMark, &flags.showStarCircle, &flags.showRotatingArc,
          &flags.monitorTracking, &flags.showPoleRect, &flags.showMonitorCross})
        QVERIFY(!*flag);
}

void WizardTableTest::sectionHeads_data()
{
    QTest::addColumn<QString>("section");
    for (const char *const section : sectionNames)
        QTest::newRow(section) << section;
}

void WizardTableTest::sectionHeads()
{
    QFETCH(QString, section);
    auto &head = named<QPushButton>(*window, "pushButton_head_" + section);
    const auto &body = named<QWidget>(*window, "widget_" + section);
    const LogRecorder log;
    head.setChecked(true);
    QVERIFY(isOpen(body));
    QVERIFY(hasIcon(head, ":/images/collapse.png"));
    head.setChecked(false);
    QVERIFY(!isOpen(body));
    QVERIFY(hasIcon(head, ":/images/expand.png"));
    QCOMPARE(log.texts(QtDebugMsg),
             (QStringList{section + " head  true", section + " head  false"}));
    QCOMPARE(log.lines().size(), 2);
    for (const QString other : sectionNames)
        QVERIFY(!isOpen(named<QWidget>(*window, "widget_" + other)));
}

void WizardTableTest::headsStayDisabled()
{
    for (int step = 0; step <= 14; ++step) {
        probe->switchStep(step);
        for (const char *const section : sectionNames)
            QVERIFY(!named<QPushButton>(*window, QString("pushButton_head_%1").arg(section))
                         .isEnabled());
    }
}

QTEST_MAIN(WizardTableTest)
#include "tst_wizardtable.moc"
