// SPDX-License-Identifier: MIT
// Is a mount aligned with a finger alone, and with keys alone; and does the window speak and go on
// when the camera is unplugged or its library hangs? On the virtual camera.
#include "assistantwindow/advicetexts.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/display.h"
#include "tests/assistantwindow/desk.h"
#include "tests/assistantwindow/fingers.h"
#include "tests/support/patience.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>
#include <atomic>

namespace
{
std::atomic<bool> hanging{false}, hung{false};
} // namespace

// The linker's option --wrap leads the capture thread's calls for a frame here.
std::uint32_t realFetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                        std::uint32_t *bpp, std::uint32_t *channels,
                        std::uint8_t *buffer) asm("__real__Z18GetVELDIXLiveFramePvPjS0_S0_S0_Ph");
std::uint32_t
hangingFetch(void *handle, std::uint32_t *width, std::uint32_t *height, std::uint32_t *bpp,
             std::uint32_t *channels,
             std::uint8_t *buffer) asm("__wrap__Z18GetVELDIXLiveFramePvPjS0_S0_S0_Ph");

std::uint32_t hangingFetch(void *handle, std::uint32_t *width, std::uint32_t *height,
                           std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    while (hanging) {
        hung = true;
        QThread::msleep(20);
    }
    return realFetch(handle, width, height, bpp, channels, buffer);
}

namespace
{
/// The library hangs as long as this lives, also when the test fails: the desk waits for its
/// threads.
struct Hang {
    Hang() { hanging = true; }
    ~Hang() { hanging = false; }
};

using assistant::AdviceCode;

const char *const figures[] = {"label_totalError", "label_altitudeError", "label_azimuthError"};

bool hasNumbers(const Desk &desk)
{
    return std::all_of(std::begin(figures), std::end(figures),
                       [&desk](const char *name) { return desk.hands->number(name).has_value(); });
}

/// Dashes, and not a number anywhere.
bool hasDashes(const Desk &desk)
{
    return std::all_of(std::begin(figures), std::end(figures), [&desk](const char *name) {
        const auto &label = desk.named<QLabel>(name);
        return label.text() == assistantwindow::dash() &&
               !label.dynamicPropertyNames().contains("arcseconds") &&
               !label.dynamicPropertyNames().contains("sigma");
    });
}

/// Whether the shown total is the true one, within four standard errors and what the wind of a busy
/// machine's clock moves.
bool isTrue(const Desk &desk)
{
    const auto total = desk.hands->number("label_totalError");
    const auto sigma = desk.hands->number("label_totalError", "sigma");
    return total && sigma && std::abs(*total - desk.knobs->poleError()) < 4.0 * *sigma + 3.0;
}

/// Whether `label_advice` has the sentence of this advice, whatever its number.
bool says(const Desk &desk, AdviceCode code)
{
    const QString any = assistantwindow::adviceText({code, 0.0, 0.0, {}}, true, QLocale());
    const QString pattern = QRegularExpression::escape(any).replace("0", "[0-9]+");
    return QRegularExpression("^" + pattern + "$")
        .match(desk.named<QLabel>("label_advice").text())
        .hasMatch();
}

virtualsky::SkyState nearEquator()
{
    virtualsky::SkyState sky = deskSky(false);
    sky.latitude = 22.0;
    sky.longitude = 3.0;
    return sky;
}
} // namespace

class AssistantOperationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void fingerAloneAligns();
    void keysAloneAlign();
    void unpluggedAndBack();
    void hangsAndComesBack();
};

