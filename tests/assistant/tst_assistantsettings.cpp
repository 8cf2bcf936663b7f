// SPDX-License-Identifier: MIT
// Are the settings kept, is rubbish left out, and where does the site come from?
#include "assistant/settingsstore.h"

#include "core/settingsfile.h"
#include "tests/support/logrecorder.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <sys/resource.h>

using namespace assistant;
using AssistantSettings = assistant::Settings;

class AssistantSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void comesBackAsSaved();
    void keysStayTheSame();
    void rubbishIsLeftOut_data();
    void rubbishIsLeftOut();
    void nothingButRegularFiles();
    void aHeldLockHoldsUpNobody();
    void aCutFileReplacesNothing();
    void aLinkStays();
    void site_data();
    void site();
    void latitudeOfTheWizard_data();
    void latitudeOfTheWizard();
    void pathIsTheUsers();

private:
    QTemporaryDir folder;
    QString path() const { return folder.filePath("deep/er/quorvandel-assistant.ini"); }
};

void AssistantSettingsTest::comesBackAsSaved()
{
    AssistantSettings saved;
    saved.site = astrometry::Site{-33.912345678, 151.2};
    saved.target = recognition::PoleTarget::Refracted;
    saved.pressure = 0.0;
    saved.temperature = -12.5;
    saved.language = QStringLiteral("ZH");
    saved.redTheme = saved.sound = saved.speech = saved.recording = true;
    saved.cameraId = QStringLiteral("QUORVANDEL-V0001");
    saved.goalArcseconds = 7.5;
    saved.recordingFolder = QStringLiteral("/tmp/ä, \"b\"; = @x/%41\\n");
    saved.recordingLimitMegabytes = 12.0;
    QVERIFY(saveSettings(path(), saved));
    const AssistantSettings read = loadSettings(path());
    QCOMPARE(read.site->latitude, saved.site->latitude);
    QCOMPARE(read.site->longitude, saved.site->longitude);
    QVERIFY(read.target == saved.target);
    QCOMPARE(read.pressure, saved.pressure);
    QCOMPARE(read.temperature, saved.temperature);
    QCOMPARE(read.language, saved.language);
    QVERIFY(read.redTheme && read.sound && read.speech && read.recording);
    QCOMPARE(read.cameraId, saved.cameraId);
    QCOMPARE(read.goalArcseconds, saved.goalArcseconds);
    QCOMPARE(read.recordingFolder, saved.recordingFolder);
    QCOMPARE(read.recordingLimitMegabytes, saved.recordingLimitMegabytes);
    saved.site.reset();
    saved.recordingFolder = QStringLiteral("@home");
    QVERIFY(saveSettings(path(), saved));
    QVERIFY(!loadSettings(path()).site);
    QCOMPARE(loadSettings(path()).recordingFolder, saved.recordingFolder);
}

/// A user's file outlives the version that wrote it.
void AssistantSettingsTest::keysStayTheSame()
{
    const QString place = folder.filePath("keys.ini");
    AssistantSettings saved;
    saved.site = astrometry::Site{-33.9, 151.2};
    saved.language = saved.cameraId = saved.recordingFolder = QStringLiteral("x");
    QVERIFY(saveSettings(place, saved));
    const QSettings file(place, QSettings::IniFormat);
    QStringList keys = file.allKeys();
    keys.sort();
    const QStringList expected = {"assistant/camera",          "assistant/goal",
                                  "assistant/language",        "assistant/pole",
                                  "assistant/pressure",        "assistant/recording",
                                  "assistant/recordingFolder", "assistant/recordingLimit",
                                  "assistant/redTheme",        "assistant/site",
                                  "assistant/sound",           "assistant/speech",
                                  "assistant/temperature"};
    QCOMPARE(keys, expected);
}

void AssistantSettingsTest::rubbishIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no ini") << QByteArray(100000, '\xff');
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("out of range") << QByteArray("[assistant]\nsite=91,0\npressure=-1\n"
                                                "temperature=1e9\ngoal=0\nrecordingLimit=-5\n");
    QTest::newRow("no numbers") << QByteArray("[assistant]\nsite=here\npressure=nan\n"
                                              "temperature=inf\ngoal=\nredTheme=maybe\npole=x\n");
    QTest::newRow("objects") << QByteArray("[assistant]\nsite=@Variant(\\0\\0\\0\\x7f)\n"
                                           "language=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xff)\n");
    QTest::newRow("other group") << QByteArray("[else]\nsite=10,20\ngoal=5\n");
    QTest::newRow("a huge line") << "[assistant]\nlanguage=" + QByteArray(3000000, 'x') + "\n";
}

void AssistantSettingsTest::rubbishIsLeftOut()
{
    QFETCH(QByteArray, text);
    const QString place = folder.filePath("rubbish.ini");
    QFile file(place);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    const AssistantSettings read = loadSettings(place);
    const AssistantSettings defaults;
    QVERIFY(!read.site);
    QVERIFY(read.target == defaults.target);
    QCOMPARE(read.pressure, defaults.pressure);
    QCOMPARE(read.temperature, defaults.temperature);
    QCOMPARE(read.goalArcseconds, defaults.goalArcseconds);
    QCOMPARE(read.recordingLimitMegabytes, defaults.recordingLimitMegabytes);
    QCOMPARE(read.redTheme, false);
    QCOMPARE(read.language, QString());
    QVERIFY(saveSettings(place, read)); // and it can be used again
    QVERIFY(!loadSettings(place).site);
}

