// SPDX-License-Identifier: MIT
// Does the language change at once, everywhere, and without touching anything else?
#include "dialogs/languages.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"

#include <QApplication>
#include <QDial>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

// The macros must stand in the global namespace.
static void takeCataloguesAway()
{
    Q_CLEANUP_RESOURCE(languages);
}
static void bringCataloguesBack()
{
    Q_INIT_RESOURCE(languages);
}

namespace
{
QString in(const Language &language, const char *context, const char *text)
{
    QTranslator translator;
    const bool loaded = translator.load(language.catalogue);
    return loaded ? translator.translate(context, text) : QString();
}
} // namespace

class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void goesThroughAllAndBack();
    void keepsTheWizardsStep();
    void keepsShownData();
    void reachesOpenAndHiddenDialogs();
    void choosingTheCheckedLanguageDoesNothing();
    void takesUnknownCodesForEnglish();
    void failedLoadKeepsTheLanguage();
};

void TestLanguageSwitch::goesThroughAllAndBack()
{
    MainWindow window;
    MainWindowProbe probe(window);
    QList<const Language *> way;
    for (const Language &language : languages)
        way.append(&language);
    for (std::size_t i = languages.size(); i-- > 0;)
        way.append(&languages[i]);
    for (const Language *const language : way) {
        window.findChild<QAction *>(language->action)->setChecked(true);
        QCOMPARE(probe.languageCode(), QString(language->code));
        QCOMPARE(window.findChild<QMenu *>("menuFile")->title(),
                 in(*language, "MainWindow", "File"));
        QCOMPARE(window.findChild<QPushButton *>("pushButton_setting_done")->text(),
                 in(*language, "MainWindow", "Setting Finished"));
        int checked = 0;
        for (const Language &each : languages)
            checked += window.findChild<QAction *>(each.action)->isChecked();
        QCOMPARE(checked, 1);
    }
}

void TestLanguageSwitch::keepsTheWizardsStep()
{
    MainWindow window;
    window.show();
    MainWindowProbe probe(window);
    window.findChild<QAbstractButton *>("radioButton_south")->setChecked(true);
    probe.switchStep(9);
    window.findChild<QAction *>("actionGerman")->setChecked(true);
    QCOMPARE(window.step(), 9);
    QCOMPARE(window.findChild<QTabWidget *>("tabWidget_tipMsg")->currentIndex(), 8);
    QVERIFY(window.findChild<QLabel *>("label_getEptPolaris_tipMsg")->text().contains("σ Oct"));
}

void TestLanguageSwitch::keepsShownData()
{
    MainWindow window;
    window.findChild<QLabel *>("label_axisPos")->setText("(1.5,2.5)");
    window.findChild<QLineEdit *>("lineEditExpose")->setText("321");
    QPixmap picture(10, 10);
    picture.fill(Qt::red);
    window.findChild<QLabel *>("label_templateImg")->setPixmap(picture);
    window.setWindowTitle("Quorvandel - ID:QUORVANDEL-1");
    window.findChild<QAction *>("actionRussian")->setChecked(true);
    QCOMPARE(window.findChild<QLabel *>("label_axisPos")->text(), QString("(1.5,2.5)"));
    QCOMPARE(window.findChild<QLineEdit *>("lineEditExpose")->text(), QString("321"));
    QCOMPARE(window.findChild<QLabel *>("label_templateImg")->pixmap(Qt::ReturnByValue).size(),
             QSize(10, 10));
    QCOMPARE(window.windowTitle(), QString("Quorvandel - ID:QUORVANDEL-1"));
}

void TestLanguageSwitch::reachesOpenAndHiddenDialogs()
{
    MainWindow window;
    window.show();
    auto *const pressure = window.findChild<QDoubleSpinBox *>("doubleSpinBox_presure");
    auto *const dial = window.findChild<QDial *>("dial_tracking");
    auto *const refraction = qobject_cast<QDialog *>(pressure->window());
    auto *const tracking = qobject_cast<QDialog *>(dial->window());
    refraction->show();
    pressure->setValue(99.5);
    dial->setValue(77);
    const Language &french = languageOf("FR");
    window.findChild<QAction *>(french.action)->setChecked(true);
    QCOMPARE(refraction->windowTitle(),
             in(french, "AstroRefractionDialog", "Astronomical Refraction"));
    QCOMPARE(tracking->windowTitle(), in(french, "PoleTrackingDialog", "Pole Tracking"));
    QCOMPARE(window.findChild<QLabel *>("label_version")->text(),
             QString("Quorvandel 21.9.17, release on 2021-09-17"));
    QCOMPARE(pressure->value(), 99.5);
    QCOMPARE(dial->value(), 77);
}

void TestLanguageSwitch::choosingTheCheckedLanguageDoesNothing()
{
    MainWindow window;
    window.findChild<QAction *>("actionItalian")->setChecked(true);
    LogRecorder log;
    window.findChild<QAction *>("actionItalian")->trigger();
    QVERIFY(log.lines().isEmpty());
}

void TestLanguageSwitch::takesUnknownCodesForEnglish()
{
    for (const char *const code : {"", "XX", "zh", "de", "EN ", "ENGLISH"})
        QCOMPARE(languageOf(code).code, "EN");
    for (const Language &language : languages)
        QCOMPARE(languageOf(language.code).code, language.code);
}

/// Nothing is installed, retranslated or reported when a catalogue does not load.
void TestLanguageSwitch::failedLoadKeepsTheLanguage()
{
    QTranslator translator;
    QVERIFY(!translator.load(":/languages/lan_xx_xx.qm", "", "", ""));
    MainWindow window;
    window.findChild<QAction *>("actionSpanish")->setChecked(true);
    const QString spanish = window.findChild<QMenu *>("menuFile")->title();
    QVERIFY(spanish != "File");
    LogRecorder log;
    takeCataloguesAway();
    window.findChild<QAction *>("actionKorean")->setChecked(true);
    bringCataloguesBack();
    QCOMPARE(window.findChild<QMenu *>("menuFile")->title(), spanish);
    // What is yet to be shown, a message box say, stays Spanish too.
    QCOMPARE(QCoreApplication::translate("MainWindow", "File"), spanish);
    QCOMPARE(log.lines().size(), 1);
    QCOMPARE(log.lines().first().text, QString("current language \"KO\""));
}

QTEST_MAIN(TestLanguageSwitch)
#include "tst_languageswitch.moc"
