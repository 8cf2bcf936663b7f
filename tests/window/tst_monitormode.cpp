// SPDX-License-Identifier: MIT
// Does the window prepare monitor mode, and do the marks follow the stars from frame to frame?
#include "mainwindow/pointtext.h"
#include "tests/support/logrecorder.h"
#include "tests/window/monitorwindow.h"

#include <QDial>
#include <QDialog>
#include <QPushButton>

namespace
{
QString logText(const char *words, QPointF p)
{
    QString text;
    QDebug(&text).nospace() << words << ' ' << p.x() << ' ' << p.y();
    return text;
}
} // namespace

class MonitorModeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startPositions_data();
    void startPositions();
    void startWithoutStars();
    void poleTracking_data();
    void poleTracking();
    void turnsDoNotAddUp_data();
    void turnsDoNotAddUp();
    void dialTurnsTheSearch_data();
    void dialTurnsTheSearch();
    void dialKeepsItsValueWhileHidden();
    void starsLostAndFoundAgain();
    void endsWithTheWizardsStart();
    void beginsWithoutTheLastRoundsPictures();
};

void MonitorModeTest::initTestCase()
{
    const CameraWindow w; // reads the catalogue
    QVERIFY(northCatalogue.starBX > 0);
}

void MonitorModeTest::startPositions_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QPointF>("starB");
    QTest::newRow("template's own place") << "North" << 0 << QPointF(400, 400);
    QTest::newRow("turned") << "North" << 90 << QPointF(640.4, 420.3);
    QTest::newRow("turned askew") << "North" << 217 << QPointF(600.8, 520.1);
    QTest::newRow("whole turn") << "North" << 360 << QPointF(400, 400);
    QTest::newRow("south") << "South" << 0 << QPointF(640.4, 420.3);
    QTest::newRow("south, turned askew") << "South" << 217 << QPointF(600.8, 520.1);
}

void MonitorModeTest::startPositions()
{
    QFETCH(QString, region);
    QFETCH(int, degrees);
    QFETCH(QPointF, starB);
    const QPointF predicted = starB + offsetToA(degrees, region);
    const QPointF starA = predicted + QPointF(3, -4); // the template never fits exactly
    const MonitorWindow w(degrees, starB, {starB, starA}, region);
    const LogRecorder log;
    w.call("pushbuttonGetCurPolarisDoneClicked");
    QCOMPARE(w.window->step(), 12);
    QVERIFY(isNear(w.session().monitorPositions.starASearch, starA));
    QVERIFY(isNear(w.session().monitorPositions.starBSearch, starB));
    QVERIFY(log.contains(QtDebugMsg,
                         logText("current StarA point", w.session().monitorPositions.starASearch)));
    QVERIFY(log.contains(QtDebugMsg,
                         logText("current StarB point", w.session().monitorPositions.starBSearch)));
    QVERIFY(!w.session().overlayFlags.monitorTracking);
    QCOMPARE(w.child<QLabel>("label_refStarA_pos").text(),
             pointText(w.session().monitorPositions.starASearch));
    QCOMPARE(w.child<QLabel>("label_refStarB_pos").text(),
             pointText(w.session().monitorPositions.starBSearch));
}

/// A star that is not found is replaced by its expected place. For star A it is the template's,
/// which at angle 0 with star B on its template pixel is the template's star A itself.
void MonitorModeTest::startWithoutStars()
{
    const QPointF starB = templateB("North");
    const MonitorWindow w(0, starB, {starB});
    w.show({});
    w.call("pushbuttonGetCurPolarisDoneClicked");
    QVERIFY(isNear(w.session().monitorPositions.starASearch,
                   {northCatalogue.starAX, northCatalogue.starAY}, 1e-9));
    QVERIFY(isNear(w.session().monitorPositions.starBSearch, starB, 1e-9));
}

void MonitorModeTest::poleTracking_data()
{
    QTest::addColumn<double>("degrees");
    for (const double degrees : {0.0, 1.0, 90.0, 180.0, 359.0, 360.0, -15.5})
        QTest::addRow("%g degrees", degrees) << degrees;
}

