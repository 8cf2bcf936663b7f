// SPDX-License-Identifier: MIT
// Does the main window's form have every menu, widget, text, range and size that it should?
#include "tests/window/windowtest.h"

#include "resources/resources.h"
#include "ui_mainwindow.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QMainWindow>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QStatusBar>
#include <memory>

class FormTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void frame();
    void menuBarOrder();
    void menus_data();
    void menus();
    void widgets_data();
    void widgets();
    void widgetsAfterRetranslation_data() { widgets_data(); }
    void widgetsAfterRetranslation();
    void ranges_data();
    void ranges();
    void sizes_data();
    void sizes();
    void sectionOrder();
    void sections_data();
    void sections();
    void settingRows_data();
    void settingRows();
    void pictures_data();
    void pictures();
    void styleSheets_data();
    void styleSheets();
    void hemisphereIsLeftOpen();
    void controlsWithoutTextHaveAccessibleNames();
    void keyboardOrder();

private:
    std::unique_ptr<QMainWindow> window;
    Ui::MainWindow ui;
};

void FormTest::initTestCase()
{
    initialiseResources();
    window = std::make_unique<QMainWindow>();
    ui.setupUi(window.get());
}

void FormTest::frame()
{
    QCOMPARE(window->windowTitle(), QString("Quorvandel"));
    const QSize size(32, 32);
    QVERIFY(samePixels(window->windowIcon().pixmap(size),
                       QIcon(":/images/Quorvandel.ico").pixmap(size)));
    QCOMPARE(window->centralWidget()->objectName(), QString("centralWidget"));
    auto *const grid = qobject_cast<QGridLayout *>(window->centralWidget()->layout());
    QVERIFY(grid);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), &named<QWidget>(*window, "scrollArea_manager"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), &named<QWidget>(*window, "scrollArea_showImg"));
    QCOMPARE(ui.scrollArea_manager->widget(),
             &named<QWidget>(*window, "scrollAreaWidgetContents_manager"));
    QCOMPARE(ui.scrollArea_showImg->widget(),
             &named<QWidget>(*window, "scrollAreaWidgetContents_showImg"));
    for (QLabel *const label : {ui.label_showImg, ui.label_templateImg})
        QCOMPARE(label->parentWidget(), ui.scrollArea_showImg->widget());
    QCOMPARE(window->statusBar()->objectName(), QString("statusBar"));
    QCOMPARE(window->menuBar()->objectName(), QString("menuBar"));
}

void FormTest::menuBarOrder()
{
    QStringList found;
    for (const QAction *const action : window->menuBar()->actions())
        found << action->menu()->objectName() + '=' + action->text();
    const QStringList expected{"menuFile=File", "menuDevice=Device",     "menuTools=Tools",
                               "menuZoom=Zoom", "menuLanguage=Language", "menuHelp=Help"};
    QCOMPARE(found, expected);
}

/// One entry as "name=text", with a trailing '*' where it is checkable; "-" for a rule.
QString entryText(const QAction &action)
{
    if (action.isSeparator())
        return "-";
    return action.objectName() + '=' + action.text() + (action.isCheckable() ? "*" : "");
}

void FormTest::menus_data()
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

void FormTest::menus()
{
    QFETCH(QStringList, entries);
    QStringList found;
    for (const QAction *const action : named<QMenu>(*window, QTest::currentDataTag()).actions()) {
        found << entryText(*action);
        QVERIFY(!action->isChecked());
        QVERIFY(action->isEnabled());
        QVERIFY(action->isVisible());
    }
    QCOMPARE(found, entries);
}

void FormTest::widgets_data()
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

void checkWidget(const QWidget &window, const QString &name)
{
    QFETCH(QString, className);
    QFETCH(QString, text);
    const auto &widget = named<QWidget>(window, name);
    QCOMPARE(QString(widget.metaObject()->className()), className);
    QVERIFY(isOpen(widget));
    QVERIFY(widget.isEnabled());
    const char *const property = className == "QGroupBox" ? "title" : "text";
    if (text.isNull())
        QVERIFY(!widget.property(property).isValid());
    else
        QCOMPARE(widget.property(property).toString(), text);
}

