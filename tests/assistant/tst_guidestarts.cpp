// SPDX-License-Identifier: MIT
// Over many random starts: is the pole reached, and is no turn of the axis called a slip?
#include "tests/assistant/guidetest.h"

#include "bench/recognition/statistics.h"

using namespace assistant;

class GuideStartsTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAreAligned();
    void turnsAreNoSlips();
};

/// The bar for whole alignments, on painted frames; through the window: tst_assistantstarts.
void GuideStartsTest::startsAreAligned()
{
    constexpr int starts = 20;
    std::vector<double> errors;
    int inside = 0;
    for (int i = 0; i < starts; ++i) {
        const virtualsky::SkyState sky = startingSky(100 + std::uint64_t(i));
        PaintedMount mount(sky, settingsFor(sky));
        const AlignmentResult result = alignAsTold(mount);
        QVERIFY2(
            result.finished,
            qPrintable(
                QStringLiteral("start %1: %2").arg(i).arg(QString::fromStdString(result.whyNot))));
        QVERIFY2(result.seconds - result.boltsSeconds < 60.0, qPrintable(QString::number(i)));
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
    QVERIFY2(inside >= 18, qPrintable(figures));
}

/// Bolts at rest, turned before and turned after: the axis' turn alone is no slip.
void GuideStartsTest::turnsAreNoSlips()
{
    constexpr std::uint64_t starts = 5;
    for (std::uint64_t start = 200; start < 200 + starts; ++start) {
        const virtualsky::SkyState sky = startingSky(start);
        PaintedMount mount(sky, settingsFor(sky));
        QVERIFY(turnAxisAsTold(mount));
        for (int i = 0; i < 90; ++i) {
            virtualsky::SkyState moved = mount.sky();
            if (i % 30 < 10)
                moved.boltAltitude -= 0.004;
            else
                moved.raAngle += i < 60 ? 0.7 : -0.4;
            mount.setSky(moved);
            const Status status = mount.next();
            QVERIFY2(!says(status, AdviceCode::AxisSlipped), qPrintable(QString::number(start)));
            QVERIFY(status.stage == Stage::Bolts);
        }
    }
}

QTEST_GUILESS_MAIN(GuideStartsTest)
#include "tst_guidestarts.moc"
