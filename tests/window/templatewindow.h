// SPDX-License-Identifier: MIT
// How does a test reach the template over the picture, and what should it look like?
#pragma once

#include "geometry/templateoverlay.h"
#include "geometry/templatepole.h"
#include "mainwindow/pointtext.h"
#include "tests/window/camerawindow.h"
#include "tests/window/regioncatalogue.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

inline const QPoint star(640, 400);

/// A connected window with one star in the picture.
class TemplateWindow : public CameraWindow
{
public:
    explicit TemplateWindow(const QByteArray &settings = {})
        : CameraWindow(settings),
          confirm(child<QSlider>("horizontalSlider_confirm_match")),
          rough(child<QSlider>("horizontalSlider_rough_match")),
          label(child<QLabel>("label_templateImg")),
          target(child<QLabel>("label_eptPos"))
    {
        showFrame(starFrame({star}));
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
    }

    void pick(int step, double zoom = 1.0) const
    {
        enterStep(step);
        QTest::qWait(20);
        QTest::mouseDClick(&child<QLabel>("label_showImg"), Qt::LeftButton, Qt::NoModifier,
                           (QPointF(star) * zoom).toPoint());
        if (!label.isVisible())
            qFatal("the template is not shown");
    }

    void click(const char *button) const
    {
        auto &widget = child<QPushButton>(button);
        if (!widget.isVisible())
            qFatal("%s is not in view", button);
        QTest::mouseClick(&widget, Qt::LeftButton);
    }

    QSlider &confirm;
    QSlider &rough;
    QLabel &label;
    QLabel &target;
};

inline QByteArray regionSetting(const QString &region)
{
    return "[REGION]\nregion=" + region.toUtf8() + '\n';
}

/// The hemisphere's mask with the pole's mark: what the window shows, unrotated.
inline QImage markedMask(const QString &region)
{
    QImage mask(region == "South" ? ":/images/south_mask.png" : ":/images/north_mask.png");
    if (!computeTemplatePole(catalogueOf(region), mask, "no matter which"))
        qFatal("the mask has no pole");
    return mask;
}

inline bool showsPicture(const QLabel &label, const QImage &picture)
{
    const auto pixels = [](const QImage &image) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QPixmap shown = label.pixmap(Qt::ReturnByValue);
    return !shown.isNull() && pixels(shown.toImage()) == pixels(picture);
}

inline QPoint middle(const QRect &r)
{
    return r.topLeft() + QPoint((r.width() - 1) / 2, (r.height() - 1) / 2);
}

inline QString targetText(const TemplateWindow &w, int angle, QPointF polaris,
                          const QString &region = "North")
{
    const QPointF pole = expectedPole(catalogueOf(region), angle, polaris);
    return pointText(polarisTarget(polaris, pole, w.session().alignmentPoints.savedAxisCenter));
}
