// SPDX-License-Identifier: MIT
// Does a signal end the program like the close button, with the settings saved?
#include "tests/reliability/handledsignals.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <sys/types.h>

namespace
{
/// The folder of the program under test, with its settings file.
QString programSettings()
{
    return QFileInfo(QStringLiteral(PROGRAM_FILE)).absolutePath() + "/Quorvandel.ini";
}

/// The running program, with a home of its own.
class Program
{
public:
    explicit Program(const char *cameraFolder = CAMERA_FOLDER)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_CONFIG_HOME", home.path() + "/config");
        environment.insert("QT_LOGGING_TO_CONSOLE", "1");
        environment.insert("LD_LIBRARY_PATH", cameraFolder);
        environment.insert("QUORVANDEL_SKY", home.path() + "/sky.ini");
        process.setProcessEnvironment(environment);
        process.setReadChannel(QProcess::StandardError);
        process.start(PROGRAM_FILE, QStringList());
    }
    /// Shows in full what the program said if the test has failed: a sanitizer's report, for
    /// example.
    ~Program()
    {
        errors += process.readAllStandardError();
        if (QTest::currentTestFailed())
            std::fprintf(stderr, "--- the program's errors:\n%s---\n", errors.constData());
    }
    Q_DISABLE_COPY_MOVE(Program)

    /// Waits until the program has logged `text`.
    bool hasSaid(const char *text)
    {
        do
            errors += process.readAllStandardError();
        while (!errors.contains(text) && process.waitForReadyRead(patience));
        return errors.contains(text);
    }
    /// Waits until the window exists and the event loop runs.
    bool isReady()
    {
        return hasSaid("InitVELDIXSDK success") && comesTrue([this] {
                   return handlesSignal(process.processId(), SIGINT) &&
                          waitsForSignal(process.processId(), SIGTERM);
               });
    }
    void send(int number) const { ::kill(pid_t(process.processId()), number); }
    bool ends() { return endsAfterSignal(process); }

    QTemporaryDir home;
    QProcess process;
    QByteArray errors;
};
} // namespace

class SignalsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void signalClosesTheWindow_data();
    void signalClosesTheWindow();
    void manySignals();
    void ignoredSignalsStayIgnored();
    void otherSignalsStay();
    void endsThoughTheCameraLibraryHangs();
    void helpIsPrinted();
};

void SignalsTest::initTestCase()
{
    restoreSignals();
}

void SignalsTest::init()
{
    QFile::remove(programSettings());
}

void SignalsTest::signalClosesTheWindow_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void SignalsTest::signalClosesTheWindow()
{
    QFETCH(int, number);
    Program program;
    QVERIFY(program.isReady());
    QVERIFY(!QFile::exists(programSettings()));
    program.send(number);
    QVERIFY(program.ends());
    QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.process.exitCode(), 0);
    const QSettings file(programSettings(), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
    QCOMPARE(file.value("ZOOM/factor").toString(), QString("1"));
}

/// A second and a hundredth signal during the shutdown do not damage the file.
void SignalsTest::manySignals()
{
    Program program;
    QVERIFY(program.isReady());
    for (int i = 0; i < 100; ++i)
        program.send(i % 2 ? SIGTERM : SIGINT);
    QVERIFY(program.ends());
    QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.process.exitCode(), 0);
    const QSettings file(programSettings(), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
}

/// As under nohup.
void SignalsTest::ignoredSignalsStayIgnored()
{
    std::signal(SIGHUP, SIG_IGN); // the child inherits it
    Program program;
    std::signal(SIGHUP, SIG_DFL);
    QVERIFY(program.isReady());
    program.send(SIGHUP);
    QVERIFY(!program.process.waitForFinished(300));
    program.send(SIGTERM);
    QVERIFY(program.ends());
}

/// A signal that is not ours ends the process at once, with nothing saved.
void SignalsTest::otherSignalsStay()
{
    Program program;
    QVERIFY(program.isReady());
    program.send(SIGUSR1);
    QVERIFY(program.ends());
    QCOMPARE(program.process.exitStatus(), QProcess::CrashExit);
    QVERIFY(!QFile::exists(programSettings()));
}

/// A thread cannot be ended inside a library: the process exits without it, with everything saved.
void SignalsTest::endsThoughTheCameraLibraryHangs()
{
    Program program(HANGING_FOLDER);
    QVERIFY(program.isReady());
    QVERIFY(program.hasSaid("the library hangs"));
    program.send(SIGTERM);
    QVERIFY(program.ends());
    program.errors += program.process.readAllStandardError();
    QVERIFY(program.errors.contains("the camera is not closed"));
    QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.process.exitCode(), 0);
    const QSettings file(programSettings(), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
}

void SignalsTest::helpIsPrinted()
{
    QProcess program;
    program.start(PROGRAM_FILE, {"--help"});
    QVERIFY(program.waitForFinished(patience));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(program.readAllStandardOutput().contains("--angles-of-date"));
}

QTEST_GUILESS_MAIN(SignalsTest)
#include "tst_signals.moc"
