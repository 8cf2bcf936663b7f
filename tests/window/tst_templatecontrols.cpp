// SPDX-License-Identifier: MIT
// Do the rotate sliders, the zoom and the hemisphere keep the template where it belongs?
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/window/templatewindow.h"
#include "widgets/magnifierwidget.h"

#include <QAction>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

class TemplateControlsTest : public QObject
{
    Q_OBJECT

private slots:
    void sliderTurnsTheTemplate_data();
    void sliderTurnsTheTemplate();
    void buttons_data();
    void buttons();
    void slidersShareTheAngle();
    void roughSliderMovesTheTarget();
    void confirmSliderLeavesTheTarget();
    void targetIsKeptUpWhileTheTemplateIsHidden();
    void zoomActions_data();
    void zoomActions();
    void zoomMovesThePickedTemplate_data();
    void zoomMovesThePickedTemplate();
    void zoomInOtherStepsShowsTheFlatTemplate();
    void zoomAfterAFactorOfNothing_data();
    void zoomAfterAFactorOfNothing();
    void hemisphere();
    void hemisphereByTheSettings_data();
    void hemisphereByTheSettings();
};

void TemplateControlsTest::sliderTurnsTheTemplate_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("angle");
    for (const int step : {2, 9, 11})
        for (const int angle : {1, 45, 90, 180, 359, 360})
            QTest::addRow("step %d, %d degrees", step, angle) << step << angle;
}

void TemplateControlsTest::sliderTurnsTheTemplate()
{
    QFETCH(int, step);
    QFETCH(int, angle);
    const TemplateWindow w;
    w.pick(step);
    (step == 2 ? w.confirm : w.rough).setValue(angle);
    const QRect place = w.label.geometry();
    QCOMPARE(middle(place), star);
    const double radians = angle * 3.141592653589793 / 180;
    const double side = 800 * (std::abs(std::cos(radians)) + std::abs(std::sin(radians)));
    QVERIFY2(std::abs(place.width() - side) <= 2, QByteArray::number(place.width()));
    QCOMPARE(place.width(), place.height());
    // The rotated mask, by the rule that places it.
    const PlacedTemplate turned =
        turnTemplate(QImage(":/images/north_mask.png"), angle, 1.0F, star);
    QVERIFY(!turned.image.isNull());
    QCOMPARE(w.label.pixmap(Qt::ReturnByValue).size(), turned.image.size());
}

void TemplateControlsTest::buttons_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const int step : {2, 9}) {
        const QString stem = step == 2 ? "pushButton_confirm_" : "pushButton_rough_";
        const auto row = [&](const char *which, int from, int to) {
            QTest::addRow("step %d, %s at %d", step, which, from)
                << step << stem + which << from << to;
        };
        row("add", 0, 1);
        row("add", 180, 181);
        row("add", 359, 360);
        row("add", 360, 360);
        row("minus", 360, 359);
        row("minus", 1, 0);
        row("minus", 0, 0);
    }
}

void TemplateControlsTest::buttons()
{
    QFETCH(int, step);
    QFETCH(QString, button);
    QFETCH(int, from);
    QFETCH(int, to);
    const TemplateWindow w;
    w.enterStep(step);
    QTest::qWait(20);
    QSlider &slider = step == 2 ? w.confirm : w.rough;
    slider.setValue(from);
    w.click(qPrintable(button));
    QCOMPARE(slider.value(), to);
    const MainWindowProbe probe(*w.window);
    QCOMPARE(probe.rotateValue(), to);
    // The shared angle stops where the slider does: one press moves away from there.
    const bool adds = button.endsWith("add");
    w.click(step == 2 ? adds ? "pushButton_confirm_minus" : "pushButton_confirm_add"
            : adds    ? "pushButton_rough_minus"
                      : "pushButton_rough_add");
    QCOMPARE(slider.value(), adds ? to - 1 : to + 1);
    QCOMPARE(probe.rotateValue(), slider.value());
}

void TemplateControlsTest::slidersShareTheAngle()
{
    const TemplateWindow w;
    w.enterStep(2);
    w.confirm.setValue(100);
    w.enterStep(9);
    QTest::qWait(20);
    QCOMPARE(w.rough.value(), 0);
    w.click("pushButton_rough_add");
    QCOMPARE(w.rough.value(), 101);
    QCOMPARE(w.confirm.value(), 100);
    w.enterStep(2);
    QTest::qWait(20);
    w.click("pushButton_confirm_minus"); // the slider is there already
    QCOMPARE(w.confirm.value(), 100);
    w.click("pushButton_confirm_minus");
    QCOMPARE(w.confirm.value(), 99);
    QCOMPARE(w.rough.value(), 101);
}

