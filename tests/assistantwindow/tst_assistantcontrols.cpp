// SPDX-License-Identifier: MIT
// Can every control be used with a finger alone and with the keyboard alone, and is the red theme
// red in every pixel?
#include "assistantwindow/assistantresources.h"
#include "tests/assistantwindow/light.h"
#include "tests/assistantwindow/shownscene.h"
#include "tests/support/textroom.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSet>
#include <QSlider>
#include <QToolTip>

namespace
{
constexpr int finger = 40; // pixels

bool isControl(const QWidget &widget)
{
    if (qobject_cast<const QLineEdit *>(&widget) &&
        qobject_cast<const QAbstractSpinBox *>(widget.parentWidget()))
        return false; // part of the field
    return qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QAbstractSlider *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QLineEdit *>(&widget);
}

QList<QWidget *> controlsOf(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisible() && widget->window() == &window && isControl(*widget))
            controls.append(widget);
    return controls;
}

/// Where a press is taken: of a check box only what it draws, of a slider its handle.
QRect pressableArea(QAbstractButton &button)
{
    constexpr int step = 2;
    QRect area;
    for (int y = 0; y < button.height(); y += step)
        for (int x = 0; x < std::min(button.width(), 60); x += step) {
            QTest::mousePress(&button, Qt::LeftButton, {}, {x, y});
            if (button.isDown())
                area |= QRect(x, y, step, step);
            button.setDown(false);
            QTest::mouseRelease(&button, Qt::LeftButton, {}, {-50, -50});
        }
    return area;
}

/// Where a press takes the slider's handle.
QRect handleOf(QSlider &slider)
{
    constexpr int step = 2;
    const QSignalBlocker quiet(slider);
    const int middle = (slider.minimum() + slider.maximum()) / 2;
    QRect area;
    for (int y = 0; y < slider.height(); y += step)
        for (int x = slider.width() / 2 - 40; x < slider.width() / 2 + 40; x += step) {
            slider.setValue(middle);
            QTest::mousePress(&slider, Qt::LeftButton, {}, {x, y});
            if (slider.isSliderDown())
                area |= QRect(x, y, step, step);
            QTest::mouseRelease(&slider, Qt::LeftButton, {}, {x, y});
        }
    return area;
}
} // namespace

class AssistantControlsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void fingerCanHitEveryControl_data() { forEachScene(); }
    void fingerCanHitEveryControl();
    void fingerHitsWhatIsDrawn_data();
    void fingerHitsWhatIsDrawn();
    void tabReachesEveryControl_data() { forEachScene(); }
    void tabReachesEveryControl();
    void redThemeHasOnlyRed_data() { forEachScene(); }
    void redThemeHasOnlyRed();
    void listAndToolTipAreRed();
    void normalThemeHasOtherColours();
    void largeViewCanBeReadFromFar_data();
    void largeViewCanBeReadFromFar();
    void largeViewOpensByKeyAndTap();
    void otherPagesLeaveTheFullScreen_data();
    void otherPagesLeaveTheFullScreen();
    void keyboardAloneOperatesTheWindow();
    void exposureSliderTurnsTheAutomaticOff();
    void camerasAreListedWhereThereIsAChoice();
    void openCameraIsRemembered();
    void sliderStaysWhileTheCameraFollows();
    void siteIsTypedWithTheKeyboard();
    void typedSiteCountsWhenConnecting();
    void clockHintIsDismissed();
    void enlargedViewKeepsItsContext_data();
    void enlargedViewKeepsItsContext();
};

void AssistantControlsTest::fingerCanHitEveryControl()
{
    QFETCH(int, scene);
    const ShownScene shown(scene);
    const QList<QWidget *> controls = controlsOf(*shown.window);
    QVERIFY(!controls.isEmpty());
    for (const QWidget *const control : controls)
        QVERIFY2(control->width() >= finger && control->height() >= finger,
                 qPrintable(QStringLiteral("%1: %2 x %3")
                                .arg(control->objectName())
                                .arg(control->width())
                                .arg(control->height())));
}

/// Those that have sliders, boxes and choices.
void AssistantControlsTest::fingerHitsWhatIsDrawn_data()
{
    QTest::addColumn<int>("scene");
    for (const char *const name : {"sky", "pole", "night", "recording"})
        QTest::newRow(name) << scenes::numberOf(name);
}

