// SPDX-License-Identifier: MIT
// The command: every picture in turn, and the exit status.
#include "recognise/command.h"
#include "recognise/drawing.h"

#include <cstdio>
#include <ctime>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgcodecs.hpp>

namespace
{
constexpr int allRecognised = 0, notAll = 1, badUsage = 2;

void say(const PictureReport &report, bool json)
{
    // What cannot be read at all is no result; with JSON every picture has its line.
    if (!report.complaint.empty())
        std::fprintf(stderr, "quorvandel-recognise: %s: %s\n", report.file.c_str(),
                     report.complaint.c_str());
    if (json)
        std::printf("%s\n", jsonOf(report).c_str());
    else if (report.complaint.empty())
        std::printf("%s\n", sentenceOf(report).c_str());
    std::fflush(stdout);
}

bool isDrawn(const std::string &path, const cv::Mat &pixels, const PictureReport &report)
{
    try {
        if (cv::imwrite(path, drawnPicture(pixels, report)))
            return true;
    } catch (const std::exception &) { // no format that it knows
    }
    std::fprintf(stderr, "quorvandel-recognise: %s: It cannot be written.\n", path.c_str());
    return false;
}

int recogniseAll(const CommandLine &wishes)
{
    int status = allRecognised;
    for (const std::string &name : wishes.images) {
        const PictureFile picture = readPicture(name);
        const PictureReport report =
            recognisePicture(name, picture, wishes, double(std::time(nullptr)));
        say(report, wishes.json);
        const bool frame = report.complaint.empty() &&
                           report.extraction.status != recognition::ExtractionStatus::BadFrame;
        if (!wishes.picture.empty() && (!frame || !isDrawn(wishes.picture, picture.pixels, report)))
            status = notAll;
        if (!report.isRecognised())
            status = notAll;
    }
    return status;
}
} // namespace

int main(int argc, char *argv[])
{
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    const CommandLine wishes = parseCommandLine({argv + 1, argv + argc});
    switch (wishes.wish) {
    case CommandLine::Wish::Help:
        std::fputs(helpText, stdout);
        return allRecognised;
    case CommandLine::Wish::Version:
        std::puts("quorvandel-recognise " QUORVANDEL_VERSION);
        return allRecognised;
    case CommandLine::Wish::Misuse:
        std::fprintf(stderr,
                     "quorvandel-recognise: %s\nquorvandel-recognise --help lists the options.\n",
                     wishes.complaint.c_str());
        return badUsage;
    case CommandLine::Wish::Recognise:
        break;
    }
    return recogniseAll(wishes);
}
