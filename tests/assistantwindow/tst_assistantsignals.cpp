// SPDX-License-Identifier: MIT
// Does a signal end the assistant in time, while an operation of the camera library hangs?
#include "tests/reliability/handledsignals.h"
#include "tests/reliability/hangingprogram.h"

#include <QtTest>
#include <csignal>

class AssistantSignalsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsInTime_data();
    void endsInTime();

private:
    std::vector<HangingRun> runs;
    QStringList names; ///< of the runs
};

void AssistantSignalsTest::initTestCase()
{
    restoreSignals();
    for (const auto &[number, name] : {std::pair(SIGTERM, "SIGTERM"), std::pair(SIGINT, "SIGINT")})
        for (const char *const operation : allOperations) {
            const char *const sign =
                isCalledAtTheEnd(operation) ? "the camera is live" : "the library hangs";
            runs.push_back({std::make_unique<HangingProgram>(operation, QString()), sign, number});
            names.append(QString("%1, %2").arg(operation, name));
        }
    runTogether(runs, {"--connect"});
}

void AssistantSignalsTest::endsInTime_data()
{
    QTest::addColumn<int>("run");
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names[i])) << i;
}

void AssistantSignalsTest::endsInTime()
{
    QFETCH(int, run);
    const HangingRun &wanted = runs[std::size_t(run)];
    const QByteArray &errors = wanted.program->errors;
    QVERIFY2(wanted.reached, errors);
    QVERIFY2(errors.contains("the library hangs"), errors);
    QVERIFY2(wanted.ended, errors);
}

QTEST_GUILESS_MAIN(AssistantSignalsTest)
#include "tst_assistantsignals.moc"
