// SPDX-License-Identifier: MIT
// Operates the program's window with the recording camera behind it.
#include "tests/window/camerawindow.h"

#include "resources/resources.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <map>

/// Milliseconds, as a camera sends small frames; without it, the frames alone take a core.
constexpr int frameInterval = 30;

QString settingsPath()
{
    return QCoreApplication::applicationDirPath() + "/Quorvandel.ini";
}

CameraWindow::CameraWindow(const QByteArray &settings, const std::function<void()> &beforeStart)
{
    initialiseResources();
    QFile::remove(settingsPath());
    if (!settings.isEmpty()) {
        QFile file(settingsPath());
        if (!file.open(QIODevice::WriteOnly) || file.write(settings) != settings.size())
            qFatal("the settings file cannot be written");
    }
    sdk().reset();
    sdk().setFrameInterval(frameInterval);
    if (beforeStart)
        beforeStart();
    window = std::make_unique<SessionWindow>();
    window->resize(1600, 1100);
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get(), patience))
        qFatal("the window does not appear");
}

CameraWindow::~CameraWindow()
{
    sdk().releaseFetches();
    window->close();
    window.reset();
    QFile::remove(settingsPath());
}

void CameraWindow::trigger(const char *action) const
{
    child<QAction>(action).trigger();
}

void CameraWindow::call(const char *slot) const
{
    if (!QMetaObject::invokeMethod(window.get(), slot, Qt::DirectConnection))
        qFatal("there is no slot %s", slot);
}

void CameraWindow::connectCamera() const
{
    trigger("actionConnect");
    if (!comesTrue([] { return !sdkCalls({"BeginVELDIXLive"}).isEmpty(); }))
        qFatal("live mode does not start");
}

bool CameraWindow::waitForNewFrame() const
{
    // A picture of a frame fetched from now on is shown after this many more fetches: the one being
    // processed, two that wait, and one as a margin.
    sdk().setFramesLeft(0);
    const bool drained = comesTrue([this] {
        const int count = sdk().fetchCount();
        QTest::qWait(30);
        return session().frameQueue.isEmpty() && sdk().fetchCount() > count;
    });
    child<QLabel>("label_showImg").clear();
    sdk().setFramesLeft(-1);
    return drained && comesTrue([this] {
               return !child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).isNull();
           });
}

void CameraWindow::enterStep(int step) const
{
    static const std::map<int, const char *> slotInto{
        {2, "pushbuttonSettingDoneClicked"},        {3, "pushbuttonRotateStar1ResetClicked"},
        {5, "pushbuttonRotateStar1DoneClicked"},    {7, "pushbuttonRotateStar2DoneClicked"},
        {9, "pushbuttonValidateCenterDoneClicked"}, {10, "pushbuttonGetEptPolarisDoneClicked"},
        {11, "pushbuttonMovePolarisDoneClicked"},   {12, "pushbuttonGetCurPolarisDoneClicked"},
        {13, "on_pushButton_monitor_clicked"}};
    call(slotInto.at(step));
    if (window->step() != step)
        qFatal("step %d is not entered", step);
}