void TemplateControlsTest::roughSliderMovesTheTarget()
{
    const TemplateWindow w;
    w.pick(9);
    w.session().alignmentPoints.savedAxisCenter = QPointF(650, 470);
    const QPointF polaris = [&] {
        const QStringList numbers =
            w.child<QLabel>("label_curPos").text().remove('(').remove(')').split(',');
        return QPointF(numbers[0].toDouble(), numbers[1].toDouble());
    }();
    QCOMPARE(polaris, QPointF(star));
    QString before;
    for (const int angle : {10, 100, 250, 360}) {
        w.rough.setValue(angle);
        QCOMPARE(w.target.text(), targetText(w, angle, polaris));
        QVERIFY(w.target.text() != before);
        before = w.target.text();
        QVERIFY(pointText(w.session().alignmentPoints.polarisTarget) == w.target.text());
    }
}

void TemplateControlsTest::confirmSliderLeavesTheTarget()
{
    const TemplateWindow w;
    w.pick(9);
    w.rough.setValue(30);
    const QString text = w.target.text();
    const QPointF target = w.session().alignmentPoints.polarisTarget;
    w.confirm.setValue(200);
    QCOMPARE(w.target.text(), text);
    QCOMPARE(w.session().alignmentPoints.polarisTarget.load(), target);
    w.click("pushButton_rough_add"); // starts at the angle that both share
    QCOMPARE(w.rough.value(), 201);
    QCOMPARE(w.target.text(), targetText(w, 201, star));
}

void TemplateControlsTest::targetIsKeptUpWhileTheTemplateIsHidden()
{
    const TemplateWindow w;
    w.pick(9);
    w.enterStep(10);
    QVERIFY(!w.label.isVisible());
    const QRect place = w.label.geometry();
    w.rough.setValue(77);
    QCOMPARE(w.label.geometry(), place);
    QCOMPARE(w.target.text(), targetText(w, 77, star));
    QCOMPARE(pointText(w.session().alignmentPoints.polarisTarget), w.target.text());
    QCOMPARE(MainWindowProbe(*w.window).rotateValue(), 77);
    w.enterStep(11);
    QTest::qWait(20);
    w.click("pushButton_rough_add");
    QCOMPARE(w.rough.value(), 78);
}

void TemplateControlsTest::zoomActions_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("arrow");
    QTest::addColumn<QRect>("mask");
    const QRect full(640 - 400, 480 - 400, 800, 800);
    QTest::newRow("100") << "action100" << QSize(1280, 960) << QSize(238, 171) << full;
    QTest::newRow("75") << "action75" << QSize(960, 720) << QSize(178, 128)
                        << QRect(480 - 300, 360 - 300, 600, 600);
    QTest::newRow("50") << "action50" << QSize(640, 480) << QSize(118, 85)
                        << QRect(320 - 200, 240 - 200, 400, 400);
}

void TemplateControlsTest::zoomActions()
{
    QFETCH(QString, action);
    QFETCH(QSize, picture);
    QFETCH(QSize, arrow);
    QFETCH(QRect, mask);
    const TemplateWindow w;
    // From another factor, so that the action is toggled.
    w.trigger(action == "action75" ? "action50" : "action75");
    w.trigger(qPrintable(action));
    for (const char *const each : {"action100", "action75", "action50"})
        QCOMPARE(w.child<QAction>(each).isChecked(), action == each);
    const auto &arrowLabel = w.child<QLabel>("directionArrow");
    QCOMPARE(arrowLabel.pixmap(Qt::ReturnByValue).size(), arrow);
    QCOMPARE(arrowLabel.size(), arrow);
    QCOMPARE(w.label.geometry(), mask);
    QCOMPARE(w.label.pixmap(Qt::ReturnByValue).size(), mask.size());
    QTRY_COMPARE(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).size(), picture);
    w.window->close();
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray factor = action == "action100" ? "1" : action == "action75" ? "0.75" : "0.5";
    QVERIFY(file.readAll().contains("factor=" + factor + '\n'));
}

void TemplateControlsTest::zoomMovesThePickedTemplate_data()
{
    QTest::addColumn<int>("step");
    for (const int step : {2, 9, 11})
        QTest::addRow("step %d", step) << step;
}

void TemplateControlsTest::zoomMovesThePickedTemplate()
{
    QFETCH(int, step);
    const TemplateWindow w;
    w.pick(step);
    (step == 2 ? w.confirm : w.rough).setValue(90);
    const struct {
        const char *action;
        double factor;
    } zooms[] = {{"action75", 0.75}, {"action50", 0.5}, {"action100", 1.0}};
    for (const auto &zoom : zooms) {
        w.trigger(zoom.action);
        QCOMPARE(middle(w.label.geometry()), (QPointF(star) * zoom.factor).toPoint());
        QCOMPARE(w.label.width(), int(800 * zoom.factor));
        QVERIFY(w.label.isVisible());
    }
}

