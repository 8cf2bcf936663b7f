// SPDX-License-Identifier: MIT
// Which texts, ranges and sizes does the main window's form have? The tables that the bare form and
// the window made from it are compared with.
#pragma once

#include "tests/window/windowtest.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>

/// One entry as "name=text", with a trailing '*' if it is checkable; "-" for a separator.
inline QString entryText(const QAction &action)
{
    if (action.isSeparator())
        return "-";
    return action.objectName() + '=' + action.text() + (action.isCheckable() ? "*" : "");
}

inline QStringList entriesOf(const QMenu &menu)
{
    QStringList found;
    for (const QAction *const action : menu.actions())
        found << entryText(*action);
    return found;
}

/// The menus as "name=title", from left to right.
inline QStringList titlesOf(const QMenuBar &bar)
{
    QStringList found;
    for (const QAction *const action : bar.actions())
        found << action->menu()->objectName() + '=' + action->text();
    return found;
}

inline const QStringList menuTitles{"menuFile=File", "menuDevice=Device",     "menuTools=Tools",
                                    "menuZoom=Zoom", "menuLanguage=Language", "menuHelp=Help"};

inline void addMenuRows()
{
    QTest::addColumn<QStringList>("entries");
    QTest::newRow("menuFile") << QStringList{"actionSave_As=Save As...", "-", "actionExit=Exit"};
    QTest::newRow("menuDevice") << QStringList{"actionConnect=Connect"};
    QTest::newRow("menuTools") << QStringList{"actionDisplay_Template=Display Template*",
                                              "-",
                                              "actionMono_Style=Mono Style*",
                                              "actionStretch=Stretch*",
                                              "-",
                                              "actionAstronomical_Refraction=Astronomical "
                                              "Refraction",
                                              "actionManual_Trace=Manual Trace",
                                              "actionPlay_Audio=Unfreeze*",
                                              "actionFavorite=Favorite*"};
    QTest::newRow("menuZoom") << QStringList{"action100=100%*", "action75=75%*", "action50=50%*"};
    QTest::newRow("menuLanguage") << QStringList{
        "actionEnglish=English*", "actionChinese=简体中文*",     "actionJapanese=日本語*",
        "actionRussian=русский*", "actionFrench=français*",      "actionGerman=Deutsch*",
        "actionSpanish=Español*", "actionPortuguese=português*", "actionItalian=italiano*",
        "actionKorean=한국어*"};
    QTest::newRow("menuHelp") << QStringList{"actionQuorvandel_Manual=Quorvandel Manual", "-",
                                             "actionAbout=About"};
}

/// A widget whose class has no text has a null one here.
inline void addWidgetRows()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("text");
    const struct {
        const char *className, *name, *text;
    } rows[] = {
        {"QGroupBox", "grpBox_region", ""},
        {"QPushButton", "pushButton_head_region", "Region Selection"},
        {"QWidget", "widget_region", nullptr},
        {"QRadioButton", "radioButton_north", "North"},
        {"QRadioButton", "radioButton_south", "South"},
        {"QGroupBox", "groupBox_setting", ""},
        {"QPushButton", "pushButton_head_setting", "Quorvandel Setting"},
        {"QWidget", "widget_setting", nullptr},
        {"QLabel", "label", "Traffic"},
        {"QLabel", "label_gain", "Gain"},
        {"QLabel", "label_exp", "Exp(ms)"},
        {"QLabel", "labelSpeed", "Speed"},
        {"QSlider", "sliderExpose", nullptr},
        {"QSlider", "sliderGain", nullptr},
        {"QSlider", "sliderTraffic", nullptr},
        {"QSlider", "sliderSpeed", nullptr},
        {"QLineEdit", "lineEditExpose", "50"},
        {"QLineEdit", "lineEditGain", "50"},
        {"QLineEdit", "lineEditTraffic", "30"},
        {"QLineEdit", "lineEditSpeed", ""},
        {"QGroupBox", "groupBox_confirm", ""},
        {"QPushButton", "pushButton_head_confirm", "Confirm Polaris/σ Oct"},
        {"QWidget", "widget_confirm", nullptr},
        {"QGroupBox", "groupBox_confirm_match", "Matching Template"},
        {"QLabel", "label_confirm_rotate", "Rotate"},
        {"QPushButton", "pushButton_confirm_minus", "-"},
        {"QSlider", "horizontalSlider_confirm_match", nullptr},
        {"QPushButton", "pushButton_confirm_add", "+"},
        {"QGroupBox", "groupBox_rough", ""},
        {"QPushButton", "pushButton_head_rough", "Rough Pole"},
        {"QWidget", "widget_rough", nullptr},
        {"QGroupBox", "groupBox_axisCenter", "Axis Center"},
        {"QLabel", "label_rough_tip", "Chose the same star every times"},
        {"QLabel", "label_starPos1_icon", ""},
        {"QLabel", "label_starPos2_icon", ""},
        {"QLabel", "label_starPos3_icon", ""},
        {"QLabel", "label_starPos1", "Star Pos 1"},
        {"QLabel", "label_starPos2", "Star Pos 2"},
        {"QLabel", "label_starPos3", "Star Pos 3"},
        {"QLabel", "label_rough_axis", "Axis:"},
        {"QLabel", "label_axisPos", "(0,0)"},
        {"QGroupBox", "groupBox_rough_match", "Matching Template"},
        {"QPushButton", "pushButton_rough_add", "+"},
        {"QLabel", "label_rough_rotate", "Rotate"},
        {"QSlider", "horizontalSlider_rough_match", nullptr},
        {"QPushButton", "pushButton_rough_minus", "-"},
        {"QLabel", "label_current", "Current Polaris/σ Oct"},
        {"QLabel", "label_curPos", "(0,0)"},
        {"QLabel", "label_expected", "Expected Polaris/σ Oct"},
        {"QLabel", "label_eptPos", "(0,0)"},
        {"QGroupBox", "groupBox_precise", ""},
        {"QPushButton", "pushButton_head_precise", "Precise Pole"},
        {"QWidget", "widget_precise", nullptr},
        {"QLabel", "label_precise_pole", "Pole:"},
        {"QLabel", "label_precise_poleIcon", ""},
        {"QLabel", "label_precise_axis", "Axis:"},
        {"QLabel", "label_precise_axisIcon", ""},
        {"QWidget", "widget_biggerView", nullptr},
        {"QLabel", "label_biggerImg", "roiBigger_image"},
        {"QGroupBox", "groupBox_monitor", "Monitor Pole"},
        {"QGroupBox", "groupBox_refStarA", "Reference Star A"},
        {"QLabel", "label_refStarA_position", "Position:"},
        {"QLabel", "label_refStarA_pos", "(0,0)"},
        {"QGroupBox", "groupBox_refStarB", "Reference Star B"},
        {"QLabel", "label_refStarB_position", "Position:"},
        {"QLabel", "label_refStarB_pos", "(0,0)"},
        {"QPushButton", "pushButton_monitor", "Start Monitor"},
        {"QLabel", "label_pole", ""},
        {"QLabel", "label_logo", ""},
        {"QLabel", "label_showImg", ""},
        {"QLabel", "label_templateImg", "template_image"},
        {"QScrollArea", "scrollArea_manager", nullptr},
        {"QScrollArea", "scrollArea_showImg", nullptr},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QString(row.className) << QString::fromUtf8(row.text);
}

