// SPDX-License-Identifier: MIT
// The program's window on the virtual camera, whose faults the test sets.
#pragma once

#include "resources/resources.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"
#include "tools/tour/knobs.h"

#include <QDir>
#include <QSlider>
#include <memory>

/// This test's sky file; the environment passes its path to the virtual camera.
inline std::string skyFileOfTest()
{
    const QString path = QCoreApplication::applicationDirPath() + "/sky.ini";
    qputenv("QUORVANDEL_SKY", path.toLocal8Bit());
    return path.toStdString();
}

/// A shown window that starts without a settings file, under a good sky.
class VirtualWindow
{
public:
    VirtualWindow() : sky(skyFileOfTest(), virtualsky::SkyState())
    {
        initialiseResources();
        removeSettings();
        open();
    }
    ~VirtualWindow()
    {
        window->close();
        window.reset();
        removeSettings();
    }

    void open()
    {
        window = std::make_unique<SessionWindow>();
        window->resize(1600, 1100);
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get(), patience))
            qFatal("the window does not appear");
    }

    Session &session() const { return window->ownSession; }

    void toggleConnection() const { named<QAction>(*window, "actionConnect").trigger(); }

    /// Connects, with the shortest exposure, and waits for a picture.
    bool connectCamera() const
    {
        toggleConnection();
        if (!session().camera.cameraConnected)
            return false;
        named<QSlider>(*window, "sliderExpose").setValue(1);
        return hasNewPicture();
    }

    /// Whether a new picture comes in that time.
    bool hasNewPicture(int milliseconds = patience) const
    {
        auto &label = named<QLabel>(*window, "label_showImg");
        label.clear();
        return QTest::qWaitFor([&] { return !label.pixmap(Qt::ReturnByValue).isNull(); },
                               milliseconds);
    }

    void plug(bool plugged)
    {
        sky.edit().unplugged = !plugged;
        sky.write();
    }
    void liftFaults()
    {
        sky.edit() = virtualsky::SkyState();
        sky.write();
    }

    Knobs sky;
    std::unique_ptr<SessionWindow> window;
};
