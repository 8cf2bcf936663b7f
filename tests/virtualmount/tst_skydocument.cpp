// SPDX-License-Identifier: MIT
// Does the sky file keep what others wrote, whatever is changed by hand, and is it always complete?
#include "tests/virtualmount/mounttest.h"
#include "virtualmount/mountmodel.h"
#include "virtualmount/skydocument.h"
#include "virtualmount/skytext.h"

#include <QDir>
#include <QLockFile>
#include <QtTest>
#include <atomic>
#include <limits>
#include <thread>

using virtualmount::SkyDocument;
using virtualsky::SkyState;

class SkyDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void changedText_data();
    void changedText();
    void everyKeyCanBeChanged();
    void noFileMeansTheDefaults();
    void theFirstChangeWritesEveryKey();
    void anEditorsChangesStay();
    void aFaultIsToldAndKept_data();
    void aFaultIsToldAndKept();
    void aMendedFileIsTaken();
    void replaceWritesTheLastGoodState();
    void replaceLeavesAGoodFileAlone();
    void whatOthersWroteIsKeptApart();
    void aLinkStaysALink();
    void aRemovedFileMeansTheDefaults();
    void nothingIsWrittenWhereNothingChanges();
    void whatTheCameraWouldRefuseIsNotWritten();
    void anUnwritablePlaceIsTold();
    void aHeldLockIsTold();
    void aHeldLockKeepsTheFaultyFile();
    void readersNeverSeeAPart();
    void handsAtOnceLoseNothing();
};

void SkyDocumentTest::changedText_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    // The change: latitude -33.5, tracking on, fail = OpenVELDIX.
    const QByteArray faults = "[faults]\nfail = OpenVELDIX\n";
    QTest::newRow("comments and order stay")
        << QByteArray("# mine\n[faults]\nfail= # none yet\n\n[mount]\n  tracking=false;off\n"
                      "ra_angle = 7\n[site]\nlatitude = 1e1\n")
        << QByteArray("# mine\n[faults]\nfail = OpenVELDIX  # none yet\n\n[mount]\n"
                      "tracking = true  ;off\nra_angle = 7\n[site]\nlatitude = -33.5\n");
    QTest::newRow("keys that are not there yet")
        << QByteArray("[mount]\nra_angle = 7\n\n# below\n[site]\nlongitude = 3\n[faults]\n")
        << QByteArray("[mount]\nra_angle = 7\ntracking = true\n\n# below\n[site]\nlongitude = 3\n"
                      "latitude = -33.5\n[faults]\nfail = OpenVELDIX\n");
    QTest::newRow("no section yet")
        << QByteArray("# nothing\n")
        << "# nothing\n[site]\nlatitude = -33.5\n[mount]\ntracking = true\n" + faults;
    QTest::newRow("a section in two places")
        << "[site]\n[mount]\n[site]\nlatitude = 5\n" + faults
        << "[site]\n[mount]\ntracking = true\n[site]\nlatitude = -33.5\n" + faults;
    QTest::newRow("line ends of another system")
        << QByteArray("[site]\r\nlatitude = 5 # north\r\nlongitude = 6\r\n[mount]\r\n" + faults)
        << "[site]\r\nlatitude = -33.5  # north\r\nlongitude = 6\r\n[mount]\r\ntracking = true\n" +
               faults;
    QTest::newRow("names alike in other sections")
        << QByteArray("[ mount ]\ntracking_since = start\ntracking = false\n[site]\n"
                      "longitude = 2 ; latitude = 3\n" +
                      faults)
        << "[ mount ]\ntracking_since = start\ntracking = true\n[site]\n"
           "longitude = 2 ; latitude = 3\nlatitude = -33.5\n" +
               faults;
}

void SkyDocumentTest::changedText()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const SkyState old = virtualsky::parse(before.toStdString());
    SkyState state = old;
    state.latitude = -33.5;
    state.tracking = true;
    state.fail.reset();
    state.fail.set(3); // OpenVELDIX
    const std::string changed = virtualmount::withChanges(before.toStdString(), old, state);
    QCOMPARE(QByteArray::fromStdString(changed), after);
    QCOMPARE(virtualsky::format(virtualsky::parse(changed)), virtualsky::format(state));
}

