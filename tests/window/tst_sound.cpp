// SPDX-License-Identifier: MIT
// What is the sound service asked for? A service of the test's own stands in for the system's.
#define QT_STATICPLUGIN

#include "resources/resources.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QMediaContent>
#include <QMediaPlayer>
#include <QMediaPlayerControl>
#include <QMediaPlaylist>
#include <QMediaService>
#include <QMediaServiceProviderPlugin>
#include <QMediaTimeRange>

namespace
{
QStringList calls; ///< what the service was asked for, in order
bool isUsed = false;
} // namespace

/// Plays nothing, but keeps the state that a player would have.
class RecordingControl : public QMediaPlayerControl
{
    Q_OBJECT

public:
    QMediaPlayer::State state() const override { return now; }
    QMediaPlayer::MediaStatus mediaStatus() const override { return QMediaPlayer::LoadedMedia; }
    qint64 duration() const override { return 60000; }
    qint64 position() const override { return place; }
    void setPosition(qint64 position) override { place = position; }
    int volume() const override { return loudness; }
    void setVolume(int volume) override
    {
        loudness = volume;
        calls << QString("volume %1").arg(volume);
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
        calls << "media " + media.request().url().toString();
        emit mediaChanged(media);
    }
    void play() override { enter(QMediaPlayer::PlayingState, "play"); }
    void pause() override { enter(QMediaPlayer::PausedState, "pause"); }
    void stop() override
    {
        place = 0;
        enter(QMediaPlayer::StoppedState, "stop");
    }

private:
    void enter(QMediaPlayer::State next, const char *call)
    {
        calls << call;
        now = next;
        emit stateChanged(next);
    }

    QMediaPlayer::State now = QMediaPlayer::StoppedState;
    QMediaContent content;
    qint64 place = 0;
    int loudness = 100;
};

class RecordingService : public QMediaService
{
    Q_OBJECT

public:
    RecordingService() : QMediaService(nullptr) {}
    QMediaControl *requestControl(const char *name) override
    {
        return qstrcmp(name, QMediaPlayerControl_iid) == 0 ? &control : nullptr;
    }
    void releaseControl(QMediaControl *) override {}

private:
    RecordingControl control;
};

class RecordingPlayer : public QMediaServiceProviderPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.mediaserviceproviderfactory/5.0" FILE
                          "recordingplayer.json")

public:
    QMediaService *create(const QString &) override
    {
        isUsed = true;
        return new RecordingService;
    }
    void release(QMediaService *service) override { delete service; }
};

class SoundTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void createdStoppedAtVolumeZero();
    void startsAndStops();
    void startsFromTheBeginning();
    void triggeredAloneDoesNothing();
    void loopsWithoutEnd();
};

void SoundTest::initTestCase()
{
    initialiseResources();
    QCoreApplication::setLibraryPaths({}); // the system's sound services stay out of this
    const QMediaPlayer probe;
    QVERIFY(isUsed);
}

void SoundTest::init()
{
    removeSettings();
    calls.clear();
}

void SoundTest::createdStoppedAtVolumeZero()
{
    const SessionWindow window;
    QCOMPARE(calls.filter("volume"), QStringList{"volume 0"});
    QVERIFY(!calls.contains("play"));
    const auto &player = *window.findChild<QMediaPlayer *>();
    QCOMPARE(player.volume(), 0);
    QCOMPARE(player.state(), QMediaPlayer::StoppedState);
}

void SoundTest::startsAndStops()
{
    SessionWindow window;
    auto &action = named<QAction>(window, "actionPlay_Audio");
    const auto &player = *window.findChild<QMediaPlayer *>();
    action.trigger();
    // The toolkit unpacks what is bundled into a file for the service.
    const QStringList media = calls.filter("media ");
    QCOMPARE(media.size(), 1);
    QFile played(QUrl(media.first().mid(6)).toLocalFile()), bundled(":/audio/audio.mp3");
    QVERIFY(played.open(QIODevice::ReadOnly));
    QVERIFY(bundled.open(QIODevice::ReadOnly));
    QVERIFY(played.size() > 0);
    QCOMPARE(played.readAll(), bundled.readAll());
    QCOMPARE(calls.last(), QString("play"));
    QCOMPARE(player.state(), QMediaPlayer::PlayingState);
    QCOMPARE(player.volume(), 0);
    action.trigger();
    QCOMPARE(calls.last(), QString("stop"));
    QCOMPARE(player.state(), QMediaPlayer::StoppedState);
}

void SoundTest::startsFromTheBeginning()
{
    SessionWindow window;
    auto &action = named<QAction>(window, "actionPlay_Audio");
    auto &player = *window.findChild<QMediaPlayer *>();
    action.trigger();
    player.setPosition(5000);
    QCOMPARE(player.position(), qint64(5000));
    action.trigger();
    action.trigger();
    QCOMPARE(player.state(), QMediaPlayer::PlayingState);
    QCOMPARE(player.position(), qint64(0));
}

void SoundTest::triggeredAloneDoesNothing()
{
    SessionWindow window;
    calls.clear();
    QVERIFY(QMetaObject::invokeMethod(&window, "on_actionPlay_Audio_triggered"));
    QCOMPARE(calls, QStringList());
}

void SoundTest::loopsWithoutEnd()
{
    const SessionWindow window;
    auto &playlist = *window.findChild<QMediaPlayer *>()->playlist();
    playlist.setCurrentIndex(0);
    for (int round = 0; round < 3; ++round) {
        playlist.next();
        QCOMPARE(playlist.currentIndex(), 0);
        QCOMPARE(playlist.currentMedia().request().url(), QUrl("qrc:/audio/audio.mp3"));
    }
}

QTEST_MAIN(SoundTest)
#include "tst_sound.moc"
Q_IMPORT_PLUGIN(RecordingPlayer)
