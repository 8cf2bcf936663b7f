// SPDX-License-Identifier: MIT
// Does the pole tracking dialog report every angle, and only within its range?
#include "dialogs/poletrackingdialog.h"
#include "resources/resources.h"
#include "tests/window/windowtest.h"

#include <QApplication>
#include <QDial>
#include <QFrame>
#include <QMouseEvent>
#include <QSignalSpy>
#include <cmath>

namespace
{
/// At the dial's rim, in the direction of a clock's hour hand: 12 is up, the ends meet at 6.
void sendMouse(QDial &dial, QEvent::Type type, double hour, Qt::MouseButtons held,
               Qt::MouseButton button = Qt::LeftButton)
{
    constexpr double radius = 38;
    const double angle = hour / 6 * 3.141592653589793;
    const QPointF place = QPointF(dial.rect().center()) +
                          QPointF(radius * std::sin(angle), -radius * std::cos(angle));
    QMouseEvent event(type, place.toPoint(), type == QEvent::MouseMove ? Qt::NoButton : button,
                      held, Qt::NoModifier);
    QApplication::sendEvent(&dial, &event);
}
} // namespace

class TrackingDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void dialProperties();
    void dialButtons_data();
    void dialButtons();
    void dialAnnouncesEveryValue();
    void keysDoNotWrap();
    void draggingDoesNotWrap_data();
    void draggingDoesNotWrap();
    void noOtherButtonBeginsADrag();
    void trackingReset();
};

void TrackingDialogTest::dialProperties()
{
    const PoleTrackingDialog dialog;
    const auto &dial = named<QDial>(dialog, "dial_tracking");
    QCOMPARE(dial.minimum(), 0);
    QCOMPARE(dial.maximum(), 360);
    QCOMPARE(dial.value(), 0);
    QVERIFY(!dial.invertedControls());
    QVERIFY(!dial.invertedAppearance());
    QVERIFY(!dial.wrapping());
    QVERIFY(named<QLabel>(dialog, "label_info").wordWrap());
    QVERIFY(named<QPushButton>(dialog, "pushButton_reset").font().underline());
    QVERIFY(!named<QPushButton>(dialog, "pushButton_tracking_add").font().underline());
    const auto &line = named<QFrame>(dialog, "line");
    QCOMPARE(line.frameShape(), QFrame::HLine);
    QCOMPARE(line.frameShadow(), QFrame::Sunken);
}

void TrackingDialogTest::dialButtons_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<double>>("announced");
    const QString minus = "pushButton_tracking_minus", add = "pushButton_tracking_add",
                  reset = "pushButton_reset";
    using Values = QList<double>;
    QTest::newRow("minus") << 45 << minus << 44 << Values{44};
    QTest::newRow("minus to 0") << 1 << minus << 0 << Values{0};
    QTest::newRow("minus at 0") << 0 << minus << 0 << Values{};
    QTest::newRow("plus") << 45 << add << 46 << Values{46};
    QTest::newRow("plus to 360") << 359 << add << 360 << Values{360};
    QTest::newRow("plus at 360") << 360 << add << 360 << Values{};
    QTest::newRow("reset") << 45 << reset << 0 << Values{0};
    QTest::newRow("reset at 360") << 360 << reset << 0 << Values{0};
    QTest::newRow("reset at 0") << 0 << reset << 0 << Values{};
}

void TrackingDialogTest::dialButtons()
{
    QFETCH(int, start);
    QFETCH(QString, button);
    QFETCH(int, value);
    QFETCH(QList<double>, announced);
    PoleTrackingDialog dialog;
    auto &dial = named<QDial>(dialog, "dial_tracking");
    dial.setValue(start);
    const QSignalSpy spy(&dialog, &PoleTrackingDialog::trackPole);
    named<QPushButton>(dialog, button).click();
    QCOMPARE(dial.value(), value);
    QList<double> found;
    for (const QList<QVariant> &arguments : spy)
        found << arguments.first().toDouble();
    QCOMPARE(found, announced);
}

void TrackingDialogTest::dialAnnouncesEveryValue()
{
    PoleTrackingDialog dialog;
    auto &dial = named<QDial>(dialog, "dial_tracking");
    const QSignalSpy spy(&dialog, &PoleTrackingDialog::trackPole);
    dial.setValue(90);
    QTest::keyClick(&dial, Qt::Key_Up);
    QTest::keyClick(&dial, Qt::Key_End);
    QList<double> found;
    for (const QList<QVariant> &arguments : spy)
        found << arguments.first().toDouble();
    QCOMPARE(found, (QList<double>{90, 91, 360}));
}

void TrackingDialogTest::keysDoNotWrap()
{
    PoleTrackingDialog dialog;
    auto &dial = named<QDial>(dialog, "dial_tracking");
    dial.setValue(360);
    QTest::keyClick(&dial, Qt::Key_Up);
    QTest::keyClick(&dial, Qt::Key_PageUp);
    QCOMPARE(dial.value(), 360);
}

