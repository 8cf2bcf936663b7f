// SPDX-License-Identifier: MIT
// Does the launcher start the user's copy of the program, keep it current, and cope without a copy?
#include "tests/support/ordinaryuser.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <vector>

namespace
{
/// Stands in for the program: prints which file was started with which arguments, exits with 7.
const QByteArray stub = "#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\"\nexit 7\n";
constexpr int stubStatus = 7;
const QString refusal = QStringLiteral("quorvandel: the settings will not be kept: ");

void write(const QString &path, const QByteArray &text)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
    file.close();
    QVERIFY(file.setPermissions(QFile::Permissions(0x7755)));
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

ino_t inodeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

struct Outcome {
    QStringList lines; ///< the stub's output: its path, then its arguments
    QString errors;
    int status;
};
} // namespace

class LauncherTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> scratch;
    QString prefix;    ///< the installed tree
    QString launcher;  ///< the launcher in that tree
    QString installed; ///< the stub in that tree
    QString home;
    QString folder; ///< the user's folder, where XDG_DATA_HOME is not set
    QString copy;   ///< the copy in that folder

    void install()
    {
        launcher = prefix + "/bin/quorvandel";
        const QString program = QDir::cleanPath(prefix + "/bin/" PROGRAM_FROM_LAUNCHER);
        installed = program + "/bin/quorvandel";
        write(launcher, read(LAUNCHER));
        write(installed, stub);
        write(program + "/lib/quorvandel/mark", "library");
        write(program + "/share/doc/mark", "document");
    }

    void prepare(QProcess &process, const QStringList &variables) const
    {
        QProcessEnvironment environment;
        environment.insert("PATH", "/usr/bin:/bin");
        for (const QString &variable : variables)
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(scratch->path());
    }

    Outcome run(const QStringList &variables, const QStringList &arguments = {},
                const QString &command = {}) const
    {
        QProcess process;
        prepare(process, variables);
        process.start(command.isEmpty() ? launcher : command, arguments);
        if (!process.waitForFinished(20000) || process.exitStatus() != QProcess::NormalExit)
            return {{}, "the launcher did not end well", -1};
        QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split('\n');
        lines.removeLast();
        return {lines, QString::fromUtf8(process.readAllStandardError()), process.exitCode()};
    }

    /// @param ordinary as OrdinaryUser, if the tests run as root
    Outcome runAtHome(bool ordinary = false) const
    {
        if (!ordinary || geteuid() != 0)
            return run({"HOME=" + home});
        const QString user = QString::number(OrdinaryUser::number);
        return run({"HOME=" + home}, {"--reuid", user, "--clear-groups", launcher},
                   QStringLiteral("/usr/bin/setpriv"));
    }

    /// Gives the user's folder to OrdinaryUser and lets that user reach it.
    void giveAway() const
    {
        QFile::setPermissions(scratch->path(), QFile::Permissions(0x7755));
        if (geteuid() == 0)
            QVERIFY(QProcess::execute("chown",
                                      {"-R", QString::number(OrdinaryUser::number), home}) == 0);
    }

