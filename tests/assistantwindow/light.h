// SPDX-License-Identifier: MIT
// How many pixels of an image are not purely red, and how many can be seen?
#pragma once

#include <QImage>

struct Light {
    int coloured = 0; ///< pixels with green or blue
    int bright = 0;   ///< pixels that can be seen
};

inline Light lightOf(const QImage &image)
{
    Light light;
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    const int width = pixels.width(), height = pixels.height();
    for (int y = 0; y < height; ++y) {
        auto *const line = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        for (const QRgb *pixel = line; pixel != line + width; ++pixel) {
            light.coloured += (*pixel & 0xffffu) != 0; // green and blue
            light.bright += qRed(*pixel) > 100;
        }
    }
    return light;
}
