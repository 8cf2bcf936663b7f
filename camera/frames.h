// SPDX-License-Identifier: MIT
// Where do the frames and the pictures on their way to the window lie, and under which lock?
#pragma once

#include "camera/relaxed.h"

#include <QImage>
#include <QList>
#include <QMutex>
#include <memory>
#include <opencv2/core.hpp>

/// The frame matrices, rows x columns. The capture thread's alone while it runs, but for rawFrame,
/// which is replaced under rawFrameMutex.
struct FrameMatrices {
    cv::Mat rawFrame;                     ///< header over the latest whole frame's buffer
    cv::Mat colourFrame;                  ///< 960 x 1280, 3 channels, blue green red
    cv::Mat enlargedGrey, enlargedColour; ///< 4800 x 6400; reserved, touched where needed
    cv::Mat magnifierCrop;                ///< 200 x 200, 3 channels, blue green red
};

extern FrameMatrices frameMatrices;

/// Pictures that wait for the GUI: appended by the capture thread, taken by the GUI.
extern QList<QImage> frameQueue;
extern QList<QImage> magnifierQueue;

// No two of these locks are ever held together.
extern QMutex frameMutex;     ///< guards frameQueue
extern QMutex magnifierMutex; ///< guards magnifierQueue
extern QMutex rawFrameMutex;  ///< guards rawFrame and the change of the two frame buffers

/// The most pictures that wait in a queue; a further one is dropped.
constexpr int queueLength = 2;

/// Side of the magnified view of monitor mode in pixels, and how much it enlarges.
constexpr int cropSide = 200;
constexpr int enlargement = 5;

/// Makes the matrices. The large ones are reserved only: no page of them is touched.
void allocateFrameMatrices();

/// A copy of the latest whole frame that stays as it is; black before the first frame.
cv::Mat copyOfRawFrame();

/// Appends `picture` to `queue` under `mutex` if there is room and `stopped` is not set (looked at
/// under the lock: a queue that is emptied after the flag was set stays empty); false if it was
/// dropped.
bool enqueue(QList<QImage> &queue, QMutex &mutex, const QImage &picture,
             const Relaxed<bool> &stopped);

/// The picture of an 8-bit matrix of one or three channels (blue, green, red); null, with a
/// critical log line, for anything else. One channel: an indexed picture over the matrix's own
/// pixels, without a colour table, valid as long as they are. Three: a picture that owns its
/// pixels.
std::unique_ptr<QImage> MatToQImage(const cv::Mat *mat);