private slots:
    void init()
    {
        scratch = std::make_unique<QTemporaryDir>();
        QVERIFY(scratch->isValid());
        const QString root = QFileInfo(scratch->path()).canonicalFilePath();
        prefix = root + "/prefix";
        home = root + "/home";
        folder = home + "/.local/share/quorvandel";
        copy = folder + "/bin/quorvandel";
        QVERIFY(QDir().mkpath(home));
        install();
    }

    void startsTheCopyIn_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("expected");
        const QString usual = "home/.local/share/quorvandel";
        QTest::newRow("home alone") << QStringList{"HOME=%/home"} << usual;
        QTest::newRow("a data folder")
            << QStringList{"HOME=%/home", "XDG_DATA_HOME=%/data"} << "data/quorvandel";
        QTest::newRow("a data folder and no home")
            << QStringList{"XDG_DATA_HOME=%/data"} << "data/quorvandel";
        QTest::newRow("an empty data folder does not count")
            << QStringList{"HOME=%/home", "XDG_DATA_HOME="} << usual;
        QTest::newRow("a relative data folder does not count")
            << QStringList{"HOME=%/home", "XDG_DATA_HOME=data"} << usual;
        QTest::newRow("blanks, quotes and letters of other languages")
            << QStringList{QString::fromUtf8("HOME=%/my 'home' $x *é 家")}
            << QString::fromUtf8("my 'home' $x *é 家/.local/share/quorvandel");
    }

    void startsTheCopyIn()
    {
        QFETCH(QStringList, variables);
        QFETCH(QString, expected);
        const QString root = QFileInfo(scratch->path()).canonicalFilePath();
        variables.replaceInStrings("%", root);
        const Outcome outcome = run(variables);
        const QString user = root + '/' + expected;
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.lines, QStringList{user + "/bin/quorvandel"});
        QCOMPARE(read(user + "/bin/../lib/quorvandel/mark"), QByteArray("library"));
        QCOMPARE(read(user + "/bin/../share/doc/mark"), QByteArray("document"));
    }

    void passesArgumentsAndStatus()
    {
        const QStringList arguments{"-style", "two words", "", "*", "--"};
        const Outcome outcome = run({"HOME=" + home}, arguments);
        QCOMPARE(outcome.lines, QStringList{copy} + arguments);
        QCOMPARE(outcome.status, stubStatus);
    }

    void worksThroughASymbolicLink()
    {
        const QString link = scratch->path() + "/elsewhere";
        QVERIFY(QFile::link(launcher, link));
        const Outcome outcome = run({"HOME=" + home}, {}, link);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.lines, QStringList{copy});
    }

    void renewsTheCopyWhen_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<int>("ageInDays");
        QTest::newRow("a newer one is installed") << stub + "# another\n" << 0;
        QTest::newRow("an older one is installed") << stub + "# another\n" << 1000;
        QTest::newRow("another of the same length")
            << QByteArray(stub).replace("exit 7", "exit 8") << 0;
    }

    void renewsTheCopyWhen()
    {
        QFETCH(QByteArray, program);
        QFETCH(int, ageInDays);
        QCOMPARE(runAtHome().lines, QStringList{copy});
        write(folder + "/bin/Quorvandel.ini", "[STYLE]\nstyle=Mono\n");
        write(installed, program);
        QFile file(installed);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-ageInDays),
                                 QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(read(copy) != program);
        QCOMPARE(runAtHome().lines, QStringList{copy});
        QCOMPARE(read(copy), program);
        QCOMPARE(read(folder + "/bin/Quorvandel.ini"), QByteArray("[STYLE]\nstyle=Mono\n"));
    }

    void leavesACurrentCopyAlone()
    {
        QCOMPARE(runAtHome().lines, QStringList{copy});
        const ino_t before = inodeOf(copy);
        QVERIFY(before != 0);
        QCOMPARE(runAtHome().lines, QStringList{copy});
        QCOMPARE(inodeOf(copy), before);
    }

    void makesADamagedCopyAnew()
    {
        QCOMPARE(runAtHome().lines, QStringList{copy});
        write(copy, "#!/bin/sh\n");
        QCOMPARE(runAtHome().lines, QStringList{copy});
        QCOMPARE(read(copy), stub);
    }

    void followsAMovedPrefix()
    {
        QCOMPARE(runAtHome().lines, QStringList{copy});
        const QString moved = prefix + "-moved";
        QVERIFY(QDir().rename(prefix, moved));
        QVERIFY(!QFile::exists(folder + "/share/doc/mark"));
        const Outcome outcome = run({"HOME=" + home}, {}, moved + "/bin/quorvandel");
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.lines, QStringList{copy});
        QCOMPARE(read(folder + "/lib/quorvandel/mark"), QByteArray("library"));
        QCOMPARE(read(folder + "/share/doc/mark"), QByteArray("document"));
    }

    void severalStartsAtOnce()
    {
        std::vector<std::unique_ptr<QProcess>> processes(8);
        for (auto &process : processes) {
            process = std::make_unique<QProcess>();
            prepare(*process, {"HOME=" + home});
            process->start(launcher, QStringList());
        }
        for (auto &process : processes) {
            QVERIFY(process->waitForFinished(20000));
            QCOMPARE(process->readAllStandardError(), QByteArray());
            QCOMPARE(process->readAllStandardOutput(), QFile::encodeName(copy) + '\n');
        }
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(folder + "/bin").entryList(all), QStringList{"quorvandel"});
        QCOMPARE(QDir(folder).entryList(all, QDir::Name), (QStringList{"bin", "lib", "share"}));
    }

    void saysThatSettingsAreNotKeptFor_data()
    {
        QTest::addColumn<QString>("command"); // run in the folder of the copy
        QTest::addColumn<QString>("reason");
        QTest::newRow("a folder in the file's place") << "mkdir Quorvandel.ini"
                                                      << "Quorvandel.ini is not a file\n";
        QTest::newRow("a pipe in the file's place") << "mkfifo Quorvandel.ini"
                                                    << "Quorvandel.ini is not a file\n";
        QTest::newRow("a read-only file") << "echo a=b >Quorvandel.ini; chmod 444 Quorvandel.ini"
                                          << "Quorvandel.ini cannot be read and written\n";
        QTest::newRow("a file that cannot be read")
            << "echo a=b >Quorvandel.ini; chmod 200 Quorvandel.ini"
            << "Quorvandel.ini cannot be read and written\n";
        QTest::newRow("a folder that cannot be written") << "chmod 555 ."
                                                         << "Permission denied\n";
        if (geteuid() == 0)
            QTest::newRow("a file of another user")
                << "echo a=b >Quorvandel.ini; chown 0:0 Quorvandel.ini; chmod 644 Quorvandel.ini"
                << "Quorvandel.ini cannot be read and written\n";
    }

    /// The copy is there and current, and is started all the same.
    void saysThatSettingsAreNotKeptFor()
    {
        QFETCH(QString, command);
        QFETCH(QString, reason);
        QCOMPARE(runAtHome().errors, QString());
        giveAway();
        QProcess arrange;
        arrange.setWorkingDirectory(folder + "/bin");
        arrange.start("/bin/sh", {"-c", command});
        QVERIFY(arrange.waitForFinished(20000) && arrange.exitCode() == 0);
        const QStringList before = QDir(folder + "/bin").entryList(everything);
        const Outcome outcome = runAtHome(true);
        QCOMPARE(outcome.lines, QStringList{copy});
        QCOMPARE(outcome.status, stubStatus);
        QVERIFY2(outcome.errors.startsWith(refusal) && outcome.errors.endsWith(reason),
                 qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(QDir(folder + "/bin").entryList(everything), before);
    }

    void saysThatTheDiskIsFull()
    {
        QVERIFY(QDir().mkpath(home));
        const QByteArray disk = home.toLocal8Bit();
        if (unshare(CLONE_NEWNS) != 0 ||
            mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("tmpfs", disk, "tmpfs", 0, "size=256k") != 0)
            QSKIP("only root may mount a small disk");
        const Outcome roomy = runAtHome();
        QFile filler(home + "/filler");
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(1024, 'x')) > 0)
            continue;
        filler.close();
        const Outcome full = runAtHome();
        const QStringList left = QDir(folder + "/bin").entryList(everything);
        umount2(disk, MNT_DETACH);
        QCOMPARE(roomy.errors, QString());
        QCOMPARE(full.lines, QStringList{copy});
        QVERIFY2(full.errors.startsWith(refusal) && full.errors.contains("No space left"),
                 qPrintable(full.errors));
        QCOMPARE(left, QStringList{"quorvandel"});
    }

    void startsTheInstalledOneWhere_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("fileInTheWay"); ///< ends with a slash: a folder
        QTest::newRow("there is no home") << QStringList() << QString();
        QTest::newRow("the home is a file") << QStringList{"HOME=%/home/file"} << "home/file";
        QTest::newRow("a file has the folder's name")
            << QStringList{"HOME=%/home"} << "home/.local/share/quorvandel";
        QTest::newRow("a folder has the copy's name")
            << QStringList{"HOME=%/home"} << "home/.local/share/quorvandel/bin/quorvandel/x";
        QTest::newRow("a folder has a link's name")
            << QStringList{"HOME=%/home"} << "home/.local/share/quorvandel/share/x";
        QTest::newRow("the system's own files") << QStringList{"HOME=/proc"} << QString();
    }

    void startsTheInstalledOneWhere()
    {
        QFETCH(QStringList, variables);
        QFETCH(QString, fileInTheWay);
        const QString root = QFileInfo(scratch->path()).canonicalFilePath();
        variables.replaceInStrings("%", root);
        if (!fileInTheWay.isEmpty())
            write(root + '/' + fileInTheWay, "in the way");
        const Outcome outcome = run(variables, {"argument"});
        QCOMPARE(outcome.lines, (QStringList{installed, "argument"}));
        QCOMPARE(outcome.status, stubStatus);
        QVERIFY2(outcome.errors.startsWith(refusal), qPrintable(outcome.errors));
        QVERIFY2(outcome.errors.size() > refusal.size() + 1, "no reason is given");
    }
};

QTEST_GUILESS_MAIN(LauncherTest)
#include "tst_launcher.moc"