void AssistantControlsTest::fingerHitsWhatIsDrawn()
{
    QFETCH(int, scene);
    const ShownScene shown(scene);
    for (QWidget *const control : controlsOf(*shown.window)) {
        QRect area = control->rect();
        if (control->inherits("QCheckBox") || control->inherits("QRadioButton"))
            area = pressableArea(*qobject_cast<QAbstractButton *>(control));
        if (auto *const slider = qobject_cast<QSlider *>(control))
            area = handleOf(*slider);
        if (control->isEnabled())
            QVERIFY2(area.width() >= finger && area.height() >= finger,
                     qPrintable(QStringLiteral("%1: %2 x %3")
                                    .arg(control->objectName())
                                    .arg(area.width())
                                    .arg(area.height())));
    }
}

void AssistantControlsTest::tabReachesEveryControl()
{
    QFETCH(int, scene);
    const ShownScene shown(scene);
    QSet<QWidget *> reached;
    for (int i = 0; i < 120; ++i) {
        QVERIFY(QApplication::focusWidget());
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget *const control : controlsOf(*shown.window)) {
        // Of the exclusive buttons, the arrow keys reach the others.
        const auto *const button = qobject_cast<QAbstractButton *>(control);
        if (control->isEnabled() && !(button && button->isCheckable() && button->autoExclusive()) &&
            !(button && button->group()))
            QVERIFY2(reached.contains(control), qPrintable(control->objectName()));
    }
}

void AssistantControlsTest::redThemeHasOnlyRed()
{
    QFETCH(int, scene);
    const ShownScene shown(scene, true);
    const QImage image = screenImage(*shown.window);
    QCOMPARE(shown.window->size(), smallScreen);
    QCOMPARE(image.size(), smallScreen);
    QVERIFY(lightOf(image).bright > 0);
    QCOMPARE(lightOf(image).coloured, 0);
}

void AssistantControlsTest::listAndToolTipAreRed()
{
    const ShownScene shown(scenes::numberOf("connect"), true);
    auto *const camera = shown.window->findChild<QComboBox *>("comboBox_camera");
    QVERIFY(camera && camera->isVisible());
    camera->showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget());
    QWidget &list = *QApplication::activePopupWidget();
    const QImage image = screenImage(list);
    QVERIFY(lightOf(image).bright > 0);
    QCOMPARE(lightOf(image).coloured, 0);
    camera->hidePopup();
    auto *const settings = shown.window->findChild<QAbstractButton *>("pushButton_settings");
    QToolTip::showText(settings->mapToGlobal(settings->rect().center()), settings->toolTip(),
                       settings);
    QWidget *tip = nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets())
        if (window->inherits("QTipLabel") && window->isVisible())
            tip = window;
    QVERIFY(tip);
    const QImage text = tip->grab().toImage(); // it may close at any time
    QVERIFY(lightOf(text).bright > 0);
    QCOMPARE(lightOf(text).coloured, 0);
}

void AssistantControlsTest::normalThemeHasOtherColours()
{
    const ShownScene shown(scenes::numberOf("connect"));
    QVERIFY(lightOf(screenImage(*shown.window)).coloured > 1000);
}

void AssistantControlsTest::largeViewCanBeReadFromFar_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("numbers");
    QTest::newRow("two bolts") << "large" << 2;
    QTest::newRow("no site") << "largenosite" << 1;
    QTest::newRow("axis") << "largeaxis" << 1;
}

void AssistantControlsTest::largeViewCanBeReadFromFar()
{
    QFETCH(QString, name);
    QFETCH(int, numbers);
    int scene = 0;
    while (scenes::all()[std::size_t(scene)].name != name)
        ++scene;
    const ShownScene shown(scene);
    const QImage image = screenImage(*shown.window);
    const QRgb ink = assistantwindow::theme(false).text.rgb();
    // The rows of pixels in which there is ink right of the arrows, and the sentence below.
    std::vector<int> heights;
    int run = 0;
    for (int y = 0; y < image.height(); ++y) {
        bool isInk = false;
        for (int x = 250; x < 730; ++x)
            isInk = isInk || image.pixel(x, y) == ink;
        run = isInk ? run + 1 : 0;
        if (run == 1)
            heights.push_back(0);
        if (isInk)
            heights.back() = run;
    }
    QVERIFY(int(heights.size()) >= numbers);
    for (int i = 0; i < numbers; ++i)
        QVERIFY2(heights[std::size_t(i)] >= smallScreen.height() / 5,
                 qPrintable(QString::number(heights[std::size_t(i)])));
}

void AssistantControlsTest::largeViewOpensByKeyAndTap()
{
    const ShownScene shown(scenes::numberOf("bolts"));
    assistantwindow::AssistantWindow &window = *shown.window;
    auto *const large = window.findChild<QWidget *>("largePage");
    auto *const picture = window.findChild<QLabel *>("label_picture");
    QTest::keyClick(&window, Qt::Key_F11);
    QVERIFY(large->isVisible() && window.isFullScreen());
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!large->isVisible() && !window.isFullScreen());
    QTest::mouseClick(picture, Qt::LeftButton);
    QVERIFY(large->isVisible() && window.isFullScreen());
    QTest::mouseClick(large, Qt::LeftButton, {}, {200, 200});
    QVERIFY(!large->isVisible() && !window.isFullScreen());
}

