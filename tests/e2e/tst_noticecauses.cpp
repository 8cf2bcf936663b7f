// SPDX-License-Identifier: MIT
// Does each cause of a wrong or missing result bring its notice, and does the notice go with it?
#include "core/savetrouble.h"
#include "geometry/starfinder.h"
#include "tests/e2e/noticewindow.h"
#include "tests/support/reachablecopy.h"
#include "widgets/magnifierwidget.h"

#include <QAction>
#include <QDial>
#include <QMessageBox>
#include <QScrollArea>
#include <QSlider>
#include <QTimer>
#include <unistd.h>

namespace
{
/// A place round which no star is far and wide.
QPointF emptySky(const Session &session)
{
    constexpr int alone = 32; // the search reaches 20 along x and y
    const auto stars = findStars(session.latestFrame.copy());
    for (int y = 400; y < 640; y += 4)
        for (int x = 300; x < 800; x += 4)
            if (!isStarNear(stars, QPointF(x, y), alone))
                return QPointF(x, y);
    qFatal("there is no empty place");
}

/// Answers every box with its first button.
class BoxCloser
{
public:
    BoxCloser()
    {
        QObject::connect(&timer, &QTimer::timeout, [] {
            if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->buttons().constFirst()->click();
        });
        timer.start(20);
    }

private:
    QTimer timer;
};

Settings withAxis(double x, double y)
{
    Settings settings;
    settings.axisX = x;
    settings.axisY = y;
    return settings;
}
} // namespace

class NoticeCausesTest : public QObject
{
    Q_OBJECT

private slots:
    void noCamera();
    void noPicture();
    void monitoringInStepOne_data();
    void monitoringInStepOne();
    void emptySkyPicked();
    void successWithoutAPick();
    void savedAxisAndOldTemplate();
    void picksInOnePlace();
    void turnedTooLittle();
    void starsLostAndFound();
    void ringUnderMagnifier();
    void dialNotReset();
    void zoomOfTheFile();
    void settingsNotKept();

private:
    static void connectCamera(NoticeWindow &w);
};

/// With the tour's exposure, in step 1.
void NoticeCausesTest::connectCamera(NoticeWindow &w)
{
    Person person = w.person();
    person.connectCamera();
    w.child<QSlider>("sliderExpose").setValue(500);
    w.child<QSlider>("sliderGain").setValue(50);
    QTest::qWait(100);
}

/// The panel's button leads to the last page without one.
void NoticeCausesTest::noCamera()
{
    NoticeWindow w(false);
    QVERIFY(w.staysAway());
    w.click("pushButton_monitor");
    QCOMPARE(w.notice(), QString("No camera is connected."));
    w.child<QAction>("actionGerman").trigger(); // the notice follows the language
    QCOMPARE(w.notice(), QString("Es ist keine Kamera verbunden."));
    w.child<QAction>("actionEnglish").trigger();
    connectCamera(w);
    QVERIFY(w.goes());
}

void NoticeCausesTest::noPicture()
{
    NoticeWindow w(false);
    connectCamera(w);
    w.knobs.edit().unplugged = true;
    w.knobs.write();
    QVERIFY(w.comes("No picture for 5 s."));
    QVERIFY(w.comes("No picture for 6 s."));
    w.knobs.edit().unplugged = false;
    w.knobs.write();
    QVERIFY(w.goes());
}

void NoticeCausesTest::monitoringInStepOne_data()
{
    QTest::addColumn<double>("axisX");
    QTest::addColumn<QString>("expected");
    QTest::newRow("without an axis") << 0.0 << "No axis yet";
    QTest::newRow("with the last night's") << 640.0 << "Monitoring without an alignment";
}

void NoticeCausesTest::monitoringInStepOne()
{
    QFETCH(double, axisX);
    QFETCH(QString, expected);
    NoticeWindow w(false, withAxis(axisX, axisX));
    connectCamera(w);
    w.child<QPushButton>("pushButton_head_precise").setChecked(true); // opens the section
    QTest::qWait(50);
    w.child<QScrollArea>("scrollArea_manager")
        .ensureWidgetVisible(&w.child<QPushButton>("pushButton_monitor"));
    w.click("pushButton_monitor");
    QCOMPARE(w.window->step(), 13);
    QVERIFY2(w.notice().startsWith(expected), qPrintable(w.notice()));
    QTest::qWait(oneLook);
    QVERIFY2(w.notice().startsWith(expected), qPrintable(w.notice()));
    w.click("pushButton_finetunePole_reset");
    QVERIFY(w.staysAway());
}

