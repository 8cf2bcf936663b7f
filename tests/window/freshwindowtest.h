// SPDX-License-Identifier: MIT
// What do the tests of the wizard start with? A window without any earlier state.
#pragma once

#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QObject>
#include <memory>

/// Each test function has its own new window, created without a settings file.
class FreshWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init()
    {
        removeSettings();
        window = std::make_unique<SessionWindow>();
        probe = std::make_unique<MainWindowProbe>(*window);
    }
    void cleanup() { window.reset(); }
    void cleanupTestCase() { removeSettings(); }

protected:
    Session &session() const { return window->ownSession; }

    std::unique_ptr<SessionWindow> window;
    std::unique_ptr<MainWindowProbe> probe;
};
