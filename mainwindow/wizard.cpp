// SPDX-License-Identifier: MIT
// Which step is the alignment in, and what advances it?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/style.h"
#include "geometry/axiscentre.h"
#include "mainwindow/pointtext.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"

#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QtDebug>
#include <array>

namespace
{
void apply(Change change, QWidget *widget)
{
    if (change != Change::Keep)
        widget->setVisible(change == Change::On);
}

void apply(Change change, Relaxed<bool> &flag)
{
    if (change != Change::Keep)
        flag = change == Change::On;
}

struct SectionWidgets {
    QPushButton *head;
    QWidget *body;
    const char *word; ///< in the log
};

std::array<SectionWidgets, sectionCount> sectionsOf(const Ui::MainWindow &ui)
{
    return {{{ui.pushButton_head_region, ui.widget_region, "region head "},
             {ui.pushButton_head_setting, ui.widget_setting, "setting head "},
             {ui.pushButton_head_confirm, ui.widget_confirm, "confirm head "},
             {ui.pushButton_head_rough, ui.widget_rough, "rough head "},
             {ui.pushButton_head_precise, ui.widget_precise, "precise head "}}};
}
} // namespace

void MainWindow::switchStep(int step)
{
    keepFocus(step);
    if (step == wizardStepDone) {
        tipTabs->hide();
        return;
    }
    if (!isWizardStep(step)) {
        tipTabs->hide();
        openSections(noSections);
        ui->label_templateImg->hide();
        directionArrow->hide();
        return;
    }
    const WizardStep &row = wizardStep(step);
    tipTabs->show();
    tipTabs->setCurrentIndex(step - 1);
    openSections(row.open);
    apply(row.templateLabel, ui->label_templateImg);
    apply(row.arrow, directionArrow);
    if (row.lamps != lampsUnchanged)
        showLamps(row.lamps);
    setOverlayFlags(row);
    if (row.stopsBlinking)
        effectTimer->stop();
    currentStep = step;
    progress.enter(step);
    placeImageOverlays();
    showNotice();
    if (step == StartMonitor) // after layout of the panel; the page refers to this button
        QTimer::singleShot(0, this, [this] {
            ui->scrollArea_manager->ensureWidgetVisible(ui->pushButton_monitor);
        });
}

/// If the step hides the focused widget, the picture takes the focus. Otherwise the focus would go
/// to the next widget in tab order ("Start Monitor", a "Reset" or a hemisphere), and a stray key
/// press would trigger it.
void MainWindow::keepFocus(int step)
{
    const QWidget *const focus = focusWidget();
    const bool goesToRest = !isWizardStep(step) && step != wizardStepDone;
    bool losesFocus = goesToRest || tipTabs->isAncestorOf(focus);
    if (isWizardStep(step)) {
        const auto sections = sectionsOf(*ui);
        for (std::size_t i = 0; i < sections.size(); ++i)
            if ((wizardStep(step).open & bit(static_cast<Section>(i))) == 0)
                losesFocus |= sections[i].body->isAncestorOf(focus);
    }
    if (losesFocus)
        ui->scrollArea_showImg->setFocus();
}

void MainWindow::setOverlayFlags(const WizardStep &row)
{
    apply(row.axisMark, session.overlayFlags.showAxisMark);
    apply(row.starCircle, session.overlayFlags.showStarCircle);
    apply(row.rotatingArc, session.overlayFlags.showRotatingArc);
    for (Relaxed<bool> *const flag :
         {&session.overlayFlags.monitorTracking, &session.overlayFlags.showPoleRect,
          &session.overlayFlags.showMonitorCross})
        apply(row.monitor, *flag);
}

void MainWindow::openSections(Sections open)
{
    const auto sections = sectionsOf(*ui);
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const bool isOpen = (open & bit(static_cast<Section>(i))) != 0;
        sections[i].head->setChecked(isOpen);
        sections[i].body->setVisible(isOpen);
    }
}

void MainWindow::showLamps(int lit)
{
    const Style &style = styleNamed(styleName);
    const QPixmap on(style.lampOn);
    const QPixmap off(style.lampOff);
    int lamp = 0;
    for (QLabel *const icon :
         {ui->label_starPos1_icon, ui->label_starPos2_icon, ui->label_starPos3_icon})
        icon->setPixmap(lamp++ < lit ? on : off);
}

