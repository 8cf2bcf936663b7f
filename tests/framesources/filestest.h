// SPDX-License-Identifier: MIT
// A folder of pictures whose dates are given, and a camera that shows them.
#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <opencv2/imgcodecs.hpp>

#include "framesources/filescamera.h"

struct PictureFolder {
    QString path(const QString &name) const { return folder.filePath(name); }

    /// A grey picture of one value with a lone pixel of another.
    static cv::Mat picture(int value, int type = CV_8UC1)
    {
        cv::Mat out(48, 64, type, cv::Scalar::all(value));
        out(cv::Rect(10, 10, 1, 1)).setTo(cv::Scalar::all(value + 1));
        return out;
    }

    /// @param second when it was changed, after the beginning of 2020
    void date(const QString &name, int second) const
    {
        QFile file(path(name));
        file.open(QIODevice::ReadWrite);
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1577836800 + second),
                         QFileDevice::FileModificationTime);
    }

    void add(const QString &name, int value, int second, int type = CV_8UC1) const
    {
        cv::imwrite(path(name).toStdString(), picture(value, type));
        date(name, second);
    }

    void write(const QString &name, const QByteArray &bytes, int second) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        date(name, second);
    }

    QTemporaryDir folder;
};

struct RunningCamera {
    explicit RunningCamera(const QString &pattern,
                           virtualsky::Pace pace = virtualsky::Pace::Exposure,
                           double exposure = 0.034)
        : camera(pattern.toStdString(), pace,
                 [this](const std::string &line) { lines.append(QString::fromStdString(line)); })
    {
        wish.exposureSeconds = exposure;
        wish.wanted = true;
    }

    /// The next frame, waited for; empty after `patience` milliseconds.
    std::optional<framesources::NativeFrame> frame(int patience = 20000)
    {
        QElapsedTimer waiting;
        waiting.start();
        while (waiting.elapsed() < patience)
            if (auto next = camera.next(wish))
                return next;
        return std::nullopt;
    }

    /// The value of the next frame's first pixel; -1 = there was none.
    int value(int patience = 20000)
    {
        const auto next = frame(patience);
        if (!next)
            return -1;
        const cv::Mat &pixels = next->pixels;
        return pixels.depth() == CV_8U ? pixels.ptr<uchar>(0)[0] : pixels.ptr<ushort>(0)[0];
    }

    QStringList lines;
    framesources::Wish wish;
    framesources::FilesCamera camera;
};
