// SPDX-License-Identifier: MIT
// Does a person align the mount with the assistant's window alone, on the virtual camera?
#include "assistantwindow/assistantresources.h"
#include "tests/assistantwindow/desk.h"
#include "tests/support/patience.h"

#include <QAbstractButton>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

class AssistantAlignmentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void windowAloneAligns_data();
    void windowAloneAligns();
    void errorLabelsAreDashesBeforeTheyAreValid();
    void connectsAgainAndStartsAgain();
    void siteEnteredLaterGivesBolts();
    void reportIsSavedAndKeptWhenItCannotBe();
};

void AssistantAlignmentTest::windowAloneAligns_data()
{
    QTest::addColumn<bool>("south");
    QTest::newRow("north") << false;
    QTest::newRow("south") << true;
}

void AssistantAlignmentTest::windowAloneAligns()
{
    QFETCH(bool, south);
    const Desk desk(south, true);
    QVERIFY(desk.knobs->poleError() > 1800.0);
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    const auto first = desk.hands->number("label_altitudeError");
    QVERIFY(first);
    QVERIFY((*first > 0.0) == (desk.knobs->edit().boltAltitude > 0.0));
    desk.hands->turnBolts();
    const auto sigma = desk.hands->number("label_totalError", "sigma");
    QVERIFY(sigma && *sigma > 0.0);
    const double truth = desk.knobs->poleError();
    QVERIFY2(truth < 15.0, qPrintable(QString::number(truth)));
}

void AssistantAlignmentTest::errorLabelsAreDashesBeforeTheyAreValid()
{
    const Desk desk(false, true);
    for (const char *name : {"label_totalError", "label_altitudeError", "label_azimuthError"}) {
        const auto &label = desk.named<QLabel>(name);
        QCOMPARE(label.text(), QStringLiteral("—"));
        QVERIFY(!label.dynamicPropertyNames().contains("arcseconds"));
        QVERIFY(!label.dynamicPropertyNames().contains("sigma"));
    }
}

void AssistantAlignmentTest::connectsAgainAndStartsAgain()
{
    const Desk desk(false, true);
    auto &stage = desk.named<QLabel>("label_stage");
    desk.hands->connectCamera();
    QCOMPARE(stage.text(), QStringLiteral("Axis"));
    desk.hands->click("pushButton_connect");
    QTRY_COMPARE_WITH_TIMEOUT(stage.text(), QStringLiteral("Camera"), longTimeout);
    QCOMPARE(desk.named<QAbstractButton>("pushButton_connect").text(), QStringLiteral("Connect"));
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    QVERIFY(desk.hands->number("label_totalError"));
    desk.hands->click("pushButton_startAgain");
    QTRY_VERIFY_WITH_TIMEOUT(!desk.hands->number("label_totalError"), longTimeout);
    QTRY_COMPARE_WITH_TIMEOUT(stage.text(), QStringLiteral("Axis"), longTimeout);
    QVERIFY(desk.named<QLabel>("label_axisTurn").text() != QStringLiteral("—"));
}

void AssistantAlignmentTest::siteEnteredLaterGivesBolts()
{
    const Desk desk(false, false);
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    QVERIFY(desk.hands->number("label_totalError"));
    QVERIFY(!desk.hands->number("label_altitudeError"));
    desk.hands->click("pushButton_site");
    auto &latitude = desk.named<QDoubleSpinBox>("doubleSpinBox_latitude");
    auto &longitude = desk.named<QDoubleSpinBox>("doubleSpinBox_longitude");
    QVERIFY(latitude.isVisible());
    for (QDoubleSpinBox *const field : {&latitude, &longitude}) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, field == &latitude ? "47" : "8");
        QTest::keyClick(field, Qt::Key_Return);
    }
    QTest::keyClick(desk.window.get(), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(desk.hands->number("label_altitudeError"), longTimeout);
    QTRY_VERIFY(!desk.named<QAbstractButton>("pushButton_site").isVisible());
}

void AssistantAlignmentTest::reportIsSavedAndKeptWhenItCannotBe()
{
    const Desk desk(false, true);
    desk.hands->connectCamera();
    desk.hands->turnAxis();
    desk.hands->click("pushButton_report");
    auto &folder = desk.named<QLineEdit>("lineEdit_reportFolder");
    auto &outcome = desk.named<QLabel>("label_saved");
    folder.setText("/dev/null/nowhere");
    desk.hands->click("pushButton_savePng");
    QVERIFY(outcome.text().startsWith("Not saved"));
    const QTemporaryDir place;
    folder.setText(place.path());
    desk.hands->click("pushButton_savePng");
    desk.hands->click("pushButton_saveCsv");
    QVERIFY(outcome.text().startsWith("Saved"));
    const QDir saved(place.path());
    const QStringList pictures = saved.entryList({"*.png"});
    const QStringList tables = saved.entryList({"*.csv"});
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(tables.size(), 1);
    folder.setText("~/reports of tonight");
    desk.hands->click("pushButton_saveCsv");
    QCOMPARE(QDir(QDir::homePath() + "/reports of tonight").entryList({"*.csv"}).size(), 1);
    QVERIFY(QDir(QDir::homePath() + "/reports of tonight").removeRecursively());
    QCOMPARE(QImage(saved.filePath(pictures[0])).size(), QSize(1000, 640));
    QFile table(saved.filePath(tables[0]));
    QVERIFY(table.open(QIODevice::ReadOnly));
    QVERIFY(table.readAll().startsWith("quantity,value,sigma,unit"));
}

QTEST_MAIN(AssistantAlignmentTest)
#include "tst_assistantalignment.moc"
