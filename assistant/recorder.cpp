// SPDX-License-Identifier: MIT
// Writes FITS files. Reference: Definition of the Flexible Image Transport System, version 4.0.
#include "assistant/recorder.h"

#include "astrometry/utcdate.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace assistant
{
namespace
{
constexpr int cardLength = 80;
constexpr int blockLength = 2880;
constexpr double megabyte = 1e6;
constexpr double unsignedOffset = 32768.0; // 16 bits are stored signed

/// Fixed format: the value ends in column 30, texts begin in column 11.
QByteArray card(const char *key, const QByteArray &value, const char *comment = "")
{
    QByteArray text = QByteArray(key).leftJustified(8) + "= ";
    text += value.startsWith('\'') ? value.leftJustified(20) : value.rightJustified(20);
    if (*comment)
        text += QByteArray(" / ") + comment;
    return text.leftJustified(cardLength, ' ', true);
}

void fillBlock(QByteArray &bytes, char with)
{
    const int rest = bytes.size() % blockLength;
    if (rest != 0)
        bytes.append(blockLength - rest, with);
}

QByteArray headerOf(const cv::Mat &frame, double utcSeconds, double exposureSeconds)
{
    const bool wide = frame.depth() == CV_16U;
    const int planes = frame.channels();
    QByteArray header = card("SIMPLE", "T", "file conforms to the FITS standard");
    header += card("BITPIX", wide ? "16" : "8", "bits a value");
    header += card("NAXIS", planes == 1 ? "2" : "3");
    header += card("NAXIS1", QByteArray::number(frame.cols), "width, pixels");
    header += card("NAXIS2", QByteArray::number(frame.rows), "height, pixels");
    if (planes > 1)
        header += card("NAXIS3", QByteArray::number(planes), "red, green, blue");
    if (wide) {
        header += card("BZERO", QByteArray::number(unsignedOffset), "values are unsigned");
        header += card("BSCALE", "1");
    }
    const std::string date = astrometry::formatDate(utcSeconds);
    const std::string start = astrometry::formatDate(utcSeconds - 0.5 * exposureSeconds);
    header += card("DATE-OBS", "'" + QByteArray::fromStdString(start).chopped(1) + "'",
                   "start of the exposure");
    header += card("DATE-AVG", "'" + QByteArray::fromStdString(date).chopped(1) + "'",
                   "middle of the exposure");
    header += card("TIMESYS", "'UTC     '");
    header += card("EXPTIME", QByteArray::number(exposureSeconds, 'f', 6), "seconds");
    header += card("ROWORDER", "'TOP-DOWN'", "first row is the top");
    header += QByteArray("END").leftJustified(cardLength);
    fillBlock(header, ' ');
    return header;
}

void appendPlane(QByteArray &data, const cv::Mat &frame, int channel)
{
    const int channels = frame.channels();
    for (int row = 0; row < frame.rows; ++row)
        for (int column = 0; column < frame.cols; ++column) {
            const int at = column * channels + channel;
            if (frame.depth() == CV_8U) {
                data.append(char(frame.ptr<std::uint8_t>(row)[at]));
                continue;
            }
            // Subtracting 32768 turns over the highest bit.
            const unsigned value = frame.ptr<std::uint16_t>(row)[at] ^ 0x8000u;
            data.append(char(value >> 8));
            data.append(char(value & 0xffu));
        }
}

QString nameFor(const QString &folder, double utcSeconds)
{
    QString date = QString::fromStdString(astrometry::formatDate(utcSeconds));
    return QDir(folder).filePath(QStringLiteral("sky-") + date.remove('-').remove(':') +
                                 QStringLiteral(".fits"));
}

/// Of all runs that used the folder.
double bytesRecorded(const QString &folder)
{
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("sky-*.fits")}, QDir::Files);
    return std::accumulate(files.begin(), files.end(), 0.0, [](double sum, const QFileInfo &file) {
        return sum + double(file.size());
    });
}
} // namespace

QByteArray fitsOf(const cv::Mat &frame, double utcSeconds, double exposureSeconds)
{
    if (frame.empty() || (frame.depth() != CV_8U && frame.depth() != CV_16U))
        return {};
    QByteArray file = headerOf(frame, utcSeconds, exposureSeconds);
    file.reserve(file.size() + int(frame.total() * frame.elemSize()) + blockLength);
    for (int channel = frame.channels() - 1; channel >= 0; --channel) // blue, green, red there
        appendPlane(file, frame, channel);
    fillBlock(file, '\0');
    return file;
}

void Recorder::use(const Settings &settings)
{
    const bool same = isOn && settings.recording && folder == settings.recordingFolder &&
                      limit == settings.recordingLimitMegabytes * megabyte;
    if (same)
        return;
    isOn = settings.recording && !settings.recordingFolder.isEmpty();
    folder = settings.recordingFolder;
    limit = settings.recordingLimitMegabytes * megabyte;
    used.reset();
    last = 0.0;
    written = 0;
    fault.reset();
}

std::optional<Advice> Recorder::record(const cv::Mat &frame, double utcSeconds,
                                       double exposureSeconds)
{
    if (!isOn || fault)
        return fault;
    if (std::abs(utcSeconds - last) < interval)
        return std::nullopt;
    const QByteArray bytes = fitsOf(frame, utcSeconds, exposureSeconds);
    if (!used)
        used = bytesRecorded(folder);
    if (*used + bytes.size() > limit) {
        fault = Advice{AdviceCode::RecordingFull, limit / megabyte, 0.0, folder.toStdString()};
        return fault;
    }
    QSaveFile file(nameFor(folder, utcSeconds));
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) ||
        file.write(bytes) != bytes.size() || !file.commit()) {
        fault = Advice{AdviceCode::RecordingFailed, 0.0, 0.0, folder.toStdString()};
        return fault;
    }
    last = utcSeconds;
    *used += bytes.size();
    ++written;
    return std::nullopt;
}
} // namespace assistant
