// SPDX-License-Identifier: MIT
// Which stars are a hemisphere's?
#pragma once

#include "geometry/starcatalogue.h"

#include <QString>

inline StarCatalogue &catalogueOf(const QString &region)
{
    return region == "South" ? southCatalogue : northCatalogue;
}
