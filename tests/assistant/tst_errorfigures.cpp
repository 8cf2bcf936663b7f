// SPDX-License-Identifier: MIT
// Are the figures those that the bolts turn, with honest errors, steady and not late?
#include "assistant/errorfigures.h"
#include "assistant/history.h"
#include "assistant/steadyfigures.h"
#include "tests/assistant/goldenbolts.h"

#include <QtTest>
#include <cmath>
#include <random>
#include <vector>

using namespace assistant;
using namespace goldenbolts;

class ErrorFiguresTest : public QObject
{
    Q_OBJECT

private slots:
    void figuresAreTheBolts_data();
    void figuresAreTheBolts();
    void refractionIsAlongTheVertical_data();
    void refractionIsAlongTheVertical();
    void azimuthNeedsAVertical();
    void totalCountsTheCorrelation();
    void meanKeepsTheCorrelation();
    void withoutSite();
    void claimNearThePole();
    void observerNeedsItsHemisphere();
    void cloudsAreNotTrusted_data();
    void cloudsAreNotTrusted();
    void steadyAtRest();
    void claimHoldsWhileBoltsTurn_data();
    void claimHoldsWhileBoltsTurn();
    void bothDirectionsAreTreatedAlike_data();
    void bothDirectionsAreTreatedAlike();
    void movementBeginsAgain();
    void historyIsBounded();
    void historyLeavesOutWhatIsNotKnown();
};

namespace
{
/// A standard error of 3 along x = y and of 1 across it.
recognition::Covariance longEllipse()
{
    return {5.0, 4.0, 5.0};
}
} // namespace

void ErrorFiguresTest::figuresAreTheBolts_data()
{
    QTest::addColumn<int>("index");
    const std::vector<Row> rows = all();
    for (std::size_t i = 0; i < rows.size(); ++i)
        QTest::addRow("latitude %g, bolts %g %g", rows[i].latitude, rows[i].boltAltitude,
                      rows[i].boltAzimuth)
            << int(i);
    QCOMPARE(rows.size(), std::size_t(84));
}

void ErrorFiguresTest::figuresAreTheBolts()
{
    QFETCH(int, index);
    const Row row = all().at(std::size_t(index));
    const ErrorFigures figures =
        figuresOf(errorOf(row, recognition::PoleTarget::True), siteOf(row));
    QVERIFY(figures.altitude && figures.azimuth);
    const auto near = [](double seen, double wanted, double tolerance) {
        if (std::abs(seen - wanted) > tolerance)
            qWarning("%.9g instead of %.9g", seen, wanted);
        return std::abs(seen - wanted) <= tolerance;
    };
    QVERIFY(near(row.altitude, 3600.0 * row.boltAltitude, 1e-6)); // the reference itself
    QVERIFY(near(row.azimuth, 3600.0 * row.boltAzimuth, 1e-6));
    QVERIFY(near(figures.altitude->arcseconds, row.altitude, 1e-4));
    QVERIFY(near(figures.azimuth->arcseconds, row.azimuth, 1e-3));
    QVERIFY(near(figures.total.arcseconds, row.total, 1e-4));
    QVERIFY(near(figures.altitude->sigma, row.altitudeSigma, 2e-3 * row.altitudeSigma));
    QVERIFY(near(figures.azimuth->sigma, row.azimuthSigma, 2e-3 * row.azimuthSigma));
    if (row.total > 1800.0) // nearer, the part across adds to the length
        QVERIFY(near(figures.total.sigma, row.totalSigma, 0.05));
}

/// The air lifts the pole along the vertical: the azimuth bolt stays where it is.
void ErrorFiguresTest::refractionIsAlongTheVertical_data()
{
    QTest::addColumn<double>("latitude");
    for (const double latitude : {5.0, 40.0, -34.0, 80.0})
        QTest::addRow("%g", latitude) << latitude;
}

void ErrorFiguresTest::refractionIsAlongTheVertical()
{
    QFETCH(double, latitude);
    const astrometry::Vector3 lifted =
        astrometry::refracted(astrometry::direction(0.0, std::abs(latitude) * astrometry::degree),
                              airOf(assistant::Settings()));
    const double lift = (std::asin(lifted.z) / astrometry::degree - std::abs(latitude)) * 3600.0;
    QVERIFY(lift > 8.0); // 10" at 80 degrees, ten minutes at 5
    int compared = 0;
    for (const Row &row : all()) {
        if (row.latitude != latitude)
            continue;
        const ErrorFigures figures =
            figuresOf(errorOf(row, recognition::PoleTarget::Refracted), siteOf(row));
        QVERIFY(std::abs(figures.altitude->arcseconds - (row.altitude - lift)) < 1e-3);
        QVERIFY(std::abs(figures.azimuth->arcseconds - row.azimuth) < 1e-3);
        ++compared;
    }
    QCOMPARE(compared, 8);
}

void ErrorFiguresTest::azimuthNeedsAVertical()
{
    FrameError error;
    error.hasSite = true;
    error.poleAltitude = 89.5 * astrometry::degree;
    QVERIFY(!figuresOf(error, astrometry::Site{89.5, 10.0}).azimuth);
    error.poleAltitude = -error.poleAltitude;
    QVERIFY(!figuresOf(error, astrometry::Site{-89.5, 10.0}).azimuth);
    error.poleAltitude = 88.0 * astrometry::degree;
    QVERIFY(figuresOf(error, astrometry::Site{88.0, 10.0}).azimuth);
    error.x = 7200.0; // the axis at the zenith
    QVERIFY(!figuresOf(error, astrometry::Site{88.0, 10.0}).azimuth);
}

