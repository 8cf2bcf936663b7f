// SPDX-License-Identifier: MIT
// Does a change of the sky file take effect, and does a bad one leave the sky unchanged?
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <cerrno>

#include "virtualcamera/skyfile.h"
#include "virtualcamera/skywatch.h"

using namespace virtualsky;

namespace
{
class Fixture
{
public:
    Fixture()
        : path((folder.path() + "/deep/er/sky.ini").toStdString()),
          watch(path,
                [this](const std::string &text) { reports.append(QString::fromStdString(text)); })
    {
    }

    void write(const std::string &text) { QVERIFY(writeAtomically(path, text)); }
    // Like a careless editor: the same file, in place.
    void overwrite(const QByteArray &text)
    {
        QFile file(QString::fromStdString(path));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    double latitude() { return watch.current().latitude; }

    QTemporaryDir folder;
    std::string path;
    QStringList reports;
    SkyWatch watch;
};
} // namespace

class SkyWatchTest : public QObject
{
    Q_OBJECT

private slots:
    void absentFileIsTheDefaults();
    void changeArrivesAtOnce();
    void changeOfTheSameLengthArrivesAtOnce();
    void changeWithinOneStampArrives();
    void badFileKeepsTheLastGoodState_data();
    void badFileKeepsTheLastGoodState();
    void faultIsReportedOnce();
    void sameFaultAfterAGoodFileIsReportedAgain();
    void sameFaultAfterTheFileWasRemovedIsReportedAgain();
    void badFileAtTheStartIsTheDefaults();
    void removedFileIsTheDefaults();
    void strangeFilesAreReported_data();
    void strangeFilesAreReported();
    void nothingIsReadWithoutAChange();
    void writesInOneGo();
    void writesThroughLinks();
    void aRingOfLinksIsAFailure();
    void writeFailureLeavesTheFile();
    void pathIsFound_data();
    void pathIsFound();
};

void SkyWatchTest::absentFileIsTheDefaults()
{
    Fixture f;
    QCOMPARE(format(f.watch.current()), format(SkyState()));
    QVERIFY(f.reports.isEmpty());
}

void SkyWatchTest::changeArrivesAtOnce()
{
    Fixture f;
    QCOMPARE(f.latitude(), 40.0);
    f.write("[site]\nlatitude = -30\n");
    QCOMPARE(f.latitude(), -30.0);
    f.write("[site]\nlongitude = 5\n");
    QCOMPARE(f.latitude(), 40.0);
    QVERIFY(f.reports.isEmpty());
}

void SkyWatchTest::changeOfTheSameLengthArrivesAtOnce()
{
    Fixture f;
    f.write("\n");
    for (int degrees = 10; degrees < 60; ++degrees) {
        f.overwrite("[site]\nlatitude = " + QByteArray::number(degrees) + '\n');
        QCOMPARE(f.latitude(), double(degrees));
    }
}

void SkyWatchTest::changeWithinOneStampArrives()
{
    Fixture f;
    f.write("[site]\nlatitude = 10\n");
    struct stat first = {};
    QCOMPARE(::stat(f.path.c_str(), &first), 0);
    QCOMPARE(f.latitude(), 10.0);
    f.overwrite("[site]\nlatitude = 20\n");
    // Like on a file system whose clock has not ticked between the two.
    const timespec times[] = {first.st_atim, first.st_mtim};
    QCOMPARE(::utimensat(AT_FDCWD, f.path.c_str(), times, 0), 0);
    QCOMPARE(f.latitude(), 20.0);
}

void SkyWatchTest::badFileKeepsTheLastGoodState_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    QTest::newRow("half-written") << QByteArray("[site]\nlatitude = 5") << "line 2: ";
    QTest::newRow("out of range") << QByteArray("[site]\nlatitude = 95\n") << "line 2: latitude: ";
    QTest::newRow("unknown key") << QByteArray("[site]\nlat = 5\n") << "line 2: lat: ";
    QTest::newRow("good keys before the bad one")
        << QByteArray("[site]\nlatitude = 5\nlongitude = x\n") << "line 3: longitude: ";
    QTest::newRow("empty") << QByteArray() << "the file is empty";
    QTest::newRow("too long") << QByteArray("#") + QByteArray(70000, 'x') + '\n'
                              << "longer than 64 KiB";
}

