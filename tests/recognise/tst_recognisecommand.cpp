// SPDX-License-Identifier: MIT
// Does the command recognise pictures of every format, draw them, and end with the right status?
#include "bench/recognition/randomsky.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <opencv2/imgcodecs.hpp>

#include "pictures/fitsfile.h"

namespace
{
constexpr double dateOfSky = 2209032000.0; // 2040: the pole is minutes of arc off that of today

struct Outcome {
    int status = -1;
    QByteArray output, errors;
    QJsonObject object(int line = 0) const
    {
        return QJsonDocument::fromJson(output.split('\n').value(line)).object();
    }
};

Outcome run(const QStringList &arguments)
{
    QProcess process;
    process.start(RECOGNISE_PROGRAM, arguments);
    Outcome out;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        out.status = process.exitCode();
    out.output = process.readAllStandardOutput();
    out.errors = process.readAllStandardError();
    return out;
}

RandomSky sky(bool south)
{
    RandomSky out = plainSky(77, south, 2040);
    out.state.date = dateOfSky;
    out.state.boltAltitude = 0.5;
    out.state.boltAzimuth = -0.5;
    out.state.axisX = 100.0;
    out.state.axisY = 60.0;
    return out;
}

const QString date = QStringLiteral("2040-01-01T12:00:00Z");

QByteArray bytesOf(unsigned value, int count)
{
    QByteArray out;
    for (int i = 0; i < count; ++i)
        out += char(value >> (8 * i));
    return out;
}

/// A JPEG with EXIF's orientation and date, after CIPA DC-008; low bytes first.
bool writeWithExif(const QString &path, const cv::Mat &pixels, unsigned orientation,
                   const QByteArray &taken)
{
    std::vector<unsigned char> jpeg;
    if (!cv::imencode(".jpg", pixels, jpeg, {cv::IMWRITE_JPEG_QUALITY, 95}))
        return false;
    constexpr unsigned directory = 8, entries = 2, heap = directory + 2 + 12 * entries + 4;
    QByteArray exif = "Exif";
    exif += QByteArray(2, '\0') + "II" + bytesOf(42, 2) + bytesOf(directory, 4);
    exif += bytesOf(entries, 2);
    exif += bytesOf(0x0112, 2) + bytesOf(3, 2) + bytesOf(1, 4) + bytesOf(orientation, 4);
    exif += bytesOf(0x0132, 2) + bytesOf(2, 2) + bytesOf(unsigned(taken.size()) + 1, 4) +
            bytesOf(heap, 4);
    exif += bytesOf(0, 4) + taken + '\0';
    QByteArray file(reinterpret_cast<const char *>(jpeg.data()), int(jpeg.size()));
    const int length = exif.size() + 2;
    file.insert(2, QByteArray("\xff\xe1") + char(length >> 8) + char(length & 255) + exif);
    QFile out(path);
    return out.open(QIODevice::WriteOnly) && out.write(file) == file.size();
}

double distanceToTruth(const QJsonObject &found, const RandomSky &of)
{
    const virtualsky::Point pole = truthOf(of).pole.value();
    return std::hypot(found["pole_x"].toDouble(1e6) - pole.x,
                      found["pole_y"].toDouble(1e6) - pole.y) *
           virtualsky::pixelScale;
}
} // namespace

class RecogniseCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formats_data();
    void formats();
    void sentences();
    void theDateMatters_data();
    void theDateMatters();
    void pixelsAreThoseThatAreStored();
    void scaleAndHemisphereNarrowTheSearch_data();
    void scaleAndHemisphereNarrowTheSearch();
    void oneBadPictureStopsNothing();
    void statusOfMisuse();
    void helpNamesEveryOption();
    void pictureIsDrawn();
    void pictureThatCannotBeWritten();
    void photographs_data();
    void photographs();

private:
    QTemporaryDir scratch;
    QString place(const QString &name) const { return scratch.filePath(name); }
};

void RecogniseCommandTest::initTestCase()
{
    QVERIFY(scratch.isValid());
    SkyPainter painter;
    const cv::Mat north = painter.frameOf(sky(false)).clone();
    const cv::Mat south = painter.frameOf(sky(true)).clone();
    cv::Mat deep, colour, mirrored;
    north.convertTo(deep, CV_16U, 200.0, 1000.0);
    const cv::Mat planes[] = {north, north, north};
    cv::merge(planes, 3, colour);
    cv::flip(north, mirrored, 1);
    const std::pair<const char *, const cv::Mat &> files[] = {
        {"north.png", north},       {"north16.png", deep},  {"north.tif", north},
        {"north16.tif", deep},      {"colour.jpg", colour}, {"colour.png", colour},
        {"mirrored.png", mirrored}, {"south.png", south}};
    for (const auto &[name, pixels] : files)
        QVERIFY(cv::imwrite(place(name).toStdString(), pixels));
    QVERIFY(writeWithExif(place("dated.jpg"), north, 1, "2040:01:01 12:00:00"));
    QVERIFY(writeWithExif(place("turned.jpg"), north, 6, "2040:01:01 12:00:00"));
    for (const auto &[name, pixels] :
         {std::pair("north.fits", north), std::pair("deep.fits", deep)})
        QCOMPARE(pictures::writeFits(place(name).toStdString(), pixels, dateOfSky, 0.5),
                 std::string());
    QVERIFY(
        cv::imwrite(place("black.png").toStdString(), cv::Mat(480, 640, CV_8UC1, cv::Scalar(0))));
}

