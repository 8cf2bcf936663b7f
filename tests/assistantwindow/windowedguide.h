// SPDX-License-Identifier: MIT
// The assistant's window over the guide itself, on painted skies with a time of their own: what do
// the labels say at each frame, and is it true?
#pragma once

#include "assistantwindow/advicetexts.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/figures.h"
#include "bench/assistant/mountonsky.h"
#include "tests/support/paintedtexts.h"

#include <QLabel>
#include <QTest>

/// The window's instrument on a mount of this process.
class PaintedInstrument : public assistantwindow::Instrument
{
public:
    PaintedInstrument(const virtualsky::SkyState &sky, const assistant::Settings &settings)
        : mount(sky, settings)
    {
    }

    void show(const assistant::Status &status)
    {
        shown.status = status;
        ++shown.number;
    }

    void findCameras() override {}
    std::vector<assistantwindow::CameraEntry> cameras() override { return {}; }
    void connectCamera(const QString &) override {}
    void disconnectCamera() override {}
    bool isConnected() const override { return true; }
    assistantwindow::Range exposureRange() const override { return {1000.0, 500000.0}; }
    void setExposure(double) override {}
    void setAutomaticExposure(bool) override {}
    void startAgain() override { mount.guide().startAgain(); }
    void apply(const assistant::Settings &settings) override
    {
        mount.guide().setSettings(settings);
    }
    assistantwindow::Snapshot latest() override { return shown; }
    std::optional<assistant::Report> report() override { return {}; }

    PaintedMount mount;
    assistantwindow::Snapshot shown;
};

class WindowedGuide : public MountOnSky
{
public:
    WindowedGuide(const virtualsky::SkyState &sky, const assistant::Settings &settings)
        : instrument(sky, settings), window(instrument, settings, [](const auto &) {})
    {
        window.resize(800, 480);
        window.show();
    }

    assistant::Status next() override { return shown(instrument.mount.next()); }
    assistant::Status silence() { return shown(instrument.mount.silence()); }
    double seconds() const override { return instrument.mount.seconds(); }
    const virtualsky::SkyState &sky() const override { return instrument.mount.sky(); }
    void setSky(const virtualsky::SkyState &sky) override { instrument.mount.setSky(sky); }
    virtualsky::Truth truth() const override { return instrument.mount.truth(); }
    /// A status that the guide did not make.
    void show(const assistant::Status &status) { shown(status); }
    PaintedMount &mount() { return instrument.mount; }

    QLabel &label(const char *name) const
    {
        auto *const found = window.findChild<QLabel *>(QLatin1String(name));
        if (!found)
            qFatal("no label %s", name);
        return *found;
    }
    QString text(const char *name) const { return label(name).text(); }
    std::optional<double> number(const char *name, const char *property = "arcseconds") const
    {
        const QVariant value = label(name).property(property);
        return value.isValid() ? std::optional<double>(value.toDouble()) : std::nullopt;
    }
    bool showsNumber() const { return number("label_totalError").has_value(); }

    /// Whether the status has this advice and `label_advice` its sentence.
    bool says(const assistant::Status &status, assistant::AdviceCode code) const
    {
        return said(status, code) == text("label_advice") && !text("label_advice").isEmpty();
    }
    /// The same, or over the picture's lower border.
    bool saysOrHints(const assistant::Status &status, assistant::AdviceCode code) const
    {
        if (says(status, code))
            return true;
        const QString sentence = said(status, code);
        return !sentence.isEmpty() &&
               lettersOf(paintedTexts(label("label_picture")))
                   .endsWith(lettersOf(sentence) + lettersOf(assistantwindow::reasonText(code)));
    }

    /// What is wrong with the labels, in words; empty if nothing is.
    QString faults(const assistant::Status &status) const
    {
        QStringList found;
        const bool hasTotal = showsNumber();
        for (const char *const name :
             {"label_totalError", "label_altitudeError", "label_azimuthError"}) {
            const auto arcseconds = number(name), sigma = number(name, "sigma");
            const auto names = label(name).dynamicPropertyNames();
            const bool isDash = text(name) == assistantwindow::dash();
            if (arcseconds.has_value() != sigma.has_value() || arcseconds.has_value() == isDash ||
                names.contains("arcseconds") != arcseconds.has_value() ||
                names.contains("sigma") != arcseconds.has_value())
                found.append(QStringLiteral("%1 is %2").arg(name, text(name)));
            if (!arcseconds)
                continue;
            if (text(name) != assistantwindow::angleText(*arcseconds, QLocale()))
                found.append(QStringLiteral("%1: %2").arg(text(name)).arg(*arcseconds));
            if (!(*sigma > 0.0 && *sigma < 3600.0))
                found.append(QStringLiteral("sigma %1").arg(*sigma));
        }
        const QString uncertainty = text("label_uncertainty");
        const QString wanted =
            hasTotal
                ? assistantwindow::uncertaintyText(*number("label_totalError", "sigma"), QLocale())
            : status.stage == assistant::Stage::Axis && status.axis.place
                ? assistantwindow::uncertaintyText(status.axis.sigmaArcseconds, QLocale())
                : assistantwindow::dash();
        if (uncertainty != wanted)
            found.append(QStringLiteral("%1, not %2").arg(uncertainty, wanted));
        return found.join('\n');
    }

    /// Whether the numbers that the labels have are right, within so many standard errors and half
    /// an arcsecond on the sky.
    bool isTrue(double sigmas = 4.0) const
    {
        const virtualsky::SkyState &state = sky();
        const double onSky =
            std::cos((std::abs(state.latitude) + state.boltAltitude) * astrometry::degree);
        const auto agrees = [&](const char *name, double real, double factor) {
            const auto shown = number(name), sigma = number(name, "sigma");
            return !shown ||
                   std::abs(*shown - real) * factor <= sigmas * factor * sigma.value_or(0.0) + 0.5;
        };
        return agrees("label_totalError", truth().poleError, 1.0) &&
               agrees("label_altitudeError", state.boltAltitude * 3600.0, 1.0) &&
               agrees("label_azimuthError", state.boltAzimuth * 3600.0, onSky);
    }

    /// Frames whose labels were not as they must be, and figures that were not true, so far.
    QStringList troubles;
    bool watchesTruth = true;

private:
    assistant::Status shown(const assistant::Status &status)
    {
        instrument.show(status);
        window.refresh();
        if (const QString fault = faults(status); !fault.isEmpty())
            troubles.append(fault);
        if (watchesTruth && !isTrue())
            troubles.append(QStringLiteral("not true at %1 s: %2, %3, %4")
                                .arg(seconds())
                                .arg(text("label_totalError"), text("label_altitudeError"),
                                     text("label_azimuthError")));
        return status;
    }
    static QString said(const assistant::Status &status, assistant::AdviceCode code)
    {
        for (const assistant::Advice &advice : status.advice)
            if (advice.code == code)
                return assistantwindow::adviceText(advice, status.error && status.error->altitude,
                                                   QLocale());
        return {};
    }

    PaintedInstrument instrument;
    assistantwindow::AssistantWindow window;
};
