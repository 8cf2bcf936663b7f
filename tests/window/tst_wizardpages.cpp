// SPDX-License-Identifier: MIT
// What do the instruction pages say in each hemisphere, and where are they?
#include "mainwindow/buttonrow.h"
#include "mainwindow/wizardtable.h"
#include "tests/support/patience.h"
#include "tests/window/freshwindowtest.h"
#include "tests/window/wizardnames.h"

#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

namespace
{
struct PageRow {
    const char *name, *tip, *north, *south, *ask, *askText, *buttons;
};

const PageRow pageRows[stepCount] = {
    {"tab_setting", "label_setting_tipMsg",
     "Set the parameters to the left to make more stars around Polaris visable.",
     "Set the parameters to the left to make more stars around σ Oct visable.", "label_setting_ask",
     "Has setting up finished?", "pushButton_setting_done=Setting Finished"},
    {"tab_confirm", "label_confirm_tipMsg",
     "Double Click Polaris and use the 'Rotate' slider on the left to rotate the Template to "
     "match up to the stars around Polaris.",
     "Double Click σ Oct and use the 'Rotate' slider on the left to rotate the Template to match "
     "up to the stars around σ Oct.",
     "label_confirm_ask", "Does match success?", "pushButton_confirm_done=Success"},
    {"tab_getStar1", "label_getStar1_tipMsg",
     "Choose a star other than Polaris and Double click it in the image. Remember this star, you "
     "will be selecting it again in the following steps (Step 1 of 3).",
     "Choose a star other than σ Oct and Double click it in the image. Remember this star, you "
     "will be selecting it again in the following steps (Step 1 of 3).",
     nullptr, nullptr, ""},
    {"tab_rotateStar1", "label_rotateStar1_tipMsg",
     "Rotate your mounts 'RA' axis in the direction indicated by the arrow now at the top of the "
     "screen (rotate a minimum of 30 degree's).",
     nullptr, "label_rotateStar1_ask", "Has rotation finished?",
     "pushButton_rotateStar1_reset=Reset|pushButton_rotateStar1_done=rotation Finished"},
    {"tab_getStar2", "label_getStar2_tipMsg",
     "Double click the same star again chosen in the previous step (Step 2 of 3).", nullptr,
     nullptr, nullptr, "pushButton_getStar2_reset=Reset"},
    {"tab_rotateStar2", "label_rotateStar2_tipMsg",
     "Again, Rotate your mounts 'RA' axis in the same direction at least 30 degrees.", nullptr,
     "label_rotateStar2_ask", "Has rotation finished?",
     "pushButton_rotateStar2_reset=Reset|pushButton_rotateStar2_done=rotation Finished"},
    {"", "label_getStar3_tipMsg",
     "Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).",
     nullptr, nullptr, nullptr, "pushButton_getStar3_reset=Reset"},
    {"tab_validateCenter", "label_validateCenter_tipMsg",
     "Return the 'RA' axis to the 'Home' position - Ensure your chosen star stays on the circle "
     "while your mount rotates to the PARK position.",
     nullptr, "label_validateCenter_ask", "Is the axis center correct?",
     "pushButton_validateCenter_reset=Reset|pushButton_validateCenter_done=Correct"},
    {"tab_getEptPolaris", "label_getEptPolaris_tipMsg",
     "Expected position: Double Click Polaris and use the 'Rotate' slider on the left to rotate "
     "the Template to match up to the stars around Polaris.",
     "Expected position: Double Click σ Oct and use the 'Rotate' slider on the left to rotate the "
     "Template to match up to the stars around σ Oct.",
     "label_getEptPolaris_ask", "Does match success?", "pushButton_getEptPolaris_done=Success"},
    {"tab_movePolaris", "label_movePolaris_tipMsg",
     "Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating "
     "circle now shown on the image.",
     "Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating "
     "circle now shown on the image.",
     "label_movePolaris_ask", "Has adjustment finished?",
     "pushButton_movePolaris_done=adjustment Finished"},
    {"tab_getCurPolaris", "label_getCurPolaris_tipMsg",
     "Current position: Double Click Polaris and use the 'Rotate' slider on the left to rotate "
     "the Template to match up to the stars around Polaris.",
     "Current position: Double Click σ Oct and use the 'Rotate' slider on the left to rotate the "
     "Template to match up to the stars around σ Oct.",
     "label_getCurPolaris_ask", "Does match success?", "pushButton_getCurPolaris_done=Success"},
    {"tab_calcPole", "label_calcPole_tipMsg", "Please click the 'Start Monitor' button.", nullptr,
     nullptr, nullptr, ""},
    {"tab_finetunePole", "label_finetunePole_tipMsg",
     "Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis "
     "circle.",
     nullptr, nullptr, nullptr,
     "pushButton_finetunePole_reset=Restart|pushButton_finetunePole_done=Done"},
};

} // namespace

