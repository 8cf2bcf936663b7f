// SPDX-License-Identifier: MIT
// Does a person align a mount from random starts with the window, by mouse and keys, in real time?
#include "bench/assistant/person.h"
#include "bench/assistant/start.h"
#include "bench/assistant/windowmount.h"
#include "bench/recognition/statistics.h"

#include <QtTest>
#include <vector>

class AssistantStartsTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAreAligned();
};

/// Four of the starts, with each of the conditions present and absent: 0 is the north without any,
/// 5 the south with refraction and three channels, 14 the north with all, 19 the south tracking
/// under thin cloud. All twenty, with a person's own speeds: `assistantwindowreport starts`.
void AssistantStartsTest::startsAreAligned()
{
    constexpr std::uint64_t starts[] = {0, 5, 14, 19};
    HandSpeeds hasty; // what is not under test takes less time
    hasty.boltFar = 1.0;
    hasty.boltNear = 6.0 / 60.0;
    std::vector<double> errors;
    int inside = 0;
    for (const std::uint64_t start : starts) {
        WindowMount mount(startingSky(start));
        const AlignmentResult result = alignAsTold(mount, 2.0, hasty);
        QVERIFY2(result.finished, result.whyNot.c_str());
        QVERIFY2(result.seconds - result.boltsSeconds < 60.0,
                 qPrintable(QString::number(result.seconds)));
        errors.push_back(result.trueError);
        inside += result.inside;
    }
    const QString figures = QStringLiteral("median %1, worst %2, inside %3")
                                .arg(median(errors))
                                .arg(quantile(errors, 1.0))
                                .arg(inside);
    qInfo("%s", qPrintable(figures));
    QVERIFY2(median(errors) < 3.0, qPrintable(figures));
    QVERIFY2(quantile(errors, 1.0) < 10.0, qPrintable(figures));
    QVERIFY2(inside >= 3, qPrintable(figures));
}

QTEST_MAIN(AssistantStartsTest)
#include "tst_assistantstarts.moc"
