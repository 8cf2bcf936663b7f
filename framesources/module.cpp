// SPDX-License-Identifier: MIT
// The module's one function: opens a source of frames for the camera library.
#include <cstdio>
#include <exception>
#include <opencv2/core/utils/logger.hpp>

#include "framesources/nativecameras.h"
#include "framesources/threadedsource.h"

extern "C" __attribute__((visibility("default"))) virtualsky::FrameSource *
openQuorvandelFrameSource(const framesources::SourceSettings *settings)
{
    using namespace framesources;
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    const std::string address = addressText(settings->address);
    const Report report = [address](const std::string &line) {
        std::fprintf(stderr, "camera %s: %s\n", address.c_str(), line.c_str());
    };
    try {
        if (settings->address.source == virtualsky::Source::Indi && !hasIndi()) {
            makeNativeCamera(*settings, report);
            return nullptr;
        }
        return new ThreadedSource(
            *settings, [wanted = *settings, report] { return makeNativeCamera(wanted, report); },
            report);
    } catch (const std::exception &error) { // no thread can be started
        report(error.what());
        return nullptr;
    }
}
