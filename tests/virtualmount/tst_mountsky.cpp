// SPDX-License-Identifier: MIT
// Do the controls for the site, the time, the weather and the camera's faults work as labelled, by
// mouse and by keyboard?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/virtualmount/mountwindowtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QSlider>
#include <cmath>

using virtualsky::SkyState;

Q_DECLARE_METATYPE(double SkyState::*)

namespace
{
/// The state's text without one key.
QString without(const SkyState &state, const QString &key)
{
    QStringList lines = QString::fromStdString(virtualsky::format(state)).split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [&](const QString &line) { return line.startsWith(key + " ="); }),
                lines.end());
    return lines.join('\n');
}
} // namespace

class MountSkyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void switches_data();
    void switches();
    void sliders_data();
    void sliders();
    void coordinates_data();
    void coordinates();
    void times();
    void theDateRunsUnderTheFocus();
    void aDateBeingTypedStays();
    void passingClouds();
    void closingEndsThePassing();
};

void MountSkyTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountSkyTest::switches_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<Qt::Key>("mnemonic");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("off");
    QTest::newRow("refraction") << "refraction" << Qt::Key_F << "refraction"
                                << "true"
                                << "false";
    QTest::newRow("camera unplugged") << "unplugged" << Qt::Key_U << "unplugged"
                                      << "true"
                                      << "false";
    QTest::newRow("slow USB") << "slow" << Qt::Key_W << "slow"
                              << "2"
                              << "0";
}

void MountSkyTest::switches()
{
    QFETCH(QString, box);
    QFETCH(Qt::Key, mnemonic);
    QFETCH(QString, key);
    QFETCH(QString, on);
    QFETCH(QString, off);
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    const auto line = [&](const QString &value) { return '\n' + key + " = " + value + '\n'; };
    clickOn(shown.window, box);
    QVERIFY(QString(file.text()).contains(line(on)));
    QCOMPARE(without(file.state(), key), without(SkyState(), key));
    pressMnemonic(mnemonic);
    QVERIFY(QString(file.text()).contains(line(off)));
    file.writeText(file.text().replace(line(off).toUtf8(), line(on).toUtf8()));
    QTRY_VERIFY(named<QCheckBox>(shown.window, box).isChecked());
}

void MountSkyTest::sliders_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<Qt::Key>("mnemonic");
    QTest::addColumn<double SkyState::*>("member");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("most");
    QTest::newRow("clouds") << "clouds" << Qt::Key_C << &SkyState::clouds << 0.0 << 0.01 << 1.0;
    QTest::newRow("moon") << "moon" << Qt::Key_M << &SkyState::moon << 0.0 << 0.01 << 1.0;
    QTest::newRow("seeing") << "seeing" << Qt::Key_S << &SkyState::seeing << 3.0 << 1.0 << 120.0;
}

void MountSkyTest::sliders()
{
    QFETCH(QString, slider);
    QFETCH(Qt::Key, mnemonic);
    QFETCH(double SkyState::*, member);
    QFETCH(double, first);
    QFETCH(double, step);
    QFETCH(double, most);
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    press(mnemonic, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), &named<QWidget>(shown.window, slider));
    press(Qt::Key_Right);
    QVERIFY(near(file.state().*member, first + step, 1e-12));
    QCOMPARE(without(file.state(), slider), without(SkyState(), slider));
    press(Qt::Key_End);
    QCOMPARE(file.state().*member, most);
    press(Qt::Key_Home);
    QCOMPARE(file.state().*member, 0.0);
}

void MountSkyTest::coordinates_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<Qt::Key>("mnemonic");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Qt::Key>("side"); // pressed in the choice of sides
    QTest::addColumn<double SkyState::*>("member");
    QTest::addColumn<double>("expected");
    const auto latitude = &SkyState::latitude;
    const auto longitude = &SkyState::longitude;
    QTest::newRow("north") << "latitude" << Qt::Key_L << "52.5" << Qt::Key_N << latitude << 52.5;
    QTest::newRow("south") << "latitude" << Qt::Key_L << "33.925" << Qt::Key_S << latitude
                           << -33.925;
    QTest::newRow("equator") << "latitude" << Qt::Key_L << "0" << Qt::Key_S << latitude << 0.0;
    QTest::newRow("east") << "longitude" << Qt::Key_O << "18.4" << Qt::Key_E << longitude << 18.4;
    QTest::newRow("west") << "longitude" << Qt::Key_O << "180" << Qt::Key_W << longitude << -180.0;
}

