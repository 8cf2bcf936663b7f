// SPDX-License-Identifier: MIT
// Are FITS files of every kind read as another program wrote them, and written so that they can be?
#include <QTemporaryDir>
#include <QtTest>

#include "pictures/fitsfile.h"
#include "tests/pictures/golden.h"

namespace
{
constexpr double evening = 1795204800.0; // 2026-11-20T20:00:00Z
}

class FitsFileTest : public QObject
{
    Q_OBJECT

private slots:
    void pixels_data();
    void pixels();
    void eightBits();
    void unitRangeIsStretched();
    void colours();
    void dates_data();
    void dates();
    void dateOfTheHeaderAlone();
    void noPicture();
    void cutOff();
    void patternOfTheFirstPixel_data();
    void patternOfTheFirstPixel();
    void writtenAndRead_data();
    void writtenAndRead();
    void writeFaultIsNamed();
    void replacesWhatALinkNames();
};

void FitsFileTest::pixels_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("mosaic");
    for (const char *name : {"uint16", "int16", "int32", "float", "bottomup", "rice"})
        QTest::newRow(name) << QByteArray(name) << false;
    QTest::newRow("bayer") << QByteArray("bayer") << true;
}

void FitsFileTest::pixels()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, mosaic);
    std::string bytes = goldenBytes(name + ".fits");
    const PictureFile picture = pictures::decodeFits(bytes);
    QCOMPARE(picture.complaint, std::string());
    QCOMPARE(picture.pixels.type(), CV_16UC1);
    QCOMPARE(picture.pixels.cols, 40);
    QCOMPARE(picture.pixels.rows, 24);
    QCOMPARE(differences<ushort>(picture.pixels, [](int x, int y) { return goldenValue(x, y); }),
             0);
    QCOMPARE(picture.mosaic, mosaic);
}

void FitsFileTest::eightBits()
{
    const PictureFile picture = readPicture(goldenPath("uint8.fits"));
    QCOMPARE(picture.complaint, std::string());
    QCOMPARE(picture.pixels.type(), CV_8UC1);
    QCOMPARE(
        differences<uchar>(picture.pixels, [](int x, int y) { return goldenValue(x, y) / 16; }), 0);
}

void FitsFileTest::unitRangeIsStretched()
{
    const PictureFile picture = readPicture(goldenPath("unitfloat.fits"));
    QCOMPARE(picture.complaint, std::string());
    QCOMPARE(picture.pixels.type(), CV_16UC1);
    QCOMPARE(int(picture.pixels.at<ushort>(0, 0)), 0);
    QCOMPARE(int(picture.pixels.at<ushort>(23, 39)), 65535);
    QCOMPARE(int(picture.pixels.at<ushort>(3, 5)), 0); // not a number
    const double middle = 65535.0 * (goldenValue(20, 12) - 1000) / (goldenValue(39, 23) - 1000);
    QVERIFY(std::abs(picture.pixels.at<ushort>(12, 20) - middle) <= 1.0);
}

void FitsFileTest::colours()
{
    const PictureFile picture = readPicture(goldenPath("colour.fits"));
    QCOMPARE(picture.complaint, std::string());
    QCOMPARE(picture.pixels.type(), CV_16UC3);
    const auto pixel = picture.pixels.at<cv::Vec3w>(10, 30);
    for (int plane = 0; plane < 3; ++plane) // red, green, blue
        QCOMPARE(int(pixel[2 - plane]), goldenValue(30, 10, plane));
}

void FitsFileTest::dates_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<double>("date"); // 0 = none
    QTest::newRow("start, no exposure") << QByteArray("uint8") << evening;
    QTest::newRow("middle of three seconds") << QByteArray("uint16") << evening + 0.25 + 1.5;
    QTest::newRow("day alone") << QByteArray("int16") << evening - 72000.0;
    QTest::newRow("given average") << QByteArray("int32") << evening + 7.5;
    QTest::newRow("compressed") << QByteArray("rice") << evening;
    QTest::newRow("none") << QByteArray("float") << 0.0;
}

void FitsFileTest::dates()
{
    QFETCH(QByteArray, name);
    QFETCH(double, date);
    const PictureFile picture = readPicture(goldenPath(name + ".fits"));
    QCOMPARE(picture.date.has_value(), date != 0.0);
    QVERIFY(std::abs(picture.date.value_or(0.0) - date) < 1e-3);
}

void FitsFileTest::dateOfTheHeaderAlone()
{
    std::string bytes = goldenBytes("uint16.fits").substr(0, 2880);
    QVERIFY(std::abs(pictures::dateOfFits(bytes).value_or(0.0) - evening - 1.75) < 1e-3);
}

