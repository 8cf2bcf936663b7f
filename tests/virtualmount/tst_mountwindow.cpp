// SPDX-License-Identifier: MIT
// Do the bolts, the axis and the truth in the virtual mount's window work as labelled, and is
// everything in it reachable?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/support/wheel.h"
#include "tests/virtualmount/mountwindowtest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QSet>
#include <QShortcut>
#include <QSlider>
#include <cmath>

using virtualsky::SkyState;

namespace
{
constexpr double coarse = 5.0 / 60.0;
constexpr double fine = 20.0 / 3600.0;
} // namespace

class MountWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void hasAnIcon();
    void returnPressesOnce_data();
    void returnPressesOnce();
    void initTestCase();
    void bolts_data();
    void bolts();
    void aHeldButtonRepeats();
    void axisTurns_data();
    void axisTurns();
    void theAxisMovesAtAPersonsPace();
    void homeStopsAndGoesBack();
    void theDialLeadsTheAxis();
    void arrowsStayInTheFields_data();
    void arrowsStayInTheFields();
    void wheelNeedsTheFocus_data();
    void wheelNeedsTheFocus();
    void arrowsAreTheBoltsAfterTheMouse();
    void aHeldKeyTurnsTheAxisOnce();
    void trackingIsKeptInTheAngle();
    void theTruthIsHiddenUntilAskedFor();
    void theTruthIsHiddenAgain_data();
    void theTruthIsHiddenAgain();
    void reset();
    void everythingIsReachedByTab();
    void mnemonicsAreUnique();
    void everythingHasAName();
    void fitsBesideTheMainWindow();
};

void MountWindowTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountWindowTest::bolts_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QString>("counts");
    QTest::newRow("up") << "altitudeUp" << Qt::Key_Up << false << coarse << 0.0 << "0.25 up, 0";
    QTest::newRow("down") << "altitudeDown" << Qt::Key_Down << false << -coarse << 0.0
                          << "0.25 down, 0";
    QTest::newRow("up finely") << "altitudeUpFine" << Qt::Key_Up << true << fine << 0.0
                               << "0.02 up, 0";
    QTest::newRow("down finely") << "altitudeDownFine" << Qt::Key_Down << true << -fine << 0.0
                                 << "0.02 down, 0";
    QTest::newRow("east") << "azimuthEast" << Qt::Key_Right << false << 0.0 << coarse
                          << "0, 0.25 east";
    QTest::newRow("west") << "azimuthWest" << Qt::Key_Left << false << 0.0 << -coarse
                          << "0, 0.25 west";
    QTest::newRow("east finely") << "azimuthEastFine" << Qt::Key_Right << true << 0.0 << fine
                                 << "0, 0.02 east";
    QTest::newRow("west finely") << "azimuthWestFine" << Qt::Key_Left << true << 0.0 << -fine
                                 << "0, 0.02 west";
}

void MountWindowTest::bolts()
{
    QFETCH(QString, button);
    QFETCH(Qt::Key, key);
    QFETCH(bool, shift);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(QString, counts);
    for (const bool byKey : {false, true}) {
        const SkyFileFixture file;
        const ShownWindow shown(file.path());
        QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
        if (byKey)
            press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        else
            clickOn(shown.window, button);
        const SkyState state = file.state();
        QVERIFY(near(state.boltAltitude, 0.6 + altitude, 1e-7));
        QVERIFY(near(state.boltAzimuth, -1.0 + azimuth, 1e-7));
        QCOMPARE(textOf(shown.window, "altitudeCount") + ", " +
                     textOf(shown.window, "azimuthCount"),
                 counts);
    }
}

void MountWindowTest::aHeldButtonRepeats()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &button = named<QAbstractButton>(shown.window, "azimuthEastFine");
    QTest::mousePress(&button, Qt::LeftButton);
    QTRY_VERIFY(file.text().size() > 0 && file.state().boltAzimuth > -1.0 + 3.5 * fine);
    QTest::mouseRelease(&button, Qt::LeftButton);
    const QByteArray text = file.text();
    QTest::qWait(300);
    QCOMPARE(file.text(), text);
}

void MountWindowTest::axisTurns_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<Qt::Key>("key");
    const int turns[] = {-45, -30, -15, 15, 30, 45};
    for (int i = 0; i < 6; ++i)
        QTest::addRow("%d degrees", turns[i]) << turns[i] << Qt::Key(Qt::Key_1 + i);
}