void SkyDocumentTest::everyKeyCanBeChanged()
{
    SkyState other;
    other = virtualsky::parse(
        "[site]\nlatitude = 1\nlongitude = 2\n"
        "[time]\ndate = 2026-11-20T20:00:00Z\nrunning = false\n"
        "[mount]\nbolt_altitude = 1\nbolt_azimuth = 2\nra_angle = 3\n"
        "tracking = true\ntracking_since = 2026-11-20T19:00:00.125Z\n"
        "[camera]\naxis_x = 1\naxis_y = 2\nroll = 3\nchannels = 3\n"
        "unthrottled = true\nlabel = false\n[sensor]\nseed = 4294967295\nnoise = false\n"
        "hot_pixels = 0\nfwhm = 1\nseeing = 0.1\n[weather]\n"
        "sky_magnitude = 21\nclouds = 0.1\nmoon = 0.2\nrefraction = true\n"
        "pressure = 1\ntemperature = -2\nhumidity = 0\n[faults]\n"
        "fail = InitVELDIX, StopVELDIXLive\ncameras = 2\nunplugged = true\n"
        "slow = 1\npicture = black\n");
    const std::string changed = virtualmount::withChanges("# bare\n", SkyState(), other);
    QCOMPARE(virtualsky::format(virtualsky::parse(changed)), virtualsky::format(other));
    const std::string full = virtualsky::format(SkyState());
    QCOMPARE(virtualmount::withChanges(full, SkyState(), other), virtualsky::format(other));
    QCOMPARE(virtualmount::withChanges(full, SkyState(), SkyState()), full);
}

void SkyDocumentTest::noFileMeansTheDefaults()
{
    const SkyFileFixture file;
    SkyDocument document(file.path());
    QCOMPARE(virtualsky::format(document.state()), virtualsky::format(SkyState()));
    QVERIFY(document.fault().isEmpty());
    QVERIFY(!document.refresh());
    QVERIFY(!QFile::exists(file.path())); // reading does not write
}

void SkyDocumentTest::theFirstChangeWritesEveryKey()
{
    const SkyFileFixture file;
    SkyDocument document(file.path());
    QVERIFY(document.change([](SkyState &state) { state.moon = 0.25; }));
    SkyState expected;
    expected.moon = 0.25;
    QCOMPARE(file.text().toStdString(), virtualsky::format(expected));
    QCOMPARE(document.state().moon, 0.25);
    QVERIFY(!QFile::exists(file.path() + ".lock"));
}

void SkyDocumentTest::anEditorsChangesStay()
{
    const SkyFileFixture file;
    SkyDocument document(file.path());
    file.writeText("[weather]\nclouds = 0.5 # thick\n[mount]\nra_angle = 12\n");
    QVERIFY(document.change([](SkyState &state) { virtualmount::turnAxis(state, 3.0); }));
    QCOMPARE(file.text(), QByteArray("[weather]\nclouds = 0.5 # thick\n[mount]\nra_angle = 15\n"));
    QCOMPARE(document.state().clouds, 0.5);
}

void SkyDocumentTest::aFaultIsToldAndKept_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    QTest::newRow("a value") << QByteArray("[site]\nlatitude = 91\n")
                             << "line 2: latitude: must lie between -90 and 90";
    QTest::newRow("half-written") << QByteArray("[site]\nlatit")
                                  << "line 2: the last line has no end: the file is half-written";
    QTest::newRow("empty") << QByteArray() << "the file is empty";
    QTest::newRow("too long") << QByteArray(70000, '#') << "longer than 64 KiB";
}

void SkyDocumentTest::aFaultIsToldAndKept()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    const SkyFileFixture file;
    file.writeText("[weather]\nmoon = 0.5\n");
    SkyDocument document(file.path());
    file.writeText(text);
    QVERIFY(document.refresh());
    QCOMPARE(document.fault(), fault);
    QVERIFY(!document.refresh()); // reported once
    QVERIFY(!document.change([](SkyState &state) { state.latitude = 10.0; }));
    QCOMPARE(file.text(), text);
    QCOMPARE(document.fault(), fault);
    QCOMPARE(document.state().moon, 0.5);
    QCOMPARE(document.state().latitude, 40.0);
}

