// SPDX-License-Identifier: MIT
// Clicks, types and reads the labels.
#include "bench/assistant/windowmount.h"

#include "bench/assistant/librarymount.h"
#include "virtualcamera/skyfile.h"

#include <QApplication>
#include <QTest>
#include <cmath>
#include <utility>

// Q_INIT_RESOURCE must be used in the global namespace.
static void initialiseWindowResources()
{
    Q_INIT_RESOURCE(assistantwindow);
}

namespace
{
using assistant::Stage;
using assistant::Status;

constexpr int closingTimeout = 20000; // milliseconds
constexpr int ticks = 60;             // milliseconds, a few of the window's timer
constexpr QSize windowSize(800, 480);

double rounded(double degrees)
{
    return std::round(degrees * 1e4) / 1e4;
}

/// The sky of the present time: the window takes its time from the computer's clock.
virtualsky::SkyState asEntered(virtualsky::SkyState sky)
{
    sky.date.reset();
    sky.latitude = rounded(sky.latitude);
    sky.longitude = rounded(sky.longitude);
    return sky;
}

std::optional<recognition::Measured> figureOf(const AssistantHands &hands, const char *label)
{
    const QString name = QLatin1String(label);
    const auto arcseconds = hands.number(name), sigma = hands.number(name, "sigma");
    if (!arcseconds || !sigma)
        return std::nullopt;
    return recognition::Measured{*arcseconds, *sigma};
}

/// With figures it is the third stage; with a turn of the axis that is a number, the second.
Status readLabels(const AssistantHands &hands)
{
    Status status;
    const QString turn = hands.text(QStringLiteral("label_axisTurn"));
    status.stage = !turn.isEmpty() && turn.at(0).isDigit() ? Stage::Axis : Stage::Sky;
    if (const auto total = figureOf(hands, "label_totalError")) {
        status.stage = Stage::Bolts;
        status.error = assistant::ErrorFigures{*total, figureOf(hands, "label_altitudeError"),
                                               figureOf(hands, "label_azimuthError")};
    }
    return status;
}

/// What is compared to notice that the labels changed.
QString shownBy(const AssistantHands &hands)
{
    QString all = hands.text(QStringLiteral("label_axisTurn"));
    for (const char *label : {"label_totalError", "label_altitudeError", "label_azimuthError"})
        all += ' ' + QString::number(hands.number(QLatin1String(label)).value_or(-1.0), 'g', 17);
    return all;
}

double steadyNow()
{
    return assistant::systemClocks().steady();
}
} // namespace

WindowMount::WindowMount(const virtualsky::SkyState &start,
                         std::unique_ptr<assistantwindow::SessionInstrument> given)
    : instrument(std::move(given))
{
    initialiseWindowResources();
    const virtualsky::SkyState state = asEntered(start);
    writeSky(state);
    knobs = std::make_unique<Knobs>(virtualsky::skyFilePath(), state);
    const assistant::Settings settings;
    if (!instrument)
        instrument = std::make_unique<assistantwindow::SessionInstrument>(settings);
    window = std::make_unique<assistantwindow::AssistantWindow>(*instrument, settings,
                                                                [](const auto &) {});
    window->resize(windowSize);
    window->show();
    QApplication::setActiveWindow(window.get());
    hands = std::make_unique<AssistantHands>(*window, *knobs, AssistantHands::Options());
    enterSettings();
    began = steadyNow();
    hands->click(QStringLiteral("pushButton_connect"));
}

WindowMount::~WindowMount()
{
    hands.reset();
    window.reset();
    instrument->close(closingTimeout);
}

void WindowMount::enterSettings()
{
    const virtualsky::SkyState &state = knobs->edit();
    hands->click(QStringLiteral("pushButton_settings"));
    hands->enter(QStringLiteral("doubleSpinBox_latitude"), state.latitude);
    hands->enter(QStringLiteral("doubleSpinBox_longitude"), state.longitude);
    hands->click(QStringLiteral("pushButton_poleSection"));
    hands->enter(QStringLiteral("doubleSpinBox_pressure"), state.refraction ? state.pressure : 0.0);
    hands->enter(QStringLiteral("doubleSpinBox_temperature"), state.temperature);
    QTest::keyClick(window.get(), Qt::Key_Escape);
}

double WindowMount::seconds() const
{
    return steadyNow() - began;
}

void WindowMount::setSky(const virtualsky::SkyState &sky)
{
    knobs->edit() = sky;
    knobs->write();
    turnedAt = assistant::systemClocks().utc();
}

virtualsky::Truth WindowMount::truth() const
{
    return virtualsky::truth(knobs->edit(), assistant::systemClocks().utc());
}

/// Whether the newest frame was exposed since the last turn of a knob.
bool WindowMount::knowsLastTurn() const
{
    const Status now = instrument->latest().status;
    return now.utcSeconds - 0.5e-6 * now.exposureMicroseconds > turnedAt;
}

Status WindowMount::next()
{
    const QString before = shownBy(*hands);
    if (knowsLastTurn()) {
        (void)QTest::qWaitFor([&] { return shownBy(*hands) != before; }, longestLook);
    } else {
        (void)QTest::qWaitFor([this] { return knowsLastTurn(); }, longestWait);
        QTest::qWait(ticks); // until the window shows it
    }
    return readLabels(*hands);
}
