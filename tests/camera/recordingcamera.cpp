// SPDX-License-Identifier: MIT
// Reaches the recording camera library and draws frames for it.
#include "tests/camera/recordingcamera.h"

#include <QtDebug>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <dlfcn.h>

RecordingSdk &sdk()
{
    static RecordingSdk *const found = [] {
        void *const library = dlopen("libveldix.so.20", RTLD_NOW | RTLD_LOCAL);
        void *const symbol = library ? dlsym(library, recordingSdkSymbol) : nullptr;
        if (!symbol)
            qFatal("the recording camera library is not on the loader's path");
        return reinterpret_cast<RecordingSdkFunction>(symbol)();
    }();
    return *found;
}

QStringList sdkCalls()
{
    QStringList texts;
    for (const SdkCall &call : sdk().calls())
        texts.append(QString::fromStdString(call.text));
    return texts;
}

QStringList sdkCalls(const QStringList &operations)
{
    QStringList chosen;
    for (const QString &text : sdkCalls())
        if (operations.contains(text.section('(', 0, 0)))
            chosen.append(text);
    return chosen;
}

QStringList sdkViolations()
{
    QStringList texts;
    for (const std::string &text : sdk().violations())
        texts.append(QString::fromStdString(text));
    return texts;
}

cv::Mat starFrame(const std::vector<QPointF> &stars, int channels)
{
    constexpr int reach = 8;
    constexpr double twoVariances = 2 * 1.6 * 1.6;
    constexpr double peak = 220;
    cv::Mat frame(960, 1280, CV_8UC(channels), cv::Scalar::all(0));
    for (const QPointF &star : stars) {
        const int left = int(std::floor(star.x())), top = int(std::floor(star.y()));
        for (int y = std::max(top - reach, 0); y <= std::min(top + reach, frame.rows - 1); ++y) {
            for (int x = std::max(left - reach, 0); x <= std::min(left + reach, frame.cols - 1);
                 ++x) {
                const double distance = std::pow(x - star.x(), 2) + std::pow(y - star.y(), 2);
                const double light = peak * std::exp(-distance / twoVariances);
                uchar *const pixel = frame.ptr(y, x);
                for (int channel = 0; channel < channels; ++channel)
                    pixel[channel] =
                        std::max(pixel[channel], static_cast<uchar>(std::lround(light)));
            }
        }
    }
    return frame;
}

void showFrame(const cv::Mat &frame)
{
    const cv::Mat whole = frame.isContinuous() ? frame : frame.clone();
    const std::vector<std::uint8_t> pixels(whole.data,
                                           whole.data + whole.total() * whole.elemSize());
    sdk().setFrame(std::uint32_t(whole.cols), std::uint32_t(whole.rows),
                   std::uint32_t(whole.channels()), pixels);
}
