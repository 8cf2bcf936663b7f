// SPDX-License-Identifier: MIT
// Where are the assistant's settings kept?
#pragma once

#include "assistant/settings.h"

namespace assistantwindow
{
/// From `quorvandel-assistant.ini` in the user's configuration folder; what is missing or unusable
/// there has its default.
assistant::Settings loadedSettings();
void keepSettings(const assistant::Settings &settings);
} // namespace assistantwindow
