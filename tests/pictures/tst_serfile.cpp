// SPDX-License-Identifier: MIT
// Are SER videos of every kind read as they were written, whatever the byte order?
#include <QTemporaryDir>
#include <QtTest>

#include "pictures/serfile.h"
#include "tests/pictures/golden.h"

class SerFileTest : public QObject
{
    Q_OBJECT

private slots:
    void grey_data();
    void grey();
    void colours_data();
    void colours();
    void mosaic();
    void cutFileEndsEarlier();
    void brokenHeaders_data();
    void brokenHeaders();
    void filesThatCannotBeOpened();
    void names();
};

void SerFileTest::grey_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("deep");
    QTest::newRow("8 bits") << QByteArray("grey8.ser") << false;
    QTest::newRow("16 bits, low byte first") << QByteArray("grey16.ser") << true;
    QTest::newRow("16 bits, high byte first") << QByteArray("grey16big.ser") << true;
}

void SerFileTest::grey()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, deep);
    pictures::SerFile file(goldenPath(name));
    QCOMPARE(file.complaint(), std::string());
    QCOMPARE(file.header().frames, 3);
    for (int number : {2, 0, 1}) {
        const PictureFile frame = file.frame(number);
        QCOMPARE(frame.complaint, std::string());
        const auto expected = [number, deep](int x, int y) {
            return (goldenValue(x, y) + 16 * number) / (deep ? 1 : 16);
        };
        QCOMPARE(deep ? differences<ushort>(frame.pixels, expected)
                      : differences<uchar>(frame.pixels, expected),
                 0);
        QVERIFY(std::abs(frame.date.value_or(0.0) - 1795204800.0 - 0.5 * number) < 1e-4);
        QVERIFY(!frame.mosaic);
    }
    QCOMPARE(file.frame(3).complaint, std::string("It has no frame 4."));
}

void SerFileTest::colours_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("red green blue") << QByteArray("rgb8.ser");
    QTest::newRow("blue green red") << QByteArray("bgr8.ser");
}

void SerFileTest::colours()
{
    QFETCH(QByteArray, name);
    const PictureFile frame = pictures::SerFile(goldenPath(name)).frame(0);
    QCOMPARE(frame.pixels.type(), CV_8UC3);
    const auto pixel = frame.pixels.at<cv::Vec3b>(10, 30);
    for (int colour = 0; colour < 3; ++colour)
        QCOMPARE(int(pixel[2 - colour]), goldenValue(30, 10, 16 * colour) / 16);
}

void SerFileTest::mosaic()
{
    const PictureFile frame = pictures::SerFile(goldenPath("bayer12.ser")).frame(0);
    QVERIFY(frame.mosaic);
    QCOMPARE(frame.pattern, std::string("RGGB"));
    QVERIFY(!frame.date);
    QCOMPARE(differences<ushort>(frame.pixels, [](int x, int y) { return goldenValue(x, y); }), 0);
}

void SerFileTest::cutFileEndsEarlier()
{
    pictures::SerFile file(goldenPath("cut.ser"));
    QCOMPARE(file.complaint(), std::string());
    QCOMPARE(file.header().frames, 2);
    QVERIFY(file.frame(1).complaint.empty());
    QVERIFY(!file.frame(2).complaint.empty());
}

void SerFileTest::brokenHeaders_data()
{
    QTest::addColumn<int>("offset"); // of the byte that is changed; -1 = the file is cut
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("complaint");
    const QByteArray other = "It is not a SER file.",
                     kind = "It is a SER file of a kind that cannot be read.";
    QTest::newRow("name") << 0 << int('X') << other;
    QTest::newRow("cut") << -1 << 100 << other;
    QTest::newRow("colour") << 18 << 50 << kind;
    QTest::newRow("width negative") << 29 << 255 << kind;
    QTest::newRow("height 0") << 30 << 0 << kind;
    QTest::newRow("depth 0") << 34 << 0 << kind;
    QTest::newRow("depth 32") << 34 << 32 << kind;
    QTest::newRow("no frames") << 38 << 0
                               << QByteArray("It is a SER file without a complete frame.");
    QTest::newRow("no frame fits")
        << -1 << 300 << QByteArray("It is a SER file without a complete frame.");
}

void SerFileTest::brokenHeaders()
{
    QFETCH(int, offset);
    QFETCH(int, value);
    QFETCH(QByteArray, complaint);
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.ser"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray bytes = QByteArray::fromStdString(goldenBytes("grey8.ser"));
    if (offset < 0)
        bytes.truncate(value);
    else
        bytes[offset] = char(value);
    file.write(bytes);
    file.close();
    pictures::SerFile broken(file.fileName().toStdString());
    QCOMPARE(QByteArray::fromStdString(broken.complaint()), complaint);
    QCOMPARE(QByteArray::fromStdString(broken.frame(0).complaint), complaint);
}

void SerFileTest::filesThatCannotBeOpened()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    QCOMPARE(pictures::SerFile(path + "/absent.ser").complaint(),
             std::string("It cannot be read: No such file or directory."));
    QCOMPARE(pictures::SerFile(path).complaint(), std::string("It is not an ordinary file."));
}

void SerFileTest::names()
{
    QVERIFY(pictures::isSerName("/a/b.ser"));
    QVERIFY(pictures::isSerName("B.SER"));
    QVERIFY(!pictures::isSerName("ser"));
    QVERIFY(!pictures::isSerName("a.ser.png"));
}

QTEST_GUILESS_MAIN(SerFileTest)
#include "tst_serfile.moc"
