// SPDX-License-Identifier: MIT
// How does the window say in its language what is wrong with the sky file?
#pragma once

#include <QString>

namespace virtualsky
{
class SkyFileError;
}

namespace virtualmount
{
/// The error's own text, in the language in force as far as it is one of the known texts. Keys and
/// sections stay as the file spells them.
QString faultText(const virtualsky::SkyFileError &error);
} // namespace virtualmount