void MonitorModeTest::poleTracking()
{
    QFETCH(double, degrees);
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0);
    const MonitorWindow w(0, starB, {starB, starA});
    w.call("pushbuttonGetCurPolarisDoneClicked");
    const QPointF foundA = w.session().monitorPositions.starASearch,
                  foundB = w.session().monitorPositions.starBSearch;
    const LogRecorder log;
    QVERIFY(QMetaObject::invokeMethod(w.window.get(), "poleTracking", Qt::DirectConnection,
                                      Q_ARG(double, degrees)));
    const QPointF a = w.session().monitorPositions.starASearch,
                  b = w.session().monitorPositions.starBSearch;
    QVERIFY(isNear(a, turnedAboutAxis(foundA, degrees), 1e-9));
    QVERIFY(isNear(b, turnedAboutAxis(foundB, degrees), 1e-9));
    QCOMPARE(log.texts(QtDebugMsg),
             QStringList({logText("StarA area", a), logText("StarB area", b)}));
}

void MonitorModeTest::turnsDoNotAddUp_data()
{
    QTest::addColumn<QString>("region");
    QTest::newRow("north") << "North";
    QTest::newRow("south") << "South";
}

void MonitorModeTest::turnsDoNotAddUp()
{
    QFETCH(QString, region);
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0, region);
    const MonitorWindow w(0, starB, {starB, starA}, region);
    w.call("pushbuttonGetCurPolarisDoneClicked");
    const QPointF foundA = w.session().monitorPositions.starASearch,
                  foundB = w.session().monitorPositions.starBSearch;
    QVERIFY(isNear(foundA, starA) && isNear(foundB, starB));
    for (const double degrees : {30.0, 30.0, 10.0}) {
        QVERIFY(QMetaObject::invokeMethod(w.window.get(), "poleTracking", Qt::DirectConnection,
                                          Q_ARG(double, degrees)));
        QVERIFY(isNear(w.session().monitorPositions.starASearch, turnedAboutAxis(foundA, degrees),
                       1e-9));
        QVERIFY(isNear(w.session().monitorPositions.starBSearch, turnedAboutAxis(foundB, degrees),
                       1e-9));
    }
}

void MonitorModeTest::dialTurnsTheSearch_data()
{
    turnsDoNotAddUp_data();
}

/// From the dialog's dial to the capture thread's search positions.
void MonitorModeTest::dialTurnsTheSearch()
{
    QFETCH(QString, region);
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0, region);
    const MonitorWindow w(0, starB, {starB, starA}, region);
    w.call("pushbuttonGetCurPolarisDoneClicked");
    const QPointF foundA = w.session().monitorPositions.starASearch,
                  foundB = w.session().monitorPositions.starBSearch;
    const auto isTurnedBy = [&](double degrees) {
        return isNear(w.session().monitorPositions.starASearch, turnedAboutAxis(foundA, degrees),
                      1e-9) &&
               isNear(w.session().monitorPositions.starBSearch, turnedAboutAxis(foundB, degrees),
                      1e-9);
    };
    w.trigger("actionManual_Trace");
    auto &dial = w.child<QDial>("dial_tracking");
    const auto press = [&w](const char *button) {
        QTest::mouseClick(&w.child<QPushButton>(button), Qt::LeftButton);
    };
    dial.setValue(30);
    QVERIFY(isTurnedBy(30));
    QTest::keyClick(&dial, Qt::Key_Up);
    QVERIFY(isTurnedBy(31));
    press("pushButton_tracking_add");
    QVERIFY(isTurnedBy(32));
    dial.setValue(350);
    QVERIFY(isTurnedBy(350));
    press("pushButton_tracking_minus");
    QVERIFY(isTurnedBy(349));
    press("pushButton_reset");
    QVERIFY(isTurnedBy(0));
}

void MonitorModeTest::dialKeepsItsValueWhileHidden()
{
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0);
    const MonitorWindow w(0, starB, {starB, starA});
    w.call("pushbuttonGetCurPolarisDoneClicked");
    const QPointF foundB = w.session().monitorPositions.starBSearch;
    auto &dial = w.child<QDial>("dial_tracking");
    QWidget &dialog = *dial.window();
    QCOMPARE(dialog.metaObject()->className(), "PoleTrackingDialog");
    w.trigger("actionManual_Trace");
    QVERIFY(dialog.isVisible());
    dial.setValue(77);
    const LogRecorder log;
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dial.value(), 77);
    w.trigger("actionManual_Trace");
    QVERIFY(dialog.isVisible());
    QCOMPARE(dial.value(), 77);
    QCOMPARE(log.texts(QtDebugMsg).filter("area"), QStringList()); // nothing is rotated again
    QVERIFY(isNear(w.session().monitorPositions.starBSearch, turnedAboutAxis(foundB, 77), 1e-9));
}