void SkyDocumentTest::aMendedFileIsTaken()
{
    const SkyFileFixture file;
    file.writeText("nonsense\n");
    SkyDocument document(file.path());
    QVERIFY(!document.fault().isEmpty());
    file.writeText("[site]\nlatitude = 12\n");
    QVERIFY(document.change([](SkyState &state) { state.longitude = 13.0; }));
    QVERIFY(document.fault().isEmpty());
    QCOMPARE(file.text(), QByteArray("[site]\nlatitude = 12\nlongitude = 13\n"));
}

void SkyDocumentTest::replaceWritesTheLastGoodState()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 12\n");
    SkyDocument document(file.path());
    file.writeText("nonsense\n");
    QVERIFY(document.replace());
    QVERIFY(document.fault().isEmpty());
    SkyState expected;
    expected.latitude = 12.0;
    QCOMPARE(file.text().toStdString(), virtualsky::format(expected));
    QVERIFY(!document.refresh());
}

/// What was found, with the changes of others and without our own.
void SkyDocumentTest::whatOthersWroteIsKeptApart()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 12\n");
    SkyDocument document(file.path());
    QVERIFY(document.change([](SkyState &state) {
        state.latitude = 20.0;
        state.moon = 0.5;
    }));
    QCOMPARE(document.found().latitude, 12.0);
    QCOMPARE(document.found().moon, 0.0);
    // Before a change as well as at a poll; a key that others have set is theirs from then on.
    file.writeText(file.text() + "clouds = 0.25\n");
    QVERIFY(document.change([](SkyState &state) { state.latitude = 21.0; }));
    file.writeText(file.text().replace("moon = 0.5", "moon = 0.75"));
    QVERIFY(document.refresh());
    SkyState expected;
    expected.latitude = 12.0;
    expected.moon = 0.75;
    expected.clouds = 0.25;
    QCOMPARE(virtualsky::format(document.found()), virtualsky::format(expected));
    file.writeText("nonsense\n");
    document.refresh();
    QCOMPARE(virtualsky::format(document.found()), virtualsky::format(expected));
}

void SkyDocumentTest::aLinkStaysALink()
{
    const SkyFileFixture file;
    const QTemporaryDir elsewhere;
    const QString real = elsewhere.filePath("mine.ini");
    QVERIFY(QFile::link(real, file.path()));
    SkyDocument document(file.path());
    for (const double latitude : {12.0, 13.0}) { // first without the link's target
        QVERIFY(document.change([latitude](SkyState &state) { state.latitude = latitude; }));
        QVERIFY(QFileInfo(file.path()).isSymLink());
        QCOMPARE(file.state().latitude, latitude);
        QCOMPARE(QFileInfo(file.path()).symLinkTarget(), real);
    }
    QCOMPARE(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden), QStringList("mine.ini"));
    QVERIFY(!document.refresh());
}

void SkyDocumentTest::replaceLeavesAGoodFileAlone()
{
    const SkyFileFixture file;
    file.writeText("nonsense\n");
    SkyDocument document(file.path());
    const QByteArray corrected = "[site]\nlatitude = 12 # fixed meanwhile\n";
    file.writeText(corrected);
    QVERIFY(document.replace());
    QCOMPARE(file.text(), corrected);
    QCOMPARE(document.state().latitude, 12.0);
}

void SkyDocumentTest::aRemovedFileMeansTheDefaults()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 12\n");
    SkyDocument document(file.path());
    QVERIFY(QFile::remove(file.path()));
    QVERIFY(document.refresh());
    QCOMPARE(document.state().latitude, 40.0);
}

void SkyDocumentTest::nothingIsWrittenWhereNothingChanges()
{
    const SkyFileFixture file;
    const QByteArray text = "[site]\nlatitude = 1.20e1 # as I like it\n";
    file.writeText(text);
    SkyDocument document(file.path());
    QVERIFY(document.change([](SkyState &state) { state.latitude = 12.0; }));
    QCOMPARE(file.text(), text);
}