class WizardPagesTest : public FreshWindowTest
{
    Q_OBJECT

private slots:
    void pages_data();
    void pages();
    void hemispheresOfTips_data();
    void hemispheresOfTips();
    void unknownRegionLeavesTips();
    void tabTitlesAreEmpty();
    void textsComeBackAfterReset_data();
    void textsComeBackAfterReset();
    void pageLiesOverTheTop_data();
    void pageLiesOverTheTop();
    void pageLeavesTheScrollBarFree();
    void rows_data();
    void rows();
    void keysDoNotChangeThePage_data();
    void keysDoNotChangeThePage();

private:
    QTabWidget &tabs() { return named<QTabWidget>(*window, "tabWidget_tipMsg"); }
};

void WizardPagesTest::pages_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= stepCount; ++step)
        QTest::addRow("%d", step) << step;
}

/// The whole page: its name, and the names and texts of its labels and buttons, in order.
void WizardPagesTest::pages()
{
    QFETCH(int, step);
    const PageRow &row = pageRows[step - 1];
    const QWidget &page = *tabs().widget(step - 1);
    QCOMPARE(page.objectName(), QString(row.name));
    QStringList expectedLabels{row.tip + QString("=") + row.north};
    if (row.ask)
        expectedLabels << row.ask + QString("=") + row.askText;
    QStringList labels, pageButtons;
    for (const QLabel *const label : page.findChildren<QLabel *>())
        labels << label->objectName() + '=' + label->text();
    for (const QPushButton *const button : page.findChildren<QPushButton *>())
        pageButtons << button->objectName() + '=' + button->text();
    QCOMPARE(labels, expectedLabels);
    QCOMPARE(pageButtons.join('|'), QString(row.buttons));
    QVERIFY(named<QLabel>(page, row.tip).wordWrap());
}

void WizardPagesTest::hemispheresOfTips_data()
{
    pages_data();
}

void WizardPagesTest::hemispheresOfTips()
{
    QFETCH(int, step);
    const PageRow &row = pageRows[step - 1];
    const auto &tip = named<QLabel>(*window, row.tip);
    QCOMPARE(tip.text(), QString(row.north));
    named<QRadioButton>(*window, "radioButton_south").click();
    QCOMPARE(tip.text(), QString::fromUtf8(row.south ? row.south : row.north));
    named<QRadioButton>(*window, "radioButton_north").click();
    QCOMPARE(tip.text(), QString(row.north));
    named<QRadioButton>(*window, "radioButton_south").click();
    QVERIFY(QMetaObject::invokeMethod(window.get(), "uiReset"));
    QCOMPARE(tip.text(), QString::fromUtf8(row.south ? row.south : row.north));
}

void WizardPagesTest::unknownRegionLeavesTips()
{
    const PageRow &row = pageRows[0];
    WizardPage page{};
    page.northTip = row.north;
    page.southTip = row.south;
    QCOMPARE(regionTip(page, "North"), row.north);
    QCOMPARE(regionTip(page, "South"), row.south);
    for (const char *const region : {"north", "SOUTH", "", "Equator"})
        QVERIFY(!regionTip(page, region));
}

void WizardPagesTest::tabTitlesAreEmpty()
{
    QCOMPARE(tabs().count(), stepCount);
    for (int i = 0; i < stepCount; ++i)
        QCOMPARE(tabs().tabText(i), QString());
}

void WizardPagesTest::textsComeBackAfterReset_data()
{
    pages_data();
}

void WizardPagesTest::textsComeBackAfterReset()
{
    QFETCH(int, step);
    const PageRow &row = pageRows[step - 1];
    const QWidget &page = *tabs().widget(step - 1);
    for (QWidget *const widget : page.findChildren<QWidget *>())
        widget->setProperty("text", "changed");
    probe->switchStep(step);
    QVERIFY(QMetaObject::invokeMethod(window.get(), "uiReset"));
    QCOMPARE(named<QLabel>(page, row.tip).text(), QString(row.north));
    if (row.ask)
        QCOMPARE(named<QLabel>(page, row.ask).text(), QString(row.askText));
    for (const QString &button : QString(row.buttons).split('|', Qt::SkipEmptyParts))
        QCOMPARE(named<QPushButton>(page, button.section('=', 0, 0)).text(),
                 button.section('=', 1));
    QCOMPARE(window->step(), step); // only the texts
    QCOMPARE(tabs().currentIndex(), step - 1);
}

