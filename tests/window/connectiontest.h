// SPDX-License-Identifier: MIT
// Which calls, boxes and states belong to a connection? Shared by the tests of connecting.
#pragma once

#include "tests/support/logrecorder.h"
#include "tests/window/camerawindow.h"
#include "widgets/magnifierwidget.h"

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

/// The debug lines of the SDK only, without those of the wizard and the capture thread.
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

/// Whether an action is enabled as soon as it is visible: a hidden one never is.
inline bool wouldBeEnabled(QAction &action)
{
    const bool visible = action.isVisible();
    action.setVisible(true);
    const bool enabled = action.isEnabled();
    action.setVisible(visible);
    return enabled;
}

inline Shown shownBy(const CameraWindow &w)
{
    const bool enabled = w.child<QMenu>("menuZoom").isEnabled();
    for (const char *const name : {"actionSave_As", "actionDisplay_Template",
                                   "actionAstronomical_Refraction", "actionManual_Trace"})
        if (wouldBeEnabled(w.child<QAction>(name)) != enabled)
            qFatal("%s differs from the other actions", name);
    return {w.session().camera.cameraConnected, w.child<QAction>("actionConnect").text(), enabled,
            w.child<QWidget>("tabWidget_tipMsg").isVisible(), w.window->windowTitle()};
}

inline const QString idTitle = QStringLiteral("Quorvandel - ID:QUORVANDEL-0001");
inline const Shown connectedState{true, "Disconnect", true, true, idTitle};

inline Shown atRest(const CameraWindow &w)
{
    return {false, "Connect", false, false, w.window->windowTitle()};
}

/// What the magnifier painted last, without its frame and cross.
inline QImage magnified(const CameraWindow &w)
{
    return w.window->findChild<MagnifierWidget *>()->magnifiedRegion().toImage();
}

/// Whether the picture exists and is fully transparent.
inline bool isClear(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) != 0)
                return false;
    return !picture.isNull();
}
