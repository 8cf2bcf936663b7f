// SPDX-License-Identifier: MIT
// Which calls, boxes and states belong to a connection? What the tests of connecting share.
#pragma once

#include "camera/camerastate.h"
#include "tests/camera/camerawindow.h"
#include "tests/support/logrecorder.h"

#include <QAction>
#include <QMenu>
#include <QRegularExpression>

constexpr std::uint32_t sdkError = 0xFFFFFFFFu;
inline const QStringList choosing{"ScanVELDIX()", "GetVELDIXId(0)", "OpenVELDIX(QUORVANDEL-0001)"};
inline const QStringList opening =
    choosing + QStringList{"SetVELDIXReadMode(camera 1, 0)", "SetVELDIXStreamMode(camera 1, 1)",
                           "InitVELDIX(camera 1)"};
inline const QStringList setting{"SetVELDIXBitsMode(camera 1, 8)",
                                 "SetVELDIXBinMode(camera 1, 1, 1)",
                                 "SetVELDIXResolution(camera 1, 0, 0, 1280, 960)",
                                 "GetVELDIXParam(camera 1, 8)",
                                 "GetVELDIXParam(camera 1, 6)",
                                 "SetVELDIXParam(camera 1, 12, 30)",
                                 "SetVELDIXParam(camera 1, 9, 0)"};
inline const QStringList beginning{"BeginVELDIXLive(camera 1)"};
inline const QStringList closing{"StopVELDIXLive(camera 1)", "CloseVELDIX(camera 1)"};
inline const QStringList settingLog{
    "SetVELDIXBitsMode 8", "SetVELDIXBinMode 1 1", "SetVELDIXResolution 0 0 1280 960",
    "SetVELDIXParam CONTROL_USBTRAFFIC 30", "SetVELDIXParam CONTROL_SPEED 0"};

inline const Box notFound =
    okBox(QMessageBox::Information, "Info", "Not Found VELDIX Quorvandel equipment!");

inline Box failedBox(const char *operation)
{
    return okBox(QMessageBox::Critical, "Error",
                 QStringLiteral("Can not connect Quorvandel as %1 error!").arg(operation));
}

/// The debug lines of the SDK alone, without those of the wizard and the capture thread.
inline QStringList sdkLog(const LogRecorder &log)
{
    return log.texts(QtDebugMsg).filter(QRegularExpression("VELDIX"));
}

/// What a window shows of the connection.
struct Shown {
    bool connected;
    QString actionText;
    bool actionsEnabled;
    bool pagesVisible;
    QString title;
};

inline bool operator==(const Shown &a, const Shown &b)
{
    return a.connected == b.connected && a.actionText == b.actionText &&
           a.actionsEnabled == b.actionsEnabled && a.pagesVisible == b.pagesVisible &&
           a.title == b.title;
}

inline char *toString(const Shown &s)
{
    return qstrdup(qPrintable(QStringLiteral("%1 %2 %3 %4 %5")
                                  .arg(s.connected)
                                  .arg(s.actionText)
                                  .arg(s.actionsEnabled)
                                  .arg(s.pagesVisible)
                                  .arg(s.title)));
}

inline Shown shownBy(const CameraWindow &w)
{
    const bool enabled = w.child<QMenu>("menuZoom").isEnabled();
    // actionDisplay_Template is not among them: a hidden action is never enabled.
    for (const char *const name :
         {"actionSave_As", "actionAstronomical_Refraction", "actionManual_Trace"})
        if (w.child<QAction>(name).isEnabled() != enabled)
            qFatal("%s differs from the other actions", name);
    return {cameraState.cameraConnected, w.child<QAction>("actionConnect").text(), enabled,
            w.child<QWidget>("tabWidget_tipMsg").isVisible(), w.window->windowTitle()};
}

inline const QString idTitle = QStringLiteral("Quorvandel - ID:QUORVANDEL-0001");
inline const Shown connectedState{true, "Disconnect", true, true, idTitle};

inline Shown atRest(const CameraWindow &w)
{
    return {false, "Connect", false, false, w.window->windowTitle()};
}
