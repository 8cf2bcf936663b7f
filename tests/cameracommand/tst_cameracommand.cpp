// SPDX-License-Identifier: MIT
// Does the finished command grab, record and check, from the virtual sky and from files, with the
// exit statuses that its man page gives?
#include <QTemporaryDir>
#include <QtTest>
#include <memory>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "pictures/fitsfile.h"
#include "pictures/picturefile.h"
#include "tests/cameracommand/commandrun.h"
#include "virtualcamera/skyfile.h"

class CameraCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void grabsTheSky_data();
    void grabsTheSky();
    void grabsAMosaic_data();
    void grabsAMosaic();
    void checkOfTheSky();
    void checkWritesTheLens_data();
    void checkWritesTheLens();
    void checkOfACoarseLens_data();
    void checkOfACoarseLens();
    void checkWritesWithoutAReader_data();
    void checkWritesWithoutAReader();
    void checkSaysWhatDoesNotLast();
    void checkFailsWithoutStars();
    void recordsFrames();
    void keepsTheEarlierFile_data();
    void keepsTheEarlierFile();
    void writesIntoAPipe();
    void badCommands_data();
    void badCommands();
    void refusesABadEnvironment_data();
    void refusesABadEnvironment();
    void listNamesWhatIsMissing();

private:
    QString path(const QString &name) const { return folder->filePath(name); }

    void takePhotograph();

    std::unique_ptr<QTemporaryDir> folder;
    cv::Mat photograph;
};

void CameraCommandTest::initTestCase()
{
    init();
    takePhotograph();
}

void CameraCommandTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    qputenv("QUORVANDEL_SKY", path("sky.ini").toUtf8());
    qunsetenv("QUORVANDEL_CAMERA");
    QVERIFY(
        virtualsky::writeAtomically(path("sky.ini").toStdString(), "# mine\n[time]\ndate = now\n"));
}

void CameraCommandTest::grabsTheSky_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("PNG") << "sky.png";
    QTest::newRow("FITS") << "sky.fits";
    QTest::newRow("FITS, short suffix") << "SKY.FIT";
}

void CameraCommandTest::grabsTheSky()
{
    QFETCH(QString, name);
    qputenv("LD_LIBRARY_PATH", MISBEHAVING_FOLDER); // as if the maker's library were installed
    const Result grabbed =
        run({"--camera", "sky", "--exposure", "500", "--gain", "60", "grab", path(name)});
    qunsetenv("LD_LIBRARY_PATH");
    QVERIFY2(grabbed.status == 0, qPrintable(grabbed.errors));
    const PictureFile picture = readPicture(path(name).toStdString());
    QCOMPARE(picture.pixels.size(), cv::Size(1280, 960));
    if (name != "sky.png")
        QVERIFY(std::abs(picture.date.value_or(0.0) - double(time(nullptr))) < 600.0);
    const Result recognised = run({path(name)}, RECOGNISE_PROGRAM);
    QVERIFY2(recognised.status == 0, qPrintable(recognised.output));
}

void CameraCommandTest::grabsAMosaic_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isKnown"); // the pattern
    QTest::newRow("PNG") << "a.png" << true;
    QTest::newRow("FITS") << "a.fits" << true;
    QTest::newRow("FITS, a pattern that is none") << "a.fits" << false;
}

