// SPDX-License-Identifier: MIT
// SEP's header, which does not say itself that it is C.
#pragma once

// Its own header leaves out where size_t comes from.
#include <cstddef>

extern "C" {
#include <sep.h>
}
