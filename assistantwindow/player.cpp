// SPDX-License-Identifier: MIT
// Plays by Qt's multimedia and speech. Nothing is loaded before it is needed.
#include "assistantwindow/sounds.h"

#include <QSoundEffect>
#include <QUrl>
#ifdef QUORVANDEL_SPEECH
#include <QTextToSpeech>
#endif

namespace assistantwindow
{
namespace
{
std::unique_ptr<QSoundEffect> effect(const char *file, int loops)
{
    auto made = std::make_unique<QSoundEffect>();
    made->setSource(QUrl(QLatin1String(file)));
    made->setLoopCount(loops);
    return made;
}

class Loudspeaker : public Player
{
public:
    void playPulse() override
    {
        if (!beep)
            beep = effect(pulseSource, 1);
        beep->play();
    }

    void setTone(bool on) override
    {
        if (on && !tone)
            tone = effect(toneSource, QSoundEffect::Infinite);
        if (on)
            tone->play();
        else if (tone)
            tone->stop();
    }

    void say(const QString &phrase, const QLocale &locale) override
    {
#ifdef QUORVANDEL_SPEECH
        if (!voice)
            voice = std::make_unique<QTextToSpeech>();
        voice->setLocale(locale);
        if (voice->state() == QTextToSpeech::Ready)
            voice->say(phrase);
#else
        Q_UNUSED(phrase)
        Q_UNUSED(locale)
#endif
    }

private:
    std::unique_ptr<QSoundEffect> beep, tone;
#ifdef QUORVANDEL_SPEECH
    std::unique_ptr<QTextToSpeech> voice;
#endif
};
} // namespace

std::unique_ptr<Player> makePlayer()
{
    return std::make_unique<Loudspeaker>();
}

bool isSpeechAvailable()
{
#ifdef QUORVANDEL_SPEECH
    return !QTextToSpeech::availableEngines().isEmpty();
#else
    return false;
#endif
}
} // namespace assistantwindow
