// SPDX-License-Identifier: MIT
// Which files of a checkout does a package have, and with which modes?
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// A path as users have them: blanks, and letters of several alphabets.
const QString checkoutName = QStringLiteral("Étoile polaire/北極星 (neu)");

bool write(const QString &path, const QByteArray &text, mode_t mode)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size() && chmod(QFile::encodeName(path).constData(), mode) == 0;
}

/// What `script` prints in `folder`, run by bash under this umask; empty if it fails.
QString run(const QString &folder, const QString &umask, const QString &script,
            const QStringList &arguments)
{
    QProcess bash;
    bash.setWorkingDirectory(folder);
    bash.setProcessChannelMode(QProcess::MergedChannels);
    bash.start("bash",
               QStringList{"-c", "set -e; umask " + umask + "; " + script, "bash"} + arguments);
    if (!bash.waitForFinished(60000))
        return "bash does not end";
    return bash.exitCode() == 0 ? QString() : "bash fails: " + QString::fromUtf8(bash.readAll());
}

/// The mode of each file and folder below `root`, by its relative name; links are "link".
QMap<QString, QString> modes(const QString &root)
{
    QMap<QString, QString> found;
    QDirIterator all(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        struct stat status = {};
        lstat(QFile::encodeName(path).constData(), &status);
        found.insert(QDir(root).relativeFilePath(path),
                     S_ISLNK(status.st_mode) ? QStringLiteral("link")
                                             : QString::number(status.st_mode & 07777, 8));
    }
    return found;
}
} // namespace

class SourceTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void modesAreThoseOfAPackage_data();
    void modesAreThoseOfAPackage();
    void checkoutInsideAnotherRepository();
    void fileThatCannotBeRead();
    void theRulesNormaliseTheModes();
    void theRepositoryHasTheModesOfAPackage();
};

namespace
{
/// A checkout with this mode for all its files and folders.
bool makeCheckout(const QString &root, mode_t file, mode_t folder)
{
    const bool isMade = write(root + "/tool.sh", "#!/bin/sh\n", file) &&
                        write(root + "/empty", "", file) &&
                        write(root + "/a folder/größe.txt", "text\n#!/bin/sh\n", file) &&
                        write(root + "/a folder/new\nline", "x", file) &&
                        write(root + "/picture.png", QByteArray("\0#!\0", 4), file) &&
                        write(root + "/build/leftover.o", "o", file) &&
                        write(root + "/.gitignore", "/build/\n", file) &&
                        QFile::link("a folder/größe.txt", root + "/link");
    for (const char *name : {"/a folder", "/build", ""})
        chmod(QFile::encodeName(root + name).constData(), folder);
    return isMade;
}

const QMap<QString, QString> &expected()
{
    static const QMap<QString, QString> files{{".gitignore", "644"},         {"a folder", "755"},
                                              {"a folder/größe.txt", "644"}, {"empty", "644"},
                                              {"a folder/new\nline", "644"}, {"link", "link"},
                                              {"picture.png", "644"},        {"tool.sh", "755"}};
    return files;
}

const QString layOut = QStringLiteral(". '" PROJECT_SOURCE_DIR "/packaging/sourcetree.sh'; "
                                      "lay_out_sources \"$1\"");
const QString makeRepository = QStringLiteral("export HOME=\"$PWD\"; git init -q . && git add .");
const QString deleteTracked = QStringLiteral(" && touch deleted && git add deleted && rm deleted");
} // namespace

void SourceTreeTest::modesAreThoseOfAPackage_data()
{
    QTest::addColumn<QString>("umask");
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("folder");
    QTest::addColumn<bool>("isRepository");
    for (const bool isRepository : {true, false}) {
        const char *const kind = isRepository ? "repository" : "archive";
        QTest::addRow("%s, umask 022", kind) << "022" << 0644 << 0755 << isRepository;
        QTest::addRow("%s, umask 077", kind) << "077" << 0600 << 0700 << isRepository;
        QTest::addRow("%s, umask 000", kind) << "000" << 0666 << 0777 << isRepository;
        QTest::addRow("%s, all are programs", kind) << "077" << 0700 << 02777 << isRepository;
    }
}

