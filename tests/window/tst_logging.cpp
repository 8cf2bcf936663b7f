// SPDX-License-Identifier: MIT
// Where do the log's lines go, and what do they look like?
#include "app/logging.h"
#include "tests/support/filetext.h"
#include "tests/support/ordinaryuser.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{
const QMessageLogContext context;

const QDateTime start(QDate(2024, 5, 23), QTime(21, 4, 10));

/// The kinds of message that the child process can log: through Qt's logger, which itself ends the
/// process after a fatal one, and directly to the handler.
const char *const childKinds[] = {"--fatal", "--fatal-handled", "--debug"};

/// What the child process does: logs one line, then the message that its argument names.
int logAsChild(const char *kind, const char *path)
{
    logFilePath = QString::fromLocal8Bit(path);
    qInstallMessageHandler(logMessageHandler);
    qDebug("before");
    if (std::strcmp(kind, "--fatal") == 0)
        qFatal("the end");
    if (std::strcmp(kind, "--fatal-handled") == 0)
        logMessageHandler(QtFatalMsg, context, "the end");
    qDebug("after");
    return 0;
}
} // namespace

class LoggingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pathNamesTheStart_data();
    void pathNamesTheStart();
    void foldersAreMade_data();
    void foldersAreMade();
    void documentsMissing();
    void folderCanNotBeMade_data();
    void folderCanNotBeMade();
    void levels_data();
    void levels();
    void wholeLine();
    void appends();
    void unknownTypeTouchesTheFile();
    void sameSecondSharesOneFile();
    void messageIsTakenAsItIs_data();
    void messageIsTakenAsItIs();
    void messageEndsAtItsNul();
    void fileIsClosedBetweenMessages();
    void fatalIsNotWritten_data();
    void fatalIsNotWritten();
    void unwritableFileIsReported();
    void linesOfThreadsStayWhole();

private:
    std::unique_ptr<QTemporaryDir> home;
    QString documents;
};

void LoggingTest::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    qputenv("HOME", home->path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (home->path() + "/config").toLocal8Bit());
    documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QVERIFY2(documents.startsWith(home->path()), qPrintable(documents));
    QVERIFY(QDir().mkpath(documents));
    logFilePath = home->path() + "/run.log";
}

void LoggingTest::pathNamesTheStart_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("name");
    QTest::newRow("evening") << start << "2024-05-23.21-04-10.log";
    QTest::newRow("leading zeros")
        << QDateTime(QDate(2025, 1, 2), QTime(3, 4, 5)) << "2025-01-02.03-04-05.log";
    QTest::newRow("midnight") << QDateTime(QDate(2024, 12, 31), QTime(0, 0, 0))
                              << "2024-12-31.00-00-00.log";
}

void LoggingTest::pathNamesTheStart()
{
    QFETCH(QDateTime, time);
    QFETCH(QString, name);
    prepareLogFile(time);
    QCOMPARE(logFilePath, QDir::toNativeSeparators(documents + "/Quorvandel/Log/" + name));
    QVERIFY(!QFile::exists(logFilePath)); // only the name is set
}

void LoggingTest::foldersAreMade_data()
{
    QTest::addColumn<QString>("present");
    QTest::newRow("none there") << "";
    QTest::newRow("the program's there") << "/Quorvandel";
    QTest::newRow("both there") << "/Quorvandel/Log";
}

void LoggingTest::foldersAreMade()
{
    QFETCH(QString, present);
    QVERIFY(QDir().mkpath(documents + present));
    prepareLogFile(start);
    QVERIFY(QFileInfo(documents + "/Quorvandel/Log").isDir());
}

/// No folder is created above the program's own; the file can then not be opened.
void LoggingTest::documentsMissing()
{
    QVERIFY(QDir(documents).removeRecursively());
    prepareLogFile(start);
    QVERIFY(!QFile::exists(documents));
    QTest::ignoreMessage(QtDebugMsg, "Failed to open log file.");
    logMessageHandler(QtDebugMsg, context, "lost");
    QVERIFY(!QFile::exists(logFilePath));
}

void LoggingTest::folderCanNotBeMade_data()
{
    QTest::addColumn<QString>("file"); ///< in the place of a folder
    QTest::addColumn<int>("rights");   ///< of the user's documents
    QTest::addColumn<bool>("writes");
    QTest::newRow("a file for the program's folder") << "/Quorvandel" << 0755 << false;
    QTest::newRow("a file for the log's folder") << "/Quorvandel/Log" << 0755 << false;
    QTest::newRow("documents that are only read") << "" << 0555 << false;
    QTest::newRow("documents that can be written") << "" << 0755 << true;
}

/// The program continues without its log, and reports each line that is lost.
void LoggingTest::folderCanNotBeMade()
{
    QFETCH(QString, file);
    QFETCH(int, rights);
    QFETCH(bool, writes);
    if (!file.isEmpty()) {
        QVERIFY(QFileInfo(documents + file).dir().mkpath("."));
        QFile inTheWay(documents + file);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly) && inTheWay.write("text") == 4);
    }
    const QByteArray path = documents.toLocal8Bit();
    for (const QByteArray &folder : {home->path().toLocal8Bit(), path})
        QVERIFY(geteuid() != 0 || chown(folder, OrdinaryUser::number, gid_t(-1)) == 0);
    QCOMPARE(chmod(path, mode_t(rights)), 0);
    if (!writes)
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtDebugMsg, "Failed to open log file.");
    {
        const OrdinaryUser user;
        prepareLogFile(start);
        logMessageHandler(QtDebugMsg, context, "first");
        logMessageHandler(QtCriticalMsg, context, "second");
    }
    chmod(path, 0755);
    QCOMPARE(linesOf(logFilePath).size(), writes ? 2 : 0);
    QCOMPARE(QFileInfo(documents + "/Quorvandel/Log").isDir(), writes);
    if (!file.isEmpty())
        QCOMPARE(QFileInfo(documents + file).size(), qint64(4));
}

