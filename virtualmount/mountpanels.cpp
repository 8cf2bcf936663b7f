// SPDX-License-Identifier: MIT
// The virtual mount's window: which controls turn the axis and the bolts, and what shows their
// positions?
#include "virtualmount/fields.h"
#include "virtualmount/mounttexts.h"
#include "virtualmount/mountwindow.h"

#include <QCheckBox>
#include <QDial>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <algorithm>

namespace virtualmount
{
/// A button that turns a bolt.
struct MountWindow::BoltButton {
    Bolt bolt;
    double degrees;
    const char *name, *text, *what;
    QKeySequence key;
    int row, column;
};

QShortcut &MountWindow::addShortcut(const QKeySequence &key, const std::function<void()> &action)
{
    auto *const shortcut = new QShortcut(key, this);
    connect(shortcut, &QShortcut::activated, this, action);
    return *shortcut;
}

QWidget *MountWindow::axisPanel()
{
    auto *const panel = new QGroupBox(tr("RA axis"), this);
    QGridLayout &grid = gridIn(*panel);
    dial = new QDial(panel);
    nameWidget(*dial, QStringLiteral("dial"), tr("Angle of the RA axis in degrees"),
               tr("Turns the RA axis; clockwise as the mount tracks"));
    dial->setRange(-180, 180);
    dial->setWrapping(true);
    dial->setPageStep(15);
    dial->setFixedSize(96, 96);
    watchField(*dial);
    connect(dial, &QDial::valueChanged, this, &MountWindow::followDial);
    angle = new QLabel(panel);
    angle->setObjectName(QStringLiteral("angle"));
    auto *const label = new QLabel(tr("&Angle:"), panel);
    label->setBuddy(dial);
    grid.addWidget(dial, 0, 0, 3, 2, Qt::AlignCenter);
    grid.addWidget(label, 3, 0, Qt::AlignRight);
    grid.addWidget(angle, 3, 1);
    for (std::size_t i = 0; i < axisTurns.size(); ++i) {
        const double turn = axisTurns[i];
        const QString text = turn > 0 ? tr("+%1°").arg(turn) : tr("−%1°").arg(-turn);
        const QKeySequence key(int(Qt::CTRL) + Qt::Key_1 + int(i));
        auto *const button = new QPushButton(text, panel);
        nameWidget(*button, QStringLiteral("turn%1").arg(turn),
                   tr("Turn the RA axis by %1 degrees").arg(turn),
                   key.toString(QKeySequence::NativeText));
        connect(button, &QPushButton::clicked, this, [this, turn] { turnAxisBy(turn); });
        // A held key turns only once: turns add up, and each takes time.
        addShortcut(key, [this, turn] { turnAxisBy(turn); }).setAutoRepeat(false);
        grid.addWidget(button, int(i) / 3, 2 + int(i) % 3);
    }
    auto *const home = new QPushButton(tr("&Home"), panel);
    nameWidget(*home, QStringLiteral("home"), tr("Turn the RA axis back to 0"));
    connect(home, &QPushButton::clicked, this, [this] { turnAxisTo(0.0); });
    grid.addWidget(home, 2, 2);
    auto *const tracking = new QCheckBox(tr("Trac&king"), panel);
    nameWidget(*tracking, QStringLiteral("tracking"), tr("The RA axis follows the sky"));
    connect(tracking, &QCheckBox::toggled, this, &MountWindow::setTracking);
    fields.emplace_back([tracking](const SkyState &state) { showIn(*tracking, state.tracking); });
    grid.addWidget(tracking, 2, 3, 1, 2);
    grid.setColumnMinimumWidth(1, 56);
    return panel;
}

QPushButton *MountWindow::boltButton(const BoltButton &row)
{
    auto *const button = new QPushButton(tr(row.text), this);
    nameWidget(*button, QLatin1String(row.name), tr(row.what),
               row.key.toString(QKeySequence::NativeText));
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(400);
    button->setAutoRepeatInterval(120);
    const auto turn = [this, bolt = row.bolt, degrees = row.degrees] {
        edit([bolt, degrees](SkyState &state) { turnBolt(state, bolt, degrees); });
    };
    connect(button, &QPushButton::clicked, this, turn);
    // The key is that of the side where the button is in the north.
    const bool isAzimuth = row.bolt == &SkyState::boltAzimuth;
    addShortcut(row.key, [this, bolt = row.bolt, degrees = row.degrees, isAzimuth] {
        edit([=](SkyState &state) {
            const bool isOtherSide = isAzimuth && state.latitude < 0.0;
            turnBolt(state, bolt, isOtherSide ? -degrees : degrees);
        });
    });
    return button;
}

/// As for someone who faces the pole: facing south, east is on the left.
void MountWindow::placeAzimuthButtons(QGridLayout &grid, bool south)
{
    if (placedForSouth == south)
        return;
    placedForSouth = south;
    const QString texts[2][4] = {{tr("◀ West"), tr("fine ◀"), tr("▶ fine"), tr("East ▶")},
                                 {tr("West ▶"), tr("▶ fine"), tr("fine ◀"), tr("◀ East")}};
    const QKeySequence keys[] = {Qt::Key_Left, int(Qt::SHIFT) + Qt::Key_Left,
                                 int(Qt::SHIFT) + Qt::Key_Right, Qt::Key_Right};
    constexpr int columns[] = {0, 1, 3, 4};
    QWidget *before = findChild<QPushButton *>(QStringLiteral("altitudeUp"));
    for (int side = 0; side < 4; ++side) { // from left to right
        const int index = south ? 3 - side : side;
        QPushButton *const button = azimuthButtons[std::size_t(index)];
        button->setText(texts[south ? 1 : 0][index]);
        button->setToolTip(keys[side].toString(QKeySequence::NativeText));
        grid.removeWidget(button);
        grid.addWidget(button, 1, columns[side]);
        setTabOrder(before, button);
        before = button;
    }
}

QWidget *MountWindow::boltPanel()
{
    constexpr Bolt altitude = &SkyState::boltAltitude;
    constexpr Bolt azimuth = &SkyState::boltAzimuth;
    const BoltButton buttons[] = {
        {altitude, -coarseStep, "altitudeDown", QT_TR_NOOP("▼ Down"),
         QT_TR_NOOP("Altitude bolt: down, a quarter of a turn"), Qt::Key_Down, 0, 0},
        {altitude, -fineStep, "altitudeDownFine", QT_TR_NOOP("fine ▼"),
         QT_TR_NOOP("Altitude bolt: down, finely"), int(Qt::SHIFT) + Qt::Key_Down, 0, 1},
        {altitude, fineStep, "altitudeUpFine", QT_TR_NOOP("▲ fine"),
         QT_TR_NOOP("Altitude bolt: up, finely"), int(Qt::SHIFT) + Qt::Key_Up, 0, 3},
        {altitude, coarseStep, "altitudeUp", QT_TR_NOOP("Up ▲"),
         QT_TR_NOOP("Altitude bolt: up, a quarter of a turn"), Qt::Key_Up, 0, 4},
        {azimuth, -coarseStep, "azimuthWest", QT_TR_NOOP("◀ West"),
         QT_TR_NOOP("Azimuth bolt: west, a quarter of a turn"), Qt::Key_Left, 1, 0},
        {azimuth, -fineStep, "azimuthWestFine", QT_TR_NOOP("fine ◀"),
         QT_TR_NOOP("Azimuth bolt: west, finely"), int(Qt::SHIFT) + Qt::Key_Left, 1, 1},
        {azimuth, fineStep, "azimuthEastFine", QT_TR_NOOP("▶ fine"),
         QT_TR_NOOP("Azimuth bolt: east, finely"), int(Qt::SHIFT) + Qt::Key_Right, 1, 3},
        {azimuth, coarseStep, "azimuthEast", QT_TR_NOOP("East ▶"),
         QT_TR_NOOP("Azimuth bolt: east, a quarter of a turn"), Qt::Key_Right, 1, 4},
    };
    auto *const panel = new QGroupBox(tr("Altitude and azimuth bolts: turns"), this);
    QGridLayout &grid = gridIn(*panel);
    for (const BoltButton &row : buttons) {
        QPushButton *const button = boltButton(row);
        grid.addWidget(button, row.row, row.column);
        if (row.bolt == azimuth)
            azimuthButtons.push_back(button);
    }
    fields.emplace_back(
        [this, &grid](const SkyState &state) { placeAzimuthButtons(grid, state.latitude < 0.0); });
    const auto counter = [&](const char *name, const QString &what, QString (*text)(double),
                             int row) {
        auto *const label = new QLabel(panel);
        nameWidget(*label, QLatin1String(name), what, what);
        label->setAlignment(Qt::AlignCenter);
        label->ensurePolished(); // applies the style sheet's font
        int widest = 76;
        for (const double turns : {-88.88, 88.88}) {
            label->setText(text(turns * degreesPerTurn));
            widest = std::max(widest, label->sizeHint().width());
        }
        label->setMinimumWidth(widest);
        grid.addWidget(label, row, 2);
        return label;
    };
    altitudeCount = counter("altitudeCount", tr("Turns of the altitude knob"), altitudeTurns, 0);
    azimuthCount = counter("azimuthCount", tr("Turns of the azimuth knob"), azimuthTurns, 1);
    return panel;
}

void MountWindow::addStatusLine()
{
    status = new QLabel(this);
    status->setObjectName(QStringLiteral("status"));
    status->setWordWrap(true);
    status->setMinimumHeight(34);
    replaceButton = new QPushButton(tr("Replace &it"), this);
    nameWidget(*replaceButton, QStringLiteral("replace"),
               tr("Write a new sky file over the one with the fault"));
    connect(replaceButton, &QPushButton::clicked, this, &MountWindow::replaceFile);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->setFixedHeight(44); // two lines; the size hint of wrapped text is only an estimate
    statusBar()->setContentsMargins(0, 0, 6, 0);
    statusBar()->addWidget(status, 1);
    statusBar()->addPermanentWidget(replaceButton);
}
} // namespace virtualmount
