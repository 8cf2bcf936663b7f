// SPDX-License-Identifier: MIT
// Does the log file hold every line of every thread, and does the program write one if built so?
#include "app/logging.h"
#include "tests/reliability/handledsignals.h"
#include "tests/support/filetext.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <memory>
#include <thread>

namespace
{
constexpr int lineCount = 10000;

/// Starts the program that was built with file logging, with `home` as its user's home.
void startLogging(QProcess &program, const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home);
    environment.insert("XDG_CONFIG_HOME", home + "/config");
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    program.setProcessEnvironment(environment);
    program.start(LOGGING_PROGRAM, QStringList());
}
} // namespace

class FileLogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void twoThreadsLoseNoLine_data();
    void twoThreadsLoseNoLine();
    void programWritesItsLog();
    void programGoesOnWithoutItsLog();

private:
    std::unique_ptr<QTemporaryDir> folder;
};

void FileLogTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void FileLogTest::twoThreadsLoseNoLine_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("padding"); // characters
    QTest::newRow("short lines") << lineCount << 0;
    QTest::newRow("lines longer than any buffer") << 300 << 100000;
}

void FileLogTest::twoThreadsLoseNoLine()
{
    QFETCH(int, count);
    QFETCH(int, padding);
    logFilePath = folder->filePath("run.log");
    const QString tail(padding, 'x');
    const QtMessageHandler before = qInstallMessageHandler(logMessageHandler);
    const auto logAll = [&](const char *name) {
        for (int i = 0; i < count; ++i)
            qDebug("%s %d %s", name, i, qPrintable(tail));
    };
    std::thread other(logAll, "other");
    logAll("this");
    other.join();
    qInstallMessageHandler(before);

    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 2 * count);
    static const QRegularExpression form("^.{19}\tDebug\t (this|other) (\\d+) (x*)$");
    QHash<QString, int> next; // the lines of each thread come in its order
    for (const QString &line : lines) {
        const auto match = form.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line.left(200)));
        QCOMPARE(match.captured(2).toInt(), next[match.captured(1)]++);
        QCOMPARE(match.captured(3).size(), padding);
    }
    QCOMPARE(next.value("this"), count);
    QCOMPARE(next.value("other"), count);
}

/// The program itself, built with file logging: its messages are in the file and nowhere else.
void FileLogTest::programWritesItsLog()
{
    const QString documents = folder->path() + "/Documents";
    QVERIFY(QDir().mkpath(documents));
    QProcess program;
    startLogging(program, folder->path());
    QVERIFY(program.waitForStarted());
    const QDir log(documents + "/Quorvandel/Log");
    const auto text = [&log] {
        QString all;
        for (const QString &name : log.entryList({"*.log"}, QDir::Files))
            all += linesOf(log.filePath(name)).join('\n');
        return all;
    };
    QTRY_VERIFY(text().contains("InitVELDIX"));
    QTRY_VERIFY(waitsForSignal(program.processId(), SIGTERM));
    program.terminate();
    QVERIFY(endsAfterSignal(program));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(log.entryList(QDir::Files).size(), 1);
    QVERIFY2(text().contains("\tDebug\t change region to"), qPrintable(text()));
    QVERIFY(!program.readAllStandardError().contains("change region to"));
}

/// With a file in the place of its folder it starts and ends normally, and reports each lost line.
void FileLogTest::programGoesOnWithoutItsLog()
{
    const QString inTheWay = folder->path() + "/Documents/Quorvandel";
    QVERIFY(QDir().mkpath(folder->path() + "/Documents"));
    QFile file(inTheWay);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QProcess program;
    startLogging(program, folder->path());
    QVERIFY(program.waitForStarted());
    QTRY_VERIFY(waitsForSignal(program.processId(), SIGTERM));
    program.terminate();
    QVERIFY(endsAfterSignal(program));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    const QByteArray errors = program.readAllStandardError();
    QVERIFY2(errors.count("Failed to open log file.") > 2, errors);
    QVERIFY2(!errors.contains("change region to"), errors);
    QVERIFY(QFileInfo(inTheWay).isFile());
}

QTEST_GUILESS_MAIN(FileLogTest)
#include "tst_filelog.moc"
