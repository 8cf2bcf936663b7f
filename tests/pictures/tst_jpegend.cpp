// SPDX-License-Identifier: MIT
// Is a JPEG file that is cut anywhere noticed, and a complete one of every kind not?
#include <QtTest>
#include <opencv2/imgcodecs.hpp>

#include "pictures/jpegend.h"

namespace
{
std::string encoded(int type, const std::vector<int> &options = {})
{
    cv::Mat noise(60, 80, type);
    cv::randu(noise, 0, 255);
    std::vector<uchar> bytes;
    cv::imencode(".jpg", noise, bytes, options);
    return {bytes.begin(), bytes.end()};
}

/// A segment as cameras put them before the picture, with a preview that has an end of its own.
std::string withPreview(const std::string &jpeg)
{
    const std::string preview = encoded(CV_8UC1).substr(0, 2000) + "\xff\xd9";
    const std::size_t length = preview.size() + 2;
    return jpeg.substr(0, 2) + "\xff\xe1" + char(length >> 8) + char(length & 0xff) + preview +
           jpeg.substr(2);
}
} // namespace

class JpegEndTest : public QObject
{
    Q_OBJECT

private slots:
    void everyCut_data();
    void everyCut();
    void otherFiles();
};

void JpegEndTest::everyCut_data()
{
    QTest::addColumn<QByteArray>("jpeg");
    const auto row = [](const char *name, const std::string &jpeg) {
        QTest::newRow(name) << QByteArray::fromStdString(jpeg);
    };
    row("grey", encoded(CV_8UC1));
    row("colour", encoded(CV_8UC3));
    row("progressive", encoded(CV_8UC3, {cv::IMWRITE_JPEG_PROGRESSIVE, 1}));
    row("restart markers", encoded(CV_8UC3, {cv::IMWRITE_JPEG_RST_INTERVAL, 3}));
    row("with a preview", withPreview(encoded(CV_8UC3)));
}

void JpegEndTest::everyCut()
{
    QFETCH(QByteArray, jpeg);
    const std::string bytes = jpeg.toStdString();
    QVERIFY(!pictures::isCutJpeg(bytes));
    QVERIFY(!pictures::isCutJpeg(bytes + "something behind it"));
    for (std::size_t length = 3; length < bytes.size(); ++length)
        QVERIFY2(pictures::isCutJpeg(bytes.substr(0, length)), std::to_string(length).c_str());
}

void JpegEndTest::otherFiles()
{
    for (const char *text : {"", "\xff", "\xff\xd8", "\x89PNG", "SIMPLE  =",
                             "\xff\xd8\xff"
                             "no length"})
        (void)pictures::isCutJpeg(text); // any answer, in bounds
    QVERIFY(!pictures::isCutJpeg("\x89PNG\r\n\x1a\n"));
    QVERIFY(!pictures::isCutJpeg("\xff\xd8"));
}

QTEST_GUILESS_MAIN(JpegEndTest)
#include "tst_jpegend.moc"
