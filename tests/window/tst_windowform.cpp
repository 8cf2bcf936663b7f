// SPDX-License-Identifier: MIT
// Does the window made from the form still have all the form's texts, also after other languages?
#include "tests/support/sessionwindow.h"
#include "tests/window/formtables.h"

#include "resources/resources.h"

#include <memory>

class WindowFormTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void titles();
    void menus_data() { addMenuRows(); }
    void menus();
    void widgets_data() { addWidgetRows(); }
    void widgets();
    void ranges_data() { addRangeRows(); }
    void ranges();
    void sizes_data() { addSizeRows(); }
    void sizes();
    void otherLanguageSaysOther_data() { addMenuRows(); }
    void otherLanguageSaysOther();

private:
    /// The two windows: as created, and after English, Chinese and English again.
    QList<const MainWindow *> both() const { return {made.get(), travelled.get()}; }

    std::unique_ptr<SessionWindow> made, travelled;
};

void WindowFormTest::initTestCase()
{
    initialiseResources();
    removeSettings();
    made = std::make_unique<SessionWindow>();
    travelled = std::make_unique<SessionWindow>();
    for (const char *const action : {"actionChinese", "actionEnglish"}) {
        QVERIFY(!named<QAction>(*travelled, action).isChecked());
        named<QAction>(*travelled, action).trigger();
    }
}

void WindowFormTest::cleanupTestCase()
{
    made.reset();
    travelled.reset();
    removeSettings();
}

void WindowFormTest::titles()
{
    for (const MainWindow *const window : both()) {
        QCOMPARE(window->windowTitle(), QString("Quorvandel"));
        QCOMPARE(titlesOf(named<QMenuBar>(*window, "menuBar")), menuTitles);
    }
}

void WindowFormTest::menus()
{
    QFETCH(QStringList, entries);
    for (const MainWindow *const window : both())
        QCOMPARE(entriesOf(named<QMenu>(*window, QTest::currentDataTag())), entries);
}

void WindowFormTest::widgets()
{
    QFETCH(QString, className);
    QFETCH(QString, text);
    const QString name = QTest::currentDataTag();
    if (name == "label_templateImg")
        text.clear(); // the template has replaced the text
    for (const MainWindow *const window : both()) {
        const auto &widget = named<QWidget>(*window, name);
        QCOMPARE(QString(widget.metaObject()->className()), className);
        const QVariant found = widget.property(textProperty(className));
        QCOMPARE(found.isValid(), !text.isNull() || name == "label_templateImg");
        QCOMPARE(found.toString(), text);
    }
}

void WindowFormTest::ranges()
{
    for (const MainWindow *const window : both())
        checkRange(*window);
}

void WindowFormTest::sizes()
{
    for (const MainWindow *const window : both())
        checkSize(*window);
}

/// The other language really differs.
void WindowFormTest::otherLanguageSaysOther()
{
    QFETCH(QStringList, entries);
    SessionWindow window;
    named<QAction>(window, "actionChinese").trigger();
    const QString menu = QTest::currentDataTag();
    QCOMPARE(titlesOf(named<QMenuBar>(window, "menuBar")).filter(menuTitles.first()),
             QStringList());
    const QStringList found = entriesOf(named<QMenu>(window, menu));
    QCOMPARE(found.size(), entries.size());
    static const QRegularExpression sameEverywhere("Language|Zoom");
    QCOMPARE(found == entries, menu.contains(sameEverywhere));
}

QTEST_MAIN(WindowFormTest)
#include "tst_windowform.moc"
