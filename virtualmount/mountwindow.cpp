// SPDX-License-Identifier: MIT
// The virtual mount's window at run time: user actions go to the file, file changes to the window.
#include "virtualmount/mountwindow.h"

#include "virtualmount/exercise.h"
#include "virtualmount/fields.h"
#include "virtualmount/mounticon.h"
#include "virtualmount/mounttexts.h"
#include "virtualmount/panelarea.h"
#include "widgets/returnpresses.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QDateTimeEdit>
#include <QDial>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

namespace virtualmount
{
namespace
{
constexpr int tickMilliseconds = 66;  // 15 writes per second while the axis turns
constexpr int pollMilliseconds = 500; // for changes that the watcher misses, and for the clock

/// Whether it is a field itself, not the drop-down list of a combo box.
bool isField(const QObject &watched)
{
    return qobject_cast<const QAbstractSlider *>(&watched) ||
           qobject_cast<const QAbstractSpinBox *>(&watched) ||
           qobject_cast<const QComboBox *>(&watched);
}
} // namespace

double MountWindow::systemSeconds()
{
    return double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

MountWindow::MountWindow(const QString &skyFile, QWidget *parent)
    : QMainWindow(parent), document(skyFile), shown(document.state()), random(systemRandom())
{
    beginCounts();
    setWindowTitle(tr("Quorvandel Virtual Mount"));
    setWindowIcon(mountIcon());
    area = new PanelArea(this);
    auto *const central = new QWidget(area);
    central->setObjectName(QStringLiteral("centralWidget"));
    auto *const column = new QVBoxLayout(central);
    column->setContentsMargins(8, 4, 8, 2);
    column->setSpacing(3);
    area->setWidget(central);
    setCentralWidget(area);
    for (QWidget *const panel :
         {axisPanel(), boltPanel(), sitePanel(), weatherPanel(), faultPanel(), truthPanel()})
        column->addWidget(panel);
    column->addStretch(1);
    addStatusLine();
    new ReturnPresses(*this); // owned by the window

    ticker.setInterval(tickMilliseconds);
    ticker.setTimerType(Qt::PreciseTimer);
    connect(&ticker, &QTimer::timeout, this, &MountWindow::tick);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &MountWindow::reload);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &MountWindow::reload);
    connect(&poll, &QTimer::timeout, this, &MountWindow::reload);
    poll.start(pollMilliseconds);
    watch();
    addShortcut(Qt::Key_Escape, [this] { focusBolts(); });
    focusBolts();
    setTruthShown(false);
    refresh();
}

void MountWindow::fitScreen(int height)
{
    area->setScreenHeight(height);
}

WindowGeometries MountWindow::shareScreen()
{
    ensurePolished();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    fitScreen(screen.height());
    return sharedScreen(screen, sizeHint(), windowFrame());
}

void MountWindow::watch()
{
    // A file that was replaced by renaming is a new file: the watch ended with the old one.
    const QFileInfo info(document.filePath());
    for (const QString &path : {info.absoluteFilePath(), info.absolutePath()})
        if (QFileInfo::exists(path) && !watcher.files().contains(path) &&
            !watcher.directories().contains(path))
            watcher.addPath(path);
}

void MountWindow::reload()
{
    watch();
    document.refresh();
    refresh();
}

void MountWindow::edit(const SkyDocument::Change &change)
{
    if (!document.change(change))
        stopMotion();
    refresh();
}

void MountWindow::turnAxisBy(double degrees)
{
    dialLeads = false;
    motion.turnBy(degrees);
    keepTicking();
}

void MountWindow::turnAxisTo(double degrees)
{
    dialLeads = false;
    const double here = axisAngle(clock.at(document.state(), systemSeconds()));
    motion.turnInstead(wrapped(degrees - here));
    keepTicking();
}

void MountWindow::followDial(int degrees)
{
    turnAxisTo(degrees);
    dialLeads = motion.isMoving();
}

void MountWindow::keepTicking()
{
    const bool needed = motion.isMoving() || passing->isChecked();
    if (needed && !ticker.isActive()) {
        sinceTick.start();
        ticker.start();
    } else if (!needed) {
        ticker.stop();
    }
}

void MountWindow::stopMotion()
{
    motion.turnInstead(0.0);
    dialLeads = false;
}

void MountWindow::tick()
{
    const double step = motion.advance(double(sinceTick.restart()) / 1000.0);
    const bool clouds = passing->isChecked();
    const double held =
        clouds ? passingClouds(double(sincePassing.elapsed()) / 1000.0) : document.state().clouds;
    if (step != 0.0 || held != document.state().clouds)
        edit([step, clouds, held](SkyState &state) {
            if (step != 0.0)
                turnAxis(state, step);
            if (clouds)
                state.clouds = held;
        });
    if (!motion.isMoving() && std::exchange(dialLeads, false))
        refresh();
    keepTicking();
}

