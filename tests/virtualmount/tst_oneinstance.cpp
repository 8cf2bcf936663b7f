// SPDX-License-Identifier: MIT
// Does a second start of the virtual mount find the existing window?
#include "tests/support/patience.h"
#include "tests/virtualmount/mounttest.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <memory>
#include <vector>

namespace
{
/// A sky file and the folder in which its windows find each other.
struct Sky {
    SkyFileFixture file;
    QTemporaryDir meeting;

    bool hasAWindow() const
    {
        const QDir folder(meeting.path());
        return !folder.entryList({"quorvandel-mount-*"}, QDir::System).isEmpty();
    }
};

/// The program on a sky file; it ends with its object.
struct Mount {
    QProcess process;
    QByteArray said;

    Mount(const Sky &sky, const QStringList &arguments) : Mount(sky, sky.file.path(), arguments) {}
    Mount(const Sky &sky, const QString &skyFile, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QUORVANDEL_SKY", skyFile);
        environment.insert("TMPDIR", sky.meeting.path());
        process.setProcessEnvironment(environment);
        process.start(MOUNT_PROGRAM, arguments);
    }
    Mount(const Mount &) = delete;
    ~Mount()
    {
        process.terminate();
        if (!process.waitForFinished(patience))
            process.kill();
        process.waitForFinished();
    }
    bool ends() { return process.waitForFinished(patience); }
    bool endsSinceThereIsOne()
    {
        if (!ends() || process.exitCode() != 0)
            return false;
        said = process.readAllStandardOutput();
        return said.contains("is open already");
    }
};
} // namespace

class OneInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void aSecondStartFindsIt_data();
    void aSecondStartFindsIt();
    void itSaysThatTheMountIsAligned_data();
    void itSaysThatTheMountIsAligned();
    void theSameByALink();
    void anotherSkyHasItsOwn();
    void ofManyAtOnceOneStays();
    void notAfterItsEnd_data();
    void notAfterItsEnd();
    void placesAreToldAllTheSame();
};

void OneInstanceTest::aSecondStartFindsIt_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("to the front") << QStringList();
    QTest::newRow("behind") << QStringList{"--behind"};
}

void OneInstanceTest::aSecondStartFindsIt()
{
    QFETCH(QStringList, arguments);
    const Sky sky;
    Mount first(sky, {});
    QTRY_VERIFY(sky.hasAWindow());
    Mount second(sky, arguments);
    QVERIFY(second.endsSinceThereIsOne());
    QCOMPARE(first.process.state(), QProcess::Running);
}

void OneInstanceTest::itSaysThatTheMountIsAligned_data()
{
    QTest::addColumn<QByteArray>("bolts");
    QTest::addColumn<bool>("aligned");
    QTest::newRow("aligned") << QByteArray("bolt_altitude = 0.01\nbolt_azimuth = 0\n") << true;
    QTest::newRow("not aligned") << QByteArray("bolt_altitude = 1\nbolt_azimuth = 0\n") << false;
}

/// The window itself has been open since it was not.
void OneInstanceTest::itSaysThatTheMountIsAligned()
{
    QFETCH(QByteArray, bolts);
    QFETCH(bool, aligned);
    const Sky sky;
    Mount first(sky, {});
    QTRY_VERIFY(sky.hasAWindow());
    sky.file.writeText("[mount]\n" + bolts);
    Mount second(sky, {});
    QVERIFY(second.endsSinceThereIsOne());
    QCOMPARE(second.said.contains("is aligned already"), aligned);
}

void OneInstanceTest::theSameByALink()
{
    const Sky sky;
    const QString link = sky.meeting.filePath("link");
    QVERIFY(QFile::link(QFileInfo(sky.file.path()).path(), link));
    Mount first(sky, {});
    QTRY_VERIFY(sky.hasAWindow());
    Mount second(sky, link + "/sky.ini", {});
    QVERIFY(second.endsSinceThereIsOne());
}

void OneInstanceTest::anotherSkyHasItsOwn()
{
    const Sky sky;
    const SkyFileFixture another;
    Mount first(sky, {});
    Mount second(sky, another.path(), {});
    const QDir folder(sky.meeting.path());
    QTRY_COMPARE(folder.entryList({"quorvandel-mount-*"}, QDir::System).size(), 2);
    QCOMPARE(first.process.state(), QProcess::Running);
    QCOMPARE(second.process.state(), QProcess::Running);
}

void OneInstanceTest::ofManyAtOnceOneStays()
{
    const Sky sky;
    std::vector<std::unique_ptr<Mount>> mounts;
    for (int i = 0; i < 4; ++i)
        mounts.push_back(std::make_unique<Mount>(sky, QStringList()));
    const auto running = [&mounts] {
        return std::count_if(mounts.begin(), mounts.end(), [](const auto &mount) {
            return mount->process.state() != QProcess::NotRunning;
        });
    };
    QTRY_COMPARE(running(), std::ptrdiff_t(1));
    QVERIFY(sky.hasAWindow());
}

void OneInstanceTest::notAfterItsEnd_data()
{
    QTest::addColumn<bool>("killed");
    QTest::newRow("closed") << false;
    QTest::newRow("killed: lock and socket are left behind") << true;
}

void OneInstanceTest::notAfterItsEnd()
{
    QFETCH(bool, killed);
    const Sky sky;
    {
        Mount first(sky, {});
        QTRY_VERIFY(sky.hasAWindow());
        if (killed)
            first.process.kill();
        else
            first.process.terminate();
        QVERIFY(first.ends());
        QCOMPARE(sky.hasAWindow(), killed);
    }
    Mount next(sky, {});
    QVERIFY(!next.process.waitForFinished(1000));
    Mount last(sky, {});
    QVERIFY(last.endsSinceThereIsOne());
    QCOMPARE(next.process.state(), QProcess::Running);
}

void OneInstanceTest::placesAreToldAllTheSame()
{
    const Sky sky;
    Mount first(sky, {});
    QTRY_VERIFY(sky.hasAWindow());
    Mount asking(sky, {"--places"});
    QVERIFY(asking.ends());
    const QString said = asking.process.readAllStandardOutput();
    const QString geometry = "\\d+x\\d+\\+\\d+\\+\\d+";
    const QRegularExpression form("^be(side|hind) " + geometry + ' ' + geometry + "\n$");
    QVERIFY2(form.match(said).hasMatch(), qPrintable(said));
}

QTEST_GUILESS_MAIN(OneInstanceTest)
#include "tst_oneinstance.moc"
