// SPDX-License-Identifier: MIT
// How a user clicks, types, scrolls and turns.
#include "geometry/starcatalogue.h"
#include "tools/tour/patience.h"
#include "tools/tour/person.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <QtMath>
#include <cmath>

namespace
{
constexpr int patienceMilliseconds = 20000;

/// Waits for `condition` with the event loop running; throws Stuck after a timeout.
template <typename Condition> void waitUntil(Condition condition, const char *what)
{
    if (!QTest::qWaitFor(condition, patience(patienceMilliseconds)))
        throw Stuck(std::string("timed out waiting for ") + what);
}

double direction(QPointF from, QPointF to)
{
    return qRadiansToDegrees(std::atan2(to.y() - from.y(), to.x() - from.x()));
}
} // namespace

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
