// SPDX-License-Identifier: MIT
// Frames of a camera behind the sixteen operations: the maker's, or the shipped library's.
#pragma once

#include <memory>
#include <vector>

#include "framesources/nativecamera.h"

/// Its frames are those that the program shows.
class OperationsCamera : public framesources::NativeCamera
{
public:
    explicit OperationsCamera(framesources::Report reportLine);
    ~OperationsCamera() override;

    std::optional<framesources::NativeFrame> next(const framesources::Wish &wish) override;
    bool isPresent() const override { return handle != nullptr; }

private:
    bool open();

    const framesources::Report report;
    void *handle = nullptr;
    double exposure = -1.0, gain = -1.0; // as sent
    std::vector<unsigned char> buffer;
};
