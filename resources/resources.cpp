// SPDX-License-Identifier: MIT
// Registers the resource bundles of this static library, so that the linker keeps them.
#include "resources/resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used in the global namespace.
void initialiseResources()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(lan_catalogues);
}
