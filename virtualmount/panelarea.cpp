// SPDX-License-Identifier: MIT
// Scrolls the panels only where the screen is too low.
#include "virtualmount/panelarea.h"

#include <QScrollBar>
#include <algorithm>

namespace virtualmount
{
namespace
{
/// What the window adds above and below the panels: status bar, title bar, frame; pixels.
constexpr int aroundThePanels = 44 + 60;
} // namespace

PanelArea::PanelArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setStyleSheet(QStringLiteral("QScrollArea { border: 0px; }"));
    setFocusPolicy(Qt::NoFocus); // the arrow keys turn the bolts
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}

void PanelArea::setScreenHeight(int height)
{
    screenHeight = height;
    updateGeometry();
}

QSize PanelArea::sizeHint() const
{
    return withRoomForTheBar(widget()->sizeHint());
}

QSize PanelArea::minimumSizeHint() const
{
    const QSize least = withRoomForTheBar(widget()->minimumSizeHint());
    return {least.width(), std::min(least.height(), screenHeight - aroundThePanels)};
}

QSize PanelArea::withRoomForTheBar(QSize size) const
{
    if (size.height() > screenHeight - aroundThePanels)
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    return size;
}
} // namespace virtualmount