/// A PNG picture is one to look at, FITS has what the sensor saw.
void CameraCommandTest::grabsAMosaic()
{
    QFETCH(QString, name);
    QFETCH(bool, isKnown);
    cv::Mat mosaic(60, 80, CV_16UC1);
    for (int y = 0; y < mosaic.rows; ++y)
        for (int x = 0; x < mosaic.cols; ++x)
            mosaic.at<ushort>(y, x) = ushort(x % 2 == 0 && y % 2 == 0   ? 4000
                                             : x % 2 == 1 && y % 2 == 1 ? 8000
                                                                        : 10000);
    QCOMPARE(pictures::writeFits(path("sensor.fits").toStdString(), mosaic, {}, 0.0,
                                 isKnown ? "RGGB" : "CMYG"),
             std::string());
    QTest::qWait(400); // files younger than that may still be being written
    const Result grabbed = run({"--camera", "files:" + path("sensor.fits"), "grab", path(name)});
    QVERIFY2(grabbed.status == 0, qPrintable(grabbed.errors));
    QCOMPARE(grabbed.output, path(name) + ": 80 x 60 pixels, 16 bits\n");
    const PictureFile picture = readPicture(path(name).toStdString());
    QCOMPARE(picture.pixels.type(), CV_16UC1);
    const bool isRaw = name == "a.fits" && isKnown;
    QCOMPARE(picture.pattern, std::string(isRaw ? "RGGB" : ""));
    QCOMPARE(picture.mosaic, isRaw);
    const cv::Mat grey(60, 80, CV_16UC1, cv::Scalar(8000)); // 4000 / 4 + 10000 / 2 + 8000 / 4
    QCOMPARE(cv::norm(picture.pixels, isRaw ? mosaic : grey, cv::NORM_INF), 0.0);
}

void CameraCommandTest::checkOfTheSky()
{
    const Result checked = run({"--camera", "sky", "--exposure", "500", "--gain", "60", "check"});
    QVERIFY2(checked.status == 0, qPrintable(checked.output + checked.errors));
    const QRegularExpression scale(
        "scale: (30\\.[45]\\d\\d) arcseconds a pixel\nmirrored: false\n");
    QVERIFY2(scale.match(checked.output).hasMatch(), qPrintable(checked.output));
    for (const char *line : {"hemisphere: north\n", "roll: ", "stars: ", "focus: "})
        QVERIFY2(checked.output.contains(line), line);
    // Its values would be taken for those of the next camera by INDI.
    QVERIFY2(checked.output.endsWith(path("sky.ini") +
                                     " is left as it is: scale and mirrored are of no effect on "
                                     "the virtual sky and the maker's camera\n"),
             qPrintable(checked.output));
    QFile file(path("sky.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("# mine\n[time]\ndate = now\n"));
}

/// A camera of 20.3" a pixel that mirrors.
void CameraCommandTest::takePhotograph()
{
    const QString grabbed = path("grabbed.png");
    QCOMPARE(run({"--camera", "sky", "--exposure", "500", "--gain", "60", "grab", grabbed}).status,
             0);
    cv::Mat picture = cv::imread(grabbed.toStdString(), cv::IMREAD_GRAYSCALE);
    cv::resize(picture, picture, cv::Size(), 1.5, 1.5, cv::INTER_CUBIC);
    cv::flip(picture, photograph, 1);
}

void CameraCommandTest::checkWritesTheLens_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("after"); // S stands for the scale; empty: as before
    QTest::addColumn<QString>("said");     // FILE stands for the sky file
    const QByteArray mine = "# mine\n[time]\ndate = now\n",
                     full = "[camera]\n# lens\n  scale=auto # found\nroll = 3\nmirrored = false\n"
                            "[time]\nrunning = true",
                     other = "[camera]\nscale = 12.5\n";
    QTest::newRow("new lines") << mine << QStringList()
                               << mine + "[camera]\nscale = S\nmirrored = true\n"
                               << "FILE, line 5: scale = S (new)\n"
                                  "FILE, line 6: mirrored = true (new)\n";
    QTest::newRow("in their places")
        << full + '\n'
        << QStringList() << QByteArray(full).replace("auto", "S").replace("false", "true") + '\n'
        << "FILE, line 3: scale=S # found (before: scale=auto # found)\n"
           "FILE, line 5: mirrored = true (before: mirrored = false)\n";
    QTest::newRow("left at wish") << mine << QStringList{"--no-write"} << QByteArray()
                                  << "FILE is left as it is: --no-write\n";
    QTest::newRow("another lens stays")
        << other << QStringList() << QByteArray()
        << "FILE is left as it is: it holds the values of another lens than that of these "
           "pictures, scale = 12.500, mirrored = false; check --write replaces them\n";
    QTest::newRow("another lens is replaced")
        << other << QStringList{"--write"} << QByteArray("[camera]\nmirrored = true\nscale = S\n")
        << "FILE, line 3: scale = S (before: scale = 12.5)\n"
           "FILE, line 2: mirrored = true (new)\n";
    const QByteArray half = full; // no line end
    QTest::newRow("half-written")
        << half << QStringList() << QByteArray()
        << "FILE: line 7: the last line has no end: the file is half-written; "
           "nothing is changed\n";
}

void CameraCommandTest::checkWritesTheLens()
{
    QFETCH(QByteArray, before);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, after);
    QFETCH(QString, said);
    const QString sky = path("sky.ini");
    QVERIFY(virtualsky::writeAtomically(sky.toStdString(), before.toStdString()));
    QVERIFY(cv::imwrite(path("a.png").toStdString(), photograph));
    QTest::qWait(400); // files younger than that may still be being written
    const Result checked =
        run(QStringList{"--camera", "files:" + path("a.png"), "check"} + options);
    const QString all = checked.output + checked.errors;
    QRegularExpression number("scale: (20\\.[23]\\d\\d) arcseconds a pixel\nmirrored: true\n");
    const QString scale = number.match(checked.output).captured(1);
    QVERIFY2(!scale.isEmpty(), qPrintable(all));
    const QString wanted =
        QString(said).replace("FILE", sky).replace("= S", "= " + scale).replace("=S", "=" + scale);
    QVERIFY2(all.contains(wanted), qPrintable(all));
    QVERIFY(!checked.output.contains("until you log out"));
    QCOMPARE(checked.status, checked.errors.isEmpty() ? 0 : 1);
    QFile file(sky);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), after.isEmpty() ? before : after.replace("S", scale.toUtf8()));
}