/// Along the ellipse's length the total is three times less sure than across it.
void ErrorFiguresTest::totalCountsTheCorrelation()
{
    for (const bool byAxis : {true, false}) {
        FrameError error;
        (byAxis ? error.axis : error.frame) = longEllipse();
        error.x = error.y = 1e5;
        QVERIFY(std::abs(figuresOf(error, std::nullopt).total.sigma - 3.0) < 1e-6);
        error.y = -1e5;
        QVERIFY(std::abs(figuresOf(error, std::nullopt).total.sigma - 1.0) < 1e-6);
    }
}

/// The mean of a frame that stays in place is surer by the same factor in every direction.
void ErrorFiguresTest::meanKeepsTheCorrelation()
{
    SteadyFigures steady;
    FrameError error, shown;
    error.axis = error.frame = longEllipse();
    for (int i = 0; i < 10; ++i)
        shown = steady.add(error, 0.1 * i);
    QCOMPARE(shown.axis.xy, 4.0);
    QCOMPARE(shown.frame.xx, 1.25);
    QCOMPARE(shown.frame.xy, 1.0);
    QCOMPARE(shown.frame.yy, 1.25);
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
    error.axis.xx = error.axis.yy = 1.0;
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
    assistant::Settings settings;
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
    constexpr int frames = 300;
    double worst = 0.0, claims = 0.0;
    FrameError shown;
    for (int i = 0; i < frames; ++i) {
        FrameError error;
        error.x = noise(random);
        error.frame.xx = error.frame.yy = 0.25;
        error.axis.xx = error.axis.yy = 1.0;
        shown = steady.add(error, 0.1 * i);
        if (i >= 20)
            worst = std::max(worst, std::abs(shown.x - 100.0));
        claims += std::sqrt(shown.frame.xx) / frames;
    }
    QVERIFY2(worst < 0.75, qPrintable(QString::number(worst))); // single frames: 1.5
    QCOMPARE(shown.axis.xx, 1.0);                               // no mean improves the axis
    QVERIFY2(claims > 0.25 && claims < 0.35, qPrintable(QString::number(claims)));
    QCOMPARE(std::sqrt(shown.frame.yy), 0.25); // without noise there is no drift
    FrameError exact;
    exact.frame.xx = exact.frame.yy = 0.01;
    SteadyFigures other;
    QCOMPARE(std::sqrt(other.add(exact, 0.0).frame.xx), 0.1); // no claim grows
}

void ErrorFiguresTest::claimHoldsWhileBoltsTurn_data()
{
    QTest::addColumn<double>("speed"); // arcseconds a second
    for (const double speed : {0.0, 0.1, 0.3, 0.5, 1.0, 2.0, 5.0, 20.0})
        QTest::newRow(qPrintable(QString::number(speed))) << speed;
}

/// A bolt that turns slowly for a minute, with a frame's error of an arcsecond: the figure and its
/// claim against the place at the newest frame.
void ErrorFiguresTest::claimHoldsWhileBoltsTurn()
{
    QFETCH(double, speed);
    std::mt19937 random(11);
    std::normal_distribution<double> noise;
    int frames = 0, inside = 0;
    double claims = 0.0;
    for (int turn = 0; turn < 20; ++turn) {
        SteadyFigures steady;
        for (int i = 0; i < 300; ++i, ++frames) {
            const double place = i < 30 ? 0.0 : speed * 0.2 * (i - 30);
            FrameError error;
            error.x = place + noise(random);
            error.frame.xx = error.frame.yy = 1.0;
            const FrameError shown = steady.add(error, 0.2 * i);
            inside += std::abs(shown.x - place) <= 2.0 * std::sqrt(shown.frame.xx);
            claims += std::sqrt(shown.frame.xx);
        }
    }
    const double share = double(inside) / frames, claim = claims / frames;
    const QString figures = QStringLiteral("%1 inside two sigma, claim %2").arg(share).arg(claim);
    qInfo("%s", qPrintable(figures));
    QVERIFY2(share > 0.92, qPrintable(figures)); // 0.95 with the variance known exactly
    QVERIFY2(claim < 1.25, qPrintable(figures)); // that of a single frame is 1
    if (speed == 0.0)
        QVERIFY2(claim < 0.7, qPrintable(figures)); // a half, and the noise's own drift
}

void ErrorFiguresTest::bothDirectionsAreTreatedAlike_data()
{
    claimHoldsWhileBoltsTurn_data();
}

/// An axis that moves along x is shown like one that moves along y.
void ErrorFiguresTest::bothDirectionsAreTreatedAlike()
{
    QFETCH(double, speed);
    std::mt19937 random(5);
    std::normal_distribution<double> noise;
    SteadyFigures alongX, alongY;
    for (int i = 0; i < 300; ++i) {
        FrameError error;
        error.x = speed * 0.2 * i + noise(random);
        error.y = noise(random);
        error.frame = {1.0, 0.0, 1.5};
        FrameError turned = error;
        std::swap(turned.x, turned.y);
        std::swap(turned.frame.xx, turned.frame.yy);
        const FrameError x = alongX.add(error, 0.2 * i), y = alongY.add(turned, 0.2 * i);
        QCOMPARE(y.y, x.x);
        QCOMPARE(y.x, x.y);
        QCOMPARE(y.frame.yy, x.frame.xx);
        QCOMPARE(y.frame.xx, x.frame.yy);
    }
}

void ErrorFiguresTest::movementBeginsAgain()
{
    SteadyFigures steady;
    FrameError error;
    error.frame.xx = error.frame.yy = 0.25;
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
