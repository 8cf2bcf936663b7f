// SPDX-License-Identifier: MIT
// Are the template stars' angles of a date those that astropy gives?
#include <QFile>
#include <QtTest>

#include "astrometry/utcdate.h"
#include "geometry/anglesofdate.h"
#include "geometry/starcatalogue.h"

class AnglesOfDateTest : public QObject
{
    Q_OBJECT

private slots:
    void agreeWithAstropy_data();
    void agreeWithAstropy();
    void positionsStay();
};

void AnglesOfDateTest::agreeWithAstropy_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("date");
    QTest::addColumn<double>("bap");
    QTest::addColumn<double>("abp");
    QTest::addColumn<double>("dbp");
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/golden/anglesofdate.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    int rows = 0;
    while (!file.atEnd()) {
        const QList<QByteArray> f = file.readLine().trimmed().split(',');
        QTest::newRow((f[0] + ' ' + f[1]).constData())
            << (f[1] == "south") << astrometry::parseDate(f[0].toStdString()).value()
            << f[2].toDouble() << f[3].toDouble() << f[4].toDouble();
        ++rows;
    }
    QCOMPARE(rows, 10);
}

void AnglesOfDateTest::agreeWithAstropy()
{
    QFETCH(bool, south);
    QFETCH(double, date);
    QFETCH(double, bap);
    QFETCH(double, abp);
    QFETCH(double, dbp);
    StarCatalogue catalogue;
    takeAnglesOfDate(catalogue, south, date);
    // Stars A and B are 0.6 degrees and more from the pole: this is a hundredth of an arcsecond.
    constexpr double tolerance = 5e-6;
    QVERIFY(std::abs(catalogue.angleBAP - bap) < tolerance);
    QVERIFY(std::abs(catalogue.angleABP - abp) < tolerance);
    QVERIFY(std::abs(catalogue.angleDBP - dbp) < tolerance);
}

void AnglesOfDateTest::positionsStay()
{
    StarCatalogue catalogue;
    catalogue.starAX = 1.0;
    catalogue.starBY = 2.0;
    catalogue.templatePoleX = 3.0;
    takeAnglesOfDate(catalogue, true, 1.8e9);
    QCOMPARE(catalogue.starAX, 1.0);
    QCOMPARE(catalogue.starBY, 2.0);
    QCOMPARE(catalogue.templatePoleX, 3.0);
}

QTEST_GUILESS_MAIN(AnglesOfDateTest)
#include "tst_anglesofdate.moc"
