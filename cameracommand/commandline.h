// SPDX-License-Identifier: MIT
// What does the command line of quorvandel-camera ask for?
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cameracommand/lenswriting.h"
#include "virtualcamera/cameraaddress.h"

struct CameraCommandLine {
    enum class Wish { List, Grab, Record, Check, Help, Version, Misuse };

    Wish wish = Wish::Misuse;
    std::string complaint;                           ///< after Misuse, one sentence
    std::optional<virtualsky::CameraAddress> camera; ///< absent: the one that the program would use
    std::string target;                              ///< a file, a folder, or HOST[:PORT]
    double exposureSeconds = 0.2;
    double gain = 50.0;
    int frames = 1;
    LensWriting writing = LensWriting::WhereItCounts; ///< after a check
    std::optional<double> date;                       ///< of the frame, UTC seconds since 1970
};

/// @param arguments without the program's name
CameraCommandLine parseCameraCommandLine(const std::vector<std::string> &arguments);

extern const char *const cameraCommandHelp;
