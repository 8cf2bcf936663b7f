// SPDX-License-Identifier: MIT
// The table of advice: one sentence for each code.
#include "assistantwindow/advicetexts.h"

#include "assistantwindow/figures.h"

#include <QCoreApplication>
#include <cmath>

namespace assistantwindow
{
namespace
{
using assistant::AdviceCode;

/// How `first` is written where the sentence has %1.
enum class Number { None, Whole, Degrees, Angle, OneDecimal, Text };

struct Row {
    AdviceCode code;
    AdviceMood mood;
    Number number;
    const char *text;
};

constexpr Row adviceRows[] = {
    {AdviceCode::ConnectCamera, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Point the camera at the pole and press Connect.")},
    {AdviceCode::NoCamera, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "No camera was found. Plug it in: the search goes on.")},
    {AdviceCode::CameraUnusable, AdviceMood::Warning, Number::Text,
     QT_TRANSLATE_NOOP("Advice", "The camera library cannot be used: %1")},
    {AdviceCode::CameraRefuses, AdviceMood::Warning, Number::Text,
     QT_TRANSLATE_NOOP("Advice", "The camera %1 cannot be opened. It is tried again.")},
    {AdviceCode::CameraLost, AdviceMood::Warning, Number::Whole,
     QT_TRANSLATE_NOOP("Advice", "No picture for %1 s. Check the camera’s cable.")},
    {AdviceCode::CameraHangs, AdviceMood::Warning, Number::Whole,
     QT_TRANSLATE_NOOP("Advice", "The camera has not answered for %1 s. Plug it in again.")},
    {AdviceCode::Searching, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Looking for the stars at the pole …")},
    {AdviceCode::CoverOn, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "No light at all. Take the cover off the lens.")},
    {AdviceCode::ExposeLonger, AdviceMood::Warning, Number::Whole,
     QT_TRANSLATE_NOOP("Advice", "Too few stars (%1). Expose longer.")},
    {AdviceCode::ExposeShorter, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The picture is too bright. Expose shorter.")},
    {AdviceCode::NoSky, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "This is not the night sky. Point the camera at the pole.")},
    {AdviceCode::Focus, AdviceMood::Warning, Number::OneDecimal,
     QT_TRANSLATE_NOOP("Advice", "The stars are %1 pixels wide. Focus the lens.")},
    {AdviceCode::HoldStill, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The stars are trailed. Let the mount come to rest.")},
    {AdviceCode::Clouds, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Too few stars: clouds? It goes on when they are back.")},
    {AdviceCode::NotThePole, AdviceMood::Warning, Number::Whole,
     QT_TRANSLATE_NOOP("Advice", "%1 stars, but not those at the pole. Point the mount at it.")},
    {AdviceCode::PoleThatWay, AdviceMood::Warning, Number::OneDecimal,
     QT_TRANSLATE_NOOP("Advice", "The pole is %1° outside the picture. Follow the arrow.")},
    {AdviceCode::WrongHemisphere, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "These stars are of the other hemisphere. Check the latitude.")},
    {AdviceCode::ClockUnsure, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The computer’s clock may be wrong. Check date and time.")},
    {AdviceCode::ClockBehind, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The computer’s clock is behind. Set date and time.")},
    {AdviceCode::ClockJumped, AdviceMood::Warning, Number::Whole,
     QT_TRANSLATE_NOOP("Advice", "The clock was set by %1 s. Check date and time.")},
    {AdviceCode::TurnAxis, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Turn the RA axis, either way.")},
    {AdviceCode::TurnFurther, AdviceMood::Calm, Number::Degrees,
     QT_TRANSLATE_NOOP("Advice", "Turn the RA axis further: %1 so far.")},
    {AdviceCode::StopTurning, AdviceMood::Good, Number::Angle,
     QT_TRANSLATE_NOOP("Advice", "Enough: the axis is known to %1. Now turn the bolts.")},
    {AdviceCode::Bumped, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The mount was moved. Turn the RA axis once more.")},
    {AdviceCode::AxisSlipped, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The camera slipped on the axis. Turn the RA axis once more.")},
    {AdviceCode::TurnBolts, AdviceMood::Calm, Number::Angle,
     QT_TRANSLATE_NOOP("Advice", "Turn the bolts as the arrows say: %1 to go.")},
    {AdviceCode::NearlyThere, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Nearly there. Turn the bolts a little at a time.")},
    {AdviceCode::Aligned, AdviceMood::Good, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Aligned. Tighten the bolts and watch the number.")},
    {AdviceCode::SiteMissing, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "Enter the site to see which way each bolt must go.")},
    {AdviceCode::SiteTooFarNorth, AdviceMood::Calm, Number::None,
     QT_TRANSLATE_NOOP("Advice", "So near to the Earth’s pole, follow the arrow in the picture.")},
    {AdviceCode::RecordingFailed, AdviceMood::Warning, Number::Text,
     QT_TRANSLATE_NOOP("Advice", "Recording stopped: the folder %1 cannot be written.")},
    {AdviceCode::RecordingFull, AdviceMood::Warning, Number::None,
     QT_TRANSLATE_NOOP("Advice", "The recording reached its limit and stopped.")},
};

const Row &rowOf(AdviceCode code)
{
    for (const Row &row : adviceRows)
        if (row.code == code)
            return row;
    return adviceRows[0];
}

QString numberText(Number number, const assistant::Advice &advice, const QLocale &locale)
{
    switch (number) {
    case Number::Whole:
        return locale.toString(std::llround(advice.first));
    case Number::Degrees:
        return turnText(advice.first, locale);
    case Number::Angle:
        return angleText(advice.first, locale);
    case Number::OneDecimal:
        return locale.toString(advice.first, 'f', 1);
    case Number::Text:
        return QString::fromStdString(advice.text);
    case Number::None:
        break;
    }
    return {};
}
} // namespace

QString adviceText(const assistant::Advice &advice, bool hasBolts, const QLocale &locale)
{
    const Row &row = rowOf(advice.code);
    const char *source = row.text;
    if (advice.code == AdviceCode::TurnBolts && !hasBolts)
        source = QT_TRANSLATE_NOOP("Advice", "Turn the bolts until the arrow is gone: %1 to go.");
    if (advice.code == AdviceCode::CameraUnusable && advice.text.empty())
        return QCoreApplication::translate("Advice", "The camera library cannot be used.");
    const QString sentence = QCoreApplication::translate("Advice", source);
    if (row.number == Number::None)
        return sentence;
    return sentence.arg(numberText(row.number, advice, locale));
}

QString reasonText(AdviceCode code)
{
    // The Earth turns by 15 degrees an hour about the pole.
    if (code == AdviceCode::ClockUnsure)
        return QCoreApplication::translate(
            "Advice", "Each minute that it is off turns altitude and azimuth by 0.25° about the "
                      "pole; the total error hardly changes.");
    return {};
}

bool canBeDismissed(AdviceCode code)
{
    return code == AdviceCode::ClockUnsure;
}

QString stageText(assistant::Stage stage)
{
    switch (stage) {
    case assistant::Stage::Sky:
        return QCoreApplication::translate("Stage", "Sky");
    case assistant::Stage::Axis:
        return QCoreApplication::translate("Stage", "Axis");
    case assistant::Stage::Bolts:
        return QCoreApplication::translate("Stage", "Bolts");
    case assistant::Stage::Connect:
        break;
    }
    return QCoreApplication::translate("Stage", "Camera");
}

AdviceMood moodOf(assistant::AdviceCode code)
{
    return rowOf(code).mood;
}
} // namespace assistantwindow