void MountWindowTest::axisTurns()
{
    QFETCH(int, degrees);
    QFETCH(Qt::Key, key);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 170 # so far\n");
    const ShownWindow shown(file.path());
    const auto expect = [&](double angle) {
        QTRY_VERIFY(near(file.state().raAngle, angle, 1e-6));
        QTest::qWait(150); // and no further
        QVERIFY(near(file.state().raAngle, angle, 1e-6));
        QCOMPARE(named<QDial>(shown.window, "dial").value(), qRound(angle));
    };
    clickOn(shown.window, QString("turn%1").arg(degrees));
    expect(std::remainder(170.0 + degrees, 360.0));
    press(key, Qt::ControlModifier);
    expect(std::remainder(170.0 + 2.0 * degrees, 360.0));
    QVERIFY(file.text().endsWith(" # so far\n"));
}

void MountWindowTest::theAxisMovesAtAPersonsPace()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QElapsedTimer time;
    time.start();
    clickOn(shown.window, "turn45");
    QList<double> seen = {0.0};
    while (seen.last() < 45.0 && time.elapsed() < patience) {
        QTest::qWait(10);
        if (file.text().isEmpty())
            continue;
        const double angle = file.state().raAngle;
        if (angle != seen.last())
            seen.append(angle);
    }
    // 45 degrees at 20 degrees a second: 2.25 s, later on a busy machine and never sooner.
    QVERIFY2(time.elapsed() >= 2100, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(seen.last(), 45.0);
    QVERIFY2(seen.size() >= 9, qPrintable(QString::number(seen.size())));
    for (int i = 1; i < seen.size(); ++i)
        QVERIFY(seen[i] > seen[i - 1]);
}

void MountWindowTest::homeStopsAndGoesBack()
{
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 4\n");
    const ShownWindow shown(file.path());
    clickOn(shown.window, "turn45");
    QTRY_VERIFY(file.state().raAngle > 5.0);
    pressMnemonic(Qt::Key_H);
    QTRY_COMPARE(file.state().raAngle, 0.0);
    QTRY_COMPARE(textOf(shown.window, "angle"), QString("0.0°"));
    QTest::qWait(200);
    QCOMPARE(file.state().raAngle, 0.0);
}

void MountWindowTest::theDialLeadsTheAxis()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &dial = named<QDial>(shown.window, "dial");
    press(Qt::Key_A, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), &dial);
    press(Qt::Key_PageUp); // fifteen degrees
    QCOMPARE(dial.value(), 15);
    QTRY_COMPARE(file.text().isEmpty() ? 0.0 : file.state().raAngle, 15.0);
    press(Qt::Key_Down);
    QTRY_COMPARE(file.state().raAngle, 14.0);
    QCOMPARE(dial.value(), 14);
    // With the mouse: a quarter of a turn anticlockwise of the top.
    QTest::mouseClick(&dial, Qt::LeftButton, Qt::NoModifier, QPoint(4, dial.height() / 2));
    const int goal = dial.value();
    QVERIFY2(std::abs(goal + 90) <= 4, qPrintable(QString::number(goal)));
    QTRY_COMPARE(file.state().raAngle, double(goal));
    QCOMPARE(dial.value(), goal);
}

void MountWindowTest::arrowsStayInTheFields_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field :
         {"dial", "latitude", "latitudeSide", "longitude", "longitudeSide", "clouds", "seeing"})
        QTest::newRow(field) << field;
}

void MountWindowTest::arrowsStayInTheFields()
{
    QFETCH(QString, field);
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 45\n[weather]\nclouds = 0.5\n");
    const ShownWindow shown(file.path());
    named<QWidget>(shown.window, field).setFocus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
        press(key);
    press(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "azimuthCount"), QString("0"));
    QCOMPARE(file.state().boltAltitude, 0.6);
    press(Qt::Key_Escape); // out of the field
    press(Qt::Key_Up);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.25 up"));
}

void MountWindowTest::wheelNeedsTheFocus_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field : {"dial", "latitude", "latitudeSide", "longitude", "longitudeSide",
                              "timeMode", "date", "clouds", "moon", "seeing"})
        QTest::newRow(field) << field;
}

/// The wheel over a field without the focus changes nothing.
void MountWindowTest::wheelNeedsTheFocus()
{
    QFETCH(QString, field);
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 45\n[weather]\nclouds = 0.5\nmoon = 0.5\n");
    const QByteArray before = file.text();
    const ShownWindow shown(file.path());
    auto &widget = named<QWidget>(shown.window, field);
    for (const int notches : {-1, 1, 1})
        rollWheel(widget, notches);
    QTest::qWait(100);
    QVERIFY(!widget.hasFocus());
    QCOMPARE(file.text(), before);
}