void MountWindow::setTracking(bool on)
{
    edit([this, on](SkyState &state) {
        virtualmount::setTracking(state, clock.at(state, systemSeconds()), on);
    });
}

void MountWindow::setTimeMode(int index)
{
    edit([this, index](SkyState &state) {
        if (TimeMode(index) == virtualmount::timeMode(state))
            return;
        const double now = systemSeconds();
        const Moment moment = clock.at(state, now);
        setTime(state, moment, now, TimeMode(index), std::floor(moment.utcSeconds));
    });
}

void MountWindow::setDate(const QDateTime &utc)
{
    edit([this, &utc](SkyState &state) {
        const double now = systemSeconds();
        setTime(state, clock.at(state, now), now, virtualmount::timeMode(state),
                double(utc.toSecsSinceEpoch()));
    });
}

void MountWindow::setPassing(bool on)
{
    if (on)
        cloudsBefore = document.state().clouds;
    else
        edit([this](SkyState &state) { state.clouds = cloudsBefore; });
    sincePassing.start();
    cloudSlider->setEnabled(!on);
    keepTicking();
}

void MountWindow::reset()
{
    stopMotion();
    showIn(*passing, false);
    cloudSlider->setEnabled(true);
    setTruthShown(false);
    edit([this](SkyState &state) { state = document.found(); });
    beginCounts();
    keepTicking();
    refreshTexts();
}

void MountWindow::replaceFile()
{
    document.replace();
    watch();
    refresh();
}

void MountWindow::refresh()
{
    const SkyState before = std::exchange(shown, document.state());
    const Moment moment = clock.at(shown, systemSeconds());
    skySeconds = moment.utcSeconds;
    for (const auto &field : fields)
        field(shown);
    showIn(*timeMode, int(virtualmount::timeMode(shown)));
    showIn(*date, moment.utcSeconds);
    date->setEnabled(shown.date.has_value());
    refreshAxis(moment);
    if (truthShown && movedSite(before, shown))
        setTruthShown(false);
    else
        refreshTexts();
}

void MountWindow::refreshAxis(const Moment &moment)
{
    const double stands = axisAngle(moment);
    angle->setText(angleText(stands));
    if (dialLeads || dial->isSliderDown())
        return;
    const QSignalBlocker blocker(dial);
    dial->setValue(int(std::lround(stands)));
}

void MountWindow::refreshTexts()
{
    altitudeCount->setText(altitudeTurns(shown.boltAltitude - altitudeBase));
    azimuthCount->setText(azimuthTurns(shown.boltAzimuth - azimuthBase));
    truthLabel->setText(truthShown ? truthText() : hiddenTruthText());
    anglesLabel->setText(truthShown ? anglesText() : QString());
    replaceButton->setVisible(!document.fault().isEmpty());
    status->setText(statusText());
    status->setToolTip(document.filePath() + QLatin1Char('\n') + status->text());
}

QString MountWindow::statusText() const
{
    if (!document.writeFault().isEmpty())
        return tr("The sky file cannot be written: %1.").arg(document.writeFault());
    if (!document.fault().isEmpty())
        return tr("Fault in the sky file: %1. Nothing is written.").arg(document.fault());
    return tr("Arrow keys turn the bolts, with Shift finely.\nCtrl+1 to Ctrl+6 turn the axis, Esc "
              "leaves a field.");
}

void MountWindow::closeEvent(QCloseEvent *event)
{
    if (passing->isChecked())
        passing->setChecked(false);
    QMainWindow::closeEvent(event);
}

/// Away from the fields, where the arrow keys turn the bolts.
void MountWindow::focusBolts()
{
    findChild<QPushButton *>(QStringLiteral("altitudeUp"))->setFocus(Qt::ShortcutFocusReason);
}

/// A field that uses the arrow keys and the wheel itself.
void MountWindow::watchField(QWidget &field)
{
    field.setFocusPolicy(Qt::StrongFocus); // the wheel does not set the focus
    field.installEventFilter(this);
    field.installEventFilter(&wheelGuard);
    if (auto *const box = qobject_cast<QComboBox *>(&field))
        box->view()->viewport()->installEventFilter(this);
}

bool MountWindow::eventFilter(QObject *watched, QEvent *event)
{
    // After a mouse action the arrow keys turn the bolts again. Spin boxes keep the focus for
    // typing.
    if (event->type() == QEvent::MouseButtonRelease &&
        (qobject_cast<QAbstractSlider *>(watched) || !isField(*watched)))
        QTimer::singleShot(0, this, &MountWindow::focusBolts);
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const bool isArrow = key.key() >= Qt::Key_Left && key.key() <= Qt::Key_Down;
        if (isArrow) {
            event->accept();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}
} // namespace virtualmount
