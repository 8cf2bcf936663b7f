// SPDX-License-Identifier: MIT
// Is a maker's library that hangs in a call left behind, with its process, and named?
#include <QElapsedTimer>
#include <QtTest>
#include <cerrno>
#include <sys/wait.h>

#include "cameracommand/makerslist.h"

class MakersListTest : public QObject
{
    Q_OBJECT

private slots:
    void hangs_data();
    void hangs();
    void listedWhateverItDoesAtTheEnd();
    void longList();
    void noLibrary();
    void cleanup();

private:
    MakersList list(const char *way, int patience = 300) const
    {
        qputenv("MISBEHAVING_SDK", way);
        return listMakersCameras(MISBEHAVING_FOLDER "/libveldix.so.20",
                                 std::chrono::milliseconds(patience));
    }
};

/// No process is left behind.
void MakersListTest::cleanup()
{
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void MakersListTest::hangs_data()
{
    QTest::addColumn<QByteArray>("call");
    for (const char *call : {"InitVELDIXResource", "ScanVELDIX"})
        QTest::newRow(call) << QByteArray(call);
}

void MakersListTest::hangs()
{
    QFETCH(QByteArray, call);
    const MakersList found = list(("hangs in " + call).constData(), 1000);
    QCOMPARE(int(found.lines.size()), 1);
    QCOMPARE(QByteArray::fromStdString(found.lines[0]),
             "it is there and cannot be used: it does not return within 1 seconds in " + call);
    QCOMPARE(found.usable, 0);
}

void MakersListTest::listedWhateverItDoesAtTheEnd()
{
    QElapsedTimer timer;
    timer.start();
    for (const char *way : {"hangs at the end", "crashes at the end"}) {
        const MakersList found = list(way);
        QCOMPARE(found.usable, 1);
        QCOMPARE(int(found.lines.size()), 1);
    }
    QVERIFY(timer.elapsed() < 60000);
}

void MakersListTest::longList()
{
    const MakersList found = list("too many", 10000);
    QCOMPARE(found.usable, 1024);
    QCOMPARE(QByteArray::fromStdString(found.lines.back()), QByteArray("QUORVANDEL-0815"));
}

void MakersListTest::noLibrary()
{
    const MakersList found = listMakersCameras("/nowhere/libveldix.so.20");
    QCOMPARE(found.usable, 0);
    QCOMPARE(int(found.lines.size()), 1);
    QVERIFY(QByteArray::fromStdString(found.lines[0]).startsWith("/nowhere/libveldix.so.20: "));
}

QTEST_GUILESS_MAIN(MakersListTest)
#include "tst_makerslist.moc"