void MountWindowTest::arrowsAreTheBoltsAfterTheMouse()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &dial = named<QDial>(shown.window, "dial");
    QTest::mouseClick(&dial, Qt::LeftButton, Qt::NoModifier, QPoint(4, dial.height() / 2));
    QTRY_VERIFY(!dial.hasFocus());
    press(Qt::Key_Up);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.25 up"));
    auto &side = named<QComboBox>(shown.window, "latitudeSide");
    side.setFocus();
    side.showPopup();
    QAbstractItemView &list = *side.view();
    QTRY_VERIFY(list.isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 100); // until the list accepts a release
    const QPoint south(10, list.visualRect(list.model()->index(1, 0)).center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, south);
    QTRY_COMPARE(side.currentIndex(), 1);
    QTRY_VERIFY(!side.hasFocus());
    press(Qt::Key_Up);
    QCOMPARE(side.currentIndex(), 1);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.50 up"));
}

void MountWindowTest::aHeldKeyTurnsTheAxisOnce()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    for (const QShortcut *const shortcut : shown.window.findChildren<QShortcut *>()) {
        const int key = shortcut->key()[0];
        const bool turnsTheAxis =
            key >= int(Qt::CTRL) + Qt::Key_1 && key <= int(Qt::CTRL) + Qt::Key_6;
        const bool turnsABolt =
            (key & ~int(Qt::SHIFT)) >= Qt::Key_Left && (key & ~int(Qt::SHIFT)) <= Qt::Key_Down;
        if (turnsTheAxis || turnsABolt)
            QCOMPARE(shortcut->autoRepeat(), turnsABolt);
    }
}

void MountWindowTest::trackingIsKeptInTheAngle()
{
    // An hour of tracking under a frozen sky, started elsewhere, is turned off and on here.
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\nrunning = false\n[mount]\nra_angle = 10\n"
                   "tracking = true\ntracking_since = 2026-11-20T19:00:00Z\n");
    const ShownWindow shown(file.path());
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
    pressMnemonic(Qt::Key_K);
    SkyState state = file.state();
    QVERIFY(!state.tracking && !state.trackingSince);
    QVERIFY(near(state.raAngle, 10.0 + 360.0 * 3600.0 / 86164.0989, 1e-4));
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
    clickOn(shown.window, "tracking");
    state = file.state();
    QVERIFY(state.tracking && !state.trackingSince);
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
}

void MountWindowTest::theTruthIsHiddenUntilAskedFor()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 60\n[mount]\nbolt_altitude = 0.25\nbolt_azimuth = 0\n");
    const ShownWindow shown(file.path());
    const QRegularExpression figure("[0-9]");
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
    press(Qt::Key_Up);
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
    press(Qt::Key_Down);
    pressMnemonic(Qt::Key_T);
    QCOMPARE(textOf(shown.window, "truth"),
             QString("The RA axis misses the pole by 15′ 00″:\n15′ 00″ too high and 0′ 00″."));
    press(Qt::Key_Down); // and it follows the bolts
    QCOMPARE(textOf(shown.window, "truth"),
             QString("The RA axis misses the pole by 10′ 00″:\n10′ 00″ too high and 0′ 00″."));
    clickOn(shown.window, "showTruth");
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
}

void MountWindowTest::theTruthIsHiddenAgain_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("a new site") << "latitude" << true;
    QTest::newRow("a new site by an editor") << "editor" << true;
    QTest::newRow("reset") << "reset" << true;
    QTest::newRow("not by weather") << "refraction" << false;
    QTest::newRow("not by the axis") << "home" << false;
}

void MountWindowTest::theTruthIsHiddenAgain()
{
    QFETCH(QString, by);
    QFETCH(bool, hidden);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 2\n");
    const ShownWindow shown(file.path());
    clickOn(shown.window, "showTruth");
    QVERIFY(textOf(shown.window, "truth").contains("58′ 13″"));
    if (by == "latitude")
        named<QDoubleSpinBox>(shown.window, by).setValue(41.0);
    else if (by == "editor")
        file.writeText("[site]\nlongitude = 3\n");
    else
        clickOn(shown.window, by);
    if (hidden) {
        QTRY_VERIFY(!textOf(shown.window, "truth").contains("′"));
        QCOMPARE(named<QAbstractButton>(shown.window, "showTruth").text(),
                 QString("Show me the tru&th"));
    } else {
        QTest::qWait(300);
        QVERIFY(textOf(shown.window, "truth").contains("58′ 13″"));
    }
}

