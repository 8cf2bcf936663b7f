// SPDX-License-Identifier: MIT
// Do --help and --version print and end without a screen?
#include <QProcess>
#include <QtTest>

class PrintedTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void prints_data();
    void prints();
};

void PrintedTextsTest::prints_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("contained");
    const struct {
        const char *name, *file;
    } programs[] = {{"assistant", ASSISTANT_FILE},
                    {"mount", MOUNT_FILE},
                    {"tour", TOUR_FILE},
                    {"assistant's tour", ASSISTANT_TOUR_FILE}};
    for (const auto &program : programs) {
        const QString file = QString::fromUtf8(program.file);
        QTest::addRow("%s, help", program.name)
            << file << QStringList{"--help"} << QByteArray("--language");
        QTest::addRow("%s, version", program.name)
            << file << QStringList{"--version"} << QByteArray(VERSION_TEXT "\n");
        QTest::addRow("%s, among others", program.name)
            << file << QStringList{"--language", "DE", "--help"} << QByteArray("--language");
    }
}

void PrintedTextsTest::prints()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, contained);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(name);
    environment.insert("QT_QPA_PLATFORM", "xcb"); // which needs a screen
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished(60000), qPrintable(process.errorString()));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    const QByteArray printed = process.readAllStandardOutput();
    QVERIFY2(printed.contains(contained), printed);
}

QTEST_GUILESS_MAIN(PrintedTextsTest)
#include "tst_printedtexts.moc"