void AssistantSettingsTest::nothingButRegularFiles()
{
    const LogRecorder log;
    QVERIFY(!saveSettings(folder.path(), {}));
    QCOMPARE(log.texts(QtWarningMsg), QStringList("the settings are not saved in " + folder.path() +
                                                  ": it is not a regular file"));
    QVERIFY(!saveSettings(QStringLiteral("/dev/null/x/y.ini"), {}));
    QVERIFY(!loadSettings(folder.path()).site);
    QVERIFY(!loadSettings(QStringLiteral("/nowhere.ini")).site);
}

/// Of any name that a program could guess.
void AssistantSettingsTest::aHeldLockHoldsUpNobody()
{
    const QString place = folder.filePath("locked.ini");
    QLockFile held(place + ".lock"), heldToo(place + ".new.lock");
    QVERIFY(held.tryLock(0) && heldToo.tryLock(0));
    AssistantSettings saved;
    saved.goalArcseconds = 7.5;
    QVERIFY(saveSettings(place, saved));
    QCOMPARE(loadSettings(place).goalArcseconds, 7.5);
}

/// No file may grow beyond a limit, in bytes, that rises until all of it fits.
void AssistantSettingsTest::aCutFileReplacesNothing()
{
    const QTemporaryDir place;
    const QString file = place.filePath("settings.ini");
    AssistantSettings kept;
    kept.goalArcseconds = 7.5;
    QVERIFY(saveSettings(file, kept));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    AssistantSettings next;
    next.goalArcseconds = 9.0;
    rlim_t bytes = 0;
    for (bool saved = false; !saved; bytes += 8) {
        const rlimit tight{bytes, usual.rlim_max};
        const LogRecorder log;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
        saved = saveSettings(file, next);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
        QCOMPARE(log.texts(QtWarningMsg).size(), saved ? 0 : 1);
        QCOMPARE(loadSettings(file).goalArcseconds, saved ? 9.0 : 7.5);
        QCOMPARE(QDir(place.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList("settings.ini"));
    }
    QVERIFY(bytes > 100);
    QCOMPARE(loadSettings(file).recordingLimitMegabytes, next.recordingLimitMegabytes);
}

void AssistantSettingsTest::aLinkStays()
{
    const QString link = folder.filePath("link.ini"), target = folder.filePath("target.ini");
    QVERIFY(QFile::link(target, link));
    QVERIFY(saveSettings(link, {}));
    QVERIFY(QFileInfo(link).isSymLink() && !QFileInfo(target).isSymLink());
    QVERIFY(QFileInfo(target).isFile());
}

void AssistantSettingsTest::site_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("plain") << "47.5,-122.25" << true;
    QTest::newRow("space") << " 47.5 , -122.25 " << true;
    QTest::newRow("ends") << "-90,180" << true;
    QTest::newRow("too far north") << "90.1,0" << false;
    QTest::newRow("too far east") << "0,180.5" << false;
    QTest::newRow("one") << "47.5" << false;
    QTest::newRow("three") << "47,5,3" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("word") << "north,0" << false;
    QTest::newRow("no number") << "nan,0" << false;
}

void AssistantSettingsTest::site()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    const auto parsed = parseSite(text);
    QCOMPARE(parsed.has_value(), valid);
    if (valid && text.contains('4')) {
        QCOMPARE(parsed->latitude, 47.5);
        QCOMPARE(parsed->longitude, -122.25);
    }
}

void AssistantSettingsTest::latitudeOfTheWizard_data()
{
    QTest::addColumn<float>("latitude");
    QTest::addColumn<QString>("region");
    QTest::addColumn<bool>("hasLatitude");
    QTest::addColumn<double>("expected");
    QTest::newRow("entered") << 52.1f << "North" << true << 52.1;
    QTest::newRow("south") << 33.9f << "South" << true << -33.9;
    QTest::newRow("south, signed") << -33.9f << "South" << true << -33.9;
    QTest::newRow("default") << ::Settings().latitude << "North" << false << 0.0;
    QTest::newRow("out of range") << 99.0f << "North" << false << 0.0;
}

void AssistantSettingsTest::latitudeOfTheWizard()
{
    QFETCH(float, latitude);
    QFETCH(QString, region);
    QFETCH(bool, hasLatitude);
    QFETCH(double, expected);
    const QString place = folder.filePath("wizard.ini");
    ::Settings wizard;
    wizard.latitude = latitude;
    wizard.regionName = region;
    writeSettings(place, wizard);
    const std::optional<double> found = latitudeOfWizard(place);
    QCOMPARE(found.has_value(), hasLatitude);
    if (hasLatitude)
        QCOMPARE(*found, expected);
    QVERIFY(!latitudeOfWizard(folder.filePath("missing.ini")));
}

void AssistantSettingsTest::pathIsTheUsers()
{
    QCOMPARE(assistant::settingsPath(),
             qEnvironmentVariable("XDG_CONFIG_HOME") + "/quorvandel-assistant.ini");
}

QTEST_GUILESS_MAIN(AssistantSettingsTest)
#include "tst_assistantsettings.moc"
