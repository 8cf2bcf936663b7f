// SPDX-License-Identifier: MIT
// Can a program use the geometry by its headers and library alone, without any widgets?
#include "geometry/axiscentre.h"
#include "geometry/polecomputation.h"
#include "geometry/refraction.h"
#include "geometry/saturate.h"
#include "geometry/starcatalogue.h"
#include "geometry/stardetection.h"
#include "geometry/templateoverlay.h"
#include "geometry/templatepole.h"

#include "tests/geometry/geometrytest.h"

#include <limits>

class GeometryLibraryTest : public QObject
{
    Q_OBJECT

private slots:
    void noWidgets();
    void saturation_data();
    void saturation();
};

void GeometryLibraryTest::noWidgets()
{
    QFile maps("/proc/self/maps");
    if (!maps.open(QIODevice::ReadOnly))
        QSKIP("the system does not list a process's libraries");
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("Qt5Core"));
    QVERIFY(!loaded.contains("Qt5Widgets"));
}

void GeometryLibraryTest::saturation_data()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr int last = std::numeric_limits<int>::max();
    constexpr int first = std::numeric_limits<int>::min();
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("truncates downwards") << 9.99 << 9;
    QTest::newRow("truncates upwards") << -9.99 << -9;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("infinite") << infinity << last;
    QTest::newRow("minus infinite") << -infinity << first;
    QTest::newRow("last int and a half") << 2147483647.5 << last;
    QTest::newRow("one beyond the last int") << 2147483648.0 << last;
    QTest::newRow("one before the last int") << 2147483646.5 << last - 1;
    QTest::newRow("first int") << -2147483648.0 << first;
    QTest::newRow("first int and a half") << -2147483648.5 << first;
    QTest::newRow("one after the first int") << -2147483647.5 << first + 1;
    QTest::newRow("smallest number") << std::numeric_limits<double>::denorm_min() << 0;
}

void GeometryLibraryTest::saturation()
{
    QFETCH(double, value);
    QFETCH(int, expected);
    QCOMPARE(saturatingInt(value), expected);
}

QTEST_GUILESS_MAIN(GeometryLibraryTest)
#include "tst_geometrylibrary.moc"