void SkyWatchTest::badFileKeepsTheLastGoodState()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    Fixture f;
    f.write("[site]\nlatitude = -30\n");
    QCOMPARE(f.latitude(), -30.0);
    f.overwrite(text);
    QCOMPARE(f.latitude(), -30.0);
    QCOMPARE(f.reports.size(), 1);
    QVERIFY2(f.reports[0].startsWith(QString::fromStdString(f.path) + ": " + fault),
             qPrintable(f.reports[0]));
    QVERIFY(!f.reports[0].contains('\n'));
    f.write("[site]\nlatitude = -31\n");
    QCOMPARE(f.latitude(), -31.0);
    QCOMPARE(f.reports.size(), 1);
}

void SkyWatchTest::faultIsReportedOnce()
{
    Fixture f;
    f.write("[site]\nlatitude = 95\n");
    for (int i = 0; i < 5; ++i)
        f.watch.current();
    QCOMPARE(f.reports.size(), 1);
    f.write("[site]\nlatitude = 95\n");
    f.watch.current();
    QTest::qWait(150);
    f.watch.current();
    QCOMPARE(f.reports.size(), 1);
    f.write("[site]\nlongitude = 195\n");
    f.watch.current();
    QCOMPARE(f.reports.size(), 2);
}

void SkyWatchTest::sameFaultAfterAGoodFileIsReportedAgain()
{
    Fixture f;
    for (int i = 0; i < 3; ++i) {
        f.write("[site]\nlatitude = 95\n");
        f.watch.current();
        f.write("[site]\nlatitude = 5\n");
        QCOMPARE(f.latitude(), 5.0);
    }
    QCOMPARE(f.reports.size(), 3);
}

void SkyWatchTest::sameFaultAfterTheFileWasRemovedIsReportedAgain()
{
    Fixture f;
    for (int i = 1; i <= 3; ++i) {
        f.write("[site]\nlatitude = 95\n");
        f.watch.current();
        QCOMPARE(f.reports.size(), i);
        QVERIFY(QFile::remove(QString::fromStdString(f.path)));
        QCOMPARE(f.latitude(), 40.0);
    }
}

void SkyWatchTest::badFileAtTheStartIsTheDefaults()
{
    Fixture f;
    f.write("nonsense\n");
    QCOMPARE(f.latitude(), 40.0);
    QCOMPARE(f.reports.size(), 1);
}

void SkyWatchTest::removedFileIsTheDefaults()
{
    Fixture f;
    f.write("[site]\nlatitude = 5\n");
    QCOMPARE(f.latitude(), 5.0);
    QVERIFY(QFile::remove(QString::fromStdString(f.path)));
    QCOMPARE(f.latitude(), 40.0);
    QVERIFY(f.reports.isEmpty());
}

void SkyWatchTest::strangeFilesAreReported_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("folder") << "folder";
    QTest::newRow("pipe") << "pipe";
}

void SkyWatchTest::strangeFilesAreReported()
{
    QFETCH(QString, kind);
    Fixture f;
    f.write("\n");
    QVERIFY(QFile::remove(QString::fromStdString(f.path)));
    const int made =
        kind == "pipe" ? ::mkfifo(f.path.c_str(), 0600) : ::mkdir(f.path.c_str(), 0700);
    QCOMPARE(made, 0);
    QCOMPARE(f.latitude(), 40.0);
    QCOMPARE(f.reports.size(), 1);
    QVERIFY(f.reports[0].contains("not an ordinary file"));
}

void SkyWatchTest::nothingIsReadWithoutAChange()
{
    Fixture f;
    f.write("[site]\nlatitude = 5\n");
    utimbuf old = {1000000000, 1000000000};
    QCOMPARE(::utime(f.path.c_str(), &old), 0);
    QCOMPARE(f.latitude(), 5.0);
    // The same stamp hides the new text: it is not read again.
    f.overwrite("[site]\nlatitude = 6\n");
    QCOMPARE(::utime(f.path.c_str(), &old), 0);
    QCOMPARE(f.latitude(), 5.0);
}