void TemplateControlsTest::zoomInOtherStepsShowsTheFlatTemplate()
{
    const TemplateWindow w;
    w.pick(2);
    w.confirm.setValue(45);
    QVERIFY(w.label.width() > 1100);
    w.enterStep(3);
    w.trigger("action50");
    QCOMPARE(w.label.geometry(), QRect(star / 2 - QPoint(200, 200), QSize(400, 400)));
    QVERIFY(!w.label.isVisible());
}

void TemplateControlsTest::zoomAfterAFactorOfNothing_data()
{
    QTest::addColumn<QByteArray>("stored");
    for (const char *const factor : {"0", "-1", "nan"})
        QTest::newRow(factor) << QByteArray(factor);
}

/// There is no place in view to keep, and none is made up.
void TemplateControlsTest::zoomAfterAFactorOfNothing()
{
    QFETCH(QByteArray, stored);
    const CameraWindow w("[ZOOM]\nfactor=" + stored + '\n');
    showFrame(starFrame({star}));
    w.connectCamera();
    sdk().setFramesLeft(-1);
    const int fetches = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() > fetches + 5); // the first picture has been shown, with no size
    QTest::qWait(60);
    const QScrollArea &area = w.child<QScrollArea>("scrollArea_showImg");
    const auto &magnifier = *w.window->findChild<MagnifierWidget *>();
    const QPoint centre = magnifier.magnifiedCentre();
    w.trigger("action75"); // 100 percent is ticked
    QCOMPARE(magnifier.magnifiedCentre(), centre);
    QTRY_COMPARE(w.child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).size(),
                 QSize(960, 720));
    QCOMPARE(area.horizontalScrollBar()->value(), 0);
    QCOMPARE(area.verticalScrollBar()->value(), 0);
}

void TemplateControlsTest::hemisphere()
{
    const TemplateWindow w;
    auto &north = w.child<QRadioButton>("radioButton_north");
    auto &south = w.child<QRadioButton>("radioButton_south");
    auto &tip = w.child<QLabel>("label_setting_tipMsg");
    QVERIFY(north.isChecked() && !south.isChecked());
    QVERIFY(tip.text().contains("Polaris"));
    w.enterStep(9);
    QTest::qWait(20);
    const LogRecorder log;
    QTest::mouseClick(&north, Qt::LeftButton, {}, QPoint(8, north.height() / 2));
    QCOMPARE(w.window->step(), 9);
    QCOMPARE(log.texts(QtDebugMsg) + log.texts(QtCriticalMsg), QStringList());
    QTest::mouseClick(&south, Qt::LeftButton, {}, QPoint(8, south.height() / 2));
    QVERIFY(south.isChecked() && !north.isChecked());
    QCOMPARE(w.window->step(), 1);
    QVERIFY(log.contains(QtDebugMsg, "change region to  \"South\""));
    QVERIFY(!tip.text().contains("Polaris"));
    QCOMPARE(w.session().alignmentPoints.angleBAP.load(), southCatalogue.angleBAP);
    QCOMPARE(w.session().alignmentPoints.angleABP.load(), southCatalogue.angleABP);
    w.trigger("action50");
    QCOMPARE(w.label.size(), QSize(400, 337)); // the southern mask
    w.enterStep(5);
    QTest::mouseClick(&north, Qt::LeftButton, {}, QPoint(8, north.height() / 2));
    QCOMPARE(w.window->step(), 1);
    QVERIFY(log.contains(QtDebugMsg, "change region to  \"North\""));
    QVERIFY(tip.text().contains("Polaris"));
    QCOMPARE(w.session().alignmentPoints.angleBAP.load(), northCatalogue.angleBAP);
}

void TemplateControlsTest::hemisphereByTheSettings_data()
{
    QTest::addColumn<QByteArray>("region");
    QTest::addColumn<bool>("isNorth");
    QTest::newRow("North") << QByteArray("North") << true;
    QTest::newRow("South") << QByteArray("South") << false;
}

void TemplateControlsTest::hemisphereByTheSettings()
{
    QFETCH(QByteArray, region);
    QFETCH(bool, isNorth);
    const CameraWindow w("[REGION]\nregion=" + region + '\n');
    QCOMPARE(w.child<QRadioButton>("radioButton_north").isChecked(), isNorth);
    QCOMPARE(w.child<QRadioButton>("radioButton_south").isChecked(), !isNorth);
    QCOMPARE(w.child<QLabel>("label_setting_tipMsg").text().contains("Polaris"), isNorth);
    w.window->close();
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("region=" + region + '\n'));
}

QTEST_MAIN(TemplateControlsTest)
#include "tst_templatecontrols.moc"
