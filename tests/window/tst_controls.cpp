// SPDX-License-Identifier: MIT
// Do the camera's sliders and edit boxes send what they show?
#include "tests/support/wheel.h"
#include "tests/window/camerawindow.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QtTest>

namespace
{
/// One parameter with its widgets, as after connecting to the recording camera.
struct Control {
    const char *name;
    const char *slider;
    const char *edit;
    const char *slot; ///< the edit box's slot
    int least, most, page;
    int start;
    int control;    ///< the camera library's number
    double perUnit; ///< camera units in one of the slider's
    double CameraState::*value;
};

const Control controls[] = {
    {"exposure", "sliderExpose", "lineEditExpose", "on_lineEditExpose_returnPressed", 1, 500, 10,
     20, 8, 1000, &CameraState::exposure},
    {"gain", "sliderGain", "lineEditGain", "on_lineEditGain_returnPressed", 1, 100, 10, 10, 6, 1,
     &CameraState::gain},
    {"traffic", "sliderTraffic", "lineEditTraffic", "on_lineEditTraffic_returnPressed", 0, 255, 10,
     30, 12, 1, &CameraState::usbTraffic},
    {"speed", "sliderSpeed", "lineEditSpeed", "on_lineEditSpeed_returnPressed", 0, 2, 1, 0, 9, 1,
     &CameraState::speed},
};

const Control &controlNamed(const QString &name)
{
    for (const Control &control : controls)
        if (name == control.name)
            return control;
    qFatal("no such control");
}

QString callFor(const Control &control, double shown, const QString &handle = "camera 1")
{
    return QStringLiteral("SetVELDIXParam(%1, %2, %3)")
        .arg(handle)
        .arg(control.control)
        .arg(qint64(shown * control.perUnit));
}

/// A connected window with the parameters visible and the previous calls cleared.
class ControlWindow : public CameraWindow
{
public:
    explicit ControlWindow(const Control &which)
        : slider(child<QSlider>(which.slider)), edit(child<QLineEdit>(which.edit)), control(which)
    {
        connectCamera();
        QTest::qWait(20);
        if (!slider.isVisible() || !edit.isVisible())
            qFatal("the controls are not in view");
        sdk().clearCalls();
    }

    /// Checks slider, edit box, stored value and the previous calls together.
    void check(const QStringList &calls, int shown, const QString &text) const
    {
        QCOMPARE(sdkCalls(), calls);
        QCOMPARE(slider.value(), shown);
        QCOMPARE(edit.text(), text);
        QCOMPARE(session().camera.*control.value, shown * control.perUnit);
    }

    QSlider &slider;
    QLineEdit &edit;
    const Control &control;
};
} // namespace

class ControlsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void keys_data();
    void keys();
    void dragging_data();
    void dragging();
    void typing_data();
    void typing();
    void emptyText_data();
    void emptyText();
    void refusedByTheCamera_data();
    void refusedByTheCamera();
    void withoutCamera_data();
    void withoutCamera();
    void typingAloneSendsNothing();
    void emptyFieldShowsTheValue();
    void wheelScrollsThePanel_data();
    void wheelScrollsThePanel();
};

void ControlsTest::cleanup()
{
    QCOMPARE(sdkViolations(), QStringList());
}

void ControlsTest::keys_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("value");
    for (const Control &c : controls) {
        const auto row = [&c](const char *what, Qt::Key key, int value) {
            QTest::addRow("%s, %s", c.name, what) << c.name << int(key) << value;
        };
        row("right", Qt::Key_Right, c.start + 1);
        row("up", Qt::Key_Up, c.start + 1);
        row("page up", Qt::Key_PageUp, c.start + c.page);
        row("end", Qt::Key_End, c.most);
        if (c.start > c.least) {
            row("left", Qt::Key_Left, c.start - 1);
            row("down", Qt::Key_Down, c.start - 1);
            row("page down", Qt::Key_PageDown, qMax(c.start - c.page, c.least));
            row("home", Qt::Key_Home, c.least);
        }
    }
}

