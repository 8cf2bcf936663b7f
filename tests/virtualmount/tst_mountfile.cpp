// SPDX-License-Identifier: MIT
// Does the virtual mount's window cope with another one, with an editor and with a broken file?
#include "tests/virtualmount/mountwindowtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QSlider>
#include <atomic>
#include <cmath>
#include <thread>

using virtualsky::SkyState;

class MountFileTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatIsThere();
    void looksWithoutWriting();
    void twoWindowsShowTheSame();
    void twoWindowsTurnAtOnce();
    void anEditorBesideIt();
    void anEditorThatRenames();
    void whatIsBeingTypedStays();
    void aMalformedFileIsKept();
    void replaceIt();
    void aFaultStopsTheAxis();
    void aFolderThatComesLater();
    void anUnwritablePlaceIsTold();
    void readersNeverSeeAPart();
};

void MountFileTest::showsWhatIsThere()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = -33.9\nlongitude = -18.4\n[mount]\nra_angle = 35\n"
                   "tracking = false\n[weather]\nclouds = 0.3\nmoon = 0.5\nrefraction = true\n"
                   "[sensor]\nseeing = 12\n[faults]\nunplugged = true\nslow = 5\n");
    const QByteArray text = file.text();
    const ShownWindow shown(file.path());
    const virtualmount::MountWindow &window = shown.window;
    QCOMPARE(named<QDoubleSpinBox>(window, "latitude").value(), 33.9);
    QCOMPARE(named<QComboBox>(window, "latitudeSide").currentText(), QString("South"));
    QCOMPARE(named<QDoubleSpinBox>(window, "longitude").value(), 18.4);
    QCOMPARE(named<QComboBox>(window, "longitudeSide").currentText(), QString("West"));
    QCOMPARE(named<QDial>(window, "dial").value(), 35);
    QCOMPARE(textOf(window, "angle"), QString("+35.0°"));
    QCOMPARE(named<QSlider>(window, "clouds").value(), 30);
    QCOMPARE(named<QSlider>(window, "moon").value(), 50);
    QCOMPARE(named<QSlider>(window, "seeing").value(), 12);
    for (const char *box : {"refraction", "unplugged", "slow"})
        QVERIFY2(named<QCheckBox>(window, box).isChecked(), box);
    QVERIFY(!named<QCheckBox>(window, "tracking").isChecked());
    QCOMPARE(file.text(), text);
}

void MountFileTest::looksWithoutWriting()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QTest::qWait(700);
    QVERIFY(!QFile::exists(file.path()));
    QVERIFY(!named<QAbstractButton>(shown.window, "replace").isVisible());
}

void MountFileTest::twoWindowsShowTheSame()
{
    const SkyFileFixture file;
    const ShownWindow first(file.path());
    const ShownWindow second(file.path());
    clickOn(first.window, "altitudeUp");
    clickOn(second.window, "azimuthWest");
    clickOn(first.window, "refraction");
    SkyState expected;
    expected.boltAltitude = 0.6833333;
    expected.boltAzimuth = -1.0833333;
    expected.refraction = true;
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(expected));
    for (const ShownWindow *shown : {&first, &second}) {
        QTRY_COMPARE(textOf(shown->window, "altitudeCount"), QString("0.25 up"));
        QTRY_COMPARE(textOf(shown->window, "azimuthCount"), QString("0.25 west"));
        QTRY_VERIFY(named<QCheckBox>(shown->window, "refraction").isChecked());
    }
}

void MountFileTest::twoWindowsTurnAtOnce()
{
    const SkyFileFixture file;
    const ShownWindow first(file.path());
    const ShownWindow second(file.path());
    clickOn(first.window, "turn30");
    clickOn(second.window, "turn-15");
    clickOn(second.window, "passing");
    for (int i = 0; i < 3; ++i) {
        QTest::qWait(100);
        clickOn(second.window, "azimuthEastFine");
    }
    QTest::qWait(1800);
    clickOn(second.window, "passing");
    QTRY_VERIFY(std::abs(file.state().raAngle - 15.0) <= 1e-6);
    SkyState expected;
    expected.raAngle = file.state().raAngle;
    expected.boltAzimuth = file.state().boltAzimuth;
    QVERIFY(std::abs(expected.boltAzimuth - (-1.0 + 60.0 / 3600.0)) <= 2e-7);
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(expected));
}

void MountFileTest::anEditorBesideIt()
{
    const SkyFileFixture file;
    file.writeText("# practice\n[weather]\nmoon = 0.25\n");
    const ShownWindow shown(file.path());
    clickOn(shown.window, "turn45");
    QTRY_VERIFY(file.state().raAngle > 3.0);
    QByteArray edited = file.text().replace("moon = 0.25", "moon = 0.75 # rises");
    file.writeText(edited + "[faults]\nslow = 1\n");
    QTRY_VERIFY(std::abs(file.state().raAngle - 45.0) <= 1e-6);
    QTRY_COMPARE(named<QSlider>(shown.window, "moon").value(), 75);
    QVERIFY(named<QCheckBox>(shown.window, "slow").isChecked());
    QVERIFY(file.text().startsWith("# practice\n[weather]\nmoon = 0.75 # rises\n"));
}

void MountFileTest::anEditorThatRenames()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    for (const int degrees : {10, 20, 30}) {
        const std::string text = "[mount]\nra_angle = " + std::to_string(degrees) + "\n";
        QVERIFY(virtualsky::writeAtomically(file.path().toStdString(), text));
        QTRY_COMPARE(named<QDial>(shown.window, "dial").value(), degrees);
    }
    QVERIFY(QFile::remove(file.path()));
    QTRY_COMPARE(named<QDial>(shown.window, "dial").value(), 0);
}