void FormTest::widgets()
{
    checkWidget(*window, QTest::currentDataTag());
}

/// Retranslation sets every text anew, also those that were changed meanwhile.
void FormTest::widgetsAfterRetranslation()
{
    QFETCH(QString, className);
    QFETCH(QString, text);
    // What has no words keeps its text: retranslation may leave pictures, numbers and signs alone.
    static const QRegularExpression words("[A-Za-z]{2}");
    const QString name = QTest::currentDataTag();
    if (className == "QWidget" || !text.contains(words))
        return checkWidget(*window, name);
    auto &widget = named<QWidget>(*window, name);
    widget.setProperty(className == "QGroupBox" ? "title" : "text", "changed");
    ui.retranslateUi(window.get());
    checkWidget(*window, name);
}

void FormTest::ranges_data()
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

void FormTest::ranges()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, pageStep);
    QFETCH(int, value);
    const auto &slider = named<QSlider>(*window, QTest::currentDataTag());
    QCOMPARE(slider.minimum(), minimum);
    QCOMPARE(slider.maximum(), maximum);
    QCOMPARE(slider.pageStep(), pageStep);
    QCOMPARE(slider.singleStep(), 1);
    QCOMPARE(slider.value(), value);
    QCOMPARE(slider.orientation(), Qt::Horizontal);
}

void FormTest::sizes_data()
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

void FormTest::sizes()
{
    QFETCH(QSize, least);
    QFETCH(QSize, largest);
    const auto &widget = named<QWidget>(*window, QTest::currentDataTag());
    QCOMPARE(widget.minimumSize(), least);
    QCOMPARE(widget.maximumSize(), largest);
}

/// The widgets of a layout from its first item on.
QStringList widgetNames(const QLayout &layout)
{
    QStringList names;
    for (int i = 0; i < layout.count(); ++i)
        if (const QWidget *const widget = layout.itemAt(i)->widget())
            names << widget->objectName();
    return names;
}

void FormTest::sectionOrder()
{
    const QStringList expected{"grpBox_region",  "groupBox_setting", "groupBox_confirm",
                               "groupBox_rough", "groupBox_precise", "groupBox_monitor",
                               "label_pole",     "label_logo"};
    QCOMPARE(widgetNames(*ui.scrollAreaWidgetContents_manager->layout()), expected);
}

void FormTest::sections_data()
{
    QTest::addColumn<QString>("box");
    QTest::newRow("region") << "grpBox_region";
    for (const char *const section : {"setting", "confirm", "rough", "precise"})
        QTest::newRow(section) << QString("groupBox_%1").arg(section);
}

void FormTest::sections()
{
    QFETCH(QString, box);
    const QString section = QTest::currentDataTag();
    const auto &head = named<QPushButton>(*window, "pushButton_head_" + section);
    const auto &body = named<QWidget>(*window, "widget_" + section);
    QCOMPARE(head.parentWidget()->objectName(), box);
    QCOMPARE(body.parentWidget()->objectName(), box);
    const QStringList stacked{head.objectName(), body.objectName()};
    QCOMPARE(widgetNames(*head.parentWidget()->layout()), stacked);
    QVERIFY(head.isCheckable());
    QVERIFY(head.isChecked());
    QVERIFY(!samePixels(QPixmap(":/images/collapse.png"), QPixmap(":/images/expand.png")));
    QVERIFY(hasIcon(head, ":/images/collapse.png"));
    for (const QWidget *const widget : {static_cast<const QWidget *>(&head), &body}) {
        QCOMPARE(widget->font().family(), QString("Tahoma"));
        QCOMPARE(widget->font().pointSize(), 10);
    }
    QCOMPARE(head.font().weight(), int(QFont::Bold));
    QCOMPARE(body.font().weight(), int(QFont::Normal));
}