void MonitorModeTest::starsLostAndFoundAgain()
{
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0);
    const MonitorWindow w(0, starB, {starB, starA});
    w.call("pushbuttonGetCurPolarisDoneClicked");
    const QPointF searchA = w.session().monitorPositions.starASearch,
                  searchB = w.session().monitorPositions.starBSearch;
    QTest::qWait(20);
    QTest::mouseClick(&w.child<QPushButton>("pushButton_monitor"), Qt::LeftButton);
    QCOMPARE(w.window->step(), 13);
    QVERIFY(w.session().overlayFlags.monitorTracking && w.session().overlayFlags.showPoleRect &&
            w.session().overlayFlags.showMonitorCross);
    const auto follow = [&](QPointF moved) {
        w.show({starB + moved, starA + moved});
        return comesTrue([&] {
            return isNear(w.session().monitorPositions.starACurrent, starA + moved) &&
                   isNear(w.session().monitorPositions.starBCurrent, starB + moved);
        });
    };
    QVERIFY(follow({8, -6}));
    QVERIFY(w.session().monitorPositions.poleValid);
    QVERIFY(follow({-10, 9}));
    const QPointF pole = w.session().monitorPositions.poleCurrent;
    QTRY_VERIFY(!w.child<QLabel>("label_biggerImg").pixmap(Qt::ReturnByValue).isNull());
    w.show({}); // cloud
    QTRY_COMPARE(w.session().monitorPositions.starACurrent.load(), searchA);
    QTRY_COMPARE(w.session().monitorPositions.starBCurrent.load(), searchB);
    QVERIFY(follow({4, 4}));
    // The pole moves with its stars.
    QTRY_VERIFY(isNear(w.session().monitorPositions.poleCurrent, pole + QPointF(14, -5), 0.3));
    // Lost outside the window around the start, found again at the start.
    w.show({starB + QPointF(60, 0), starA + QPointF(60, 0)});
    QTRY_COMPARE(w.session().monitorPositions.starBCurrent.load(), searchB);
    QVERIFY(follow({0, 0}));
    QCOMPARE(w.session().monitorPositions.starASearch.load(), searchA);
    QCOMPARE(w.session().monitorPositions.starBSearch.load(), searchB);
}

void MonitorModeTest::endsWithTheWizardsStart()
{
    const MonitorWindow w(0, {500, 420}, {{500, 420}});
    w.enterStep(13);
    QVERIFY(w.session().overlayFlags.monitorTracking);
    w.call("pushbuttonFinetunePoleDoneClicked");
    QVERIFY(w.session().overlayFlags.monitorTracking); // only the pages are hidden
    w.call("pushbuttonFinetunePoleResetClicked");
    QCOMPARE(w.window->step(), 1);
    QVERIFY(!w.session().overlayFlags.monitorTracking && !w.session().overlayFlags.showPoleRect &&
            !w.session().overlayFlags.showMonitorCross);
}

void MonitorModeTest::beginsWithoutTheLastRoundsPictures()
{
    const QPointF starB(500.5, 420.5), starA = starB + offsetToA(0);
    const MonitorWindow w(0, starB, {starB, starA});
    w.call("pushbuttonGetCurPolarisDoneClicked");
    sdk().setFramesLeft(0);
    const int fetches = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() > fetches); // the last frame is fully processed
    QImage old(200, 200, QImage::Format_RGB888);
    old.fill(Qt::red);
    w.session().magnifierQueue.append(old);
    QTest::mouseClick(&w.child<QPushButton>("pushButton_monitor"), Qt::LeftButton);
    QTest::qWait(60); // three times the longest wait of a picture
    QVERIFY(w.child<QLabel>("label_biggerImg").pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(w.session().magnifierQueue.isEmpty());
    sdk().setFramesLeft(-1);
    QTRY_VERIFY(!w.child<QLabel>("label_biggerImg").pixmap(Qt::ReturnByValue).isNull());
}

QTEST_MAIN(MonitorModeTest)
#include "tst_monitormode.moc"
