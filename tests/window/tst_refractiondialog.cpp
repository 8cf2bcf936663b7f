// SPDX-License-Identifier: MIT
// Does the refraction dialog write what it shows, within its ranges and in the right unit?
#include "dialogs/astrorefractiondialog.h"
#include "resources/resources.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QListView>

class RefractionDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init();
    void spinBoxes_data();
    void spinBoxes();
    void comboBox();
    void loadedValues_data();
    void loadedValues();
    void editedValues_data();
    void editedValues();
    void checkBoxActsAtOnce();
    void unitChange_data();
    void unitChange();
    void unitChangeKeepsTheUnitsName();
    void hectopascalAtStart_data();
    void hectopascalAtStart();
    void noEntryBeyondTheRange_data();
    void noEntryBeyondTheRange();
    void resetKeepsValues();
    void resetGivesTheTexts_data();
    void resetGivesTheTexts();
    void throughTheWindow_data();
    void throughTheWindow();

private:
    std::unique_ptr<RefractionSettings> settings;
};

/// The record as it is without a settings file.
void RefractionDialogTest::init()
{
    settings = std::make_unique<RefractionSettings>();
    settings->latitude = 39.9F;
    settings->longitude = 116.3F;
    settings->P = 101.0F;
    settings->T = 10.0F;
    settings->enabledCorrect = false;
    settings->P_unit = "kPa";
}

void RefractionDialogTest::spinBoxes_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::newRow("doubleSpinBox_latitude") << 0.0 << 90.0 << 39.9;
    QTest::newRow("doubleSpinBox_longitude") << 0.0 << 180.0 << 116.3;
    QTest::newRow("doubleSpinBox_presure") << 90.0 << 110.0 << 101.0;
    QTest::newRow("doubleSpinBox_temperature") << -84.0 << 200.0 << 10.0;
}

void RefractionDialogTest::spinBoxes()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    const AstroRefractionDialog dialog(*settings);
    const auto &box = named<QDoubleSpinBox>(dialog, QTest::currentDataTag());
    QCOMPARE(box.minimum(), minimum);
    QCOMPARE(box.maximum(), maximum);
    QCOMPARE(box.value(), value);
    QCOMPARE(box.singleStep(), 1.0);
    QCOMPARE(box.decimals(), 2);
}

void RefractionDialogTest::comboBox()
{
    const AstroRefractionDialog dialog(*settings);
    const auto &box = named<QComboBox>(dialog, "comboBox_presure");
    QCOMPARE(box.count(), 2);
    QCOMPARE(box.itemText(0), QString("P(kPa)"));
    QCOMPARE(box.itemText(1), QString("P(hPa)"));
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(QString(box.view()->metaObject()->className()), QString("QListView"));
    QVERIFY(!named<QCheckBox>(dialog, "checkBox_enableAstroRef").isChecked());
}

void RefractionDialogTest::loadedValues_data()
{
    QTest::addColumn<QList<double>>("stored"); // latitude, longitude, P, T
    QTest::addColumn<QList<double>>("shown");  // values that come back to the record
    using Values = QList<double>;
    QTest::newRow("defaults") << Values{39.9, 116.3, 101, 10} << Values{39.9, 116.3, 101, 10};
    QTest::newRow("others") << Values{51.25, 12.5, 95.5, -5} << Values{51.25, 12.5, 95.5, -5};
    QTest::newRow("south of the equator")
        << Values{-33, 116.3, 101, 10} << Values{0, 116.3, 101, 10};
    QTest::newRow("west of the meridian") << Values{39.9, -75, 101, 10} << Values{39.9, 0, 101, 10};
    QTest::newRow("above the ranges") << Values{500, 500, 500, 500} << Values{90, 180, 110, 200};
    QTest::newRow("below the ranges") << Values{-500, -500, 0, -500} << Values{0, 0, 90, -84};
    QTest::newRow("bounds") << Values{90, 180, 90, -84} << Values{90, 180, 90, -84};
}

void RefractionDialogTest::loadedValues()
{
    QFETCH(QList<double>, stored);
    QFETCH(QList<double>, shown);
    AstroRefractionDialog dialog(*settings);
    settings->latitude = float(stored[0]);
    settings->longitude = float(stored[1]);
    settings->P = float(stored[2]);
    settings->T = float(stored[3]);
    settings->enabledCorrect = true;
    dialog.initValues();
    const char *const names[] = {"doubleSpinBox_latitude", "doubleSpinBox_longitude",
                                 "doubleSpinBox_presure", "doubleSpinBox_temperature"};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(named<QDoubleSpinBox>(dialog, names[i]).value(), shown[i]);
    QCOMPARE(float(settings->latitude), float(shown[0]));
    QCOMPARE(float(settings->longitude), float(shown[1]));
    QCOMPARE(float(settings->P), float(shown[2]));
    QCOMPARE(float(settings->T), float(shown[3]));
    QVERIFY(named<QCheckBox>(dialog, "checkBox_enableAstroRef").isChecked());
    QVERIFY(settings->enabledCorrect);
    QCOMPARE(named<QComboBox>(dialog, "comboBox_presure").currentIndex(), 0);
}