void SkyDocumentTest::whatTheCameraWouldRefuseIsNotWritten()
{
    const SkyFileFixture file;
    const QByteArray text = "[site]\nlatitude = 12\n";
    file.writeText(text);
    SkyDocument document(file.path());
    QVERIFY(!document.change(
        [](SkyState &state) { state.latitude = std::numeric_limits<double>::quiet_NaN(); }));
    QVERIFY(!document.writeFault().isEmpty());
    QCOMPARE(file.text(), text);
    QCOMPARE(document.state().latitude, 12.0);
    QVERIFY(document.change([](SkyState &state) { state.latitude = 13.0; }));
    QVERIFY(document.writeFault().isEmpty());
}

void SkyDocumentTest::anUnwritablePlaceIsTold()
{
    const SkyFileFixture file;
    file.writeText("[site]\n");
    SkyDocument below(file.path() + "/sky.ini"); // a file is not a folder
    QVERIFY(!below.change([](SkyState &state) { state.moon = 1.0; }));
    QCOMPARE(below.writeFault(), QString("Not a directory"));
    QCOMPARE(below.state().moon, 0.0);

    const QTemporaryDir folder;
    SkyDocument instead(folder.path()); // a folder is not a file
    QCOMPARE(instead.fault(), QString("not an ordinary file"));
    QVERIFY(!instead.replace());
    QVERIFY(!instead.fault().isEmpty());
    QVERIFY(!instead.writeFault().isEmpty());
}

void SkyDocumentTest::aHeldLockIsTold()
{
    const SkyFileFixture file;
    const QByteArray text = "[site]\nlatitude = 12\n";
    file.writeText(text);
    SkyDocument document(file.path());
    QLockFile held(file.path() + ".lock");
    QVERIFY(held.tryLock(0));
    QVERIFY(!document.change([](SkyState &state) { state.latitude = 13.0; }));
    QCOMPARE(document.writeFault(), QString("another program holds it locked"));
    QCOMPARE(file.text(), text);
    held.unlock();
    QVERIFY(document.change([](SkyState &state) { state.latitude = 13.0; }));
}

void SkyDocumentTest::aHeldLockKeepsTheFaultyFile()
{
    const SkyFileFixture file;
    file.writeText("no sky at all\n");
    SkyDocument document(file.path());
    QLockFile held(file.path() + ".lock");
    QVERIFY(held.tryLock(0));
    QVERIFY(!document.replace());
    QCOMPARE(document.writeFault(), QString("another program holds it locked"));
    QCOMPARE(file.text(), QByteArray("no sky at all\n"));
    held.unlock();
    QVERIFY(document.replace());
    QCOMPARE(document.writeFault(), QString());
}

void SkyDocumentTest::readersNeverSeeAPart()
{
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 0\n");
    std::atomic<bool> done{false};
    std::atomic<int> reads{0};
    QString seenFault; // written by the reader, read after its end
    std::thread reader([&] {
        while (!done && seenFault.isEmpty()) {
            try {
                virtualsky::parse(file.text().toStdString());
            } catch (const virtualsky::SkyFileError &error) {
                seenFault = error.what();
            }
            ++reads;
        }
    });
    SkyDocument document(file.path());
    int written = 0;
    for (; written < 300 || (reads < 100 && written < 20000); ++written)
        if (!document.change([](SkyState &state) { virtualmount::turnAxis(state, 1.3); }))
            break;
    done = true;
    reader.join();
    QVERIFY2(seenFault.isEmpty(), qPrintable(seenFault));
    QVERIFY(written >= 300);
    QVERIFY(reads >= 100);
}

void SkyDocumentTest::handsAtOnceLoseNothing()
{
    const SkyFileFixture file;
    constexpr int steps = 40;
    const auto hand = [&file](double SkyState::*bolt) {
        SkyDocument document(file.path());
        for (int written = 0, tries = 0; written < steps && tries < 100 * steps; ++tries)
            written += document.change(
                [bolt](SkyState &state) { virtualmount::turnBolt(state, bolt, 0.01); });
    };
    std::thread altitude(hand, &SkyState::boltAltitude);
    std::thread azimuth(hand, &SkyState::boltAzimuth);
    altitude.join();
    azimuth.join();
    const SkyState state = file.state();
    QVERIFY(std::abs(state.boltAltitude - (0.6 + steps * 0.01)) <= 1e-6);
    QVERIFY(std::abs(state.boltAzimuth - (-1.0 + steps * 0.01)) <= 1e-6);
}

QTEST_GUILESS_MAIN(SkyDocumentTest)
#include "tst_skydocument.moc"
