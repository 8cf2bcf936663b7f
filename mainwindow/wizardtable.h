// SPDX-License-Identifier: MIT
// What does each step of the alignment show, and what does it say?
#pragma once

#include "dialogs/style.h"

#include <array>

/// Number of steps; the steps are counted from 1 and each has one instruction page.
constexpr int wizardStepCount = 13;
/// "Done": hides the pages and leaves everything else as it is.
constexpr int wizardStepDone = 14;
/// The wizard at rest, as after the camera was disconnected.
constexpr int wizardAtRest = 0;

enum class Section { Region, Setting, Confirm, Rough, Precise };
constexpr int sectionCount = 5;
using Sections = unsigned; ///< one bit for each open section
constexpr Sections bit(Section section)
{
    return 1U << static_cast<unsigned>(section);
}

/// What entering a step does to something that is on or off.
enum class Change { Keep, Off, On };

/// Everything that entering one step sets; what is Keep stays as it was.
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
};

/// \param step 1 to wizardStepCount
const WizardStep &wizardStep(int step);

/// The steps in which the template lies over the picture and follows the rotate sliders.
constexpr bool showsTemplate(int step)
{
    return step == 2 || step == 9 || step == 11;
}

struct PageButton {
    const char *name;
    const char *text;
    const char *slot; ///< in the form that connect takes
};

/// One instruction page. Texts are source texts of the context "MainWindow"; null where the page
/// has no such widget.
struct WizardPage {
    const char *name;
    const char *tipName;
    const char *northTip;
    const char *southTip; ///< null where the step names no star: then northTip holds everywhere
    const char *askName;
    const char *ask;
    std::array<PageButton, 2> buttons;
};

/// \param step 1 to wizardStepCount
const WizardPage &wizardPage(int step);

/// The tip of a page in a hemisphere; null, for "leave it", unless it is "North" or "South".
const char *regionTip(const WizardPage &page, const QString &regionName);

/// The next angle of the broken ring in degrees: 0, 10, ... 70 and from the start again.
double nextArcAngle(double angle);