void AssistantControlsTest::otherPagesLeaveTheFullScreen_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("page");
    QTest::newRow("settings") << int(Qt::Key_F10) << "settingsPage";
    QTest::newRow("report") << int(Qt::Key_F9) << "reportPage";
}

/// From the large view to another page and back: the keys of the large view go on working.
void AssistantControlsTest::otherPagesLeaveTheFullScreen()
{
    QFETCH(int, key);
    QFETCH(QString, page);
    const ShownScene shown(scenes::numberOf("bolts"));
    assistantwindow::AssistantWindow &window = *shown.window;
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&window, Qt::Key_F11);
        QVERIFY(window.isFullScreen());
        QTest::keyClick(&window, Qt::Key(key));
        QVERIFY(window.findChild<QWidget *>(page)->isVisible());
        QVERIFY(!window.isFullScreen());
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(window.findChild<QWidget *>("mainPage")->isVisible() && !window.isFullScreen());
    }
    window.showFullScreen(); // by the user: stays
    QTest::keyClick(&window, Qt::Key_F11);
    QTest::keyClick(&window, Qt::Key(key));
    QVERIFY(window.isFullScreen());
}

void AssistantControlsTest::keyboardAloneOperatesTheWindow()
{
    ShownScene shown(scenes::numberOf("connect"));
    QWidget &window = *shown.window;
    QTest::keyClick(&window, Qt::Key_F2);
    QCOMPARE(shown.instrument.calls, (QStringList{"find", "connect 1"}));
    QTest::keyClick(&window, Qt::Key_F5);
    QCOMPARE(shown.instrument.calls.last(), QStringLiteral("start again"));
    QTest::keyClick(&window, Qt::Key_F10);
    QVERIFY(window.findChild<QWidget *>("settingsPage")->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(window.findChild<QWidget *>("mainPage")->isVisible());
    QTest::keyClick(&window, Qt::Key_F2);
    QVERIFY(shown.instrument.calls.contains("disconnect"));
}

void AssistantControlsTest::exposureSliderTurnsTheAutomaticOff()
{
    ShownScene shown(scenes::numberOf("sky"));
    auto *const slider = shown.window->findChild<QAbstractSlider *>("slider_exposure");
    auto *const automatic =
        shown.window->findChild<QAbstractButton *>("checkBox_automaticExposure");
    QVERIFY(automatic->isChecked());
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(!automatic->isChecked());
    QVERIFY(shown.instrument.snapshot.status.exposureMicroseconds < 500000.0);
    QTest::mouseClick(automatic, Qt::LeftButton, {}, {14, automatic->height() / 2});
    QVERIFY(shown.instrument.calls.contains("automatic 1"));
}

void AssistantControlsTest::camerasAreListedWhereThereIsAChoice()
{
    ShownScene shown(scenes::numberOf("connect"));
    auto *const camera = shown.window->findChild<QComboBox *>("comboBox_camera");
    QVERIFY(camera->isVisible());
    camera->setFocus();
    QTest::keyClick(camera, Qt::Key_Down);
    QTest::keyClick(shown.window.get(), Qt::Key_F2);
    QCOMPARE(shown.instrument.calls.last(), QStringLiteral("connect 2"));
    QCOMPARE(shown.window->currentSettings().cameraId, QStringLiteral("2"));
    QTest::keyClick(shown.window.get(), Qt::Key_F2);
    shown.instrument.entries.pop_back();
    shown.window->refresh();
    QVERIFY(!camera->isVisible());
}

/// As where the window connects before it has a list to choose from.
void AssistantControlsTest::openCameraIsRemembered()
{
    ShownScene shown(scenes::numberOf("connect"));
    shown.instrument.entries.clear();
    shown.window->refresh();
    QTest::keyClick(shown.window.get(), Qt::Key_F2);
    QCOMPARE(shown.window->currentSettings().cameraId, QString());
    shown.instrument.snapshot.cameraId = QStringLiteral("2");
    shown.window->refresh();
    QCOMPARE(shown.window->currentSettings().cameraId, QStringLiteral("2"));
}

void AssistantControlsTest::sliderStaysWhileTheCameraFollows()
{
    ShownScene shown(scenes::numberOf("sky"));
    auto *const slider = shown.window->findChild<QAbstractSlider *>("slider_exposure");
    auto *const automatic =
        shown.window->findChild<QAbstractButton *>("checkBox_automaticExposure");
    slider->setFocus();
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(slider, Qt::Key_PageDown);
    const int position = slider->value();
    auto &status = shown.instrument.snapshot.status;
    const double asked = status.exposureMicroseconds;
    status.exposureMicroseconds = 500000.0; // frames of the old exposure
    status.automaticExposure = true;
    shown.window->refresh();
    QCOMPARE(slider->value(), position);
    QVERIFY(!automatic->isChecked());
    status.exposureMicroseconds = asked;
    status.automaticExposure = false;
    shown.window->refresh();
    QCOMPARE(slider->value(), position);
    status.exposureMicroseconds = 500000.0; // then the camera leads again
    shown.window->refresh();
    QVERIFY(slider->value() > position);
}

/// As an observer in the south does: with letters, without the mouse.
void AssistantControlsTest::siteIsTypedWithTheKeyboard()
{
    const ShownScene shown(scenes::numberOf("connect"));
    auto *const latitude = shown.window->findChild<QAbstractSpinBox *>("doubleSpinBox_latitude");
    auto *const longitude = shown.window->findChild<QAbstractSpinBox *>("doubleSpinBox_longitude");
    latitude->setFocus();
    settle();
    QTest::keyClicks(latitude, "33 54 S");
    QTest::keyClick(latitude, Qt::Key_Return);
    QTRY_COMPARE(QApplication::focusWidget(), longitude);
    QTest::qWait(20); // the field selects its text
    QTest::keyClicks(longitude, "18.4");
    QTest::keyClick(longitude, Qt::Key_Return);
    const auto &site = shown.window->currentSettings().site;
    QVERIFY(site.has_value());
    QCOMPARE(site->latitude, -33.9);
    QCOMPARE(site->longitude, 18.4);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("pushButton_connect"));
    // A click puts the cursor into the text; typing replaces it all the same.
    QTest::mouseClick(longitude, Qt::LeftButton);
    QTest::qWait(20);
    QTest::keyClicks(longitude, "70.5w");
    QTest::keyClick(longitude, Qt::Key_Tab);
    QCOMPARE(shown.window->currentSettings().site->longitude, -70.5);
}

