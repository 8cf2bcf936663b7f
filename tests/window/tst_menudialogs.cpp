// SPDX-License-Identifier: MIT
// Do the menu's entries open the dialogs, and what does the refraction dialog then show?
#include "tests/window/camerawindow.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QtTest>

namespace
{
/// The classes of the visible dialogs.
QStringList shownDialogs(const CameraWindow &w)
{
    QStringList names;
    for (const auto *const dialog : w.window->findChildren<QDialog *>())
        if (dialog->isVisible())
            names.append(dialog->metaObject()->className());
    return names;
}

void closeDialogs(const CameraWindow &w)
{
    for (auto *const dialog : w.window->findChildren<QDialog *>())
        dialog->close();
}
} // namespace

class MenuDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void shown_data();
    void shown();
    void keysNeedACamera_data();
    void keysNeedACamera();
    void refractionAsLoaded_data();
    void refractionAsLoaded();
};

void MenuDialogsTest::shown_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("AstroRefractionDialog") << "actionAstronomical_Refraction";
    QTest::newRow("PoleTrackingDialog") << "actionManual_Trace";
    QTest::newRow("AboutDialog") << "actionAbout";
}

/// Shown beside the window, which stays usable; shown again after it was closed.
void MenuDialogsTest::shown()
{
    QFETCH(QString, action);
    const CameraWindow w;
    w.connectCamera();
    auto &entry = w.child<QAction>(qPrintable(action));
    QVERIFY(entry.isEnabled() && entry.isVisible());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(shownDialogs(w), QStringList());
        entry.trigger();
        QCOMPARE(shownDialogs(w), QStringList(QTest::currentDataTag()));
        QVERIFY(!QApplication::activeModalWidget());
        closeDialogs(w);
    }
}

void MenuDialogsTest::keysNeedACamera_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("action");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("refraction") << "AstroRefractionDialog"
                                << "actionAstronomical_Refraction" << Qt::Key_R;
    QTest::newRow("tracking") << "PoleTrackingDialog"
                              << "actionManual_Trace" << Qt::Key_T;
}

void MenuDialogsTest::keysNeedACamera()
{
    QFETCH(QString, dialog);
    QFETCH(QString, action);
    QFETCH(Qt::Key, key);
    const CameraWindow w;
    const auto press = [&] {
        w.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        QTest::keyClick(w.window->windowHandle(), key, Qt::ControlModifier);
    };
    press();
    QCOMPARE(shownDialogs(w), QStringList());
    w.connectCamera();
    press();
    QTRY_COMPARE(shownDialogs(w), QStringList(dialog));
    closeDialogs(w);
    w.trigger("actionConnect");
    QVERIFY(!w.child<QAction>(qPrintable(action)).isEnabled());
    press();
    QCOMPARE(shownDialogs(w), QStringList());
}

void MenuDialogsTest::refractionAsLoaded_data()
{
    QTest::addColumn<QByteArray>("keys");     ///< of the settings file
    QTest::addColumn<QList<double>>("shown"); ///< latitude, longitude, pressure, temperature
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("unit"); ///< 0 = kPa, 1 = hPa
    using Values = QList<double>;
    QTest::newRow("no file") << QByteArray() << Values{39.9, 116.3, 101, 10} << false << 0;
    QTest::newRow("kPa") << QByteArray("latitude=51.25\nlongitude=12.5\nP=95.5\nT=-5\n"
                                       "enabledCorrect=true\nP_unit=kPa\n")
                         << Values{51.25, 12.5, 95.5, -5} << true << 0;
    QTest::newRow("hPa, the stored pressure is lost")
        << QByteArray("P=1013\nP_unit=hPa\n") << Values{39.9, 116.3, 1010, 10} << false << 1;
    QTest::newRow("beyond the ranges") << QByteArray("latitude=-33\nlongitude=-75\nP=500\nT=500\n")
                                       << Values{0, 0, 110, 200} << false << 0;
}

void MenuDialogsTest::refractionAsLoaded()
{
    QFETCH(QByteArray, keys);
    QFETCH(QList<double>, shown);
    QFETCH(bool, enabled);
    QFETCH(int, unit);
    const CameraWindow w(keys.isEmpty() ? keys : "[ASTRONOMICAL_REFRACTION]\n" + keys);
    w.connectCamera();
    w.trigger("actionAstronomical_Refraction");
    QCOMPARE(shownDialogs(w), QStringList("AstroRefractionDialog"));
    const char *const names[] = {"doubleSpinBox_latitude", "doubleSpinBox_longitude",
                                 "doubleSpinBox_presure", "doubleSpinBox_temperature"};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(w.child<QDoubleSpinBox>(names[i]).value(), shown[i]);
    QCOMPARE(w.child<QCheckBox>("checkBox_enableAstroRef").isChecked(), enabled);
    QCOMPARE(w.child<QComboBox>("comboBox_presure").currentIndex(), unit);
    // The shown values are in effect.
    QCOMPARE(float(w.session().refraction.latitude), float(shown[0]));
    QCOMPARE(float(w.session().refraction.longitude), float(shown[1]));
    QCOMPARE(float(w.session().refraction.P), float(shown[2]));
    QCOMPARE(float(w.session().refraction.T), float(shown[3]));
    QCOMPARE(bool(w.session().refraction.enabledCorrect), enabled);
}

QTEST_MAIN(MenuDialogsTest)
#include "tst_menudialogs.moc"
