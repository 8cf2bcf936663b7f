// SPDX-License-Identifier: MIT
// What was found in a picture, as a sentence and as JSON.
#pragma once

#include <string>

#include "recognition/extraction.h"
#include "recognition/recognise.h"

struct PictureReport {
    std::string file;
    std::string complaint; ///< why it could not be read; empty: it was
    recognition::Extraction extraction;
    recognition::Recognition recognition;
    double seconds = 0.0; ///< of extraction and recognition

    bool isRecognised() const
    {
        return complaint.empty() &&
               recognition.status == recognition::RecognitionStatus::Recognised;
    }
};

/// Why a picture was not recognised: what is wrong with the file, else with the frame, else with
/// its stars.
std::string reasonOf(const PictureReport &report);

/// One line for people, without its end.
std::string sentenceOf(const PictureReport &report);

/// One JSON object (RFC 8259) in one line, without its end; null for what is not known. Bytes of a
/// file's name that are no UTF-8 are written as U+FFFD.
std::string jsonOf(const PictureReport &report);
