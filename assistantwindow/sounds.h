// SPDX-License-Identifier: MIT
// When is a pulse, the tone or a phrase due?
#pragma once

#include "assistantwindow/guidance.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QObject>
#include <QTimer>
#include <memory>

namespace assistantwindow
{
/// What makes the sounds.
class Player
{
public:
    virtual ~Player() = default;
    virtual void playPulse() = 0;
    virtual void setTone(bool on) = 0;
    virtual void say(const QString &phrase, const QLocale &locale) = 0;
};

/// The computer's loudspeaker and its speech engine.
std::unique_ptr<Player> makePlayer();
/// What it plays.
inline constexpr char pulseSource[] = "qrc:/assistant/pulse.wav";
inline constexpr char toneSource[] = "qrc:/assistant/tone.wav";
/// Built with speech, and an engine is installed.
bool isSpeechAvailable();

class Sounds : public QObject
{
public:
    /// Milliseconds from one phrase to the next at least.
    static constexpr qint64 betweenPhrases = 4000;

    explicit Sounds(std::unique_ptr<Player> player = makePlayer(), QObject *parent = nullptr);
    ~Sounds() override;

    /// Silent stops. An interval that changes counts from the last pulse on, so that a number that
    /// changes with every frame does not put off the next one.
    void setPulses(const Pulses &pulses);
    /// Said at most every four seconds; an empty phrase is not said.
    void say(const QString &phrase, const QLocale &locale);

private:
    void pulse();

    std::unique_ptr<Player> player;
    QTimer timer;
    int interval = 0; ///< milliseconds
    Pulses::Kind playing = Pulses::Kind::Silent;
    QElapsedTimer sincePulse, sinceSaid;
};
} // namespace assistantwindow
