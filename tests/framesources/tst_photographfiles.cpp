// SPDX-License-Identifier: MIT
// Are photographs of the poles shown as they are, whatever the file's format, and recognised?
#include <QtTest>
#include <cmath>

#include "astrometry/utcdate.h"
#include "framesources/preparation.h"
#include "pictures/fitsfile.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "tests/framesources/filestest.h"

namespace
{
const double taken = *astrometry::parseDate("2014-12-15T00:00:00Z");

struct Photograph {
    const char *name;
    double x, y;  ///< the plate-solved pole, with aberration; pixels
    double bound; ///< pixels, of the plate solution
};
constexpr Photograph photographs[] = {{"north", 340.56, 277.23, 1.0},
                                      {"south", 764.32, 333.89, 0.6}};

void append(QByteArray &bytes, qint64 value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.append(char(value >> 8 * i & 0xff));
}

/// A video of one frame, low byte first.
/// Reference: SER format description version 3 (Grischa Hahn, 2014).
QByteArray serOf(const cv::Mat &picture)
{
    constexpr int grey = 0, blueGreenRed = 101;
    QByteArray bytes("LUCAM-RECORDER");
    const int fields[] = {0,
                          picture.channels() == 3 ? blueGreenRed : grey,
                          0, // 16 bits are low byte first, as programs take it
                          picture.cols,
                          picture.rows,
                          picture.depth() == CV_8U ? 8 : 16,
                          1};
    for (const int field : fields)
        append(bytes, field, 4);
    bytes.append(QByteArray(120, ' ')); // observer, instrument, telescope
    bytes.append(QByteArray(16, '\0')); // no dates
    for (int y = 0; y < picture.rows; ++y)
        bytes.append(picture.ptr<char>(y), int(picture.elemSize()) * picture.cols);
    return bytes;
}
} // namespace

class PhotographFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFormat_data();
    void everyFormat();

private:
    void write(const PictureFolder &folder, const QString &name, const cv::Mat &picture)
    {
        const std::string path = folder.path(name).toStdString();
        if (name.endsWith("ser"))
            folder.write(name, serOf(picture), 0);
        else if (name.endsWith("fits"))
            QCOMPARE(pictures::writeFits(path, picture, taken, 0.0), std::string());
        else
            QVERIFY(cv::imwrite(path, picture));
        folder.date(name, 0);
    }
    cv::Mat original(const Photograph &photograph) const
    {
        return cv::imread(PROJECT_SOURCE_DIR "/../shared/photos/" + std::string(photograph.name) +
                              "_pole.png",
                          cv::IMREAD_GRAYSCALE);
    }
};

void PhotographFilesTest::initTestCase()
{
    for (const Photograph &photograph : photographs)
        if (original(photograph).empty())
            QSKIP("the photographs are not there");
}

void PhotographFilesTest::everyFormat_data()
{
    QTest::addColumn<int>("photograph");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    for (int i = 0; i < 2; ++i)
        for (const char *name : {"a.png", "a.tif", "a.fits", "a.ser", "a.jpg"})
            for (const int type : {CV_8UC1, CV_16UC1, CV_8UC3, CV_16UC3}) {
                const QByteArray suffix = name + 2;
                if ((suffix == "jpg" && type != CV_8UC1 && type != CV_8UC3) ||
                    (suffix == "fits" && CV_MAT_CN(type) == 3))
                    continue; // the format, or the one who writes it, has no such thing
                QTest::newRow(qPrintable(QString("%1 %2, %3 bits, %4 channels")
                                             .arg(photographs[i].name)
                                             .arg(QString(suffix))
                                             .arg(CV_MAT_DEPTH(type) == CV_8U ? 8 : 16)
                                             .arg(CV_MAT_CN(type))))
                    << i << QString(name) << type;
            }
}

void PhotographFilesTest::everyFormat()
{
    QFETCH(int, photograph);
    QFETCH(QString, name);
    QFETCH(int, type);
    const cv::Mat grey = original(photographs[photograph]);
    cv::Mat deep, picture;
    grey.convertTo(deep, CV_MAT_DEPTH(type), CV_MAT_DEPTH(type) == CV_8U ? 1.0 : 257.0);
    cv::merge(std::vector<cv::Mat>(std::size_t(CV_MAT_CN(type)), deep), picture);
    const PictureFolder folder;
    write(folder, name, picture);
    if (name.endsWith("fits"))
        QTest::qWait(400); // files younger than that may still be being written

    RunningCamera running(folder.folder.path());
    const auto frame = running.frame();
    QVERIFY2(frame, qPrintable(running.lines.join("\n")));
    QCOMPARE(frame->pixels.type(), type);
    QCOMPARE(frame->pixels.size(), picture.size());
    const double most = cv::norm(frame->pixels, picture, cv::NORM_INF),
                 mean = cv::norm(frame->pixels, picture, cv::NORM_L1) / double(picture.total()) /
                        picture.channels();
    if (name.endsWith("jpg"))
        QVERIFY2(most <= 12.0 && mean <= 1.0, qPrintable(QString("%1 %2").arg(most).arg(mean)));
    else
        QCOMPARE(most, 0.0);

    const cv::Mat shown = prepared(*frame, framesources::Lens());
    QCOMPARE(shown.type(), CV_8UC1);
    QCOMPARE(shown.size(), cv::Size(1280, 960));
    if (type == CV_8UC1 && !name.endsWith("jpg"))
        QCOMPARE(cv::norm(shown, grey, cv::NORM_INF), 0.0);
    recognition::RecognitionOptions options;
    options.utcSeconds = taken;
    const recognition::Recognition sky = recognition::recognise(
        recognition::extractStars(shown).stars, shown.cols, shown.rows, options);
    QVERIFY2(sky.status == recognition::RecognitionStatus::Recognised,
             recognition::reason(sky).c_str());
    const Photograph &truth = photographs[photograph];
    const double off = std::hypot(sky.pole.x - truth.x, sky.pole.y - truth.y);
    QVERIFY2(off < truth.bound, qPrintable(QString::number(off)));
}

QTEST_GUILESS_MAIN(PhotographFilesTest)
#include "tst_photographfiles.moc"