void SkyWatchTest::writesInOneGo()
{
    Fixture f;
    f.write("[site]\nlatitude = 5\n");
    const QFileInfo file(QString::fromStdString(f.path));
    QCOMPARE(file.dir().entryList(QDir::Files | QDir::Hidden), QStringList("sky.ini"));
    QFile kept(file.filePath());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    f.write("[site]\nlatitude = 6\n");
    // A reader that had the old file open still reads the old text.
    QCOMPARE(kept.readAll(), QByteArray("[site]\nlatitude = 5\n"));
    QCOMPARE(file.dir().entryList(QDir::Files | QDir::Hidden), QStringList("sky.ini"));
    QVERIFY(!(QFileInfo(file.dir().path()).permissions() & (QFile::ReadOther | QFile::WriteOther)));
}

void SkyWatchTest::writesThroughLinks()
{
    QTemporaryDir folder;
    const auto in = [&](const char *name) { return folder.filePath(name); };
    QVERIFY(QDir().mkpath(in("skies")));
    QVERIFY(QFile::link("skies/tonight.ini", in("near.ini"))); // relative to its own folder
    QVERIFY(QFile::link(in("near.ini"), in("far.ini")));
    for (const std::string text : {"[site]\nlatitude = 5\n", "[site]\nlatitude = 6\n"}) {
        QVERIFY(writeAtomically(in("far.ini").toStdString(), text));
        QVERIFY(QFileInfo(in("far.ini")).isSymLink() && QFileInfo(in("near.ini")).isSymLink());
        QFile file(in("skies/tonight.ini"));
        QVERIFY(!QFileInfo(file).isSymLink() && file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().toStdString(), text);
    }
    QCOMPARE(QDir(in("skies")).entryList(QDir::Files | QDir::Hidden), QStringList("tonight.ini"));
}

void SkyWatchTest::aRingOfLinksIsAFailure()
{
    QTemporaryDir folder;
    QVERIFY(QFile::link("b.ini", folder.filePath("a.ini")));
    QVERIFY(QFile::link("a.ini", folder.filePath("b.ini")));
    errno = 0;
    QVERIFY(!writeAtomically(folder.filePath("a.ini").toStdString(), "\n"));
    QCOMPARE(errno, ELOOP);
    QVERIFY(QFileInfo(folder.filePath("a.ini")).isSymLink());
}

void SkyWatchTest::writeFailureLeavesTheFile()
{
    QTemporaryDir folder;
    const std::string blocked = (folder.path() + "/sky.ini").toStdString();
    QVERIFY(QDir().mkpath(folder.path() + "/sky.ini/inside"));
    QVERIFY(!writeAtomically(blocked, "\n"));
    QVERIFY(errno != 0);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    QVERIFY(!writeAtomically("/proc/no/such/folder/sky.ini", "\n"));
}

void SkyWatchTest::pathIsFound_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<QByteArray>("runtime");
    QTest::addColumn<QString>("path");
    const QString fallback = QStringLiteral("/tmp/quorvandel-%1/sky.ini").arg(::getuid());
    QTest::newRow("runtime folder")
        << QByteArray() << QByteArray("/run/user/7") << "/run/user/7/quorvandel/sky.ini";
    QTest::newRow("own variable first")
        << QByteArray("/a/b.ini") << QByteArray("/run/user/7") << "/a/b.ini";
    QTest::newRow("neither") << QByteArray() << QByteArray() << fallback;
    QTest::newRow("relative runtime folder") << QByteArray() << QByteArray("run") << fallback;
}

void SkyWatchTest::pathIsFound()
{
    QFETCH(QByteArray, own);
    QFETCH(QByteArray, runtime);
    QFETCH(QString, path);
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    own.isEmpty() ? qunsetenv("QUORVANDEL_SKY") : qputenv("QUORVANDEL_SKY", own);
    runtime.isEmpty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime);
    const std::string found = skyFilePath();
    qputenv("XDG_RUNTIME_DIR", before);
    qunsetenv("QUORVANDEL_SKY");
    QCOMPARE(QString::fromStdString(found), path);
}

QTEST_GUILESS_MAIN(SkyWatchTest)
#include "tst_skywatch.moc"
