// SPDX-License-Identifier: MIT
// Is a folder in a public place used only if it is this user's alone?
#include "tests/support/patience.h"
#include "virtualcamera/privatefolder.h"
#include "virtualcamera/skyfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <cstring>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using virtualsky::privateFolder;
using Arrange = std::function<void(const QByteArray &usual)>;
Q_DECLARE_METATYPE(Arrange)

namespace
{
constexpr auto folderName = "quorvandel-7";

void makeFolder(const QByteArray &path, mode_t mode)
{
    if (mkdir(path, 0700) != 0 || chmod(path, mode) != 0)
        qFatal("the folder cannot be made");
}

bool isOwn0700(const QString &path)
{
    struct stat found = {};
    return lstat(path.toLocal8Bit(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == geteuid() && (found.st_mode & 0777) == 0700;
}
} // namespace

class PrivateFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void folder_data();
    void folder();
    void lookalikes();
    void nowhere();
    void theUserIsTold_data();
    void theUserIsTold();
};

void PrivateFolderTest::folder_data()
{
    QTest::addColumn<Arrange>("arrange");
    QTest::addColumn<bool>("isUsual");
    const auto row = [](const char *text, bool isUsual, const Arrange &arrange) {
        QTest::newRow(text) << arrange << isUsual;
    };
    row("absent", true, [](const QByteArray &) {});
    row("own, 0700", true, [](const QByteArray &usual) { makeFolder(usual, 0700); });
    for (const mode_t mode : {0755U, 0770U, 0707U, 0777U, 0711U, 0500U})
        row(qPrintable(QString("own, 0%1").arg(mode, 0, 8)), false,
            [mode](const QByteArray &usual) { makeFolder(usual, mode); });
    row("link to an own folder", false, [](const QByteArray &usual) {
        makeFolder(usual + ".target", 0700);
        QVERIFY(QFile::link(usual + ".target", usual));
    });
    row("link to nothing", false,
        [](const QByteArray &usual) { QVERIFY(QFile::link("/nowhere/at/all", usual)); });
    row("file", false, [](const QByteArray &usual) {
        QFile file(usual);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(chmod(usual, 0700) == 0);
    });
    if (geteuid() == 0)
        row("of another user, 0700", false, [](const QByteArray &usual) {
            makeFolder(usual, 0700);
            QVERIFY(chown(usual, 65534, 65534) == 0);
        });
}

/// Two calls, as of two processes, find the same folder.
void PrivateFolderTest::folder()
{
    QFETCH(Arrange, arrange);
    QFETCH(bool, isUsual);
    const QTemporaryDir place;
    const QString usual = place.filePath(folderName);
    arrange(usual.toLocal8Bit());
    const QString found =
        QString::fromStdString(privateFolder(place.path().toStdString(), folderName));
    QCOMPARE(found == usual, isUsual);
    QVERIFY(isOwn0700(found));
    QVERIFY2(found.startsWith(usual), qPrintable(found));
    QCOMPARE(QString::fromStdString(privateFolder(place.path().toStdString(), folderName)), found);
}

/// What others have put there under such a name is not used either.
void PrivateFolderTest::lookalikes()
{
    const QTemporaryDir place;
    const QByteArray usual = place.filePath(folderName).toLocal8Bit();
    makeFolder(usual, 0777);
    makeFolder(usual + "-aaaaaa", 0777);
    makeFolder(usual + "-a", 0700); // of somebody else's numbering
    QVERIFY(QFile::link(usual + "-a", usual + "-aaaaab"));
    if (geteuid() == 0) {
        makeFolder(usual + "-aaaaac", 0700);
        QVERIFY(chown(usual + "-aaaaac", 65534, 65534) == 0);
    }
    const QString found =
        QString::fromStdString(privateFolder(place.path().toStdString(), folderName));
    QVERIFY(isOwn0700(found));
    QVERIFY(!found.contains("-aaaa") && !found.endsWith("-a"));
    QCOMPARE(QString::fromStdString(privateFolder(place.path().toStdString(), folderName)), found);
}

void PrivateFolderTest::nowhere()
{
    QCOMPARE(privateFolder("/proc/no/such/folder", folderName), std::string());
}

void PrivateFolderTest::theUserIsTold_data()
{
    QTest::addColumn<QString>("command"); // run in /tmp; $own is the folder
    QTest::addColumn<bool>("isTold");
    QTest::newRow("absent") << "true" << false;
    QTest::newRow("own, 0700") << "mkdir -m 700 $own" << false;
    QTest::newRow("open to others") << "mkdir -m 755 $own" << true;
    QTest::newRow("a link") << "mkdir -m 700 other && ln -s other $own" << true;
    if (geteuid() == 0)
        QTest::newRow("of another user") << "mkdir -m 700 $own && chown 65534:65534 $own" << true;
}

/// A process that asks twice for the sky file, with a /tmp of its own, says once that it uses
/// another folder, and which.
void PrivateFolderTest::theUserIsTold()
{
    QFETCH(QString, command);
    QFETCH(bool, isTold);
    const QTemporaryDir place(QDir::homePath() + "/public");
    const QString program = QCoreApplication::applicationFilePath();
    if (program.startsWith("/tmp/") || place.path().startsWith("/tmp/"))
        QSKIP("what is in /tmp would be hidden");
    QStringList arguments{"--mount",
                          "sh",
                          "-c",
                          "mount --bind \"$1\" /tmp && cd /tmp && own=quorvandel-$(id -u) && " +
                              command + " && exec \"$2\" --sky-file",
                          "sh",
                          place.path(),
                          program};
    if (geteuid() != 0)
        arguments = QStringList{"--user", "--map-root-user"} + arguments;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QUORVANDEL_SKY");
    environment.remove("XDG_RUNTIME_DIR");
    process.setProcessEnvironment(environment);
    process.start("unshare", arguments);
    QVERIFY(process.waitForFinished(patience));
    const QString errors = QString::fromUtf8(process.readAllStandardError());
    if (errors.startsWith("unshare: "))
        QSKIP("this user may not have a /tmp of its own");
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    const QRegularExpressionMatch found =
        QRegularExpression("^(/tmp/quorvandel-[0-9]+)(-[^/\n]{6})?/sky.ini\n$").match(output);
    QVERIFY2(found.hasMatch(), qPrintable(output + errors));
    QCOMPARE(found.captured(2).isEmpty(), !isTold);
    const QString sentence = QStringLiteral("virtual sky: %1 is not a folder of this user alone "
                                            "(mode 0700, no link): %1%2 is used\n")
                                 .arg(found.captured(1), found.captured(2));
    QCOMPARE(errors, isTold ? sentence : QString());
}

int main(int argc, char *argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--sky-file") == 0) {
        const std::string path = virtualsky::skyFilePath();
        std::puts((path == virtualsky::skyFilePath() ? path : "two paths").c_str());
        return 0;
    }
    const QCoreApplication application(argc, argv);
    PrivateFolderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_privatefolder.moc"
