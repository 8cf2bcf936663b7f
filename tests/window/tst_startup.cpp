// SPDX-License-Identifier: MIT
// Does starting set the style sheet, the log file's name and the message handler?
#include "app/startup.h"

#include "app/logging.h"

#include <QApplication>
#include <QFile>
#include <QtTest>

class StartupTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void noOpenGl();
    void windowsHaveTheBundledLook();
    void programHasTheBundledLook();
    void programNamesItsLogFile();
    void programHandsOverItsMessages();

private:
    static QString bundledSheet();
};

namespace
{
QStringList *handled = nullptr;

void recordMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    handled->append(message);
}

/// Starts the program, then restores the previous message handler.
void startWith(QtMessageHandler handler)
{
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    startProgram(*qApp, handler);
    qDebug("after the start");
    qInstallMessageHandler(before);
}
} // namespace

void StartupTest::init()
{
    qApp->setStyleSheet(QString());
    logFilePath.clear();
}

/// Read directly, by its path in the resources, for comparison.
QString StartupTest::bundledSheet()
{
    QFile file(QStringLiteral(":/qss/default.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void StartupTest::noOpenGl()
{
    const bool before = QApplication::testAttribute(Qt::AA_ForceRasterWidgets);
    QApplication::setAttribute(Qt::AA_ForceRasterWidgets, false);
    prepareApplication();
    const bool isSet = QApplication::testAttribute(Qt::AA_ForceRasterWidgets);
    QApplication::setAttribute(Qt::AA_ForceRasterWidgets, before);
    QVERIFY(isSet);
}

void StartupTest::windowsHaveTheBundledLook()
{
    startWindows(*qApp);
    QVERIFY(qApp->styleSheet().contains("#936639"));
    QCOMPARE(qApp->styleSheet(), bundledSheet());
    QCOMPARE(logFilePath, QString());
}

void StartupTest::programHasTheBundledLook()
{
    QStringList messages;
    handled = &messages;
    startWith(recordMessage);
    QVERIFY(qApp->styleSheet().contains("#936639"));
    QCOMPARE(qApp->styleSheet(), bundledSheet());
}

void StartupTest::programNamesItsLogFile()
{
    QStringList messages;
    handled = &messages;
    startWith(recordMessage);
    QVERIFY2(logFilePath.endsWith(".log"), qPrintable(logFilePath));
}

void StartupTest::programHandsOverItsMessages()
{
    QStringList messages;
    handled = &messages;
    startWith(recordMessage);
    QCOMPARE(messages, QStringList{"after the start"});
    messages.clear();
    startWith(nullptr);
    QCOMPARE(messages, QStringList());
}

QTEST_MAIN(StartupTest)
#include "tst_startup.moc"
