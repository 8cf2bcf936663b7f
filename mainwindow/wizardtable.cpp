// SPDX-License-Identifier: MIT
// The tables of the wizard's steps and pages.
#include "mainwindow/wizardtable.h"

#include <QObject>

namespace
{
constexpr Sections regionSetting = bit(Section::Region) | bit(Section::Setting);
constexpr Sections regionConfirm = bit(Section::Region) | bit(Section::Confirm);
constexpr Sections regionRough = bit(Section::Region) | bit(Section::Rough);
constexpr Sections regionPrecise = bit(Section::Region) | bit(Section::Precise);

constexpr Change keep = Change::Keep;
constexpr Change off = Change::Off;
constexpr Change on = Change::On;
constexpr LampCount same = lampsUnchanged;
constexpr std::nullopt_t stay = std::nullopt;

// clang-format off
//                  sections     template arrow lamps axis circle arc  monitor stops after
//                                                                           blinking pick
constexpr std::array<WizardStep, wizardStepCount> steps{{
    /*  1 */ {regionSetting, off,  off, same, off,  off,  off,  off,  false, stay},
    /*  2 */ {regionConfirm, keep, off, same, keep, keep, keep, keep, false, stay},
    /*  3 */ {regionRough,   off,  off, 0,    off,  off,  keep, keep, true,  FirstTurn},
    /*  4 */ {regionRough,   off,  on,  1,    off,  off,  keep, keep, false, stay},
    /*  5 */ {regionRough,   off,  off, 1,    off,  off,  keep, keep, false, SecondTurn},
    /*  6 */ {regionRough,   off,  on,  2,    off,  off,  keep, keep, false, stay},
    /*  7 */ {regionRough,   off,  off, 2,    off,  off,  keep, keep, false, ConfirmAxis},
    /*  8 */ {regionRough,   off,  off, 3,    on,   on,   keep, keep, false, stay},
    /*  9 */ {regionRough,   keep, off, 3,    on,   off,  on,   keep, false, stay},
    /* 10 */ {regionRough,   off,  off, same, on,   off,  on,   keep, true,  stay},
    /* 11 */ {regionRough,   keep, off, same, on,   off,  off,  keep, false, stay},
    /* 12 */ {regionPrecise, off,  off, same, keep, keep, keep, keep, true,  stay},
    /* 13 */ {regionPrecise, off,  off, same, keep, keep, keep, on,   false, stay},
}};
// clang-format on

constexpr PageButton none{nullptr, nullptr, nullptr, {}};

const std::array<WizardPage, wizardStepCount> pages{{
    {"tab_setting",
     "label_setting_tipMsg",
     QT_TRANSLATE_NOOP("MainWindow",
                       "Set the parameters to the left to make more stars around Polaris visable."),
     QT_TRANSLATE_NOOP("MainWindow",
                       "Set the parameters to the left to make more stars around σ Oct visable."),
     "label_setting_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Has setting up finished?"),
     none,
     {"pushButton_setting_done", QT_TRANSLATE_NOOP("MainWindow", "Setting Finished"),
      SLOT(pushbuttonSettingDoneClicked()), MatchTemplate}},
    {"tab_confirm",
     "label_confirm_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Double Click Polaris and use the 'Rotate' slider on the left to rotate the Template to "
         "match up to the stars around Polaris."),
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Double Click σ Oct and use the 'Rotate' slider on the left to rotate the Template to "
         "match up to the stars around σ Oct."),
     "label_confirm_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Does match success?"),
     none,
     {"pushButton_confirm_done", QT_TRANSLATE_NOOP("MainWindow", "Success"),
      SLOT(pushbuttonConfirmDoneClicked()), FirstPick}},
    {"tab_getStar1", "label_getStar1_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Choose a star other than Polaris and Double click it in the image. Remember this star, "
         "you will be selecting it again in the following steps (Step 1 of 3)."),
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Choose a star other than σ Oct and Double click it in the image. Remember this star, "
         "you will be selecting it again in the following steps (Step 1 of 3)."),
     nullptr, nullptr, none, none},
    {"tab_rotateStar1",
     "label_rotateStar1_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Rotate your mounts 'RA' axis in the direction indicated by the arrow now at the top of "
         "the screen (rotate a minimum of 30 degree's)."),
     nullptr,
     "label_rotateStar1_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Has rotation finished?"),
     {"pushButton_rotateStar1_reset", QT_TRANSLATE_NOOP("MainWindow", "Reset"),
      SLOT(pushbuttonRotateStar1ResetClicked()), FirstPick},
     {"pushButton_rotateStar1_done", QT_TRANSLATE_NOOP("MainWindow", "rotation Finished"),
      SLOT(pushbuttonRotateStar1DoneClicked()), SecondPick}},
    {"tab_getStar2",
     "label_getStar2_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Double click the same star again chosen in the previous step (Step 2 of 3)."),
     nullptr,
     nullptr,
     nullptr,
     {"pushButton_getStar2_reset", QT_TRANSLATE_NOOP("MainWindow", "Reset"),
      SLOT(pushbuttonGetStar2ResetClicked()), FirstPick},
     none},
    {"tab_rotateStar2",
     "label_rotateStar2_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Again, Rotate your mounts 'RA' axis in the same direction at least 30 degrees."),
     nullptr,
     "label_rotateStar2_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Has rotation finished?"),
     {"pushButton_rotateStar2_reset", QT_TRANSLATE_NOOP("MainWindow", "Reset"),
      SLOT(pushbuttonRotateStar2ResetClicked()), FirstPick},
     {"pushButton_rotateStar2_done", QT_TRANSLATE_NOOP("MainWindow", "rotation Finished"),
      SLOT(pushbuttonRotateStar2DoneClicked()), ThirdPick}},
    {nullptr,
     "label_getStar3_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3)."),
     nullptr,
     nullptr,
     nullptr,
     {"pushButton_getStar3_reset", QT_TRANSLATE_NOOP("MainWindow", "Reset"),
      SLOT(pushbuttonGetStar3ResetClicked()), FirstPick},
     none},
    {"tab_validateCenter",
     "label_validateCenter_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Return the 'RA' axis to the 'Home' position - Ensure your chosen star stays on the "
         "circle while your mount rotates to the PARK position."),
     nullptr,
     "label_validateCenter_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Is the axis center correct?"),
     {"pushButton_validateCenter_reset", QT_TRANSLATE_NOOP("MainWindow", "Reset"),
      SLOT(pushbuttonValidateCenterResetClicked()), FirstPick},
     {"pushButton_validateCenter_done", QT_TRANSLATE_NOOP("MainWindow", "Correct"),
      SLOT(pushbuttonValidateCenterDoneClicked()), ExpectedPosition}},
    {"tab_getEptPolaris",
     "label_getEptPolaris_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Expected position: Double Click Polaris and use the 'Rotate' slider on the left to "
         "rotate the Template to match up to the stars around Polaris."),
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Expected position: Double Click σ Oct and use the 'Rotate' slider on the left to "
         "rotate the Template to match up to the stars around σ Oct."),
     "label_getEptPolaris_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Does match success?"),
     none,
     {"pushButton_getEptPolaris_done", QT_TRANSLATE_NOOP("MainWindow", "Success"),
      SLOT(pushbuttonGetEptPolarisDoneClicked()), MoveBolts}},
    {"tab_movePolaris",
     "label_movePolaris_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Using your Altitude and Azimuth bolts, move Polaris into the center of the small "
         "Rotating circle now shown on the image."),
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Using your Altitude and Azimuth bolts, move σ Oct into the center of the small "
         "Rotating circle now shown on the image."),
     "label_movePolaris_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Has adjustment finished?"),
     none,
     {"pushButton_movePolaris_done", QT_TRANSLATE_NOOP("MainWindow", "adjustment Finished"),
      SLOT(pushbuttonMovePolarisDoneClicked()), CurrentPosition}},
    {"tab_getCurPolaris",
     "label_getCurPolaris_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Current position: Double Click Polaris and use the 'Rotate' slider on the left to "
         "rotate the Template to match up to the stars around Polaris."),
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Current position: Double Click σ Oct and use the 'Rotate' slider on the left to "
         "rotate the Template to match up to the stars around σ Oct."),
     "label_getCurPolaris_ask",
     QT_TRANSLATE_NOOP("MainWindow", "Does match success?"),
     none,
     {"pushButton_getCurPolaris_done", QT_TRANSLATE_NOOP("MainWindow", "Success"),
      SLOT(pushbuttonGetCurPolarisDoneClicked()), StartMonitor}},
    {"tab_calcPole", "label_calcPole_tipMsg",
     QT_TRANSLATE_NOOP("MainWindow", "Please click the 'Start Monitor' button."), nullptr, nullptr,
     nullptr, none, none},
    {"tab_finetunePole",
     "label_finetunePole_tipMsg",
     QT_TRANSLATE_NOOP(
         "MainWindow",
         "Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis "
         "circle."),
     nullptr,
     nullptr,
     nullptr,
     {"pushButton_finetunePole_reset", QT_TRANSLATE_NOOP("MainWindow", "Restart"),
      SLOT(pushbuttonFinetunePoleResetClicked()), SetExposure},
     {"pushButton_finetunePole_done", QT_TRANSLATE_NOOP("MainWindow", "Done"),
      SLOT(pushbuttonFinetunePoleDoneClicked()), wizardStepDone}},
}};
} // namespace

const WizardStep &wizardStep(int step)
{
    return steps.at(static_cast<std::size_t>(step - 1));
}

LampCount lampsOnStyleChange(int step)
{
    // Entering this step leaves the lamps as the expected-position step set them.
    if (step == CurrentPosition)
        return wizardStep(ExpectedPosition).lamps;
    return isWizardStep(step) ? wizardStep(step).lamps : lampsUnchanged;
}

const WizardPage &wizardPage(int step)
{
    return pages.at(static_cast<std::size_t>(step - 1));
}

const char *regionTip(const WizardPage &page, const QString &regionName)
{
    if (regionName == QLatin1String("North"))
        return page.northTip;
    if (regionName == QLatin1String("South"))
        return page.southTip ? page.southTip : page.northTip;
    return nullptr;
}

double nextArcAngle(double angle)
{
    constexpr double step = 10.0;
    constexpr double last = 72.0;
    const double next = angle + step;
    return next > last ? 0.0 : next;
}
