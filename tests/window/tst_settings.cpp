// SPDX-License-Identifier: MIT
// What is read from the settings file, what is written, and when?
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/patience.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QRadioButton>
#include <QTemporaryDir>
#include <cmath>
#include <limits>

namespace
{
const QStringList defaultFile{"STYLE/style=Color",
                              "LANGUAGE/lang=EN",
                              "REGION/region=North",
                              "ZOOM/factor=1",
                              "ASTRONOMICAL_REFRACTION/latitude=39.9",
                              "ASTRONOMICAL_REFRACTION/longitude=116.3",
                              "ASTRONOMICAL_REFRACTION/P=101",
                              "ASTRONOMICAL_REFRACTION/T=10",
                              "ASTRONOMICAL_REFRACTION/enabledCorrect=false",
                              "ASTRONOMICAL_REFRACTION/P_unit=kPa",
                              "AXIS_CENTER/x=0",
                              "AXIS_CENTER/y=0"};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// The file's lines as "GROUP/key=value", sorted: the library determines their order.
QStringList entriesOf(const QString &path)
{
    QStringList entries;
    QString group;
    for (const QString &line : iniLines(path))
        if (line.startsWith('['))
            group = line.mid(1, line.size() - 2);
        else
            entries << group + '/' + line;
    return sorted(entries);
}

/// Everything in a record, key by key, numbers with all their digits.
QStringList spelled(const Settings &s)
{
    const auto digits = [](double value) { return QString::number(value, 'g', 17); };
    return {s.styleName,
            s.languageCode,
            s.regionName,
            digits(double(s.zoomFactor)),
            digits(double(s.latitude)),
            digits(double(s.longitude)),
            digits(double(s.P)),
            digits(double(s.T)),
            s.enabledCorrect ? "true" : "false",
            s.P_unit,
            digits(s.axisX),
            digits(s.axisY)};
}

Settings otherSettings()
{
    Settings s;
    s.styleName = "Mono";
    s.languageCode = "KO";
    s.regionName = "South";
    s.zoomFactor = 0.5F;
    s.latitude = -33.25F;
    s.longitude = 151.5F;
    s.P = 1013.0F;
    s.T = -12.5F;
    s.enabledCorrect = true;
    s.P_unit = "hPa";
    s.axisX = 612.5;
    s.axisY = 470.25;
    return s;
}
} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { removeSettings(); }
    void pathIsBesideTheExecutable();
    void missingFileLeavesRecordUntouched();
    void readKey_data();
    void readKey();
    void missingKeysTakeDefaults();
    void writtenFile();
    void writtenNumber_data();
    void writtenNumber();
    void axisLosesDigits();
    void roundTrip();
    void foreignKeysStay();
    void unwritablePath();
    void firstStartMakesNoFile();
    void closeWritesDefaults();
    void closeWritesWhatIsInForce();
    void nothingIsSavedBeforeClose();
    void partialFileInTheWindow();
    void outOfRangeValuesAreKept();
    void oddZoomSizesThePicture_data();
    void oddZoomSizesThePicture();
    void pressureUnitStaysAsLoaded();
    void axisSurvivesRestart();
    void unknownStyleIsWrittenBack();
    void toggledStyleIsWrittenBack();

private:
    QTemporaryDir folder;
    QString path;
    int fileNumber = 0;
};

void SettingsTest::initTestCase()
{
    initialiseResources();
    QVERIFY(folder.isValid());
}

void SettingsTest::init()
{
    removeSettings();
    // A new name each time: QSettings caches a file of the same size and age.
    path = folder.filePath(QString("%1.ini").arg(++fileNumber));
}

void SettingsTest::pathIsBesideTheExecutable()
{
    QCOMPARE(settingsFilePath(),
             QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + "/Quorvandel.ini"));
}

void SettingsTest::missingFileLeavesRecordUntouched()
{
    Settings settings = otherSettings();
    QVERIFY(!readSettings(path, settings));
    QCOMPARE(spelled(settings), spelled(otherSettings()));
    QVERIFY(!QFile::exists(path));
}

