// SPDX-License-Identifier: MIT
// Allocates the frame matrices and converts a matrix to a picture.
#include "camera/frames.h"

#include "camera/frameformat.h"

#include <QtDebug>
#include <opencv2/imgproc.hpp>

FrameMatrices::FrameMatrices()
{
    const int rows = int(frameHeightDefault);
    const int columns = int(frameWidthDefault);
    colourFrame.create(rows, columns, CV_8UC3);
    enlargedGrey.create(rows * enlargement, columns * enlargement, CV_8UC1);
    enlargedColour.create(rows * enlargement, columns * enlargement, CV_8UC3);
    magnifierCrop.create(cropSide, cropSide, CV_8UC3);
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
