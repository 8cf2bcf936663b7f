// SPDX-License-Identifier: MIT
// Are a lens' values written where they count, and is a file that must not be changed left alone?
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>
#include <unistd.h>

#include "cameracommand/lenswriting.h"
#include "tests/support/filetext.h"
#include "tests/support/ordinaryuser.h"
#include "virtualcamera/skyfile.h"

using virtualsky::Source;
Q_DECLARE_METATYPE(LensWriting)
Q_DECLARE_METATYPE(virtualsky::Source)

namespace
{
const MeasuredLens lens{20.0, false};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}
} // namespace

class LensWritingTest : public QObject
{
    Q_OBJECT

private slots:
    void whereItCounts_data();
    void whereItCounts();
    void makesTheFile();
    void keepsLinkAndPermissions();
    void leavesWhatItMustNotChange_data();
    void leavesWhatItMustNotChange();
    void leavesAnotherUsersFile();
    void leavesWhatAnOrdinaryUserMustNotChange();
};

void LensWritingTest::whereItCounts_data()
{
    QTest::addColumn<LensWriting>("writing");
    QTest::addColumn<Source>("checked");
    QTest::addColumn<QByteArray>("sky");
    QTest::addColumn<bool>("isWritten");
    const auto row = [](const char *name, LensWriting writing, Source checked, const char *sky,
                        bool isWritten) {
        QTest::newRow(name) << writing << checked << "[camera]\n" + QByteArray(sky) << isWritten;
    };
    constexpr LensWriting usual = LensWriting::WhereItCounts, always = LensWriting::Always,
                          never = LensWriting::Never;
    row("INDI", usual, Source::Indi, "", true);
    row("INDI, another lens", usual, Source::Indi, "scale = 6\n", true);
    row("INDI, at wish not", never, Source::Indi, "", false);
    row("the virtual sky", usual, Source::Sky, "", false);
    row("the virtual sky at wish", always, Source::Sky, "", true);
    row("files", usual, Source::Files, "", true);
    row("files, auto", usual, Source::Files, "scale = auto\nmirrored = auto\n", true);
    row("files, native, mirrored", usual, Source::Files, "mirrored = true\n", true);
    row("files, the same lens", usual, Source::Files, "scale = 19.9\n", true);
    row("files, the same lens, mirrored auto", usual, Source::Files,
        "scale = 20.1\nmirrored = auto\n", true);
    row("files, another lens", usual, Source::Files, "scale = 19.7\n", false);
    row("files, another lens above", usual, Source::Files, "scale = 20.3\n", false);
    row("files, a mirrored lens", usual, Source::Files, "scale = 20\nmirrored = true\n", false);
    row("files, another lens at wish", always, Source::Files, "scale = 6\n", true);
    row("files are the chosen camera", usual, Source::Files, "scale = 6\nsource = files\n", true);
    row("INDI is the chosen camera", usual, Source::Files, "scale = 6\nsource = indi\n", false);
}

void LensWritingTest::whereItCounts()
{
    QFETCH(LensWriting, writing);
    QFETCH(Source, checked);
    QFETCH(QByteArray, sky);
    QFETCH(bool, isWritten);
    const std::string reason =
        reasonToLeave(writing, checked, virtualsky::parse(sky.toStdString()), lens);
    QCOMPARE(reason.empty(), isWritten);
}

void LensWritingTest::makesTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("new/sky.ini");
    QVERIFY(writeLens(path.toStdString(), lens));
    QCOMPARE(bytesOf(path), QByteArray("[camera]\nscale = 20.000\nmirrored = false\n"));
    QVERIFY(writeLens(path.toStdString(), {20.0, false, true}));
    QCOMPARE(bytesOf(path),
             QByteArray("[camera]\nsoften = true\nscale = 20.000\nmirrored = false\n"));
    QVERIFY(writeLens(path.toStdString(), lens)); // another lens
    QCOMPARE(bytesOf(path),
             QByteArray("[camera]\nsoften = false\nscale = 20.000\nmirrored = false\n"));
}