void SettingsTest::readKey_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("index"); // of the key in spelled()
    QTest::addColumn<QString>("expected");
    const struct {
        const char *name, *group, *line;
        int index;
        QString expected;
    } rows[] = {
        {"style", "STYLE", "style=Mono", 0, "Mono"},
        {"style is not checked", "STYLE", "style=mono", 0, "mono"},
        {"language", "LANGUAGE", "lang=PT", 1, "PT"},
        {"region", "REGION", "region=South", 2, "South"},
        {"zoom", "ZOOM", "factor=0.75", 3, "0.75"},
        {"zoom of none of the three", "ZOOM", "factor=1.25", 3, "1.25"},
        {"zoom no number", "ZOOM", "factor=big", 3, "0"},
        {"zoom empty", "ZOOM", "factor=", 3, "0"},
        {"latitude out of range", "ASTRONOMICAL_REFRACTION", "latitude=500", 4, "500"},
        {"latitude below zero", "ASTRONOMICAL_REFRACTION", "latitude=-33.25", 4, "-33.25"},
        {"latitude no number", "ASTRONOMICAL_REFRACTION", "latitude=north", 4, "0"},
        {"longitude", "ASTRONOMICAL_REFRACTION", "longitude=151.5", 5, "151.5"},
        {"pressure", "ASTRONOMICAL_REFRACTION", "P=1013", 6, "1013"},
        {"pressure no number", "ASTRONOMICAL_REFRACTION", "P=high", 6, "0"},
        {"temperature", "ASTRONOMICAL_REFRACTION", "T=-12.5", 7, "-12.5"},
        {"temperature no number", "ASTRONOMICAL_REFRACTION", "T=x", 7, "0"},
        {"correction on", "ASTRONOMICAL_REFRACTION", "enabledCorrect=true", 8, "true"},
        {"correction off", "ASTRONOMICAL_REFRACTION", "enabledCorrect=false", 8, "false"},
        {"correction empty", "ASTRONOMICAL_REFRACTION", "enabledCorrect=", 8, "false"},
        {"unit", "ASTRONOMICAL_REFRACTION", "P_unit=hPa", 9, "hPa"},
        {"axis x", "AXIS_CENTER", "x=612.5", 10, "612.5"},
        {"axis y", "AXIS_CENTER", "y=470.25", 11, "470.25"},
        {"axis x no number", "AXIS_CENTER", "x=left", 10, "0"},
        {"axis in single precision", "AXIS_CENTER", "x=1234.57", 10,
         QString::number(double(1234.57F), 'g', 17)},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.group << row.line << row.index << row.expected;
}

/// One key in the file: it is used, and every other one has its default.
void SettingsTest::readKey()
{
    QFETCH(QString, group);
    QFETCH(QString, line);
    QFETCH(int, index);
    QFETCH(QString, expected);
    writeIni(path, {'[' + group + ']', line});
    Settings settings = otherSettings();
    QVERIFY(readSettings(path, settings));
    QStringList all = spelled(Settings());
    all[index] = expected;
    QCOMPARE(spelled(settings), all);
}

void SettingsTest::missingKeysTakeDefaults()
{
    writeIni(path, {});
    Settings settings = otherSettings();
    QVERIFY(readSettings(path, settings));
    const QStringList defaults{"Color",
                               "EN",
                               "North",
                               "1",
                               QString::number(double(39.9F), 'g', 17),
                               QString::number(double(116.3F), 'g', 17),
                               "101",
                               "10",
                               "false",
                               "kPa",
                               "0",
                               "0"};
    QCOMPARE(spelled(settings), defaults);
}

void SettingsTest::writtenFile()
{
    writeSettings(path, Settings());
    QCOMPARE(entriesOf(path), sorted(defaultFile));
}

void SettingsTest::writtenNumber_data()
{
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 1.0F << "1";
    QTest::newRow("three quarters") << 0.75F << "0.75";
    QTest::newRow("not a binary fraction") << 39.9F << "39.9";
    QTest::newRow("six digits") << 1234.5678F << "1234.57";
    QTest::newRow("seven digits") << 1234567.0F << "1.23457e+06";
    QTest::newRow("tiny") << 0.00001234567F << "1.23457e-05";
    QTest::newRow("negative") << -33.25F << "-33.25";
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << "nan";
}

