// SPDX-License-Identifier: MIT
// The assistant's entry point: options, settings, session, window, event loop.
#include "app/startup.h"
#include "app/terminationsignals.h"
#include "assistantapp/options.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "assistantwindow/settingsstore.h"
#include "core/languages.h"

#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstdlib>

// Q_INIT_RESOURCE must be used in the global namespace.
static void initialiseAssistantResources()
{
    Q_INIT_RESOURCE(assistantwindow);
    Q_INIT_RESOURCE(assistant_catalogues);
}

namespace
{
constexpr int closingPatience = 12000; // milliseconds

/// The language of the option, else of the settings, else of the system.
void chooseLanguage(const assistantapp::Options &options, assistant::Settings &settings)
{
    if (!options.language.isEmpty())
        settings.language = options.language;
    if (!findLanguage(settings.language))
        settings.language =
            QLatin1String(bestLanguage(QLocale::system().uiLanguages()).code);
    installRequestedLanguage(QStringLiteral("assistant"), settings.language);
}
} // namespace

int main(int argc, char *argv[])
{
    prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quorvandel-assistant"));
    const assistantapp::Options options =
        assistantapp::parse(QApplication::arguments().mid(1));
    if (options.helps)
        return std::fputs(qPrintable(assistantapp::usage()), stdout) < 0 ? EXIT_FAILURE : EXIT_SUCCESS;
    if (!options.fault.isEmpty()) {
        std::fprintf(stderr, "quorvandel-assistant: %s\n", qPrintable(options.fault));
        return EXIT_FAILURE;
    }
    initialiseAssistantResources();
    assistant::Settings settings = assistantwindow::loadedSettings();
    if (options.site)
        settings.site = options.site;
    chooseLanguage(options, settings);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/assistant/assistant.png")));
    assistantwindow::SessionInstrument instrument(settings);
    int status = 0;
    {
        assistantwindow::AssistantWindow window(instrument, settings,
                                                assistantwindow::keepSettings);
        const TerminationSignals closing(window);
        window.show();
        if (options.connects)
            window.connectCamera();
        status = QApplication::exec();
    }
    // A thread that hangs in a library can neither be ended nor outlive its objects.
    if (!instrument.close(closingPatience))
        std::_Exit(status);
    return status;
}
