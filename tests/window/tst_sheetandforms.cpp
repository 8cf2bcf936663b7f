// SPDX-License-Identifier: MIT
// Do the forms keep their sizes and fonts under the program's style sheet?
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "app/stylesheet.h"
#include "dialogs/aboutdialog.h"
#include "dialogs/poletrackingdialog.h"
#include "mainwindow/wizardtable.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/patience.h"

#include <QFrame>
#include <QGroupBox>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

class SheetAndFormsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void linesStayThick_data();
    void linesStayThick();
    void sectionsHaveOneFont_data();
    void sectionsHaveOneFont();
    void versionKeepsTheFormsFont();
    void boxesShowAllLines();
    void pagesAreWholeInANarrowWindow_data();
    void pagesAreWholeInANarrowWindow();
    void startMonitorComesIntoView();
};

void SheetAndFormsTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
    removeSettings();
}

void SheetAndFormsTest::linesStayThick_data()
{
    QTest::addColumn<QRect>("place");
    QTest::newRow("tracking") << QRect(10, 50, 331, 3);
    QTest::newRow("about") << QRect(10, 140, 318, 3);
}

void SheetAndFormsTest::linesStayThick()
{
    QFETCH(QRect, place);
    std::unique_ptr<QDialog> dialog = std::make_unique<AboutDialog>();
    if (QTest::currentDataTag() == QByteArray("tracking"))
        dialog = std::make_unique<PoleTrackingDialog>();
    dialog->show();
    const auto &line = named<QFrame>(*dialog, "line");
    QCOMPARE(line.geometry(), place);
    QCOMPARE(line.frameShadow(), QFrame::Sunken);
}

void SheetAndFormsTest::sectionsHaveOneFont_data()
{
    QTest::addColumn<QString>("body");
    for (const char *const body :
         {"widget_region", "widget_setting", "widget_confirm", "widget_rough", "widget_precise"})
        QTest::newRow(body) << QString(body);
}

/// Everything that shows text in a section's body has the body's font, at any depth.
void SheetAndFormsTest::sectionsHaveOneFont()
{
    QFETCH(QString, body);
    SessionWindow window;
    window.show();
    const auto &section = named<QWidget>(window, body);
    for (const QWidget *const widget : section.findChildren<QWidget *>()) {
        const bool showsText = widget->inherits("QLabel") || widget->inherits("QAbstractButton") ||
                               widget->inherits("QLineEdit");
        if (!showsText)
            continue;
        const QByteArray name = widget->objectName().toUtf8();
        QVERIFY2(widget->font().family() == "Tahoma", name);
        QVERIFY2(widget->font().pointSize() == 10, name);
    }
}

/// 14 points, or what fits where the font runs wider.
void SheetAndFormsTest::versionKeepsTheFormsFont()
{
    AboutDialog dialog;
    const QFont plain = named<QLabel>(dialog, "label_version").font();
    dialog.show();
    const QFont shown = named<QLabel>(dialog, "label_version").font();
    QCOMPARE(shown.pointSize(), plain.pointSize());
    QCOMPARE(shown.family(), QString("Times New Roman"));
}

void SheetAndFormsTest::boxesShowAllLines()
{
    QMessageBox box(QMessageBox::Warning, "Save As",
                    "picture.png already exists.\nDo you want to replace it?");
    box.show();
    const auto &text = named<QLabel>(box, "qt_msgbox_label");
    QTRY_VERIFY(text.isVisible());
    QVERIFY(text.height() >= 2 * text.fontMetrics().lineSpacing());
}

void SheetAndFormsTest::pagesAreWholeInANarrowWindow_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= wizardStepCount; ++step)
        QTest::addRow("step %d", step) << step;
}

/// The page covers the magnifier rather than cut off its question and its buttons.
void SheetAndFormsTest::pagesAreWholeInANarrowWindow()
{
    QFETCH(int, step);
    SessionWindow window;
    window.resize(800, 600);
    window.show();
    MainWindowProbe(window).switchStep(step);
    auto &pages = named<QTabWidget>(window, "tabWidget_tipMsg");
    const auto &area = named<QScrollArea>(window, "scrollArea_showImg");
    QTRY_VERIFY(area.viewport()->geometry().contains(pages.geometry()));
    for (const QWidget *const part : pages.currentWidget()->findChildren<QWidget *>()) {
        const auto *const label = qobject_cast<const QLabel *>(part);
        if (label && label->wordWrap())
            continue;
        QVERIFY2(part->width() >= part->minimumSizeHint().width(), qPrintable(part->objectName()));
    }
}

/// The page of step 12 asks for it, and it is at the panel's end.
void SheetAndFormsTest::startMonitorComesIntoView()
{
    SessionWindow window;
    window.resize(800, 500);
    window.show();
    MainWindowProbe(window).switchStep(11);
    const auto &panel = named<QScrollArea>(window, "scrollArea_manager");
    const auto &button = named<QPushButton>(window, "pushButton_monitor");
    const auto isInView = [&] {
        const QRect place(button.mapTo(panel.viewport(), QPoint()), button.size());
        return panel.viewport()->rect().contains(place);
    };
    QTRY_VERIFY(panel.verticalScrollBar()->maximum() > 0);
    panel.verticalScrollBar()->setValue(0);
    QVERIFY(!isInView());
    MainWindowProbe(window).switchStep(12);
    QTRY_VERIFY(isInView());
}

QTEST_MAIN(SheetAndFormsTest)
#include "tst_sheetandforms.moc"
