// SPDX-License-Identifier: MIT
// A stage or page of the assistant's window, shown on the smallest screen.
#pragma once

#include "tests/assistantwindow/scenes.h"
#include "tests/assistantwindow/smallscreen.h"
#include "tests/support/textroom.h"

#include <QScreen>
#include <memory>

/// A row for each scene; column "scene" is its number.
inline void forEachScene()
{
    QTest::addColumn<int>("scene");
    for (int i = 0; i < int(scenes::all().size()); ++i)
        QTest::newRow(scenes::all()[std::size_t(i)].name) << i;
}

struct ShownScene {
    madestatus::MadeInstrument instrument;
    std::unique_ptr<assistantwindow::AssistantWindow> window;

    explicit ShownScene(int number, bool red = false)
    {
        const scenes::Scene &scene = scenes::all()[std::size_t(number)];
        scenes::fill(instrument, scene);
        window = std::make_unique<assistantwindow::AssistantWindow>(
            instrument, scenes::settingsOf(scene, red, "EN"), [](const auto &) {});
        window->resize(smallScreen);
        window->show();
        QApplication::setActiveWindow(window.get());
        scenes::addHistory(*window, instrument);
        scenes::openPage(*window, scene.button);
        window->showNormal();
        window->resize(smallScreen);
        settle();
    }
};

/// What the screen shows, with every window on it.
inline QImage screenImage(const QWidget &window)
{
    settle();
    return window.screen()->grabWindow(window.winId()).toImage();
}