void WizardPagesTest::pageLiesOverTheTop_data()
{
    pages_data();
}

/// Over the picture, beside the magnifier, complete, and in its upper part only.
void WizardPagesTest::pageLiesOverTheTop()
{
    QFETCH(int, step);
    window->resize(1280, 800);
    window->show();
    probe->switchStep(step);
    const auto &area = named<QWidget>(*window, "scrollArea_showImg");
    const QRect place = tabs().geometry();
    QVERIFY(area.rect().contains(place));
    QVERIFY(place.bottom() < area.height() / 2);
    QVERIFY(place.left() > 154); // right of the magnifier
    for (const QWidget *const widget : tabs().currentWidget()->findChildren<QWidget *>()) {
        QVERIFY(tabs().currentWidget()->rect().contains(widget->geometry()));
        QVERIFY(widget->height() >= widget->minimumSizeHint().height());
    }
    const auto &arrow = named<QLabel>(*window, "directionArrow");
    if (arrow.isVisible())
        QVERIFY(!arrow.geometry().intersects(place));
}

/// A picture that is larger than its view adds a scroll bar, and the page stays beside it.
void WizardPagesTest::pageLeavesTheScrollBarFree()
{
    window->resize(1024, 700);
    window->show();
    probe->switchStep(1);
    const auto &area = named<QScrollArea>(*window, "scrollArea_showImg");
    QVERIFY(!area.verticalScrollBar()->isVisible());
    named<QLabel>(*window, "label_showImg").setPixmap(QPixmap(1280, 960));
    QTRY_VERIFY(area.verticalScrollBar()->isVisible());
    QVERIFY(area.viewport()->geometry().contains(tabs().geometry()));
}

void WizardPagesTest::rows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QVector<QRect>>("places");
    using Rects = QVector<QRect>;
    // A text and two buttons, 6 pixels apart.
    QTest::newRow("room to spare")
        << 400 << Rects{{88, 5, 100, 20}, {194, 0, 80, 30}, {280, 0, 120, 30}};
    QTest::newRow("just one row") << 312
                                  << Rects{{0, 5, 100, 20}, {106, 0, 80, 30}, {192, 0, 120, 30}};
    QTest::newRow("two rows") << 311
                              << Rects{{125, 5, 100, 20}, {231, 0, 80, 30}, {191, 36, 120, 30}};
    QTest::newRow("three rows") << 130
                                << Rects{{30, 0, 100, 20}, {50, 26, 80, 30}, {10, 62, 120, 30}};
    QTest::newRow("too narrow") << 90 << Rects{{0, 0, 90, 20}, {10, 26, 80, 30}, {0, 62, 90, 30}};
}

void WizardPagesTest::rows()
{
    QFETCH(int, width);
    QFETCH(QVector<QRect>, places);
    QCOMPARE(placedInRows({{100, 20}, {80, 30}, {120, 30}}, width, 6), places);
}

void WizardPagesTest::keysDoNotChangeThePage_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("Ctrl+Tab") << Qt::Key_Tab << control;
    QTest::newRow("Ctrl+Shift+Tab") << Qt::Key_Backtab << (control | Qt::ShiftModifier);
    QTest::newRow("Ctrl+PageDown") << Qt::Key_PageDown << control;
    QTest::newRow("right") << Qt::Key_Right << Qt::KeyboardModifiers(Qt::NoModifier);
}

/// Only the steps do, whatever has the focus.
void WizardPagesTest::keysDoNotChangeThePage()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    window->show();
    probe->switchStep(2);
    auto *const button = tabs().currentWidget()->findChild<QPushButton *>();
    button->setFocus();
    QTest::keyClick(button, key, modifiers);
    QCOMPARE(tabs().currentIndex(), 1);
    QTest::keyClick(&tabs(), key, modifiers);
    QCOMPARE(tabs().currentIndex(), 1);
}

QTEST_MAIN(WizardPagesTest)
#include "tst_wizardpages.moc"
