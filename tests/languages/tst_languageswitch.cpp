// SPDX-License-Identifier: MIT
// Does the language change at once, everywhere, and without touching anything else?
#include "core/languages.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDial>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

// The macros must be used in the global namespace.
static void takeCataloguesAway()
{
    Q_CLEANUP_RESOURCE(lan_catalogues);
}
static void bringCataloguesBack()
{
    Q_INIT_RESOURCE(lan_catalogues);
}

namespace
{
QString in(const Language &language, const char *context, const char *text)
{
    QTranslator translator;
    const bool loaded = translator.load(cataloguePath("lan", language));
    return loaded ? translator.translate(context, text) : QString();
}

/// The settings file of a test that needs one.
class LanguageSetting
{
public:
    explicit LanguageSetting(const QByteArray &code) : file(settingsFilePath())
    {
        if (!file.open(QIODevice::WriteOnly) || file.write("[LANGUAGE]\nlang=" + code + '\n') < 0)
            qFatal("the settings file cannot be written");
        file.close();
    }
    ~LanguageSetting() { file.remove(); }

private:
    QFile file;
};
} // namespace

class LanguageSwitchTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void goesThroughAllAndBack();
    void keepsTheWizardsStep();
    void keepsShownData();
    void reachesOpenAndHiddenDialogs();
    void dialogTexts_data();
    void dialogTexts();
    void isToldOnce_data();
    void isToldOnce();
    void isToldAtStart_data();
    void isToldAtStart();
    void choosingTheCheckedLanguageDoesNothing();
    void takesUnknownCodesForEnglish();
    void failedLoadKeepsTheLanguage();
};

void LanguageSwitchTest::goesThroughAllAndBack()
{
    SessionWindow window;
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

void LanguageSwitchTest::keepsTheWizardsStep()
{
    SessionWindow window;
    window.show();
    MainWindowProbe probe(window);
    window.findChild<QAbstractButton *>("radioButton_south")->setChecked(true);
    probe.switchStep(9);
    window.findChild<QAction *>("actionGerman")->setChecked(true);
    QCOMPARE(window.step(), 9);
    QCOMPARE(window.findChild<QTabWidget *>("tabWidget_tipMsg")->currentIndex(), 8);
    QVERIFY(window.findChild<QLabel *>("label_getEptPolaris_tipMsg")->text().contains("σ Oct"));
}

void LanguageSwitchTest::keepsShownData()
{
    SessionWindow window;
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

void LanguageSwitchTest::reachesOpenAndHiddenDialogs()
{
    SessionWindow window;
    window.show();
    auto *const pressure = window.findChild<QDoubleSpinBox *>("doubleSpinBox_presure");
    auto *const dial = window.findChild<QDial *>("dial_tracking");
    auto *const refraction = qobject_cast<QDialog *>(pressure->window());
    auto *const tracking = qobject_cast<QDialog *>(dial->window());
    auto *const unit = window.findChild<QComboBox *>("comboBox_presure");
    const QList<QCheckBox *> checked{window.findChild<QCheckBox *>("checkBox_enableAstroRef"),
                                     window.findChild<QCheckBox *>("cBox_playMusic")};
    refraction->show();
    unit->setCurrentIndex(1);
    pressure->setValue(1013.5);
    dial->setValue(77);
    for (QCheckBox *const box : checked)
        box->setChecked(true);
    const Language &french = languageOf("FR");
    window.findChild<QAction *>(french.action)->setChecked(true);
    QCOMPARE(refraction->windowTitle(),
             in(french, "AstroRefractionDialog", "Astronomical Refraction"));
    QCOMPARE(tracking->windowTitle(), in(french, "PoleTrackingDialog", "Pole Tracking"));
    QCOMPARE(window.findChild<QLabel *>("label_version")->text(),
             QString("Quorvandel 21.9.17, release on 2021-09-17"));
    QCOMPARE(unit->currentIndex(), 1);
    QCOMPARE(pressure->value(), 1013.5);
    QCOMPARE(dial->value(), 77);
    for (const QCheckBox *const box : checked)
        QVERIFY2(box->isChecked(), qPrintable(box->objectName()));
}

void LanguageSwitchTest::dialogTexts_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("widget"); ///< empty = the dialog's own title
    QTest::addColumn<QString>("source");
    const struct {
        const char *dialog, *widget, *source;
    } rows[] = {
        {"AboutDialog", "", "About"},
        {"AboutDialog", "label_copyright", "© 2021 Quorvandel. All rights reserved."},
        {"AboutDialog", "label_thanksMsg", "English translation by the makers of Quorvandel."},
        {"FavoriteDialog", "", "Favorite"},
        {"FavoriteDialog", "cBox_playMusic", "Play Music"},
        {"AstroRefractionDialog", "", "Astronomical Refraction"},
        {"AstroRefractionDialog", "checkBox_enableAstroRef",
         "Enable Astronomical Refraction Correction"},
        {"PoleTrackingDialog", "", "Pole Tracking"},
        {"PoleTrackingDialog", "label_tracking", "Tracking:"},
        {"PoleTrackingDialog", "pushButton_reset", "Reset"},
        {"PoleTrackingDialog", "label_info",
         "If the Pole was lost after used GOTO in the astrograph, then you can this to track."},
    };
    for (const auto &row : rows)
        QTest::addRow("%s %s", row.dialog, row.widget)
            << row.dialog << row.widget << QString::fromUtf8(row.source);
}

/// To French and back to English; the dialog has not been shown.
void LanguageSwitchTest::dialogTexts()
{
    QFETCH(QString, dialog);
    QFETCH(QString, widget);
    QFETCH(QString, source);
    SessionWindow window;
    const auto text = [&] {
        for (const auto *const each : window.findChildren<QDialog *>())
            if (each->metaObject()->className() == dialog)
                return widget.isEmpty()
                           ? each->windowTitle()
                           : each->findChild<QWidget *>(widget)->property("text").toString();
        return QString();
    };
    QCOMPARE(text(), source);
    const Language &french = languageOf("FR");
    const QString expected = in(french, qPrintable(dialog), source.toUtf8());
    QVERIFY(!expected.isEmpty() && expected != source);
    window.findChild<QAction *>(french.action)->trigger();
    QTRY_COMPARE(text(), expected); // the toolkit updates some texts by an event
    window.findChild<QAction *>("actionEnglish")->trigger();
    QTRY_COMPARE(text(), source);
}

void LanguageSwitchTest::isToldOnce_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    for (std::size_t i = 0; i < languages.size(); ++i) {
        const Language &from = languages[i], &to = languages[(i + 1) % languages.size()];
        QTest::addRow("%s to %s", from.code, to.code) << from.action << to.action;
    }
}

