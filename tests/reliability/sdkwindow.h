// SPDX-License-Identifier: MIT
// How does a window behave whose camera library fails? What the tests of that share.
#pragma once

#include "tests/window/camerawindow.h"

#include <QLabel>
#include <QSlider>

constexpr std::uint32_t sdkError = 0xFFFFFFFFu;

inline void giveGoodFrames()
{
    const std::vector<std::uint8_t> grey(320 * 240, 40);
    sdk().setFrame(320, 240, 1, grey);
    sdk().setFrameBits(8);
    sdk().setFrameInterval(5);
    sdk().setFramesLeft(-1);
}

/// Whether a new picture is shown, of that size if one is given.
inline bool newPicture(const CameraWindow &w, const QSize &size = {})
{
    auto &label = w.child<QLabel>("label_showImg");
    label.clear();
    return comesTrue([&] {
        const QPixmap picture = label.pixmap(Qt::ReturnByValue);
        return !picture.isNull() && (size.isEmpty() || picture.size() == size);
    });
}

inline void moveControls(const CameraWindow &w)
{
    for (const char *const name : {"sliderExpose", "sliderGain", "sliderTraffic", "sliderSpeed"}) {
        auto &slider = w.child<QSlider>(name);
        slider.setValue(slider.maximum());
        slider.setValue(slider.minimum() + 1);
    }
    QTest::qWait(30);
}

/// Connects, sees a picture and disconnects, as if nothing had happened.
inline bool worksAgain(const CameraWindow &w)
{
    if (w.session().camera.cameraConnected) // after a refused close, for example
        w.trigger("actionConnect");
    giveGoodFrames();
    w.trigger("actionConnect");
    const bool live = w.session().camera.cameraConnected && newPicture(w);
    w.trigger("actionConnect");
    return live && !w.session().camera.cameraConnected;
}
