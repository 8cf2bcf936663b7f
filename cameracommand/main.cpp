// SPDX-License-Identifier: MIT
// The command quorvandel-camera: its arguments, and its exit status.
#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <opencv2/core/utils/logger.hpp>

#include "cameracommand/actions.h"
#include "cameracommand/libraryguard.h"

int main(int argc, char *argv[])
{
    // Whoever reads the output may leave before the values are in the sky file.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is a write that fails
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    const CameraCommandLine wishes = parseCameraCommandLine({argv + 1, argv + argc});
    QCoreApplication application(argc, argv); // tells where the shipped library is
    using Wish = CameraCommandLine::Wish;
    switch (wishes.wish) {
    case Wish::List:
        return listCameras(wishes);
    case Wish::Grab:
        return runGuarded(grabFrame, wishes);
    case Wish::Record:
        return runGuarded(recordFrames, wishes);
    case Wish::Check:
        return runGuarded(checkLens, wishes);
    case Wish::Help:
        return std::fputs(cameraCommandHelp, stdout) < 0 ? failed : succeeded;
    case Wish::Version:
        std::puts("quorvandel-camera " QUORVANDEL_VERSION);
        return succeeded;
    case Wish::Misuse:
        break;
    }
    std::fprintf(stderr, "quorvandel-camera: %s\nquorvandel-camera --help lists the options.\n",
                 wishes.complaint.c_str());
    return misused;
}
