// SPDX-License-Identifier: MIT
// Every stage and page that the window can show.
#pragma once

#include "assistantwindow/assistantwindow.h"
#include "tests/assistantwindow/madestatus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <algorithm>

namespace scenes
{
struct Scene {
    const char *name;
    assistant::Stage stage;
    madestatus::Error error; ///< arcseconds
    bool south, hasSite;
    assistant::Advice advice, second;
    const char *button; ///< pressed to open the page; empty: the main page
};

inline const std::vector<Scene> &all()
{
    using assistant::AdviceCode;
    using assistant::Stage;
    static const std::vector<Scene> list{
        {"connect",
         Stage::Connect,
         {0, 0},
         false,
         false,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         ""},
        {"nocamera",
         Stage::Connect,
         {0, 0},
         false,
         false,
         {AdviceCode::NoCamera, 0.0, 0.0, {}},
         {},
         ""},
        {"refuses",
         Stage::Connect,
         {0, 0},
         false,
         false,
         {AdviceCode::CameraRefuses, 0.0, 0.0, "QUORVANDEL-V0001"},
         {},
         ""},
        {"outside",
         Stage::Sky,
         {0, 0},
         false,
         true,
         {AdviceCode::PoleThatWay, 6.2, 130.0, {}},
         {},
         ""},
        {"sky", Stage::Sky, {0, 0}, false, true, {AdviceCode::Searching, 0.0, 0.0, {}}, {}, ""},
        {"axis",
         Stage::Axis,
         {2500, 3800},
         false,
         true,
         {AdviceCode::TurnFurther, 17.0, 0.0, {}},
         {},
         ""},
        {"bolts",
         Stage::Bolts,
         {2500, -3800},
         false,
         true,
         {AdviceCode::TurnBolts, 4548.0, 0.0, {}},
         {AdviceCode::ClockUnsure, 0.0, 0.0, {}},
         ""},
        {"south",
         Stage::Bolts,
         {-250, 380},
         true,
         true,
         {AdviceCode::TurnBolts, 454.8, 0.0, {}},
         {},
         ""},
        {"near",
         Stage::Bolts,
         {-25, 9},
         false,
         true,
         {AdviceCode::NearlyThere, 0.0, 0.0, {}},
         {},
         ""},
        {"aligned",
         Stage::Bolts,
         {-5, 4},
         false,
         true,
         {AdviceCode::Aligned, 0.0, 0.0, {}},
         {},
         ""},
        {"nosite",
         Stage::Bolts,
         {250, 380},
         false,
         false,
         {AdviceCode::TurnBolts, 454.8, 0.0, {}},
         {AdviceCode::SiteMissing, 0.0, 0.0, {}},
         ""},
        {"unrecorded",
         Stage::Bolts,
         {250, 380},
         false,
         true,
         {AdviceCode::ClockJumped, -3600.0, 0.0, {}},
         {AdviceCode::RecordingFailed, 0.0, 0.0, "/home/observer/Pictures/quorvandel"},
         ""},
        {"large",
         Stage::Bolts,
         {2500, -245},
         false,
         true,
         {AdviceCode::TurnBolts, 2512.0, 0.0, {}},
         {},
         "pushButton_largeView"},
        {"largeaxis",
         Stage::Axis,
         {2500, -245},
         false,
         true,
         {AdviceCode::TurnFurther, 17.0, 0.0, {}},
         {},
         "pushButton_largeView"},
        {"largesky",
         Stage::Sky,
         {0, 0},
         false,
         true,
         {AdviceCode::ExposeLonger, 3.0, 0.0, {}},
         {},
         "pushButton_largeView"},
        {"largenosite",
         Stage::Bolts,
         {2500, -245},
         false,
         false,
         {AdviceCode::TurnBolts, 2512.0, 0.0, {}},
         {},
         "pushButton_largeView"},
        {"settings",
         Stage::Connect,
         {0, 0},
         false,
         true,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         "pushButton_settings"},
        {"pole",
         Stage::Connect,
         {0, 0},
         false,
         true,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         "pushButton_settings pushButton_poleSection"},
        {"night",
         Stage::Connect,
         {0, 0},
         false,
         true,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         "pushButton_settings pushButton_nightSection"},
        {"recording",
         Stage::Connect,
         {0, 0},
         false,
         true,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         "pushButton_settings pushButton_recordingSection"},
        {"language",
         Stage::Connect,
         {0, 0},
         false,
         true,
         {AdviceCode::ConnectCamera, 0.0, 0.0, {}},
         {},
         "pushButton_settings pushButton_languageSection"},
        {"report",
         Stage::Bolts,
         {-5, 4},
         false,
         true,
         {AdviceCode::Aligned, 0.0, 0.0, {}},
         {},
         "pushButton_report"},
    };
    return list;
}

/// The number of the scene with a name; none has it: the end.
inline int numberOf(const char *name)
{
    const auto found = std::find_if(all().begin(), all().end(), [name](const Scene &scene) {
        return qstrcmp(scene.name, name) == 0;
    });
    return int(found - all().begin());
}

inline assistant::Settings settingsOf(const Scene &scene, bool red, const QString &language)
{
    assistant::Settings settings;
    settings.redTheme = red;
    settings.language = language;
    if (scene.hasSite)
        settings.site = astrometry::Site{scene.south ? -34.0 : 40.0, 116.0};
    return settings;
}

inline void fill(madestatus::MadeInstrument &instrument, const Scene &scene)
{
    if (scene.stage != assistant::Stage::Connect) {
        static std::map<QString, assistantwindow::Snapshot> made;
        const QString key = QStringLiteral("%1 %2 %3 %4 %5")
                                .arg(scene.south)
                                .arg(int(scene.stage))
                                .arg(scene.error.altitude)
                                .arg(scene.error.azimuth)
                                .arg(scene.hasSite);
        auto found = made.find(key);
        if (found == made.end())
            found = made.emplace(key, madestatus::recognisedSnapshot(scene.south, scene.stage,
                                                                     scene.error, scene.hasSite))
                        .first;
        instrument.snapshot = found->second;
        instrument.connected = true;
    }
    instrument.entries = {{"1", "Camera 1"}, {"2", "Camera 2"}};
    instrument.snapshot.status.advice = {scene.advice};
    if (scene.second.code != assistant::AdviceCode::ConnectCamera)
        instrument.snapshot.status.advice.push_back(scene.second);
    if (scene.advice.code == assistant::AdviceCode::PoleThatWay) {
        instrument.snapshot.status.sky = std::make_shared<recognition::Recognition>();
        instrument.snapshot.status.pole.reset();
    }
    assistant::Report report;
    report.before = madestatus::figuresOf({2500, -3800}, scene.hasSite);
    report.after = madestatus::figuresOf(scene.error, scene.hasSite);
    report.seconds = 343.0;
    report.utcSeconds = skyframes::november2026;
    const assistant::Settings settings = settingsOf(scene, false, QString());
    report.site = settings.site;
    report.aim = assistant::aimOf(settings, scene.south ? recognition::Hemisphere::South
                                                        : recognition::Hemisphere::North);
    instrument.figures = report;
}

/// An errors' history as of a person who turns the bolts.
inline void addHistory(assistantwindow::AssistantWindow &window,
                       madestatus::MadeInstrument &instrument)
{
    if (!instrument.snapshot.status.error)
        return;
    auto &status = instrument.snapshot.status;
    const double end = status.error->total.arcseconds;
    for (int i = 0; i <= 60; ++i) {
        status.frame = std::uint64_t(i) + 8;
        status.steadySeconds = 4.0 * i;
        status.error->total.arcseconds = end * std::exp((60 - i) / 60.0 * std::log(9000.0 / end));
        window.refresh();
    }
}

inline void openPage(const QWidget &window, const char *buttons)
{
    const QStringList names = QString::fromLatin1(buttons).split(' ', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        auto *const button = window.findChild<QAbstractButton *>(name);
        QVERIFY2(button, qPrintable(name));
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, {14, button->height() / 2});
    }
}
} // namespace scenes
