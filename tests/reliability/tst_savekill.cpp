// SPDX-License-Identifier: MIT
// Is the settings file complete, whenever the process that writes it is killed?
#include "core/settingsfile.h"
#include "tests/support/filetext.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <cstring>
#include <random>

namespace
{
constexpr int kills = 200;
/// Longest time that a save takes whatever a killed process left behind, milliseconds.
constexpr int longestWait = 2000;

/// Two records that share no value; the second one's file takes many writes.
Settings recordOf(bool second)
{
    Settings settings;
    if (!second)
        return settings;
    settings.styleName = "Mono" + QString(200000, 'o');
    settings.languageCode = "KO";
    settings.regionName = "South";
    settings.zoomFactor = 0.5F;
    settings.latitude = -33.0F;
    settings.longitude = 18.0F;
    settings.P = 99.0F;
    settings.T = -5.0F;
    settings.enabledCorrect = true;
    settings.P_unit = "hPa";
    settings.axisX = 612.0;
    settings.axisY = 488.0;
    return settings;
}

/// What the child does until it is killed.
int saveForEver(const char *path)
{
    for (bool second = true;; second = !second) {
        writeSettings(QString::fromLocal8Bit(path), recordOf(second));
        std::putchar('s');
        std::fflush(stdout);
    }
}
} // namespace

class SaveKillTest : public QObject
{
    Q_OBJECT

private slots:
    void killedWhileSaving();
};

void SaveKillTest::killedWhileSaving()
{
    const QTemporaryDir folder;
    QByteArray whole[2];
    for (const bool second : {false, true}) {
        const QString path = folder.filePath(second ? "second.ini" : "first.ini");
        writeSettings(path, recordOf(second));
        whole[second] = bytesOf(path);
        QVERIFY(whole[second].size() > 100);
    }
    QVERIFY(whole[0] != whole[1]);

    std::mt19937 random(1);
    int seen[2] = {0, 0};
    qint64 longest = 0;
    for (int kill = 0; kill < kills; ++kill) {
        // One file per process; the save below meets what a killed process left behind.
        const QString path = folder.filePath(QString("%1.ini").arg(kill));
        writeSettings(path, recordOf(false));
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {"--save", path});
        QVERIFY(child.waitForReadyRead(30000));
        QTest::qSleep(1 + int(random() % 12));
        child.kill();
        QVERIFY(child.waitForFinished(30000));
        const QByteArray bytes = bytesOf(path);
        const bool second = bytes == whole[1];
        QVERIFY2(second || bytes == whole[0], bytes.left(500));
        ++seen[second];

        QElapsedTimer timer;
        timer.start();
        Settings last = recordOf(false);
        last.T = float(kill);
        writeSettings(path, last);
        longest = std::max(longest, timer.elapsed());
        Settings read;
        QVERIFY(readSettings(path, read));
        QCOMPARE(read.T, float(kill));
        QVERIFY(bytesOf(path).contains("T=" + QByteArray::number(kill) + '\n'));
    }
    qInfo("%d times the first, %d times the second; a save took %lld ms at most", seen[0], seen[1],
          longest);
    QVERIFY(seen[0] > 0 && seen[1] > 0);
    QVERIFY2(longest < longestWait, qPrintable(QString::number(longest)));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--save") == 0)
        return saveForEver(argv[2]);
    SaveKillTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_savekill.moc"