void MountFileTest::whatIsBeingTypedStays()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &field = named<QDoubleSpinBox>(shown.window, "latitude");
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, "5");
    file.writeText("[weather]\nmoon = 0.5\n");
    QTRY_COMPARE(named<QSlider>(shown.window, "moon").value(), 50);
    QTest::keyClicks(&field, "2");
    press(Qt::Key_Return);
    QCOMPARE(file.text(), QByteArray("[weather]\nmoon = 0.5\n[site]\nlatitude = 52\n"));
}

void MountFileTest::aMalformedFileIsKept()
{
    const SkyFileFixture file;
    file.writeText("[weather]\nmoon = 0.5\n");
    const ShownWindow shown(file.path());
    const QByteArray broken = "[weather]\nmoon = 0.5\nclouds = thick\n";
    file.writeText(broken);
    QTRY_VERIFY(textOf(shown.window, "status").contains("line 3: clouds: must be a number"));
    QVERIFY(named<QAbstractButton>(shown.window, "replace").isVisible());
    for (const char *button : {"altitudeUp", "azimuthEastFine", "turn30", "home", "refraction",
                               "unplugged", "tracking", "passing", "passing", "reset"})
        clickOn(shown.window, button);
    QTest::qWait(300);
    QCOMPARE(file.text(), broken);
    // What could not be written is not shown either.
    QVERIFY(!named<QCheckBox>(shown.window, "refraction").isChecked());
    QVERIFY(!named<QCheckBox>(shown.window, "tracking").isChecked());
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(named<QSlider>(shown.window, "moon").value(), 50);

    file.writeText("[weather]\nmoon = 0.5\nclouds = 0.25\n");
    QTRY_VERIFY(!named<QAbstractButton>(shown.window, "replace").isVisible());
    QVERIFY(!textOf(shown.window, "status").contains("Fault"));
    QCOMPARE(named<QSlider>(shown.window, "clouds").value(), 25);
    clickOn(shown.window, "refraction");
    QCOMPARE(file.text(), QByteArray("[weather]\nmoon = 0.5\nclouds = 0.25\nrefraction = true\n"));
}

void MountFileTest::replaceIt()
{
    const SkyFileFixture file;
    file.writeText("[weather]\nmoon = 0.5\n");
    const ShownWindow shown(file.path());
    file.writeText("[nowhere]\n");
    auto &button = named<QAbstractButton>(shown.window, "replace");
    QTRY_VERIFY(button.isVisible());
    pressMnemonic(Qt::Key_I);
    SkyState expected;
    expected.moon = 0.5;
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(expected));
    QVERIFY(!button.isVisible());
    QVERIFY(QApplication::focusWidget() && QApplication::focusWidget()->isVisible());
    press(Qt::Key_Up);
    QVERIFY(file.state().boltAltitude > 0.65);
}

void MountFileTest::aFaultStopsTheAxis()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    clickOn(shown.window, "turn45");
    QTRY_VERIFY(!file.text().isEmpty() && file.state().raAngle > 3.0);
    file.writeText("broken\n");
    QTRY_VERIFY(named<QAbstractButton>(shown.window, "replace").isVisible());
    QTest::qWait(300);
    QCOMPARE(file.text(), QByteArray("broken\n"));
    file.writeText("[mount]\nra_angle = 1\n");
    QTRY_COMPARE(textOf(shown.window, "angle"), QString("+1.0°"));
    QTest::qWait(700);
    QCOMPARE(file.text(), QByteArray("[mount]\nra_angle = 1\n"));
    QCOMPARE(textOf(shown.window, "angle"), QString("+1.0°"));
}

void MountFileTest::aFolderThatComesLater()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("not/yet/there/sky.ini");
    const ShownWindow shown(path);
    clickOn(shown.window, "altitudeDown");
    QVERIFY(QFile::exists(path));
    const QStringList files = QFileInfo(path).dir().entryList(QDir::Files);
    QCOMPARE(files, QStringList{"sky.ini"});
}

void MountFileTest::anUnwritablePlaceIsTold()
{
    const SkyFileFixture file;
    file.writeText("[site]\n");
    const ShownWindow shown(file.path() + "/sky.ini"); // a file is not a folder
    clickOn(shown.window, "altitudeDown");
    QVERIFY(textOf(shown.window, "status").contains("cannot be written: Not a directory"));
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QVERIFY(!named<QAbstractButton>(shown.window, "replace").isVisible());
}

void MountFileTest::readersNeverSeeAPart()
{
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 0\n");
    const ShownWindow shown(file.path());
    std::atomic<bool> done{false};
    QString fault; // written by the reader, read after its end
    int different = 0;
    std::thread reader([&] {
        double last = 0.0;
        while (!done && fault.isEmpty()) {
            try {
                const double angle = virtualsky::parse(file.text().toStdString()).raAngle;
                different += angle != last;
                last = angle;
            } catch (const virtualsky::SkyFileError &error) {
                fault = error.what();
            }
        }
    });
    clickOn(shown.window, "turn45");
    const bool arrives = comesTrue([&] { return textOf(shown.window, "angle") == "+45.0°"; });
    done = true;
    reader.join();
    QVERIFY(arrives);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    QVERIFY2(different >= 5, qPrintable(QString::number(different)));
    QTRY_COMPARE(file.state().raAngle, 45.0);
}

QTEST_MAIN(MountFileTest)
#include "tst_mountfile.moc"
