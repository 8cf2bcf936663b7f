// SPDX-License-Identifier: MIT
// Makes the assistant's compiled-in icon, style sheet, sounds and catalogues available under ":/".
#pragma once

/// Registers every resource bundle of the assistant. Call it once, before the first ":/" path is
/// opened, and not from a static initialiser; a second call has no effect.
void initialiseAssistantResources();
