// SPDX-License-Identifier: MIT
// How does a person align the mount with the window: what is clicked, typed and turned?
#pragma once

#include "tools/tour/knobs.h"

#include <QImage>
#include <QPointF>
#include <QString>
#include <functional>
#include <random>
#include <stdexcept>

class QAbstractButton;
class QAction;
class QMainWindow;
class QMenu;
class QSlider;
struct Session;

/// Something is not as the instructions promise; what() tells what.
class Stuck : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Aligns the virtual mount by following the window's instructions with mouse and keys alone. Where
/// a person looks at the picture for a star, the knobs' truth stands in for the eyes, a pixel or so
/// off. The coloured marks and the template's rings are looked for in the pixels that the window
/// shows, and numbers are read from its labels; in the mono style, where shapes alone tell the
/// white marks apart, the program's own positions stand in.
class Person
{
public:
    struct Options {
        int zoomPercent = 100; ///< 100, 75 or 50
        bool south = false;
        bool mono = false;
        bool reuseSavedAxis = false; ///< what to answer where the program asks
        int pauseMilliseconds = 0;   ///< after every action, for somebody who watches
        QPointF roughRest;           ///< how far off the rough turn of the bolts ends, frame pixels
        int boltParts = 1;           ///< in how many parts the first fine turn of the bolts is made
        QPointF templateSlip; ///< how far beside the pole star it is double clicked, frame pixels
        int templateTurn = 0; ///< by how much the template is turned too far, degrees
    };

    Person(QMainWindow &window, const Session &session, Knobs &knobs, const Options &options,
           unsigned seed);

    /// Told of every action before it is done.
    std::function<void(const QString &)> announce;
    /// Told of every step once its picture is there, for example to take a screenshot.
    std::function<void(const QString &name)> arrived;
    /// Told of every part of a fine turn of the bolts once the picture shows it.
    std::function<void()> moved;

    void connectCamera();
    /// Style, hemisphere and zoom.
    void prepare();
    void setExposure();
    void confirmTemplate();
    void findAxis();
    void placePoleStar();
    void startMonitor();
    /// Shows the picture at 100 percent.
    void zoomIn();
    /// Drags the magnifier onto the axis mark, where it stays.
    void magnifyMarks();
    void fineAdjust();
    void finish();
    void disconnectCamera();
    /// All of the above from the first to finish().
    void align();

private:
    enum class Mark { Pole, Axis };

    template <typename Widget> Widget &widget(const char *name) const;
    void say(const QString &text);
    void show(const char *name);
    void pause() const;
    void chooseZoom();
    void clickAction(QMenu &menu, QAction &action);
    void click(const char *button);
    void clickAnswering(const char *button);
    void type(const char *lineEdit, const QString &text);
    void moveSliderTo(QSlider &slider, int value);
    void turnTemplate(const char *slider, QPointF b, QPointF a);
    void doubleClick(QPointF frame);
    QPoint inView(QPointF frame) const;
    void bringIntoView(QPoint view);
    void turnAxisTo(double degrees);
    void turnBoltsSmoothly(QPointF step, int parts);
    QPointF eye(QPointF place);
    bool staysClear(QPointF star) const;
    bool isPickable(QPointF (Knobs::*star)() const) const;
    void waitForFrames(int count) const;
    QPointF read(const char *label) const;
    QImage shownPicture() const;
    QPointF markInPicture(Mark mark) const;
    QPointF axisMark() const;
    QPointF fromPoleToAxis() const;
    void checkRingRound(QPointF star) const;

    QMainWindow &window;
    const Session &session;
    Knobs &knobs;
    Options options;
    std::mt19937 random;
};
