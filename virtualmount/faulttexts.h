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
/// One line in the current language. Keys, sections and words of the file are never translated.
QString faultText(const virtualsky::SkyFileError &error);
} // namespace virtualmount
