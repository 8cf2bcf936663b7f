// SPDX-License-Identifier: MIT
// What happens where the sound can not be played: no service, or one that has no decoder?
#define QT_STATICPLUGIN

#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"

#include <QAction>
#include <QMediaContent>
#include <QMediaPlayer>
#include <QMediaPlayerControl>
#include <QMediaPlaylist>
#include <QMediaService>
#include <QMediaServiceProviderPlugin>
#include <QMediaTimeRange>
#include <QTest>
#include <QTimer>

namespace
{
bool isServiceThere = true;
int plays = 0; ///< how often the service was asked to play
} // namespace

/// Takes every item and finds a moment after the start that it has no decoder for it.
class FailingControl : public QMediaPlayerControl
{
    Q_OBJECT

public:
    QMediaPlayer::State state() const override { return now; }
    QMediaPlayer::MediaStatus mediaStatus() const override { return status; }
    qint64 duration() const override { return 0; }
    qint64 position() const override { return 0; }
    void setPosition(qint64) override {}
    int volume() const override { return 0; }
    void setVolume(int) override {}
    bool isMuted() const override { return false; }
    void setMuted(bool) override {}
    int bufferStatus() const override { return 0; }
    bool isAudioAvailable() const override { return false; }
    bool isVideoAvailable() const override { return false; }
    bool isSeekable() const override { return false; }
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
    void play() override
    {
        ++plays;
        isStopping = false;
        enter(QMediaPlayer::PlayingState);
        QTimer::singleShot(1, this, &FailingControl::fail);
    }
    void pause() override { enter(QMediaPlayer::PausedState); }
    /// A moment later, as the services do it; a start in between takes it back.
    void stop() override
    {
        isStopping = true;
        QTimer::singleShot(1, this, [this] {
            if (isStopping)
                enter(QMediaPlayer::StoppedState);
        });
    }

private:
    void fail()
    {
        status = QMediaPlayer::InvalidMedia;
        emit error(QMediaPlayer::FormatError, "no decoder");
    }

    void enter(QMediaPlayer::State next)
    {
        now = next;
        emit stateChanged(next);
    }

    bool isStopping = false;
    QMediaPlayer::State now = QMediaPlayer::StoppedState;
    QMediaPlayer::MediaStatus status = QMediaPlayer::NoMedia;
    QMediaContent content;
};

class FailingService : public QMediaService
{
    Q_OBJECT

public:
    FailingService() : QMediaService(nullptr) {}
    QMediaControl *requestControl(const char *name) override
    {
        return qstrcmp(name, QMediaPlayerControl_iid) == 0 ? &control : nullptr;
    }
    void releaseControl(QMediaControl *) override {}

private:
    FailingControl control;
};

class FailingPlayer : public QMediaServiceProviderPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.mediaserviceproviderfactory/5.0" FILE
                          "failingplayer.json")

public:
    QMediaService *create(const QString &) override
    {
        return isServiceThere ? new FailingService : nullptr;
    }
    void release(QMediaService *service) override { delete service; }
};

class SoundFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isLoggedAndNothingElse_data();
    void isLoggedAndNothingElse();
};

void SoundFailureTest::initTestCase()
{
    initialiseResources();
    QCoreApplication::setLibraryPaths({}); // no sound service of the system's
}

void SoundFailureTest::isLoggedAndNothingElse_data()
{
    QTest::addColumn<bool>("service");
    QTest::addColumn<QString>("line");
    QTest::newRow("no decoder") << true << "the sound can not be played: no decoder";
    QTest::newRow("no service")
        << false
        << "the sound can not be played: The QMediaPlayer object does not have a valid service";
}

/// Twice: a failure does not keep the next start from being tried.
void SoundFailureTest::isLoggedAndNothingElse()
{
    QFETCH(bool, service);
    QFETCH(QString, line);
    isServiceThere = service;
    SessionWindow window;
    auto &action = *window.findChild<QAction *>("actionPlay_Audio");
    const auto &player = *window.findChild<QMediaPlayer *>();
    QCOMPARE(player.isAvailable(), service);
    for (int round = 0; round < 2; ++round) {
        plays = 0;
        const LogRecorder log;
        action.trigger();
        QVERIFY(action.isChecked());
        QTRY_VERIFY(log.contains(QtWarningMsg, line));
        QTest::qWait(200); // long enough for a hundred further tries
        // A start that activates the playlist anew asks the service twice.
        QVERIFY2(plays <= 2, qPrintable(QString::number(plays)));
        QCOMPARE(plays > 0, service);
        const QStringList warnings = log.texts(QtWarningMsg);
        QCOMPARE(warnings.count(line), warnings.size());
        QVERIFY2(warnings.size() <= 2, qPrintable(warnings.join('\n')));
        QCOMPARE(player.state(), QMediaPlayer::StoppedState);
        QCOMPARE(player.playlist()->mediaCount(), 1);
        action.trigger();
        QVERIFY(!action.isChecked());
        QCOMPARE(player.state(), QMediaPlayer::StoppedState);
    }
}

QTEST_MAIN(SoundFailureTest)
#include "tst_soundfailure.moc"
Q_IMPORT_PLUGIN(FailingPlayer)
