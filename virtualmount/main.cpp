// SPDX-License-Identifier: MIT
// The virtual mount's entry point: style, sky file, window, event loop.
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "core/languages.h"
#include "virtualcamera/skyfile.h"
#include "virtualmount/exercise.h"
#include "virtualmount/mountwindow.h"
#include "virtualmount/oneinstance.h"
#include "virtualmount/places.h"
#include "virtualmount/skydocument.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QScreen>
#include <cstdio>

using namespace virtualmount;

namespace
{
void describe(QCommandLineParser &options)
{
    options.setApplicationDescription(QStringLiteral(
        "The knobs of Quorvandel's virtual mount: edits the virtual camera's sky file. There is "
        "one window for each sky file: a later start brings it to the front."));
    options.addHelpOption();
    options.addVersionOption();
    options.addOption(
        {QStringLiteral("places"),
         QStringLiteral("Print where the program and this window stand: \"beside\" or "
                        "\"behind\" each other, and their geometries.")});
    options.addOption({QStringLiteral("behind"),
                       QStringLiteral("Open the window behind the others, without the focus.")});
    options.addOption({QStringLiteral("without-angles"),
                       QStringLiteral("Leave out how much the age of the built-in star angles "
                                      "makes, for a program that does not use them.")});
    options.addOption(
        {QStringLiteral("language"),
         languageCodes() + QStringLiteral("; the system's language if it is left out."),
         QStringLiteral("code")});
}

void printPlaces(MountWindow &window)
{
    puts(geometriesText(window.shareScreen()).constData());
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("quorvandel-mount"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORVANDEL_VERSION));
    QCommandLineParser options;
    describe(options);
    if (asksForText(argc, argv)) {
        const QCoreApplication unseen(argc, argv);
        options.process(unseen); // prints and ends the process
    }
    prepareApplication();
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("example.quorvandel.mount"));
    options.process(application);
    Q_INIT_RESOURCE(mount_catalogues);
    if (!installRequestedLanguage(QStringLiteral("mount"),
                                  options.value(QStringLiteral("language")))) {
        fprintf(stderr, "quorvandel-mount: --language takes %s\n", qPrintable(languageCodes()));
        return 1;
    }
    startWindows(application);
    const QString skyFile = QFile::decodeName(virtualsky::skyFilePath().c_str());
    const bool behind = options.isSet(QStringLiteral("behind"));
    if (options.isSet(QStringLiteral("places"))) {
        MountWindow window(skyFile);
        printPlaces(window);
        return 0;
    }
    OneInstance instance(skyFile);
    if (instance.isOpenElsewhere(!behind)) {
        puts("The virtual mount's window is open already.");
        if (isAligned(SkyDocument(skyFile).state()))
            puts("Its mount is aligned already: \"New exercise\" moves it away from the pole.");
        return 0;
    }
    MountWindow window(skyFile);
    window.fitScreen(QGuiApplication::primaryScreen()->availableGeometry().height());
    const TerminationSignals closing(window); // passing clouds are reset
    if (options.isSet(QStringLiteral("without-angles")))
        window.leaveOutAngles();
    window.setAttribute(Qt::WA_ShowWithoutActivating, behind);
    window.show();
    if (behind)
        window.lower();
    instance.announce(window);
    return QApplication::exec();
}
