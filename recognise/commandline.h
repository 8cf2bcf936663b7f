// SPDX-License-Identifier: MIT
// What does the command line ask for?
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "recognition/recognise.h"

struct CommandLine {
    enum class Wish { Recognise, Help, Version, Misuse };

    Wish wish = Wish::Recognise;
    std::string complaint;                             ///< after Misuse, one sentence
    std::optional<double> date;                        ///< UTC seconds since 1970
    std::optional<recognition::Hemisphere> hemisphere; ///< absent: both
    std::optional<std::pair<double, double>> scale;    ///< arcseconds a pixel, low and high
    bool json = false;
    std::string picture; ///< the picture that is to be drawn; empty: none
    std::vector<std::string> images;
};

/// @param arguments without the program's name
CommandLine parseCommandLine(const std::vector<std::string> &arguments);

/// "2026-11-20T20:00:00Z", the same without Z, or the day alone (0 h): all UTC.
std::optional<double> parseIsoDate(const std::string &text);

extern const char *const helpText;