/// The site, too, by holding and tapping; then the camera, the large view, the exposure, the
/// report, and back.
void AssistantOperationTest::fingerAloneAligns()
{
    const Desk desk(nearEquator(), false);
    QVERIFY(QTest::qWaitForWindowExposed(desk.window.get()));
    Finger finger(*desk.window);
    const auto &latitude = desk.named<QDoubleSpinBox>("doubleSpinBox_latitude");
    const auto &longitude = desk.named<QDoubleSpinBox>("doubleSpinBox_longitude");
    const auto middle = [&desk](const char *name) {
        auto &widget = desk.named<QWidget>(name);
        return widget.mapTo(desk.window.get(), widget.rect().center());
    };
    finger.press(middle("doubleSpinBox_latitude_step3")); // held, it repeats
    QTRY_VERIFY_WITH_TIMEOUT(latitude.value() >= 18.0, longTimeout);
    finger.lift();
    for (int i = 0; i < 20 && latitude.value() > 22.5; ++i)
        QVERIFY(finger.tap("doubleSpinBox_latitude_step0"));
    for (int i = 0; i < 20 && latitude.value() < 21.5; ++i)
        QVERIFY(finger.tap("doubleSpinBox_latitude_step3"));
    for (int i = 0; i < 20 && longitude.value() < 2.5; ++i)
        QVERIFY(finger.tap("doubleSpinBox_longitude_step3"));
    const auto &site = desk.window->currentSettings().site;
    QVERIFY(site && site->latitude == 22.0 && site->longitude == 3.0);

    QVERIFY(finger.tap("pushButton_connect"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.hands->text("label_stage"), QStringLiteral("Axis"), longTimeout);
    desk.hands->turnAxis(); // knobs of the mount, none of the window
    QVERIFY(finger.tap("label_picture"));
    QVERIFY(desk.named<QWidget>("largePage").isVisible() && desk.window->isFullScreen());
    QTest::qWait(100);
    desk.hands->turnBolts();
    QVERIFY(desk.named<QWidget>("largePage").isVisible());
    finger.tap(desk.window->rect().center()); // anywhere
    QVERIFY(desk.named<QWidget>("mainPage").isVisible() && !desk.window->isFullScreen());
    QTRY_VERIFY_WITH_TIMEOUT(says(desk, AdviceCode::Aligned), longTimeout);
    QVERIFY2(desk.knobs->poleError() < 15.0, qPrintable(QString::number(desk.knobs->poleError())));

    auto &slider = desk.named<QAbstractSlider>("slider_exposure");
    auto &automatic = desk.named<QAbstractButton>("checkBox_automaticExposure");
    QVERIFY(automatic.isChecked());
    const int before = slider.value();
    const QPoint start = middle("slider_exposure");
    const int handle =
        slider.mapTo(desk.window.get(), QPoint(20, 0)).x() + before * (slider.width() - 40) / 1000;
    finger.press({handle, start.y()});
    finger.move({handle - 10, start.y()});
    finger.move({handle - 40, start.y()});
    finger.lift();
    QVERIFY(slider.value() < before && !automatic.isChecked());
    QVERIFY(
        finger.tap("checkBox_automaticExposure", {14 - automatic.width() / 2, 0})); // on its box
    QVERIFY(automatic.isChecked());

    QVERIFY(finger.tap("pushButton_report"));
    const QTemporaryDir folder;
    desk.named<QLineEdit>("lineEdit_reportFolder").setText(folder.path());
    QVERIFY(finger.tap("pushButton_savePng"));
    QCOMPARE(QDir(folder.path()).entryList({"*.png"}).size(), 1);
    QVERIFY(finger.tap("pushButton_reportBack"));
    QVERIFY(finger.tap("pushButton_settings"));
    QVERIFY(finger.tap("pushButton_nightSection"));
    QVERIFY(finger.tap("checkBox_red", {14 - desk.named<QWidget>("checkBox_red").width() / 2, 0}));
    QVERIFY(desk.window->currentSettings().redTheme);
    QVERIFY(finger.tap("pushButton_settingsBack"));
    QVERIFY(finger.tap("pushButton_connect"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.hands->text("label_stage"), QStringLiteral("Camera"),
                              longTimeout);
}

/// Tab, Space, letters, arrows and the function keys; the mouse rests.
void AssistantOperationTest::keysAloneAlign()
{
    const Desk desk(true, false);
    QApplication::setActiveWindow(desk.window.get());
    QTRY_VERIFY(QApplication::focusWidget());
    const auto type = [](const char *name, const char *text) {
        if (!tabTo(name))
            return false;
        QTest::qWait(20); // the field selects its text
        QTest::keyClicks(QApplication::focusWidget(), text);
        return true;
    };
    QVERIFY(type("doubleSpinBox_latitude", "34 S"));
    QVERIFY(type("doubleSpinBox_longitude", "149"));
    QVERIFY(pressByKeys("pushButton_connect"));
    const auto &site = desk.window->currentSettings().site;
    QVERIFY(site && site->latitude == -34.0 && site->longitude == 149.0);
    QTRY_COMPARE_WITH_TIMEOUT(desk.hands->text("label_stage"), QStringLiteral("Axis"), longTimeout);
    desk.hands->turnAxis();
    QVERIFY(pressByKeys("pushButton_largeView"));
    QVERIFY(desk.named<QWidget>("largePage").isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); // Back has the focus
    QVERIFY(desk.named<QWidget>("mainPage").isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F11);
    QVERIFY(desk.named<QWidget>("largePage").isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F11);
    QVERIFY(desk.named<QWidget>("mainPage").isVisible() && !desk.window->isFullScreen());
    desk.hands->turnBolts();
    QTRY_VERIFY_WITH_TIMEOUT(says(desk, AdviceCode::Aligned), longTimeout);
    QVERIFY2(desk.knobs->poleError() < 15.0, qPrintable(QString::number(desk.knobs->poleError())));

    QVERIFY(tabTo("slider_exposure"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QVERIFY(!desk.named<QAbstractButton>("checkBox_automaticExposure").isChecked());
    QVERIFY(pressByKeys("checkBox_automaticExposure"));
    QVERIFY(desk.named<QAbstractButton>("checkBox_automaticExposure").isChecked());
    QVERIFY(pressByKeys("pushButton_report"));
    const QTemporaryDir folder;
    QVERIFY(tabTo("lineEdit_reportFolder"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), folder.path());
    QVERIFY(pressByKeys("pushButton_saveCsv"));
    QCOMPARE(QDir(folder.path()).entryList({"*.csv"}).size(), 1);
    QVERIFY(pressByKeys("pushButton_reportBack"));
    QVERIFY(pressByKeys("pushButton_settings"));
    QVERIFY(tabTo("pushButton_siteSection")); // the arrows lead to the other sections
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(tabTo("radioButton_truePole"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(desk.named<QAbstractButton>("radioButton_refractedPole").isChecked());
    QCOMPARE(desk.window->currentSettings().target, recognition::PoleTarget::Refracted);
    QVERIFY(pressByKeys("pushButton_settingsBack"));
    QVERIFY(pressByKeys("pushButton_startAgain"));
    QTRY_VERIFY_WITH_TIMEOUT(hasDashes(desk), longTimeout);
    QVERIFY(pressByKeys("pushButton_connect"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.hands->text("label_stage"), QStringLiteral("Camera"),
                              longTimeout);
}

void AssistantOperationTest::unpluggedAndBack()
{
    const Desk desk(false, true);
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    QTRY_VERIFY_WITH_TIMEOUT(hasNumbers(desk) && isTrue(desk), longTimeout);
    desk.knobs->edit().unplugged = true;
    desk.knobs->write();
    QTRY_VERIFY_WITH_TIMEOUT(hasDashes(desk), longTimeout);
    QTRY_VERIFY_WITH_TIMEOUT(says(desk, AdviceCode::CameraLost) || says(desk, AdviceCode::NoCamera),
                             longTimeout);
    QCOMPARE(desk.hands->text("label_uncertainty"), assistantwindow::dash());
    QTest::qWait(1000);
    QVERIFY(hasDashes(desk));
    desk.knobs->edit().unplugged = false;
    desk.knobs->write();
    QTRY_VERIFY_WITH_TIMEOUT(hasNumbers(desk), longTimeout);
    QVERIFY2(isTrue(desk), qPrintable(desk.hands->text("label_totalError")));
    QVERIFY(!says(desk, AdviceCode::CameraLost));
}

/// A call for a frame does not return for a while. The window stays usable.
void AssistantOperationTest::hangsAndComesBack()
{
    const Desk desk(false, true);
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    QTRY_VERIFY_WITH_TIMEOUT(hasNumbers(desk) && isTrue(desk), longTimeout);
    {
        const Hang hang;
        QTRY_VERIFY_WITH_TIMEOUT(hung, longTimeout);
        QTRY_VERIFY_WITH_TIMEOUT(hasDashes(desk), longTimeout);
        QTRY_VERIFY_WITH_TIMEOUT(says(desk, AdviceCode::CameraHangs), longTimeout);
        QElapsedTimer timer;
        timer.start();
        for (const char *const name : {"pushButton_settings", "pushButton_settingsBack"})
            desk.hands->click(name);
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(hasDashes(desk) && says(desk, AdviceCode::CameraHangs));
    }
    QTRY_VERIFY_WITH_TIMEOUT(hasNumbers(desk), longTimeout);
    QVERIFY2(isTrue(desk), qPrintable(desk.hands->text("label_totalError")));
    QVERIFY(!says(desk, AdviceCode::CameraHangs));
}

QTEST_MAIN(AssistantOperationTest)
#include "tst_assistantoperation.moc"
