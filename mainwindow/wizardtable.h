// SPDX-License-Identifier: MIT
// What does each step of the alignment show, and what does it say?
#pragma once

#include <QString>
#include <array>
#include <optional>

/// The steps in order; each has one instruction page.
enum Step {
    SetExposure = 1,
    MatchTemplate,
    FirstPick,
    FirstTurn,
    SecondPick,
    SecondTurn,
    ThirdPick,
    ConfirmAxis,
    ExpectedPosition,
    MoveBolts,
    CurrentPosition,
    StartMonitor,
    FineAdjustment,
};
constexpr int wizardStepCount = FineAdjustment;
/// "Done": hides the pages and leaves everything else unchanged.
constexpr int wizardStepDone = 14;
/// No step is active, as after the camera was disconnected.
constexpr int wizardAtRest = 0;

enum class Section { Region, Setting, Confirm, Rough, Precise };
constexpr int sectionCount = 5;
using Sections = unsigned; ///< one bit for each open section
constexpr Sections noSections = 0;
constexpr Sections bit(Section section)
{
    return 1U << static_cast<unsigned>(section);
}

constexpr bool isWizardStep(int step)
{
    return step >= SetExposure && step <= wizardStepCount;
}

/// What entering a step does to something that can be on or off.
enum class Change { Keep, Off, On };

/// How many of the three star lamps are lit, counted from the first; -1 = unchanged.
using LampCount = int;
constexpr LampCount lampsUnchanged = -1;

/// Everything that entering a step sets; Keep leaves it unchanged.
struct WizardStep {
    Sections open; ///< all other sections are closed
    Change templateLabel;
    Change arrow;
    LampCount lamps;
    Change axisMark;
    Change starCircle;
    Change rotatingArc;
    Change monitor; ///< monitorTracking, showPoleRect and showMonitorCross alike
    bool stopsBlinking;
    std::optional<int> afterPick; ///< the step after a star is picked in this one
};

/// @param step 1 to wizardStepCount
const WizardStep &wizardStep(int step);

/// The lamps that a style change redraws in a step; lampsUnchanged outside the steps.
LampCount lampsOnStyleChange(int step);

/// The steps in which the template is over the picture and follows the rotate sliders.
constexpr bool showsTemplate(int step)
{
    return step == MatchTemplate || step == ExpectedPosition || step == CurrentPosition;
}

struct PageButton {
    const char *name;
    const char *text;
    const char *slot;          ///< made by SLOT()
    std::optional<int> target; ///< the step that the button leads to, unless its slot decides
};

/// One instruction page. Texts are source texts of the context "MainWindow"; null where the page
/// has no such widget.
struct WizardPage {
    const char *name;
    const char *tipName;
    const char *northTip;
    const char *southTip; ///< null where the step names no star: then northTip is used for both
    const char *askName;
    const char *ask;
    PageButton back;    ///< no button if its name is null
    PageButton forward; ///< right of the back button
};

/// @param step 1 to wizardStepCount
const WizardPage &wizardPage(int step);

/// The tip of a page for a hemisphere; null (leave unchanged) unless it is "North" or "South".
const char *regionTip(const WizardPage &page, const QString &regionName);

/// The next angle of the broken ring in degrees: 0, 10, ... 70, then 0 again.
double nextArcAngle(double angle);
