// SPDX-License-Identifier: MIT
// The command, its argument and its options.
#include "cameracommand/commandline.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "astrometry/utcdate.h"

const char *const cameraCommandHelp =
    "Usage: quorvandel-camera [OPTION]... COMMAND\n"
    "Lists cameras, takes frames, and finds out which scale a lens has.\n"
    "\n"
    "  list [HOST[:PORT]]  the maker's library, and the cameras of an INDI server (this\n"
    "                      machine's without HOST)\n"
    "  grab FILE           one frame: PNG, or FITS if FILE ends in .fits or .fit\n"
    "  record FOLDER       frames as FITS files\n"
    "  check               recognise the pole's stars: scale, roll, stars, focus; write the\n"
    "                      lens' scale and mirrored into the sky file, and print what stood\n"
    "                      there\n"
    "\n"
    "  --camera ADDRESS    sky, indi://HOST[:PORT]/DEVICE or files:PATTERN; without it the\n"
    "                      camera that quorvandel uses\n"
    "  --exposure MS       milliseconds; 200 without it\n"
    "  --gain N            0 to 100 for the camera's whole range; 50 without it\n"
    "  --frames N          how many frames to record, 1 to 100000; 1 without it\n"
    "  --no-write          leave the sky file as it is after a check\n"
    "  --write             write also for the virtual sky and the maker's camera, where the\n"
    "                      values are of no effect, and for pictures of another lens than the\n"
    "                      sky file's\n"
    "  --date ISO          when the frame was taken, UTC, for a check; without it the\n"
    "                      frame's own date, or now\n"
    "  --help              this text\n"
    "  --version           the version\n"
    "\n"
    "Exit status: 0 if it succeeded, 1 if not, 2 for misuse.\n";

namespace
{
using Wish = CameraCommandLine::Wish;
using Arguments = std::vector<std::string>;

struct Command {
    const char *name;
    Wish wish;
    bool needsTarget, mayHaveTarget;
};
constexpr std::array<Command, 4> commands = {{{"list", Wish::List, false, true},
                                              {"grab", Wish::Grab, true, true},
                                              {"record", Wish::Record, true, true},
                                              {"check", Wish::Check, false, false}}};

/// Takes the arguments in turn; the first thing that is wrong stays.
class Parser
{
public:
    explicit Parser(const Arguments &all) : arguments(all) {}

    CameraCommandLine parse()
    {
        while (next < arguments.size() && !done) {
            const std::string argument = arguments[next++];
            if (!onlyWords && argument == "--")
                onlyWords = true;
            else if (!onlyWords && argument.size() > 1 && argument[0] == '-')
                takeOption(argument);
            else
                words.push_back(argument);
        }
        if (!done)
            takeWords();
        return result;
    }

private:
    void complain(const std::string &text)
    {
        if (!done || result.wish != Wish::Misuse) {
            result.wish = Wish::Misuse;
            result.complaint = text;
        }
        done = true;
    }

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

    double number(const std::string &option, double least, double most)
    {
        const std::string text = value(option);
        char *end = nullptr;
        const double found = std::strtod(text.c_str(), &end);
        if (!text.empty() && *end == '\0' && found >= least && found <= most)
            return found;
        if (!done)
            complain(option + " takes a number from " + std::to_string(long(least)) + " to " +
                     std::to_string(long(most)) + ".");
        return least;
    }

    void takeOption(const std::string &argument)
    {
        const std::size_t equals = argument.find('=');
        const std::string option = argument.substr(0, equals);
        given.reset();
        if (equals != std::string::npos)
            given = argument.substr(equals + 1);
        constexpr double longestExposure = 600000.0, maxFrames = 100000.0;
        if (option == "--help" || option == "-h")
            finish(Wish::Help);
        else if (option == "--version")
            finish(Wish::Version);
        else if (option == "--write")
            result.writing = LensWriting::Always;
        else if (option == "--no-write")
            result.writing = LensWriting::Never;
        else if (option == "--camera")
            takeCamera();
        else if (option == "--date")
            takeDate();
        else if (option == "--exposure")
            result.exposureSeconds = number(option, 0.0, longestExposure) / 1000.0;
        else if (option == "--gain")
            result.gain = number(option, 0.0, 100.0);
        else if (option == "--frames")
            result.frames = int(std::floor(number(option, 1.0, maxFrames)));
        else
            complain("There is no option " + option + ".");
        if (given)
            complain(option + " takes no value.");
    }

    void finish(Wish wish)
    {
        result.wish = wish;
        done = true;
    }

    void takeCamera()
    {
        std::string fault;
        result.camera = virtualsky::parseCameraAddress(value("--camera"), &fault);
        if (!result.camera && !done)
            complain("--camera " + fault + ".");
    }

    void takeDate()
    {
        const std::string text = value("--date");
        for (const char *rest : {"", "Z", "T00:00:00Z"})
            if (!result.date)
                result.date = astrometry::parseDate(text + rest);
        if (!result.date && !done)
            complain("--date takes a date such as 2026-11-20T20:00:00Z, 1973 to 2100.");
    }

    void takeWords()
    {
        if (words.empty())
            return complain("No command is given.");
        for (const Command &command : commands) {
            if (words[0] != command.name)
                continue;
            result.wish = command.wish;
            if (words.size() > (command.mayHaveTarget ? 2u : 1u))
                return complain(words[0] + " takes no more arguments.");
            if (words.size() == 2)
                result.target = words[1];
            else if (command.needsTarget)
                return complain(words[0] + " needs a name to write to.");
            if (result.writing != LensWriting::WhereItCounts && command.wish != Wish::Check)
                return complain("--write and --no-write are for check.");
            return;
        }
        complain("There is no command " + words[0] + ".");
    }

    const Arguments &arguments;
    std::size_t next = 0;
    bool done = false, onlyWords = false;
    std::optional<std::string> given;
    std::vector<std::string> words;
    CameraCommandLine result;
};
} // namespace

CameraCommandLine parseCameraCommandLine(const std::vector<std::string> &arguments)
{
    return Parser(arguments).parse();
}
