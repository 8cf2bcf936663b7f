// SPDX-License-Identifier: MIT
// Does the trial load of a library leave it as it was, and end in time?
#include "camera/loadprobe.h"
#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <unistd.h>

namespace
{
/// Milliseconds: ten seconds would be the limit of loading.
constexpr int unloadLimit = 8000;

enum LoadStatus { Loaded = 0, Refused = 3, NotLoaded = 4 };

/// What the child process does: the trial, then the load.
int probeAndLoad(const char *library)
{
    if (!canLoadSafely(library))
        return Refused;
    return dlopen(library, RTLD_NOW | RTLD_LOCAL) ? Loaded : NotLoaded;
}
} // namespace

class LoadProbeTest : public QObject
{
    Q_OBJECT

private slots:
    void trial_data();
    void trial();
};

void LoadProbeTest::trial_data()
{
    QTest::addColumn<QByteArray>("library");
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("locks");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("trial");
    const QString usual = "--trial";
    for (const bool stays : {false, true}) {
        const QByteArray library = stays ? STAYING_LIBRARY : LOCKING_LIBRARY;
        const char *const name = stays ? "a library that stays loaded" : "a library";
        for (const char *const way : {"a static object", "a destructor", "an exit handler"})
            QTest::addRow("%s, its lock released by %s", name, way)
                << library << QString(way) << true << int(Loaded) << usual;
        QTest::addRow("%s with a throwing constructor", name)
            << library << QString("a throwing constructor") << false << int(Refused) << usual;
    }
    // The process that is to use the library ends without unloading it.
    for (const char *const way : {"a crash at the end", "a hang at the end"})
        QTest::addRow("a library with %s", way)
            << QByteArray(LOCKING_LIBRARY) << QString(way) << false << int(Loaded) << usual;
    // Then nobody can wait for a process.
    QTest::newRow("a library with a hang at the end, SIGCHLD ignored")
        << QByteArray(LOCKING_LIBRARY) << QString("a hang at the end") << false << int(Loaded)
        << QString("--trial-without-sigchld");
    // As a lock that another thread holds at the fork makes any library hang, now and then.
    QTest::newRow("a library that hangs at the first load")
        << QByteArray(LOCKING_LIBRARY) << QString("a hang at the first load") << true << int(Loaded)
        << usual;
    QTest::newRow("no library") << QByteArray("/nowhere/libveldix.so.20") << QString() << false
                                << int(NotLoaded) << usual;
}

/// A library that lets itself be loaded only once at a time can be loaded after the trial.
void LoadProbeTest::trial()
{
    QFETCH(QByteArray, library);
    QFETCH(QString, way);
    QFETCH(bool, locks);
    QFETCH(int, status);
    QFETCH(QString, trial);
    const QTemporaryDir folder;
    const QString lock = folder.filePath("lock");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LOCKING_SDK", way);
    environment.insert("LOCKING_SDK_FILE", locks ? lock : QString());
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    process.start(QCoreApplication::applicationFilePath(), {trial, library});
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), status);
    QVERIFY2(timer.elapsed() < unloadLimit, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(QFile::exists(lock), locks); // held by the process that ended without unloading
}

int main(int argc, char *argv[])
{
    const bool ignores = argc == 3 && std::strcmp(argv[1], "--trial-without-sigchld") == 0;
    if (ignores)
        std::signal(SIGCHLD, SIG_IGN); // as a program inherits it
    if (ignores || (argc == 3 && std::strcmp(argv[1], "--trial") == 0))
        _exit(probeAndLoad(argv[2]));
    const QCoreApplication application(argc, argv);
    LoadProbeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_loadprobe.moc"
