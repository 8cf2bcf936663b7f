// SPDX-License-Identifier: MIT
// How does a test stand in for the system's sound service?
#pragma once

#include <QIODevice>
#include <QMediaContent>
#include <QMediaPlayer>
#include <QMediaPlayerControl>
#include <QMediaService>
#include <QMediaTimeRange>

/// Accepts every item and plays nothing, but keeps the state that a player would have.
class SilentControl : public QMediaPlayerControl
{
public:
    QMediaPlayer::State state() const override { return now; }
    QMediaPlayer::MediaStatus mediaStatus() const override { return status; }
    qint64 duration() const override { return 60000; }
    qint64 position() const override { return place; }
    void setPosition(qint64 position) override { place = position; }
    int volume() const override { return loudness; }
    void setVolume(int volume) override
    {
        loudness = volume;
        emit volumeChanged(volume);
    }
    bool isMuted() const override { return false; }
    void setMuted(bool) override {}
    int bufferStatus() const override { return 100; }
    bool isAudioAvailable() const override { return true; }
    bool isVideoAvailable() const override { return false; }
    bool isSeekable() const override { return true; }
    QMediaTimeRange availablePlaybackRanges() const override { return {}; }
    qreal playbackRate() const override { return 1.0; }
    void setPlaybackRate(qreal) override {}
    QMediaContent media() const override { return content; }
    const QIODevice *mediaStream() const override { return nullptr; }
    void setMedia(const QMediaContent &media, QIODevice *) override
    {
        content = media;
        status = QMediaPlayer::LoadedMedia;
        emit mediaChanged(media);
        emit mediaStatusChanged(status);
    }
    void play() override { enter(QMediaPlayer::PlayingState); }
    void pause() override { enter(QMediaPlayer::PausedState); }
    void stop() override
    {
        place = 0;
        enter(QMediaPlayer::StoppedState);
    }

protected:
    void enter(QMediaPlayer::State next)
    {
        now = next;
        emit stateChanged(next);
    }
    /// The item turns out to be unplayable.
    void fail(QMediaPlayer::Error reason, const QString &text)
    {
        status = QMediaPlayer::InvalidMedia;
        emit error(reason, text);
    }

private:
    QMediaPlayer::State now = QMediaPlayer::StoppedState;
    QMediaPlayer::MediaStatus status = QMediaPlayer::NoMedia;
    QMediaContent content;
    qint64 place = 0;
    int loudness = 100;
};

/// A sound service with one control.
template <typename Control> class SoundService : public QMediaService
{
public:
    SoundService() : QMediaService(nullptr) {}
    QMediaControl *requestControl(const char *name) override
    {
        return qstrcmp(name, QMediaPlayerControl_iid) == 0 ? &control : nullptr;
    }
    void releaseControl(QMediaControl *) override {}

private:
    Control control;
};
