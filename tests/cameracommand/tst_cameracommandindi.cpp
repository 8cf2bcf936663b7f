// SPDX-License-Identifier: MIT
// Does the finished command list, grab, record and check on a living INDI server with Debian's
// drivers?
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <ctime>

#include "framesources/preparation.h"
#include "pictures/picturefile.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "tests/cameracommand/commandrun.h"
#include "tests/indi/indiserver.h"
#include "virtualcamera/skyfile.h"

namespace
{
constexpr char mine[] = "# mine\n[camera]\nstream = false # stars of one pixel\nsoften = true\n";

/// The scale of a grabbed frame; 0 = its stars are not recognised.
double scaleOf(const cv::Mat &pixels)
{
    const cv::Mat frame = framesources::softened(pixels);
    recognition::RecognitionOptions options;
    options.utcSeconds = double(std::time(nullptr));
    const recognition::Recognition sky = recognition::recognise(
        recognition::extractStars(frame).stars, frame.cols, frame.rows, options);
    return sky.status == recognition::RecognitionStatus::Recognised ? sky.scale : 0.0;
}
} // namespace

class CameraCommandIndiTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void grabs_data();
    void grabs();
    void records();
    void checkWritesTheLens();
    void checkSoftensStarsOfOnePixel();
    void otherDeviceIsNamed();
    void listsTheDevices();
    void listOfAServerThatDoesNotAnswer();
    void listWithoutAServer();

private:
    QString host() const { return QStringLiteral("127.0.0.1:%1").arg(server.port); }
    QStringList camera(const QString &device = simulatedCamera) const
    {
        return {"--camera", "indi://" + host() + '/' + device, "--exposure", "500"};
    }
    QString path(const QString &name) const { return folder.filePath(name); }

    const QTemporaryDir folder;
    IndiServer server;
};

/// One camera, a device that is no camera, and one whose cable is not there.
void CameraCommandIndiTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
    QVERIFY(server.start({"indi_simulator_ccd", "indi_simulator_wheel", "indi_lx200basic"}));
    QVERIFY(server.set(SimulatedSensor()));
}

void CameraCommandIndiTest::init()
{
    qputenv("QUORVANDEL_SKY", path("sky.ini").toUtf8());
    qunsetenv("QUORVANDEL_CAMERA");
    QVERIFY(virtualsky::writeAtomically(path("sky.ini").toStdString(), mine));
}

void CameraCommandIndiTest::grabs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("PNG") << "a.png";
    QTest::newRow("FITS") << "a.fits";
}

void CameraCommandIndiTest::grabs()
{
    QFETCH(QString, name);
    const Result grabbed = run(camera() + QStringList{"grab", path(name)});
    QVERIFY2(grabbed.status == 0, qPrintable(grabbed.errors));
    QCOMPARE(grabbed.output, path(name) + ": 1280 x 960 pixels, 16 bits\n");
    const PictureFile picture = readPicture(path(name).toStdString());
    QCOMPARE(picture.pixels.type(), CV_16UC1);
    QCOMPARE(picture.pixels.size(), cv::Size(1280, 960));
    const double scale = scaleOf(picture.pixels);
    QVERIFY2(std::abs(scale - 30.45) < 0.1, qPrintable(QString::number(scale)));
    if (name == "a.fits")
        QVERIFY(std::abs(picture.date.value_or(0.0) - double(std::time(nullptr))) < 600.0);
}

void CameraCommandIndiTest::records()
{
    const Result recorded = run(camera() + QStringList{"record", path("night"), "--frames", "3"});
    QVERIFY2(recorded.status == 0, qPrintable(recorded.errors));
    const QDir night(path("night"));
    QCOMPARE(night.entryList(QDir::Files),
             QStringList({"frame-000001.fits", "frame-000002.fits", "frame-000003.fits"}));
    std::vector<PictureFile> frames;
    for (const QString &name : night.entryList(QDir::Files)) {
        frames.push_back(readPicture(night.filePath(name).toStdString()));
        QCOMPARE(frames.back().pixels.size(), cv::Size(1280, 960));
    }
    // One exposure after the other, each with a noise of its own.
    for (std::size_t i = 1; i < frames.size(); ++i) {
        QVERIFY(frames[i].date.value_or(0.0) > frames[i - 1].date.value_or(1e18));
        QVERIFY(cv::norm(frames[i].pixels, frames[i - 1].pixels, cv::NORM_INF) > 0.0);
    }
}

