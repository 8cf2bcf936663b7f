// SPDX-License-Identifier: MIT
// Which matrices does a picture maker use?
#pragma once

#include "camera/picturemaker.h"

/// A view of one picture maker's private members; valid as long as it is. Not while its thread
/// runs.
class PictureMakerProbe
{
public:
    explicit PictureMakerProbe(const PictureMaker &probed) : maker(probed) {}

    const FrameMatrices &matrices() const { return maker.matrices; }

private:
    const PictureMaker &maker;
};
