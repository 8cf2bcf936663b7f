// SPDX-License-Identifier: MIT
// The assistant's window on the virtual camera, under a sky of its own.
#pragma once

#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "tools/tour/assistanthands.h"
#include "virtualcamera/skyfile.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

inline virtualsky::SkyState deskSky(bool south)
{
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 47.0;
    sky.longitude = south ? 149.0 : 8.0;
    sky.boltAltitude = south ? -0.7 : 1.1;
    sky.boltAzimuth = south ? 1.3 : -0.6;
    sky.roll = 130.0;
    sky.refraction = true;
    return sky;
}

/// A window on a sky of its own.
struct Desk {
    std::unique_ptr<Knobs> knobs;
    std::unique_ptr<assistantwindow::SessionInstrument> instrument;
    std::unique_ptr<assistantwindow::AssistantWindow> window;
    std::unique_ptr<AssistantHands> hands;

    Desk(bool south, bool hasSite) : Desk(deskSky(south), hasSite) {}
    Desk(const virtualsky::SkyState &sky, bool hasSite)
    {
        // The camera library keeps the first path that it was given.
        static const QTemporaryDir folder;
        qputenv("QUORVANDEL_SKY", QFile::encodeName(folder.filePath("sky.ini")));
        knobs = std::make_unique<Knobs>(virtualsky::skyFilePath(), sky);
        assistant::Settings settings;
        if (hasSite)
            settings.site = astrometry::Site{knobs->edit().latitude, knobs->edit().longitude};
        instrument = std::make_unique<assistantwindow::SessionInstrument>(settings);
        window = std::make_unique<assistantwindow::AssistantWindow>(*instrument, settings,
                                                                    [](const auto &) {});
        window->resize(800, 480);
        window->show();
        QApplication::setActiveWindow(window.get());
        hands = std::make_unique<AssistantHands>(*window, *knobs, AssistantHands::Options());
    }
    ~Desk()
    {
        window.reset();
        instrument->close(20000);
    }
    template <typename T> T &named(const char *name) const
    {
        T *const found = window->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("no widget %s", name);
        return *found;
    }
};