void RecogniseCommandTest::formats_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("most"); // arcseconds
    for (const char *name : {"north.png", "north16.png", "north.tif", "north16.tif", "colour.png",
                             "north.fits", "deep.fits"})
        QTest::newRow(name) << false << 3.0;
    QTest::newRow("colour.jpg") << false << 6.0; // compression costs something
    QTest::newRow("south.png") << true << 3.0;
}

void RecogniseCommandTest::formats()
{
    QFETCH(bool, south);
    QFETCH(double, most);
    const Outcome found = run({"--json", "--date", date, place(QTest::currentDataTag())});
    QCOMPARE(found.status, 0);
    QVERIFY2(found.errors.isEmpty(), found.errors.constData());
    const QJsonObject object = found.object();
    QCOMPARE(object["file"].toString(), place(QTest::currentDataTag()));
    QCOMPARE(object["recognised"], QJsonValue(true));
    QCOMPARE(object["hemisphere"].toString(), QString(south ? "south" : "north"));
    QCOMPARE(object["mirrored"], QJsonValue(false));
    const double off = distanceToTruth(object, sky(south));
    QVERIFY2(off < most, qPrintable(QString::number(off)));
    QVERIFY(std::abs(object["scale_arcsec"].toDouble() - virtualsky::pixelScale) < 0.05);
    QVERIFY(object["matched"].toInt() >= 20);
    QVERIFY(object["extracted"].toInt() >= object["matched"].toInt());
    QVERIFY(object["rms_arcsec"].toDouble() < 15.0);
    QVERIFY(object["seconds"].toDouble() > 0.0);
}

void RecogniseCommandTest::sentences()
{
    const Outcome found = run({"--date", date, place("north.png"), place("black.png")});
    QCOMPARE(found.status, 1);
    const QList<QByteArray> lines = found.output.split('\n');
    QCOMPARE(lines.size(), 3); // and what follows the last line's end
    QVERIFY2(lines[0].contains("north.png: the north pole is at "), lines[0].constData());
    QVERIFY2(lines[1].contains("black.png: not recognised. The picture is black"),
             lines[1].constData());
}

void RecogniseCommandTest::theDateMatters_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("right"); // the date of the sky
    const QStringList none, then = {"--date", date}, other = {"--date", "2026-11-20"};
    QTest::newRow("as told") << "north.png" << then << true;
    QTest::newRow("now") << "north.png" << none << false;
    QTest::newRow("of the JPEG file") << "dated.jpg" << none << true;
    QTest::newRow("of the FITS file") << "north.fits" << none << true;
    QTest::newRow("as told, not of the JPEG file") << "dated.jpg" << other << false;
    QTest::newRow("as told, not of the FITS file") << "north.fits" << other << false;
}

// The sky of 2040: the pole of another date is minutes of arc away.
void RecogniseCommandTest::theDateMatters()
{
    QFETCH(QString, file);
    QFETCH(QStringList, options);
    QFETCH(bool, right);
    const QJsonObject found =
        run(QStringList{"--json"} + options + QStringList{place(file)}).object();
    QCOMPARE(found["recognised"], QJsonValue(true));
    const double off = distanceToTruth(found, sky(false));
    QVERIFY2(right ? off < 6.0 : off > 60.0, qPrintable(QString::number(off)));
}

// EXIF says that the picture is to be shown turned by a quarter: neither the pole's pixel nor the
// picture that is drawn heed that.
void RecogniseCommandTest::pixelsAreThoseThatAreStored()
{
    const QString drawn = place("turned_drawn.png");
    const QJsonObject found = run({"--json", "--picture", drawn, place("turned.jpg")}).object();
    QCOMPARE(found["recognised"], QJsonValue(true));
    const double off = distanceToTruth(found, sky(false));
    QVERIFY2(off < 6.0, qPrintable(QString::number(off)));
    QCOMPARE(cv::imread(drawn.toStdString()).size(), cv::Size(1280, 960));
}

void RecogniseCommandTest::scaleAndHemisphereNarrowTheSearch_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    QTest::newRow("right scale") << QStringList{"--scale", "29", "32"} << 0;
    QTest::newRow("one scale") << QStringList{"--scale", "30.45", "30.45"} << 0;
    QTest::newRow("widest scale") << QStringList{"--scale", "0.01", "600"} << 0;
    QTest::newRow("scale one percent off") << QStringList{"--scale", "20", "30.2"} << 0;
    QTest::newRow("scale too small") << QStringList{"--scale", "20", "30"} << 1;
    QTest::newRow("wrong scale") << QStringList{"--scale", "4", "12"} << 1;
    QTest::newRow("right pole") << QStringList{"--hemisphere", "north"} << 0;
    QTest::newRow("wrong pole") << QStringList{"--hemisphere", "south"} << 1;
}

