// SPDX-License-Identifier: MIT
// Does everything use the warm colours that protect dark-adapted eyes: the widgets with the focus,
// and the icons in the boxes?
#include "app/stylesheet.h"
#include "tests/support/patience.h"
#include "tests/window/freshwindowtest.h"

#include <QDial>
#include <QMessageBox>

class WarmColoursTest : public FreshWindowTest
{
    Q_OBJECT

private slots:
    void focus_data();
    void focus();
    void boxes_data();
    void boxes();
    void objectNamesAreNotSeen();
};

namespace
{
/// How many pixels have more blue than red and green.
int bluishPixels(const QImage &image)
{
    constexpr int visible = 4; // of 255
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.alpha() > 0 && colour.blue() > colour.red() + visible &&
                colour.blue() >= colour.green())
                ++count;
        }
    return count;
}

void applySheet()
{
    if (qApp->styleSheet().isEmpty())
        applyStyleSheet(*qApp, ":/qss/default.qss");
}
} // namespace

void WarmColoursTest::focus_data()
{
    QTest::addColumn<int>("step");
    for (const char *const name :
         {"radioButton_north", "pushButton_setting_done", "pushButton_monitor", "dial_tracking",
          "pushButton_tracking_add", "pushButton_reset", "checkBox_enableAstroRef",
          "cBox_playMusic", "pushButton_ok"})
        QTest::newRow(name) << 1;
    QTest::newRow("pushButton_confirm_add") << 2;
    QTest::newRow("pushButton_rotateStar1_reset") << 4;
}

/// Visible, and not blue.
void WarmColoursTest::focus()
{
    QFETCH(int, step);
    applySheet();
    auto &widget = named<QWidget>(*window, QTest::currentDataTag());
    QWidget &top = *widget.window();
    top.show();
    probe->switchStep(step);
    top.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&top, patience));
    top.setAttribute(Qt::WA_KeyboardFocusChange); // as after the Tab key
    widget.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(widget.hasFocus());
    const QImage with = widget.grab().toImage();
    widget.clearFocus();
    const QImage without = widget.grab().toImage();
    QVERIFY(with != without);
    QCOMPARE(bluishPixels(without), 0);
    QCOMPARE(bluishPixels(with), 0);
}

void WarmColoursTest::boxes_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("question") << QMessageBox::Question;
    QTest::newRow("information") << QMessageBox::Information;
    QTest::newRow("warning") << QMessageBox::Warning;
    QTest::newRow("critical") << QMessageBox::Critical;
}

void WarmColoursTest::boxes()
{
    QFETCH(QMessageBox::Icon, icon);
    applySheet();
    QMessageBox box(icon, "Title", "Text", QMessageBox::Yes | QMessageBox::No);
    box.show();
    const QPixmap sign = box.iconPixmap();
    QVERIFY(!sign.isNull());
    QCOMPARE(bluishPixels(sign.toImage()), 0);
}

/// The text is for a picture that is yet to come.
void WarmColoursTest::objectNamesAreNotSeen()
{
    applySheet();
    auto &label = named<QLabel>(*window, "label_biggerImg");
    window->show();
    probe->switchStep(12);
    QCOMPARE(label.text(), QString("roiBigger_image"));
    const QImage shown = label.grab().toImage();
    label.setText(QString());
    QCOMPARE(shown, label.grab().toImage());
}

QTEST_MAIN(WarmColoursTest)
#include "tst_warmcolours.moc"
