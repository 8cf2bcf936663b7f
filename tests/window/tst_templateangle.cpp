// SPDX-License-Identifier: MIT
// Is the template over the picture rotated to the angle that the sliders share, in both
// hemispheres?
#include "tests/support/mainwindowprobe.h"
#include "tests/window/templatewindow.h"

namespace
{
/// The picture and its place are the mask rotated by `angle` about the view pixel `middlePixel`.
bool isTurned(const QLabel &label, const QImage &mask, int angle, double zoom, QPoint middlePixel)
{
    const PlacedTemplate turned = turnTemplate(mask, angle, float(zoom), middlePixel);
    return label.geometry() == turned.geometry && showsPicture(label, turned.image);
}
} // namespace

class TemplateAngleTest : public QObject
{
    Q_OBJECT

private slots:
    void sliderTurns_data();
    void sliderTurns();
    void pickTurns_data();
    void pickTurns();
    void zoomKeepsTheAngle_data();
    void zoomKeepsTheAngle();
    void buttonOfASliderThatStandsThere_data();
    void buttonOfASliderThatStandsThere();
};

void TemplateAngleTest::sliderTurns_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("angle");
    for (const int step : {2, 9, 11}) {
        for (const int angle : {45, 315}) {
            QTest::addRow("North, step %d, %d degrees", step, angle) << "North" << step << angle;
            QTest::addRow("South, step %d, %d degrees", step, angle) << "South" << step << angle;
        }
    }
}

void TemplateAngleTest::sliderTurns()
{
    QFETCH(QString, region);
    QFETCH(int, step);
    QFETCH(int, angle);
    const TemplateWindow w(regionSetting(region));
    w.pick(step);
    (step == 2 ? w.confirm : w.rough).setValue(angle);
    const QImage mask = markedMask(region);
    QVERIFY(isTurned(w.label, mask, angle, 1.0, star));
    QVERIFY(!isTurned(w.label, mask, 360 - angle, 1.0, star)); // both directions differ
    QCOMPARE(MainWindowProbe(*w.window).rotateValue(), angle);
}

void TemplateAngleTest::pickTurns_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<int>("step");
    for (const int step : {2, 9, 11}) {
        QTest::addRow("North, step %d", step) << "North" << step;
        QTest::addRow("South, step %d", step) << "South" << step;
    }
}

/// The angle was chosen before: the pick alone shows the mask rotated.
void TemplateAngleTest::pickTurns()
{
    QFETCH(QString, region);
    QFETCH(int, step);
    const TemplateWindow w(regionSetting(region));
    w.enterStep(step);
    (step == 2 ? w.confirm : w.rough).setValue(45);
    QVERIFY(!w.label.isVisible());
    w.pick(step);
    QVERIFY(isTurned(w.label, markedMask(region), 45, 1.0, star));
    QCOMPARE(MainWindowProbe(*w.window).rotateValue(), 45);
}

void TemplateAngleTest::zoomKeepsTheAngle_data()
{
    pickTurns_data();
}

void TemplateAngleTest::zoomKeepsTheAngle()
{
    QFETCH(QString, region);
    QFETCH(int, step);
    const TemplateWindow w(regionSetting(region));
    w.pick(step);
    (step == 2 ? w.confirm : w.rough).setValue(45);
    const QImage mask = markedMask(region);
    const struct {
        const char *action;
        double factor;
    } zooms[] = {{"action75", 0.75}, {"action50", 0.5}, {"action100", 1.0}};
    for (const auto &zoom : zooms) {
        w.trigger(zoom.action);
        QVERIFY(isTurned(w.label, mask, 45, zoom.factor, (QPointF(star) * zoom.factor).toPoint()));
        QCOMPARE(MainWindowProbe(*w.window).rotateValue(), 45);
    }
}

void TemplateAngleTest::buttonOfASliderThatStandsThere_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("shared"); ///< the angle that the other slider has set
    QTest::newRow("confirm, add") << 2 << "pushButton_confirm_add" << 99;
    QTest::newRow("confirm, minus") << 2 << "pushButton_confirm_minus" << 101;
    QTest::newRow("rough, add") << 9 << "pushButton_rough_add" << 99;
    QTest::newRow("rough, minus") << 9 << "pushButton_rough_minus" << 101;
}

/// The template is updated although no slider moves; with the rough slider, the target too.
void TemplateAngleTest::buttonOfASliderThatStandsThere()
{
    QFETCH(int, step);
    QFETCH(QString, button);
    QFETCH(int, shared);
    const TemplateWindow w;
    w.pick(step);
    (step == 2 ? w.confirm : w.rough).setValue(100);
    (step == 2 ? w.rough : w.confirm).setValue(shared);
    const QImage mask = markedMask("North");
    QVERIFY(isTurned(w.label, mask, shared, 1.0, star));
    w.session().alignmentPoints.savedAxisCenter = QPointF(601.5, 523.5);
    const QString before = w.target.text();
    w.click(qPrintable(button));
    QVERIFY(isTurned(w.label, mask, 100, 1.0, star));
    QCOMPARE(MainWindowProbe(*w.window).rotateValue(), 100);
    QVERIFY(before != targetText(w, 100, star));
    QCOMPARE(w.target.text(), step == 2 ? before : targetText(w, 100, star));
}

QTEST_MAIN(TemplateAngleTest)
#include "tst_templateangle.moc"
