// SPDX-License-Identifier: MIT
// Makes the compiled-in style sheet, catalogues, images and star data reachable under ":/".
#pragma once

/// Registers every resource bundle of the program. Call it once, before the first ":/" path is
/// opened and from outside any namespace's static initialiser; a second call changes nothing.
void initialiseResources();
