// SPDX-License-Identifier: MIT
// Asks the player for what guidance.h decides.
#include "assistantwindow/sounds.h"

#include <algorithm>

namespace assistantwindow
{
Sounds::Sounds(std::unique_ptr<Player> thePlayer, QObject *parent)
    : QObject(parent), player(std::move(thePlayer))
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [this] { pulse(); });
}

Sounds::~Sounds() = default;

void Sounds::pulse()
{
    player->playPulse();
    sincePulse.start();
    timer.start(interval);
}

void Sounds::setPulses(const Pulses &pulses)
{
    const bool isPulse = pulses.kind == Pulses::Kind::Pulse;
    const bool isOther = pulses.kind != playing;
    playing = pulses.kind;
    if (!isPulse)
        timer.stop();
    else if (isOther || pulses.milliseconds != interval) {
        interval = pulses.milliseconds;
        const qint64 passed = sincePulse.isValid() ? sincePulse.elapsed() : interval;
        timer.start(int(std::clamp<qint64>(interval - passed, 0, interval)));
    }
    if (isOther)
        player->setTone(playing == Pulses::Kind::Steady);
}

void Sounds::say(const QString &phrase, const QLocale &locale)
{
    if (phrase.isEmpty() || (sinceSaid.isValid() && sinceSaid.elapsed() < betweenPhrases))
        return;
    sinceSaid.start();
    player->say(phrase, locale);
}
} // namespace assistantwindow