void LoggingTest::levels_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("debug") << 0 << "\tDebug\t message";
    QTest::newRow("warning") << 1 << "\tWarning\t message";
    QTest::newRow("critical") << 2 << "\tCritical\t message";
    QTest::newRow("fatal") << 3 << "\tFatal\t message";
    QTest::newRow("info") << 4 << "\tInfo\t message";
    QTest::newRow("unknown") << 5 << "";
    QTest::newRow("largest that the type can hold") << 7 << "";
}

void LoggingTest::levels()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    QCOMPARE(levelText(static_cast<QtMsgType>(type), "message"), text);
}

void LoggingTest::wholeLine()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    logMessageHandler(QtDebugMsg, context, "InitVELDIXSDK success");
    const QDateTime after = QDateTime::currentDateTime().addSecs(1);
    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 1);
    static const QRegularExpression form(
        "^(\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d)\tDebug\t InitVELDIXSDK success$");
    const auto match = form.match(lines.first());
    QVERIFY2(match.hasMatch(), qPrintable(lines.first()));
    const auto time = QDateTime::fromString(match.captured(1), "yyyy/MM/dd hh:mm:ss");
    QVERIFY(time >= before);
    QVERIFY(time <= after);
}

void LoggingTest::appends()
{
    logMessageHandler(QtDebugMsg, context, "first");
    logMessageHandler(QtWarningMsg, context, "second");
    logMessageHandler(QtCriticalMsg, context, "third");
    logMessageHandler(QtInfoMsg, context, "fourth");
    QStringList texts;
    for (const QString &line : linesOf(logFilePath))
        texts << line.mid(QString("yyyy/MM/dd hh:mm:ss").size());
    const QStringList expected{"\tDebug\t first", "\tWarning\t second", "\tCritical\t third",
                               "\tInfo\t fourth"};
    QCOMPARE(texts, expected);
}

void LoggingTest::unknownTypeTouchesTheFile()
{
    logMessageHandler(static_cast<QtMsgType>(7), context, "nothing");
    QVERIFY(QFile::exists(logFilePath));
    QCOMPARE(QFileInfo(logFilePath).size(), qint64(0));
}

void LoggingTest::sameSecondSharesOneFile()
{
    prepareLogFile(start);
    const QString first = logFilePath;
    logMessageHandler(QtDebugMsg, context, "one run");
    prepareLogFile(start.addMSecs(900));
    QCOMPARE(logFilePath, first);
    logMessageHandler(QtDebugMsg, context, "another run");
    const QStringList lines = linesOf(first);
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.first().endsWith("one run"));
    QVERIFY(lines.last().endsWith("another run"));
}

void LoggingTest::messageIsTakenAsItIs_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("placeholders") << "%1 and %2";
    QTest::newRow("beyond ASCII") << "σ Oct 简体";
    QTest::newRow("empty") << "";
    QTest::newRow("tabs") << "a\tb";
    QTest::newRow("long") << QString(5000, 'x');
}

void LoggingTest::messageIsTakenAsItIs()
{
    QFETCH(QString, message);
    logMessageHandler(QtInfoMsg, context, message);
    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().mid(QString("yyyy/MM/dd hh:mm:ss").size()), "\tInfo\t " + message);
}

/// The text is converted to the locale's bytes, which end there.
void LoggingTest::messageEndsAtItsNul()
{
    logMessageHandler(QtInfoMsg, context, QString("before") + QChar(0) + "after");
    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().mid(QString("yyyy/MM/dd hh:mm:ss").size()), QString("\tInfo\t before"));
}

/// A file removed between two messages is created again by the second.
void LoggingTest::fileIsClosedBetweenMessages()
{
    logMessageHandler(QtDebugMsg, context, "first");
    QVERIFY(QFile::remove(logFilePath));
    logMessageHandler(QtDebugMsg, context, "second");
    QCOMPARE(linesOf(logFilePath).size(), 1);
}

void LoggingTest::fatalIsNotWritten_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("by Qt's logger") << "--fatal";
    QTest::newRow("the handler alone") << "--fatal-handled";
}

void LoggingTest::fatalIsNotWritten()
{
    QFETCH(QString, kind);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {kind, logFilePath});
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().endsWith("\tDebug\t before"));
}

/// The error goes to Qt's own output, not back to the handler; the lines are dropped.
void LoggingTest::unwritableFileIsReported()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--debug", home->path()}); // a folder
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    const QByteArray errors = child.readAllStandardError();
    QCOMPARE(errors.count("Failed to open log file."), 2); // one for each of the two messages
    QVERIFY(!errors.contains("before"));
    QVERIFY(!errors.contains("after"));
}

void LoggingTest::linesOfThreadsStayWhole()
{
    constexpr int count = 200;
    const auto logMany = [](const QString &word) {
        for (int i = 0; i < count; ++i)
            logMessageHandler(QtDebugMsg, context, word + QString::number(i));
    };
    std::thread other([&] { logMany("other "); });
    logMany("this ");
    other.join();
    const QStringList lines = linesOf(logFilePath);
    QCOMPARE(lines.size(), 2 * count);
    static const QRegularExpression form("^.{19}\tDebug\t (this|other) \\d+$");
    for (const QString &line : lines)
        QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3)
        for (const char *const kind : childKinds)
            if (std::strcmp(argv[1], kind) == 0)
                return logAsChild(argv[1], argv[2]);
    LoggingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logging.moc"
