// SPDX-License-Identifier: MIT
// Does the report say what was measured, and are the drifts right?
#include "assistant/report.h"

#include <QtTest>
#include <cmath>

using namespace assistant;

class AssistantReportTest : public QObject
{
    Q_OBJECT

private slots:
    void driftAgreesWithTurningVectors();
    void textHoldsAll();
    void withoutSite();
};

/// Independently: a star on the equator, turned for an hour by the Earth and back by a mount whose
/// axis is off by e; the greatest residual over all hour angles.
void AssistantReportTest::driftAgreesWithTurningVectors()
{
    constexpr double pi = 3.14159265358979323846;
    constexpr double e = 60.0 / 3600.0 * pi / 180.0; // an arcminute
    constexpr double second = 15.041067 / 3600.0 * pi / 180.0;
    double fastest = 0.0;
    for (int angle = 0; angle < 360; ++angle) {
        const double h = angle * pi / 180.0;
        // Star (cos h, sin h, 0); the mount's axis (0, sin e, cos e). Rate: difference of
        // rotations.
        const double wy = -std::sin(e) * second, wz = (1.0 - std::cos(e)) * second;
        const double upward = 0.0 * wz - wy * std::cos(h); // third component of w x s
        fastest = std::max(fastest, std::abs(upward));
    }
    const double arcsecondsAnHour = fastest * 3600.0 * 180.0 / pi * 3600.0;
    QVERIFY(std::abs(driftOf(60.0).declination - arcsecondsAnHour) < 1e-3);
    QVERIFY(std::abs(driftOf(60.0).declination - 15.75) < 0.01);
    QCOMPARE(driftOf(60.0).rotation, driftOf(60.0).declination);
}

void AssistantReportTest::textHoldsAll()
{
    Report report;
    report.utcSeconds = 1795204800.0;
    report.site = astrometry::Site{-33.9, 18.4};
    report.target = recognition::PoleTarget::Refracted;
    report.before = {
        {5000.0, 1.5}, recognition::Measured{3000.0, 1.0}, recognition::Measured{-4000.0, 1.25}};
    report.after = {{2.0, 1.0}, recognition::Measured{-1.5, 0.7}, recognition::Measured{1.6, 0.9}};
    report.seconds = 83.4;
    const QString expected = QStringLiteral("quantity,value,sigma,unit\n"
                                            "date,2026-11-20T20:00:00Z,,UTC\n"
                                            "latitude,-33.90000,,deg\n"
                                            "longitude,18.40000,,deg\n"
                                            "pole,refracted,,\n"
                                            "first total error,5000.00,1.50,arcsec\n"
                                            "first altitude error,3000.00,1.00,arcsec\n"
                                            "first azimuth error,-4000.00,1.25,arcsec\n"
                                            "last total error,2.00,1.00,arcsec\n"
                                            "last altitude error,-1.50,0.70,arcsec\n"
                                            "last azimuth error,1.60,0.90,arcsec\n"
                                            "time taken,83,,s\n"
                                            "greatest declination drift on the equator,0.525,0.263,"
                                            "arcsec/h\n"
                                            "greatest field rotation on the equator,0.525,0.263,"
                                            "arcsec/h\n");
    QCOMPARE(QString::fromStdString(csvOf(report)), expected);
}

void AssistantReportTest::withoutSite()
{
    const QString text = QString::fromStdString(csvOf({}));
    QVERIFY(!text.contains("latitude") && !text.contains("altitude"));
    QVERIFY(text.contains("last total error,0.00"));
}

QTEST_GUILESS_MAIN(AssistantReportTest)
#include "tst_assistantreport.moc"
