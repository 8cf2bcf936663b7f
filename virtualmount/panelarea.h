// SPDX-License-Identifier: MIT
// What becomes of the virtual mount's panels on a screen that is lower than they are?
#pragma once

#include <QScrollArea>
#include <limits>

namespace virtualmount
{
/// As high as its panels; on a screen that is lower than they are, they scroll.
class PanelArea : public QScrollArea
{
public:
    explicit PanelArea(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// @param height pixels of the screen that are available to windows; at first, any number is
    void setScreenHeight(int height);

private:
    QSize withRoomForTheBar(QSize size) const;

    int screenHeight = std::numeric_limits<int>::max();
};
} // namespace virtualmount
