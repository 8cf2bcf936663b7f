// SPDX-License-Identifier: MIT
// What happens if the sound cannot be played: no service, or one without a decoder?
#define QT_STATICPLUGIN

#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/soundservice.h"

#include <QAction>
#include <QMediaPlaylist>
#include <QMediaServiceProviderPlugin>
#include <QTest>
#include <QTimer>

namespace
{
bool isServiceThere = true;
int plays = 0; ///< how often the service was asked to play
} // namespace

/// Reports, a moment after each start, that it has no decoder for the item.
class FailingControl : public SilentControl
{
public:
    qint64 duration() const override { return 0; }
    bool isAudioAvailable() const override { return false; }
    bool isSeekable() const override { return false; }
    void play() override
    {
        ++plays;
        isStopping = false;
        SilentControl::play();
        QTimer::singleShot(1, this, [this] { fail(QMediaPlayer::FormatError, "no decoder"); });
    }
    /// Takes effect a moment later, as in real services; a start in between cancels it.
    void stop() override
    {
        isStopping = true;
        QTimer::singleShot(1, this, [this] {
            if (isStopping)
                SilentControl::stop();
        });
    }

private:
    bool isStopping = false;
};

class FailingPlayer : public QMediaServiceProviderPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.mediaserviceproviderfactory/5.0" FILE
                          "failingplayer.json")

public:
    QMediaService *create(const QString &) override
    {
        return isServiceThere ? new SoundService<FailingControl> : nullptr;
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
    QCoreApplication::setLibraryPaths({}); // no sound service from the system
}

void SoundFailureTest::isLoggedAndNothingElse_data()
{
    QTest::addColumn<bool>("service");
    QTest::addColumn<QString>("line");
    QTest::newRow("no decoder") << true << "the sound cannot be played: no decoder";
    QTest::newRow("no service")
        << false
        << "the sound cannot be played: The QMediaPlayer object does not have a valid service";
}

/// Twice: a failure does not prevent the next start from trying.
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
        // A start that activates the playlist again asks the service twice.
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