void LanguageSwitchTest::isToldOnce()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    SessionWindow window;
    window.findChild<QAction *>(from)->setChecked(true);
    const QSignalSpy changes(&window, SIGNAL(changeLanguage()));
    const QSignalSpy resets(&window, SIGNAL(resetUI()));
    const LogRecorder log;
    window.findChild<QAction *>(to)->trigger();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(resets.count(), 1);
    QCOMPARE(log.texts(QtDebugMsg).filter("current language").size(), 1);
}

void LanguageSwitchTest::isToldAtStart_data()
{
    QTest::addColumn<int>("times");
    for (const Language &language : languages)
        QTest::newRow(language.code) << (&language == &languages.front() ? 1 : 2);
    QTest::newRow("XX") << 1; // English is in use
}

/// The start reports the language by itself; checking an action other than English, which is
/// checked initially, reports it once more.
void LanguageSwitchTest::isToldAtStart()
{
    QFETCH(int, times);
    const QByteArray code = QTest::currentDataTag();
    const LanguageSetting setting(code);
    const LogRecorder log;
    SessionWindow window;
    const QStringList told = log.texts(QtDebugMsg).filter("current language");
    QCOMPARE(told.size(), times);
    QCOMPARE(told.count("current language \"" + code + '"'), times);
    QCOMPARE(window.findChild<QMenu *>("menuFile")->title(),
             in(languageOf(code), "MainWindow", "File"));
}

void LanguageSwitchTest::choosingTheCheckedLanguageDoesNothing()
{
    SessionWindow window;
    window.findChild<QAction *>("actionItalian")->setChecked(true);
    LogRecorder log;
    window.findChild<QAction *>("actionItalian")->trigger();
    QVERIFY(log.lines().isEmpty());
}

void LanguageSwitchTest::takesUnknownCodesForEnglish()
{
    for (const char *const code : {"", "XX", "zh", "de", "EN ", "ENGLISH"})
        QCOMPARE(languageOf(code).code, "EN");
    for (const Language &language : languages)
        QCOMPARE(languageOf(language.code).code, language.code);
}

/// Nothing is installed, retranslated or reported when a catalogue does not load.
void LanguageSwitchTest::failedLoadKeepsTheLanguage()
{
    QTranslator translator;
    QVERIFY(!translator.load(":/languages/lan_xx_xx.qm", "", "", ""));
    SessionWindow window;
    window.findChild<QAction *>("actionSpanish")->setChecked(true);
    const QString spanish = window.findChild<QMenu *>("menuFile")->title();
    QVERIFY(spanish != "File");
    LogRecorder log;
    takeCataloguesAway();
    window.findChild<QAction *>("actionKorean")->setChecked(true);
    bringCataloguesBack();
    QCOMPARE(window.findChild<QMenu *>("menuFile")->title(), spanish);
    // Texts that are shown later, for example in a message box, stay Spanish too.
    QCOMPARE(QCoreApplication::translate("MainWindow", "File"), spanish);
    QCOMPARE(log.lines().size(), 1);
    QCOMPARE(log.lines().first().text, QString("current language \"KO\""));
}

QTEST_MAIN(LanguageSwitchTest)
#include "tst_languageswitch.moc"