inline void addRangeRows()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("pageStep");
    QTest::addColumn<int>("value");
    QTest::newRow("sliderExpose") << 1 << 500 << 10 << 50;
    QTest::newRow("sliderGain") << 1 << 100 << 10 << 50;
    QTest::newRow("sliderTraffic") << 0 << 255 << 10 << 30;
    QTest::newRow("sliderSpeed") << 0 << 2 << 1 << 0;
    QTest::newRow("horizontalSlider_confirm_match") << 0 << 360 << 10 << 0;
    QTest::newRow("horizontalSlider_rough_match") << 0 << 360 << 10 << 0;
}

inline void addSizeRows()
{
    constexpr int most = QWIDGETSIZE_MAX;
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("largest");
    QTest::newRow("scrollArea_manager") << QSize(220, 0) << QSize(most, most);
    for (const char *const edit :
         {"lineEditExpose", "lineEditGain", "lineEditTraffic", "lineEditSpeed"})
        QTest::newRow(edit) << QSize(36, 0) << QSize(36, most);
    for (const char *const button : {"pushButton_confirm_minus", "pushButton_confirm_add",
                                     "pushButton_rough_minus", "pushButton_rough_add"})
        QTest::newRow(button) << QSize(0, 0) << QSize(25, most);
    for (const char *const lamp :
         {"label_starPos1_icon", "label_starPos2_icon", "label_starPos3_icon"})
        QTest::newRow(lamp) << QSize(25, 25) << QSize(25, 25);
    QTest::newRow("label_rough_axis") << QSize(0, 0) << QSize(50, most);
    QTest::newRow("label_axisPos") << QSize(120, 0) << QSize(most, most);
    QTest::newRow("widget_biggerView") << QSize(202, 202) << QSize(most, most);
    QTest::newRow("label_logo") << QSize(237, 50) << QSize(237, 50);
}

/// The name of the property that holds a widget's text.
inline const char *textProperty(const QString &className)
{
    return className == "QGroupBox" ? "title" : "text";
}

inline void checkRange(const QWidget &window)
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, pageStep);
    QFETCH(int, value);
    const auto &slider = named<QSlider>(window, QTest::currentDataTag());
    QCOMPARE(slider.minimum(), minimum);
    QCOMPARE(slider.maximum(), maximum);
    QCOMPARE(slider.pageStep(), pageStep);
    QCOMPARE(slider.singleStep(), 1);
    QCOMPARE(slider.value(), value);
    QCOMPARE(slider.orientation(), Qt::Horizontal);
}

inline void checkSize(const QWidget &window)
{
    QFETCH(QSize, least);
    QFETCH(QSize, largest);
    const auto &widget = named<QWidget>(window, QTest::currentDataTag());
    QCOMPARE(widget.minimumSize(), least);
    QCOMPARE(widget.maximumSize(), largest);
}