void NoticeCausesTest::emptySkyPicked()
{
    NoticeWindow w(false);
    connectCamera(w);
    w.click("pushButton_setting_done");
    w.doubleClick(emptySky(w.session()));
    QCOMPARE(w.notice(), QString("No star here."));
    w.doubleClick(w.knobs.starB());
    QVERIFY(w.notice() != QString("No star here."));
    w.click("pushButton_confirm_done");
    QVERIFY(w.staysAway());
    w.doubleClick(emptySky(w.session()));
    QCOMPARE(w.window->step(), 4);
    QCOMPARE(w.notice(), QString("No star here (pick 1 of 3)."));
    w.click("pushButton_rotateStar1_reset");
    QVERIFY(w.notice().isEmpty());
    w.doubleClick(w.knobs.starA());
    QCOMPARE(w.window->step(), 4);
    QVERIFY(w.staysAway());
}

void NoticeCausesTest::successWithoutAPick()
{
    NoticeWindow w(false);
    const BoxCloser yes;
    connectCamera(w);
    w.session().alignmentPoints.savedAxisCenter = QPointF();
    w.click("pushButton_setting_done");
    w.click("pushButton_confirm_done");
    QCOMPARE(w.window->step(), 3);
    QCOMPARE(w.notice(), QString("The template was not placed on the pole star."));
    Person person = w.person();
    person.findAxis();
    QCOMPARE(w.window->step(), 9);
    QVERIFY(w.notice().isEmpty());
    w.click("pushButton_getEptPolaris_done");
    QCOMPARE(w.notice(), QString("The pole star was not double clicked."));
    w.click("pushButton_movePolaris_done");
    QVERIFY(w.notice().isEmpty());
    w.click("pushButton_getCurPolaris_done");
    QCOMPARE(w.notice(), QString("The pole star was not double clicked."));
    w.click("pushButton_monitor");
    QCOMPARE(w.window->step(), 13);
    QCOMPARE(w.notice(), QString("The pole star was not double clicked."));
}

void NoticeCausesTest::savedAxisAndOldTemplate()
{
    NoticeWindow w(false, withAxis(680, 450));
    w.options.reuseSavedAxis = true;
    connectCamera(w);
    w.click("pushButton_setting_done");
    Person person = w.person();
    person.confirmTemplate();
    QCOMPARE(w.window->step(), 9);
    QCOMPARE(w.notice(), QString("Old place of the template: double click the pole star again."));
    w.doubleClick(w.knobs.starB());
    QVERIFY(w.goes());
}

/// The page is answered without a turn of the axis.
void NoticeCausesTest::picksInOnePlace()
{
    NoticeWindow w(false);
    const BoxCloser ok; // three picks that are equal to the last bit give no axis
    connectCamera(w);
    w.click("pushButton_setting_done");
    w.click("pushButton_confirm_done");
    const QPointF star = w.knobs.starA();
    w.doubleClick(star);
    QVERIFY(w.staysAway());
    w.click("pushButton_rotateStar1_done");
    w.doubleClick(star);
    const QString expected = "The star moved by only 0 px between the picks.";
    QCOMPARE(w.notice(), expected);
    w.click("pushButton_rotateStar2_done");
    w.doubleClick(star);
    QVERIFY2(w.notice().startsWith("The star moved by only "), qPrintable(w.notice()));
    QTest::qWait(oneLook);
    QVERIFY2(w.notice().startsWith("The star moved by only "), qPrintable(w.notice()));
}

void NoticeCausesTest::turnedTooLittle()
{
    NoticeWindow w(false);
    connectCamera(w);
    w.click("pushButton_setting_done");
    w.doubleClick(w.knobs.starB());
    w.click("pushButton_confirm_done");
    const char *const turned[] = {"pushButton_rotateStar1_done", "pushButton_rotateStar2_done"};
    for (int pick = 0; pick < 3; ++pick) {
        w.doubleClick(w.knobs.starA());
        if (pick == 2)
            break;
        QVERIFY2(w.notice().isEmpty(), qPrintable(w.notice()));
        w.knobs.turnRaAxisTo(8.5 * (pick + 1));
        QTest::qWait(300);
        w.click(turned[pick]);
    }
    QCOMPARE(w.window->step(), 8);
    // So small a turn gives the axis, and thus the angle, only roughly.
    QVERIFY2(w.notice().startsWith("The axis turned by only "), qPrintable(w.notice()));
    w.click("pushButton_validateCenter_reset");
    QVERIFY(w.staysAway());
}

void NoticeCausesTest::starsLostAndFound()
{
    NoticeWindow w(false, withAxis(680, 450));
    w.options.reuseSavedAxis = true;
    Person person = w.person();
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.placePoleStar();
    person.startMonitor();
    QVERIFY(w.staysAway());
    const virtualsky::SkyState before = w.knobs.edit();
    w.knobs.edit().clouds = 1.0;
    w.knobs.write();
    QVERIFY(w.comes("Stars A and B lost."));
    w.knobs.edit() = before;
    w.knobs.write();
    QVERIFY(w.goes());
    w.click("pushButton_finetunePole_done"); // the marks are still there, and so is the notice
    w.knobs.edit().boltAzimuth += 1.0;
    w.knobs.write();
    QVERIFY(QTest::qWaitFor([&] { return !w.notice().isEmpty(); }, noticeTimeout));
    w.knobs.edit() = before;
    w.knobs.write();
    QVERIFY(w.goes());
}

