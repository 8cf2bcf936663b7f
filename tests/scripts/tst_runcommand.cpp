// SPDX-License-Identifier: MIT
// Does ./run open both windows, one behind the other on a small screen, and end both on a signal?
#include "tests/support/patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <sys/types.h>

namespace
{
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The programs that run with this sky file, and no others.
std::vector<pid_t> programsWith(const QByteArray &sky, const QByteArray &name)
{
    std::vector<pid_t> found;
    for (const QString &process : QDir("/proc").entryList(QDir::Dirs))
        if (contentOf("/proc/" + process + "/environ").contains("QUORVANDEL_SKY=" + sky) &&
            contentOf("/proc/" + process + "/cmdline").contains(name))
            found.push_back(pid_t(process.toInt()));
    return found;
}

/// What a program was started with.
QList<QByteArray> optionsOf(pid_t process)
{
    return contentOf("/proc/" + QString::number(process) + "/cmdline").split('\0');
}

/// Ends what a failed test leaves.
struct Sweeper {
    QByteArray sky;
    ~Sweeper()
    {
        for (const pid_t left : programsWith(sky, "bin/quorvandel"))
            ::kill(left, SIGKILL);
    }
};
} // namespace

class RunCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void opensBothAndEndsBoth_data();
    void opensBothAndEndsBoth();
};

void RunCommandTest::opensBothAndEndsBoth_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("window");
    QTest::addColumn<int>("number");
    QTest::newRow("assistant, SIGTERM")
        << QStringList{"--assistant"} << QByteArray("QStackedWidget") << SIGTERM;
    QTest::newRow("assistant, SIGINT")
        << QStringList{"--assistant"} << QByteArray("QStackedWidget") << SIGINT;
    QTest::newRow("program, SIGTERM") << QStringList() << QByteArray("MainWindow") << SIGTERM;
}

/// The real command in a folder of its own, whose build is there already; the signal reaches the
/// command alone. A window is seen by what the toolkit logs of its painting.
void RunCommandTest::opensBothAndEndsBoth()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, window);
    QFETCH(int, number);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("build") && QDir(folder.path()).mkpath("bin"));
    QVERIFY(QFile::link(PROJECT_SOURCE_DIR "/run", folder.filePath("run")));
    QVERIFY(QFile::link(PROJECT_SOURCE_DIR "/tools", folder.filePath("tools")));
    QVERIFY(QFile::link(BUILD_FOLDER, folder.filePath("build/release")));
    QVERIFY(QFile::link("/bin/true", folder.filePath("bin/cmake")));
    const QString sky = folder.filePath("sky.ini");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", folder.filePath("bin") + ':' + environment.value("PATH"));
    environment.insert("DISPLAY", ":none"); // the platform is offscreen
    environment.insert("HOME", folder.path());
    environment.insert("XDG_CONFIG_HOME", folder.filePath("config"));
    environment.insert("QUORVANDEL_SKY", sky);
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    environment.insert("QT_LOGGING_RULES", "qt.widgets.painting=true");
    const Sweeper sweeper{sky.toUtf8()};
    QProcess run;
    run.setProcessEnvironment(environment);
    run.setStandardErrorFile(folder.filePath("errors"));
    run.start(folder.filePath("run"), options);
    const auto isPainted = [&folder](const char *log, const QByteArray &name) {
        return contentOf(folder.filePath(log)).contains("of " + name + "(0x");
    };
    QTRY_VERIFY(isPainted("errors", window));
    QTRY_VERIFY(isPainted("build/logs/mount.log", "virtualmount::MountWindow"));
    const std::vector<pid_t> mounts = programsWith(sky.toUtf8(), "bin/quorvandel-mount");
    QCOMPARE(mounts.size(), std::size_t(1));
    // The platform's screen of 800 x 600 is too narrow for both windows.
    QVERIFY(optionsOf(mounts.front()).contains("--behind"));
    const QByteArray program =
        options.isEmpty() ? "bin/quorvandel" : "bin/quorvandel-assistant"; // not the mount
    const std::vector<pid_t> programs = programsWith(sky.toUtf8(), program + '\0');
    QCOMPARE(programs.size(), std::size_t(1));
    QVERIFY(optionsOf(programs.front()).contains("--maximized"));
    const QByteArray said = run.readAllStandardOutput();
    QVERIFY2(said.contains("Switch between them with Alt+Tab"), said);
    ::kill(pid_t(run.processId()), number);
    QVERIFY(run.waitForFinished(patience));
    QCOMPARE(run.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.exitCode(), 0);
    QTRY_VERIFY(programsWith(sky.toUtf8(), "bin/quorvandel").empty());
}

QTEST_GUILESS_MAIN(RunCommandTest)
#include "tst_runcommand.moc"
