// SPDX-License-Identifier: MIT
// What is given to the texts of figures: values that are no number, and a language.
#pragma once

#include <QLocale>
#include <limits>

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
inline const QLocale english(QLocale::English);
