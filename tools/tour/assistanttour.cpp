// SPDX-License-Identifier: MIT
// Runs the assistant's complete alignment automatically in the real window, and prints the mount's
// true error before and after.
#include "app/startup.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "core/languages.h"
#include "resources/resources.h"
#include "tools/tour/album.h"
#include "tools/tour/assistanthands.h"
#include "tools/tour/caption.h"
#include "tools/tour/ending.h"
#include "virtualcamera/skyfile.h"
#include "virtualmount/mountwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <memory>

namespace
{
constexpr QSize pictureSize(1000, 640);
constexpr int closingTimeout = 12000; // milliseconds

/// The sky as it is now, with the refraction that the assistant takes into account.
virtualsky::SkyState startingSky(bool south)
{
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.boltAltitude = 0.8;
    sky.boltAzimuth = -0.9;
    sky.refraction = true;
    return sky;
}

void placeSideBySide(QWidget &window, virtualmount::MountWindow &mount)
{
    const virtualmount::WindowGeometries places = mount.shareScreen();
    window.resize(places.program.size());
    window.move(places.program.topLeft()); // of the frame
    mount.resize(places.mount.size());
    mount.move(places.mount.topLeft());
    mount.show();
}

void align(AssistantHands &hands, Knobs &knobs, bool isAlbum)
{
    printf("true error before: %.1f arcminutes\n", knobs.poleError() / 60.0);
    hands.connectCamera();
    hands.turnAxis();
    if (isAlbum)
        hands.showLargeView();
    hands.turnBolts();
    if (isAlbum)
        hands.showOtherPages();
    printf("true error after: %.0f arcseconds\n", knobs.poleError());
}

void run(const QCommandLineParser &options)
{
    const bool south = options.isSet("south"), fast = options.isSet("fast");
    const QString folder = options.value("pictures");
    const bool watched = isWatched(fast, !folder.isEmpty(), QGuiApplication::platformName());
    Knobs knobs(virtualsky::skyFilePath(), startingSky(south));
    assistant::Settings settings;
    settings.language = options.value("language");
    settings.site = astrometry::Site{knobs.edit().latitude, knobs.edit().longitude};
    assistantwindow::SessionInstrument instrument(settings);
    {
        assistantwindow::AssistantWindow window(instrument, settings, [](const auto &) {});
        window.resize(pictureSize);
        std::unique_ptr<virtualmount::MountWindow> mount;
        if (!fast) {
            mount = std::make_unique<virtualmount::MountWindow>(
                QFile::decodeName(virtualsky::skyFilePath().c_str()));
            QFile sheet(":/qss/default.qss");
            if (sheet.open(QIODevice::ReadOnly))
                mount->setStyleSheet(QString::fromUtf8(sheet.readAll()));
            mount->leaveOutAngles();
            placeSideBySide(window, *mount);
        }
        window.show();
        AssistantHands::Options how;
        how.pauseMilliseconds = fast ? 0 : 800;
        how.parts = fast ? 1 : 12;
        AssistantHands hands(window, knobs, how);
        Caption caption(window, *window.findChild<QWidget *>("label_picture"));
        hands.announce = [&](const QString &text) {
            printf("%s\n", qPrintable(text));
            if (!fast)
                caption.say(text);
        };
        std::unique_ptr<Album> album;
        if (!folder.isEmpty()) {
            album = std::make_unique<Album>(folder);
            hands.arrived = [&](const QString &name) { album->add(window, name); };
        }
        align(hands, knobs, album != nullptr);
        if (watched) {
            mount->findChild<QAbstractButton *>("showTruth")->click();
            hands.announce(QStringLiteral("Aligned: %1 arcseconds off now. Press a key to end.")
                               .arg(knobs.poleError(), 0, 'f', 0));
            waitForKey(window);
        }
        window.close();
    }
    instrument.close(closingTimeout);
}
} // namespace

int main(int argc, char *argv[])
{
    setvbuf(stdout, nullptr, _IOLBF, 0); // prints each action immediately, also into a file
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVANDEL_VERSION));
    QCommandLineParser options;
    options.setApplicationDescription("Runs the assistant's alignment by itself on the virtual "
                                      "camera. At the end the result stays until a key is "
                                      "pressed.");
    options.addHelpOption();
    options.addVersionOption();
    options.addOption({"south", "Align with the southern pole."});
    options.addOption({"fast", "Without pauses; exits by itself."});
    options.addOption(
        {"pictures", "Save a picture of every step to <folder>; exits by itself.", "folder"});
    options.addOption({"language", languageCodes() + ".", "code", "EN"});
    if (asksForText(argc, argv)) {
        const QCoreApplication unseen(argc, argv);
        options.process(unseen); // prints and ends the process
    }
    prepareApplication();
    QApplication application(argc, argv);
    options.process(application);
    // Keeps the user's own practice sky unchanged.
    const QTemporaryDir ownSky;
    qputenv("QUORVANDEL_SKY", QFile::encodeName(ownSky.filePath("sky.ini")));
    initialiseResources();
    initialiseAssistantResources();
    if (!installRequestedLanguage("assistant", options.value("language"))) {
        fprintf(stderr, "--language takes %s\n", qPrintable(languageCodes()));
        return 1;
    }
    try {
        run(options);
    } catch (const std::exception &problem) {
        fprintf(stderr, "the tour is stuck: %s\n", problem.what());
        return 1;
    }
    return 0;
}
