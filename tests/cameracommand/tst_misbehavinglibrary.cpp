// SPDX-License-Identifier: MIT
// Does each command outlive a maker's library that crashes, ends the process or hangs, and name the
// call?
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <map>
#include <memory>
#include <unistd.h>

#include "pictures/picturefile.h"
#include "tests/cameracommand/commandrun.h"

namespace
{
/// Whether nobody but its parent may still have it.
bool hasEnded(const QByteArray &process)
{
    QFile file("/proc/" + process + "/stat");
    return !file.open(QIODevice::ReadOnly) || file.readAll().contains(") Z ");
}
} // namespace

class MisbehavingLibraryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void listOutlivesTheMakersLibrary_data();
    void listOutlivesTheMakersLibrary();
    void commandsOutliveTheMakersLibrary_data();
    void commandsOutliveTheMakersLibrary();
    void refusedCamerasAreClosedOnce_data();
    void refusedCamerasAreClosedOnce();
    void framesOfOtherSizesAreLeftOut_data();
    void framesOfOtherSizesAreLeftOut();
    void commandsLeaveAHangingLibrary_data();
    void commandsLeaveAHangingLibrary();
    void endsAtAnInterrupt_data();
    void endsAtAnInterrupt();
    void cleanupTestCase() { hanging.clear(); }

private:
    static QStringList targeted(const QString &command, const QString &target)
    {
        return command == "check" ? QStringList{command} : QStringList{command, target};
    }
    void startHanging();
    static Result runWith(const QString &way, const QStringList &arguments);
    QString path(const QString &name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    QTemporaryDir hangingFolder;
    std::map<QString, std::unique_ptr<QProcess>> hanging; // by command
};

void MisbehavingLibraryTest::initTestCase()
{
    init();
    startHanging();
}

void MisbehavingLibraryTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    qputenv("QUORVANDEL_SKY", path("sky.ini").toUtf8());
    qunsetenv("QUORVANDEL_CAMERA");
}

Result MisbehavingLibraryTest::runWith(const QString &way, const QStringList &arguments)
{
    qputenv("LD_LIBRARY_PATH", MISBEHAVING_FOLDER);
    qputenv("MISBEHAVING_SDK", way.toUtf8());
    const Result result = run(arguments);
    qunsetenv("MISBEHAVING_SDK");
    qunsetenv("LD_LIBRARY_PATH");
    return result;
}

void MisbehavingLibraryTest::listOutlivesTheMakersLibrary_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("status");
    const auto row = [](const char *way, const QString &line, int status = 1) {
        QTest::newRow(way) << QString(way) << line << status;
    };
    row("well", "QUORVANDEL-0815", 0);
    const QString unusable = "it is there and cannot be used: ";
    row("abort", unusable + "it crashes as it is loaded: Aborted");
    row("crashes in InitVELDIXResource",
        unusable + "it crashes in InitVELDIXResource: Segmentation fault");
    row("crashes in ScanVELDIX", unusable + "it crashes in ScanVELDIX: Segmentation fault");
    row("aborts in ScanVELDIX", unusable + "it crashes in ScanVELDIX: Aborted");
    row("crashes in GetVELDIXId", unusable + "it crashes in GetVELDIXId: Segmentation fault");
    row("ends in ScanVELDIX", unusable + "it ends its process in ScanVELDIX, with status 3");
    row("does not start", "it is there and cannot be used: it does not start");
    row("throws at the start", "it is there and cannot be used: it threw an exception: no bus");
    row("throws a number",
        "it is there and cannot be used: it threw an exception: no std::exception");
    row("throws for an ID", "it is there and cannot be used: it threw an exception: no answer");
    row("no ID", "a camera without an ID");
    row("long ID", "a camera that cannot be used: its ID of 5000 characters is too long");
    row("too many", "QUORVANDEL-0815", 0);
}

void MisbehavingLibraryTest::listOutlivesTheMakersLibrary()
{
    QFETCH(QString, way);
    QFETCH(QString, line);
    QFETCH(int, status);
    const Result listed = runWith(way, {"list", "127.0.0.1:1"});
    const Result grabbed = runWith(way, {"grab", path("a.png")});
    QVERIFY2(listed.output.startsWith("maker's library: " + line + '\n'),
             qPrintable(listed.output));
    QCOMPARE(listed.status, status);
    QVERIFY2(grabbed.status == status, qPrintable(grabbed.errors));
}

void MisbehavingLibraryTest::commandsOutliveTheMakersLibrary_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *command, const char *way, const char *fault) {
        QTest::addRow("%s, %s", command, way) << QString(command) << QString(way) << QString(fault);
    };
    for (const char *call : {"InitVELDIXResource", "ScanVELDIX", "GetVELDIXId", "OpenVELDIX",
                             "InitVELDIX", "BeginVELDIXLive", "GetVELDIXLiveFrame", "CloseVELDIX"})
        row("grab", ("crashes in " + QByteArray(call)).constData(),
            ("it crashes in " + QByteArray(call) + ": Segmentation fault").constData());
    row("record", "crashes in OpenVELDIX", "it crashes in OpenVELDIX: Segmentation fault");
    row("check", "crashes in OpenVELDIX", "it crashes in OpenVELDIX: Segmentation fault");
    row("record", "aborts in ScanVELDIX", "it crashes in ScanVELDIX: Aborted");
    row("check", "ends in InitVELDIXResource",
        "it ends its process in InitVELDIXResource, with status 3");
    row("grab", "ends in OpenVELDIX", "it ends its process in OpenVELDIX, with status 3");
    row("grab", "crashes at the end", "");
}

