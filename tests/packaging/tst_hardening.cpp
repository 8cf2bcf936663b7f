// SPDX-License-Identifier: MIT
// Is what is built protected against damage by a stray write?
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace
{
/// What readelf says of a file.
QString readElf(const QString &option, const QString &file)
{
    QProcess process;
    process.start("readelf", {"--wide", option, file});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qFatal("readelf fails");
    return QString::fromUtf8(process.readAllStandardOutput());
}
} // namespace

class HardeningTest : public QObject
{
    Q_OBJECT

private slots:
    void file_data();
    void file();
    void everySource();
};

void HardeningTest::file_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isProgram");
    QTest::newRow("quorvandel") << QString(PROGRAM) << true;
    QTest::newRow("quorvandel-assistant") << QString(ASSISTANT) << true;
    QTest::newRow("quorvandel-camera") << QString(CAMERA_COMMAND) << true;
    QTest::newRow("quorvandel-mount") << QString(MOUNT) << true;
    QTest::newRow("quorvandel-recognise") << QString(RECOGNISE) << true;
    QTest::newRow("libveldix.so.20") << QString(CAMERA) << false;
    QTest::newRow("the sources of frames") << QString(SOURCES) << false;
}

void HardeningTest::file()
{
    QFETCH(QString, path);
    QFETCH(bool, isProgram);
    const QString dynamic = readElf("--dynamic", path);
    QVERIFY(readElf("--file-header", path).contains("DYN ("));
    QCOMPARE(dynamic.contains(QRegularExpression("FLAGS_1.*\\bPIE\\b")), isProgram);
    QVERIFY(dynamic.contains(QRegularExpression("FLAGS_1.*\\bNOW\\b")));
    const QString segments = readElf("--program-headers", path);
    QVERIFY(segments.contains("GNU_RELRO"));
    QVERIFY2(segments.contains(QRegularExpression("GNU_STACK.* RW ")), "the stack is executable");
    const QString symbols = readElf("--dyn-syms", path);
    QVERIFY(symbols.contains("__stack_chk_fail"));
    QVERIFY(symbols.contains(QRegularExpression(" __[a-z]+_chk\\b")));
}

/// Of the programs, not of the generated ones alone.
void HardeningTest::everySource()
{
    QFile list(COMMANDS);
    QVERIFY(list.open(QIODevice::ReadOnly));
    const QJsonArray commands = QJsonDocument::fromJson(list.readAll()).array();
    QVERIFY(commands.size() > 100);
    for (const QJsonValue &each : commands) {
        const QString command = each.toObject().value("command").toString();
        for (const char *const option : {" -fstack-protector-strong ", " -D_FORTIFY_SOURCE=2 "})
            QVERIFY2(command.contains(option), qPrintable(command));
    }
}

QTEST_GUILESS_MAIN(HardeningTest)
#include "tst_hardening.moc"
