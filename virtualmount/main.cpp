// SPDX-License-Identifier: MIT
// The virtual mount's entry point: the look, the sky file, the window, the event loop.
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "virtualcamera/skyfile.h"
#include "virtualmount/languages.h"
#include "virtualmount/mountwindow.h"
#include "virtualmount/places.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QScreen>
#include <cstdio>

namespace
{
/// In the form that -qwindowgeometry takes.
QByteArray geometryText(const QRect &place)
{
    return QStringLiteral("%1x%2+%3+%4")
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y())
        .toLatin1();
}
} // namespace

int main(int argc, char *argv[])
{
    prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quorvandel-mount"));
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral(
        "The knobs of Quorvandel's virtual mount: edits the virtual camera's sky file."));
    options.addHelpOption();
    options.addOption(
        {QStringLiteral("places"),
         QStringLiteral("Print where the program and this window stand side by side.")});
    options.addOption({QStringLiteral("language"),
                       QStringLiteral("EN, ZH, JA, RU, FR, DE, ES, PT, IT or KO; the system's "
                                      "language if it is left out."),
                       QStringLiteral("code")});
    options.process(application);
    if (!virtualmount::speakAsAsked(options.value(QStringLiteral("language")))) {
        fprintf(stderr, "quorvandel-mount: --language takes EN, ZH, JA, RU, FR, DE, ES, PT, IT or "
                        "KO\n");
        return 1;
    }
    startWindows(application);
    MountWindow window(QFile::decodeName(virtualsky::skyFilePath().c_str()));
    if (options.isSet(QStringLiteral("places"))) {
        window.ensurePolished();
        const Places places =
            sideBySide(QGuiApplication::primaryScreen()->availableGeometry(), window.sizeHint());
        printf("%s %s\n", geometryText(places.program).constData(),
               geometryText(places.mount).constData());
        return 0;
    }
    const TerminationSignals closing(window); // clouds that pass are put back
    window.show();
    return QApplication::exec();
}
