// SPDX-License-Identifier: MIT
// How does the broken ring turn, and which slider blinks?
#include "mainwindow/wizardtable.h"
#include "tests/support/patience.h"
#include "tests/window/freshwindowtest.h"

#include <QGraphicsEffect>
#include <QSlider>

class WizardMotionTest : public FreshWindowTest
{
    Q_OBJECT

private slots:
    void arcAngle();
    void arcAngleFromElsewhere_data();
    void arcAngleFromElsewhere();
    void arcRunsByItself();
    void blinking_data();
    void blinking();
    void stoppedBlinkingLeavesTheShadow();
};

void WizardMotionTest::arcAngle()
{
    probe->angleTimer().stop();
    session().overlayFlags.arcAngle = 0.0;
    QList<double> found;
    for (int tick = 0; tick < 9; ++tick) {
        QVERIFY(QMetaObject::invokeMethod(window.get(), "increaseAngleTimeout"));
        found << session().overlayFlags.arcAngle;
    }
    QCOMPARE(found, (QList<double>{10, 20, 30, 40, 50, 60, 70, 0, 10}));
}

void WizardMotionTest::arcAngleFromElsewhere_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("next");
    QTest::newRow("to the limit") << 62.0 << 72.0;
    QTest::newRow("just past it") << 62.5 << 0.0;
    QTest::newRow("far past it") << 500.0 << 0.0;
    QTest::newRow("negative") << -10.0 << 0.0;
}

void WizardMotionTest::arcAngleFromElsewhere()
{
    QFETCH(double, angle);
    QFETCH(double, next);
    QCOMPARE(nextArcAngle(angle), next);
}

void WizardMotionTest::arcRunsByItself()
{
    probe->switchStep(0);
    session().overlayFlags.arcAngle = 0.0;
    QTRY_COMPARE(double(session().overlayFlags.arcAngle), 20.0);
}

void WizardMotionTest::blinking_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("slider");
    for (int step = 1; step <= 13; ++step)
        QTest::addRow("%d", step) << step
                                  << QString(step == 2 ? "horizontalSlider_confirm_match"
                                             : step == 9 || step == 11
                                                 ? "horizontalSlider_rough_match"
                                                 : "");
}

void WizardMotionTest::blinking()
{
    QFETCH(int, step);
    QFETCH(QString, slider);
    probe->switchStep(step);
    for (const bool isLit : {true, false, true}) {
        QVERIFY(QMetaObject::invokeMethod(window.get(), "graphicsEffectTimeout"));
        for (const char *const name :
             {"horizontalSlider_confirm_match", "horizontalSlider_rough_match"})
            QCOMPARE(named<QSlider>(*window, name).graphicsEffect()->isEnabled(),
                     slider == name && isLit);
    }
}

void WizardMotionTest::stoppedBlinkingLeavesTheShadow()
{
    probe->switchStep(9);
    probe->effectTimer().start(10);
    auto *const shadow = named<QSlider>(*window, "horizontalSlider_rough_match").graphicsEffect();
    QTRY_VERIFY(shadow->isEnabled());
    probe->switchStep(10);
    QVERIFY(!probe->effectTimer().isActive());
    QTest::qWait(50);
    QVERIFY(shadow->isEnabled());
}

QTEST_MAIN(WizardMotionTest)
#include "tst_wizardmotion.moc"
