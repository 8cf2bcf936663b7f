// SPDX-License-Identifier: MIT
// A camera library of which one operation never returns: the one that the environment names, or the
// call for a frame. With "StopUnderFetch" a call for a frame returns only once StopVELDIXLive has
// been called, which then never returns. In a window it changes a setting, then presses Connect and
// Disconnect like a user.
#include <QAction>
#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <QtDebug>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace
{
QAction *actionOfWindow(const char *name)
{
    for (QWidget *const widget : QApplication::topLevelWidgets())
        if (auto *const action = widget->findChild<QAction *>(name))
            return action;
    return nullptr;
}

QAction *connectAction = nullptr; ///< set by the window's thread before it starts any other

void pressConnect()
{
    connectAction = actionOfWindow("actionConnect");
    if (connectAction)
        connectAction->trigger();
}

bool isSet(const char *variable, const char *value)
{
    const char *const text = std::getenv(variable);
    return text && std::strcmp(text, value) == 0;
}

constexpr char stopUnderFetch[] = "StopUnderFetch";
std::atomic<bool> stopping{false};

void pause()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

[[noreturn]] void hang()
{
    qDebug("the library hangs");
    for (;;)
        pause();
}

/// Never returns if this is the operation that hangs.
void enter(const char *operation)
{
    const char *const hanging = std::getenv("HANGING_SDK");
    if (std::strcmp(hanging ? hanging : "GetVELDIXLiveFrame", operation) == 0)
        hang();
}

void waitForStop()
{
    qDebug("the library waits for its stop");
    while (!stopping)
        pause();
}

/// What the user does while the camera is live.
void actWhileLive()
{
    // By name: the thread sanitizer does not see the lock of the toolkit's queue, and would take
    // the delivery of a function object of ours for a data race.
    if (isSet("HANGING_SDK_THEN", "Disconnect"))
        QMetaObject::invokeMethod(connectAction, "trigger", Qt::QueuedConnection);
    qDebug("the camera is live");
}
} // namespace

EXPORTED std::uint32_t InitVELDIXResource()
{
    enter("InitVELDIXResource");
    if (QThread::currentThread() != qApp->thread())
        return 0;                    // the assistant, which has none of these actions
    QTimer::singleShot(0, qApp, [] { // once the window exists
        if (QAction *const mono = actionOfWindow("actionMono_Style"))
            mono->setChecked(true);
        pressConnect();
    });
    return 0;
}
EXPORTED std::int32_t ScanVELDIX()
{
    enter("ScanVELDIX");
    return 1;
}
EXPORTED std::uint32_t GetVELDIXId(std::int32_t, char *id)
{
    enter("GetVELDIXId");
    std::strcpy(id, "QUORVANDEL-0001");
    return 0;
}
EXPORTED void *OpenVELDIX(const char *)
{
    enter("OpenVELDIX");
    static int camera;
    return &camera;
}
EXPORTED std::uint32_t SetVELDIXReadMode(void *, std::uint32_t)
{
    enter("SetVELDIXReadMode");
    return 0;
}
EXPORTED std::uint32_t SetVELDIXStreamMode(void *, std::uint8_t)
{
    enter("SetVELDIXStreamMode");
    return 0;
}
EXPORTED std::uint32_t InitVELDIX(void *)
{
    enter("InitVELDIX");
    return 0;
}
EXPORTED std::uint32_t SetVELDIXBitsMode(void *, std::uint32_t)
{
    enter("SetVELDIXBitsMode");
    return 0;
}
EXPORTED std::uint32_t SetVELDIXBinMode(void *, std::uint32_t, std::uint32_t)
{
    enter("SetVELDIXBinMode");
    return 0;
}
EXPORTED std::uint32_t SetVELDIXResolution(void *, std::uint32_t, std::uint32_t, std::uint32_t,
                                           std::uint32_t)
{
    enter("SetVELDIXResolution");
    return 0;
}
EXPORTED double GetVELDIXParam(void *, std::int32_t)
{
    enter("GetVELDIXParam");
    return 1;
}
EXPORTED std::uint32_t SetVELDIXParam(void *, std::int32_t, double)
{
    enter("SetVELDIXParam");
    return 0;
}
EXPORTED std::uint32_t BeginVELDIXLive(void *)
{
    enter("BeginVELDIXLive");
    return 0;
}
EXPORTED std::uint32_t GetVELDIXLiveFrame(void *, std::uint32_t *, std::uint32_t *, std::uint32_t *,
                                          std::uint32_t *, std::uint8_t *)
{
    enter("GetVELDIXLiveFrame");
    if (isSet("HANGING_SDK", stopUnderFetch))
        waitForStop();
    static std::once_flag first;
    std::call_once(first, actWhileLive);
    return 1; // no new frame
}
EXPORTED std::uint32_t StopVELDIXLive(void *)
{
    enter("StopVELDIXLive");
    if (isSet("HANGING_SDK", stopUnderFetch)) {
        stopping = true;
        hang();
    }
    return 0;
}
EXPORTED std::uint32_t CloseVELDIX(void *)
{
    enter("CloseVELDIX");
    return 0;
}
