// SPDX-License-Identifier: MIT
// Does the system's own sound service give up where it has no decoder for MP3?
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"

#include <QAction>
#include <QApplication>
#include <QMediaPlayer>
#include <QTest>

class NoDecoderTest : public QObject
{
    Q_OBJECT

private slots:
    void givesUp();
};

void NoDecoderTest::givesUp()
{
    initialiseResources();
    SessionWindow window;
    auto &action = *window.findChild<QAction *>("actionPlay_Audio");
    const auto &player = *window.findChild<QMediaPlayer *>();
    if (!player.isAvailable())
        QSKIP("the system has no sound service");
    const LogRecorder log;
    const auto failures = [&] {
        return log.texts(QtWarningMsg).filter("the sound cannot be played:").size();
    };
    action.trigger();
    QTRY_VERIFY(failures() > 0);
    QTest::qWait(1000); // a service that does not give up fails some hundred times a second
    QVERIFY2(failures() <= 2, qPrintable(QString::number(failures())));
    QCOMPARE(player.state(), QMediaPlayer::StoppedState);
    QCOMPARE(player.volume(), 0);
}

int main(int argc, char *argv[])
{
    // Only this test is about the service that is hidden from the others.
    qunsetenv("GST_PLUGIN_SYSTEM_PATH_1_0");
    qputenv("GST_PLUGIN_FEATURE_RANK",
            "mpg123audiodec:NONE,avdec_mp3:NONE,avdec_mp3float:NONE,mad:NONE,mpegaudioparse:NONE");
    QApplication application(argc, argv);
    NoDecoderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_nodecoder.moc"
