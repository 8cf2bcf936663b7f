// SPDX-License-Identifier: MIT
// Do the finished programs, and ./run, use the camera that --camera names, whatever else is
// installed, and refuse what names none?
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <opencv2/imgcodecs.hpp>
#include <sys/prctl.h>
#include <unistd.h>

#include "tests/support/patience.h"

namespace
{
/// The camera of a folder of pictures, dark on the left and bright on the right, after one that
/// cannot be read: only a program that fetches frames names that one.
void writePictures(const QString &folder)
{
    QVERIFY(QDir().mkpath(folder));
    cv::Mat picture(960, 1280, CV_8UC1, cv::Scalar(20));
    picture.colRange(640, 1280).setTo(230);
    QVERIFY(cv::imwrite((folder + "/b.png").toStdString(), picture));
    QFile broken(folder + "/a.png");
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    QVERIFY(broken.setFileTime(QDateTime::fromSecsSinceEpoch(1577836800),
                               QFileDevice::FileModificationTime));
}

/// With what it starts, in a process group of its own that a test's end ends.
class GroupProcess : public QProcess
{
protected:
    void setupChildProcess() override // between fork and exec
    {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
};

/// A program of the finished build, as a person starts it.
class Program
{
public:
    explicit Program(const QString &folder) : home(folder + "/home") { QDir().mkpath(home); }
    ~Program()
    {
        if (process.state() != QProcess::NotRunning)
            signal(SIGKILL);
        process.waitForFinished();
    }

    void start(const QString &file, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(variable, home);
        environment.insert("QUORVANDEL_SKY", home + "/sky.ini");
        environment.insert("LD_PRELOAD", HANDS_FILE);
        environment.insert("QT_LOGGING_TO_CONSOLE", "1");
        // As if the maker's library were installed.
        environment.insert("LD_LIBRARY_PATH", MISBEHAVING_FOLDER);
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(file, arguments);
    }

    bool says(const QByteArray &text)
    {
        while (!output.contains(text) && process.waitForReadyRead(patience))
            output += process.readAll();
        return output.contains(text);
    }

    QByteArray libraries() const
    {
        QFile maps(QStringLiteral("/proc/%1/maps").arg(process.processId()));
        return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
    }

    int end()
    {
        signal(SIGTERM);
        return status();
    }
    int status()
    {
        const bool hasEnded = process.waitForFinished(patience);
        output += process.readAll();
        return hasEnded && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QMap<QString, QString> variables;
    QByteArray output;

private:
    void signal(int number) { ::kill(-pid_t(process.processId()), number); }

    const QString home;
    GroupProcess process;
};
} // namespace

class ProgramCamerasTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sky_data() { programs(); }
    void sky();
    void files_data() { programs(); }
    void files();
    void nobodyAtTheAddress_data() { programs(); }
    void nobodyAtTheAddress();
    void noAddress_data() { programs(); }
    void noAddress();
    void runRefuses_data();
    void runRefuses();
    void runWithoutACameraStartsTheMount();

private:
    /// Each program by itself and by ./run.
    static void programs()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("options");
        const QString bin = "build/release/bin/";
        QTest::newRow("quorvandel") << bin + "quorvandel" << QStringList();
        QTest::newRow("quorvandel-assistant") << bin + "quorvandel-assistant" << QStringList();
        QTest::newRow("./run") << "run" << QStringList();
        QTest::newRow("./run --assistant") << "run" << QStringList{"--assistant"};
    }
    static bool isRun() { return QByteArray(QTest::currentDataTag()).startsWith("./run"); }
    static bool isAssistant() { return QByteArray(QTest::currentDataTag()).endsWith("assistant"); }

    QString path(const QString &name) const { return tree.filePath(name); }
    void standIn(const QString &name, const QByteArray &script) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    void start(Program &program, const QString &address) const
    {
        QFETCH(QString, file);
        QFETCH(QStringList, options);
        startFile(program, file, options + QStringList{"--camera", address});
    }
    void startFile(Program &program, const QString &file, const QStringList &arguments) const
    {
        // For ./run, which finds everything installed and built, and a screen.
        program.variables["PATH"] = path("stand-ins") + ':' + qEnvironmentVariable("PATH");
        program.variables["DISPLAY"] = ":77"; // the toolkit's platform is another one
        program.start(path(file), arguments);
    }
    /// The shipped camera library is in use, and nothing else.
    void verifyLibrary(Program &program, bool withModule) const
    {
        const QByteArray maps = program.libraries();
        QVERIFY(maps.contains("/lib/quorvandel/libveldix.so.20") ||
                maps.contains("/lib/quorvandel/libveldix.so"));
        QVERIFY(!maps.contains(MISBEHAVING_FOLDER));
        QCOMPARE(maps.contains("quorvandel-framesources.so"), withModule);
        QVERIFY(!QFile::exists(path("mount-started")));
    }

    const QTemporaryDir tree;
};

