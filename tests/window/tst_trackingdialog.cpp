// SPDX-License-Identifier: MIT
// Does the pole tracking dialog announce every angle, and only within its range?
#include "dialogs/poletrackingdialog.h"
#include "resources/resources.h"
#include "tests/window/windowtest.h"

#include <QDial>
#include <QFrame>
#include <QSignalSpy>

class TrackingDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void dialProperties();
    void dialButtons_data();
    void dialButtons();
    void dialAnnouncesEveryValue();
    void dialDoesNotWrap();
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

void TrackingDialogTest::dialDoesNotWrap()
{
    PoleTrackingDialog dialog;
    auto &dial = named<QDial>(dialog, "dial_tracking");
    dial.setValue(360);
    QTest::keyClick(&dial, Qt::Key_Up);
    QTest::keyClick(&dial, Qt::Key_PageUp);
    QCOMPARE(dial.value(), 360);
    // Dragged along the rim to the bottom, from either side, it stays on that side's end.
    dial.show();
    const QPoint middle = dial.rect().center();
    QTest::mousePress(&dial, Qt::LeftButton, Qt::NoModifier, middle + QPoint(35, 20));
    QVERIFY(dial.value() > 180);
    for (int x = 30; x >= 5; x -= 5)
        QTest::mouseMove(&dial, middle + QPoint(x, 38));
    QVERIFY(dial.value() > 180);
    QTest::mouseRelease(&dial, Qt::LeftButton, Qt::NoModifier, middle + QPoint(5, 38));
    QVERIFY(dial.value() > 180);
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