void SettingsTest::writtenNumber()
{
    QFETCH(float, zoom);
    QFETCH(QString, text);
    Settings settings;
    settings.zoomFactor = zoom;
    writeSettings(path, settings);
    QVERIFY2(iniLines(path).contains("factor=" + text), qPrintable(iniLines(path).join('|')));
}

void SettingsTest::axisLosesDigits()
{
    Settings settings;
    settings.axisX = 1234.5678;
    settings.axisY = 0.1;
    writeSettings(path, settings);
    QVERIFY(iniLines(path).contains("x=1234.57"));
    QVERIFY(readSettings(path, settings));
    QCOMPARE(settings.axisX, double(1234.57F));
    QCOMPARE(settings.axisY, double(0.1F));
}

void SettingsTest::roundTrip()
{
    writeSettings(path, otherSettings());
    Settings settings;
    QVERIFY(readSettings(path, settings));
    QCOMPARE(spelled(settings), spelled(otherSettings()));
}

void SettingsTest::foreignKeysStay()
{
    writeIni(path, {"[STYLE]", "hue=7", "[OTHER]", "key=value"});
    writeSettings(path, Settings());
    const IniLines lines = iniLines(path);
    QVERIFY(lines.contains("hue=7"));
    QVERIFY(lines.contains("key=value"));
    QVERIFY(lines.contains("style=Color"));
}

/// A folder of that name can be neither read nor written; there is no message.
void SettingsTest::unwritablePath()
{
    const QString name = folder.filePath("folder.ini");
    QVERIFY(QDir().mkpath(name));
    writeSettings(name, otherSettings());
    QVERIFY(QFileInfo(name).isDir());
    Settings settings;
    QVERIFY(readSettings(name, settings));
    QCOMPARE(spelled(settings), spelled(Settings()));
}

void SettingsTest::firstStartMakesNoFile()
{
    const SessionWindow window;
    QTest::qWait(0);
    QVERIFY(!QFile::exists(settingsFilePath()));
}

void SettingsTest::closeWritesDefaults()
{
    SessionWindow window;
    window.show();
    window.close();
    QCOMPARE(entriesOf(settingsFilePath()), sorted(defaultFile));
}

void SettingsTest::closeWritesWhatIsInForce()
{
    SessionWindow window;
    named<QAction>(window, "actionMono_Style").trigger();
    named<QAction>(window, "actionItalian").trigger();
    named<QRadioButton>(window, "radioButton_south").click();
    named<QAction>(window, "action75").setChecked(true);
    named<QDoubleSpinBox>(window, "doubleSpinBox_latitude").setValue(51.25);
    named<QDoubleSpinBox>(window, "doubleSpinBox_longitude").setValue(12.5);
    named<QDoubleSpinBox>(window, "doubleSpinBox_presure").setValue(99.75);
    named<QDoubleSpinBox>(window, "doubleSpinBox_temperature").setValue(-4.5);
    named<QCheckBox>(window, "checkBox_enableAstroRef").setChecked(true);
    window.ownSession.alignmentPoints.savedAxisCenter = QPointF(601.25, 1234.5678);
    named<QAction>(window, "actionExit").trigger();
    const QStringList expected{"STYLE/style=Mono",
                               "LANGUAGE/lang=IT",
                               "REGION/region=South",
                               "ZOOM/factor=0.75",
                               "ASTRONOMICAL_REFRACTION/latitude=51.25",
                               "ASTRONOMICAL_REFRACTION/longitude=12.5",
                               "ASTRONOMICAL_REFRACTION/P=99.75",
                               "ASTRONOMICAL_REFRACTION/T=-4.5",
                               "ASTRONOMICAL_REFRACTION/enabledCorrect=true",
                               "ASTRONOMICAL_REFRACTION/P_unit=kPa",
                               "AXIS_CENTER/x=601.25",
                               "AXIS_CENTER/y=1234.57"};
    QCOMPARE(entriesOf(settingsFilePath()), sorted(expected));
}

void SettingsTest::nothingIsSavedBeforeClose()
{
    const IniLines before{"[REGION]", "region=North"};
    writeIni(settingsFilePath(), before);
    {
        SessionWindow window;
        named<QRadioButton>(window, "radioButton_south").click();
        named<QDoubleSpinBox>(window, "doubleSpinBox_latitude").setValue(10);
        QTest::qWait(50);
        QCOMPARE(iniLines(settingsFilePath()), before);
    }
    QCOMPARE(iniLines(settingsFilePath()), before); // destroyed without having been closed
}

