// SPDX-License-Identifier: MIT
// Is the style sheet applied correctly, and does the program start as it should?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

class StyleSheetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init() { qApp->setStyleSheet(QString()); }
    void sheet_data();
    void sheet();
    void missingFileChangesNothing();
    void bundledSheet();
    void bundledSheetNamesOnlyBundledFiles();
    void programPreparesButDoesNotLog();

private:
    QTemporaryDir folder;
};

void StyleSheetTest::sheet_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << QByteArray("QLabel { color: red; }") << "QLabel { color: red; }";
    QTest::newRow("up to the NUL byte")
        << QByteArray("QLabel { color: red; }\0QLabel { color: blue; }", 46)
        << "QLabel { color: red; }";
    QTest::newRow("NUL byte first") << QByteArray("\0QLabel {}", 10) << "";
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("beyond ASCII") << QByteArray("/* σ */") << "/* σ */";
    QTest::newRow("several lines") << QByteArray("QLabel {\n}\n") << "QLabel {\n}\n";
}

void StyleSheetTest::sheet()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    const QString path = folder.filePath("sheet.qss");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
    file.close();
    applyStyleSheet(*qApp, path);
    QCOMPARE(qApp->styleSheet(), expected);
}

void StyleSheetTest::missingFileChangesNothing()
{
    qApp->setStyleSheet("QLabel {}");
    const LogRecorder log;
    applyStyleSheet(*qApp, folder.filePath("none.qss"));
    QCOMPARE(qApp->styleSheet(), QString("QLabel {}"));
    QCOMPARE(log.lines().size(), 0);
}

void StyleSheetTest::bundledSheet()
{
    const LogRecorder log;
    applyStyleSheet(*qApp, ":/qss/default.qss");
    QVERIFY(qApp->styleSheet().contains("#936639"));
    const QWidget widget;
    widget.ensurePolished();
    QCOMPARE(log.lines().size(), 0); // a sheet that cannot be parsed causes a warning
}

void StyleSheetTest::bundledSheetNamesOnlyBundledFiles()
{
    QFile file(":/qss/default.qss");
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression url("url\\(\"?([^)\"]+)\"?\\)");
    auto matches = url.globalMatch(QString::fromUtf8(file.readAll()));
    int count = 0;
    for (; matches.hasNext(); ++count) {
        const QString name = matches.next().captured(1);
        QVERIFY2(QFile::exists(name), qPrintable(name));
    }
    QVERIFY(count > 0);
}

/// The program itself, started and killed from outside: it creates the log's folder but no file,
/// and its messages go to the standard error output.
void StyleSheetTest::programPreparesButDoesNotLog()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", folder.path());
    environment.insert("XDG_CONFIG_HOME", folder.path() + "/config");
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    const QString documents = folder.path() + "/Documents";
    QVERIFY(QDir().mkpath(documents));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setReadChannel(QProcess::StandardError);
    program.start(PROGRAM_FILE, QStringList());
    QVERIFY(program.waitForStarted());
    QByteArray errors;
    while (!errors.contains("InitVELDIX") && program.waitForReadyRead(60000))
        errors += program.readAllStandardError();
    program.kill(); // a regular end would write the settings file beside the program
    QVERIFY(program.waitForFinished());
    QVERIFY2(errors.contains("InitVELDIX"), errors);
    QVERIFY2(errors.contains("change region to"), errors);
    const QDir log(documents + "/Quorvandel/Log");
    QVERIFY(log.exists());
    QCOMPARE(log.entryList(QDir::Files), QStringList());
}

QTEST_MAIN(StyleSheetTest)
#include "tst_stylesheet.moc"
