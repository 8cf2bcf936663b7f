// SPDX-License-Identifier: MIT
// Are the figures those that the bolts turn, with honest errors, steady and not late?
#include "assistant/errorfigures.h"
#include "assistant/history.h"
#include "assistant/steadyfigures.h"

#include <QtTest>
#include <cmath>
#include <random>

using namespace assistant;

class ErrorFiguresTest : public QObject
{
    Q_OBJECT

private slots:
    void azimuthIsTheBolts_data();
    void azimuthIsTheBolts();
    void withoutSite();
    void claimNearThePole();
    void observerNeedsItsHemisphere();
    void cloudsAreNotTrusted_data();
    void cloudsAreNotTrusted();
    void steadyAtRest();
    void movementBeginsAgain();
    void historyIsBounded();
    void historyLeavesOutWhatIsNotKnown();
};

/// On the sky over the cosine of the latitude: 60 degrees doubles it.
void ErrorFiguresTest::azimuthIsTheBolts_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("expected");
    QTest::newRow("equator") << 0.0 << 30.0;
    QTest::newRow("60 north") << 60.0 << 60.0;
    QTest::newRow("60 south") << -60.0 << 60.0;
    QTest::newRow("45 north") << 45.0 << 42.426406871;
    QTest::newRow("89 north") << 89.0 << 1718.960536; // 30 / 0.0174524064
}

void ErrorFiguresTest::azimuthIsTheBolts()
{
    QFETCH(double, latitude);
    QFETCH(double, expected);
    FrameError error;
    error.hasSite = true;
    error.x = -40.0;
    error.y = 30.0;
    error.axisX = 0.6;
    error.frameX = 0.8;
    error.axisY = 0.3;
    error.frameY = 0.4;
    const ErrorFigures figures = figuresOf(error, astrometry::Site{latitude, 10.0});
    QCOMPARE(figures.total.arcseconds, 50.0);
    QCOMPARE(figures.altitude->arcseconds, -40.0);
    QCOMPARE(figures.altitude->sigma, 1.0);
    QVERIFY(std::abs(figures.azimuth->arcseconds - expected) < 1e-5 * expected);
    QVERIFY(std::abs(figures.azimuth->sigma - 0.5 * expected / 30.0) < 1e-5 * expected);
    QVERIFY(!figuresOf(error, astrometry::Site{89.5, 10.0}).azimuth);
}

void ErrorFiguresTest::withoutSite()
{
    FrameError error;
    error.x = 3.0;
    error.y = 4.0;
    const ErrorFigures figures = figuresOf(error, std::nullopt);
    QCOMPARE(figures.total.arcseconds, 5.0);
    QVERIFY(!figures.altitude && !figures.azimuth);
}

/// Where nothing is left, both directions count: the true length is above what is shown.
void ErrorFiguresTest::claimNearThePole()
{
    FrameError error;
    error.axisX = error.axisY = 1.0;
    QCOMPARE(figuresOf(error, std::nullopt).total.sigma, std::sqrt(2.0));
    error.x = 1000.0;
    QVERIFY(std::abs(figuresOf(error, std::nullopt).total.sigma - 1.0) < 1e-3);
    error.x = 0.0;
    std::mt19937 random(3);
    std::normal_distribution<double> noise;
    int inside = 0;
    constexpr int trials = 4000;
    for (int i = 0; i < trials; ++i) {
        FrameError seen = error; // the truth is 0.5 above the pole
        seen.x = 0.5 + noise(random);
        seen.y = noise(random);
        const recognition::Measured total = figuresOf(seen, std::nullopt).total;
        inside += std::abs(total.arcseconds - 0.5) <= 2.0 * total.sigma;
    }
    QVERIFY2(inside > 0.94 * trials, qPrintable(QString::number(inside)));
}

void ErrorFiguresTest::observerNeedsItsHemisphere()
{
    Settings settings;
    QVERIFY(!observerOf(settings, recognition::Hemisphere::North));
    settings.site = astrometry::Site{-30.0, 20.0};
    QVERIFY(!observerOf(settings, recognition::Hemisphere::North));
    QVERIFY(observerOf(settings, recognition::Hemisphere::South).has_value());
    settings.pressure = 0.0;
    QCOMPARE(airOf(settings).a, 0.0);
}

