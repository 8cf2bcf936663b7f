// SPDX-License-Identifier: MIT
// Are the settings saved without waiting for a lock, and if they cannot be, is it known why?
#include "tests/reliability/settingsplace.h"
#include "tests/support/reachablecopy.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "core/settingsplace.h"
#include "resources/resources.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLockFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

namespace
{
constexpr int longestClosing = 2000; ///< milliseconds
const QByteArray oldFile = "[MINE]\na=b\n[STYLE]\nstyle=Mono\n";

QString lockPath()
{
    return settingsFilePath() + ".lock";
}

void putLock(const QByteArray &bytes)
{
    QFile file(lockPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("the lock cannot be written");
}

void clearLock()
{
    QDir(lockPath()).removeRecursively();
    ::unlink(lockPath().toLocal8Bit());
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

/// A file system of its own with room for some files; only root may have one.
class SmallDisk
{
public:
    SmallDisk()
    {
        const QByteArray path = folder.path().toLocal8Bit();
        mounted = unshare(CLONE_NEWNS) == 0 &&
                  mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                  mount("tmpfs", path, "tmpfs", 0, "size=256k") == 0;
    }
    ~SmallDisk()
    {
        if (mounted)
            umount2(folder.path().toLocal8Bit(), MNT_DETACH);
    }
    bool isThere() const { return mounted; }
    QString path() const { return folder.path(); }

    void fill() const
    {
        QFile file(folder.filePath("filler"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("the small disk cannot be written");
        while (file.write(QByteArray(1024, 'x')) > 0)
            continue;
    }
    void empty() const { QFile::remove(folder.filePath("filler")); }

private:
    QTemporaryDir folder;
    bool mounted = false;
};

/// The sentence in the status bar, as if the camera library were there.
QString notice(SessionWindow &window)
{
    window.ownSession.camera.sdkReady = true;
    return window.findChild<QLabel *>("label_notice")->text();
}
} // namespace

class SettingsSavedTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void lockInTheWay_data();
    void lockInTheWay();
    void saysWhyNot_data();
    void saysWhyNot();
    void fullDisk();
    void fileLimit();
    void fileLimitOfTheNewText();
};

void SettingsSavedTest::initTestCase()
{
    initialiseResources();
    QVERIFY(givePlaceAway());
}

void SettingsSavedTest::cleanup()
{
    clearPlace();
    clearLock();
}

void SettingsSavedTest::lockInTheWay_data()
{
    QTest::addColumn<Arrange>("arrange");
    const auto row = [](const char *name, const Arrange &arrange) {
        QTest::newRow(name) << arrange;
    };
    row("none", [] {});
    row("folder", [] { QDir().mkpath(lockPath()); });
    row("folder that is not empty", [] { QDir().mkpath(lockPath() + "/within"); });
    row("pipe", [] { mkfifo(lockPath().toLocal8Bit(), 0666); });
    row("link to nothing", [] { QFile::link("nowhere/at all", lockPath()); });
    row("link to itself", [] { QFile::link(lockPath(), lockPath()); });
    row("empty", [] { putLock({}); });
    row("rubbish", [] { putLock("\xFF\xFE rubbish\n\n\0"); });
    row("much rubbish", [] { putLock(QByteArray(1 << 22, '7')); });
    row("of a process that is there", [] { putLock("1\nquorvandel\nsome-host\n"); });
    row("of a file that cannot be read", [] {
        putLock("1\n");
        chmod(lockPath().toLocal8Bit(), 0000);
    });
}

/// Whatever is there instead of a lock, it neither holds up the closing nor is it touched.
void SettingsSavedTest::lockInTheWay()
{
    QFETCH(Arrange, arrange);
    const OrdinaryUser user;
    put(oldFile);
    arrange();
    const QStringList before = entries(QCoreApplication::applicationDirPath());
    SessionWindow window;
    QElapsedTimer timer;
    timer.start();
    window.close();
    QVERIFY2(timer.elapsed() < longestClosing, qPrintable(QString::number(timer.elapsed())));
    const QByteArray bytes = bytesOf(settingsFilePath());
    QVERIFY2(bytes.contains("P_unit=kPa") && bytes.contains("style=Mono") && bytes.contains("a=b"),
             bytes);
    QCOMPARE(entries(QCoreApplication::applicationDirPath()), before);
}

void SettingsSavedTest::saysWhyNot_data()
{
    QTest::addColumn<Arrange>("arrange");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("sentence");
    const QString folder = "its folder cannot be written";
    const QString inFolder = "Settings will not be kept: their folder cannot be written.";
    const QString file = "this user cannot read and write it";
    const QString inFile = "Settings will not be kept: their file cannot be written.";
    const QString other = "it is not a regular file";
    const QString inOther = "Settings will not be kept: Quorvandel.ini is not a file.";
    const auto path = [] { return settingsFilePath().toLocal8Bit(); };
    const auto row = [](const char *name, const Arrange &arrange, const QString &reason,
                        const QString &sentence) {
        QTest::newRow(name) << arrange << reason << sentence;
    };
    const auto closeFolder = [] {
        chmod(QCoreApplication::applicationDirPath().toLocal8Bit(), 0555);
    };
    row("folder that cannot be written", closeFolder, folder, inFolder);
    row(
        "the same, with a file",
        [=] {
            put(oldFile);
            closeFolder();
        },
        folder, inFolder);
    row(
        "read-only file",
        [=] {
            put(oldFile);
            chmod(path(), 0444);
        },
        file, inFile);
    row(
        "file that cannot be read",
        [=] {
            put(oldFile);
            chmod(path(), 0200);
        },
        file, inFile);
    row(
        "link into a missing folder",
        [=] { QFile::link("nowhere/at all.ini", settingsFilePath()); }, folder, inFolder);
    row(
        "folder in its place", [] { QDir().mkpath(settingsFilePath()); }, other, inOther);
    row(
        "pipe in its place", [=] { mkfifo(path(), 0666); }, other, inOther);
    if (geteuid() == 0)
        for (const mode_t mode : {0644U, 0600U})
            row(
                mode == 0600 ? "file of another user, for that user alone" : "file of another user",
                [=] {
                    if (seteuid(0) != 0)
                        qFatal("cannot become root");
                    put(oldFile);
                    if (chown(path(), 0, 0) != 0 || chmod(path(), mode) != 0 ||
                        seteuid(OrdinaryUser::number) != 0)
                        qFatal("the file cannot be given away");
                },
                file, inFile);
}

/// The log says it at the start and at the end, the status bar in between; nothing changes.
void SettingsSavedTest::saysWhyNot()
{
    QFETCH(Arrange, arrange);
    QFETCH(QString, reason);
    QFETCH(QString, sentence);
    const QString place = QCoreApplication::applicationDirPath();
    const QString end = settingsFilePath() + ": " + reason;
    QStringList before;
    {
        const OrdinaryUser user;
        arrange();
        before = entries(place);
        const LogRecorder log;
        const BoxWatcher boxes;
        SessionWindow window;
        QCOMPARE(log.texts(QtWarningMsg).filter("the settings will not be saved in " + end).size(),
                 1);
        QVERIFY(log.texts(QtWarningMsg).filter("the settings are not saved").isEmpty());
        QTRY_COMPARE(notice(window), sentence);
        QElapsedTimer timer;
        timer.start();
        window.close();
        QVERIFY(timer.elapsed() < longestClosing);
        QCOMPARE(log.texts(QtWarningMsg).filter("the settings are not saved in " + end).size(), 1);
        QVERIFY(boxes.boxes().isEmpty());
    }
    QCOMPARE(entries(place), before);
    chmod(settingsFilePath().toLocal8Bit(), 0755);
    if (QFileInfo(settingsFilePath()).isFile())
        QCOMPARE(bytesOf(settingsFilePath()), oldFile);
}

/// The disk fills while the program runs, or is full from the start; then there is room again.
void SettingsSavedTest::fullDisk()
{
    const SmallDisk disk;
    if (!disk.isThere())
        QSKIP("only root may mount a small disk");
    const QString target = disk.path() + "/real.ini";
    QVERIFY(QFile::link(target, settingsFilePath()));
    put(oldFile);
    const QString sentence = "Settings will not be kept: the disk is full.";
    {
        const LogRecorder log;
        SessionWindow window;
        QCOMPARE(log.texts(QtWarningMsg).filter("settings"), QStringList());
        QTRY_VERIFY(notice(window).isEmpty());
        disk.fill();
        QTRY_COMPARE(notice(window), sentence);
        window.close();
        QCOMPARE(log.texts(QtWarningMsg).filter("are not saved").filter("the disk is full").size(),
                 1);
    }
    QCOMPARE(bytesOf(target), oldFile);
    QCOMPARE(entries(disk.path()), QStringList({"filler", "real.ini"}));
    const LogRecorder log;
    SessionWindow window;
    QCOMPARE(log.texts(QtWarningMsg).filter("will not be saved").filter("the disk is full").size(),
             1);
    QTRY_COMPARE(notice(window), sentence);
    disk.empty();
    QTRY_VERIFY(notice(window).isEmpty());
    window.close();
    QVERIFY(bytesOf(target).contains("P_unit=kPa"));
    QVERIFY(QFileInfo(settingsFilePath()).isSymLink());
    QCOMPARE(entries(disk.path()), QStringList({"real.ini"}));
}

/// No file may grow beyond a limit, in bytes, that rises until all of it fits: of each of the files
/// that a save makes, all or nothing remains.
void SettingsSavedTest::fileLimit()
{
    const QByteArray letter = oldFile + "Dear Quorvandel\n"; // which a save keeps aside
    put(letter);
    const QStringList before = entries(QCoreApplication::applicationDirPath());
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    rlim_t bytes = 0;
    for (bool saved = false; !saved; bytes += 8) {
        const rlimit tight{bytes, usual.rlim_max};
        const LogRecorder log;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
        saved = writeSettings(settingsFilePath(), Settings());
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
        QCOMPARE(log.texts(QtWarningMsg).filter("the settings are not saved in").size(),
                 saved ? 0 : 1);
        if (saved)
            break;
        QCOMPARE(bytesOf(settingsFilePath()), letter);
        QCOMPARE(entries(QCoreApplication::applicationDirPath()), before);
    }
    QVERIFY(bytes > 100);
    const QByteArray whole = bytesOf(settingsFilePath());
    QVERIFY2(whole.contains("[MINE]\na=b\n") && whole.contains("x=0\ny=0\n") &&
                 whole.endsWith("factor=1\n"),
             whole);
    QCOMPARE(keptAside().size(), 1);
    QCOMPARE(bytesOf(keptAside().constFirst()), letter);
}

/// The last of the writes, of a text of known length.
void SettingsSavedTest::fileLimitOfTheNewText()
{
    put(oldFile);
    const auto newText = [](const QByteArray &, QString &) {
        return std::optional(QByteArray("[A]\nb=") + QByteArray(5000, 'c') + '\n');
    };
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit tight{4000, usual.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
    QString reason;
    const bool replaced = replaceKeeping(settingsFilePath(), newText, reason);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
    QVERIFY(!replaced && !reason.isEmpty());
    QCOMPARE(bytesOf(settingsFilePath()), oldFile);
}

int main(int argc, char *argv[])
{
    if (const auto status = statusOfCopy(argv))
        return *status;
    QTEST_MAIN_IMPL(SettingsSavedTest)
}
#include "tst_settingssaved.moc"
