// SPDX-License-Identifier: MIT
// Makes the compiled-in style sheet, catalogues, images and star data available under ":/".
#pragma once

/// Registers every resource bundle of the program. Call it once, before the first ":/" path is
/// opened, and not from a static initialiser; a second call has no effect.
void initialiseResources();
