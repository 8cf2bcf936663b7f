// SPDX-License-Identifier: MIT
// Is what saving would lose of a settings file kept?
#include "tests/reliability/settingsplace.h"
#include "tests/support/reachablecopy.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "resources/resources.h"
#include "tests/support/logrecorder.h"

#include <QSettings>

class SettingsKeptTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { clearPlace(); }
    void nothingIsLost_data();
    void nothingIsLost();
    void aSecondOneIsKeptToo();
    void damagedFileThatCanNotBeWritten();
};

void SettingsKeptTest::initTestCase()
{
    initialiseResources();
    QVERIFY(givePlaceAway());
}

void SettingsKeptTest::nothingIsLost_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("kept");
    QTest::newRow("ours") << QByteArray("[STYLE]\nstyle=Mono\n") << false;
    QTest::newRow("keys of others") << QByteArray("[MINE]\na=b\n") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("an object") << QByteArray("[MINE]\na=@Variant(\\0\\0\\0\\x0b)\n") << true;
    QTest::newRow("larger than a mebibyte") << QByteArray(1 << 21, ';') << true;
    QTest::newRow("a damaged line") << QByteArray("[MINE]\na=b\nnotes of mine\n") << true;
    QTest::newRow("comments") << QByteArray("; my mount\n[STYLE]\nstyle=Mono\n") << true;
    QTest::newRow("a letter") << QByteArray("Dear Quorvandel, my mount\n") << true;
}

/// What saving would not write back lies beside the settings file, to the last byte; a second save
/// finds nothing more to keep.
void SettingsKeptTest::nothingIsLost()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, kept);
    put(bytes);
    for (int run = 0; run < 2; ++run) {
        const LogRecorder log;
        SessionWindow window;
        window.close();
        QCOMPARE(log.texts(QtWarningMsg).filter("is kept in").size(), kept && run == 0 ? 1 : 0);
    }
    const QStringList aside = keptAside();
    QCOMPARE(aside.size(), kept ? 1 : 0);
    if (kept)
        QCOMPARE(bytesOf(aside.constFirst()), bytes);
    QCOMPARE(QSettings(settingsFilePath(), QSettings::IniFormat).value("ZOOM/factor"),
             QVariant("1"));
}

/// An earlier one is not overwritten.
void SettingsKeptTest::aSecondOneIsKeptToo()
{
    const QByteArrayList letters{"first letter\n", "second letter\n", "third letter\n"};
    for (const QByteArray &letter : letters) {
        put(letter);
        SessionWindow window;
        window.close();
    }
    QByteArrayList kept;
    for (const QString &path : keptAside())
        kept.append(bytesOf(path));
    QCOMPARE(kept, letters);
}

/// What can not be kept is not written over.
void SettingsKeptTest::damagedFileThatCanNotBeWritten()
{
    const QByteArray letter = "[STYLE]\nstyle=Mono\na letter\n";
    {
        const OrdinaryUser user;
        put(letter);
        chmod(settingsFilePath().toLocal8Bit(), 0444);
        SessionWindow window;
        window.close();
    }
    QCOMPARE(keptAside(), QStringList());
    QCOMPARE(bytesOf(settingsFilePath()), letter);
}

int main(int argc, char *argv[])
{
    if (const auto status = statusOfCopy(argv))
        return *status;
    QTEST_MAIN_IMPL(SettingsKeptTest)
}
#include "tst_settingskept.moc"
