// SPDX-License-Identifier: MIT
// Are region, binning, gain, exposure and ID of a device the ones that correspond to the program's?
#include <QRegularExpression>
#include <QtTest>
#include <cmath>

#include "framesources/indisettings.h"
#include "framesources/indivalues.h"
#include "framesources/threadedsource.h"

using framesources::Readout;

class IndiSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void readout_data();
    void readout();
    void binningOfAFrame_data();
    void binningOfAFrame();
    void gain_data();
    void gain();
    void limits_data();
    void limits();
    void serial_data();
    void serial();
    void number_data();
    void number();
};

void IndiSettingsTest::readout_data()
{
    QTest::addColumn<QSize>("sensor");
    QTest::addColumn<int>("maxBinning");
    QTest::addColumn<double>("scale"); // arcseconds a pixel, 0 = unknown
    QTest::addColumn<bool>("whole");
    QTest::addColumn<int>("binning");
    QTest::addColumn<QRect>("region");
    const auto row = [](const char *name, QSize sensor, int most, double scale, bool whole,
                        int binning, QRect region) {
        QTest::newRow(name) << sensor << most << scale << whole << binning << region;
    };
    const QSize large(4144, 2822);
    row("the program's own", {1280, 960}, 4, 0.0, false, 1, {0, 0, 1280, 960});
    row("smaller", {640, 480}, 4, 0.0, false, 1, {0, 0, 640, 480});
    row("twice", {2560, 1920}, 4, 0.0, false, 2, {0, 0, 2560, 1920});
    row("a little less than one and a half times", {1919, 1440}, 4, 0.0, false, 1,
        {318, 240, 1280, 960});
    row("one and a half times", {1920, 1440}, 4, 0.0, false, 2, {0, 0, 1920, 1440});
    row("nearly three times", large, 4, 0.0, false, 3, {152, 0, 3840, 2820});
    row("binned at most by two", large, 2, 0.0, false, 2, {792, 450, 2560, 1920});
    row("not binned", large, 1, 0.0, false, 1, {1432, 930, 1280, 960});
    row("a device that says nonsense of its binning", large, 0, 0.0, false, 1,
        {1432, 930, 1280, 960});
    row("half the program's scale", large, 4, 15.225, false, 2, {792, 450, 2560, 1920});
    row("a fifth of the program's scale, binned at most by four", large, 4, 6.0, false, 4,
        {0, 2, 4144, 2816});
    row("coarser than the program", {640, 512}, 4, 60.0, false, 1, {0, 12, 640, 488});
    row("the lens is still unknown", large, 4, 0.0, true, 3, {2, 0, 4140, 2820});
    row("a single pixel", {1, 1}, 4, 0.0, false, 1, {0, 0, 1, 1});
}

void IndiSettingsTest::readout()
{
    QFETCH(QSize, sensor);
    QFETCH(int, maxBinning);
    QFETCH(double, scale);
    QFETCH(bool, whole);
    QFETCH(int, binning);
    QFETCH(QRect, region);
    const Readout plan = framesources::planReadout(cv::Size(sensor.width(), sensor.height()),
                                                   maxBinning, scale, whole);
    QCOMPARE(plan.binning, binning);
    QCOMPARE(QRect(plan.region.x, plan.region.y, plan.region.width, plan.region.height), region);
}

void IndiSettingsTest::binningOfAFrame_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<int>("binning");
    QTest::newRow("as asked for") << QSize(1280, 960) << 2;
    QTest::newRow("refused") << QSize(2560, 1920) << 1;
    QTest::newRow("three, one row less") << QSize(853, 639) << 3;
    QTest::newRow("four") << QSize(640, 480) << 4;
    QTest::newRow("another region") << QSize(100, 100) << 1;
}

void IndiSettingsTest::binningOfAFrame()
{
    QFETCH(QSize, frame);
    const Readout asked = {2, cv::Rect(792, 450, 2560, 1920)};
    QTEST(framesources::binningOf(asked, cv::Size(frame.width(), frame.height())), "binning");
}

