// SPDX-License-Identifier: MIT
// The table of notices: the condition and the text of each.
#include "mainwindow/notice.h"

#include "mainwindow/wizardtable.h"

#include <QCoreApplication>
#include <QtMath>
#include <cmath>

namespace
{
/// A camera sends a picture at least twice a second.
constexpr double maxPause = 5.0;
/// A picture that is smaller than a tenth shows no star, one of no size nothing at all.
constexpr float minZoom = 0.1F;
/// The pages ask for 30 degrees; from half of it on the axis is not to be trusted.
constexpr double minTurn = 15.0;
/// Picks that are nearer to one another than this differ by little more than noise.
constexpr double minMove = 10.0;

using Found = std::optional<Notice>;

Found when(bool holds, NoticeCode code, double first = 0, double second = 0)
{
    return holds ? Found(Notice{code, int(first), int(second)}) : std::nullopt;
}

/// Monitor mode is prepared or running.
bool showsPole(const NoticeFacts &f)
{
    return f.step == StartMonitor || f.monitoring;
}

/// Connect does nothing then.
Found libraryUnusable(const NoticeFacts &f)
{
    return when(!f.libraryUsable, NoticeCode::LibraryUnusable);
}

Found noCamera(const NoticeFacts &f)
{
    return when(!f.connected && f.pageShown, NoticeCode::NoCamera);
}

Found noPicture(const NoticeFacts &f)
{
    return when(f.connected && f.secondsWithoutPicture >= maxPause, NoticeCode::NoPicture,
                std::floor(f.secondsWithoutPicture));
}

Found zoomShowsNothing(const NoticeFacts &f)
{
    return when(f.connected && !(f.zoomFactor >= minZoom), NoticeCode::ZoomShowsNothing);
}

Found noAxis(const NoticeFacts &f)
{
    const bool needed = f.step >= ExpectedPosition || f.monitoring;
    return when(f.connected && needed && !f.hasAxis, NoticeCode::NoAxis);
}

Found monitorNotPrepared(const NoticeFacts &f)
{
    return when(f.connected && f.monitoring && !f.monitorPrepared, NoticeCode::MonitorNotPrepared);
}

Found poleStarNotPicked(const NoticeFacts &f)
{
    const bool needed = f.step == MoveBolts || (showsPole(f) && f.monitorPrepared);
    return when(f.connected && needed && !f.poleStarPicked, NoticeCode::PoleStarNotPicked);
}

Found templateNotPlaced(const NoticeFacts &f)
{
    return when(f.connected && f.step == FirstPick && !f.poleStarPicked,
                NoticeCode::TemplateNotPlaced);
}

Found templateLeftOver(const NoticeFacts &f)
{
    return when(f.connected && showsTemplate(f.step) && f.templateShown && !f.poleStarPicked,
                NoticeCode::TemplateLeftOver);
}

Found noStarHere(const NoticeFacts &f)
{
    const bool needed = showsTemplate(f.step) || f.step == MoveBolts || showsPole(f);
    return when(f.connected && needed && f.poleStarPicked && !f.poleStarOnStar,
                NoticeCode::NoStarHere);
}

Found noStarInPick(const NoticeFacts &f)
{
    return when(f.connected && f.emptyPick > 0, NoticeCode::NoStarInPick, f.emptyPick);
}

Found starsLost(const NoticeFacts &f)
{
    if (!f.connected || !f.monitoring || (f.starAFound && f.starBFound))
        return std::nullopt;
    return Notice{f.starAFound   ? NoticeCode::StarBLost
                  : f.starBFound ? NoticeCode::StarALost
                                 : NoticeCode::StarsLost};
}

Found misfit(const NoticeFacts &f)
{
    const bool isShown = (showsTemplate(f.step) && f.poleStarPicked) || f.monitoring;
    const bool atStart = showsPole(f) && f.monitorPrepared && isMisfit(f.fitAtStart);
    const TemplateFit &fit = isShown && isMisfit(f.fit) ? f.fit : f.fitAtStart;
    return when(f.connected && ((isShown && isMisfit(f.fit)) || atStart),
                NoticeCode::TemplateMisfit, fit.held, fit.rings);
}

/// Also before the axis is known: no turn of 30 degrees moves a star by so few pixels.
Found movedLittle(const NoticeFacts &f)
{
    return when(f.connected && f.movedPixels && *f.movedPixels < minMove,
                NoticeCode::StarMovedLittle, std::round(f.movedPixels.value_or(0)));
}

Found turnedLittle(const NoticeFacts &f)
{
    return when(f.connected && f.turnDegrees && *f.turnDegrees < minTurn,
                NoticeCode::AxisTurnedLittle, std::floor(f.turnDegrees.value_or(0)));
}

/// The dial rotates the positions where the stars were found, which already include its angle.
Found dialNotReset(const NoticeFacts &f)
{
    return when(f.connected && showsPole(f) && f.monitorPrepared && f.dialAtStart != 0 &&
                    f.dialDegrees != 0,
                NoticeCode::DialNotReset, f.dialDegrees);
}

Found ringUnderMagnifier(const NoticeFacts &f)
{
    return when(f.connected && f.step == MoveBolts && f.ringUnderMagnifier,
                NoticeCode::RingUnderMagnifier);
}

Found settingsNotKept(const NoticeFacts &f)
{
    switch (f.saveTrouble) {
    case SaveTrouble::None:
        return {};
    case SaveTrouble::FolderNotWritable:
        return Notice{NoticeCode::SettingsNotKept};
    case SaveTrouble::FileNotAccessible:
        return Notice{NoticeCode::SettingsFileNotAccessible};
    case SaveTrouble::NotAFile:
        return Notice{NoticeCode::SettingsPlaceTaken};
    case SaveTrouble::DiskFull:
        return Notice{NoticeCode::SettingsDiskFull};
    }
    return {};
}

/// In order of urgency.
constexpr Found (*const rules[])(const NoticeFacts &) = {
    libraryUnusable,
    noCamera,
    noPicture,
    zoomShowsNothing,
    noAxis,
    monitorNotPrepared,
    poleStarNotPicked,
    templateNotPlaced,
    templateLeftOver,
    noStarHere,
    noStarInPick,
    starsLost,
    misfit,
    movedLittle,
    turnedLittle,
    dialNotReset,
    ringUnderMagnifier,
    settingsNotKept,
};

const char *sourceText(NoticeCode code)
{
    switch (code) {
    case NoticeCode::LibraryUnusable:
        return QT_TRANSLATE_NOOP("Notice", "The camera library cannot be used: see the log.");
    case NoticeCode::NoCamera:
        return QT_TRANSLATE_NOOP("Notice", "No camera is connected.");
    case NoticeCode::NoPicture:
        return QT_TRANSLATE_NOOP("Notice", "No picture for %1 s.");
    case NoticeCode::ZoomShowsNothing:
        return QT_TRANSLATE_NOOP("Notice", "The zoom in the settings file shows no picture.");
    case NoticeCode::NoAxis:
        return QT_TRANSLATE_NOOP("Notice", "No axis yet: pick one star at three RA angles first.");
    case NoticeCode::MonitorNotPrepared:
        return QT_TRANSLATE_NOOP("Notice", "Monitoring without an alignment: press 'Restart'.");
    case NoticeCode::PoleStarNotPicked:
        return QT_TRANSLATE_NOOP("Notice", "The pole star was not double clicked.");
    case NoticeCode::TemplateNotPlaced:
        return QT_TRANSLATE_NOOP("Notice", "The template was not placed on the pole star.");
    case NoticeCode::TemplateLeftOver:
        return QT_TRANSLATE_NOOP("Notice",
                                 "Old place of the template: double click the pole star again.");
    case NoticeCode::NoStarHere:
        return QT_TRANSLATE_NOOP("Notice", "No star here.");
    case NoticeCode::NoStarInPick:
        return QT_TRANSLATE_NOOP("Notice", "No star here (pick %1 of 3).");
    case NoticeCode::StarsLost:
        return QT_TRANSLATE_NOOP("Notice", "Stars A and B lost.");
    case NoticeCode::StarALost:
        return QT_TRANSLATE_NOOP("Notice", "Star A lost.");
    case NoticeCode::StarBLost:
        return QT_TRANSLATE_NOOP("Notice", "Star B lost.");
    case NoticeCode::TemplateMisfit:
        return QT_TRANSLATE_NOOP("Notice",
                                 "The template does not fit: %1 of %2 rings hold a star.");
    case NoticeCode::StarMovedLittle:
        return QT_TRANSLATE_NOOP("Notice", "The star moved by only %1 px between the picks.");
    case NoticeCode::AxisTurnedLittle:
        return QT_TRANSLATE_NOOP("Notice", "The axis turned by only %1° between the picks.");
    case NoticeCode::DialNotReset:
        return QT_TRANSLATE_NOOP("Notice", "The tracking dial still stands at %1°: reset it.");
    case NoticeCode::RingUnderMagnifier:
        return QT_TRANSLATE_NOOP("Notice", "The ring lies under the magnifier.");
    case NoticeCode::SettingsFileNotAccessible:
        return QT_TRANSLATE_NOOP("Notice",
                                 "Settings will not be kept: their file cannot be written.");
    case NoticeCode::SettingsPlaceTaken:
        return QT_TRANSLATE_NOOP("Notice",
                                 "Settings will not be kept: Quorvandel.ini is not a file.");
    case NoticeCode::SettingsDiskFull:
        return QT_TRANSLATE_NOOP("Notice", "Settings will not be kept: the disk is full.");
    case NoticeCode::SettingsNotKept:
        return QT_TRANSLATE_NOOP("Notice",
                                 "Settings will not be kept: their folder cannot be written.");
    }
    return "";
}
} // namespace

std::optional<Notice> noticeFor(const NoticeFacts &facts)
{
    for (const auto rule : rules)
        if (const Found notice = rule(facts))
            return notice;
    return std::nullopt;
}

QString noticeText(const Notice &notice)
{
    QString text = QCoreApplication::translate("Notice", sourceText(notice.code));
    for (const int number : {notice.first, notice.second})
        if (text.contains(QLatin1String("%1")) || text.contains(QLatin1String("%2")))
            text = text.arg(number);
    return text;
}