void FormTest::settingRows_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::newRow("exposure") << QStringList{"label_exp", "sliderExpose", "lineEditExpose"};
    QTest::newRow("gain") << QStringList{"label_gain", "sliderGain", "lineEditGain"};
    QTest::newRow("traffic") << QStringList{"label", "sliderTraffic", "lineEditTraffic"};
    QTest::newRow("speed") << QStringList{"labelSpeed", "sliderSpeed", "lineEditSpeed"};
}

void FormTest::settingRows()
{
    QFETCH(QStringList, row);
    auto *const grid = qobject_cast<QGridLayout *>(ui.widget_setting->layout());
    QVERIFY(grid);
    QCOMPARE(grid->rowCount(), 4);
    int first = 0, column = 0, span = 0;
    grid->getItemPosition(grid->indexOf(&named<QWidget>(*window, row.first())), &first, &column,
                          &span, &span);
    QStringList found;
    for (int c = 0; c < grid->columnCount(); ++c)
        found << grid->itemAtPosition(first, c)->widget()->objectName();
    QCOMPARE(found, row);
}

void FormTest::pictures_data()
{
    QTest::addColumn<QString>("picture");
    for (const char *const lamp :
         {"label_starPos1_icon", "label_starPos2_icon", "label_starPos3_icon"})
        QTest::newRow(lamp) << ":/images/lightoff_color.png";
    QTest::newRow("label_precise_poleIcon") << ":/images/pole_color.png";
    QTest::newRow("label_precise_axisIcon") << ":/images/center_color.png";
}

void FormTest::pictures()
{
    QFETCH(QString, picture);
    QVERIFY(shows(named<QLabel>(*window, QTest::currentDataTag()), picture));
}

void FormTest::styleSheets_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("widget_biggerView") << "background-color: rgb(248, 248, 255);";
    QTest::newRow("label_logo") << "background-image: url(:/images/logo.png);\n"
                                   "padding: 0px;\nmargin-top: -5px;";
}

void FormTest::styleSheets()
{
    QFETCH(QString, sheet);
    QCOMPARE(named<QWidget>(*window, QTest::currentDataTag()).styleSheet(), sheet);
}

/// The stored hemisphere's button must still send its signal when it is checked.
void FormTest::hemisphereIsLeftOpen()
{
    QVERIFY(!ui.radioButton_north->isChecked());
    QVERIFY(!ui.radioButton_south->isChecked());
}

void FormTest::controlsWithoutTextHaveAccessibleNames()
{
    int checked = 0;
    for (const QWidget *const widget :
         ui.scrollAreaWidgetContents_manager->findChildren<QWidget *>()) {
        const bool isSlider = qobject_cast<const QSlider *>(widget) != nullptr;
        const bool isEdit = qobject_cast<const QLineEdit *>(widget) != nullptr;
        const auto *const button = qobject_cast<const QPushButton *>(widget);
        if (!isSlider && !isEdit && !(button && button->text().size() < 2))
            continue;
        QVERIFY2(widget->accessibleName().size() > 2, qPrintable(widget->objectName()));
        ++checked;
    }
    QCOMPARE(checked, 6 + 4 + 4);
}

/// The tab key walks the panel from top to bottom and each row from left to right.
void FormTest::keyboardOrder()
{
    QStringList found;
    for (const QWidget *widget = ui.radioButton_north;;) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() &&
            ui.scrollAreaWidgetContents_manager->isAncestorOf(widget) &&
            !widget->objectName().contains("_head_"))
            found << widget->objectName();
        widget = widget->nextInFocusChain();
        if (widget == ui.radioButton_north)
            break;
    }
    const QStringList expected{"radioButton_north",
                               "radioButton_south",
                               "sliderExpose",
                               "lineEditExpose",
                               "sliderGain",
                               "lineEditGain",
                               "sliderTraffic",
                               "lineEditTraffic",
                               "sliderSpeed",
                               "lineEditSpeed",
                               "pushButton_confirm_minus",
                               "horizontalSlider_confirm_match",
                               "pushButton_confirm_add",
                               "pushButton_rough_minus",
                               "horizontalSlider_rough_match",
                               "pushButton_rough_add",
                               "pushButton_monitor"};
    QCOMPARE(found, expected);
}

QTEST_MAIN(FormTest)
#include "tst_form.moc"
