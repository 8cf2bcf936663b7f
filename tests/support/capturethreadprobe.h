// SPDX-License-Identifier: MIT
// Which matrices does a capture thread use?
#pragma once

#include "camera/capturethread.h"

/// A view of one thread's private members; valid as long as the thread. Not while it runs.
class CaptureThreadProbe
{
public:
    explicit CaptureThreadProbe(const CaptureThread &probed) : thread(probed) {}

    const FrameMatrices &matrices() const { return thread.matrices; }

private:
    const CaptureThread &thread;
};
