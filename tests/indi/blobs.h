// SPDX-License-Identifier: MIT
// Frames as an INDI server of our own sends them, and the address of that server's camera.
#pragma once

#include <QByteArray>
#include <opencv2/core.hpp>

#include "tests/indi/hostileserver.h"
#include "virtualcamera/cameraaddress.h"

inline QByteArray blobOf(const QByteArray &format, const QByteArray &bytes, int said)
{
    return HostileServer::blob(format, QByteArray::number(said), bytes.toBase64());
}

inline QByteArray rawBytes(const cv::Mat &pixels) // little-endian, as streams are
{
    return QByteArray(reinterpret_cast<const char *>(pixels.data),
                      int(pixels.total() * pixels.elemSize()));
}

inline QByteArray card(const QByteArray &keyword, const QByteArray &value)
{
    return (keyword.leftJustified(8) + "= " + value.rightJustified(20)).leftJustified(80);
}

/// FITS Standard 4.0, sections 3 and 5: big-endian, unsigned 16 bits by BZERO.
inline QByteArray fitsOf(const cv::Mat &grey, const QByteArray &pattern = {})
{
    constexpr int block = 2880;
    const bool isWide = grey.depth() == CV_16U;
    QByteArray bytes = card("SIMPLE", "T") + card("BITPIX", isWide ? "16" : "8") +
                       card("NAXIS", "2") + card("NAXIS1", QByteArray::number(grey.cols)) +
                       card("NAXIS2", QByteArray::number(grey.rows));
    if (isWide)
        bytes += card("BZERO", "32768") + card("BSCALE", "1");
    if (!pattern.isEmpty())
        bytes += QByteArray("BAYERPAT= '" + pattern + "    '").leftJustified(80);
    bytes += QByteArray("END").leftJustified(80);
    bytes = bytes.leftJustified((bytes.size() + block - 1) / block * block);
    for (int y = 0; y < grey.rows; ++y)
        for (int x = 0; x < grey.cols; ++x)
            if (isWide) {
                const int stored = int(grey.at<ushort>(y, x)) - 32768;
                bytes.append(char(stored >> 8)).append(char(stored));
            } else {
                bytes.append(char(grey.at<uchar>(y, x)));
            }
    bytes.append(QByteArray((block - bytes.size() % block) % block, '\0'));
    return bytes;
}

inline virtualsky::CameraAddress addressOf(quint16 port, const char *device)
{
    virtualsky::CameraAddress address;
    address.source = virtualsky::Source::Indi;
    address.host = "127.0.0.1";
    address.port = port;
    address.device = device;
    return address;
}

inline virtualsky::CameraAddress addressOf(const HostileServer &server)
{
    return addressOf(server.port(), "Camera");
}
