// SPDX-License-Identifier: MIT
// Registers the resource bundles of this static library, so that the linker keeps them.
#include "assistantwindow/assistantresources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used in the global namespace.
void initialiseAssistantResources()
{
    Q_INIT_RESOURCE(assistantwindow);
    Q_INIT_RESOURCE(assistant_catalogues);
}
