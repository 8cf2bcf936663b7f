// SPDX-License-Identifier: MIT
// The assistant's entry point: options, settings, session, window, event loop.
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "assistant/settingsstore.h"
#include "assistantapp/options.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "camera/cameraoption.h"
#include "core/languages.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>

namespace
{
constexpr int closingTimeout = 12000; // milliseconds
constexpr int minScreenHeight = 520;  // pixels, below which the window fills the screen
constexpr int badOption = 2;          // exit status for a bad option

/// Where the recorded frames go unless the user chooses.
void chooseFolder(assistant::Settings &settings)
{
    if (settings.recordingFolder.isEmpty())
        settings.recordingFolder =
            QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) +
            QStringLiteral("/quorvandel");
}

/// The language of the option, else of the settings, else of the system.
void chooseLanguage(const assistantapp::Options &options, assistant::Settings &settings)
{
    if (!options.language.isEmpty())
        settings.language = options.language;
    if (!findLanguage(settings.language))
        settings.language = QLatin1String(bestLanguage(QLocale::system().uiLanguages()).code);
    installRequestedLanguage(QStringLiteral("assistant"), settings.language);
}
} // namespace

int main(int argc, char *argv[])
{
    QStringList given;
    for (int i = 1; i < argc; ++i)
        given.append(QString::fromLocal8Bit(argv[i]));
    if (const QString text = assistantapp::printedFor(given); !text.isEmpty())
        return std::fputs(qPrintable(text), stdout) < 0 ? EXIT_FAILURE : EXIT_SUCCESS;
    if (!takeCameraOption(argc, argv))
        return badOption;
    prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quorvandel-assistant"));
    QGuiApplication::setDesktopFileName(QStringLiteral("example.quorvandel.assistant"));
    const assistantapp::Options options = assistantapp::parse(QApplication::arguments().mid(1));
    if (!options.fault.isEmpty()) {
        std::fprintf(stderr, "quorvandel-assistant: %s\n", qPrintable(options.fault));
        return badOption;
    }
    initialiseAssistantResources();
    assistant::Settings settings = assistant::loadSettings(assistant::settingsPath());
    if (options.site) {
        settings.site = options.site;
        assistant::saveSettings(assistant::settingsPath(), settings);
    }
    chooseLanguage(options, settings);
    chooseFolder(settings);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/assistant/assistant.png")));
    // Before the camera library is loaded. The settings are saved with every change.
    TerminationSignals termination([] {});
    assistantwindow::SessionInstrument instrument(settings);
    int status = 0;
    {
        assistantwindow::AssistantWindow window(
            instrument, settings, [](const assistant::Settings &changed) {
                assistant::saveSettings(assistant::settingsPath(), changed);
            });
        if (const auto latitude = assistant::latitudeOfTheOtherProgram())
            window.suggestLatitude(*latitude);
        termination.closeWindow(window);
        // On a small screen a title bar would push the last row out of sight.
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        if (options.maximized || screen.height() < minScreenHeight)
            window.showMaximized();
        else
            window.show();
        if (options.connects)
            window.connectCamera();
        status = QApplication::exec();
    }
    // A thread that hangs in a library can neither be ended nor outlive its objects.
    if (!instrument.close(closingTimeout))
        std::_Exit(status);
    return status;
}
