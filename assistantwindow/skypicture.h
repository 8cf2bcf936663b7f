// SPDX-License-Identifier: MIT
// The live picture with its marks.
#pragma once

#include "assistantwindow/boltlegs.h"
#include "assistantwindow/instrument.h"
#include "assistantwindow/theme.h"
#include "assistantwindow/view.h"

#include <QLabel>
#include <functional>

class QPushButton;

namespace assistantwindow
{
class SkyPicture : public QLabel
{
public:
    explicit SkyPicture(QWidget *parent = nullptr);

    /// @param legs the bolts' ways, where they are known
    void show(const Snapshot &snapshot, const std::optional<BoltLegs> &legs = {});
    /// One more sentence over the lower border, and what it means.
    void setCaption(const QString &text, const QString &reason, bool canBeDismissed);
    void retranslate();
    void setTheme(const Theme &theme);
    int zoom() const { return level; }
    QSize sizeHint() const override { return {640, 480}; }
    QSize minimumSizeHint() const override { return {240, 180}; }

    std::function<void()> tapped;
    std::function<void()> captionDismissed;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    View currentView() const;
    bool isEnlarged(const View &view) const;
    void paintContext(QPainter &painter, const View &view) const;
    void paintCaption(QPainter &painter) const;
    QRect captionArea() const; ///< empty without a caption
    void placeButton();

    Snapshot shown;
    QImage bright;        ///< of the picture whose cache key is `brightKey`
    qint64 brightKey = 0; ///< 0 for none
    std::optional<BoltLegs> ways;
    QString caption, captionReason;
    QPushButton *dismissButton;
    const Theme *colours;
    int level = 0;
};
} // namespace assistantwindow
