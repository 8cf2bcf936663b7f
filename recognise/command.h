// SPDX-License-Identifier: MIT
// Extraction and recognition of one picture, as the command line asks.
#pragma once

#include "pictures/picturefile.h"
#include "recognise/commandline.h"
#include "recognise/report.h"

/// @param now UTC seconds since 1970, for pictures without a date of their own
PictureReport recognisePicture(const std::string &name, const PictureFile &picture,
                               const CommandLine &wishes, double now);
