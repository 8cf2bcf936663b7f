// SPDX-License-Identifier: MIT
// How does the window report in its language what is wrong with the sky file?
#pragma once

#include <QString>

namespace virtualsky
{
class SkyFileError;
}

namespace virtualmount
{
/// The error's text in the current language if the text is a known one; otherwise unchanged. Keys
/// and sections are never translated.
QString faultText(const virtualsky::SkyFileError &error);
} // namespace virtualmount