void MountWindowTest::reset()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = -30\n[weather]\nmoon = 1 # full\n[faults]\ncameras = 2\n");
    const SkyState before = file.state();
    const ShownWindow shown(file.path());
    press(Qt::Key_Up);
    clickOn(shown.window, "turn45");
    clickOn(shown.window, "passing");
    QTest::qWait(200);
    pressMnemonic(Qt::Key_R);
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(before));
    QVERIFY(file.text().contains(" # full\n"));
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "angle"), QString("0.0°"));
    QVERIFY(named<QSlider>(shown.window, "clouds").isEnabled());
    QTest::qWait(300); // nothing keeps moving
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(before));
}

void MountWindowTest::everythingIsReachedByTab()
{
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\n");
    const ShownWindow shown(file.path());
    QSet<QWidget *> fields;
    for (QWidget *const widget : shown.window.findChildren<QWidget *>())
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
            !widget->focusProxy())
            fields.insert(widget);
    QVERIFY2(fields.size() >= 30, qPrintable(QString::number(fields.size())));
    QWidget *const first = QApplication::focusWidget();
    QList<QWidget *> reached;
    do {
        if (reached.isEmpty() || reached.last() != QApplication::focusWidget())
            reached.append(QApplication::focusWidget()); // a date is left after its last part
        press(Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && reached.size() < 100);
    for (QWidget *const field : fields)
        QVERIFY2(reached.contains(field), qPrintable(field->objectName()));
    // Down the window; within a panel the order may go along a line or a column.
    QCOMPARE(reached.size(), fields.size());
    int backwards = 0;
    for (int i = 1; i < reached.size(); ++i) {
        const auto top = [&](const QWidget *w) { return w->mapTo(&shown.window, QPoint()).y(); };
        backwards += top(reached[i]) < top(reached[i - 1]) - 30;
    }
    QCOMPARE(backwards, 1); // from the last to the first
}

void MountWindowTest::mnemonicsAreUnique()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QHash<QString, QString> users;
    const auto take = [&](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty())
            return;
        QVERIFY2(!users.contains(key.toString()),
                 qPrintable(text + " and " + users.value(key.toString())));
        users.insert(key.toString(), text);
    };
    for (const auto *const button : shown.window.findChildren<QAbstractButton *>())
        take(button->text());
    for (const auto *const label : shown.window.findChildren<QLabel *>())
        if (label->buddy())
            take(label->text());
    QVERIFY2(users.size() >= 14, qPrintable(QString::number(users.size())));
}

void MountWindowTest::everythingHasAName()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int fields = 0;
    for (const auto *const widget : shown.window.findChildren<QWidget *>()) {
        const auto *const button = qobject_cast<const QAbstractButton *>(widget);
        const bool isField = qobject_cast<const QAbstractSpinBox *>(widget) ||
                             qobject_cast<const QAbstractSlider *>(widget) ||
                             qobject_cast<const QComboBox *>(widget);
        if (!(button || isField) || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        ++fields;
        const bool says = button && !button->text().isEmpty();
        QVERIFY2(says || !widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QVERIFY2(fields >= 31, qPrintable(QString::number(fields)));
}

void MountWindowTest::fitsBesideTheMainWindow()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    const QSize size = shown.window.size();
    QVERIFY2(size.width() >= 360 && size.width() <= 420, qPrintable(QString::number(size.width())));
    QVERIFY2(size.height() <= 700, qPrintable(QString::number(size.height())));
    QCOMPARE(shown.window.windowTitle(), QString("Quorvandel Virtual Mount"));
}

/// In every size that a title bar or a window list may request.
void MountWindowTest::hasAnIcon()
{
    const SkyFileFixture file;
    const MountWindow window(file.path());
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        const QImage picture = window.windowIcon().pixmap(side, side).toImage();
        QCOMPARE(picture.size(), QSize(side, side));
        QVERIFY(picture.pixelColor(side / 2, side / 2).alpha() > 0);
    }
}

void MountWindowTest::returnPressesOnce_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("space bar") << Qt::Key_Space;
}

void MountWindowTest::returnPressesOnce()
{
    QFETCH(Qt::Key, key);
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &truth = named<QAbstractButton>(shown.window, "showTruth");
    const QSignalSpy clicks(&truth, &QAbstractButton::clicked);
    truth.setFocus();
    press(key);
    QCOMPARE(clicks.count(), 1);
    auto &tracking = named<QAbstractButton>(shown.window, "tracking");
    const bool before = tracking.isChecked();
    tracking.setFocus();
    press(key);
    QCOMPARE(tracking.isChecked(), !before);
}

QTEST_MAIN(MountWindowTest)
#include "tst_mountwindow.moc"