void ControlsTest::keys()
{
    QFETCH(QString, name);
    QFETCH(int, key);
    QFETCH(int, value);
    const Control &c = controlNamed(name);
    const ControlWindow w(c);
    w.slider.setFocus();
    QTest::keyClick(w.window->windowHandle(), Qt::Key(key));
    w.check({callFor(c, value)}, value, QString::number(value));
}

void ControlsTest::dragging_data()
{
    QTest::addColumn<QString>("name");
    for (const Control &c : controls)
        QTest::newRow(c.name) << c.name;
}

void ControlsTest::dragging()
{
    QFETCH(QString, name);
    const Control &c = controlNamed(name);
    const ControlWindow w(c);
    w.slider.setFocus();
    QTest::keyClick(w.window->windowHandle(), Qt::Key_Home);
    sdk().clearCalls();
    QWindow *const handle = w.window->windowHandle();
    const QPoint grip = w.slider.mapTo(w.window.get(), QPoint(6, w.slider.height() / 2));
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, grip);
    QTest::mouseMove(handle, grip + QPoint(w.slider.width() / 2, 0));
    QTest::qWait(5);
    const int middle = w.slider.value();
    QVERIFY(middle > c.least && middle < c.most);
    w.check({callFor(c, middle)}, middle, QString::number(middle));
    QTest::mouseMove(handle, grip + QPoint(2 * w.slider.width(), 0));
    QTest::qWait(5);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier,
                        grip + QPoint(2 * w.slider.width(), 0));
    w.check({callFor(c, middle), callFor(c, c.most)}, c.most, QString::number(c.most));
}

void ControlsTest::typing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    const auto row = [](const char *name, const char *keys, const char *text, int value) {
        QTest::addRow("%s, %s", name, keys) << name << keys << text << value;
    };
    row("exposure", "900", "500", 500);
    row("exposure", "250", "250", 250);
    row("exposure", "0", "1", 1);
    row("exposure", "500", "500", 500);
    row("exposure", "501", "500", 500);
    row("exposure", "007", "007", 7);
    row("exposure", "1a-2.b3", "123", 123);
    row("exposure", "99999999999999999999", "500", 500);
    row("gain", "100", "100", 100);
    row("gain", "101", "100", 100);
    row("gain", "0", "1", 1);
    row("gain", "-5", "5", 5);
    row("gain", "4294967297", "100", 100);
    row("traffic", "0", "0", 0);
    row("traffic", "255", "255", 255);
    row("traffic", "256", "255", 255);
    row("speed", "0", "0", 0);
    row("speed", "2", "2", 2);
    row("speed", "3", "2", 2);
    row("speed", "2147483648", "2", 2);
}

void ControlsTest::typing()
{
    QFETCH(QString, name);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(int, value);
    const Control &c = controlNamed(name);
    const ControlWindow w(c);
    w.edit.setFocus();
    w.edit.selectAll();
    for (const QChar key : keys)
        QTest::keyClick(w.window->windowHandle(), key.toLatin1());
    QTest::keyClick(w.window->windowHandle(), Qt::Key_Return);
    w.check({callFor(c, value)}, value, text);
}

void ControlsTest::typingAloneSendsNothing()
{
    const Control &c = controls[0];
    const ControlWindow w(c);
    w.edit.setFocus();
    w.edit.selectAll();
    QTest::keyClicks(&w.edit, "77");
    QCOMPARE(sdkCalls(), QStringList());
    QCOMPARE(w.slider.value(), c.start);
}

/// In grey: the text itself stays empty.
void ControlsTest::emptyFieldShowsTheValue()
{
    const CameraWindow w;
    auto &speed = w.child<QLineEdit>("lineEditSpeed");
    QCOMPARE(speed.text(), QString());
    QCOMPARE(speed.placeholderText(), QString("0"));
    w.child<QSlider>("sliderSpeed").setValue(2);
    QCOMPARE(speed.text(), QString("2"));
    speed.clear();
    QCOMPARE(speed.placeholderText(), QString("2"));
    w.child<QLineEdit>("lineEditGain").clear();
    QCOMPARE(w.child<QLineEdit>("lineEditGain").placeholderText(), QString("50"));
}

