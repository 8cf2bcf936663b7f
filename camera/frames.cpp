// SPDX-License-Identifier: MIT
// Allocates the frame matrices and converts a matrix to a picture.
#include "camera/frames.h"

#include "camera/frameformat.h"

#include <QtDebug>
#include <new>
#include <opencv2/imgproc.hpp>
#include <sys/mman.h>

namespace
{
constexpr int frameRows = int(frameHeightDefault);
constexpr int frameColumns = int(frameWidthDefault);
constexpr int enlargedRows = frameRows * enlargement;
constexpr int enlargedColumns = frameColumns * enlargement;

/// Zeroed bytes, of which the system provides each page when it is first used.
std::shared_ptr<std::uint8_t> pages(std::size_t bytes)
{
    void *const start =
        mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (start == MAP_FAILED)
        throw std::bad_alloc();
    return {static_cast<std::uint8_t *>(start),
            [bytes](std::uint8_t *mapped) { munmap(mapped, bytes); }};
}
} // namespace

FrameMatrices::FrameMatrices()
    : greyPages(pages(std::size_t(enlargedRows) * enlargedColumns)),
      colourPages(pages(std::size_t(enlargedRows) * enlargedColumns * 3)),
      colourFrame(frameRows, frameColumns, CV_8UC3),
      enlargedGrey(enlargedRows, enlargedColumns, CV_8UC1, greyPages.get()),
      enlargedColour(enlargedRows, enlargedColumns, CV_8UC3, colourPages.get()),
      magnifierCrop(cropSide, cropSide, CV_8UC3)
{
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
