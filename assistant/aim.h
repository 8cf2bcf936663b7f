// SPDX-License-Identifier: MIT
// Which pole do the figures refer to, and which air do they assume?
#pragma once

namespace assistant
{
struct Aim {
    enum class Pole {
        True,
        Refracted,
        Seen ///< without a site: where the stars seem to turn, which the air lifts
    };
    Pole pole = Pole::Seen;
    double pressure = 0.0;    ///< hectopascals; 0: no refraction
    double temperature = 0.0; ///< degrees Celsius
};
} // namespace assistant