void FitsFileTest::noPicture()
{
    QCOMPARE(QString::fromStdString(readPicture(goldenPath("table.fits")).complaint),
             QString("It is a FITS file without a picture that can be used."));
}

void FitsFileTest::cutOff()
{
    const std::string whole = goldenBytes("uint16.fits");
    for (const std::size_t length : {std::size_t(9), std::size_t(100), std::size_t(2880),
                                     std::size_t(3000), whole.size() - 2000}) {
        std::string bytes = whole.substr(0, length);
        const PictureFile picture = pictures::decodeFits(bytes);
        QVERIFY2(picture.pixels.empty(), qPrintable(QString::number(length)));
        QVERIFY(picture.complaint.find("FITS file") != std::string::npos);
    }
}

void FitsFileTest::patternOfTheFirstPixel_data()
{
    QTest::addColumn<QByteArray>("cards");
    QTest::addColumn<QByteArray>("pattern");
    const auto row = [](const char *name, const QByteArray &cards, const char *pattern) {
        QTest::newRow(name) << cards << QByteArray(pattern);
    };
    row("as it stands", {}, "RGGB");
    row("one column on", "XBAYROFF=                    1", "GRBG");
    row("one row on", "YBAYROFF=                    1", "GBRG");
    row("one row back", "YBAYROFF=                   -1", "GBRG");
    row("two columns on", "XBAYROFF=                    2", "RGGB");
    row("an offset out of the world", "XBAYROFF=               1.E300", "RGGB");
    row("rows in the other order", "ROWORDER= 'BOTTOM-UP'", "");
}

void FitsFileTest::patternOfTheFirstPixel()
{
    QFETCH(QByteArray, cards);
    QFETCH(QByteArray, pattern);
    QByteArray bytes = QByteArray::fromStdString(goldenBytes("bayer.fits"));
    const QByteArray end = QByteArray("END").leftJustified(80), more = cards.leftJustified(80);
    const int place = bytes.indexOf(end + QByteArray(80, ' '));
    QVERIFY(place > 0);
    if (!cards.isEmpty())
        bytes.replace(place, 160, more + end);
    std::string file = bytes.toStdString();
    const PictureFile picture = pictures::decodeFits(file);
    QVERIFY(picture.mosaic);
    QCOMPARE(picture.pattern, pattern.toStdString());
}

void FitsFileTest::writtenAndRead_data()
{
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<bool>("deep");
    QTest::newRow("8 bits") << QByteArray() << false;
    QTest::newRow("16 bits") << QByteArray() << true;
    QTest::newRow("a mosaic") << QByteArray("GBRG") << true;
}

void FitsFileTest::writtenAndRead()
{
    QFETCH(QByteArray, pattern);
    QFETCH(bool, deep);
    const QTemporaryDir folder;
    const std::string path = folder.filePath("a [1](2).fits").toStdString();
    const cv::Mat golden = readPicture(goldenPath(deep ? "uint16.fits" : "uint8.fits")).pixels;
    for (int time = 0; time < 2; ++time) // the second time over the first
        QCOMPARE(pictures::writeFits(path, golden, evening, 3.0, pattern.toStdString()),
                 std::string());
    const PictureFile read = readPicture(path);
    QCOMPARE(read.pixels.type(), golden.type());
    QCOMPARE(cv::norm(read.pixels, golden, cv::NORM_INF), 0.0);
    QVERIFY(std::abs(read.date.value_or(0.0) - evening) < 1e-3);
    QCOMPARE(read.mosaic, !pattern.isEmpty());
    QCOMPARE(read.pattern, pattern.toStdString());
}

void FitsFileTest::writeFaultIsNamed()
{
    const cv::Mat picture(10, 10, CV_8UC1, cv::Scalar(1));
    QCOMPARE(pictures::writeFits("/nowhere/a.fits", picture, {}, 0.0),
             std::string("it cannot be written: No such file or directory"));
}

void FitsFileTest::replacesWhatALinkNames()
{
    const QTemporaryDir folder;
    const QString name(250, 'a'), path = folder.filePath(name + ".fit");
    const QString link = folder.filePath("link.fits");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("before") == 6);
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(QFile::link(path, link));
    const cv::Mat picture(10, 10, CV_8UC1, cv::Scalar(1));
    QCOMPARE(pictures::writeFits(link.toStdString(), picture, {}, 0.0), std::string());
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(cv::norm(readPicture(path.toStdString()).pixels, picture, cv::NORM_INF), 0.0);
    QCOMPARE(QFileInfo(path).size() % 2880, qint64(0));
    QVERIFY(!(QFileInfo(path).permissions() & QFile::ReadOther));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

QTEST_GUILESS_MAIN(FitsFileTest)
#include "tst_fitsfile.moc"
