// SPDX-License-Identifier: MIT
// The virtual mount's window: how does an exercise start, and what is shown of the remaining error?
#include "virtualmount/exercise.h"
#include "virtualmount/fields.h"
#include "virtualmount/mounttexts.h"
#include "virtualmount/mountwindow.h"
#include "virtualmount/starangles.h"

#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

namespace virtualmount
{
QWidget *MountWindow::truthPanel()
{
    auto *const panel = new QGroupBox(this);
    QGridLayout &grid = gridIn(*panel);
    truthButton = new QPushButton(panel);
    nameWidget(*truthButton, QStringLiteral("showTruth"), tr("Show or hide the remaining error"));
    connect(truthButton, &QPushButton::clicked, this, [this] { setTruthShown(!truthShown); });
    const QKeySequence exerciseKey(int(Qt::CTRL) + Qt::Key_N);
    auto *const exercise = new QPushButton(tr("&New exercise"), panel);
    const QString what = tr("Turns the bolts and the camera at random, to start again from there");
    nameWidget(*exercise, QStringLiteral("newExercise"), what,
               exerciseKey.toString(QKeySequence::NativeText) + QLatin1Char('\n') + what);
    connect(exercise, &QPushButton::clicked, this, &MountWindow::newExercise);
    addShortcut(exerciseKey, [this] { newExercise(); }).setAutoRepeat(false);
    truthButton->ensurePolished();
    int widest = 0;
    for (const bool shows : {false, true}) {
        truthButton->setText(truthButtonText(shows));
        widest = std::max(widest, truthButton->sizeHint().width());
    }
    truthButton->setMinimumWidth(widest);
    auto *const resetButton = new QPushButton(tr("&Reset"), panel);
    nameWidget(*resetButton, QStringLiteral("reset"), tr("Reset to the values at the start"),
               tr("Resets everything to the values at the start"));
    connect(resetButton, &QPushButton::clicked, this, &MountWindow::reset);
    const auto line = [&](const char *name, const QString &says, const QString &longest) {
        auto *const label = new QLabel(panel);
        nameWidget(*label, QLatin1String(name), says);
        label->ensurePolished(); // applies the style sheet's font and its fallbacks
        label->setText(longest);
        label->setMinimumHeight(label->sizeHint().height());
        return label;
    };
    truthLabel = line("truth", tr("Remaining error"), truthText());
    anglesLabel = line("angles", tr("Error of the star angles"), anglesText());
    grid.addWidget(truthButton, 0, 0);
    grid.addWidget(exercise, 0, 1);
    grid.addWidget(resetButton, 0, 2);
    grid.addWidget(truthLabel, 1, 0, 1, 3);
    grid.addWidget(anglesLabel, 2, 0, 1, 3);
    return panel;
}

QString MountWindow::truthButtonText(bool isShown)
{
    return isShown ? tr("Hide the tru&th") : tr("Show me the tru&th");
}

void MountWindow::setTruthShown(bool on)
{
    truthShown = on;
    truthButton->setText(truthButtonText(on));
    refreshTexts();
}

/// Turns are counted from here: otherwise they would reveal the exercise.
void MountWindow::newExercise()
{
    edit([this](SkyState &state) {
        const Moment moment = clock.at(state, systemSeconds());
        beginExercise(state, moment.utcSeconds, random);
    });
    if (!document.fault().isEmpty() || !document.writeFault().isEmpty())
        return;
    beginCounts();
    setTruthShown(false);
}

void MountWindow::beginCounts()
{
    altitudeBase = document.state().boltAltitude;
    azimuthBase = document.state().boltAzimuth;
    beganAligned = isAligned(document.state());
}

QString MountWindow::truthText() const
{
    // The error depends only on the bolts and the site, not on the time.
    const TruthTexts truth = truthTexts(virtualsky::truth(shown, skySeconds));
    return tr("The RA axis misses the pole by %1:\n%2 and %3.")
        .arg(truth.total, truth.altitude, truth.azimuth);
}

void MountWindow::leaveOutAngles()
{
    hasAngles = false;
    refreshTexts();
}

QString MountWindow::anglesText() const
{
    if (!hasAngles)
        return {};
    const auto angles = builtInAnglesError(QDate::currentDate(), shown, skySeconds);
    return angles ? tr("The age of the star angles (%1) alone makes %2.")
                        .arg(angles->year)
                        .arg(arcText(angles->arcseconds))
                  : QString();
}

QString MountWindow::hiddenTruthText() const
{
    const bool untouched = shown.boltAltitude == altitudeBase && shown.boltAzimuth == azimuthBase;
    return beganAligned && untouched ? tr("The mount is already aligned.\n"
                                          "“New exercise” moves it away from the pole.")
                                     : tr("What is left of the error is hidden.");
}
} // namespace virtualmount