void AssistantControlsTest::typedSiteCountsWhenConnecting()
{
    const ShownScene shown(scenes::numberOf("connect"));
    for (const char *name : {"doubleSpinBox_latitude", "doubleSpinBox_longitude"}) {
        auto *const field = shown.window->findChild<QAbstractSpinBox *>(name);
        field->setFocus();
        settle();
        QTest::keyClicks(field, "12");
    }
    QTest::keyClick(shown.window.get(), Qt::Key_F2); // the focus stays in the field
    QVERIFY(shown.window->currentSettings().site.has_value());
    QCOMPARE(shown.window->currentSettings().site->longitude, 12.0);
}

void AssistantControlsTest::clockHintIsDismissed()
{
    ShownScene shown(scenes::numberOf("bolts"));
    auto *const button = shown.window->findChild<QAbstractButton *>("pushButton_dismissHint");
    QVERIFY(button && button->isVisible());
    QVERIFY(!button->accessibleName().isEmpty());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button->isVisible());
    QVERIFY(shown.window->findChild<QWidget *>("mainPage")->isVisible()); // not the large view
    shown.window->refresh();
    QVERIFY(!button->isVisible());
}

void AssistantControlsTest::enlargedViewKeepsItsContext_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isEnlarged");
    QTest::newRow("below a minute") << "near" << true;
    QTest::newRow("aligned") << "aligned" << true;
    QTest::newRow("below ten minutes") << "south" << true;
    QTest::newRow("far") << "bolts" << false;
}

/// The whole frame with its stars' rings in the upper right corner, the scale bar in the lower
/// left.
void AssistantControlsTest::enlargedViewKeepsItsContext()
{
    QFETCH(QString, name);
    QFETCH(bool, isEnlarged);
    const ShownScene shown(scenes::numberOf(qPrintable(name)));
    const auto &colours = assistantwindow::theme(false);
    const QImage image = shown.window->findChild<QLabel *>("label_picture")->grab().toImage();
    const auto count = [&image](const QRect &part, const QColor &colour) {
        int found = 0;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                found += image.pixelColor(x, y) == colour ? 1 : 0;
        return found;
    };
    const QRect bar(10, image.height() - 20, image.width() / 3, 15);
    QCOMPARE(count(bar, colours.text) > 50, isEnlarged);
    // The frame's border, from one side to the other.
    const QRect corner(image.width() * 7 / 10, 4, image.width() * 3 / 10 - 4, 8);
    QCOMPARE(count(corner, colours.border) > corner.width() / 2, isEnlarged);
}

QTEST_MAIN(AssistantControlsTest)
#include "tst_assistantcontrols.moc"