void MountSkyTest::coordinates()
{
    QFETCH(QString, box);
    QFETCH(Qt::Key, mnemonic);
    QFETCH(QString, typed);
    QFETCH(Qt::Key, side);
    QFETCH(double SkyState::*, member);
    QFETCH(double, expected);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 5\n");
    const ShownWindow shown(file.path());
    press(mnemonic, Qt::AltModifier);
    auto &field = named<QDoubleSpinBox>(shown.window, box);
    QCOMPARE(QApplication::focusWidget(), &field);
    field.selectAll();
    QTest::keyClicks(&field, typed);
    QCOMPARE(file.text(), QByteArray("[mount]\nra_angle = 5\n")); // not while it is being typed
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &named<QWidget>(shown.window, box + "Side"));
    press(side);
    const SkyState state = file.state();
    QCOMPARE(state.*member, expected);
    QVERIFY(!std::signbit(state.*member) || expected < 0.0);
    QCOMPARE(without(state, box), without(virtualsky::parse("[mount]\nra_angle = 5\n"), box));
}

void MountSkyTest::times()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &mode = named<QComboBox>(shown.window, "timeMode");
    auto &date = named<QDateTimeEdit>(shown.window, "date");
    QVERIFY(!date.isEnabled());
    QVERIFY(std::abs(date.dateTime().secsTo(QDateTime::currentDateTimeUtc())) <= 2);

    press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), &mode);
    press(Qt::Key_F); // Fixed at
    SkyState state = file.state();
    QVERIFY(state.date && !state.running);
    QVERIFY(near(*state.date, double(QDateTime::currentSecsSinceEpoch()), 3.0));

    QVERIFY(date.isEnabled());
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(&date, "2030");
    press(Qt::Key_Return);
    state = file.state();
    QVERIFY(state.date && !state.running);
    const QDateTime given = QDateTime::fromSecsSinceEpoch(qint64(*state.date), Qt::UTC);
    QCOMPARE(given.date().year(), 2030);
    QCOMPARE(given, date.dateTime());

    press(Qt::Key_D, Qt::AltModifier);
    press(Qt::Key_Up); // Runs from
    state = file.state();
    QVERIFY(state.date && state.running);
    QVERIFY(near(*state.date, double(given.toSecsSinceEpoch()), 0.0));
    QTRY_VERIFY(date.dateTime() > given);

    press(Qt::Key_Down);
    press(Qt::Key_Up);
    clickOn(shown.window, "tracking");
    const QByteArray text = file.text();
    emit mode.activated(mode.currentIndex()); // choosing the same entry again changes nothing
    QCOMPARE(file.text(), text);
    press(Qt::Key_D, Qt::AltModifier);
    press(Qt::Key_Up); // Now
    QVERIFY(!file.state().date);
    QVERIFY(!date.isEnabled());
}

void MountSkyTest::theDateRunsUnderTheFocus()
{
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\n");
    const ShownWindow shown(file.path());
    auto &date = named<QDateTimeEdit>(shown.window, "date");
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::DaySection);
    const QDateTime first = date.dateTime();
    QTRY_VERIFY(date.dateTime() > first);
    QCOMPARE(date.currentSection(), QDateTimeEdit::DaySection);
    // What others write is shown too.
    file.writeText("[time]\ndate = 2029-01-01T00:00:00Z\nrunning = false\n");
    QTRY_COMPARE(date.dateTime().date().year(), 2029);
    QVERIFY(date.hasFocus());
}

void MountSkyTest::aDateBeingTypedStays()
{
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\n");
    const ShownWindow shown(file.path());
    auto &date = named<QDateTimeEdit>(shown.window, "date");
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(&date, "20");
    QTest::qWait(1500); // the clock keeps running meanwhile
    QTest::keyClicks(&date, "31");
    QTest::qWait(1500);
    QCOMPARE(file.text(), QByteArray("[time]\ndate = 2026-11-20T20:00:00Z\n"));
    press(Qt::Key_Return);
    QVERIFY(file.text().startsWith("[time]\ndate = 2031-11-20T20:00:0"));
    const QDateTime typed = date.dateTime();
    QTRY_VERIFY(date.dateTime() > typed); // and runs from there
}

void MountSkyTest::passingClouds()
{
    const SkyFileFixture file;
    file.writeText("[weather]\nclouds = 0.35\n");
    const ShownWindow shown(file.path());
    auto &slider = named<QSlider>(shown.window, "clouds");
    pressMnemonic(Qt::Key_P);
    QVERIFY(!slider.isEnabled());
    QTRY_VERIFY(file.state().clouds < 0.2); // a clear sky at first
    QTRY_VERIFY(file.state().clouds > 0.2);
    QVERIFY(slider.value() >= 20);
    clickOn(shown.window, "passing");
    QCOMPARE(file.state().clouds, 0.35);
    QVERIFY(slider.isEnabled());
    QTest::qWait(200);
    QCOMPARE(file.text(), QByteArray("[weather]\nclouds = 0.35\n"));
}

void MountSkyTest::closingEndsThePassing()
{
    const SkyFileFixture file;
    file.writeText("[weather]\nclouds = 0.35\n");
    ShownWindow shown(file.path());
    clickOn(shown.window, "passing");
    QTRY_VERIFY(file.state().clouds < 0.2);
    shown.window.close();
    QCOMPARE(file.state().clouds, 0.35);
}

QTEST_MAIN(MountSkyTest)
#include "tst_mountsky.moc"
