// SPDX-License-Identifier: MIT
// What do the geometry's tests share? Tolerances, log texts and the golden files.
#pragma once

#include "tests/support/logrecorder.h"

#include <QFile>
#include <QImage>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <cmath>
#include <limits>
#include <opencv2/core.hpp>

namespace geometrytest
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Both not-a-number, equal, or at most the tolerance apart.
inline bool within(double actual, double expected, double tolerance)
{
    if (std::isnan(actual) || std::isnan(expected))
        return std::isnan(actual) && std::isnan(expected);
    return actual == expected || std::fabs(actual - expected) <= tolerance;
}

inline QString difference(double actual, double expected, double tolerance)
{
    return QStringLiteral("%1, expected %2 within %3")
        .arg(actual, 0, 'g', 17)
        .arg(expected, 0, 'g', 17)
        .arg(tolerance);
}

/// All recorded lines as "critical: text", so that a comparison also finds an extra line.
inline QStringList logOf(const LogRecorder &recorder)
{
    QStringList all;
    for (const LogLine &line : recorder.lines()) {
        const char *level = line.type == QtDebugMsg      ? "debug: "
                            : line.type == QtWarningMsg  ? "warning: "
                            : line.type == QtCriticalMsg ? "critical: "
                                                         : "other: ";
        all.append(QLatin1String(level) + line.text);
    }
    return all;
}

/// One row of a golden file: its case and its numbers, in the order of the file's header.
struct GoldenRow {
    QString name;
    QVector<double> values;
};

/// Empty where the file is missing or has a number that cannot be read.
inline QVector<GoldenRow> goldenRows(const QString &name)
{
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/golden/%1.csv").arg(name));
    QVector<GoldenRow> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    file.readLine();
    while (!file.atEnd()) {
        const QStringList cells = QString::fromLatin1(file.readLine().trimmed()).split(',');
        GoldenRow row{cells.first(), {}};
        for (int i = 1; i < cells.size(); ++i) {
            bool ok = false;
            row.values.append(cells[i].toDouble(&ok));
            if (!ok)
                return {};
        }
        rows.append(row);
    }
    return rows;
}

/// A picture file as a frame of one channel, or of three in RGB order; empty where it is missing.
inline cv::Mat readFrame(const QString &path)
{
    QImage image(path);
    if (image.isNull())
        return cv::Mat();
    const bool isGrey = image.isGrayscale();
    image = image.convertToFormat(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    return cv::Mat(image.height(), image.width(), isGrey ? CV_8UC1 : CV_8UC3, image.bits(),
                   static_cast<size_t>(image.bytesPerLine()))
        .clone();
}

/// Repeatable raw random numbers; the standard's distributions differ between libraries.
class Random
{
public:
    explicit Random(unsigned seed) : generator(seed) {}
    /// A whole number from first to last, both included.
    int whole(int first, int last)
    {
        return first + static_cast<int>(generator.next() % static_cast<unsigned>(last - first + 1));
    }
    double real(double first, double last)
    {
        return first + (last - first) * (generator.next() / 4294967295.0);
    }

private:
    cv::RNG_MT19937 generator;
};
} // namespace geometrytest

#define COMPARE_WITHIN(actual, expected, tolerance)                                                \
    QVERIFY2(geometrytest::within((actual), (expected), (tolerance)),                              \
             qPrintable(geometrytest::difference((actual), (expected), (tolerance))))