/// A tree with copies of the finished programs, since the settings file is beside the executable,
/// and what ./run needs around it.
void ProgramCamerasTest::initTestCase()
{
    QVERIFY(QDir(tree.path()).mkpath("build/release/bin"));
    QVERIFY(QDir(tree.path()).mkpath("stand-ins"));
    for (const char *const program : {WIZARD_FILE, ASSISTANT_FILE})
        QVERIFY(QFile::copy(program, path("build/release/bin/" + QFileInfo(program).fileName())));
    QVERIFY(QFile::link(LIBRARY_FOLDER, path("build/release/lib")));
    QVERIFY(QFile::copy(PROJECT_SOURCE_DIR "/run", path("run")));
    QVERIFY(QFile::link(PROJECT_SOURCE_DIR "/tools", path("tools")));
    QFile configured(path("build/release/build.ninja"));
    QVERIFY(configured.open(QIODevice::WriteOnly));
    standIn("stand-ins/cmake", "echo \"$*\" >>\"" + path("built").toUtf8() + "\"\n");
    standIn("stand-ins/dpkg-query", "printf installed\n");
    standIn("build/release/bin/quorvandel-mount",
            "[ \"$1\" = --places ] && { echo beside 700x700+0+0 300x300+700+0; exit; }\n"
            "echo started >\"" +
                path("mount-started").toUtf8() + "\"\n");
    writePictures(path("night"));
    QTest::qWait(400); // files younger than that may still be being written
}

void ProgramCamerasTest::sky()
{
    Program program(tree.path());
    start(program, "sky");
    QVERIFY2(program.says("picture: dark dark\n"), program.output);
    if (!isAssistant())
        QVERIFY2(program.says("window: Quorvandel - ID:QUORVANDEL-V0001\n"), program.output);
    verifyLibrary(program, false);
    QVERIFY2(program.end() == 0, program.output);
}

void ProgramCamerasTest::files()
{
    Program program(tree.path());
    start(program, "files:" + path("night"));
    QVERIFY2(program.says("picture: dark bright\n"), program.output);
    QVERIFY2(program.says(path("night/a.png").toUtf8() + ": It is not a PNG"), program.output);
    if (!isAssistant())
        QVERIFY2(program.says("window: Quorvandel - ID:QUORVANDEL-files\n"), program.output);
    verifyLibrary(program, true);
    QVERIFY2(program.end() == 0, program.output);
}

void ProgramCamerasTest::nobodyAtTheAddress()
{
    if (!HAS_INDI)
        QSKIP("this build is without INDI");
    QTcpServer probe;
    QVERIFY(probe.listen(QHostAddress::LocalHost, 0));
    const QString port = QString::number(probe.serverPort());
    probe.close();
    Program program(tree.path());
    start(program, "indi://127.0.0.1:" + port + "/CCD Simulator");
    QVERIFY2(program.says("camera indi://127.0.0.1:" + port.toUtf8() + "/CCD Simulator: "),
             program.output);
    QVERIFY2(program.says("there is no INDI server at 127.0.0.1, port " + port.toUtf8()),
             program.output);
    verifyLibrary(program, true);
    QVERIFY2(program.end() == 0, program.output);
}

void ProgramCamerasTest::noAddress()
{
    Program program(tree.path());
    start(program, "webcam");
    QCOMPARE(program.status(), 2);
    const QByteArray name = isAssistant() ? "quorvandel-assistant" : "quorvandel";
    QVERIFY2(program.output.endsWith(name + ": --camera must be sky, indi://HOST[:PORT]/DEVICE or "
                                            "files:PATTERN\n"),
             program.output);
}

void ProgramCamerasTest::runRefuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("hasScreen");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("message");
    const QByteArray usage = "usage: ./run [--assistant] [--tour [--south] | --camera ADDRESS]\n";
    QTest::newRow("no address") << QStringList{"--camera"} << true << 2 << usage;
    QTest::newRow("an empty one") << QStringList{"--camera="} << true << 2 << usage;
    QTest::newRow("with the tour")
        << QStringList{"--tour", "--camera", "sky"} << true << 2 << usage;
    QTest::newRow("no screen")
        << QStringList{"--camera", "sky"} << false << 1
        << QByteArray("There is no screen (neither DISPLAY nor WAYLAND_DISPLAY is set).\n");
}

void ProgramCamerasTest::runRefuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, hasScreen);
    QFETCH(int, status);
    QFETCH(QByteArray, message);
    Program program(tree.path());
    program.variables = {{"DISPLAY", hasScreen ? ":77" : ""}, {"WAYLAND_DISPLAY", ""}};
    program.start(path("run"), arguments);
    QCOMPARE(program.status(), status);
    QCOMPARE(program.output, message);
}

/// That the tests above would notice a mount.
void ProgramCamerasTest::runWithoutACameraStartsTheMount()
{
    QFile built(path("built"));
    QVERIFY(built.open(QIODevice::ReadOnly));
    QVERIFY(!built.readAll().contains("quorvandel-mount"));
    Program program(tree.path());
    startFile(program, "run", {});
    QVERIFY2(program.says("window: Quorvandel"), program.output);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("mount-started")), patience);
    program.end();
}

QTEST_GUILESS_MAIN(ProgramCamerasTest)
#include "tst_programcameras.moc"
