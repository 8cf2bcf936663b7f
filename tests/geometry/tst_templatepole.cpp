// SPDX-License-Identifier: MIT
// Is the template pole computed, logged and drawn where it belongs?
#include "geometry/templatepole.h"

#include "geometry/starcatalogue.h"
#include "tests/geometry/geometrytest.h"

#include <QPainter>

using namespace geometrytest;

class TemplatePoleTest : public QObject
{
    Q_OBJECT

private slots:
    void golden_data();
    void golden();
    void failure_data();
    void failure();
    void cross_data();
    void cross();
    void poleOutsideTheMask();
};

namespace
{
/// Stars whose pole is exactly at (25, 35).
StarCatalogue simpleStars()
{
    StarCatalogue stars;
    stars.starAX = 20;
    stars.starAY = stars.starBY = 30;
    stars.starBX = 30;
    stars.angleABP = stars.angleBAP = 45;
    stars.starDX = 30;
    stars.starDY = 22;
    stars.angleDBP = 135;
    return stars;
}

QImage blackMask(QImage::Format format)
{
    QImage mask(60, 50, format);
    if (format == QImage::Format_Indexed8)
        mask.setColorTable({qRgb(0, 0, 0)});
    mask.fill(0);
    return mask;
}
} // namespace

void TemplatePoleTest::golden_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("log");
    QTest::newRow("north 2024") << "north2024"
                                << "north pole in template";
    QTest::newRow("south 2024") << "south2024"
                                << "south pole in template";
    QTest::newRow("north 2016") << "north2016"
                                << "north pole in template";
    QTest::newRow("south 2016") << "south2016"
                                << "south pole in template";
}

void TemplatePoleTest::golden()
{
    QFETCH(QString, name);
    QFETCH(QString, log);
    const bool north = name.startsWith("north");
    StarCatalogue stars =
        readStarCatalogue(QStringLiteral(PROJECT_SOURCE_DIR "/resources/starData/%1StarPosData.ini")
                              .arg(north ? "N" : "S"),
                          name.rightRef(4).toInt());
    QVector<double> expected;
    for (const auto &row : goldenRows("templatepole"))
        if (row.name == name)
            expected = row.values.mid(9);
    QCOMPARE(expected.size(), 2);
    QImage mask(800, 800, QImage::Format_ARGB32);
    mask.fill(Qt::black);
    LogRecorder recorder;
    QVERIFY(computeTemplatePole(stars, mask, north ? "north" : "south"));
    COMPARE_WITHIN(stars.templatePoleX, expected[0], 1e-8);
    COMPARE_WITHIN(stars.templatePoleY, expected[1], 1e-8);
    QCOMPARE(logOf(recorder), (QStringList{QStringLiteral("debug: %1 %2 %3")
                                               .arg(log, QString::number(expected[0]),
                                                    QString::number(expected[1]))}));
}

void TemplatePoleTest::failure_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<QString>("hemisphere");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("invalid, north")
        << 90.0 << "north"
        << QStringList{"critical: invalid points, can not calculate pole.",
                       "critical: Failed to calculate the north pole."};
    QTest::newRow("circles apart, south")
        << 0.0 << "south"
        << QStringList{"critical: did not calculate the appropriate pole",
                       "critical: Failed to calculate the south pole."};
}

void TemplatePoleTest::failure()
{
    QFETCH(double, angle);
    QFETCH(QString, hemisphere);
    QFETCH(QStringList, log);
    StarCatalogue stars = simpleStars();
    stars.angleABP = stars.angleBAP = angle;
    QImage mask = blackMask(QImage::Format_ARGB32);
    const QImage before = mask.copy();
    LogRecorder recorder;
    QVERIFY(!computeTemplatePole(stars, mask, qPrintable(hemisphere)));
    QCOMPARE(stars.templatePoleX, 0.0);
    QCOMPARE(stars.templatePoleY, 0.0);
    QVERIFY(mask == before);
    QCOMPARE(logOf(recorder), log);
}

void TemplatePoleTest::cross_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("with alpha") << int(QImage::Format_ARGB32);
    QTest::newRow("premultiplied") << int(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("24 bits") << int(QImage::Format_RGB888);
    QTest::newRow("colour table") << int(QImage::Format_Indexed8);
}

void TemplatePoleTest::cross()
{
    QFETCH(int, format);
    StarCatalogue stars = simpleStars();
    QImage mask = blackMask(static_cast<QImage::Format>(format));
    LogRecorder recorder;
    QVERIFY(computeTemplatePole(stars, mask, "north"));
    QCOMPARE(logOf(recorder), QStringList{"debug: north pole in template 25 35"});

    // Drawn by the same painter at the exact position, on the same background.
    QImage expected = blackMask(static_cast<QImage::Format>(format));
    expected = expected.convertToFormat(mask.format());
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(150, 244, 254, 255), 1));
    painter.drawLine(QPointF(20, 35), QPointF(30, 35));
    painter.drawLine(QPointF(25, 30), QPointF(25, 40));
    painter.end();
    QVERIFY(mask == expected);
    // It is a cross: light on the arms, none beyond them.
    QVERIFY(qGreen(mask.pixel(22, 35)) > 50 && qGreen(mask.pixel(25, 38)) > 50);
    QVERIFY(qBlue(mask.pixel(22, 35)) > qRed(mask.pixel(22, 35)));
    QCOMPARE(mask.pixel(32, 35), mask.pixel(0, 0));
    QCOMPARE(mask.pixel(25, 42), mask.pixel(0, 0));
}

void TemplatePoleTest::poleOutsideTheMask()
{
    StarCatalogue stars = simpleStars();
    QImage small(10, 10, QImage::Format_ARGB32);
    small.fill(Qt::black);
    const QImage untouched = small.copy();
    LogRecorder recorder;
    QVERIFY(computeTemplatePole(stars, small, "north"));
    QCOMPARE(stars.templatePoleX, 25.0);
    QVERIFY(small == untouched);
    QImage none;
    QVERIFY(computeTemplatePole(stars, none, "north"));
    QVERIFY(none.isNull());
}

QTEST_GUILESS_MAIN(TemplatePoleTest)
#include "tst_templatepole.moc"
