// SPDX-License-Identifier: MIT
// The tour's command-line options.
#include "tools/tour/touroptions.h"

#include "core/languages.h"

#include <QCommandLineParser>
#include <algorithm>

void addTourOptions(QCommandLineParser &options)
{
    options.setApplicationDescription("Runs the alignment by itself on the virtual camera. At the "
                                      "end the result stays until a key is pressed.");
    options.addHelpOption();
    options.addVersionOption();
    options.addOption({"south", "Align with the southern pole."});
    options.addOption({"fast", "Without pauses, as fast as frames arrive; exits by itself."});
    options.addOption(
        {"real-rate", "With --fast: at a camera's frame rate, for realistic read-outs."});
    options.addOption(
        {"pictures", "Save a picture of every step to <folder>; exits by itself.", "folder"});
    options.addOption({"frames",
                       "Save the pictures of the fine adjustment to <folder>; exits by itself.",
                       "folder"});
    options.addOption({"views",
                       "Instead of aligning, save the window at every zoom, the menus and "
                       "the dialogs to <folder>.",
                       "folder"});
    options.addOption({"zoom", "100, 75 or 50 percent.", "percent", "75"});
    options.addOption({"language", languageCodes() + ".", "code", "EN"});
    options.addOption({"mono", "In the mono style."});
}

QString tourOptionsFault(const QCommandLineParser &options)
{
    if (!options.positionalArguments().isEmpty())
        return "no option: " + options.positionalArguments().first();
    if (!QStringList{"100", "75", "50"}.contains(options.value("zoom")))
        return "--zoom takes 100, 75 or 50";
    const QString code = options.value("language");
    if (languageOf(code).code != code)
        return "--language takes " + languageCodes();
    if (options.isSet("real-rate") && !options.isSet("fast"))
        return "--real-rate goes with --fast";
    return {};
}
