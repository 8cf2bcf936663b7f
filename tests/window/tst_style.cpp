// SPDX-License-Identifier: MIT
// What does each display style change, in each step?
#include "core/style.h"
#include "mainwindow/wizardtable.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"
#include "tests/window/wizardnames.h"

#include <QGraphicsDropShadowEffect>
#include <memory>

namespace
{
/// The lamps as letters: C or M for the style, upper case lit, lower case dark; ? for none.
QString lampPattern(const QWidget &window)
{
    const QPair<const char *, QChar> pictures[] = {{":/images/lighton_color.png", 'C'},
                                                   {":/images/lightoff_color.png", 'c'},
                                                   {":/images/lighton_mono.png", 'M'},
                                                   {":/images/lightoff_mono.png", 'm'}};
    QString pattern;
    for (const char *const name : lampNames) {
        QChar letter = '?';
        for (const auto &picture : pictures)
            if (shows(named<QLabel>(window, name), picture.first))
                letter = picture.second;
        pattern += letter;
    }
    return pattern;
}
} // namespace

class StyleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init();
    void cleanup() { window.reset(); }
    void table_data();
    void table();
    void lampsOfSteps_data();
    void lampsOfSteps();
    void picturesDiffer();
    void toggling_data();
    void toggling();
    void log();
    void lampsInTheWindow_data();
    void lampsInTheWindow();
    void mixedLampsAfterReturn();

private:
    std::unique_ptr<SessionWindow> window;
};

void StyleTest::init()
{
    removeSettings();
    window = std::make_unique<SessionWindow>();
}

void StyleTest::table_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QStringList>("pictures"); // pole, axis, lit, unlit
    QTest::addColumn<QColor>("glow");
    const QStringList colour{":/images/pole_color.png", ":/images/center_color.png",
                             ":/images/lighton_color.png", ":/images/lightoff_color.png"};
    const QStringList mono{":/images/pole.png", ":/images/center.png", ":/images/lighton_mono.png",
                           ":/images/lightoff_mono.png"};
    QTest::newRow("Color") << "Color" << colour << QColor(224, 134, 26);
    QTest::newRow("Mono") << "Mono" << mono << QColor(248, 248, 255);
    QTest::newRow("in small letters") << "mono" << colour << QColor(224, 134, 26);
    QTest::newRow("empty") << "" << colour << QColor(224, 134, 26);
}

void StyleTest::table()
{
    QFETCH(QString, style);
    QFETCH(QStringList, pictures);
    QFETCH(QColor, glow);
    const Style &found = styleNamed(style);
    QCOMPARE((QStringList{found.poleIcon, found.axisIcon, found.lampOn, found.lampOff}), pictures);
    QCOMPARE(found.glow, glow);
}

void StyleTest::lampsOfSteps_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("lit");
    const int lit[] = {-1, -1, -1, 0, 1, 1, 2, 2, 3, 3, -1, 3, -1, -1, -1}; // of steps 0 to 14
    for (int step = 0; step < 15; ++step)
        QTest::addRow("%d", step) << step << lit[step];
    QTest::newRow("below all") << -1 << -1;
    QTest::newRow("above all") << INT_MAX << -1;
}

void StyleTest::lampsOfSteps()
{
    QFETCH(int, step);
    QFETCH(int, lit);
    QCOMPARE(lampsOnStyleChange(step), lit);
}

/// The other checks in this file would detect nothing if two of the pictures were alike.
void StyleTest::picturesDiffer()
{
    const QPair<const char *, const char *> pairs[] = {
        {":/images/pole_color.png", ":/images/pole.png"},
        {":/images/center_color.png", ":/images/center.png"},
        {":/images/lighton_color.png", ":/images/lightoff_color.png"},
        {":/images/lighton_color.png", ":/images/lighton_mono.png"},
        {":/images/lightoff_color.png", ":/images/lightoff_mono.png"},
        {":/images/lighton_mono.png", ":/images/lightoff_mono.png"}};
    for (const auto &pair : pairs) {
        QVERIFY(!QPixmap(pair.first).isNull());
        QVERIFY(!QPixmap(pair.second).isNull());
        QVERIFY2(!samePixels(QPixmap(pair.first), QPixmap(pair.second)), pair.first);
    }
}

