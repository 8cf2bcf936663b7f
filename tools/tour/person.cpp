// SPDX-License-Identifier: MIT
// The steps of an alignment as a user performs them.
#include "tools/tour/person.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QWindow>

Person::Person(QMainWindow &mainWindow, const Session &shared, Knobs &mount, const Options &choices,
               unsigned seed)
    : window(mainWindow), session(shared), knobs(mount), options(choices), random(seed)
{
}

void Person::say(const QString &text)
{
    if (announce)
        announce(text);
}

void Person::show(const char *name)
{
    if (!arrived)
        return;
    waitForFrames(3); // frames in progress still show the previous marks
    arrived(name);
}

void Person::connectCamera()
{
    say(QStringLiteral("Device > Connect"));
    clickAction(widget<QMenu>("menuDevice"), widget<QAction>("actionConnect"));
    waitForFrames(2);
    show("connected");
}

void Person::disconnectCamera()
{
    say(QStringLiteral("Device > Disconnect"));
    clickAction(widget<QMenu>("menuDevice"), widget<QAction>("actionConnect"));
}

void Person::chooseZoom()
{
    const char *const zoom = options.zoomPercent == 50   ? "action50"
                             : options.zoomPercent == 75 ? "action75"
                                                         : "action100";
    say(QStringLiteral("Zoom > %1%").arg(options.zoomPercent));
    clickAction(widget<QMenu>("menuZoom"), widget<QAction>(zoom));
}

void Person::prepare()
{
    auto &mono = widget<QAction>("actionMono_Style");
    if (mono.isChecked() != options.mono)
        clickAction(widget<QMenu>("menuTools"), mono);
    chooseZoom();
    auto &hemisphere =
        widget<QAbstractButton>(options.south ? "radioButton_south" : "radioButton_north");
    if (!hemisphere.isChecked()) {
        say(QStringLiteral("Choose the hemisphere"));
        QTest::mouseClick(&hemisphere, Qt::LeftButton, {}, QPoint(8, hemisphere.height() / 2));
    }
    waitForFrames(3);
    show("hemisphere");
}

void Person::setExposure()
{
    say(QStringLiteral("Set the exposure until the stars show"));
    type("lineEditExpose", QStringLiteral("500"));
    // The southern stars are faint: a user increases the gain until they are clearly visible.
    type("lineEditGain", options.south ? QStringLiteral("70") : QStringLiteral("50"));
    waitForFrames(4);
    show("step-01-exposure");
    click("pushButton_setting_done");
}

void Person::confirmTemplate()
{
    say(QStringLiteral("Double click the pole star and turn the template"));
    doubleClick(eye(knobs.starB()) + options.templateSlip);
    turnTemplate("horizontalSlider_confirm_match", knobs.starB(), knobs.starA());
    show("step-02-template");
    clickAnswering("pushButton_confirm_done");
}

void Person::findAxis()
{
    static const char *const picks[] = {"step-03-first-pick", "step-05-second-pick",
                                        "step-07-third-pick"};
    static const char *const turns[] = {"step-04-turn", "step-06-turn-again"};
    static const char *const doneButtons[] = {"pushButton_rotateStar1_done",
                                              "pushButton_rotateStar2_done"};
    const auto star = isPickable(&Knobs::starD) ? &Knobs::starD : &Knobs::starA;
    for (int pick = 0; pick < 3; ++pick) {
        say(QStringLiteral("Double click the same star (%1 of 3)").arg(pick + 1));
        show(picks[pick]);
        doubleClick(eye((knobs.*star)()));
        if (pick == 2)
            break;
        say(QStringLiteral("Turn the RA axis by %1 degrees").arg(firstTurn));
        show(turns[pick]);
        turnAxisTo(firstTurn * (pick + 1));
        waitForFrames(4);
        click(doneButtons[pick]);
    }
    say(QStringLiteral("Turn the RA axis back: the star stays on the circle"));
    turnAxisTo(0);
    waitForFrames(4);
    show("step-08-axis");
    click("pushButton_validateCenter_done");
}

void Person::placePoleStar()
{
    say(QStringLiteral("Expected position: double click the pole star, turn the template"));
    doubleClick(eye(knobs.starB()) + options.templateSlip);
    turnTemplate("horizontalSlider_rough_match", knobs.starB(), knobs.starA());
    show("step-09-expected");
    click("pushButton_getEptPolaris_done");
    say(QStringLiteral("Turn the bolts until the pole star is in the rotating circle"));
    const QPointF target = read("label_eptPos") + options.roughRest;
    show("step-10-before");
    for (int i = 0; i < 3; ++i) {
        turnBoltsSmoothly(target - eye(knobs.starB()), i == 0 ? options.boltParts : 1);
    }
    show("step-10-moved");
    click("pushButton_movePolaris_done");
    say(QStringLiteral("Current position: double click the pole star, turn the template"));
    doubleClick(eye(knobs.starB()) + options.templateSlip);
    turnTemplate("horizontalSlider_rough_match", knobs.starB(), knobs.starA());
    show("step-11-current");
    click("pushButton_getCurPolaris_done");
}

void Person::startMonitor()
{
    say(QStringLiteral("Start Monitor"));
    show("step-12-monitor");
    click("pushButton_monitor");
    waitForFrames(4);
    show("step-13-before");
}

void Person::zoomIn()
{
    options.zoomPercent = 100;
    chooseZoom();
    waitForFrames(3);
}

void Person::magnifyMarks()
{
    say(QStringLiteral("Drag the magnifier onto the marks: it stays there"));
    const QPoint mark = inView(axisMark());
    bringIntoView(mark);
    auto &picture = widget<QLabel>("label_showImg");
    auto *const surface = window.windowHandle();
    constexpr QPoint way(60, 40); // from next to the marks
    constexpr int parts = 15;
    QTest::mousePress(surface, Qt::LeftButton, {}, picture.mapTo(&window, mark - way));
    for (int part = 1; part <= parts; ++part) {
        QTest::mouseMove(surface, picture.mapTo(&window, mark - way * (parts - part) / parts));
        QTest::qWait(options.pauseMilliseconds > 0 ? 40 : 0);
    }
    QTest::mouseRelease(surface, Qt::LeftButton, {}, picture.mapTo(&window, mark));
    pause();
    show("step-13-magnified");
}

void Person::fineAdjust()
{
    say(QStringLiteral("Turn the bolts until the pole mark lies on the axis mark"));
    for (int i = 0; i < 4; ++i) {
        // The pole and the stars move together in the picture.
        turnBoltsSmoothly(fromPoleToAxis(), i == 0 ? options.boltParts : 1);
    }
    show("step-13-aligned");
}

void Person::finish()
{
    say(QStringLiteral("Done"));
    click("pushButton_finetunePole_done");
    show("done");
}

void Person::align()
{
    connectCamera();
    prepare();
    setExposure();
    confirmTemplate();
    if (!options.reuseSavedAxis)
        findAxis();
    placePoleStar();
    startMonitor();
    fineAdjust();
    finish();
}
