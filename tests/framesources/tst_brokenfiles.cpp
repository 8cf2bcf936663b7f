// SPDX-License-Identifier: MIT
// Is every kind of broken file named and left out, and the good one after it shown?
#include <QtTest>
#include <sys/stat.h>

#include "tests/framesources/filestest.h"
#include "tests/support/ordinaryuser.h"

namespace
{
QByteArray golden(const QString &name)
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/tests/pictures/golden/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray encoded(const char *suffix, const cv::Mat &picture, const std::vector<int> &options = {})
{
    std::vector<uchar> bytes;
    cv::imencode(suffix, picture, bytes, options);
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

QByteArray encoded(const char *suffix, int type = CV_8UC1, const std::vector<int> &options = {})
{
    cv::Mat noise(200, 300, type);
    cv::randu(noise, 0, 255);
    return encoded(suffix, noise, options);
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
    void unusualIsShown_data();
    void unusualIsShown();
    void pipeAndFolderAreNoPictures();
    void unreadableIsNamed();
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
    row("png, data cut", "a.png", part(png, 0.6));
    row("png, a changed byte", "a.png", overwritten(png, png.size() / 2, "\x55\xaa\x55\xaa"));
    row("jpg, data cut", "a.jpg", part(jpg, 0.6));
    row("jpg, end missing", "a.jpg", jpg.left(jpg.size() - 2));
    row("jpg, progressive and cut", "a.jpg",
        part(encoded(".jpg", CV_8UC3, {cv::IMWRITE_JPEG_PROGRESSIVE, 1}), 0.6));
    row("tif, data cut", "a.tif", part(tif, 0.6));
    row("tif, not compressed and cut", "a.tif",
        part(encoded(".tif", CV_16UC1, {cv::IMWRITE_TIFF_COMPRESSION, 1}), 0.6));
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

/// A ramp from left to right, in the file's own units.
void BrokenFilesTest::unusualIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("step"); // of the picture that is shown, from one column to the next
    QTest::addColumn<int>("allowed");
    cv::Mat ramp(48, 52, CV_8UC1);
    for (int x = 0; x < ramp.cols; ++x)
        ramp.col(x).setTo(5 * x);
    const auto as = [&ramp](int depth, double factor) {
        cv::Mat out;
        ramp.convertTo(out, depth, factor);
        return out;
    };
    cv::Mat alpha(ramp.size(), CV_8UC4, cv::Scalar::all(255));
    cv::insertChannel(ramp, alpha, 0);
    cv::insertChannel(ramp, alpha, 1);
    cv::insertChannel(ramp, alpha, 2);
    const QByteArray png = encoded(".png", ramp), jpg = encoded(".jpg", ramp, {1, 100});
    const auto row = [](const char *what, const char *name, const QByteArray &bytes, int step,
                        int allowed = 0) {
        QTest::newRow(what) << QString(name) << bytes << step << allowed;
    };
    row("png with more behind it", "a.png", png + "more", 5);
    row("jpg with more behind it", "a.jpg", jpg + "more", 5, 2);
    row("png named jpg", "a.jpg", png, 5);
    row("jpg named fits", "a.fits", jpg, 5, 2);
    row("png with transparency", "a.png", encoded(".png", alpha), 5);
    row("png, black and white, in 1 bit", "a.png",
        encoded(".png", cv::Mat(48, 52, CV_8UC1, cv::Scalar(0)), {cv::IMWRITE_PNG_BILEVEL, 1}), 0);
    row("tif of floats", "a.tif", encoded(".tif", as(CV_32F, 1.0 / 255.0)), 1285, 1);
    row("tif of doubles", "a.tif", encoded(".tif", as(CV_64F, 1.0 / 255.0)), 1285, 1);
    row("tif of floats above 1", "a.tif", encoded(".tif", as(CV_32F, 100.0)), 500);
}

void BrokenFilesTest::unusualIsShown()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(int, step);
    QFETCH(int, allowed);
    QVERIFY(!bytes.isEmpty());
    const PictureFolder folder;
    folder.write(name, bytes, 1);
    RunningCamera running(folder.folder.path());
    const auto frame = running.frame();
    QVERIFY2(frame, qPrintable(running.lines.join("\n")));
    QCOMPARE(running.lines, QStringList());
    QCOMPARE(frame->pixels.size(), cv::Size(52, 48));
    cv::Mat grey = frame->pixels, wide;
    if (grey.channels() == 3)
        cv::extractChannel(frame->pixels, grey, 1);
    QVERIFY(grey.depth() == CV_8U || grey.depth() == CV_16U);
    grey.convertTo(wide, CV_32S);
    for (int y = 0; y < wide.rows; ++y)
        for (int x = 0; x < wide.cols; ++x)
            QVERIFY2(std::abs(wide.at<int>(y, x) - step * x) <= allowed,
                     qPrintable(QString("%1 at %2, %3").arg(wide.at<int>(y, x)).arg(x).arg(y)));
}

/// An ordinary user's file that must not be read.
void BrokenFilesTest::unreadableIsNamed()
{
    const PictureFolder folder;
    folder.write("a.png", encoded(".png"), 1);
    folder.add("good.png", 77, 400000000);
    QVERIFY(QFile(folder.path("a.png")).setPermissions({}));
    QVERIFY(QFile(folder.folder.path()).setPermissions(QFile::Permissions(0x7755)));
    const OrdinaryUser user;
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 77);
    QCOMPARE(running.lines, QStringList(folder.path("a.png") +
                                        ": It cannot be read: Permission denied. It is left out."));
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