void CameraCommandIndiTest::checkWritesTheLens()
{
    const Result checked = run(camera() + QStringList{"check"});
    QVERIFY2(checked.status == 0, qPrintable(checked.output + checked.errors));
    const QRegularExpression said("scale: (30\\.[45]\\d\\d) arcseconds a pixel\n"
                                  "mirrored: false\nroll: .* degrees\nhemisphere: north\n"
                                  "pole: .*\nstars: .*\nfocus: .*\n.*soften = true\n"
                                  ".*, line 3: scale = (.*) \\(new\\)\n"
                                  ".*, line 4: mirrored = false \\(new\\)\n"
                                  ".*, line 6: soften = true \\(as before\\)\n$");
    const QRegularExpressionMatch match = said.match(checked.output);
    QVERIFY2(match.hasMatch(), qPrintable(checked.output));
    QCOMPARE(match.captured(1), match.captured(2));
    QFile file(path("sky.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString(file.readAll()),
             QString(mine).replace("[camera]\n", "[camera]\nscale = " + match.captured(1) +
                                                     "\nmirrored = false\n"));
    // Another lens: its values replace the first ones, since this is the camera.
    QVERIFY(server.set({1280, 960, 20.0}));
    const QString again = run(camera() + QStringList{"check"}).output;
    const QRegularExpression replaced(", line 3: scale = ([\\d.]+) \\(before: scale = " +
                                      QRegularExpression::escape(match.captured(1)) + "\\)\n");
    const double scale = replaced.match(again).captured(1).toDouble();
    QVERIFY2(std::abs(scale - 20.0) < 0.05, qPrintable(again));
    QVERIFY(server.set(SimulatedSensor()));
}

void CameraCommandIndiTest::checkSoftensStarsOfOnePixel()
{
    QVERIFY(
        virtualsky::writeAtomically(path("sky.ini").toStdString(), "[camera]\nstream = false\n"));
    const Result checked = run(camera() + QStringList{"check"});
    QVERIFY2(checked.status == 0, qPrintable(checked.output + checked.errors));
    QVERIFY2(checked.output.contains("soften = true (new)\n"), qPrintable(checked.output));
    QFile file(path("sky.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\nsoften = true\n"));
}

void CameraCommandIndiTest::otherDeviceIsNamed()
{
    QElapsedTimer timer;
    timer.start();
    const Result grabbed = run(camera("Another") + QStringList{"grab", path("none.png")});
    QCOMPARE(grabbed.status, 1);
    QVERIFY2(grabbed.errors.contains("has no device of this name; it has: ") &&
                 grabbed.errors.contains(simulatedCamera) &&
                 grabbed.errors.endsWith("no frame came\n"),
             qPrintable(grabbed.errors));
    QVERIFY(!QFile::exists(path("none.png")));
    QVERIFY(timer.elapsed() < 25000);
}

void CameraCommandIndiTest::listsTheDevices()
{
    const Result listed = run({"list", host()});
    QCOMPARE(listed.status, 0);
    const QStringList lines = listed.output.split('\n', Qt::SkipEmptyParts);
    QVERIFY2(lines[0].startsWith("maker's library: "), qPrintable(listed.output));
    const QString address = "indi://" + host() + '/';
    const auto lineOf = [&](const QString &device) {
        const QStringList found = lines.filter(address + device + ": ");
        return found.size() == 1 ? found[0].mid((address + device + ": ").size()) : QString();
    };
    QVERIFY2(lines.size() == 4, qPrintable(listed.output));
    QCOMPARE(lineOf(simulatedCamera), QString("a camera with video"));
    QCOMPARE(lineOf("Filter Simulator"), QString("no camera"));
    const QString broken = lineOf("LX200 Basic");
    QVERIFY2(broken.startsWith("it does not connect: ") && broken.contains("/dev/ttyUSB0"),
             qPrintable(listed.output));
    // Devices are left as they were.
    const auto client = server.client("Filter Simulator");
    QVERIFY(client);
    QTRY_COMPARE(client->isOn("CONNECTION", "CONNECT").value_or(true), false);
}

void CameraCommandIndiTest::listOfAServerThatDoesNotAnswer()
{
    server.signal(SIGSTOP);
    const Result listed = run({"list", host()});
    server.signal(SIGCONT);
    QCOMPARE(listed.status, 1);
    QVERIFY2(listed.output.contains("INDI on " + host() + ": the server has no devices\n"),
             qPrintable(listed.output));
}

void CameraCommandIndiTest::listWithoutAServer()
{
    const quint16 port = IndiServer::freePort();
    const Result listed = run({"list", QStringLiteral("127.0.0.1:%1").arg(port)});
    QCOMPARE(listed.status, 1);
    QVERIFY2(listed.output.contains(
                 QStringLiteral("INDI on 127.0.0.1:%1: there is no server at port %1\n").arg(port)),
             qPrintable(listed.output));
}

QTEST_GUILESS_MAIN(CameraCommandIndiTest)
#include "tst_cameracommandindi.moc"
