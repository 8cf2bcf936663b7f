// SPDX-License-Identifier: MIT
// The live picture with its marks.
#pragma once

#include "assistantwindow/instrument.h"
#include "assistantwindow/theme.h"
#include "assistantwindow/view.h"

#include <QLabel>
#include <functional>

namespace assistantwindow
{
class SkyPicture : public QLabel
{
public:
    explicit SkyPicture(QWidget *parent = nullptr);

    void show(const Snapshot &snapshot);
    void setCaption(const QString &text); ///< one more sentence over the lower border
    void setTheme(const Theme &theme);
    int zoom() const { return level; }
    QSize sizeHint() const override { return {640, 480}; }
    QSize minimumSizeHint() const override { return {240, 180}; }

    std::function<void()> tapped;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    View currentView() const;
    void paintCaption(QPainter &painter) const;

    Snapshot shown;
    QImage bright; ///< of the frame `brightFrame`
    std::uint64_t brightFrame = 0;
    QString caption;
    const Theme *colours;
    int level = 0;
};
} // namespace assistantwindow
