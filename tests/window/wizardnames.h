// SPDX-License-Identifier: MIT
// What are the wizard's widgets called, and how many steps has it?
#pragma once

constexpr int stepCount = 13;
inline const char *const lampNames[] = {"label_starPos1_icon", "label_starPos2_icon",
                                        "label_starPos3_icon"};
