// SPDX-License-Identifier: MIT
// Is a mount aligned on the camera library, in real time, by a person who does as told?
#include "bench/assistant/librarymount.h"
#include "bench/assistant/person.h"
#include "bench/assistant/start.h"
#include "bench/recognition/statistics.h"

#include <QtTest>
#include <vector>

class AssistantStartsTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAreAligned();
};

/// All twenty of the bar: `bench/assistantreport library`.
void AssistantStartsTest::startsAreAligned()
{
    constexpr int starts = 6;
    std::vector<double> errors;
    int inside = 0;
    for (int i = 0; i < starts; ++i) {
        const virtualsky::SkyState sky = startingSky(std::uint64_t(3 * i + 1));
        LibraryMount mount(sky, settingsFor(sky));
        const AlignmentResult result = alignAsTold(mount);
        QVERIFY2(result.finished, result.whyNot.c_str());
        QVERIFY2(result.seconds - result.boltsSeconds < 60.0,
                 qPrintable(QString::number(result.seconds)));
        errors.push_back(result.trueError);
        inside += result.inside;
    }
    const QString figures = QStringLiteral("median %1, worst %2, inside %3 of %4")
                                .arg(median(errors))
                                .arg(quantile(errors, 1.0))
                                .arg(inside)
                                .arg(starts);
    qInfo("%s", qPrintable(figures));
    QVERIFY2(median(errors) < 3.0, qPrintable(figures));
    QVERIFY2(quantile(errors, 1.0) < 10.0, qPrintable(figures));
    QVERIFY2(inside >= starts - 1, qPrintable(figures));
}

QTEST_GUILESS_MAIN(AssistantStartsTest)
#include "tst_assistantstarts.moc"
