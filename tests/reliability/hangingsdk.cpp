// SPDX-License-Identifier: MIT
// A camera library whose call for a frame never returns, and which presses Connect like a user.
#include <QAction>
#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QtDebug>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <thread>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace
{
void pressConnect()
{
    for (QWidget *const widget : QApplication::topLevelWidgets())
        if (auto *const connectAction = widget->findChild<QAction *>("actionConnect"))
            connectAction->trigger();
}
} // namespace

EXPORTED std::uint32_t InitVELDIXResource()
{
    QTimer::singleShot(0, qApp, pressConnect); // once the window exists
    return 0;
}
EXPORTED std::int32_t ScanVELDIX()
{
    return 1;
}
EXPORTED std::uint32_t GetVELDIXId(std::int32_t, char *id)
{
    std::strcpy(id, "QUORVANDEL-0001");
    return 0;
}
EXPORTED void *OpenVELDIX(const char *)
{
    static int camera;
    return &camera;
}
EXPORTED std::uint32_t SetVELDIXReadMode(void *, std::uint32_t)
{
    return 0;
}
EXPORTED std::uint32_t SetVELDIXStreamMode(void *, std::uint8_t)
{
    return 0;
}
EXPORTED std::uint32_t InitVELDIX(void *)
{
    return 0;
}
EXPORTED std::uint32_t SetVELDIXBitsMode(void *, std::uint32_t)
{
    return 0;
}
EXPORTED std::uint32_t SetVELDIXBinMode(void *, std::uint32_t, std::uint32_t)
{
    return 0;
}
EXPORTED std::uint32_t SetVELDIXResolution(void *, std::uint32_t, std::uint32_t, std::uint32_t,
                                           std::uint32_t)
{
    return 0;
}
EXPORTED double GetVELDIXParam(void *, std::int32_t)
{
    return 1;
}
EXPORTED std::uint32_t SetVELDIXParam(void *, std::int32_t, double)
{
    return 0;
}
EXPORTED std::uint32_t BeginVELDIXLive(void *)
{
    return 0;
}
EXPORTED std::uint32_t GetVELDIXLiveFrame(void *, std::uint32_t *, std::uint32_t *, std::uint32_t *,
                                          std::uint32_t *, std::uint8_t *)
{
    qDebug("the library hangs");
    for (;;)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
}
EXPORTED std::uint32_t StopVELDIXLive(void *)
{
    return 0;
}
EXPORTED std::uint32_t CloseVELDIX(void *)
{
    return 0;
}
