// SPDX-License-Identifier: MIT
// Do values of any type become the right 16 bits?
#include <QtTest>
#include <limits>

#include "pictures/depth.h"

class DepthTest : public QObject
{
    Q_OBJECT

private slots:
    void everyType_data();
    void everyType();
    void whatIsNoNumber();
    void colours();
};

void DepthTest::everyType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<QVector<int>>("expected");
    using Values = QVector<double>;
    using Results = QVector<int>;
    QTest::newRow("16 bits in floats")
        << CV_32FC1 << Values{0, 900, 65535} << Results{0, 900, 65535};
    QTest::newRow("0 to 1") << CV_32FC1 << Values{0.0, 0.2, 1.0} << Results{0, 13107, 65535};
    QTest::newRow("doubles") << CV_64FC1 << Values{0.0, 0.2, 1.0} << Results{0, 13107, 65535};
    QTest::newRow("below 0") << CV_32FC1 << Values{-100, 0, 100} << Results{0, 32768, 65535};
    QTest::newRow("signed 16 bits") << CV_16SC1 << Values{0, 7, 32767} << Results{0, 7, 32767};
    QTest::newRow("32 bits") << CV_32SC1 << Values{0, 1000000, 2000000} << Results{0, 32768, 65535};
    QTest::newRow("one value") << CV_32FC1 << Values{0.5, 0.5, 0.5} << Results{0, 0, 0};
}

void DepthTest::everyType()
{
    QFETCH(int, type);
    QFETCH(QVector<double>, values);
    QFETCH(QVector<int>, expected);
    cv::Mat typed;
    cv::Mat(1, values.size(), CV_64FC1, values.data()).convertTo(typed, type);
    const cv::Mat out = pictures::to16Bits(typed);
    QCOMPARE(out.type(), CV_16UC1);
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY2(std::abs(out.at<ushort>(0, i) - expected[i]) <= 1,
                 qPrintable(QString::number(out.at<ushort>(0, i))));
}

void DepthTest::whatIsNoNumber()
{
    constexpr float infinite = std::numeric_limits<float>::infinity();
    const cv::Mat values =
        (cv::Mat_<float>(1, 5) << 0.0f, std::nanf(""), infinite, -infinite, 1.0f);
    const cv::Mat out = pictures::to16Bits(values);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(int(out.at<ushort>(0, i)), i == 4 ? 65535 : 0);
}

void DepthTest::colours()
{
    const cv::Mat values(3, 2, CV_32FC3, cv::Scalar(0.0, 0.5, 1.0));
    const cv::Mat out = pictures::to16Bits(values);
    QCOMPARE(out.type(), CV_16UC3);
    QCOMPARE(out.size(), values.size());
    const auto pixel = out.at<cv::Vec3w>(2, 1);
    QVERIFY(pixel[0] == 0 && std::abs(pixel[1] - 32768) <= 1 && pixel[2] == 65535);
}

QTEST_GUILESS_MAIN(DepthTest)
#include "tst_depth.moc"
