// SPDX-License-Identifier: MIT
// Which signals and slots do the window and its dialogs have, and in which order?
#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/poletrackingdialog.h"
#include "mainwindow/mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QMetaMethod>
#include <QtTest>

class MetaObjectTest : public QObject
{
    Q_OBJECT

private slots:
    void methods_data();
    void methods();
    void base_data();
    void base();
};

const QStringList windowMethods{
    "signal initAstroRefraction()",
    "signal changeLanguage()",
    "signal resetUI()",
    "slot on_pushButton_head_region_toggled(bool)",
    "slot on_pushButton_head_setting_toggled(bool)",
    "slot on_pushButton_head_confirm_toggled(bool)",
    "slot on_pushButton_head_rough_toggled(bool)",
    "slot on_pushButton_head_precise_toggled(bool)",
    "slot pushbuttonSettingDoneClicked()",
    "slot pushbuttonConfirmDoneClicked()",
    "slot pushbuttonRotateStar1ResetClicked()",
    "slot pushbuttonRotateStar1DoneClicked()",
    "slot pushbuttonGetStar2ResetClicked()",
    "slot pushbuttonRotateStar2ResetClicked()",
    "slot pushbuttonRotateStar2DoneClicked()",
    "slot pushbuttonGetStar3ResetClicked()",
    "slot pushbuttonValidateCenterResetClicked()",
    "slot pushbuttonValidateCenterDoneClicked()",
    "slot pushbuttonGetEptPolarisDoneClicked()",
    "slot pushbuttonMovePolarisDoneClicked()",
    "slot pushbuttonGetCurPolarisDoneClicked()",
    "slot pushbuttonFinetunePoleResetClicked()",
    "slot pushbuttonFinetunePoleDoneClicked()",
    "slot showImages()",
    "slot increaseAngleTimeout()",
    "slot graphicsEffectTimeout()",
    "slot updateFPS()",
    "slot poleTracking(double)",
    "slot languageChanged()",
    "slot uiReset()",
    "slot on_radioButton_north_toggled(bool)",
    "slot on_radioButton_south_toggled(bool)",
    "slot on_horizontalSlider_confirm_match_valueChanged(int)",
    "slot on_pushButton_confirm_minus_clicked()",
    "slot on_pushButton_confirm_add_clicked()",
    "slot on_horizontalSlider_rough_match_valueChanged(int)",
    "slot on_pushButton_rough_minus_clicked()",
    "slot on_pushButton_rough_add_clicked()",
    "slot on_pushButton_monitor_clicked()",
    "slot on_actionSave_As_triggered()",
    "slot on_actionExit_triggered()",
    "slot on_actionConnect_triggered()",
    "slot on_actionDisplay_Template_toggled(bool)",
    "slot on_actionMono_Style_toggled(bool)",
    "slot on_actionStretch_toggled(bool)",
    "slot on_actionAstronomical_Refraction_triggered()",
    "slot on_actionManual_Trace_triggered()",
    "slot on_action100_toggled(bool)",
    "slot on_action75_toggled(bool)",
    "slot on_action50_toggled(bool)",
    "slot on_actionQuorvandel_Manual_triggered()",
    "slot on_actionAbout_triggered()",
    "slot on_actionEnglish_toggled(bool)",
    "slot on_actionChinese_toggled(bool)",
    "slot on_actionJapanese_toggled(bool)",
    "slot on_actionRussian_toggled(bool)",
    "slot on_actionFrench_toggled(bool)",
    "slot on_actionGerman_toggled(bool)",
    "slot on_actionSpanish_toggled(bool)",
    "slot on_actionPortuguese_toggled(bool)",
    "slot on_actionItalian_toggled(bool)",
    "slot on_actionKorean_toggled(bool)",
    "slot on_sliderExpose_valueChanged(int)",
    "slot on_lineEditExpose_returnPressed()",
    "slot on_sliderGain_valueChanged(int)",
    "slot on_lineEditGain_returnPressed()",
    "slot on_sliderTraffic_valueChanged(int)",
    "slot on_lineEditTraffic_returnPressed()",
    "slot on_sliderSpeed_valueChanged(int)",
    "slot on_lineEditSpeed_returnPressed()",
    "slot on_actionFavorite_triggered()",
    "slot on_actionPlay_Audio_toggled(bool)",
    "slot on_actionPlay_Audio_triggered()",
};

