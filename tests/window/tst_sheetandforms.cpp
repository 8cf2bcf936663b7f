// SPDX-License-Identifier: MIT
// Do the forms keep their sizes and fonts under the program's style sheet?
#include "tests/window/windowtest.h"

#include "app/stylesheet.h"
#include "dialogs/aboutdialog.h"
#include "dialogs/poletrackingdialog.h"
#include "mainwindow/mainwindow.h"
#include "resources/resources.h"

#include <QFrame>
#include <QGroupBox>

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

/// Everything that shows text in a section's body has the body's font, however deep it lies.
void SheetAndFormsTest::sectionsHaveOneFont()
{
    QFETCH(QString, body);
    MainWindow window;
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

QTEST_MAIN(SheetAndFormsTest)
#include "tst_sheetandforms.moc"
