// SPDX-License-Identifier: MIT
// When is the saved axis centre used again, when replaced, and when forgotten?
#include "tests/support/boxwatcher.h"
#include "tests/window/freshwindowtest.h"

class WizardCentreTest : public FreshWindowTest
{
    Q_OBJECT

private slots:
    void reuseQuestion_data();
    void reuseQuestion();
    void questionWords();
    void noErasesTheSavedCentre();
    void yesLightsAllLamps();
    void centreAccepted();
    void centreResetKeepsTheFit();
};

void WizardCentreTest::reuseQuestion_data()
{
    QTest::addColumn<QPointF>("saved");
    QTest::addColumn<bool>("answersYes");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("step");
    QTest::addColumn<QPointF>("after");
    QTest::addColumn<QString>("label");
    const QPointF good(612.34, 470.06), none(0, 0);
    QTest::newRow("yes") << good << true << 1 << 9 << good << "(612.3,470.1)";
    QTest::newRow("no") << good << false << 1 << 3 << none << "(0,0)";
    QTest::newRow("none saved") << none << true << 0 << 3 << none << "(0,0)";
    for (const QPointF &point :
         {QPointF(0, 250), QPointF(250, 0), QPointF(-3, 200), QPointF(200, -3), QPointF(-1, -1)})
        QTest::addRow("not both above 0: %g, %g", point.x(), point.y())
            << point << true << 0 << 3 << point << "(0,0)";
    const QPointF nan(qQNaN(), 200);
    QTest::newRow("no number") << nan << true << 0 << 3 << nan << "(0,0)";
    const QPointF tiny(0.001, 0.001);
    QTest::newRow("just above 0") << tiny << true << 1 << 9 << tiny << "(0.0,0.0)";
}

void WizardCentreTest::reuseQuestion()
{
    QFETCH(QPointF, saved);
    QFETCH(bool, answersYes);
    QFETCH(int, asked);
    QFETCH(int, step);
    QFETCH(QPointF, after);
    QFETCH(QString, label);
    session().alignmentPoints.savedAxisCenter = saved;
    probe->switchStep(2);
    const BoxWatcher boxes(answersYes ? QMessageBox::Yes : QMessageBox::No);
    named<QPushButton>(*window, "pushButton_confirm_done").click();
    QCOMPARE(boxes.boxes().size(), asked);
    QCOMPARE(window->step(), step);
    QCOMPARE(double(session().alignmentPoints.savedAxisCenter.x), after.x());
    QCOMPARE(double(session().alignmentPoints.savedAxisCenter.y), after.y());
    QCOMPARE(named<QLabel>(*window, "label_axisPos").text(), label);
    QCOMPARE(probe->axisCenter(), QPointF()); // only a fit sets it
}

void WizardCentreTest::questionWords()
{
    session().alignmentPoints.savedAxisCenter = QPointF(10, 10);
    probe->switchStep(2);
    const BoxWatcher boxes(QMessageBox::Yes);
    named<QPushButton>(*window, "pushButton_confirm_done").click();
    QCOMPARE(boxes.boxes().size(), 1);
    QCOMPARE(boxes.boxes().constFirst().title, QString("Question"));
    QCOMPARE(boxes.boxes().constFirst().text,
             QString("Would you like to use the 'Axis center position' recorded last time you "
                     "used Quorvandel ?"));
    QCOMPARE(boxes.boxes().constFirst().buttons,
             (QList<QMessageBox::StandardButton>{QMessageBox::Yes, QMessageBox::No}));
    QCOMPARE(boxes.boxes().constFirst().defaultButton, QMessageBox::Yes);
    QVERIFY(!boxes.boxes().constFirst().hasParent);
}

void WizardCentreTest::noErasesTheSavedCentre()
{
    session().alignmentPoints.savedAxisCenter = QPointF(612, 470);
    const BoxWatcher boxes(QMessageBox::No);
    for (int round = 0; round < 2; ++round) {
        probe->switchStep(2);
        named<QPushButton>(*window, "pushButton_confirm_done").click();
        QCOMPARE(window->step(), 3);
        QCOMPARE(boxes.boxes().size(), 1);
    }
}

void WizardCentreTest::yesLightsAllLamps()
{
    session().alignmentPoints.savedAxisCenter = QPointF(612, 470);
    probe->switchStep(2);
    const BoxWatcher boxes(QMessageBox::Yes);
    named<QPushButton>(*window, "pushButton_confirm_done").click();
    for (const char *const lamp :
         {"label_starPos1_icon", "label_starPos2_icon", "label_starPos3_icon"})
        QVERIFY(shows(named<QLabel>(*window, lamp), ":/images/lighton_color.png"));
}

void WizardCentreTest::centreAccepted()
{
    probe->setAxisCenter(QPointF(601.26, 498.04));
    session().alignmentPoints.savedAxisCenter = QPointF(1, 1);
    probe->switchStep(8);
    named<QPushButton>(*window, "pushButton_validateCenter_done").click();
    QCOMPARE(QPointF(session().alignmentPoints.savedAxisCenter), QPointF(601.26, 498.04));
    QCOMPARE(named<QLabel>(*window, "label_axisPos").text(), QString("(601.3,498.0)"));
    QCOMPARE(window->step(), 9);
}

void WizardCentreTest::centreResetKeepsTheFit()
{
    session().alignmentPoints.savedAxisCenter = QPointF(601.25, 498);
    probe->setAxisCenter(QPointF(601.25, 498));
    probe->switchStep(8);
    named<QPushButton>(*window, "pushButton_validateCenter_reset").click();
    QCOMPARE(window->step(), 3);
    QCOMPARE(QPointF(session().alignmentPoints.savedAxisCenter), QPointF(601.25, 498));
}

QTEST_MAIN(WizardCentreTest)
#include "tst_wizardcentre.moc"
