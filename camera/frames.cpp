// SPDX-License-Identifier: MIT
// The frame matrices, the picture queues, and how a matrix becomes a picture.
#include "camera/frames.h"

#include "camera/camerastate.h"
#include "camera/locker.h"

#include <QtDebug>
#include <opencv2/imgproc.hpp>

FrameMatrices frameMatrices;
QList<QImage> frameQueue;
QList<QImage> magnifierQueue;
QMutex frameMutex;
QMutex magnifierMutex;
QMutex rawFrameMutex;

void allocateFrameMatrices()
{
    const int rows = int(frameHeightDefault);
    const int columns = int(frameWidthDefault);
    frameMatrices.rawFrame = cv::Mat::zeros(rows, columns, CV_8UC1); // no star to be picked
    frameMatrices.colourFrame.create(rows, columns, CV_8UC3);
    frameMatrices.enlargedGrey.create(rows * enlargement, columns * enlargement, CV_8UC1);
    frameMatrices.enlargedColour.create(rows * enlargement, columns * enlargement, CV_8UC3);
    frameMatrices.magnifierCrop.create(cropSide, cropSide, CV_8UC3);
}

cv::Mat copyOfRawFrame()
{
    const Locker lock(rawFrameMutex);
    return frameMatrices.rawFrame.clone();
}

bool enqueue(QList<QImage> &queue, QMutex &mutex, const QImage &picture,
             const Relaxed<bool> &stopped)
{
    const Locker lock(mutex);
    if (stopped || queue.size() >= queueLength)
        return false;
    queue.append(picture);
    return true;
}

std::unique_ptr<QImage> MatToQImage(const cv::Mat *mat)
{
    if (!mat || mat->empty()) {
        qCritical("MatToQImage: Input Mat is null or empty.");
        return nullptr;
    }
    if (mat->depth() != CV_8U) {
        qCritical("MatToQImage: image format is not supported : depth=%d", mat->depth());
        return nullptr;
    }
    switch (mat->channels()) {
    case 1:
        return std::make_unique<QImage>(mat->data, mat->cols, mat->rows, int(mat->step),
                                        QImage::Format_Indexed8);
    case 3: {
        auto picture = std::make_unique<QImage>(mat->cols, mat->rows, QImage::Format_RGB888);
        if (picture->isNull()) {
            qCritical("MatToQImage: Input Mat is null or empty.");
            return nullptr;
        }
        cv::Mat pixels(mat->rows, mat->cols, CV_8UC3, picture->bits(),
                       std::size_t(picture->bytesPerLine()));
        cv::cvtColor(*mat, pixels, cv::COLOR_BGR2RGB);
        return picture;
    }
    default:
        qCritical("MatToQImage: image format is not supported : depth=8U and channels=%d",
                  mat->channels());
        return nullptr;
    }
}
