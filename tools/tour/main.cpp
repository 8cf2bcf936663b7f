// SPDX-License-Identifier: MIT
// Runs the complete alignment automatically in the real window, and prints the mount's true error
// before and after.
#include "app/startup.h"
#include "camera/session.h"
#include "core/settingsfile.h"
#include "mainwindow/mainwindow.h"
#include "tools/practicesky.h"
#include "tools/tour/album.h"
#include "tools/tour/caption.h"
#include "tools/tour/ending.h"
#include "tools/tour/exhibits.h"
#include "tools/tour/person.h"
#include "tools/tour/touroptions.h"
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
/// Initial errors of the bolts, degrees.
constexpr double altitudeOff = 0.8;
constexpr double azimuthOff = -0.9;
/// Milliseconds after every action, for a viewer.
constexpr int watchingPause = 1500;
constexpr int watchedBoltParts = 8;
/// Remaining error after the rough adjustment, so that a viewer sees the fine one; frame pixels.
constexpr QPointF watchedRoughRest(-11, 9);
/// In a window narrower than this, the picture is shown at half size.
constexpr int narrowWindow = 1200;

virtualsky::SkyState startingSky(bool south, bool isUnthrottled, bool isQuiet)
{
    virtualsky::SkyState sky = practiceSky(south);
    sky.boltAltitude = altitudeOff;
    sky.boltAzimuth = azimuthOff;
    if (isUnthrottled)
        hurry(sky);
    sky.noise = !isQuiet; // pictures without noise are small files
    return sky;
}

/// Distance of the animated fine adjustment's start from its target, frame pixels: well within the
/// 20 pixels in which the program tracks the reference stars.
constexpr double animatedX = -11;
constexpr double animatedY = 9;
constexpr int animatedParts = 30;
/// The animated part of the window, around the axis mark.
constexpr QSize animatedSize(320, 240);

QRect roundAxis(const MainWindow &window, const Knobs &knobs, int zoomPercent)
{
    const auto *const picture = window.findChild<QLabel *>("label_showImg");
    QRect part(QPoint(), animatedSize);
    part.moveCenter(picture->mapTo(&window, (knobs.axis() * zoomPercent / 100).toPoint()));
    return part;
}

/// Connects and takes pictures of everything that needs no alignment.
void showViews(MainWindow &window, const Session &session, Knobs &knobs, Person::Options how,
               const Album &album)
{
    Person person(window, session, knobs, how, 1);
    person.connectCamera();
    person.prepare();
    person.setExposure();
    for (const int zoom : {50, 75, 100}) {
        how.zoomPercent = zoom;
        Person viewer(window, session, knobs, how, 1);
        viewer.arrived = [&](const QString &) {
            album.add(window, QStringLiteral("zoom-%1").arg(zoom));
        };
        viewer.prepare();
    }
    showMenusAndDialogs(window, album);
}

void alignRoughly(Person &person)
{
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.findAxis();
    person.placePoleStar();
}

/// Aligns for a viewer: enlarges the last steps, and keeps the result until a key is pressed.
void alignWatched(Person &person, Knobs &knobs, MainWindow &window,
                  virtualmount::MountWindow &mount)
{
    const double before = knobs.poleError() / 60;
    printf("true error before: %.1f arcminutes\n", before);
    alignRoughly(person);
    person.zoomIn();
    person.startMonitor();
    person.magnifyMarks();
    person.fineAdjust();
    person.finish();
    const double after = knobs.poleError();
    printf("true error after: %.0f arcseconds\n", after);
    mount.findChild<QAbstractButton *>("showTruth")->click();
    person.announce(QStringLiteral("Aligned: %1 arcminutes off before, %2 arcseconds now. "
                                   "Press a key to end.")
                        .arg(before, 0, 'f', 1)
                        .arg(after, 0, 'f', 0));
    waitForKey(window);
}

/// Aligns; takes pictures of the steps and of the fine adjustment if requested.
void alignInView(Person &person, Knobs &knobs, Album *animation, MainWindow &window,
                 int zoomPercent)
{
    printf("true error before: %.1f arcminutes\n", knobs.poleError() / 60);
    alignRoughly(person);
    if (animation) {
        knobs.nudgeStarB({animatedX, animatedY});
        person.moved = [&, animation, zoomPercent] {
            animation->addFrame(window, roundAxis(window, knobs, zoomPercent));
        };
    }
    person.startMonitor();
    person.fineAdjust();
    person.finish();
    printf("true error after: %.0f arcseconds\n", knobs.poleError());
}

