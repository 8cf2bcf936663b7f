// SPDX-License-Identifier: MIT
// The steps of an alignment as a user performs them.
#include "tools/tour/person.h"

#include "camera/session.h"
#include "geometry/starcatalogue.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QtMath>
#include <algorithm>

namespace
{
constexpr int patienceMilliseconds = 20000;
constexpr int firstTurn = 55; ///< degrees of RA between the picks
constexpr int ringReach = 16; ///< frame pixels; larger than the template's rings

/// Waits for `condition` with the event loop running; throws Stuck after a timeout.
template <typename Condition> void waitUntil(Condition condition, const char *what)
{
    if (!QTest::qWaitFor(condition, patienceMilliseconds))
        throw Stuck(std::string("timed out waiting for ") + what);
}

double direction(QPointF from, QPointF to)
{
    return qRadiansToDegrees(std::atan2(to.y() - from.y(), to.x() - from.x()));
}
} // namespace

Person::Person(QMainWindow &mainWindow, const Session &shared, Knobs &mount, const Options &choices,
               unsigned seed)
    : window(mainWindow), session(shared), knobs(mount), options(choices), random(seed)
{
}

template <typename Widget> Widget &Person::widget(const char *name) const
{
    auto *const found = window.findChild<Widget *>(name);
    if (!found)
        throw Stuck(std::string("the window has no ") + name);
    return *found;
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

void Person::pause() const
{
    QTest::qWait(options.pauseMilliseconds);
}

/// The picture changes once per displayed frame.
void Person::waitForFrames(int count) const
{
    const auto &picture = widget<QLabel>("label_showImg");
    qint64 last = picture.pixmap(Qt::ReturnByValue).cacheKey();
    waitUntil(
        [&] {
            const qint64 now = picture.pixmap(Qt::ReturnByValue).cacheKey();
            if (now != last && now != 0)
                --count;
            last = now;
            return count <= 0;
        },
        "frames");
}

void Person::clickAction(QMenu &menu, QAction &action)
{
    auto &bar = widget<QMenuBar>("menuBar");
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
    waitUntil([&] { return menu.isVisible(); }, "a menu");
    pause();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    pause();
}

void Person::click(const char *button)
{
    auto &found = widget<QPushButton>(button);
    if (!found.isVisible() || !found.isEnabled())
        throw Stuck(std::string("cannot click ") + button);
    QTest::mouseClick(&found, Qt::LeftButton);
    pause();
}

/// Clicks a button that may show a question, and answers it.
void Person::clickAnswering(const char *button)
{
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [this] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        pause();
        QTest::mouseClick(box->button(options.reuseSavedAxis ? QMessageBox::Yes : QMessageBox::No),
                          Qt::LeftButton);
    });
    answer.start(20);
    click(button);
}

void Person::type(const char *lineEdit, const QString &text)
{
    auto &edit = widget<QLineEdit>(lineEdit);
    QTest::mouseDClick(&edit, Qt::LeftButton); // selects the existing text
    QTest::keyClicks(&edit, text);
    QTest::keyClick(&edit, Qt::Key_Return);
    pause();
}

void Person::moveSliderTo(QSlider &slider, int value)
{
    slider.setFocus();
    while (slider.value() != value) {
        const int way = value - slider.value();
        if (std::abs(way) >= slider.pageStep())
            QTest::keyClick(&slider, way > 0 ? Qt::Key_PageUp : Qt::Key_PageDown);
        else
            QTest::keyClick(&slider, way > 0 ? Qt::Key_Right : Qt::Key_Left);
        if (options.pauseMilliseconds > 0)
            QTest::qWait(30);
    }
    pause();
}

/// Turns the template until its stars A and B are aligned with those in the picture.
void Person::turnTemplate(const char *slider, QPointF b, QPointF a)
{
    const StarCatalogue &stars = options.south ? southCatalogue : northCatalogue;
    const double turn =
        direction(b, a) - direction({stars.starBX, stars.starBY}, {stars.starAX, stars.starAY});
    const int wanted = qRound(turn) + options.templateTurn;
    moveSliderTo(widget<QSlider>(slider), (wanted % 360 + 360) % 360);
    if (options.templateTurn == 0 && options.templateSlip.isNull())
        checkRingRound(a);
}

/// Throws if the shown template has no ring around a star, that is, pixels in all four quadrants.
void Person::checkRingRound(QPointF star) const
{
    auto &label = widget<QLabel>("label_templateImg");
    const QImage mask = label.pixmap(Qt::ReturnByValue).toImage();
    const double zoom = options.zoomPercent / 100.0;
    const QPoint centre =
        label.mapFrom(&window, widget<QLabel>("label_showImg").mapTo(&window, inView(star)));
    const int reach = int(ringReach * zoom);
    bool quarters[2][2] = {};
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx)
            if (mask.valid(centre + QPoint(dx, dy)) &&
                qAlpha(mask.pixel(centre + QPoint(dx, dy))) > 60)
                quarters[dy > 0][dx > 0] = true;
    if (!label.isVisible() || !quarters[0][0] || !quarters[0][1] || !quarters[1][0] ||
        !quarters[1][1])
        throw Stuck("the template has no ring around its star");
}

/// Where a user sees something: within a pixel or so.
QPointF Person::eye(QPointF place)
{
    std::uniform_real_distribution<double> slip(-1.5, 1.5);
    return place + QPointF(slip(random), slip(random));
}