void TrackingDialogTest::draggingDoesNotWrap_data()
{
    QTest::addColumn<QList<double>>("hours");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    using Hours = QList<double>;
    QTest::newRow("past 360") << Hours{3, 4, 5, 5.8, 6.2, 7, 9} << 360 << 360;
    QTest::newRow("past 0") << Hours{9, 8, 7, 6.2, 5.8, 5, 3} << 0 << 0;
    QTest::newRow("past 360 in one move") << Hours{5, 7} << 360 << 360;
    QTest::newRow("past 0 in one move") << Hours{7, 5} << 0 << 0;
    QTest::newRow("past 360 and back") << Hours{4, 5.8, 6.2, 8, 6.2, 5.8, 3} << 280 << 295;
    QTest::newRow("past 0 and back") << Hours{8, 6.2, 5.8, 4, 5.8, 6.2, 9} << 65 << 80;
    QTest::newRow("past 360 and all around") << Hours{4, 5.8, 6.2, 9, 12, 3, 5} << 360 << 360;
    QTest::newRow("past 360, around, and back")
        << Hours{4, 5.8, 6.2, 9, 12, 3, 5.8, 6.2, 5.8, 3, 12, 9, 6.2, 5.8, 3} << 280 << 295;
    QTest::newRow("over the top") << Hours{10, 11, 12, 1, 2} << 200 << 260;
    QTest::newRow("over the top and back") << Hours{2, 1, 12, 11, 10} << 100 << 160;
    QTest::newRow("over the top in one move") << Hours{10, 2} << 200 << 260;
    QTest::newRow("pressed at one end, dragged from it") << Hours{5.5, 4, 3} << 280 << 295;
}

void TrackingDialogTest::draggingDoesNotWrap()
{
    QFETCH(QList<double>, hours);
    QFETCH(int, least);
    QFETCH(int, most);
    PoleTrackingDialog dialog;
    dialog.show();
    auto &dial = named<QDial>(dialog, "dial_tracking");
    sendMouse(dial, QEvent::MouseButtonPress, hours.first(), Qt::LeftButton);
    QVERIFY(dial.isSliderDown());
    int before = dial.value();
    for (int i = 1; i < hours.size(); ++i) {
        sendMouse(dial, QEvent::MouseMove, hours[i], Qt::LeftButton);
        QVERIFY2(std::abs(dial.value() - before) < 180, qPrintable(QString::number(hours[i])));
        before = dial.value();
    }
    sendMouse(dial, QEvent::MouseButtonRelease, hours.last(), Qt::NoButton);
    QVERIFY(!dial.isSliderDown());
    QVERIFY2(dial.value() >= least && dial.value() <= most,
             qPrintable(QString::number(dial.value())));
    QCOMPARE(dial.value(), before);
}

void TrackingDialogTest::noOtherButtonBeginsADrag()
{
    PoleTrackingDialog dialog;
    dialog.show();
    auto &dial = named<QDial>(dialog, "dial_tracking");
    sendMouse(dial, QEvent::MouseButtonPress, 4, Qt::LeftButton);
    sendMouse(dial, QEvent::MouseMove, 5.8, Qt::LeftButton);
    sendMouse(dial, QEvent::MouseMove, 7, Qt::LeftButton);
    const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    sendMouse(dial, QEvent::MouseButtonPress, 7, both, Qt::RightButton);
    sendMouse(dial, QEvent::MouseButtonRelease, 7, Qt::LeftButton, Qt::RightButton);
    sendMouse(dial, QEvent::MouseMove, 8, Qt::LeftButton);
    QCOMPARE(dial.value(), 360);
}

void TrackingDialogTest::trackingReset()
{
    PoleTrackingDialog dialog;
    named<QDial>(dialog, "dial_tracking").setValue(77);
    const QPair<const char *, const char *> texts[] = {
        {"label_tracking", "Tracking:"},
        {"pushButton_tracking_minus", "-"},
        {"pushButton_tracking_add", "+"},
        {"pushButton_reset", "Reset"},
        {"label_info",
         "If the Pole was lost after used GOTO in the astrograph, then you can this to track."}};
    for (const auto &text : texts)
        named<QWidget>(dialog, text.first).setProperty("text", "changed");
    dialog.setWindowTitle("changed");
    const QSignalSpy spy(&dialog, &PoleTrackingDialog::trackPole);
    dialog.uiReset();
    for (const auto &text : texts)
        QCOMPARE(named<QWidget>(dialog, text.first).property("text").toString(),
                 QString(text.second));
    QCOMPARE(dialog.windowTitle(), QString("Pole Tracking"));
    QCOMPARE(named<QDial>(dialog, "dial_tracking").value(), 77);
    QCOMPARE(spy.count(), 0);
}

QTEST_MAIN(TrackingDialogTest)
#include "tst_trackingdialog.moc"
