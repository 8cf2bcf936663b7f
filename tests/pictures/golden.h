// SPDX-License-Identifier: MIT
// The golden pictures of golden/make_pictures.py.
#pragma once

#include <QByteArray>
#include <QFile>
#include <opencv2/core.hpp>
#include <string>

inline std::string goldenPath(const QByteArray &name)
{
    return (QByteArray(TEST_SOURCE_DIR "/golden/") + name).toStdString();
}

inline std::string goldenBytes(const QByteArray &name)
{
    QFile file(QString::fromStdString(goldenPath(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// The pixel of a 16-bit golden picture.
inline int goldenValue(int x, int y, int colour = 0)
{
    return 1000 + 3 * x + 50 * y + 7 * colour;
}

/// How many pixels of one channel differ from `expected(x, y)`.
template <typename Value, typename Expected>
int differences(const cv::Mat &picture, Expected expected)
{
    int count = 0;
    for (int y = 0; y < picture.rows; ++y)
        for (int x = 0; x < picture.cols; ++x)
            count += picture.at<Value>(y, x) != expected(x, y);
    return count;
}
