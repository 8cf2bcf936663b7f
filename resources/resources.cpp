// SPDX-License-Identifier: MIT
// How the bundles of this static library are pulled into the program that links it.
#include "resources/resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must stand in the global namespace.
void initialiseResources()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(languages);
}