void SourceTreeTest::modesAreThoseOfAPackage()
{
    QFETCH(QString, umask);
    QFETCH(int, file);
    QFETCH(int, folder);
    QFETCH(bool, isRepository);
    if (isRepository && QStandardPaths::findExecutable("git").isEmpty())
        QSKIP("git is not installed");
    const QTemporaryDir scratch, target;
    const QString checkout = scratch.filePath(checkoutName);
    QVERIFY(makeCheckout(checkout, mode_t(file), mode_t(folder)));
    if (isRepository)
        QCOMPARE(run(checkout, umask, makeRepository + deleteTracked, {}), QString());
    QCOMPARE(run(checkout, umask, layOut, {target.path()}), QString());
    QCOMPARE(modes(target.path()), expected());
}

/// Its files are not the other's, which may even ignore it.
void SourceTreeTest::checkoutInsideAnotherRepository()
{
    if (QStandardPaths::findExecutable("git").isEmpty())
        QSKIP("git is not installed");
    const QTemporaryDir scratch, target;
    const QString checkout = scratch.filePath(checkoutName);
    QVERIFY(makeCheckout(checkout, 0644, 0755));
    QVERIFY(write(scratch.filePath(".gitignore"), "*\n", 0644));
    QCOMPARE(run(scratch.path(), "022", makeRepository, {}), QString());
    QCOMPARE(run(checkout, "022", layOut, {target.path()}), QString());
    QCOMPARE(modes(target.path()), expected());
}

/// A package without it would be wrong.
void SourceTreeTest::fileThatCannotBeRead()
{
    const QTemporaryDir scratch, target;
    const QString checkout = scratch.filePath(checkoutName);
    QVERIFY(makeCheckout(checkout, 0644, 0755));
    QVERIFY(write(checkout + "/secret", "x", 0));
    const QString functions = scratch.filePath("sourcetree.sh"); // the project may be out of reach
    QVERIFY(QFile::copy(PROJECT_SOURCE_DIR "/packaging/sourcetree.sh", functions));
    chmod(QFile::encodeName(functions).constData(), 0644);
    chmod(QFile::encodeName(scratch.path()).constData(), 0755);
    QString user = "exec ";
    if (geteuid() == 0) { // can read every file
        user += "setpriv --reuid 65534 --regid 65534 --clear-groups ";
        QCOMPARE(chown(QFile::encodeName(target.path()).constData(), 65534, 65534), 0);
    }
    const QString script = user + "bash -c \". '" + functions + "'; lay_out_sources '$1'\"";
    const QString result = run(checkout, "022", script, {target.path()});
    QVERIFY2(result.startsWith("bash fails") && result.contains("secret"), qPrintable(result));
}

/// What `dpkg-buildpackage` runs in a checkout, before it makes the source package.
void SourceTreeTest::theRulesNormaliseTheModes()
{
    const QTemporaryDir scratch;
    const QString checkout = scratch.filePath(checkoutName);
    QVERIFY(makeCheckout(checkout, 0700, 0700));
    QVERIFY(write(checkout + "/.git/hook", "#!/bin/sh\n", 0600));
    for (const char *const name : {"/packaging/sourcetree.sh", "/debian/rules"})
        QVERIFY(QDir().mkpath(QFileInfo(checkout + name).path()) &&
                QFile::copy(PROJECT_SOURCE_DIR + QString(name), checkout + name));
    QCOMPARE(run(checkout, "077", "make -f debian/rules execute_after_dh_clean", {}), QString());
    QMap<QString, QString> wanted = expected();
    for (const char *const folder : {"packaging", "debian"})
        wanted.insert(folder, "755");
    wanted.insert("packaging/sourcetree.sh", "644");
    wanted.insert("debian/rules", "755");
    // These are not the package's.
    wanted.insert("build", "700");
    wanted.insert("build/leftover.o", "700");
    wanted.insert(".git", modes(checkout).value(".git"));
    wanted.insert(".git/hook", "600");
    QCOMPARE(modes(checkout), wanted);
}

/// So that building a package in a checkout changes none of its files.
void SourceTreeTest::theRepositoryHasTheModesOfAPackage()
{
    const QTemporaryDir target;
    const QString repository = PROJECT_SOURCE_DIR;
    if (!QFileInfo::exists(repository + "/.git"))
        QSKIP("not a repository");
    const QString compare = "; git ls-files -s | while read -r mode _ _ name; do "
                            "is=100$(stat -c %a -- \"$1/$name\") || continue; "
                            "[ \"$is\" = \"$mode\" ] || { echo \"$name: $mode\"; exit 1; }; done";
    QCOMPARE(run(repository, "022", layOut + compare, {target.path()}), QString());
}

QTEST_GUILESS_MAIN(SourceTreeTest)
#include "tst_sourcetree.moc"
