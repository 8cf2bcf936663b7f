// SPDX-License-Identifier: MIT
// Is the content of a settings file that saving would lose kept?
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
    void othersKeysStay_data();
    void othersKeysStay();
    void rubbishDoesNotOutgrowTheLimit_data();
    void rubbishDoesNotOutgrowTheLimit();
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

/// What saving would not write back is kept beside the settings file, byte for byte; a second save
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

void SettingsKeptTest::othersKeysStay_data()
{
    QTest::addColumn<QByteArray>("object"); // how it begins
    QTest::newRow("plain") << QByteArray("@Variant(");
    QTest::newRow("an octal escape") << QByteArray("@\\126ariant(");
    QTest::newRow("a hexadecimal escape") << QByteArray("@Variant\\x28");
    QTest::newRow("quotes") << QByteArray("\"@Var\"\"iant(\"");
}

/// The readable part of a file with an object, however it is written, stays where it is.
void SettingsKeptTest::othersKeysStay()
{
    QFETCH(QByteArray, object);
    put("[MINE]\na=b\nobject=" + object +
        "\\0\\0\\0\\x0b\\0\\x10\\0\\0\\0)\nlist=1, \"2;3\"\n"
        "[STYLE]\nstyle=Mono\n");
    {
        SessionWindow window;
        window.close();
    }
    const QSettings file(settingsFilePath(), QSettings::IniFormat);
    QCOMPARE(file.value("MINE/a").toString(), QString("b"));
    QCOMPARE(file.value("MINE/list").toStringList(), QStringList({"1", "2;3"}));
    QVERIFY(!file.contains("MINE/object"));
    QCOMPARE(file.value("STYLE/style").toString(), QString("Mono"));
    QCOMPARE(keptAside().size(), 1);
}

void SettingsKeptTest::rubbishDoesNotOutgrowTheLimit_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("grows");
    QTest::newRow("bytes beyond ASCII") << "key%1=" + QByteArray(1000, '\xE4') + '\n' << true;
    QTest::newRow("keys beyond ASCII") << QByteArray(1000, '\xE4') + "%1=x\n" << true;
    QTest::newRow("plain") << "key%1=" + QByteArray(1000, 'x') + '\n' << false;
}

/// A file just below the limit, which the writer's escapes would make larger, is kept aside
/// unchanged, and read in full before that.
void SettingsKeptTest::rubbishDoesNotOutgrowTheLimit()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, grows);
    QByteArray bytes = "[STYLE]\nstyle=Mono\n[MINE]\n";
    for (int i = 0; bytes.size() < (1 << 20) - 4000; ++i)
        bytes += QByteArray(line).replace("%1", QByteArray::number(i));
    put(bytes);
    for (int run = 0; run < 3; ++run) {
        SessionWindow window;
        window.close();
        QVERIFY(QFileInfo(settingsFilePath()).size() <= 1 << 20);
        QCOMPARE(QSettings(settingsFilePath(), QSettings::IniFormat).value("STYLE/style"),
                 QVariant("Mono"));
        QCOMPARE(keptAside().size(), grows ? 1 : 0);
    }
    if (grows)
        QCOMPARE(bytesOf(keptAside().constFirst()), bytes);
    else
        QVERIFY(QFileInfo(settingsFilePath()).size() > (1 << 20) - 4000);
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

/// What cannot be kept is not overwritten.
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