std::unique_ptr<Album> albumFor(const QCommandLineParser &options, const QString &option)
{
    return options.isSet(option) ? std::make_unique<Album>(options.value(option)) : nullptr;
}

/// Places both windows side by side, or the mount's behind on a small screen, and makes the picture
/// small enough to fit.
void placeSideBySide(MainWindow &window, virtualmount::MountWindow &mount, Person::Options &how)
{
    const virtualmount::WindowGeometries places = mount.shareScreen();
    window.resize(places.program.size());
    window.move(places.program.topLeft()); // of the frame
    mount.resize(places.mount.size());
    mount.move(places.mount.topLeft());
    mount.show();
    if (places.program.width() < narrowWindow)
        how.zoomPercent = 50;
}

void run(const QCommandLineParser &options)
{
    Person::Options how;
    how.south = options.isSet("south");
    how.mono = options.isSet("mono");
    how.zoomPercent = options.value("zoom").toInt();
    how.pauseMilliseconds = options.isSet("fast") ? 0 : watchingPause;
    const auto steps = albumFor(options, "pictures");
    const auto animation = albumFor(options, "frames");
    const auto views = albumFor(options, "views");
    const bool hasMount = !options.isSet("fast");
    if (hasMount)
        how.boltParts = watchedBoltParts;
    if (animation)
        how.boltParts = animatedParts;
    const bool isQuiet = steps || animation || views;
    const bool watched = isWatched(options.isSet("fast"), isQuiet, QGuiApplication::platformName());
    if (watched)
        how.roughRest = watchedRoughRest;
    const bool isUnthrottled = options.isSet("fast") && !options.isSet("real-rate");
    Knobs knobs(virtualsky::skyFilePath(), startingSky(how.south, isUnthrottled, isQuiet));
    Settings settings;
    settings.languageCode = options.value("language");
    writeSettings(settingsFilePath(), settings);

    Session session;
    MainWindow window(session);
    window.resize(1280, 800);
    std::unique_ptr<virtualmount::MountWindow> mount;
    if (hasMount) {
        mount = std::make_unique<virtualmount::MountWindow>(
            QFile::decodeName(virtualsky::skyFilePath().c_str()));
        placeSideBySide(window, *mount, how);
    }
    window.show();
    if (views) {
        showViews(window, session, knobs, how, *views);
        window.close();
        return;
    }
    Caption caption(window, *window.findChild<QWidget *>("scrollArea_showImg"));
    Person person(window, session, knobs, how, 1);
    person.announce = [&](const QString &text) {
        printf("%s\n", qPrintable(text));
        if (hasMount)
            caption.say(text);
    };
    if (steps)
        person.arrived = [&](const QString &name) { steps->add(window, name); };
    if (watched) {
        alignWatched(person, knobs, window, *mount);
        window.close();
        return;
    }
    alignInView(person, knobs, animation.get(), window, how.zoomPercent);
    QTest::qWait(how.pauseMilliseconds);
    window.close();
}
} // namespace

int main(int argc, char *argv[])
{
    setvbuf(stdout, nullptr, _IOLBF, 0); // prints each action immediately, also into a file
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVANDEL_VERSION));
    QCommandLineParser options;
    addTourOptions(options);
    if (asksForText(argc, argv)) {
        const QCoreApplication unseen(argc, argv);
        options.process(unseen); // prints and ends the process
    }
    prepareApplication();
    QApplication application(argc, argv);
    options.process(application);
    if (const QString fault = tourOptionsFault(options); !fault.isEmpty()) {
        fprintf(stderr, "quorvandel-tour: %s\n", qPrintable(fault));
        return 1;
    }

    // Keeps the user's own practice sky unchanged.
    const QTemporaryDir ownSky;
    qputenv("QUORVANDEL_SKY", QFile::encodeName(ownSky.filePath("sky.ini")));

    startWindows(application);
    try {
        run(options);
    } catch (const std::exception &problem) {
        fprintf(stderr, "the tour is stuck: %s\n", problem.what());
        return 1;
    }
    return 0;
}
