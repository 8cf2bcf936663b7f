// SPDX-License-Identifier: MIT
// Is a file replaced as a whole where files without a name cannot get one, too?
#include "files/wholefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
bool areNamesRefused = false;
int refusals = 0;
} // namespace

// Replaces the C library's. Some file systems have files without a name and give them none.
extern "C" int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    if (!areNamesRefused)
        return int(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
    ++refusals;
    errno = EPERM;
    return -1;
}

class WholeFileTest : public QObject
{
    Q_OBJECT

private slots:
    void isReplaced_data();
    void isReplaced();
};

void WholeFileTest::isReplaced_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("refused");
    QTest::newRow("new") << false << false;
    QTest::newRow("not new") << true << false;
    QTest::newRow("new, no name later") << false << true;
    QTest::newRow("not new, no name later") << true << true;
}

/// Nothing else is left in its folder.
void WholeFileTest::isReplaced()
{
    QFETCH(bool, exists);
    QFETCH(bool, refused);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.ini");
    QFile file(path);
    if (exists)
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("a much longer text") == 18);
    file.close();
    refusals = 0;
    areNamesRefused = refused;
    const bool isWritten = files::replaceFile(path.toStdString(), "short", 0600);
    areNamesRefused = false;
    QVERIFY(isWritten);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("short"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.ini"));
    if (refused && refusals == 0)
        QSKIP("the file system has no files without a name");
}

QTEST_GUILESS_MAIN(WholeFileTest)
#include "tst_wholefile.moc"
