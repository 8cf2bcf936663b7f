// SPDX-License-Identifier: MIT
// Does ./run open both windows, and end both on a signal?
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

/// Whether a program of ours runs with this sky file.
bool runsWith(const QByteArray &sky, const QByteArray &program)
{
    const QStringList processes = QDir("/proc").entryList(QDir::Dirs);
    return std::any_of(processes.begin(), processes.end(), [&](const QString &process) {
        return contentOf("/proc/" + process + "/environ").contains("QUORVANDEL_SKY=" + sky) &&
               contentOf("/proc/" + process + "/cmdline").contains(program);
    });
}
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
    QProcess run;
    run.setProcessEnvironment(environment);
    run.setStandardErrorFile(folder.filePath("errors"));
    run.start(folder.filePath("run"), options);
    const auto isPainted = [&folder](const char *log, const QByteArray &name) {
        return contentOf(folder.filePath(log)).contains("of " + name + "(0x");
    };
    QTRY_VERIFY(isPainted("errors", window));
    QTRY_VERIFY(isPainted("build/logs/mount.log", "MountWindow"));
    QVERIFY(runsWith(sky.toUtf8(), "quorvandel-mount"));
    ::kill(pid_t(run.processId()), number);
    QVERIFY(run.waitForFinished(patience));
    QCOMPARE(run.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.exitCode(), 0);
    QTRY_VERIFY(!runsWith(sky.toUtf8(), "quorvandel"));
}

QTEST_GUILESS_MAIN(RunCommandTest)
#include "tst_runcommand.moc"
