// SPDX-License-Identifier: MIT
// Reads the command line.
#include "assistantapp/options.h"

#include "assistant/settingsstore.h"
#include "camera/cameraoption.h"
#include "core/languages.h"

namespace assistantapp
{
Options parse(const QStringList &arguments)
{
    Options options;
    for (int i = 0; i < arguments.size() && options.fault.isEmpty(); ++i) {
        const QString name = arguments[i].section(QLatin1Char('='), 0, 0);
        const bool isJoined = arguments[i].contains(QLatin1Char('='));
        const auto value = [&]() -> QString {
            if (isJoined)
                return arguments[i].section(QLatin1Char('='), 1);
            return i + 1 < arguments.size() ? arguments[++i] : QString();
        };
        if (name == QLatin1String("--connect")) {
            options.connects = true;
        } else if (name == QLatin1String("--maximized")) {
            options.maximized = true;
        } else if (name == QLatin1String("--site")) {
            options.site = assistant::parseSite(value());
            if (!options.site)
                options.fault = QStringLiteral("--site takes LATITUDE,LONGITUDE in degrees, north "
                                               "and east positive");
        } else if (name == QLatin1String("--language")) {
            const Language *const language = findLanguage(value());
            if (language)
                options.language = QLatin1String(language->code);
            else
                options.fault = QStringLiteral("--language takes ") + languageCodes();
        } else {
            options.fault = QStringLiteral("unknown option: ") + arguments[i];
        }
    }
    return options;
}

QString usage()
{
    return QStringLiteral(
               "usage: quorvandel-assistant [--camera ADDRESS] [--connect]\n"
               "                            [--site LATITUDE,LONGITUDE] [--language CODE]\n"
               "                            [--maximized] [--help] [--version]\n") +
           QLatin1String(cameraOptionHelp) +
           QStringLiteral("  --connect         connect to the camera at once\n"
                          "  --site LAT,LON    the site in degrees, north and east positive\n"
                          "  --language CODE   %1\n"
                          "  --maximized       fill the screen from the start\n"
                          "  --help            print this and exit\n"
                          "  --version         print the version and exit\n")
               .arg(languageCodes());
}

QString printedFor(const QStringList &arguments)
{
    if (arguments.contains(QLatin1String("--help")))
        return usage();
    if (arguments.contains(QLatin1String("--version")))
        return QStringLiteral("quorvandel-assistant " QUORVANDEL_VERSION "\n");
    return {};
}
} // namespace assistantapp