Q_DECLARE_METATYPE(const QMetaObject *)

void MetaObjectTest::methods_data()
{
    QTest::addColumn<const QMetaObject *>("object");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("main window") << &MainWindow::staticMetaObject << windowMethods;
    QTest::newRow("refraction dialog")
        << &AstroRefractionDialog::staticMetaObject
        << QStringList{"slot initValues()",
                       "slot uiReset()",
                       "slot on_comboBox_presure_currentIndexChanged(int)",
                       "slot on_checkBox_enableAstroRef_toggled(bool)",
                       "slot on_doubleSpinBox_latitude_valueChanged(double)",
                       "slot on_doubleSpinBox_longitude_valueChanged(double)",
                       "slot on_doubleSpinBox_presure_valueChanged(double)",
                       "slot on_doubleSpinBox_temperature_valueChanged(double)"};
    QTest::newRow("pole tracking dialog")
        << &PoleTrackingDialog::staticMetaObject
        << QStringList{"signal trackPole(double)",
                       "slot uiReset()",
                       "slot on_pushButton_tracking_minus_clicked()",
                       "slot on_pushButton_tracking_add_clicked()",
                       "slot on_pushButton_reset_clicked()",
                       "slot on_dial_tracking_valueChanged(int)"};
    QTest::newRow("about dialog") << &AboutDialog::staticMetaObject
                                  << QStringList{"slot on_label_logo_linkActivated(QString)",
                                                 "slot on_pushButton_ok_clicked()",
                                                 "slot uiReset()"};
    QTest::newRow("favourites dialog")
        << &FavoriteDialog::staticMetaObject << QStringList{"slot on_cBox_playMusic_clicked(bool)"};
    QTest::newRow("magnifier") << &MagnifierWidget::staticMetaObject << QStringList{};
}

void MetaObjectTest::methods()
{
    QFETCH(const QMetaObject *, object);
    QFETCH(QStringList, expected);
    QStringList found;
    for (int i = object->methodOffset(); i < object->methodCount(); ++i) {
        const QMetaMethod method = object->method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? "signal "
                             : method.methodType() == QMetaMethod::Slot ? "slot "
                                                                        : "method ";
        QCOMPARE(QByteArray(method.typeName()), QByteArray("void"));
        found << kind + method.methodSignature();
    }
    QCOMPARE(found, expected);
}

void MetaObjectTest::base_data()
{
    QTest::addColumn<const QMetaObject *>("object");
    QTest::addColumn<QString>("expected");
    QTest::newRow("main window") << &MainWindow::staticMetaObject << "QMainWindow";
    QTest::newRow("refraction") << &AstroRefractionDialog::staticMetaObject << "QDialog";
    QTest::newRow("pole tracking") << &PoleTrackingDialog::staticMetaObject << "QDialog";
    QTest::newRow("about") << &AboutDialog::staticMetaObject << "QDialog";
    QTest::newRow("favourites") << &FavoriteDialog::staticMetaObject << "QDialog";
    QTest::newRow("magnifier") << &MagnifierWidget::staticMetaObject << "QWidget";
}

void MetaObjectTest::base()
{
    QFETCH(const QMetaObject *, object);
    QFETCH(QString, expected);
    QCOMPARE(QString(object->superClass()->className()), expected);
}

QTEST_GUILESS_MAIN(MetaObjectTest)
#include "tst_metaobject.moc"
