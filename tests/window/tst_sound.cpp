// SPDX-License-Identifier: MIT
// What is the sound service asked for? A service of the test's own replaces the system's.
#define QT_STATICPLUGIN

#include "resources/resources.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/soundservice.h"
#include "tests/window/windowtest.h"

#include <QMediaPlaylist>
#include <QMediaServiceProviderPlugin>

namespace
{
QStringList calls; ///< what the service was asked for, in order
bool isUsed = false;
} // namespace

/// Records what it is asked for.
class RecordingControl : public SilentControl
{
public:
    void setVolume(int volume) override
    {
        calls << QString("volume %1").arg(volume);
        SilentControl::setVolume(volume);
    }
    void setMedia(const QMediaContent &media, QIODevice *stream) override
    {
        calls << "media " + media.request().url().toString();
        SilentControl::setMedia(media, stream);
    }
    void play() override
    {
        calls << "play";
        SilentControl::play();
    }
    void pause() override
    {
        calls << "pause";
        SilentControl::pause();
    }
    void stop() override
    {
        calls << "stop";
        SilentControl::stop();
    }
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
        return new SoundService<RecordingControl>;
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
    QCoreApplication::setLibraryPaths({}); // no sound service from the system
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
