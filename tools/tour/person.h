// SPDX-License-Identifier: MIT
// How does a user align the mount with the window: what is clicked, typed and turned?
#pragma once

#include "tools/tour/knobs.h"

#include <QImage>
#include <QMainWindow>
#include <QPointF>
#include <QString>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>

class QAbstractButton;
class QAction;
class QMenu;
class QSlider;
struct Session;

/// The program does not behave as the instructions say; what() describes the difference.
class Stuck : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Aligns the virtual mount by following the window's instructions, using only mouse and keys.
/// Where a user would find a star in the picture, the true position is used, with an error of a
/// pixel or so. The coloured marks and the template's rings are found in the displayed pixels, and
/// numbers are read from labels. In the mono style the white marks differ only in shape, so the
/// program's own positions are used.
class Person
{
public:
    struct Options {
        int zoomPercent = 100; ///< 100, 75 or 50
        bool south = false;
        bool mono = false;
        bool reuseSavedAxis = false; ///< the answer if the program asks
        int pauseMilliseconds = 0;   ///< after every action, for a viewer
        QPointF roughRest;    ///< error after the rough adjustment of the bolts, frame pixels
        int boltParts = 1;    ///< number of parts of the first fine adjustment of the bolts
        QPointF templateSlip; ///< offset of the double click from the pole star, frame pixels
        int templateTurn = 0; ///< additional turn of the template, degrees
    };

    Person(QMainWindow &window, const Session &session, Knobs &knobs, const Options &options,
           unsigned seed);

    /// Called before every action.
    std::function<void(const QString &)> announce;
    /// Called for every step when its picture is displayed, for example to take a screenshot.
    std::function<void(const QString &name)> arrived;
    /// Called for every part of a fine adjustment when the picture shows it.
    std::function<void()> moved;

    void connectCamera();
    /// Sets style, hemisphere and zoom.
    void prepare();
    void setExposure();
    void confirmTemplate();
    void findAxis();
    void placePoleStar();
    void startMonitor();
    /// Shows the picture at 100 percent.
    void zoomIn();
    /// Drags the magnifier onto the axis mark and leaves it there.
    void magnifyMarks();
    void fineAdjust();
    void finish();
    void disconnectCamera();
    /// Performs all steps above, up to finish().
    void align();

private:
    enum class Mark { Pole, Axis };

    static constexpr int firstTurn = 55; ///< degrees of RA between the picks

    template <typename Widget> Widget &widget(const char *name) const
    {
        auto *const found = window.findChild<Widget *>(name);
        if (!found)
            throw Stuck(std::string("the window has no ") + name);
        return *found;
    }
    void say(const QString &text);
    void show(const char *name);
    void chooseZoom();
    // personhands.cpp
    void pause() const;
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
    void waitForFrames(int count) const;
    // personeyes.cpp
    QPointF eye(QPointF place);
    bool staysClear(QPointF star) const;
    bool isPickable(QPointF (Knobs::*star)() const) const;
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