void CameraCommandTest::checkOfACoarseLens_data()
{
    QTest::addColumn<double>("factor"); // the photograph's pixels by the lens'
    QTest::addColumn<bool>("isTooCoarse");
    QTest::newRow("3.9 times the program's scale") << 3.9 * 1.5 << false;
    QTest::newRow("4.2 times the program's scale") << 4.2 * 1.5 << true;
}

void CameraCommandTest::checkOfACoarseLens()
{
    QFETCH(double, factor);
    QFETCH(bool, isTooCoarse);
    cv::Mat picture;
    cv::resize(photograph, picture, cv::Size(), 1.0 / factor, 1.0 / factor, cv::INTER_AREA);
    QVERIFY(cv::imwrite(path("a.png").toStdString(), picture));
    QTest::qWait(400); // files younger than that may still be being written
    const Result checked = run({"--camera", "files:" + path("a.png"), "check", "--no-write"});
    QVERIFY2(checked.status == 0, qPrintable(checked.output + checked.errors));
    QVERIFY2(checked.output.contains("\ntoo coarse for the star templates: frames are enlarged 4 "
                                     "times at most\n") == isTooCoarse,
             qPrintable(checked.output));
}

void CameraCommandTest::checkWritesWithoutAReader_data()
{
    QTest::addColumn<bool>("isNamed"); // the camera; then the maker's library is not used
    QTest::newRow("a camera that is named") << true;
    QTest::newRow("the sky file's camera") << false;
}

