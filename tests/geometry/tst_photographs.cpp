// SPDX-License-Identifier: MIT
// Is the pole found in real photographs of the pole fields?
#include "geometry/polecomputation.h"
#include "geometry/starcatalogue.h"
#include "geometry/stardetection.h"

#include "tests/geometry/geometrytest.h"

#include <QFileInfo>
#include <QPointF>

using namespace geometrytest;

class PhotographsTest : public QObject
{
    Q_OBJECT

private slots:
    void pole_data();
    void pole();
};

void PhotographsTest::pole_data()
{
    QTest::addColumn<QString>("hemisphere");
    QTest::addColumn<QPointF>("starA");
    QTest::addColumn<QPointF>("starB");
    QTest::addColumn<QPointF>("starD");
    QTest::addColumn<QPointF>("solved");
    // Plate solutions with Tycho-2 for December 2014.
    QTest::newRow("north") << "north" << QPointF(353.10, 392.37) << QPointF(292.59, 213.79)
                           << QPointF(34.01, 268.93) << QPointF(341.24, 277.18);
    QTest::newRow("south") << "south" << QPointF(706.75, 341.23) << QPointF(883.80, 281.93)
                           << QPointF(699.26, 499.39) << QPointF(763.84, 334.37);
}

void PhotographsTest::pole()
{
    QFETCH(QString, hemisphere);
    QFETCH(QPointF, starA);
    QFETCH(QPointF, starB);
    QFETCH(QPointF, starD);
    QFETCH(QPointF, solved);
    const QString path =
        QStringLiteral(PROJECT_SOURCE_DIR "/../shared/photos/%1_pole.png").arg(hemisphere);
    if (!QFileInfo::exists(path))
        QSKIP("the photographs are not beside the project");
    const cv::Mat frame = readFrame(path);
    QCOMPARE(frame.cols, 1280);
    QCOMPARE(frame.rows, 960);
    QCOMPARE(frame.type(), CV_8UC1);
    const StarCatalogue stars =
        readStarCatalogue(QStringLiteral(PROJECT_SOURCE_DIR "/resources/starData/%1StarPosData.ini")
                              .arg(hemisphere.at(0).toUpper()),
                          2016);

    double worst = 0.0;
    for (int offX = -3; offX <= 3; ++offX) {
        for (int offY = -3; offY <= 3; ++offY) {
            const LogRecorder quiet;
            double ax, ay, bx, by, x, y;
            QCOMPARE(GetPreciseStarPos(&frame, starA.x() + offX, starA.y() + offY, ax, ay), 0);
            QCOMPARE(GetPreciseStarPos(&frame, starB.x() - offX, starB.y() + offY, bx, by), 0);
            // The axis centre of a mount that is off by half a degree.
            QCOMPARE(CalcPoleCOOR(ax, ay, stars.angleBAP, bx, by, stars.angleABP, solved.x() + 50,
                                  solved.y() + 30, x, y),
                     0);
            worst = std::max(worst, std::hypot(x - solved.x(), y - solved.y()));
            QCOMPARE(PoleFromTriangle(ax, ay, stars.angleBAP, bx, by, stars.angleABP, starD.x(),
                                      starD.y(), stars.angleDBP, x, y),
                     0);
            worst = std::max(worst, std::hypot(x - solved.x(), y - solved.y()));
        }
    }
    qInfo("worst distance from the solved pole: %.2f pixels", worst);
    QVERIFY2(worst <= 1.5, qPrintable(QString::number(worst)));
}

QTEST_GUILESS_MAIN(PhotographsTest)
#include "tst_photographs.moc"
