// SPDX-License-Identifier: MIT
// Plays what guidance.h decides. Nothing is loaded before it is needed.
#include "assistantwindow/sounds.h"

#include <QSoundEffect>
#include <QUrl>
#ifdef QUORVANDEL_SPEECH
#include <QTextToSpeech>
#else
class QTextToSpeech
{
};
#endif

namespace assistantwindow
{
namespace
{
constexpr qint64 betweenPhrases = 4000; // milliseconds

std::unique_ptr<QSoundEffect> effect(const char *file, int loops)
{
    auto made = std::make_unique<QSoundEffect>();
    made->setSource(QUrl(QLatin1String(file)));
    made->setLoopCount(loops);
    return made;
}
} // namespace

Sounds::Sounds(QObject *parent) : QObject(parent)
{
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, [this] { pulse(); });
}

Sounds::~Sounds() = default;

bool Sounds::canSpeak()
{
#ifdef QUORVANDEL_SPEECH
    return !QTextToSpeech::availableEngines().isEmpty();
#else
    return false;
#endif
}

void Sounds::pulse()
{
    if (!beep)
        beep = effect("qrc:/assistant/pulse.wav", 1);
    beep->play();
}

void Sounds::setPulses(const Pulses &pulses)
{
    if (pulses.kind == Pulses::Kind::Pulse) {
        if (timer.interval() != pulses.milliseconds)
            timer.setInterval(pulses.milliseconds);
        if (!timer.isActive())
            timer.start();
    } else {
        timer.stop();
    }
    if (pulses.kind == playing)
        return;
    playing = pulses.kind;
    if (playing == Pulses::Kind::Steady) {
        if (!tone)
            tone = effect("qrc:/assistant/tone.wav", QSoundEffect::Infinite);
        tone->play();
    } else if (tone) {
        tone->stop();
    }
}

void Sounds::say(const QString &phrase, const QLocale &locale)
{
    if (phrase.isEmpty() || (sinceSaid.isValid() && sinceSaid.elapsed() < betweenPhrases))
        return;
    sinceSaid.start();
#ifdef QUORVANDEL_SPEECH
    if (!voice)
        voice = std::make_unique<QTextToSpeech>();
    voice->setLocale(locale);
    if (voice->state() == QTextToSpeech::Ready)
        voice->say(phrase);
#else
    Q_UNUSED(locale)
#endif
}
} // namespace assistantwindow
