// SPDX-License-Identifier: MIT
// What is the most important thing that the user must be told now?
#pragma once

#include "core/savetrouble.h"
#include "geometry/templaterings.h"

#include <QString>
#include <optional>

/// In order of urgency: if several apply, the first is shown.
enum class NoticeCode {
    LibraryUnusable,
    NoCamera,
    NoPicture, ///< seconds
    ZoomShowsNothing,
    NoAxis,
    MonitorNotPrepared, ///< monitoring began without its reference stars
    PoleStarNotPicked,  ///< the user left a step that needs the pole star without picking it
    TemplateNotPlaced,  ///< the same for the first step with a template
    TemplateLeftOver,   ///< it is where an earlier step placed it
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
    SettingsFileNotAccessible,
    SettingsPlaceTaken, ///< by something that is not a file
    SettingsDiskFull,
    SettingsNotKept, ///< their folder cannot be written
};

struct Notice {
    NoticeCode code;
    int first = 0, second = 0; ///< meaning as listed with the code
};

inline bool operator==(const Notice &a, const Notice &b)
{
    return a.code == b.code && a.first == b.first && a.second == b.second;
}

/// Everything that the notices depend on; the defaults produce none.
struct NoticeFacts {
    // The camera and the picture
    bool libraryUsable = true; ///< it was initialised
    bool connected = false;
    bool pageShown = false;           ///< an instruction page is visible
    double secondsWithoutPicture = 0; ///< since the last one, or since connecting
    float zoomFactor = 1.0F;
    SaveTrouble saveTrouble = SaveTrouble::None; ///< of the settings file

    // The alignment
    int step = 0;
    bool monitoring = false; ///< the marks of monitor mode are shown
    bool hasAxis = false;
    bool monitorPrepared = false; ///< the reference stars were searched for in this alignment
    bool templateShown = false;
    bool poleStarPicked = false; ///< in this step or the last one that asked for it
    bool poleStarOnStar = true;
    int emptyPick = 0; ///< the first of the three picks, 1 to 3, that is not on a star
    std::optional<double> movedPixels; ///< smallest distance between two picks
    std::optional<double> turnDegrees; ///< smallest turn between two picks that gave the axis

    // Results from the frame
    TemplateFit fit;        ///< of the template, or of both stars in monitor mode
    TemplateFit fitAtStart; ///< when the current position was confirmed
    bool starAFound = true, starBFound = true;
    bool ringUnderMagnifier = false;
    int dialDegrees = 0; ///< the tracking dial, now and when the stars were searched for
    int dialAtStart = 0;
};

/// The most urgent notice; empty if there is nothing to report.
std::optional<Notice> noticeFor(const NoticeFacts &facts);

/// One sentence in the current language.
QString noticeText(const Notice &notice);