void RecogniseCommandTest::scaleAndHemisphereNarrowTheSearch()
{
    QFETCH(QStringList, options);
    QFETCH(int, status);
    const Outcome found =
        run(QStringList{"--json", "--date", date} + options + QStringList{place("north.png")});
    QCOMPARE(found.status, status);
    QCOMPARE(found.object()["recognised"], QJsonValue(status == 0));
}

void RecogniseCommandTest::oneBadPictureStopsNothing()
{
    const QString absent = place("absent.png");
    const Outcome found =
        run({"--json", "--date", date, absent, place("mirrored.png"), place("black.png")});
    QCOMPARE(found.status, 1);
    QVERIFY(found.errors.contains("absent.png: It cannot be read"));
    QCOMPARE(found.errors.count('\n'), 1);
    QCOMPARE(found.output.count('\n'), 3);
    QCOMPARE(found.object(0)["recognised"], QJsonValue(false));
    QVERIFY(found.object(0)["reason"].toString().contains("cannot be read"));
    QCOMPARE(found.object(1)["mirrored"], QJsonValue(true));
    QVERIFY(found.object(2)["reason"].toString().contains("black"));
}

void RecogniseCommandTest::statusOfMisuse()
{
    const Outcome found = run({"--frob"});
    QCOMPARE(found.status, 2);
    QVERIFY(found.output.isEmpty());
    QVERIFY(found.errors.startsWith("quorvandel-recognise: There is no option --frob."));
}

void RecogniseCommandTest::helpNamesEveryOption()
{
    const Outcome found = run({"--help"});
    QCOMPARE(found.status, 0);
    QFile page(PROJECT_SOURCE_DIR "/packaging/man/quorvandel-recognise.1");
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QByteArray manual = page.readAll().replace("\\-", "-");
    for (const char *option :
         {"--date", "--hemisphere", "--scale", "--json", "--picture", "--help", "--version"}) {
        QVERIFY2(found.output.contains(option), option);
        QVERIFY2(manual.contains(option), option);
    }
    QVERIFY(run({"--version"}).output.startsWith("quorvandel-recognise "));
}

void RecogniseCommandTest::pictureIsDrawn()
{
    const QString drawn = place("drawn.png");
    const Outcome found = run({"--json", "--date", date, "--picture", drawn, place("north.png")});
    QCOMPARE(found.status, 0);
    const cv::Mat picture = cv::imread(drawn.toStdString());
    QCOMPARE(picture.size(), cv::Size(1280, 960));
    // The cross's arms are red, and rings are green.
    const QJsonObject object = found.object();
    const int x = int(std::lround(object["pole_x"].toDouble()));
    const int y = int(std::lround(object["pole_y"].toDouble()));
    for (const auto &[right, down] : {std::pair(12, 0), {-12, 0}, {0, 12}, {0, -12}}) {
        const cv::Vec3b arm = picture.at<cv::Vec3b>(y + down, x + right);
        QVERIFY2(arm[2] > 180 && arm[1] < 120 && arm[0] < 120,
                 qPrintable(QString("%1, %2").arg(right).arg(down)));
    }
    int green = 0;
    for (int j = 0; j < picture.rows; ++j)
        for (int i = 0; i < picture.cols; ++i) {
            const cv::Vec3b pixel = picture.at<cv::Vec3b>(j, i);
            green += pixel[1] > 180 && pixel[0] < 120 && pixel[2] < 120;
        }
    QVERIFY2(green > 20 * object["matched"].toInt(), qPrintable(QString::number(green)));
}

void RecogniseCommandTest::pictureThatCannotBeWritten()
{
    for (const char *name : {"absent/drawn.png", "drawn.unknown"}) {
        const Outcome found = run({"--date", date, "--picture", place(name), place("north.png")});
        QCOMPARE(found.status, 1);
        QVERIFY2(found.errors.contains("cannot be written"), name);
    }
}

void RecogniseCommandTest::photographs_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("most"); // pixels
    // An independent plate solution, with annual aberration.
    QTest::newRow("north") << 340.56 << 277.23 << 1.0;
    QTest::newRow("south") << 764.32 << 333.89 << 0.6;
}

void RecogniseCommandTest::photographs()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, most);
    const QString file = QStringLiteral(PROJECT_SOURCE_DIR "/../shared/photos/%1_pole.png")
                             .arg(QTest::currentDataTag());
    if (!QFile::exists(file))
        QSKIP("the photographs are not there");
    const Outcome found = run({"--json", "--date", "2014-12-15", file});
    QCOMPARE(found.status, 0);
    const QJsonObject object = found.object();
    QCOMPARE(object["hemisphere"].toString(), QString(QTest::currentDataTag()));
    const double off = std::hypot(object["pole_x"].toDouble() - x, object["pole_y"].toDouble() - y);
    QVERIFY2(off < most, qPrintable(QString::number(off)));
}

QTEST_GUILESS_MAIN(RecogniseCommandTest)
#include "tst_recognisecommand.moc"