/// As in "quorvandel-camera check | head -1".
void CameraCommandTest::checkWritesWithoutAReader()
{
    QFETCH(bool, isNamed);
    const QString text = "[camera]\nsource = files\nfiles = " + path("a.png") + '\n';
    QVERIFY(virtualsky::writeAtomically(path("sky.ini").toStdString(), text.toStdString()));
    QVERIFY(cv::imwrite(path("a.png").toStdString(), photograph));
    QTest::qWait(400); // files younger than that may still be being written
    const auto closeReader = [] {
        int pipe[2];
        if (::pipe(pipe) == 0 && ::dup2(pipe[1], STDOUT_FILENO) >= 0) {
            ::close(pipe[0]);
            ::close(pipe[1]);
        }
    };
    const QStringList camera = {"--camera", "files:" + path("a.png")};
    const Result checked =
        run((isNamed ? camera : QStringList()) + QStringList{"check"}, CAMERA_PROGRAM, closeReader);
    QCOMPARE(checked.errors, QString());
    QCOMPARE(checked.status, 0);
    QFile file(path("sky.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray after = file.readAll();
    QVERIFY2(after.contains("\nscale = 20.") && after.contains("\nmirrored = true"),
             after.constData());
}

void CameraCommandTest::checkSaysWhatDoesNotLast()
{
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", path("session").toUtf8());
    qunsetenv("QUORVANDEL_SKY");
    QVERIFY(cv::imwrite(path("a.png").toStdString(), photograph));
    QTest::qWait(400);
    const Result checked = run({"--camera", "files:" + path("a.png"), "check"});
    qputenv("XDG_RUNTIME_DIR", before);
    QCOMPARE(checked.status, 0);
    QVERIFY2(
        checked.output.contains(path("session/quorvandel/sky.ini") + ", line 2: scale = ") &&
            checked.output.endsWith("\nThis file lasts until you log out: QUORVANDEL_SKY names "
                                    "one that stays.\n"),
        qPrintable(checked.output));
}

void CameraCommandTest::checkFailsWithoutStars()
{
    QVERIFY(cv::imwrite(path("dark.png").toStdString(), cv::Mat(480, 640, CV_8UC1, cv::Scalar(9))));
    QTest::qWait(400);
    const Result checked = run({"--camera", "files:" + path("dark.png"), "check", "--write"});
    QCOMPARE(checked.status, 1);
    QVERIFY2(checked.output.startsWith("not recognised: "), qPrintable(checked.output));
    QFile file(path("sky.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("# mine\n[time]\ndate = now\n"));
}

void CameraCommandTest::recordsFrames()
{
    const Result recorded =
        run({"--camera", "sky", "--exposure", "20", "record", path("night"), "--frames", "3"});
    QVERIFY2(recorded.status == 0, qPrintable(recorded.errors));
    const QStringList files = QDir(path("night")).entryList(QDir::Files);
    QCOMPARE(files, QStringList({"frame-000001.fits", "frame-000002.fits", "frame-000003.fits"}));
    for (const QString &name : files)
        QCOMPARE(readPicture(path("night/" + name).toStdString()).complaint, std::string());
    // Another recording keeps what is there.
    QVERIFY(QFile::remove(path("night/frame-000003.fits")));
    const QDateTime before = QFileInfo(path("night/frame-000002.fits")).lastModified();
    QCOMPARE(run({"--camera", "sky", "record", path("night"), "--frames", "2"}).status, 0);
    QCOMPARE(QFileInfo(path("night/frame-000002.fits")).lastModified(), before);
    QCOMPARE(QDir(path("night")).entryList(QDir::Files).last(), QString("frame-000004.fits"));
}

void CameraCommandTest::keepsTheEarlierFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("name"); // of the file that cannot be written
    QTest::addColumn<QStringList>("left");
    QTest::newRow("PNG") << QStringList{"grab", "a.png"} << "a.png" << QStringList{"a.png"};
    QTest::newRow("FITS") << QStringList{"grab", "a.fits"} << "a.fits" << QStringList{"a.fits"};
    QTest::newRow("a frame of a folder")
        << QStringList{"record", "."} << "./frame-000001.fits" << QStringList();
}

/// As on a full device: no part of a file is left, and the one of before stays.
void CameraCommandTest::keepsTheEarlierFile()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, name);
    QFETCH(QStringList, left);
    QVERIFY(QDir(path(".")).mkdir("target"));
    const auto inTarget = [this](const QString &one) { return path("target/" + one); };
    QVERIFY(left.isEmpty() || virtualsky::writeAtomically(inTarget(name).toStdString(), "before"));
    const auto limitFiles = [] {
        const rlimit few{50000, 50000}; // bytes
        ::setrlimit(RLIMIT_FSIZE, &few);
    };
    const QStringList command = {arguments[0], inTarget(arguments[1])};
    const Result result = run(QStringList{"--camera", "sky", "--exposure", "500"} + command,
                              CAMERA_PROGRAM, limitFiles);
    QCOMPARE(result.errors,
             "quorvandel-camera: " + inTarget(name) + ": it cannot be written: File too large\n");
    QCOMPARE(result.status, 1);
    QCOMPARE(QDir(path("target")).entryList(QDir::Files | QDir::Hidden), left);
    QFile file(inTarget(name));
    QVERIFY(left.isEmpty() || (file.open(QIODevice::ReadOnly) && file.readAll() == "before"));
}

/// Which no other file replaces: its reader would wait for ever.
void CameraCommandTest::writesIntoAPipe()
{
    QCOMPARE(::mkfifo(path("pipe.png").toUtf8(), 0600), 0);
    QProcess reader;
    reader.setStandardOutputFile(path("read.png")); // a pipe to us would be full
    reader.start("cat", {path("pipe.png")});
    QVERIFY(reader.waitForStarted());
    const Result result = run({"--camera", "sky", "--exposure", "500", "grab", path("pipe.png")});
    QVERIFY2(result.status == 0, qPrintable(result.errors));
    QVERIFY(reader.waitForFinished());
    QFile read(path("read.png"));
    QVERIFY(read.open(QIODevice::ReadOnly) && read.readAll().startsWith("\x89PNG"));
    struct stat status = {};
    QCOMPARE(::stat(path("pipe.png").toUtf8(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void CameraCommandTest::badCommands_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("misuse") << QStringList{"--what"} << 2;
    QTest::newRow("suffix") << QStringList{"--camera", "sky", "grab", "a.gif"} << 2;
    QTest::newRow("address") << QStringList{"--camera", "webcam", "check"} << 2;
    QTest::newRow("host") << QStringList{"list", "a b"} << 2;
    QTest::newRow("no folder to write to")
        << QStringList{"--camera", "sky", "grab", "/nowhere/a.png"} << 1;
    QTest::newRow("no folder to record to")
        << QStringList{"--camera", "sky", "record", "/dev/null/x"} << 1;
    QTest::newRow("help") << QStringList{"--help"} << 0;
    QTest::newRow("version") << QStringList{"--version"} << 0;
}

void CameraCommandTest::badCommands()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    const Result result = run(arguments);
    QCOMPARE(result.status, status);
    QCOMPARE(result.errors.isEmpty(), status == 0);
    QVERIFY(status == 0 || result.errors.contains("quorvandel-camera: "));
}

void CameraCommandTest::refusesABadEnvironment_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QByteArray>("address"); // in the environment
    QTest::addColumn<bool>("refused");
    for (const char *source : {"sky", "files", "indi"})
        QTest::addRow("%s, no address", source) << QString(source) << QByteArray("webcam") << true;
    QTest::newRow("files, half of one") << QString("files") << QByteArray("indi://") << true;
    QTest::newRow("files, empty") << QString("files") << QByteArray("") << false;
}

/// As the programs do, whatever the sky file names; an empty variable is none.
void CameraCommandTest::refusesABadEnvironment()
{
    QFETCH(QString, source);
    QFETCH(QByteArray, address);
    QFETCH(bool, refused);
    QVERIFY(cv::imwrite(path("a.png").toStdString(), photograph));
    QTest::qWait(400); // files younger than that may still be being written
    QVERIFY(virtualsky::writeAtomically(
        path("sky.ini").toStdString(),
        QString("[camera]\nsource = %1\nfiles = %2\nindi = 127.0.0.1:1/CCD\n")
            .arg(source, path("a.png"))
            .toStdString()));
    qputenv("QUORVANDEL_CAMERA", address);
    const Result grabbed = run({"grab", path("b.png")});
    qunsetenv("QUORVANDEL_CAMERA");
    QCOMPARE(grabbed.status, refused ? 1 : 0);
    QCOMPARE(QFile::exists(path("b.png")), !refused);
    QVERIFY2(grabbed.errors.contains("QUORVANDEL_CAMERA: must be ") == refused &&
                 grabbed.errors.contains("; there is no camera\n") == refused,
             qPrintable(grabbed.errors));
}

void CameraCommandTest::listNamesWhatIsMissing()
{
    const Result listed = run({"list", "127.0.0.1:1"});
    QCOMPARE(listed.status, 1);
    QVERIFY2(listed.output.contains("maker's library: "), qPrintable(listed.output));
    QVERIFY2(listed.output.contains("INDI on 127.0.0.1:1: "), qPrintable(listed.output));
}

QTEST_GUILESS_MAIN(CameraCommandTest)
#include "tst_cameracommand.moc"