void NoticeCausesTest::ringUnderMagnifier()
{
    NoticeWindow w(false, withAxis(400, 300), {800, 480});
    w.options.reuseSavedAxis = true;
    Person person = w.person();
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.arrived = [&](const QString &name) {
        if (name != QLatin1String("step-10-before"))
            return;
        // The keys scroll the picture until the ring is under the magnifier, and back.
        auto &area = w.child<QScrollArea>("scrollArea_showImg");
        const auto &lens = *w.window->findChild<MagnifierWidget *>();
        const auto place = [&] {
            return w.child<QLabel>("label_showImg")
                .mapTo(&area, QPointF(w.session().alignmentPoints.polarisTarget).toPoint());
        };
        const QPoint middle = lens.geometry().center();
        const auto scroll = [&](Qt::Key forth, Qt::Key back, auto distance) {
            for (int i = 0; i < 60 && std::abs(distance()) > 20; ++i)
                QTest::keyClick(&area, distance() > 0 ? forth : back);
        };
        scroll(Qt::Key_Right, Qt::Key_Left, [&] { return place().x() - middle.x(); });
        scroll(Qt::Key_Down, Qt::Key_Up, [&] { return place().y() - middle.y(); });
        QVERIFY2(lens.geometry().contains(place()),
                 qPrintable(QString("%1, %2").arg(place().x()).arg(place().y())));
        QVERIFY(w.comes("The ring lies under the magnifier."));
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(&area, Qt::Key_Up);
        QVERIFY(w.goes());
    };
    person.placePoleStar();
    QCOMPARE(w.window->step(), 12);
}

/// A second step 11 while the dial stands at 90: its next move would turn the stars away.
void NoticeCausesTest::dialNotReset()
{
    NoticeWindow w(false, withAxis(680, 450));
    w.options.reuseSavedAxis = true;
    Person person = w.person();
    person.connectCamera();
    person.prepare();
    auto &dial = w.child<QDial>("dial_tracking");
    for (const int angle : {0, 90}) {
        dial.setValue(angle);
        person.setExposure();
        person.confirmTemplate();
        person.placePoleStar();
        if (angle == 0) {
            QVERIFY(w.staysAway());
            person.startMonitor();
            w.click("pushButton_finetunePole_reset");
        }
    }
    QCOMPARE(w.notice(), QString("The tracking dial still stands at 90°: reset it."));
    w.click("pushButton_monitor");
    QVERIFY(!w.staysAway());
    QCOMPARE(w.notice(), QString("The tracking dial still stands at 90°: reset it."));
    w.child<QAction>("actionManual_Trace").trigger();
    w.window->findChild<QDialog *>("PoleTrackingDialog")
        ->findChild<QPushButton *>("pushButton_reset")
        ->click();
    QVERIFY(w.goes());
}

void NoticeCausesTest::zoomOfTheFile()
{
    Settings settings;
    settings.zoomFactor = 0;
    NoticeWindow w(false, settings);
    QVERIFY(w.notice().isEmpty());
    w.child<QAction>("actionConnect").trigger();
    QVERIFY(w.session().camera.cameraConnected);
    QVERIFY(w.comes("The zoom in the settings file shows no picture."));
    w.child<QAction>("action75").trigger();
    QVERIFY(w.goes());
}

/// The folder of the executable belongs to somebody else.
void NoticeCausesTest::settingsNotKept()
{
    NoticeWindow w(false);
    QVERIFY(w.staysAway());
    const QString folder = QCoreApplication::applicationDirPath();
    const auto rights = QFile::permissions(folder);
    if (getuid() != 0)
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    bool came = false;
    {
        const OrdinaryUser user; // for root, to whom everything is permitted
        came = w.comes("Settings will not be kept: their folder cannot be written.");
    }
    QVERIFY(QFile::setPermissions(folder, rights));
    QVERIFY(came);
    QVERIFY(w.goes());
    QCOMPARE(saveTrouble(settingsFilePath()), SaveTrouble::None);
    QCOMPARE(saveTrouble(folder + "/missing/Quorvandel.ini"), SaveTrouble::FolderNotWritable);
    QCOMPARE(saveTrouble(folder), SaveTrouble::NotAFile);
}

int main(int argc, char *argv[])
{
    if (const auto status = statusOfCopy(argv))
        return *status;
    QTEST_MAIN_IMPL(NoticeCausesTest)
}
#include "tst_noticecauses.moc"
