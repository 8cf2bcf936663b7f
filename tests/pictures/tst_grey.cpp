// SPDX-License-Identifier: MIT
// Does a Bayer sensor's picture become grey without its pattern and without moving the stars?
#include <QtTest>
#include <cmath>

#include "pictures/grey.h"

namespace
{
// A star of three pixels' width on a sky, seen through a Bayer pattern whose red pixel is at
// (redX, redY).
cv::Mat mosaic(int redX, int redY, double x, double y)
{
    cv::Mat out(64, 64, CV_16UC1);
    for (int row = 0; row < out.rows; ++row)
        for (int column = 0; column < out.cols; ++column) {
            const double r2 = (column - x) * (column - x) + (row - y) * (row - y);
            const double light = 1000.0 + 20000.0 * std::exp(-r2 / (2.0 * 1.3 * 1.3));
            const int evenX = (column - redX) % 2 == 0, evenY = (row - redY) % 2 == 0;
            const double colour = evenX && evenY ? 0.5 : !evenX && !evenY ? 0.7 : 1.0;
            out.at<ushort>(row, column) = ushort(std::lround(light * colour));
        }
    return out;
}
} // namespace

class GreyTest : public QObject
{
    Q_OBJECT

private slots:
    void patternsAreShifted();
    void everyPatternGivesOneSky_data();
    void everyPatternGivesOneSky();
    void starsStay_data() { everyPatternGivesOneSky_data(); }
    void starsStay();
    void coloursAreWeighted();
    void greyIsNotCopied();
};

void GreyTest::patternsAreShifted()
{
    for (const auto &[columns, rows, wanted] :
         {std::tuple(0, 0, "RGGB"), std::tuple(1, 0, "GRBG"), std::tuple(0, 1, "GBRG"),
          std::tuple(1, 1, "BGGR"), std::tuple(-1, 2, "GRBG"), std::tuple(4, -3, "GBRG")})
        QCOMPARE(pictures::shiftedPattern("RGGB", columns, rows), std::string(wanted));
    for (const char *other : {"", "RGBG", "rggb", "RGGBX", "CMYG"})
        QCOMPARE(pictures::shiftedPattern(other, 0, 0), std::string());
}

void GreyTest::everyPatternGivesOneSky_data()
{
    QTest::addColumn<int>("redX");
    QTest::addColumn<int>("redY");
    QTest::newRow("RGGB") << 0 << 0;
    QTest::newRow("GRBG") << 1 << 0;
    QTest::newRow("GBRG") << 0 << 1;
    QTest::newRow("BGGR") << 1 << 1;
}

void GreyTest::everyPatternGivesOneSky()
{
    QFETCH(int, redX);
    QFETCH(int, redY);
    const cv::Mat grey = pictures::greyOf(mosaic(redX, redY, 40.0, 40.0), true);
    double least = 0.0, most = 0.0;
    cv::minMaxLoc(grey(cv::Rect(0, 0, 20, 20)), &least, &most);
    const double sky = 1000.0 * (0.25 * 0.5 + 0.5 + 0.25 * 0.7);
    QVERIFY(std::abs(least - sky) <= 1.0);
    QVERIFY(std::abs(most - sky) <= 1.0);
}

void GreyTest::starsStay()
{
    QFETCH(int, redX);
    QFETCH(int, redY);
    const double x = 30.3, y = 33.8;
    const cv::Mat grey = pictures::greyOf(mosaic(redX, redY, x, y), true);
    double sum = 0.0, sumX = 0.0, sumY = 0.0;
    for (int row = 24; row < 44; ++row)
        for (int column = 20; column < 40; ++column) {
            const double light = std::max(0.0, grey.at<ushort>(row, column) - 800.0);
            sum += light;
            sumX += light * column;
            sumY += light * row;
        }
    QVERIFY2(std::hypot(sumX / sum - x, sumY / sum - y) < 0.05,
             qPrintable(QString("%1 %2").arg(sumX / sum).arg(sumY / sum)));
}

void GreyTest::coloursAreWeighted()
{
    const cv::Mat colour(4, 4, CV_16UC3, cv::Scalar(100, 1000, 10000));
    const double expected = 0.114 * 100 + 0.587 * 1000 + 0.299 * 10000; // ITU-R BT.601
    QVERIFY(std::abs(pictures::greyOf(colour, false).at<ushort>(2, 2) - expected) <= 1.0);
}

void GreyTest::greyIsNotCopied()
{
    const cv::Mat grey(4, 4, CV_8UC1, cv::Scalar(3));
    QCOMPARE(static_cast<const void *>(pictures::greyOf(grey, false).data),
             static_cast<const void *>(grey.data));
}

QTEST_GUILESS_MAIN(GreyTest)
#include "tst_grey.moc"