void IndiSettingsTest::gain_data()
{
    QTest::addColumn<double>("program");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::addColumn<double>("device");
    QTest::newRow("none") << 0.0 << 0.0 << 400.0 << 0.0;
    QTest::newRow("half") << 50.0 << 0.0 << 400.0 << 200.0;
    QTest::newRow("full") << 100.0 << 0.0 << 400.0 << 400.0;
    QTest::newRow("beyond the slider's end") << 200.0 << 0.0 << 400.0 << 400.0;
    QTest::newRow("below its beginning") << -5.0 << 0.0 << 400.0 << 0.0;
    QTest::newRow("a range that does not begin at 0") << 25.0 << 100.0 << 500.0 << 200.0;
    QTest::newRow("a range below 0") << 75.0 << -40.0 << 40.0 << 20.0;
}

void IndiSettingsTest::gain()
{
    QFETCH(double, program);
    QFETCH(double, least);
    QFETCH(double, most);
    QTEST(framesources::deviceGain(program, least, most), "device");
}

void IndiSettingsTest::limits_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::addColumn<double>("limited");
    QTest::newRow("within") << 0.001 << 3600.0 << 0.05;
    QTest::newRow("too short") << 0.1 << 3600.0 << 0.1;
    QTest::newRow("too long") << 0.001 << 0.04 << 0.04;
    QTest::newRow("no limits") << 0.0 << 0.0 << 0.05;
    QTest::newRow("the wrong way round") << 10.0 << 1.0 << 0.05;
}

void IndiSettingsTest::limits()
{
    QFETCH(double, least);
    QFETCH(double, most);
    QTEST(framesources::withinLimits(0.05, least, most), "limited");
}

void IndiSettingsTest::serial_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *device, const char *expected) {
        QTest::newRow(expected) << QByteArray(device) << QByteArray(expected);
    };
    row("Camera2", "Camera2");
    row("CCD Simulator", "CCD_Simulator");
    row("Guider (USB) 290MM-Mini", "Guider__USB__290MM_Mini");
    row("A name of more than twenty-six letters", "A_name_of_more_than_twenty");
    row("abcdefghijklmnopqrstuvwxyz", "abcdefghijklmnopqrstuvwxyz");
    row("\xc3\x85ngstr\xc3\xb6m", "__ngstr__m");
    row("a letter that is cut in \xc3\xb6", "a_letter_that_is_cut_in___");
    row("../../etc/passwd", "______etc_passwd");
    row("%s%n", "_s_n");
    row("\t\x7f\xff", "___");
    row("", "camera");
}

void IndiSettingsTest::serial()
{
    QFETCH(QByteArray, device);
    const QByteArray serial =
        QByteArray::fromStdString(framesources::serialOf(device.toStdString()));
    QTEST(serial, "expected");
    const QRegularExpression form("^[A-Za-z0-9_]{1,26}$");
    QVERIFY(form.match(QString::fromLatin1(serial)).hasMatch());
}

void IndiSettingsTest::number_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("value");
    const auto row = [](const char *text, double value) {
        QTest::newRow(text) << QByteArray(text) << true << value;
    };
    row(" 12.5\n", 12.5);
    row("-0:30:36", -0.51);
    row("1e300", 1e300);
    for (const char *text :
         {"", "x", "nan", "-nan", "inf", "-infinity", "1e999", "12:nan", "1.79e308:1e308"})
        QTest::newRow(text) << QByteArray(text) << false << 0.0;
}

void IndiSettingsTest::number()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isNumber);
    QFETCH(double, value);
    const auto number = framesources::parseNumber(text.toStdString());
    QCOMPARE(bool(number), isNumber);
    QVERIFY(!isNumber || std::abs(*number - value) <= 1e-12 * std::abs(value));
}

QTEST_GUILESS_MAIN(IndiSettingsTest)
#include "tst_indisettings.moc"
