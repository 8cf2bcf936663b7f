// SPDX-License-Identifier: MIT
// Is every kind of broken file named and left out, and the good one after it shown?
#include <QtTest>
#include <sys/stat.h>

#include "tests/framesources/filestest.h"

namespace
{
QByteArray golden(const QString &name)
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/tests/pictures/golden/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray encoded(const char *suffix, int type = CV_8UC1)
{
    std::vector<uchar> bytes;
    cv::Mat noise(200, 300, type);
    cv::randu(noise, 0, 255);
    cv::imencode(suffix, noise, bytes);
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

QByteArray part(const QByteArray &bytes, double fraction)
{
    return bytes.left(int(bytes.size() * fraction));
}

QByteArray changed(QByteArray bytes, const QByteArray &from, const QByteArray &to)
{
    const int at = bytes.indexOf(from);
    Q_ASSERT(at >= 0 && from.size() == to.size());
    return bytes.replace(at, from.size(), to);
}

QByteArray overwritten(QByteArray bytes, int offset, const QByteArray &with)
{
    return bytes.replace(offset, with.size(), with);
}
} // namespace

class BrokenFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void leftOut_data();
    void leftOut();
    void pipeAndFolderAreNoPictures();
};

void BrokenFilesTest::leftOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *what, const char *name, const QByteArray &bytes) {
        QTest::newRow(what) << QString(name) << bytes;
    };
    for (const char *suffix : {"png", "jpg", "tif", "fits", "ser"}) {
        const QByteArray name = QByteArray("a.") + suffix;
        row((QByteArray("empty ") + suffix).constData(), name, {});
        row((QByteArray("text in ") + suffix).constData(), name, "This is no picture.\n");
        row((QByteArray("zeros in ") + suffix).constData(), name, QByteArray(5000, '\0'));
    }
    const QByteArray png = encoded(".png"), jpg = encoded(".jpg"), tif = encoded(".tif"),
                     fits = golden("uint16.fits"), rice = golden("rice.fits"),
                     ser = golden("grey16.ser");
    row("png, signature alone", "a.png", png.left(8));
    row("png, header alone", "a.png", png.left(33));
    row("png, huge", "a.png",
        overwritten(png, 16, QByteArray("\x7f\xff\xff\xff\x7f\xff\xff\xff", 8)));
    row("png, no width", "a.png", overwritten(png, 16, QByteArray(4, '\0')));
    row("jpg, start alone", "a.jpg", jpg.left(2));
    row("jpg, header alone", "a.jpg", jpg.left(20));
    row("tif, header alone", "a.tif", tif.left(8));
    row("tif, directory outside", "a.tif", overwritten(tif, 4, QByteArray("\xff\xff\xff\x7f", 4)));
    row("fits, header cut", "a.fits", fits.left(400));
    row("fits, header alone", "a.fits", fits.left(2880));
    row("fits, data cut", "a.fits", part(fits, 0.6));
    row("fits, no picture", "a.fits", golden("table.fits"));
    row("fits, four axes", "a.fits",
        changed(fits, "NAXIS   =                    2", "NAXIS   =                    4"));
    row("fits, huge", "a.fits",
        changed(fits, "NAXIS1  =                   40", "NAXIS1  =           2000000000"));
    row("fits, negative side", "a.fits",
        changed(fits, "NAXIS1  =                   40", "NAXIS1  =                  -40"));
    row("fits, 17 bits", "a.fits",
        changed(fits, "BITPIX  =                   16", "BITPIX  =                   17"));
    row("fits, compressed and cut", "a.fits", part(rice, 0.7));
    row("ser, header alone", "a.ser", ser.left(178));
    row("ser, no complete frame", "a.ser", ser.left(1000));
    row("ser, huge", "a.ser", overwritten(ser, 26, QByteArray("\xff\x7f\0\0\xff\x7f\0\0", 8)));
    row("ser, unknown colours", "a.ser", overwritten(ser, 18, QByteArray("\x63\0\0\0", 4)));
    row("another name's content, ser", "a.png", ser);
    row("an html page", "a.jpg", "<html><body>404 Not Found</body></html>\n");
}

void BrokenFilesTest::leftOut()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const PictureFolder folder;
    folder.write(name, bytes, 1);
    folder.add("good.png", 77, 400000000); // later than the dates in the files
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 77);
    QCOMPARE(running.lines.size(), 1);
    QVERIFY2(running.lines[0].startsWith(folder.path(name) + ": It is") ||
                 running.lines[0].startsWith(folder.path(name) + ": It cannot"),
             qPrintable(running.lines[0]));
    QVERIFY2(running.lines[0].endsWith(" It is left out."), qPrintable(running.lines[0]));
    QCOMPARE(running.value(), 77); // and is not named again
    QCOMPARE(running.lines.size(), 1);
}

void BrokenFilesTest::pipeAndFolderAreNoPictures()
{
    const PictureFolder folder;
    QVERIFY(QDir(folder.folder.path()).mkdir("a.png"));
    QCOMPARE(::mkfifo(QFile::encodeName(folder.path("b.png")).constData(), 0600), 0);
    QVERIFY(QFile::link("/nowhere", folder.path("c.png")));
    folder.add("good.png", 78, 2);
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 78);
    QCOMPARE(running.value(), 78);
}

QTEST_GUILESS_MAIN(BrokenFilesTest)
#include "tst_brokenfiles.moc"
