// SPDX-License-Identifier: MIT
// The icon, from the bundled pictures.
#include "virtualmount/mounticon.h"

// Q_INIT_RESOURCE must be used in the global namespace.
static void initialiseIcon()
{
    Q_INIT_RESOURCE(mounticon);
}

QIcon virtualmount::mountIcon()
{
    initialiseIcon();
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/mount/icon-%1.png").arg(side), {side, side});
    return icon;
}