void MainWindow::sectionToggled(Section section, bool checked)
{
    const SectionWidgets widgets = sectionsOf(*ui).at(static_cast<std::size_t>(section));
    qDebug() << widgets.word << checked;
    widgets.body->setVisible(checked);
    widgets.head->setIcon(QIcon(checked ? QStringLiteral(":/images/collapse.png")
                                        : QStringLiteral(":/images/expand.png")));
}

void MainWindow::on_pushButton_head_region_toggled(bool checked)
{
    sectionToggled(Section::Region, checked);
}
void MainWindow::on_pushButton_head_setting_toggled(bool checked)
{
    sectionToggled(Section::Setting, checked);
}
void MainWindow::on_pushButton_head_confirm_toggled(bool checked)
{
    sectionToggled(Section::Confirm, checked);
}
void MainWindow::on_pushButton_head_rough_toggled(bool checked)
{
    sectionToggled(Section::Rough, checked);
}
void MainWindow::on_pushButton_head_precise_toggled(bool checked)
{
    sectionToggled(Section::Precise, checked);
}

void MainWindow::pushbuttonSettingDoneClicked()
{
    switchStep(wizardPage(SetExposure).forward.target.value());
}
void MainWindow::pushbuttonRotateStar1ResetClicked()
{
    switchStep(wizardPage(FirstTurn).back.target.value());
}
void MainWindow::pushbuttonRotateStar1DoneClicked()
{
    switchStep(wizardPage(FirstTurn).forward.target.value());
}
void MainWindow::pushbuttonGetStar2ResetClicked()
{
    switchStep(wizardPage(SecondPick).back.target.value());
}
void MainWindow::pushbuttonRotateStar2ResetClicked()
{
    switchStep(wizardPage(SecondTurn).back.target.value());
}
void MainWindow::pushbuttonRotateStar2DoneClicked()
{
    switchStep(wizardPage(SecondTurn).forward.target.value());
}
void MainWindow::pushbuttonGetStar3ResetClicked()
{
    switchStep(wizardPage(ThirdPick).back.target.value());
}
void MainWindow::pushbuttonValidateCenterResetClicked()
{
    switchStep(wizardPage(ConfirmAxis).back.target.value());
}
void MainWindow::pushbuttonGetEptPolarisDoneClicked()
{
    switchStep(wizardPage(ExpectedPosition).forward.target.value());
}
void MainWindow::pushbuttonMovePolarisDoneClicked()
{
    switchStep(wizardPage(MoveBolts).forward.target.value());
}
void MainWindow::pushbuttonFinetunePoleResetClicked()
{
    switchStep(wizardPage(FineAdjustment).back.target.value());
}
void MainWindow::pushbuttonFinetunePoleDoneClicked()
{
    switchStep(wizardPage(FineAdjustment).forward.target.value());
}

void MainWindow::pushbuttonConfirmDoneClicked()
{
    const QPointF saved = session.alignmentPoints.savedAxisCenter;
    if (!(saved.x() > 0.0 && saved.y() > 0.0)) {
        switchStep(wizardPage(MatchTemplate).forward.target.value());
        return;
    }
    const auto answer =
        QMessageBox::question(nullptr, tr("Question"),
                              tr("Would you like to use the 'Axis center position' recorded last "
                                 "time you used Quorvandel ?"),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::Yes) {
        ui->label_axisPos->setText(pointText(saved));
        switchStep(ExpectedPosition);
    } else {
        session.alignmentPoints.savedAxisCenter = QPointF(0, 0);
        switchStep(wizardPage(MatchTemplate).forward.target.value());
    }
}

void MainWindow::pushbuttonValidateCenterDoneClicked()
{
    session.alignmentPoints.savedAxisCenter = axisCenter;
    ui->label_axisPos->setText(pointText(axisCenter));
    switchStep(wizardPage(ConfirmAxis).forward.target.value());
}

void MainWindow::increaseAngleTimeout()
{
    session.overlayFlags.arcAngle = nextArcAngle(session.overlayFlags.arcAngle);
}

void MainWindow::graphicsEffectTimeout()
{
    if (currentStep == MatchTemplate)
        sliderShadow->setEnabled(!sliderShadow->isEnabled());
    else if (showsTemplate(currentStep))
        roughSliderShadow->setEnabled(!roughSliderShadow->isEnabled());
}
