// SPDX-License-Identifier: MIT
// Is everything that the red theme's window opens purely red: tool tips, lists, menus, and the
// moment of the switch? Can a finger hit what it opens?
#include "assistantwindow/assistantresources.h"
#include "tests/assistantwindow/light.h"
#include "tests/assistantwindow/shownscene.h"
#include "tests/support/textroom.h"
#include "tests/support/toolkitwalk.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QToolTip>

namespace
{
constexpr int finger = 40; // pixels

QList<QWidget *> visibleIn(const QWidget &window)
{
    QList<QWidget *> widgets;
    for (QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisible() && widget->window() == &window)
            widgets.append(widget);
    return widgets;
}
} // namespace

class AssistantRedLightTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void tipsAreRed_data() { forEachScene(); }
    void tipsAreRed();
    void listsAreRedAndLarge_data() { forEachScene(); }
    void listsAreRedAndLarge();
    void noMenuIsSmallOrColoured_data() { forEachScene(); }
    void noMenuIsSmallOrColoured();
    void focusAndPressAreRed_data() { forEachScene(); }
    void focusAndPressAreRed();
    void switchIsCompleteAtOnce();
    void otherWindowsAreRed();
};

void AssistantRedLightTest::tipsAreRed()
{
    QFETCH(int, scene);
    const ShownScene shown(scene, true);
    for (QWidget *const widget : visibleIn(*shown.window)) {
        if (widget->toolTip().isEmpty())
            continue;
        const QPoint place = widget->rect().center();
        QHelpEvent ask(QEvent::ToolTip, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &ask);
        QWidget *tip = nullptr;
        for (QWidget *const window : QApplication::topLevelWidgets())
            if (window->inherits("QTipLabel") && window->isVisible())
                tip = window;
        QVERIFY2(tip, qPrintable(widget->objectName()));
        const Light light = lightOf(tip->grab().toImage());
        QVERIFY2(light.coloured == 0 && light.bright > 20, qPrintable(widget->toolTip()));
        tip->hide();
        tip->deleteLater();
        settle();
    }
    QVERIFY(shown.window->isVisible());
}

void AssistantRedLightTest::listsAreRedAndLarge()
{
    QFETCH(int, scene);
    const ShownScene shown(scene, true);
    for (QWidget *const widget : visibleIn(*shown.window)) {
        auto *const box = qobject_cast<QComboBox *>(widget);
        if (!box)
            continue;
        box->showPopup();
        QTRY_VERIFY(QApplication::activePopupWidget());
        settle();
        for (int i = 0; i < box->count(); ++i) {
            const QRect row = box->view()->visualRect(box->model()->index(i, 0));
            QVERIFY2(row.width() >= finger && row.height() >= finger, qPrintable(box->itemText(i)));
        }
        const Light light = lightOf(shown.window->screen()
                                        ->grabWindow(QApplication::activePopupWidget()->winId())
                                        .toImage());
        QVERIFY(light.bright > 20);
        QCOMPARE(light.coloured, 0);
        box->hidePopup();
    }
    QCOMPARE(lightOf(screenImage(*shown.window)).coloured, 0);
}

/// By the right button, the menu key, or a finger that is held.
void AssistantRedLightTest::noMenuIsSmallOrColoured()
{
    QFETCH(int, scene);
    const ShownScene shown(scene, true);
    QStringList faults;
    QTimer closing; // a field's menu blocks the event until it is closed
    connect(&closing, &QTimer::timeout, [&] {
        QWidget *const popup = QApplication::activePopupWidget();
        if (!popup)
            return;
        if (lightOf(popup->grab().toImage()).coloured != 0)
            faults.append(QStringLiteral("coloured"));
        if (const auto *const menu = qobject_cast<QMenu *>(popup))
            for (QAction *const action : menu->actions())
                if (!action->isSeparator() && menu->actionGeometry(action).height() < finger)
                    faults.append(action->text() + ": " +
                                  QString::number(menu->actionGeometry(action).height()));
        popup->close();
    });
    closing.start(0);
    for (QWidget *const widget : visibleIn(*shown.window)) {
        for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
            const QPoint place = widget->rect().center();
            QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
            QApplication::sendEvent(widget, &event);
            settle();
        }
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

/// What changes its look under the pointer and the keys.
void AssistantRedLightTest::focusAndPressAreRed()
{
    QFETCH(int, scene);
    const ShownScene shown(scene, true);
    for (QWidget *const widget : visibleIn(*shown.window)) {
        auto *const button = qobject_cast<QAbstractButton *>(widget);
        const bool isField = qobject_cast<QAbstractSpinBox *>(widget) ||
                             qobject_cast<QLineEdit *>(widget) || widget->inherits("QSlider");
        if (!button && !isField)
            continue;
        if (widget->focusPolicy() != Qt::NoFocus)
            widget->setFocus();
        if (auto *const line = qobject_cast<QLineEdit *>(widget))
            line->selectAll();
        if (button && button->isEnabled())
            button->setDown(true);
        QTest::mouseMove(widget);
        QCOMPARE(lightOf(screenImage(*shown.window)).coloured, 0);
        if (button)
            button->setDown(false);
    }
}

void AssistantRedLightTest::switchIsCompleteAtOnce()
{
    const ShownScene shown(scenes::numberOf("night"));
    QVERIFY(lightOf(screenImage(*shown.window)).coloured > 1000);
    auto *const red = shown.window->findChild<QAbstractButton *>("checkBox_red");
    QTest::mouseClick(red, Qt::LeftButton, {}, {14, red->height() / 2});
    QCOMPARE(lightOf(screenImage(*shown.window)).coloured, 0);
    for (const int key : {int(Qt::Key_Escape), int(Qt::Key_F11), int(Qt::Key_Escape),
                          int(Qt::Key_F10), int(Qt::Key_Escape)}) {
        QTest::keyClick(shown.window.get(), Qt::Key(key));
        const Light light = lightOf(screenImage(*shown.window));
        QVERIFY(light.bright > 100);
        QCOMPARE(light.coloured, 0);
    }
    red->click();
    QVERIFY(lightOf(screenImage(*shown.window)).coloured > 1000);
}

/// Whatever else the program may open.
void AssistantRedLightTest::otherWindowsAreRed()
{
    const ShownScene shown(scenes::numberOf("connect"), true);
    QMessageBox box(QMessageBox::Warning, "Title", "Text", QMessageBox::Ok, shown.window.get());
    box.show();
    settle();
    const Light light = lightOf(shown.window->screen()->grabWindow(box.winId()).toImage());
    QVERIFY(light.bright > 20);
    QCOMPARE(light.coloured, 0);
}

QTEST_MAIN(AssistantRedLightTest)
#include "tst_assistantredlight.moc"
