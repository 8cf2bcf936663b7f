// SPDX-License-Identifier: MIT
// Does a signal end the program, with its settings saved, while an operation of the camera library
// hangs?
#include "tests/reliability/handledsignals.h"
#include "tests/reliability/hangingprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtTest>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace
{
/// The program again, in a folder of its own: each of several at once has its own settings.
QString copyOfProgram(int number)
{
    const QFileInfo program(QStringLiteral(PROGRAM_FILE));
    const QString folder = program.absolutePath() + '/' + QString::number(number);
    const QString copy = folder + '/' + program.fileName();
    QFile::remove(copy);
    QFile::remove(settingsBeside(copy));
    const bool isThere =
        QDir().mkpath(folder) && ::link(qPrintable(program.filePath()), qPrintable(copy)) == 0;
    return isThere ? copy : QString();
}
} // namespace

class HangingCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsInTime_data();
    void endsInTime();

private:
    void add(const QString &operation, const QString &then, const QByteArray &sign, int number);

    struct Row {
        QString name, operation, executable;
    };
    std::vector<Row> rows;
    std::vector<HangingRun> runs; ///< of the rows
};

void HangingCallsTest::add(const QString &operation, const QString &then, const QByteArray &sign,
                           int number)
{
    const QString executable = copyOfProgram(int(rows.size()));
    QVERIFY(!executable.isEmpty());
    const QString name =
        QStringList{operation, then, ::strsignal(number)}.join(", ").replace(", , ", ", ");
    rows.push_back({name, operation, executable});
    runs.push_back({std::make_unique<HangingProgram>(operation, then, executable), sign, number});
}

void HangingCallsTest::initTestCase()
{
    restoreSignals();
    const QByteArray hangs = "the library hangs";
    for (const int number : {SIGTERM, SIGINT})
        for (const char *const operation : allOperations)
            if (isCalledAtTheEnd(operation)) {
                add(operation, "Disconnect", hangs, number);
                add(operation, "as the window closes", "the camera is live", number);
            } else {
                add(operation, {}, hangs, number);
            }
    add("OpenVELDIX", {}, hangs, SIGHUP);
    runTogether(runs);
}

void HangingCallsTest::endsInTime_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < rows.size(); ++i)
        QTest::newRow(qPrintable(rows[i].name)) << int(i);
}

void HangingCallsTest::endsInTime()
{
    QFETCH(int, row);
    const auto &[name, operation, executable] = rows[std::size_t(row)];
    const auto &[program, sign, number, reached, ended, savedEarly] = runs[std::size_t(row)];
    QVERIFY2(reached, program->errors);
    QVERIFY(!savedEarly);
    QVERIFY2(program->errors.contains("the library hangs"), program->errors);
    QVERIFY2(ended, program->errors);

    const QSettings file(settingsBeside(executable), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
    // What was changed just before the call is saved; the first call comes before the window.
    QCOMPARE(file.value("STYLE/style").toString(),
             QString(operation == "InitVELDIXResource" ? "Color" : "Mono"));
    const bool byForce = operation != "BeginVELDIXLive" && operation != "GetVELDIXLiveFrame";
    QCOMPARE(program->errors.contains("the program ends by force"), byForce);
    QCOMPARE(program->errors.contains("the camera is not closed"), !byForce);
}

QTEST_GUILESS_MAIN(HangingCallsTest)
#include "tst_hangingcalls.moc"
