// SPDX-License-Identifier: MIT
// Do stars stand where astropy puts them, at dates from 2014 to 2040, near both poles?
#include <QFile>
#include <QtTest>

#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "astrometry/utcdate.h"

#include <set>

using namespace astrometry;

namespace
{
// Seen from the Earth's centre the two programs differ by the bending of light and by UT1.
constexpr double toleranceArcseconds = 0.01;
constexpr double fastest = 2.0; // arcseconds a year, of any star in the catalogue

struct Row {
    QByteArray name;
    double utcSeconds, ra, dec, cirsRa, cirsDec, equinoxRa;
};

std::vector<Row> goldenRows()
{
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/golden/places.csv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::vector<Row> rows;
    while (!file.atEnd()) {
        const QList<QByteArray> f = file.readLine().trimmed().split(',');
        rows.push_back({f[0] + ' ' + f[1] + ' ' + f[2], parseDate(f[0].toStdString()).value_or(0.0),
                        f[1].toDouble(), f[2].toDouble(), f[3].toDouble(), f[4].toDouble(),
                        f[5].toDouble()});
    }
    return rows;
}
} // namespace

class ApparentPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void agreeWithAstropy_data();
    void agreeWithAstropy();
    void equationOfOriginsAgreesWithAstropy_data();
    void equationOfOriginsAgreesWithAstropy();
    void aSiteAddsTheDiurnalAberration_data();
    void aSiteAddsTheDiurnalAberration();
    void earthTurnsOnceInASiderealDay();
    void catalogueHasNames();
    void catalogueIsOfBothPoles();
};

void ApparentPlacesTest::agreeWithAstropy_data()
{
    QTest::addColumn<int>("row");
    const std::vector<Row> rows = goldenRows();
    QCOMPARE(rows.size(), std::size_t(192));
    for (std::size_t i = 0; i < rows.size(); ++i)
        QTest::newRow(rows[i].name.constData()) << int(i);
}

void ApparentPlacesTest::agreeWithAstropy()
{
    QFETCH(int, row);
    static const std::vector<Row> rows = goldenRows();
    const Row &golden = rows[std::size_t(row)];
    const CatalogueStar &star = nearestStar(golden.ra, golden.dec);
    QCOMPARE(star.raDegrees, golden.ra);
    QCOMPARE(star.decDegrees, golden.dec);
    const Vector3 place = apparentPlaces(&star, &star + 1, golden.utcSeconds).front();
    const Vector3 wanted =
        direction(golden.cirsRa * astrometry::degree, golden.cirsDec * astrometry::degree);
    const double error = angleBetween(place, wanted) / arcsecond;
    QVERIFY2(error < toleranceArcseconds, qPrintable(QString::number(error)));
}

void ApparentPlacesTest::equationOfOriginsAgreesWithAstropy_data()
{
    QTest::addColumn<double>("date");
    QTest::addColumn<double>("wanted");
    std::set<double> dates;
    for (const Row &row : goldenRows())
        if (dates.insert(row.utcSeconds).second)
            QTest::newRow(row.name.constData()) << row.utcSeconds << row.cirsRa - row.equinoxRa;
}

void ApparentPlacesTest::equationOfOriginsAgreesWithAstropy()
{
    QFETCH(double, date);
    QFETCH(double, wanted);
    const double difference = equationOfOrigins(date) / astrometry::degree - wanted;
    QVERIFY(std::abs(std::remainder(difference, 360.0)) * 3600.0 < 0.01);
}

void ApparentPlacesTest::aSiteAddsTheDiurnalAberration_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("most"); // arcseconds: 0.32 on the equator, by the cosine of latitude
    QTest::addColumn<double>("least");
    QTest::newRow("equator") << 0.0 << 0.33 << 0.30;
    QTest::newRow("60 degrees north") << 60.0 << 0.17 << 0.15;
    QTest::newRow("60 degrees south") << -60.0 << 0.17 << 0.15;
    QTest::newRow("pole") << 90.0 << 0.005 << 0.0;
}

void ApparentPlacesTest::aSiteAddsTheDiurnalAberration()
{
    QFETCH(double, latitude);
    QFETCH(double, most);
    QFETCH(double, least);
    const double date = 1795204800.0;
    const CatalogueStar &star = templateStar(latitude < 0.0, TemplateStar::B);
    const Vector3 centre = apparentPlaces(&star, &star + 1, date).front();
    const Vector3 site = apparentPlaces(&star, &star + 1, Site{latitude, 30.0}, date).front();
    const double shift = angleBetween(centre, site) / arcsecond;
    QVERIFY2(shift <= most && shift >= least, qPrintable(QString::number(shift)));
}

void ApparentPlacesTest::earthTurnsOnceInASiderealDay()
{
    constexpr double siderealDay = 86164.0905 - 0.0084; // against the stars, not the equinox
    const double date = 1795204800.0;
    const double turn = earthRotationAngle(date + siderealDay) - earthRotationAngle(date);
    QVERIFY(std::abs(std::remainder(turn, 2.0 * pi)) / arcsecond < 0.3);
}

void ApparentPlacesTest::catalogueHasNames()
{
    QCOMPARE(QByteArray(templateStar(false, TemplateStar::B).name), QByteArray("alp UMi, Polaris"));
    QCOMPARE(templateStar(false, TemplateStar::B).hd, 8890);
    QCOMPARE(QByteArray(templateStar(true, TemplateStar::B).name), QByteArray("sig Oct"));
    QCOMPARE(templateStar(true, TemplateStar::B).hd, 177482);
}

void ApparentPlacesTest::catalogueIsOfBothPoles()
{
    int north = 0;
    int south = 0;
    for (const CatalogueStar &star : catalogue()) {
        QVERIFY(std::abs(star.decDegrees) >= 77.5 && std::abs(star.decDegrees) < 90.0);
        QVERIFY(std::hypot(star.pmRaCosDec, star.pmDec) < 1000.0 * fastest);
        ++(star.decDegrees > 0.0 ? north : south);
    }
    QCOMPARE(north, 1398);
    QCOMPARE(south, 1352);
}

QTEST_GUILESS_MAIN(ApparentPlacesTest)
#include "tst_apparentplaces.moc"