void ControlsTest::emptyText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("exposure") << "exposure"
                              << "1" << 1;
    QTest::newRow("gain") << "gain"
                          << "1" << 1;
    QTest::newRow("traffic") << "traffic"
                             << "" << 0;
    QTest::newRow("speed") << "speed"
                           << "" << 0;
}

/// The validator blocks Return in an empty box; the slot itself must cope with it.
void ControlsTest::emptyText()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(int, value);
    const Control &c = controlNamed(name);
    const ControlWindow w(c);
    w.edit.setFocus();
    w.edit.clear();
    QTest::keyClick(&w.edit, Qt::Key_Return);
    QCOMPARE(sdkCalls(), QStringList());
    w.call(c.slot);
    w.check({callFor(c, value)}, value, text);
}

void ControlsTest::refusedByTheCamera_data()
{
    dragging_data();
}

void ControlsTest::refusedByTheCamera()
{
    QFETCH(QString, name);
    const Control &c = controlNamed(name);
    const ControlWindow w(c);
    sdk().setStatus("SetVELDIXParam", 1);
    const BoxWatcher boxes;
    w.slider.setValue(c.most);
    w.check({callFor(c, c.most)}, c.most, QString::number(c.most));
    QCOMPARE(boxes.boxes(), QList<Box>());
}

void ControlsTest::withoutCamera_data()
{
    dragging_data();
}

/// The call is made with a null handle, and the value is kept for the next connection.
void ControlsTest::withoutCamera()
{
    QFETCH(QString, name);
    const Control &c = controlNamed(name);
    const CameraWindow w;
    sdk().clearCalls();
    w.child<QSlider>(c.slider).setValue(c.most);
    QCOMPARE(sdkCalls(), QStringList(callFor(c, c.most, "null")));
    QCOMPARE(w.session().camera.*c.value, c.most * c.perUnit);
    w.child<QLineEdit>(c.edit).setText("1");
    w.call(c.slot);
    QCOMPARE(sdkCalls().value(1), callFor(c, 1, "null"));
    QCOMPARE(w.session().camera.*c.value, c.perUnit);
}

void ControlsTest::wheelScrollsThePanel_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("name");
    for (const Control &control : controls)
        QTest::newRow(control.name) << 1 << control.slider;
    QTest::newRow("template's angle, step 2") << 2 << "horizontalSlider_confirm_match";
    QTest::newRow("template's angle, step 9") << 9 << "horizontalSlider_rough_match";
    QTest::newRow("template's angle, step 10") << 10 << "horizontalSlider_rough_match";
}

/// Over a slider too, unless it has the focus.
void ControlsTest::wheelScrollsThePanel()
{
    QFETCH(int, step);
    QFETCH(QString, name);
    const CameraWindow w;
    w.connectCamera();
    if (step > 1)
        w.enterStep(step);
    w.window->resize(w.window->width(), 400);
    auto &bar = *w.child<QScrollArea>("scrollArea_manager").verticalScrollBar();
    auto &slider = w.child<QSlider>(name.toLatin1());
    w.window->activateWindow();
    w.window->setFocus();
    QTRY_VERIFY(bar.maximum() > 0);
    w.child<QScrollArea>("scrollArea_manager").ensureWidgetVisible(&slider);
    const int value = (slider.minimum() + slider.maximum()) / 2;
    slider.setValue(value);
    sdk().clearCalls();
    const int before = bar.value();
    rollWheel(slider, before == bar.maximum() ? 1 : -1);
    QVERIFY(bar.value() != before);
    QCOMPARE(slider.value(), value);
    QCOMPARE(sdkCalls(), QStringList());
    slider.setFocus();
    QTRY_VERIFY(slider.hasFocus());
    rollWheel(slider, 1);
    QVERIFY(slider.value() > value);
}

QTEST_MAIN(ControlsTest)
#include "tst_controls.moc"
