// SPDX-License-Identifier: MIT
// What if the camera's cable is pulled and plugged in again, in any step of the alignment?
#include "tests/reliability/virtualwindow.h"

#include "mainwindow/wizardtable.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/mainwindowprobe.h"

#include <QtTest>

namespace
{
enum class Then { PlugIn, Reconnect, CloseWindow };
const std::pair<Then, const char *> endings[] = {{Then::PlugIn, "plugged in again"},
                                                 {Then::Reconnect, "disconnected, connected again"},
                                                 {Then::CloseWindow, "window closed"}};
} // namespace
Q_DECLARE_METATYPE(Then)

class UnplugTest : public QObject
{
    Q_OBJECT

private slots:
    void unplugged_data();
    void unplugged();

private:
    void useControls(const VirtualWindow &w);
};

void UnplugTest::unplugged_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<Then>("then");
    for (int step = 1; step <= wizardStepCount; ++step)
        for (const auto &[then, name] : endings)
            QTest::addRow("step %d, %s", step, name) << step << then;
}

/// What a user tries while no picture arrives.
void UnplugTest::useControls(const VirtualWindow &w)
{
    for (const char *const name : {"sliderExpose", "sliderGain", "sliderTraffic", "sliderSpeed"})
        named<QSlider>(*w.window, name).setValue(2);
    for (const char *const name : {"action50", "actionMono_Style", "actionGerman", "action100"})
        named<QAction>(*w.window, name).trigger();
    QTest::mouseDClick(&named<QLabel>(*w.window, "label_showImg"), Qt::LeftButton, {},
                       QPoint(300, 300));
    QTest::qWait(50);
}

void UnplugTest::unplugged()
{
    QFETCH(int, step);
    QFETCH(Then, then);
    VirtualWindow w;
    const BoxWatcher boxes(QMessageBox::Ok);
    QVERIFY(w.connectCamera());
    MainWindowProbe(*w.window).switchStep(step);
    QVERIFY(w.hasNewPicture());

    w.plug(false);
    // The frame in progress and the waiting ones are still shown.
    QTRY_VERIFY(!w.hasNewPicture(500));
    QCOMPARE(w.window->step(), step);
    QVERIFY(w.session().camera.cameraConnected);
    useControls(w);
    const int boxesOfControls = boxes.boxes().size(); // a double click may find no star

    switch (then) {
    case Then::PlugIn:
        w.plug(true);
        QVERIFY(w.hasNewPicture());
        QVERIFY(w.session().camera.cameraConnected);
        break;
    case Then::Reconnect:
        w.toggleConnection();
        QVERIFY(!w.session().camera.cameraConnected);
        w.toggleConnection();
        QVERIFY(!w.session().camera.cameraConnected);
        QCOMPARE(boxes.boxes().size(), boxesOfControls + 1);
        w.plug(true);
        QVERIFY(w.connectCamera());
        QCOMPARE(w.window->step(), 1);
        break;
    case Then::CloseWindow:
        QVERIFY(w.window->close());
        QVERIFY(!w.session().camera.cameraConnected);
        QVERIFY(QFile::exists(settingsFilePath()));
        break;
    }
}

QTEST_MAIN(UnplugTest)
#include "tst_unplug.moc"
