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
    void guidedFieldTurns_data();
    void guidedFieldTurns();
    void aimNamesPoleAndAir();
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
    report.aim = {Aim::Pole::Refracted, 850.0, -3.5};
    report.before = {
        {5000.0, 1.5}, recognition::Measured{3000.0, 1.0}, recognition::Measured{-4000.0, 1.25}};
    report.after = {{2.0, 1.0}, recognition::Measured{-1.5, 0.7}, recognition::Measured{1.6, 0.9}};
    report.seconds = 83.4;
    const QString expected = QStringLiteral("quantity,value,sigma,unit\n"
                                            "date,2026-11-20T20:00:00Z,,UTC\n"
                                            "latitude,-33.90000,,deg\n"
                                            "longitude,18.40000,,deg\n"
                                            "pole,refracted,,\n"
                                            "air pressure,850.0,,hPa\n"
                                            "air temperature,-3.5,,degC\n"
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
    const QString steep = QStringLiteral("greatest field rotation at declination 60,1.050,0.525,"
                                         "arcsec/h\n");
    QCOMPARE(QString::fromStdString(csvOf(report)), expected + steep);
}

void AssistantReportTest::withoutSite()
{
    const QString text = QString::fromStdString(csvOf({}));
    QVERIFY(!text.contains("latitude") && !text.contains("altitude"));
    QVERIFY(text.contains("last total error,0.00"));
    QVERIFY(text.contains("pole,seen,,"));
}

void AssistantReportTest::guidedFieldTurns_data()
{
    QTest::addColumn<double>("declination");
    for (const double declination : {0.0, 45.0, 60.0, -60.0, 85.0})
        QTest::addRow("%g", declination) << declination;
}

/// Independently: the mount's wrong turn, and the two turns by which a guider holds the star (about
/// the polar axis and about the declination axis), must add up to a turn about the star. Its
/// greatest rate over all hour angles is the rotation; the greatest rate about the declination axis
/// is the drift.
void AssistantReportTest::guidedFieldTurns()
{
    QFETCH(double, declination);
    constexpr double pi = 3.14159265358979323846;
    const double second = 15.041067 / 3600.0 * pi / 180.0, e = 60.0 / 3600.0 * pi / 180.0;
    const double sine = std::sin(declination * pi / 180.0);
    const double cosine = std::cos(declination * pi / 180.0);
    double rotation = 0.0, drift = 0.0;
    for (int degrees = 0; degrees < 360; ++degrees) {
        // Axes: x towards the star's hour circle, y east of it (the declination axis), z the pole.
        const double x = e * second * std::cos(degrees * pi / 180.0);
        const double y = e * second * std::sin(degrees * pi / 180.0);
        // The guider takes y away, and adds along z what turns the rest towards the star.
        const double z = x * sine / cosine;
        QVERIFY(std::abs(x * sine - z * cosine) < 1e-15); // parallel to (cosine, 0, sine)
        rotation = std::max(rotation, std::hypot(x, z));
        drift = std::max(drift, std::abs(y));
    }
    const double perHour = 3600.0 * 180.0 / pi * 3600.0;
    QVERIFY(std::abs(driftOf(60.0, declination).rotation - rotation * perHour) < 0.01);
    QVERIFY(std::abs(driftOf(60.0, declination).declination - drift * perHour) < 0.01);
}

void AssistantReportTest::aimNamesPoleAndAir()
{
    using recognition::Hemisphere;
    assistant::Settings settings;
    QVERIFY(aimOf(settings, Hemisphere::North).pole == Aim::Pole::Seen);
    settings.site = astrometry::Site{40.0, 116.0};
    settings.pressure = 850.0;
    const Aim aim = aimOf(settings, Hemisphere::North);
    QVERIFY(aim.pole == Aim::Pole::True);
    QCOMPARE(aim.pressure, 850.0);
    QCOMPARE(aim.temperature, settings.temperature);
    QVERIFY(aimOf(settings, Hemisphere::South).pole == Aim::Pole::Seen); // site of the other side
    settings.target = recognition::PoleTarget::Refracted;
    QVERIFY(aimOf(settings, Hemisphere::North).pole == Aim::Pole::Refracted);
}

QTEST_GUILESS_MAIN(AssistantReportTest)
#include "tst_assistantreport.moc"
