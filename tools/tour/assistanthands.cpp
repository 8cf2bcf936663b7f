// SPDX-License-Identifier: MIT
// Clicks, turns and waits as a person would.
#include "tools/tour/assistanthands.h"

#include "tools/tour/patience.h"

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTest>
#include <QVariant>
#include <cmath>
#include <stdexcept>

namespace
{
constexpr int skyTimeout = 60000, axisTimeout = 20000, boltTimeout = 20000; // milliseconds
constexpr double maxTurn = 120.0;                                           // degrees
constexpr int maxTurns = 40;                                                // of the bolts
} // namespace

AssistantHands::AssistantHands(QWidget &theWindow, Knobs &theKnobs, const Options &how)
    : window(theWindow), knobs(theKnobs), options(how)
{
}

void AssistantHands::pause() const
{
    QTest::qWait(options.pauseMilliseconds);
}

void AssistantHands::say(const QString &what) const
{
    if (announce)
        announce(what);
}

void AssistantHands::arrive(const QString &name) const
{
    pause();
    if (arrived)
        arrived(name);
}

void AssistantHands::click(const QString &name)
{
    auto *const button = window.findChild<QAbstractButton *>(name);
    if (!button || !button->isVisible() || !button->isEnabled())
        throw std::runtime_error("no button " + name.toStdString());
    // A check box takes clicks only where it draws.
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, {14, button->height() / 2});
}

void AssistantHands::enter(const QString &name, double number)
{
    auto *const field = window.findChild<QDoubleSpinBox *>(name);
    if (!field || !field->isVisible() || !field->isEnabled())
        throw std::runtime_error("no field " + name.toStdString());
    QTest::mouseClick(field, Qt::LeftButton);
    field->setFocus(); // a window that is not active gives none by the mouse
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, field->textFromValue(number));
    QTest::keyClick(field, Qt::Key_Return);
    if (std::abs(field->value() - number) > 0.5 * std::pow(10.0, -field->decimals()))
        throw std::runtime_error("the field " + name.toStdString() + " takes no " +
                                 std::to_string(number));
}

QString AssistantHands::text(const QString &name) const
{
    const auto *const label = window.findChild<QLabel *>(name);
    return label ? label->text() : QString();
}

std::optional<double> AssistantHands::number(const QString &name, const char *property) const
{
    const auto *const label = window.findChild<QLabel *>(name);
    const QVariant value = label ? label->property(property) : QVariant();
    if (!value.isValid())
        return {};
    return value.toDouble();
}

void AssistantHands::waitFor(const std::function<bool()> &isThere, int milliseconds,
                             const char *what) const
{
    if (!QTest::qWaitFor(isThere, patience(milliseconds)))
        throw std::runtime_error(std::string(what) + "; the window says: " +
                                 text(QStringLiteral("label_advice")).toStdString());
}

void AssistantHands::connectCamera()
{
    arrive(QStringLiteral("connect"));
    say(QStringLiteral("Connect the camera."));
    const QString before = text(QStringLiteral("label_axisTurn"));
    click(QStringLiteral("pushButton_connect"));
    // Once the sky is recognised, the turn of the axis is a number.
    waitFor([&] { return text(QStringLiteral("label_axisTurn")) != before; }, skyTimeout,
            "the sky is not recognised");
    dismissHint();
    arrive(QStringLiteral("sky"));
}

/// One that may be true all night, such as that of the clock.
void AssistantHands::dismissHint()
{
    const QString name = QStringLiteral("pushButton_dismissHint");
    const auto *const button = window.findChild<QAbstractButton *>(name);
    if (button && button->isVisible())
        click(name);
}

void AssistantHands::turnAxis()
{
    say(QStringLiteral("Turn the RA axis."));
    const double start = knobs.edit().raAngle;
    const auto isKnown = [&] { return number(QStringLiteral("label_totalError")).has_value(); };
    for (double turned = options.axisStep; turned <= maxTurn && !isKnown();
         turned += options.axisStep) {
        const QString before = text(QStringLiteral("label_axisTurn"));
        knobs.turnRaAxisTo(start + turned);
        waitFor([&] { return isKnown() || text(QStringLiteral("label_axisTurn")) != before; },
                axisTimeout, "the turn of the axis does not show");
        if (turned > 7.0 && turned - options.axisStep <= 7.0 && !isKnown())
            arrive(QStringLiteral("axis"));
        pause();
    }
    waitFor(isKnown, axisTimeout, "the axis is not found");
    arrive(QStringLiteral("bolts"));
}

void AssistantHands::turnBoltsBy(double altitude, double azimuth)
{
    for (int i = 0; i < options.parts; ++i) {
        knobs.turnBoltsTo(knobs.edit().boltAltitude + altitude / options.parts,
                          knobs.edit().boltAzimuth + azimuth / options.parts);
        QTest::qWait(options.parts > 1 ? 250 : 0);
    }
}

void AssistantHands::turnBolts()
{
    say(QStringLiteral("Turn the bolts as the arrows say."));
    bool wasNear = false;
    for (int i = 0; i < maxTurns; ++i) {
        const auto total = number(QStringLiteral("label_totalError"));
        const auto altitude = number(QStringLiteral("label_altitudeError"));
        const auto azimuth = number(QStringLiteral("label_azimuthError"));
        if (total && *total < options.goalArcseconds) {
            arrive(QStringLiteral("aligned"));
            return;
        }
        if (!altitude || !azimuth) {
            QTest::qWait(200);
            continue;
        }
        if (*total < 60.0 && !wasNear) {
            wasNear = true;
            arrive(QStringLiteral("near"));
        }
        // A hand stops short of a far goal.
        const double share = *total > 600.0 ? 0.95 : 0.99;
        turnBoltsBy(-*altitude / 3600.0 * share, -*azimuth / 3600.0 * share);
        const double expected = *total * 0.5;
        waitFor(
            [&] {
                const auto now = number(QStringLiteral("label_totalError"));
                return now && (*now < expected || *now < options.goalArcseconds);
            },
            boltTimeout, "the numbers do not follow the bolts");
        QTest::qWait(700); // until the number stands still
        pause();
    }
    throw std::runtime_error("the bolts do not lead to the goal");
}

// By the buttons: without a window manager the window may not be active, and shortcuts do nothing.
void AssistantHands::showLargeView()
{
    click(QStringLiteral("pushButton_largeView"));
    QTest::qWait(300);
    arrive(QStringLiteral("large"));
    click(QStringLiteral("pushButton_back"));
}

void AssistantHands::showOtherPages()
{
    click(QStringLiteral("pushButton_report"));
    QTest::qWait(200);
    arrive(QStringLiteral("report"));
    click(QStringLiteral("pushButton_reportBack"));
    click(QStringLiteral("pushButton_settings"));
    click(QStringLiteral("pushButton_nightSection"));
    arrive(QStringLiteral("night"));
    click(QStringLiteral("checkBox_red"));
    QTest::qWait(200);
    click(QStringLiteral("pushButton_settingsBack"));
    arrive(QStringLiteral("red"));
    click(QStringLiteral("pushButton_settings"));
    click(QStringLiteral("pushButton_nightSection"));
    click(QStringLiteral("checkBox_red"));
    click(QStringLiteral("pushButton_poleSection"));
    arrive(QStringLiteral("pole"));
    click(QStringLiteral("pushButton_settingsBack"));
}
