// SPDX-License-Identifier: MIT
// Are the addresses of cameras read, refused and written as the documents say?
#include <QtTest>

#include "virtualcamera/cameraaddress.h"

using virtualsky::CameraAddress;
using virtualsky::Source;

class CameraAddressTest : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
    void refused_data();
    void refused();
};

void CameraAddressTest::read_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("source");
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<QByteArray>("rest"); // device or pattern
    const auto row = [](const char *text, Source source, const char *host, int port,
                        const char *rest) {
        QTest::newRow(text) << QByteArray(text) << int(source) << QByteArray(host) << port
                            << QByteArray(rest);
    };
    row("sky", Source::Sky, "", 7624, "");
    row("indi://localhost/CCD Simulator", Source::Indi, "localhost", 7624, "CCD Simulator");
    row("indi://mount.local:7625/A/B: C", Source::Indi, "mount.local", 7625, "A/B: C");
    row("indi://[::1]:7000/X", Source::Indi, "::1", 7000, "X");
    row("indi://[fe80::1]/X", Source::Indi, "fe80::1", 7624, "X");
    row("files:/home/me/*.png", Source::Files, "", 7624, "/home/me/*.png");
    row("files:a", Source::Files, "", 7624, "a");
}

void CameraAddressTest::read()
{
    QFETCH(QByteArray, text);
    QFETCH(int, source);
    QFETCH(QByteArray, host);
    QFETCH(int, port);
    QFETCH(QByteArray, rest);
    const auto address = virtualsky::parseCameraAddress(text.toStdString());
    QVERIFY(address);
    QCOMPARE(int(address->source), source);
    QCOMPARE(QByteArray::fromStdString(address->host), host);
    QCOMPARE(int(address->port), port);
    QCOMPARE(QByteArray::fromStdString(address->device + address->pattern), rest);
    QCOMPARE(QByteArray::fromStdString(addressText(*address)), text);
}

void CameraAddressTest::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("fault");
    const QByteArray all = "must be sky, indi://HOST[:PORT]/DEVICE or files:PATTERN",
                     indi = "must be indi://HOST/DEVICE or indi://HOST:PORT/DEVICE";
    for (const char *text : {"", "Sky", "skyline", "files:", "files", "http://a/b", "indi:/a/b"})
        QTest::newRow(*text ? text : "empty") << QByteArray(text) << all;
    for (const char *text :
         {"indi://", "indi://host", "indi://host/", "indi:///device", "indi://host:/device",
          "indi://host:0/device", "indi://host:65536/device", "indi://host:7x/device",
          "indi://a b/device", "indi://[::1/device", "indi://[]:1/device", "indi://host/a\nb"})
        QTest::newRow(text) << QByteArray(text) << indi;
}

void CameraAddressTest::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, fault);
    std::string found;
    QVERIFY(!virtualsky::parseCameraAddress(text.toStdString(), &found));
    QCOMPARE(QByteArray::fromStdString(found), fault);
}

QTEST_GUILESS_MAIN(CameraAddressTest)
#include "tst_cameraaddress.moc"