void RefractionDialogTest::editedValues_data()
{
    QTest::addColumn<QList<float>>("record"); // latitude, longitude, P, T
    using Values = QList<float>;
    QTest::newRow("doubleSpinBox_latitude") << Values{95.5F / 2, 116.3F, 101, 10};
    QTest::newRow("doubleSpinBox_longitude") << Values{39.9F, 95.5F / 2, 101, 10};
    QTest::newRow("doubleSpinBox_presure") << Values{39.9F, 116.3F, 95.5F, 10};
    QTest::newRow("doubleSpinBox_temperature") << Values{39.9F, 116.3F, 101, 95.5F / 2};
}

/// Each box writes its own number and no other.
void RefractionDialogTest::editedValues()
{
    QFETCH(QList<float>, record);
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    const QString name = QTest::currentDataTag();
    named<QDoubleSpinBox>(dialog, name).setValue(name.endsWith("presure") ? 95.5 : 47.75);
    const QList<float> found{settings->latitude, settings->longitude, settings->P, settings->T};
    QCOMPARE(found, record);
}

void RefractionDialogTest::checkBoxActsAtOnce()
{
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    auto &box = named<QCheckBox>(dialog, "checkBox_enableAstroRef");
    box.click();
    QVERIFY(settings->enabledCorrect);
    box.click();
    QVERIFY(!settings->enabledCorrect);
}

void RefractionDialogTest::unitChange_data()
{
    QTest::addColumn<QList<int>>("indices");
    QTest::addColumn<double>("kilopascal");
    QTest::addColumn<double>("expected");
    QTest::newRow("to hPa") << QList<int>{1} << 101.0 << 1010.0;
    QTest::newRow("there and back") << QList<int>{1, 0} << 101.0 << 101.0;
    QTest::newRow("and there again") << QList<int>{1, 0, 1} << 101.0 << 1010.0;
    QTest::newRow("least") << QList<int>{1} << 90.0 << 900.0;
    QTest::newRow("most") << QList<int>{1} << 110.0 << 1100.0;
    QTest::newRow("least there and back") << QList<int>{1, 0} << 90.0 << 90.0;
    QTest::newRow("most there and back") << QList<int>{1, 0} << 110.0 << 110.0;
    QTest::newRow("with decimals") << QList<int>{1} << 100.05 << 1000.5;
    QTest::newRow("no unit at all") << QList<int>{-1} << 101.0 << 101.0;
}

void RefractionDialogTest::unitChange()
{
    QFETCH(QList<int>, indices);
    QFETCH(double, kilopascal);
    QFETCH(double, expected);
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    auto &pressure = named<QDoubleSpinBox>(dialog, "doubleSpinBox_presure");
    auto &unit = named<QComboBox>(dialog, "comboBox_presure");
    pressure.setValue(kilopascal);
    for (const int index : indices)
        unit.setCurrentIndex(index);
    QCOMPARE(pressure.value(), expected);
    QCOMPARE(float(settings->P), float(expected));
    QCOMPARE(pressure.minimum(), indices.last() == 1 ? 900.0 : 90.0);
    QCOMPARE(pressure.maximum(), indices.last() == 1 ? 1100.0 : 110.0);
}

void RefractionDialogTest::unitChangeKeepsTheUnitsName()
{
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    named<QComboBox>(dialog, "comboBox_presure").setCurrentIndex(1);
    QCOMPARE(settings->P_unit, QString("kPa"));
}

void RefractionDialogTest::hectopascalAtStart_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("stored");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("shown");
    QTest::newRow("hPa, the stored value is lost") << "hPa" << 1013.0 << 1 << 1010.0;
    QTest::newRow("hPa, low") << "hPa" << 950.0 << 1 << 1010.0;
    QTest::newRow("kPa") << "kPa" << 95.0 << 0 << 95.0;
    QTest::newRow("in small letters") << "hpa" << 95.0 << 0 << 95.0;
    QTest::newRow("empty") << "" << 95.0 << 0 << 95.0;
}

void RefractionDialogTest::hectopascalAtStart()
{
    QFETCH(QString, unit);
    QFETCH(double, stored);
    QFETCH(int, index);
    QFETCH(double, shown);
    AstroRefractionDialog dialog(*settings);
    settings->P_unit = unit;
    settings->P = float(stored);
    dialog.initValues();
    QCOMPARE(named<QComboBox>(dialog, "comboBox_presure").currentIndex(), index);
    QCOMPARE(named<QDoubleSpinBox>(dialog, "doubleSpinBox_presure").value(), shown);
    QCOMPARE(float(settings->P), float(shown));
    QCOMPARE(settings->P_unit, unit);
}