void SettingsTest::partialFileInTheWindow()
{
    writeIni(settingsFilePath(), {"[ASTRONOMICAL_REFRACTION]", "T=-5", "[ZOOM]", "factor=0.5"});
    SessionWindow window;
    QCOMPARE(MainWindowProbe(window).zoomFactor(), 0.5F);
    QCOMPARE(float(window.ownSession.refraction.T), -5.0F);
    QCOMPARE(float(window.ownSession.refraction.P), 101.0F);
    QCOMPARE(float(window.ownSession.refraction.latitude), 39.9F);
    QCOMPARE(MainWindowProbe(window).regionName(), QString("North"));
    QCOMPARE(MainWindowProbe(window).styleName(), QString("Color"));
    QCOMPARE(MainWindowProbe(window).languageCode(), QString("EN"));
}

/// Only the dialog's widgets limit the values in effect; other values are used as they are.
void SettingsTest::outOfRangeValuesAreKept()
{
    writeIni(settingsFilePath(),
             {"[ASTRONOMICAL_REFRACTION]", "latitude=500", "[AXIS_CENTER]", "x=-3", "y=90000"});
    SessionWindow window;
    QCOMPARE(QPointF(window.ownSession.alignmentPoints.savedAxisCenter), QPointF(-3, 90000));
    QCOMPARE(float(window.ownSession.refraction.latitude), 90.0F); // through the dialog's spin box
    window.close();
    QVERIFY(iniLines(settingsFilePath()).contains("y=90000"));
}

void SettingsTest::oddZoomSizesThePicture_data()
{
    QTest::addColumn<QString>("factor");
    QTest::addColumn<QSize>("size");
    QTest::newRow("0.6") << "0.6" << QSize(768, 576);
    QTest::newRow("1.25") << "1.25" << QSize(1600, 1200);
    QTest::newRow("0.5") << "0.5" << QSize(640, 480);
}

void SettingsTest::oddZoomSizesThePicture()
{
    QFETCH(QString, factor);
    QFETCH(QSize, size);
    writeIni(settingsFilePath(), {"[ZOOM]", "factor=" + factor});
    SessionWindow window;
    QImage picture(1280, 960, QImage::Format_RGB888);
    picture.fill(Qt::blue);
    window.ownSession.frameQueue.append(picture);
    const auto &label = named<QLabel>(window, "label_showImg");
    QTRY_COMPARE(label.pixmap(Qt::ReturnByValue).size(), size);
    window.close();
    QVERIFY(iniLines(settingsFilePath()).contains("factor=" + factor));
}

/// The unit of the dialog is not stored: only the pressure follows it.
void SettingsTest::pressureUnitStaysAsLoaded()
{
    SessionWindow window;
    named<QComboBox>(window, "comboBox_presure").setCurrentIndex(1);
    window.close();
    QVERIFY(iniLines(settingsFilePath()).contains("P=1010"));
    QVERIFY(iniLines(settingsFilePath()).contains("P_unit=kPa"));
}

void SettingsTest::axisSurvivesRestart()
{
    {
        SessionWindow window;
        window.ownSession.alignmentPoints.savedAxisCenter = QPointF(1234.5678, 321.0);
        window.close();
    }
    const SessionWindow window;
    QCOMPARE(QPointF(window.ownSession.alignmentPoints.savedAxisCenter),
             QPointF(double(1234.57F), 321.0));
}

void SettingsTest::unknownStyleIsWrittenBack()
{
    writeIni(settingsFilePath(), {"[STYLE]", "style=mono"});
    SessionWindow window;
    window.close();
    QVERIFY(iniLines(settingsFilePath()).contains("style=mono"));
}

void SettingsTest::toggledStyleIsWrittenBack()
{
    writeIni(settingsFilePath(), {"[STYLE]", "style=mono"});
    SessionWindow window;
    named<QAction>(window, "actionMono_Style").setChecked(true);
    named<QAction>(window, "actionMono_Style").setChecked(false);
    window.close();
    QVERIFY(iniLines(settingsFilePath()).contains("style=Color"));
}

QTEST_MAIN(SettingsTest)
#include "tst_settings.moc"
