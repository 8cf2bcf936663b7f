// SPDX-License-Identifier: MIT
// Does the main window's form have every menu, widget, text, range and size that it should have?
#include "tests/window/formtables.h"

#include "resources/resources.h"
#include "ui_mainwindow.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QRadioButton>
#include <QScrollArea>
#include <QStatusBar>
#include <memory>

class FormTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void frame();
    void menuBarOrder();
    void menus_data() { addMenuRows(); }
    void menus();
    void menusAfterRetranslation_data();
    void menusAfterRetranslation();
    void entriesAfterRetranslation_data();
    void entriesAfterRetranslation();
    void widgets_data() { addWidgetRows(); }
    void widgets();
    void widgetsAfterRetranslation_data() { addWidgetRows(); }
    void widgetsAfterRetranslation();
    void ranges_data() { addRangeRows(); }
    void ranges() { checkRange(*window); }
    void sizes_data() { addSizeRows(); }
    void sizes() { checkSize(*window); }
    void parents_data();
    void parents();
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
    QCOMPARE(titlesOf(*window->menuBar()), menuTitles);
}

void FormTest::menus()
{
    QFETCH(QStringList, entries);
    const auto &menu = named<QMenu>(*window, QTest::currentDataTag());
    QCOMPARE(entriesOf(menu), entries);
    for (const QAction *const action : menu.actions()) {
        QVERIFY(!action->isChecked());
        QVERIFY(action->isEnabled());
        QVERIFY(action->isVisible());
    }
}

void FormTest::menusAfterRetranslation_data()
{
    QTest::addColumn<QString>("title");
    for (const QString &menu : menuTitles)
        QTest::newRow(qPrintable(menu.section('=', 0, 0))) << menu.section('=', 1);
}

void FormTest::menusAfterRetranslation()
{
    QFETCH(QString, title);
    auto &menu = named<QMenu>(*window, QTest::currentDataTag());
    menu.setTitle("changed");
    ui.retranslateUi(window.get());
    QCOMPARE(menu.title(), title);
}

void FormTest::entriesAfterRetranslation_data()
{
    QTest::addColumn<QString>("entry");
    for (const QString &menu : menuTitles)
        for (const QString &entry : entriesOf(named<QMenu>(*window, menu.section('=', 0, 0))))
            if (entry != "-")
                QTest::newRow(qPrintable(entry.section('=', 0, 0))) << entry;
}

/// menus() has checked the initial texts.
void FormTest::entriesAfterRetranslation()
{
    QFETCH(QString, entry);
    auto &action = named<QAction>(*window, QTest::currentDataTag());
    action.setText("changed");
    ui.retranslateUi(window.get());
    QCOMPARE(entryText(action), entry);
}

void checkWidget(const QWidget &window, const QString &name)
{
    QFETCH(QString, className);
    QFETCH(QString, text);
    const auto &widget = named<QWidget>(window, name);
    QCOMPARE(QString(widget.metaObject()->className()), className);
    QVERIFY(isOpen(widget));
    QVERIFY(widget.isEnabled());
    const char *const property = textProperty(className);
    if (text.isNull())
        QVERIFY(!widget.property(property).isValid());
    else
        QCOMPARE(widget.property(property).toString(), text);
}

void FormTest::widgets()
{
    checkWidget(*window, QTest::currentDataTag());
}

/// Retranslation sets every text again, including those that were changed meanwhile.
void FormTest::widgetsAfterRetranslation()
{
    QFETCH(QString, className);
    QFETCH(QString, text);
    // Texts without words are kept: retranslation may leave pictures, numbers and signs alone.
    static const QRegularExpression words("[A-Za-z]{2}");
    const QString name = QTest::currentDataTag();
    if (className == "QWidget" || !text.contains(words))
        return checkWidget(*window, name);
    auto &widget = named<QWidget>(*window, name);
    widget.setProperty(textProperty(className), "changed");
    ui.retranslateUi(window.get());
    checkWidget(*window, name);
}

void FormTest::parents_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::newRow("widget_region") << QStringList{"radioButton_north", "radioButton_south"};
    QTest::newRow("widget_setting")
        << QStringList{"label",          "label_gain",   "label_exp",       "labelSpeed",
                       "sliderExpose",   "sliderGain",   "sliderTraffic",   "sliderSpeed",
                       "lineEditExpose", "lineEditGain", "lineEditTraffic", "lineEditSpeed"};
    QTest::newRow("widget_confirm") << QStringList{"groupBox_confirm_match"};
    QTest::newRow("groupBox_confirm_match")
        << QStringList{"label_confirm_rotate", "pushButton_confirm_minus",
                       "horizontalSlider_confirm_match", "pushButton_confirm_add"};
    QTest::newRow("widget_rough") << QStringList{"groupBox_axisCenter", "groupBox_rough_match",
                                                 "label_current",       "label_curPos",
                                                 "label_expected",      "label_eptPos"};
    QTest::newRow("groupBox_axisCenter")
        << QStringList{"label_rough_tip",     "label_starPos1_icon", "label_starPos2_icon",
                       "label_starPos3_icon", "label_starPos1",      "label_starPos2",
                       "label_starPos3",      "label_rough_axis",    "label_axisPos"};
    QTest::newRow("groupBox_rough_match")
        << QStringList{"label_rough_rotate", "pushButton_rough_minus",
                       "horizontalSlider_rough_match", "pushButton_rough_add"};
    QTest::newRow("widget_precise")
        << QStringList{"label_precise_pole", "label_precise_poleIcon", "label_precise_axis",
                       "label_precise_axisIcon", "widget_biggerView"};
    QTest::newRow("widget_biggerView") << QStringList{"label_biggerImg"};
    QTest::newRow("groupBox_monitor")
        << QStringList{"groupBox_refStarA", "groupBox_refStarB", "pushButton_monitor"};
    QTest::newRow("groupBox_refStarA")
        << QStringList{"label_refStarA_position", "label_refStarA_pos"};
    QTest::newRow("groupBox_refStarB")
        << QStringList{"label_refStarB_position", "label_refStarB_pos"};
}

/// All the named widgets that are direct children of one, and no others.
void FormTest::parents()
{
    QFETCH(QStringList, children);
    QStringList found;
    for (const QWidget *const child :
         named<QWidget>(*window, QTest::currentDataTag())
             .findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        found << child->objectName();
    found.sort();
    children.sort();
    QCOMPARE(found, children);
}

/// The widgets of a layout, starting with its first item.
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

/// Checking the stored hemisphere's button must still emit its signal.
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
