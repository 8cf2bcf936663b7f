// SPDX-License-Identifier: MIT
// The options, one by one.
#include "recognise/commandline.h"

#include "astrometry/utcdate.h"

#include <cmath>
#include <cstdlib>

const char *const helpText =
    "Usage: quorvandel-recognise [OPTION]... IMAGE...\n"
    "Recognises the stars round a celestial pole in pictures (PNG, JPEG, TIFF, FITS) and says\n"
    "where the pole lies in them.\n"
    "\n"
    "  --date ISO          when the pictures were taken, UTC, such as 2026-11-20T20:00:00Z;\n"
    "                      without it each picture's own date, or now\n"
    "  --hemisphere WHICH  north, south or both; both without it\n"
    "  --scale LOW HIGH    arcseconds a pixel, at least and at most; 2 and 70 without it\n"
    "  --json              one JSON object a picture and line\n"
    "  --picture OUT.png   draw the stars and the pole of the one IMAGE into OUT.png\n"
    "  --help              this text\n"
    "  --version           the version\n"
    "\n"
    "Exit status: 0 if all pictures were recognised, 1 if not all, 2 for misuse.\n";

namespace
{
using Arguments = std::vector<std::string>;

/// Takes the arguments in turn; the first thing that is wrong stays.
class Parser
{
public:
    explicit Parser(const Arguments &all) : arguments(all) {}

    CommandLine parse()
    {
        while (next < arguments.size() && result.wish == CommandLine::Wish::Recognise) {
            const std::string argument = arguments[next++];
            if (onlyImages || argument.size() < 2 || argument[0] != '-')
                result.images.push_back(argument);
            else if (argument == "--")
                onlyImages = true;
            else
                takeOption(argument);
        }
        checkWhole();
        return result;
    }

private:
    void complain(const std::string &text)
    {
        result.wish = CommandLine::Wish::Misuse;
        if (result.complaint.empty())
            result.complaint = text;
    }

    /// The next argument, or "--option=value"'s value.
    std::string value(const std::string &option)
    {
        if (given) {
            const std::string text = *given;
            given.reset();
            return text;
        }
        if (next < arguments.size())
            return arguments[next++];
        complain(option + " needs a value.");
        return {};
    }

    void takeOption(const std::string &argument)
    {
        const std::size_t equals = argument.find('=');
        const std::string option = argument.substr(0, equals);
        given.reset();
        if (equals != std::string::npos)
            given = argument.substr(equals + 1);
        if (option == "--help" || option == "-h")
            result.wish = CommandLine::Wish::Help;
        else if (option == "--version")
            result.wish = CommandLine::Wish::Version;
        else if (option == "--json")
            result.json = true;
        else if (option == "--picture")
            result.picture = value(option);
        else if (option == "--date")
            takeDate(value(option));
        else if (option == "--hemisphere")
            takeHemisphere(value(option));
        else if (option == "--scale")
            takeScale();
        else
            complain("There is no option " + option + ".");
        if (given)
            complain(option + " takes no value.");
    }

    void takeDate(const std::string &text)
    {
        result.date = parseIsoDate(text);
        if (!result.date)
            complain("--date takes a date such as 2026-11-20T20:00:00Z, 1973 to 2100.");
    }

    void takeHemisphere(const std::string &text)
    {
        if (text == "north")
            result.hemisphere = recognition::Hemisphere::North;
        else if (text == "south")
            result.hemisphere = recognition::Hemisphere::South;
        else if (text == "both")
            result.hemisphere.reset();
        else
            complain("--hemisphere takes north, south or both.");
    }

    static double number(const std::string &text)
    {
        char *end = nullptr;
        const double found = std::strtod(text.c_str(), &end);
        return !text.empty() && *end == '\0' ? found : std::nan("");
    }

    void takeScale()
    {
        const double low = number(value("--scale")), high = number(value("--scale"));
        if (!(low > 0.0 && high >= low && high <= recognition::coarsestScale))
            complain(
                "--scale takes two numbers of arcseconds a pixel, the lower one first, above 0 "
                "and up to 600.");
        result.scale = {low, high};
    }

    void checkWhole()
    {
        if (result.wish != CommandLine::Wish::Recognise)
            return;
        if (result.images.empty())
            complain("No picture is named.");
        else if (!result.picture.empty() && result.images.size() > 1)
            complain("--picture draws one picture: name one IMAGE.");
    }

    const Arguments &arguments;
    std::size_t next = 0;
    bool onlyImages = false;
    std::optional<std::string> given;
    CommandLine result;
};
} // namespace

std::optional<double> parseIsoDate(const std::string &text)
{
    for (const char *rest : {"", "Z", "T00:00:00Z"})
        if (const std::optional<double> date = astrometry::parseDate(text + rest))
            return date;
    return std::nullopt;
}

CommandLine parseCommandLine(const std::vector<std::string> &arguments)
{
    return Parser(arguments).parse();
}
