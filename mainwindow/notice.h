// SPDX-License-Identifier: MIT
// What, of all that the program knows, does the user have to be told now?
#pragma once

#include "geometry/templaterings.h"

#include <QString>
#include <optional>

/// In order of urgency: of several that hold the first is shown.
enum class NoticeCode {
    LibraryUnusable,
    NoCamera,
    NoPicture, ///< seconds
    ZoomShowsNothing,
    NoAxis,
    MonitorNotPrepared, ///< monitoring began without its reference stars
    PoleStarNotPicked,  ///< a step that needs the pole star was left without its pick
    TemplateNotPlaced,  ///< the same for the first step with a template
    TemplateLeftOver,   ///< it lies where an earlier step has put it
    NoStarHere,
    NoStarInPick, ///< number of the pick, 1 to 3
    StarsLost,
    StarALost,
    StarBLost,
    TemplateMisfit,   ///< rings that hold a star, rings
    StarMovedLittle,  ///< pixels
    AxisTurnedLittle, ///< degrees
    DialNotReset,     ///< degrees
    RingUnderMagnifier,
    SettingsNotKept,
};

struct Notice {
    NoticeCode code;
    int first = 0, second = 0; ///< what the code says of them
};

inline bool operator==(const Notice &a, const Notice &b)
{
    return a.code == b.code && a.first == b.first && a.second == b.second;
}

/// Everything that the notices depend on; the defaults give none.
struct NoticeFacts {
    // The camera and the picture
    bool libraryUsable = true; ///< it was initialised
    bool connected = false;
    bool pageShown = false;           ///< an instruction page is to be seen
    double secondsWithoutPicture = 0; ///< since the last one, or since connecting
    float zoomFactor = 1.0F;
    bool settingsKept = true; ///< they can be written

    // The alignment
    int step = 0;
    bool monitoring = false; ///< the marks of monitor mode are shown
    bool hasAxis = false;
    bool monitorPrepared = false; ///< the reference stars were looked for in this alignment
    bool templateShown = false;
    bool poleStarPicked = false; ///< in this step or the last one that asked for it
    bool poleStarOnStar = true;
    int emptyPick = 0;                 ///< of the three, 1 to 3, the first without a star
    std::optional<double> movedPixels; ///< least distance between two picks
    std::optional<double> turnDegrees; ///< least turn between two picks that gave the axis

    // What the frame shows
    TemplateFit fit;        ///< of the template, or of both stars in monitor mode
    TemplateFit fitAtStart; ///< when the current position was confirmed
    bool starAFound = true, starBFound = true;
    bool ringUnderMagnifier = false;
    int dialDegrees = 0; ///< the tracking dial, now and when the stars were looked for
    int dialAtStart = 0;
};

/// The most urgent notice; nothing while all is well.
std::optional<Notice> noticeFor(const NoticeFacts &facts);

/// One sentence in the language in force.
QString noticeText(const Notice &notice);
