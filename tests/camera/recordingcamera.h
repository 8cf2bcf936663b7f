// SPDX-License-Identifier: MIT
// How does a test reach the camera library that the program has loaded, and which frames can it
// provide?
#pragma once

#include "tests/recordingsdk/recordingsdk.h"

#include <QPointF>
#include <QStringList>
#include <opencv2/core.hpp>
#include <vector>

/// The library that the loader finds under the camera library's name; ends the test without it.
RecordingSdk &sdk();

/// The recorded calls except those for frames, oldest first.
QStringList sdkCalls();
/// Only the calls that begin with one of `operations`.
QStringList sdkCalls(const QStringList &operations);
QStringList sdkViolations();

/// A black frame of 1280 x 960 pixels with a round star at each position (frame pixels), 8 bits.
cv::Mat starFrame(const std::vector<QPointF> &stars, int channels = 1);

/// The frame that the camera delivers from now on.
void showFrame(const cv::Mat &frame);
