// SPDX-License-Identifier: MIT
// Plays the pulses, the tone and the phrases.
#pragma once

#include "assistantwindow/guidance.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>

class QSoundEffect;
class QTextToSpeech;

namespace assistantwindow
{
class Sounds : public QObject
{
public:
    explicit Sounds(QObject *parent = nullptr);
    ~Sounds() override;

    static bool canSpeak();               ///< built with speech, and an engine is installed
    void setPulses(const Pulses &pulses); ///< Silent stops
    /// Said at most every four seconds; an empty phrase is not said.
    void say(const QString &phrase, const QLocale &locale);

private:
    void pulse();

    std::unique_ptr<QSoundEffect> beep, tone;
    std::unique_ptr<QTextToSpeech> voice;
    QTimer timer;
    Pulses::Kind playing = Pulses::Kind::Silent;
    QElapsedTimer sinceSaid;
};
} // namespace assistantwindow