/// In words that name the call. What the library does as it is unloaded harms nobody.
void MisbehavingLibraryTest::commandsOutliveTheMakersLibrary()
{
    QFETCH(QString, command);
    QFETCH(QString, way);
    QFETCH(QString, fault);
    const Result result = runWith(way, targeted(command, path("a.png")));
    QCOMPARE(result.status, fault.isEmpty() ? 0 : 1);
    const QString line = "quorvandel-camera: the camera library cannot be used: " + fault + '\n';
    QVERIFY2(fault.isEmpty() || result.errors.endsWith(line), qPrintable(result.errors));
    QVERIFY(!fault.isEmpty() || QFile::exists(path("a.png")));
}

void MisbehavingLibraryTest::refusedCamerasAreClosedOnce_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call :
         {"SetVELDIXReadMode", "SetVELDIXStreamMode", "InitVELDIX", "SetVELDIXBitsMode",
          "SetVELDIXBinMode", "SetVELDIXResolution", "BeginVELDIXLive"})
        QTest::newRow(call) << QString(call);
}

void MisbehavingLibraryTest::refusedCamerasAreClosedOnce()
{
    QFETCH(QString, call);
    const Result result = runWith("refuses " + call, {"grab", path("a.png")});
    QCOMPARE(result.status, 1);
    QVERIFY2(
        result.errors.endsWith("quorvandel-camera: there is no camera, or it cannot be opened\n"),
        qPrintable(result.errors));
}

void MisbehavingLibraryTest::framesOfOtherSizesAreLeftOut_data()
{
    QTest::addColumn<QString>("frame");
    for (const char *frame : {"0 x 960, 1", "1280 x 0, 1", "1281 x 960, 1", "1280 x 961, 1",
                              "1280 x 960, 0", "1280 x 960, 2", "1280 x 960, 4"})
        QTest::newRow(frame) << QString(frame);
}

void MisbehavingLibraryTest::framesOfOtherSizesAreLeftOut()
{
    QFETCH(QString, frame);
    const Result result = runWith("first says " + frame, {"grab", path("a.png")});
    QVERIFY2(result.status == 0, qPrintable(result.errors));
    QCOMPARE(result.output, path("a.png") + ": 1280 x 960 pixels, 8 bits\n");
}

/// One for each command; they wait for ten seconds while the other tests run.
void MisbehavingLibraryTest::startHanging()
{
    const char *const calls[] = {"ScanVELDIX", "InitVELDIXResource", "BeginVELDIXLive"};
    int number = 0;
    for (const char *command : {"grab", "record", "check"}) {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_LIBRARY_PATH", MISBEHAVING_FOLDER);
        environment.insert("MISBEHAVING_SDK", QString("hangs in ") + calls[number++]);
        process->setProcessEnvironment(environment);
        process->start(CAMERA_PROGRAM, targeted(command, hangingFolder.filePath("a.png")));
        hanging[command] = std::move(process);
    }
}

void MisbehavingLibraryTest::commandsLeaveAHangingLibrary_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("call");
    QTest::newRow("grab") << "grab"
                          << "ScanVELDIX";
    QTest::newRow("record") << "record"
                            << "InitVELDIXResource";
    QTest::newRow("check") << "check"
                           << "BeginVELDIXLive";
}

void MisbehavingLibraryTest::commandsLeaveAHangingLibrary()
{
    QFETCH(QString, command);
    QFETCH(QString, call);
    QProcess &process = *hanging.at(command);
    QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    const QString line = "quorvandel-camera: the camera library cannot be used: it does not "
                         "return within 10 seconds in " +
                         call + '\n';
    QVERIFY2(errors.endsWith(line.toUtf8()), errors.constData());
}

void MisbehavingLibraryTest::endsAtAnInterrupt_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("hasFrames");
    QTest::newRow("while frames are written") << "well" << true;
    QTest::newRow("in a call that hangs") << "hangs in GetVELDIXLiveFrame" << false;
}

/// By the keyboard, which signals to the command and its child at once.
void MisbehavingLibraryTest::endsAtAnInterrupt()
{
    QFETCH(QString, way);
    QFETCH(bool, hasFrames);
    PreparedProcess process;
    process.prepare = [] { ::setpgid(0, 0); };
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", MISBEHAVING_FOLDER);
    environment.insert("MISBEHAVING_SDK", way);
    process.setProcessEnvironment(environment);
    process.start(CAMERA_PROGRAM, {"record", path("night"), "--frames", "1000"});
    const QDir night(path("night"));
    const auto files = [&night] { return night.entryList(QDir::Files | QDir::Hidden); };
    QTRY_VERIFY_WITH_TIMEOUT(hasFrames ? files().size() > 2 : night.exists(), 60000);
    const auto group = pid_t(process.processId());
    QFile children(QString("/proc/%1/task/%1/children").arg(group));
    QVERIFY(children.open(QIODevice::ReadOnly));
    const QByteArray child = children.readAll().trimmed();
    QVERIFY(child.toInt() > 0);
    QCOMPARE(::kill(-group, SIGINT), 0);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGINT);
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QTRY_VERIFY(hasEnded(child));
    for (const QString &name : files()) {
        const PictureFile picture = readPicture(night.filePath(name).toStdString());
        QVERIFY2(picture.complaint.empty(), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(MisbehavingLibraryTest)
#include "tst_misbehavinglibrary.moc"