void RefractionDialogTest::noEntryBeyondTheRange_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("doubleSpinBox_temperature low") << "-85" << -84.0 << 200.0;
    QTest::newRow("doubleSpinBox_temperature high") << "201" << -84.0 << 200.0;
    QTest::newRow("doubleSpinBox_latitude south") << "-33" << 0.0 << 90.0;
    QTest::newRow("doubleSpinBox_longitude west") << "-75" << 0.0 << 180.0;
    QTest::newRow("doubleSpinBox_presure high") << "111" << 90.0 << 110.0;
}

void RefractionDialogTest::noEntryBeyondTheRange()
{
    QFETCH(QString, typed);
    QFETCH(double, least);
    QFETCH(double, most);
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    auto &box = named<QDoubleSpinBox>(dialog, QString(QTest::currentDataTag()).section(' ', 0, 0));
    box.selectAll();
    QTest::keyClicks(&box, typed);
    QTest::keyClick(&box, Qt::Key_Return);
    QVERIFY2(box.value() >= least, qPrintable(box.text()));
    QVERIFY2(box.value() <= most, qPrintable(box.text()));
}

void RefractionDialogTest::resetKeepsValues()
{
    AstroRefractionDialog dialog(*settings);
    dialog.initValues();
    auto &unit = named<QComboBox>(dialog, "comboBox_presure");
    unit.setCurrentIndex(1);
    named<QDoubleSpinBox>(dialog, "doubleSpinBox_latitude").setValue(12.34);
    named<QCheckBox>(dialog, "checkBox_enableAstroRef").setChecked(true);
    named<QLabel>(dialog, "label_latitude").setText("changed");
    unit.setItemText(0, "changed");
    unit.setItemText(1, "changed");
    dialog.setWindowTitle("changed");
    dialog.uiReset();
    QCOMPARE(named<QLabel>(dialog, "label_latitude").text(), QString("Latitude"));
    QCOMPARE(unit.itemText(0), QString("P(kPa)"));
    QCOMPARE(unit.itemText(1), QString("P(hPa)"));
    QCOMPARE(dialog.windowTitle(), QString("Astronomical Refraction"));
    QCOMPARE(unit.currentIndex(), 1);
    QCOMPARE(named<QDoubleSpinBox>(dialog, "doubleSpinBox_presure").value(), 1010.0);
    QCOMPARE(named<QDoubleSpinBox>(dialog, "doubleSpinBox_latitude").value(), 12.34);
    QVERIFY(named<QCheckBox>(dialog, "checkBox_enableAstroRef").isChecked());
}

void RefractionDialogTest::resetGivesTheTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("label_latitude") << "Latitude";
    QTest::newRow("label_longitude") << "Longitude";
    QTest::newRow("label_temperature") << "T(℃)";
    QTest::newRow("checkBox_enableAstroRef") << "Enable Astronomical Refraction Correction";
}

void RefractionDialogTest::resetGivesTheTexts()
{
    QFETCH(QString, text);
    AstroRefractionDialog dialog(*settings);
    auto &widget = named<QWidget>(dialog, QTest::currentDataTag());
    QVERIFY(widget.setProperty("text", "changed"));
    dialog.uiReset();
    QCOMPARE(widget.property("text").toString(), text);
}

void RefractionDialogTest::throughTheWindow_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<float>("inForce");
    QTest::addColumn<QString>("saved");
    QTest::newRow("hPa, the stored value is lost") << "hPa"
                                                   << "1013" << 1010.0F << "1010";
    QTest::newRow("hPa, what a run before has saved") << "hPa"
                                                      << "1010" << 1010.0F << "1010";
    QTest::newRow("hPa, low") << "hPa"
                              << "950.5" << 1010.0F << "1010";
    QTest::newRow("kPa") << "kPa"
                         << "95.5" << 95.5F << "95.5";
    QTest::newRow("kPa, out of range") << "kPa"
                                       << "1013" << 110.0F << "110";
}

/// From the settings file into the record, through the dialog, and back into the file.
void RefractionDialogTest::throughTheWindow()
{
    QFETCH(QString, unit);
    QFETCH(QString, stored);
    QFETCH(float, inForce);
    QFETCH(QString, saved);
    writeIni(settingsFilePath(), {"[ASTRONOMICAL_REFRACTION]", "P=" + stored, "P_unit=" + unit});
    SessionWindow window;
    QCOMPARE(float(window.ownSession.refraction.P), inForce);
    QCOMPARE(window.ownSession.refraction.P_unit, unit);
    QCOMPARE(named<QDoubleSpinBox>(window, "doubleSpinBox_presure").value(), double(inForce));
    QCOMPARE(named<QComboBox>(window, "comboBox_presure").currentIndex(), unit == "hPa" ? 1 : 0);
    window.close();
    const IniLines lines = iniLines(settingsFilePath());
    QVERIFY2(lines.contains("P=" + saved), qPrintable(lines.join(' ')));
    QVERIFY2(lines.contains("P_unit=" + unit), qPrintable(lines.join(' ')));
    removeSettings();
}

QTEST_MAIN(RefractionDialogTest)
#include "tst_refractiondialog.moc"
