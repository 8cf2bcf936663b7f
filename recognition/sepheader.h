// SPDX-License-Identifier: MIT
// SEP's header, which does not say itself that it is C.
#pragma once

extern "C" {
#include <sep.h>
}