/// Whether a star is well inside the frame and not covered by a page or the magnifier.
bool Person::staysClear(QPointF star) const
{
    constexpr int underOverlays = 170;
    const QRectF frame(30, 30, 1220, 900);
    return frame.contains(star) && star.y() * options.zoomPercent / 100.0 > underOverlays;
}

/// Whether a star can be picked at all three angles of the RA axis. A user can see which circle it
/// will move along.
bool Person::isPickable(QPointF (Knobs::*star)() const) const
{
    Knobs turned = knobs;
    for (const int angle : {0, firstTurn, 2 * firstTurn}) {
        turned.edit().raAngle = angle;
        if (!staysClear((turned.*star)()))
            return false;
    }
    return true;
}

QPoint Person::inView(QPointF frame) const
{
    return (frame * options.zoomPercent / 100.0).toPoint();
}

/// Scrolls with the arrow keys until the view position is inside the view and not under a page.
void Person::bringIntoView(QPoint view)
{
    auto &picture = widget<QLabel>("label_showImg");
    auto &area = widget<QScrollArea>("scrollArea_showImg");
    constexpr int edge = 20;
    constexpr int underOverlays = 170;
    const auto place = [&] { return picture.mapTo(area.viewport(), view); };
    const auto scroll = [&](int key, const auto &wanted) {
        for (int presses = 0; presses < 100 && wanted(); ++presses) {
            const QPoint before = place();
            QTest::keyClick(&area, Qt::Key(key));
            if (place() == before)
                return;
        }
    };
    scroll(Qt::Key_Down, [&] { return place().y() > area.viewport()->height() - edge; });
    scroll(Qt::Key_Up, [&] { return place().y() < underOverlays; });
    scroll(Qt::Key_Right, [&] { return place().x() > area.viewport()->width() - edge; });
    scroll(Qt::Key_Left, [&] { return place().x() < edge; });
    if (window.childAt(picture.mapTo(&window, view)) != &picture)
        throw Stuck(QStringLiteral("the mouse cannot reach the view pixel %1, %2")
                        .arg(view.x())
                        .arg(view.y())
                        .toStdString());
}

void Person::doubleClick(QPointF frame)
{
    const QPoint view = inView(frame);
    bringIntoView(view);
    auto &picture = widget<QLabel>("label_showImg");
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, picture.mapTo(&window, view));
    pause();
}

QPointF Person::read(const char *label) const
{
    const QString text = widget<QLabel>(label).text();
    static const QRegularExpression point(R"(^\((-?[0-9.]+),(-?[0-9.]+)\)$)");
    const auto match = point.match(text);
    if (!match.hasMatch())
        throw Stuck(std::string("no position in ") + label);
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

QImage Person::shownPicture() const
{
    return widget<QLabel>("label_showImg")
        .pixmap(Qt::ReturnByValue)
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// The centroid of the green or red pixels, in frame pixels.
QPointF Person::markInPicture(Mark mark) const
{
    const QImage picture = shownPicture();
    QPointF sum;
    double weight = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            // Grey sky has no such pixels; where one mark covers the other, each gets its share.
            const int pure =
                (mark == Mark::Pole ? qGreen(line[x]) : qRed(line[x])) - qBlue(line[x]);
            if (pure <= 0)
                continue;
            sum += QPointF(x, y) * pure;
            weight += pure;
        }
    }
    if (weight <= 0)
        throw Stuck(mark == Mark::Pole ? "no pole mark is visible" : "no axis mark is visible");
    return sum / weight * 100.0 / options.zoomPercent;
}

QPointF Person::axisMark() const
{
    return options.mono ? session.alignmentPoints.savedAxisCenter.load()
                        : markInPicture(Mark::Axis);
}

/// The vector from the moving pole mark to the axis mark, averaged over some frames; frame pixels.
QPointF Person::fromPoleToAxis() const
{
    constexpr int frames = 8;
    QPointF sum;
    for (int i = 0; i < frames; ++i) {
        waitForFrames(1);
        if (!session.monitorPositions.poleValid)
            throw Stuck("the pole is not shown");
        sum += axisMark() - (options.mono ? session.monitorPositions.poleCurrent.load()
                                          : markInPicture(Mark::Pole));
    }
    return sum / frames;
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

/// At once, or slowly enough for a viewer to follow.
void Person::turnAxisTo(double degrees)
{
    constexpr double part = 2.0;
    constexpr int partMilliseconds = 100;
    const double way = degrees > knobs.edit().raAngle ? part : -part;
    while (options.pauseMilliseconds > 0 && std::abs(degrees - knobs.edit().raAngle) > part) {
        knobs.turnRaAxisTo(knobs.edit().raAngle + way);
        QTest::qWait(partMilliseconds);
    }
    knobs.turnRaAxisTo(degrees);
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

/// As by hand: the turn starts and ends slowly.
void Person::turnBoltsSmoothly(QPointF step, int parts)
{
    const auto done = [&](int part) { return (1 - std::cos(M_PI * part / parts)) / 2; };
    for (int part = 1; part <= parts; ++part) {
        knobs.nudgeStarB(step * (done(part) - done(part - 1)));
        waitForFrames(4);
        if (moved)
            moved();
    }
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