void StyleTest::toggling_data()
{
    QTest::addColumn<QList<bool>>("toggles");
    QTest::newRow("to mono") << QList<bool>{true};
    QTest::newRow("and back") << QList<bool>{true, false};
    QTest::newRow("and to mono again") << QList<bool>{true, false, true};
}

void StyleTest::toggling()
{
    QFETCH(QList<bool>, toggles);
    for (const bool isMono : toggles)
        named<QAction>(*window, "actionMono_Style").setChecked(isMono);
    const bool isMono = toggles.last();
    QCOMPARE(MainWindowProbe(*window).styleName(), QString(isMono ? "Mono" : "Color"));
    QCOMPARE(bool(window->ownSession.overlayFlags.monoStyle), isMono);
    QVERIFY(shows(named<QLabel>(*window, "label_precise_poleIcon"),
                  isMono ? ":/images/pole.png" : ":/images/pole_color.png"));
    QVERIFY(shows(named<QLabel>(*window, "label_precise_axisIcon"),
                  isMono ? ":/images/center.png" : ":/images/center_color.png"));
    const auto shadows = window->findChildren<QGraphicsDropShadowEffect *>();
    QCOMPARE(shadows.size(), 2);
    for (const auto *const shadow : shadows) {
        QCOMPARE(shadow->color(), isMono ? QColor(248, 248, 255) : QColor(224, 134, 26));
        QCOMPARE(shadow->blurRadius(), 20.0);
        QVERIFY(!shadow->isEnabled());
    }
}

void StyleTest::log()
{
    auto &action = named<QAction>(*window, "actionMono_Style");
    const LogRecorder log;
    action.setChecked(true);
    QCOMPARE(log.texts(QtDebugMsg), QStringList{"switch to mono style"});
    action.setChecked(false);
    QCOMPARE(log.texts(QtDebugMsg).last(), QString("switch to color style"));
    QCOMPARE(log.lines().size(), 2);
}

void StyleTest::lampsInTheWindow_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("before"); // in colour
    QTest::addColumn<QString>("mono");
    const struct {
        int step;
        const char *before, *mono;
    } rows[] = {{3, "ccc", "mmm"}, {4, "Ccc", "Mmm"}, {5, "Ccc", "Mmm"}, {6, "CCc", "MMm"},
                {7, "CCc", "MMm"}, {8, "CCC", "MMM"}, {9, "CCC", "MMM"}};
    for (const auto &row : rows)
        QTest::addRow("%d", row.step) << row.step << row.before << row.mono;
    // These steps keep the lamps of the step before them.
    for (const int step : {1, 2, 10, 12, 13})
        QTest::addRow("%d, kept", step) << step << "CCc"
                                        << "CCc";
    QTest::newRow("11 lights all") << 11 << "CCc"
                                   << "MMM";
}

void StyleTest::lampsInTheWindow()
{
    QFETCH(int, step);
    QFETCH(QString, before);
    QFETCH(QString, mono);
    MainWindowProbe probe(*window);
    probe.switchStep(7);
    probe.switchStep(step);
    QCOMPARE(lampPattern(*window), before);
    named<QAction>(*window, "actionMono_Style").setChecked(true);
    QCOMPARE(lampPattern(*window), mono);
    named<QAction>(*window, "actionMono_Style").setChecked(false);
    QCOMPARE(lampPattern(*window), mono.toUpper() == mono && step == 11 ? "CCC" : before);
}

/// A style change in step 12 leaves the lamps unchanged; the next step that sets them catches up.
void StyleTest::mixedLampsAfterReturn()
{
    MainWindowProbe probe(*window);
    probe.switchStep(9);
    probe.switchStep(12);
    named<QAction>(*window, "actionMono_Style").setChecked(true);
    QCOMPARE(lampPattern(*window), QString("CCC"));
    probe.switchStep(3);
    QCOMPARE(lampPattern(*window), QString("mmm"));
    named<QAction>(*window, "actionMono_Style").setChecked(false);
    QCOMPARE(lampPattern(*window), QString("ccc"));
}

QTEST_MAIN(StyleTest)
#include "tst_style.moc"
