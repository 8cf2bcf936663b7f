// SPDX-License-Identifier: MIT
// What is kept of the site, from the option, the other program's settings, the keys; and of the
// camera?
#include "assistant/settingsstore.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/sessioninstrument.h"
#include "core/settingsfile.h"
#include "tests/assistantwindow/scenes.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>

using AssistantSettings = assistant::Settings;

class AssistantSiteTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void optionIsKept();
    void openCameraIsKept();
    void otherProgramsLatitudeIsTakenOver();
    void programTakesTheLatitudeOver();
    void ownSiteIsNotReplaced();
    void typedSiteIsKept();

private:
    /// A window, what it shows and what it kept.
    struct Shown {
        explicit Shown(const AssistantSettings &settings)
            : window(instrument, settings,
                     [this](const AssistantSettings &changed) { kept = changed; })
        {
            window.show();
        }
        QDoubleSpinBox &field(const char *name) const
        {
            return *window.findChild<QDoubleSpinBox *>(QLatin1String(name));
        }
        double latitude() const { return field("doubleSpinBox_latitude").value(); }
        double longitude() const { return field("doubleSpinBox_longitude").value(); }

        madestatus::MadeInstrument instrument;
        std::optional<AssistantSettings> kept;
        assistantwindow::AssistantWindow window;
    };
    void enterInTheOtherProgram(float latitude, float longitude, const QString &region);

    QTemporaryDir folder;
};

/// The program itself, three times: the last one without the option.
void AssistantSiteTest::optionIsKept()
{
    const QString config = folder.filePath("config");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", config);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const auto siteAfter = [&](const QStringList &options) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(PROGRAM_FILE, options);
        program.waitForFinished(1500); // it has a window then, and goes on
        program.terminate();
        program.waitForFinished(30000);
        return assistant::loadSettings(config + "/quorvandel-assistant.ini").site;
    };
    const auto first = siteAfter({"--site", "12.5,34.25"});
    QVERIFY(first && first->latitude == 12.5 && first->longitude == 34.25);
    const auto second = siteAfter({"--site=-33.9,18.4"});
    QVERIFY(second && second->latitude == -33.9 && second->longitude == 18.4);
    const auto third = siteAfter({});
    QVERIFY(third && third->latitude == -33.9);
    const AssistantSettings loaded = assistant::loadSettings(config + "/quorvandel-assistant.ini");
    const Shown shown(loaded);
    QCOMPARE(shown.latitude(), -33.9);
    QCOMPARE(shown.longitude(), 18.4);
}

/// A window that connects before the cameras are listed, on the virtual camera.
void AssistantSiteTest::openCameraIsKept()
{
    qputenv("QUORVANDEL_SKY", QFile::encodeName(folder.filePath("sky.ini")));
    assistantwindow::SessionInstrument instrument(AssistantSettings{});
    instrument.connectCamera({});
    QTRY_VERIFY_WITH_TIMEOUT(!instrument.latest().cameraId.isEmpty(), 20000);
    QCOMPARE(instrument.latest().cameraId, instrument.cameras().front().id);
    std::optional<AssistantSettings> kept;
    const assistantwindow::AssistantWindow window(
        instrument, {}, [&kept](const AssistantSettings &changed) { kept = changed; });
    QVERIFY(kept);
    QCOMPARE(kept->cameraId, instrument.cameras().front().id);
    instrument.disconnectCamera();
    QTRY_VERIFY_WITH_TIMEOUT(instrument.latest().cameraId.isEmpty(), 20000);
    QVERIFY(instrument.close(20000));
}

void AssistantSiteTest::enterInTheOtherProgram(float latitude, float longitude,
                                               const QString &region)
{
    qputenv("XDG_DATA_HOME", folder.filePath("data").toLocal8Bit());
    QVERIFY(QDir().mkpath(folder.filePath("data/quorvandel/bin")));
    ::Settings wizard;
    wizard.latitude = latitude;
    wizard.longitude = longitude;
    wizard.regionName = region;
    writeSettings(folder.filePath("data/quorvandel/bin/Quorvandel.ini"), wizard);
}

/// 70.5 may be west: its field there has no sign. So the longitude is left to the user.
void AssistantSiteTest::otherProgramsLatitudeIsTakenOver()
{
    enterInTheOtherProgram(33.9f, 70.5f, QStringLiteral("South"));
    Shown shown({});
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    shown.window.suggestLatitude(assistant::latitudeOfTheOtherProgram().value_or(0.0));
    QCOMPARE(shown.latitude(), -33.9);
    QVERIFY(shown.longitude() < -180.0); // a dash
    QVERIFY(!shown.window.currentSettings().site);
    auto *const longitude = shown.field("doubleSpinBox_longitude").findChild<QLineEdit *>();
    longitude->selectAll();
    QTest::keyClicks(longitude, "70.5 W");
    QTest::keyClick(longitude, Qt::Key_Return);
    QVERIFY(shown.kept && shown.kept->site);
    QCOMPARE(shown.kept->site->latitude, -33.9);
    QCOMPARE(shown.kept->site->longitude, -70.5);
}

/// The program itself: a field that is filled at its start is a change, which it saves.
void AssistantSiteTest::programTakesTheLatitudeOver()
{
    enterInTheOtherProgram(33.9f, 70.5f, QStringLiteral("South"));
    const QString config = folder.filePath("without site");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", config);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(PROGRAM_FILE, QStringList());
    const QString saved = config + "/quorvandel-assistant.ini";
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(saved), 5000);
    program.terminate();
    QVERIFY(program.waitForFinished(30000));
    QVERIFY(!assistant::loadSettings(saved).site);
}

void AssistantSiteTest::ownSiteIsNotReplaced()
{
    enterInTheOtherProgram(33.9f, 18.4f, QStringLiteral("South"));
    AssistantSettings own;
    own.site = astrometry::Site{52.1, 11.6};
    Shown shown(own);
    shown.window.suggestLatitude(assistant::latitudeOfTheOtherProgram().value_or(0.0));
    QCOMPARE(shown.latitude(), 52.1);
    QCOMPARE(shown.longitude(), 11.6);
    QVERIFY(!shown.kept);
}

void AssistantSiteTest::typedSiteIsKept()
{
    Shown shown({});
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    auto *const latitude = shown.field("doubleSpinBox_latitude").findChild<QLineEdit *>();
    latitude->setFocus();
    latitude->selectAll();
    QTest::keyClicks(latitude, "34 S");
    QTest::keyClick(latitude, Qt::Key_Return);
    QVERIFY(!shown.kept || !shown.kept->site); // half a site is none
    auto *const longitude = shown.field("doubleSpinBox_longitude").findChild<QLineEdit *>();
    longitude->selectAll();
    QTest::keyClicks(longitude, "149");
    QTest::keyClick(longitude, Qt::Key_Return);
    QVERIFY(shown.kept && shown.kept->site);
    QCOMPARE(shown.kept->site->latitude, -34.0);
    QCOMPARE(shown.kept->site->longitude, 149.0);
}

QTEST_MAIN(AssistantSiteTest)
#include "tst_assistantsite.moc"
