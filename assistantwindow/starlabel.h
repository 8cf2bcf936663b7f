// SPDX-License-Identifier: MIT
// How is a star called in the picture, and how does the picture become bright enough?
#pragma once

#include <QImage>
#include <QString>
#include <string>

namespace assistantwindow
{
/// "zet Oct" becomes "ζ Oct", "alp UMi, Polaris" its own name; other names and HD numbers stay;
/// empty for a star that has only a place.
QString starLabel(const std::string &name);

/// The picture as eyes that look for stars want it: its median (the sky) dark, faint stars lifted.
/// A picture whose median is bright stays as it is. Gray or 24 or 32 bit colour.
QImage brightened(const QImage &picture);
} // namespace assistantwindow