void LensWritingTest::keepsLinkAndPermissions()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("real.ini"), link = folder.filePath("sky.ini");
    write(path, "[time]\n");
    QCOMPARE(::chmod(path.toLocal8Bit().constData(), 0640), 0);
    QVERIFY(QFile::link(path, link));
    QVERIFY(writeLens(link.toStdString(), lens));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(bytesOf(path).contains("scale = 20.000\n"));
    struct stat status = {};
    QCOMPARE(::stat(path.toLocal8Bit().constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0640);
}

void LensWritingTest::leavesWhatItMustNotChange_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another program's") << QByteArray("{\"scale\": 3}\n");
    QTest::newRow("an unknown key") << QByteArray("[camera]\nscales = 3\n");
    QTest::newRow("half-written") << QByteArray("[camera]\nscale = 3");
    QTest::newRow("scale twice") << QByteArray("[camera]\nscale = 3\nscale = 4\n");
    QTest::newRow("no more room") << QByteArray(65530, '#') + '\n';
    QTest::newRow("too long") << QByteArray(70000, '#') + '\n';
}

void LensWritingTest::leavesWhatItMustNotChange()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    const QString path = folder.filePath("sky.ini");
    write(path, bytes);
    QVERIFY(!writeLens(path.toStdString(), lens));
    QVERIFY(bytesOf(path) == bytes);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("sky.ini"));
    // In place of the file: a folder, a pipe, which nobody writes to, and a device.
    QVERIFY(QDir(folder.path()).mkdir("d"));
    QVERIFY(!writeLens(folder.filePath("d").toStdString(), lens));
    const QByteArray pipe = folder.filePath("p").toLocal8Bit();
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QVERIFY(!writeLens(pipe.toStdString(), lens));
    QVERIFY(!writeLens("/dev/null/sky.ini", lens));
}

void LensWritingTest::leavesAnotherUsersFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("sky.ini");
    write(path, "[time]\n");
    if (::geteuid() != 0)
        QSKIP("only root can give a file away");
    QCOMPARE(::chown(path.toLocal8Bit().constData(), OrdinaryUser::number, gid_t(-1)), 0);
    QVERIFY(!writeLens(path.toStdString(), lens));
    QCOMPARE(bytesOf(path), QByteArray("[time]\n"));
    QCOMPARE(QFileInfo(path).ownerId(), uint(OrdinaryUser::number));
}

void LensWritingTest::leavesWhatAnOrdinaryUserMustNotChange()
{
    const QTemporaryDir folder;
    const QByteArray place = folder.path().toLocal8Bit();
    const QString path = folder.filePath("sky.ini");
    write(path, "[time]\n");
    const bool isRoot = ::geteuid() == 0;
    const auto give = [isRoot](const QByteArray &name, uid_t user) {
        return !isRoot || ::chown(name.constData(), user, gid_t(-1)) == 0;
    };
    QVERIFY(give(place, OrdinaryUser::number) && give(path.toLocal8Bit(), OrdinaryUser::number));
    {
        const OrdinaryUser user;
        QCOMPARE(::chmod(path.toLocal8Bit().constData(), 0400), 0);
        QVERIFY(!writeLens(path.toStdString(), lens)); // a file that must not be written to
        QCOMPARE(::chmod(path.toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(::chmod(place.constData(), 0500), 0);
        QVERIFY(!writeLens(path.toStdString(), lens)); // a folder that must not be
        QCOMPARE(bytesOf(path), QByteArray("[time]\n"));
        QCOMPARE(::chmod(place.constData(), 0700), 0);
        QVERIFY(writeLens(path.toStdString(), lens));
    }
    QVERIFY(give(place, ::geteuid()));
}

QTEST_GUILESS_MAIN(LensWritingTest)
#include "tst_lenswriting.moc"