void ErrorFiguresTest::cloudsAreNotTrusted_data()
{
    QTest::addColumn<int>("matched");
    QTest::addColumn<double>("rms"); // arcseconds, at 30 a pixel
    QTest::addColumn<bool>("trusted");
    QTest::newRow("clear") << 30 << 2.5 << true;
    QTest::newRow("few, sharp") << 8 << 10.4 << true;
    QTest::newRow("too few") << 7 << 2.5 << false;
    QTest::newRow("noise among them") << 12 << 10.6 << false;
}

void ErrorFiguresTest::cloudsAreNotTrusted()
{
    QFETCH(int, matched);
    QFETCH(double, rms);
    QFETCH(bool, trusted);
    recognition::Recognition followed;
    followed.status = recognition::RecognitionStatus::Recognised;
    followed.scale = 30.0;
    followed.rms = rms;
    followed.matched.resize(std::size_t(matched));
    QCOMPARE(isTrustworthy(followed), trusted);
    followed.status = recognition::RecognitionStatus::NoMatch;
    QVERIFY(!isTrustworthy(followed));
}

void ErrorFiguresTest::steadyAtRest()
{
    SteadyFigures steady;
    std::mt19937 random(7);
    std::normal_distribution<double> noise(100.0, 0.5);
    double worst = 0.0;
    FrameError shown;
    for (int i = 0; i < 300; ++i) {
        FrameError error;
        error.x = noise(random);
        error.frameX = error.frameY = 0.5;
        error.axisX = error.axisY = 1.0;
        shown = steady.add(error, 0.1 * i);
        if (i >= 20)
            worst = std::max(worst, std::abs(shown.x - 100.0));
    }
    QVERIFY2(worst < 0.75, qPrintable(QString::number(worst))); // single frames: 1.5
    QCOMPARE(shown.axisX, 1.0);                                 // no mean improves the axis
    QCOMPARE(shown.frameX, 0.25);
    FrameError exact;
    exact.frameX = exact.frameY = 0.1;
    SteadyFigures other;
    QCOMPARE(other.add(exact, 0.0).frameX, 0.1); // no claim grows
}

void ErrorFiguresTest::movementBeginsAgain()
{
    SteadyFigures steady;
    FrameError error;
    error.frameX = error.frameY = 0.5;
    for (int i = 0; i < 20; ++i)
        steady.add(error, 0.1 * i);
    error.y = 5.0;
    QCOMPARE(steady.add(error, 2.0).y, 5.0); // at once
    error.y = 6.0;                           // within the noise
    QCOMPARE(steady.add(error, 2.1).y, 5.5);
    QCOMPARE(steady.add(error, 60.0).y, 6.0); // what is old does not count
}

void ErrorFiguresTest::historyIsBounded()
{
    History history;
    Status status;
    status.error = ErrorFigures{};
    for (int i = 0; i < 100000; ++i)
        history.add(status, 0.1 * i);
    QVERIFY(history.points().size() <= std::size_t(History::longest / History::spacing) + 2);
    QVERIFY(history.points().back().seconds - history.points().front().seconds <= History::longest);
    history.add(status, 5.0); // the clock was set back
    QCOMPARE(history.points().size(), std::size_t(1));
}

void ErrorFiguresTest::historyLeavesOutWhatIsNotKnown()
{
    History history;
    Status status;
    history.add(status, 1.0);
    QVERIFY(history.points().empty());
    status.error = ErrorFigures{};
    status.error->total.arcseconds = 7.0;
    status.error->altitude = recognition::Measured{-3.0, 1.0};
    history.add(status, 2.0);
    QCOMPARE(history.points().front().total, 7.0);
    QCOMPARE(history.points().front().altitude.value(), -3.0);
    QVERIFY(!history.points().front().azimuth);
}

QTEST_GUILESS_MAIN(ErrorFiguresTest)
#include "tst_errorfigures.moc"
