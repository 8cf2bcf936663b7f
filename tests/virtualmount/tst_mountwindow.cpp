// SPDX-License-Identifier: MIT
// Is everything in the virtual mount's window reachable, and do keys, mouse and wheel reach what
// they are meant for?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/support/wheel.h"
#include "tests/virtualmount/mountwindowtest.h"
#include "virtualmount/oneinstance.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QLocalSocket>
#include <QSet>
#include <QSlider>
#include <atomic>
#include <thread>

namespace
{
/// Counts the local sockets that Qt's event loop deletes while it exists.
class DeletedSockets : public QObject
{
public:
    DeletedSockets() { qApp->installEventFilter(this); }
    int count() const { return deleted; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DeferredDelete && qobject_cast<QLocalSocket *>(watched))
            ++deleted;
        return false;
    }

private:
    int deleted = 0;
};
} // namespace

class MountWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void arrowsStayInTheFields_data();
    void arrowsStayInTheFields();
    void wheelNeedsTheFocus_data();
    void wheelNeedsTheFocus();
    void arrowsAreTheBoltsAfterTheMouse();
    void everythingIsReachedByTab();
    void mnemonicsAreUnique();
    void everythingHasAName();
    void fitsBesideTheMainWindow();
    void hasAnIcon();
    void returnPressesOnce_data();
    void returnPressesOnce();
    void laterStartsLeaveNothingBehind();
};

void MountWindowTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountWindowTest::arrowsStayInTheFields_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field :
         {"dial", "latitude", "latitudeSide", "longitude", "longitudeSide", "clouds", "seeing"})
        QTest::newRow(field) << field;
}

void MountWindowTest::arrowsStayInTheFields()
{
    QFETCH(QString, field);
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 45\n[weather]\nclouds = 0.5\n");
    const ShownWindow shown(file.path());
    named<QWidget>(shown.window, field).setFocus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
        press(key);
    press(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "azimuthCount"), QString("0"));
    QCOMPARE(file.state().boltAltitude, 0.6);
    press(Qt::Key_Escape); // out of the field
    press(Qt::Key_Up);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.25 up"));
}

void MountWindowTest::wheelNeedsTheFocus_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field : {"dial", "latitude", "latitudeSide", "longitude", "longitudeSide",
                              "timeMode", "date", "clouds", "moon", "seeing"})
        QTest::newRow(field) << field;
}

/// The wheel over a field without the focus changes nothing.
void MountWindowTest::wheelNeedsTheFocus()
{
    QFETCH(QString, field);
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 45\n[weather]\nclouds = 0.5\nmoon = 0.5\n");
    const QByteArray before = file.text();
    const ShownWindow shown(file.path());
    auto &widget = named<QWidget>(shown.window, field);
    for (const int notches : {-1, 1, 1})
        rollWheel(widget, notches);
    QTest::qWait(100);
    QVERIFY(!widget.hasFocus());
    QCOMPARE(file.text(), before);
}

void MountWindowTest::arrowsAreTheBoltsAfterTheMouse()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &dial = named<QDial>(shown.window, "dial");
    QTest::mouseClick(&dial, Qt::LeftButton, Qt::NoModifier, QPoint(4, dial.height() / 2));
    QTRY_VERIFY(!dial.hasFocus());
    press(Qt::Key_Up);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.25 up"));
    auto &side = named<QComboBox>(shown.window, "latitudeSide");
    side.setFocus();
    side.showPopup();
    QAbstractItemView &list = *side.view();
    QTRY_VERIFY(list.isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 100); // until the list accepts a release
    const QPoint south(10, list.visualRect(list.model()->index(1, 0)).center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, south);
    QTRY_COMPARE(side.currentIndex(), 1);
    QTRY_VERIFY(!side.hasFocus());
    press(Qt::Key_Up);
    QCOMPARE(side.currentIndex(), 1);
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0.50 up"));
}

void MountWindowTest::everythingIsReachedByTab()
{
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\n");
    const ShownWindow shown(file.path());
    QSet<QWidget *> fields;
    for (QWidget *const widget : shown.window.findChildren<QWidget *>())
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
            !widget->focusProxy())
            fields.insert(widget);
    QVERIFY2(fields.size() >= 30, qPrintable(QString::number(fields.size())));
    QWidget *const first = QApplication::focusWidget();
    QList<QWidget *> reached;
    do {
        if (reached.isEmpty() || reached.last() != QApplication::focusWidget())
            reached.append(QApplication::focusWidget()); // a date is left after its last part
        press(Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && reached.size() < 100);
    for (QWidget *const field : fields)
        QVERIFY2(reached.contains(field), qPrintable(field->objectName()));
    // Down the window; within a panel the order may go along a line or a column.
    QCOMPARE(reached.size(), fields.size());
    int backwards = 0;
    for (int i = 1; i < reached.size(); ++i) {
        const auto top = [&](const QWidget *w) { return w->mapTo(&shown.window, QPoint()).y(); };
        backwards += top(reached[i]) < top(reached[i - 1]) - 30;
    }
    QCOMPARE(backwards, 1); // from the last to the first
}

void MountWindowTest::mnemonicsAreUnique()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QHash<QString, QString> users;
    const auto take = [&](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty())
            return;
        QVERIFY2(!users.contains(key.toString()),
                 qPrintable(text + " and " + users.value(key.toString())));
        users.insert(key.toString(), text);
    };
    for (const auto *const button : shown.window.findChildren<QAbstractButton *>())
        take(button->text());
    for (const auto *const label : shown.window.findChildren<QLabel *>())
        if (label->buddy())
            take(label->text());
    QVERIFY2(users.size() >= 14, qPrintable(QString::number(users.size())));
}

void MountWindowTest::everythingHasAName()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int fields = 0;
    for (const auto *const widget : shown.window.findChildren<QWidget *>()) {
        const auto *const button = qobject_cast<const QAbstractButton *>(widget);
        const bool isField = qobject_cast<const QAbstractSpinBox *>(widget) ||
                             qobject_cast<const QAbstractSlider *>(widget) ||
                             qobject_cast<const QComboBox *>(widget);
        if (!(button || isField) || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        ++fields;
        const bool says = button && !button->text().isEmpty();
        QVERIFY2(says || !widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QVERIFY2(fields >= 31, qPrintable(QString::number(fields)));
}

void MountWindowTest::fitsBesideTheMainWindow()
{
    const SkyFileFixture file;
    // Its place on the screen is computed before any is shown.
    virtualmount::MountWindow hidden(file.path());
    hidden.ensurePolished();
    const QSize planned = hidden.sizeHint();
    const ShownWindow shown(file.path());
    const QSize size = shown.window.size();
    QVERIFY2(size.width() >= 360 && size.width() <= 420, qPrintable(QString::number(size.width())));
    QVERIFY2(size.height() <= 700, qPrintable(QString::number(size.height())));
    QCOMPARE(shown.window.windowTitle(), QString("Quorvandel Virtual Mount"));
    QCOMPARE(size, planned);
    QCOMPARE(named<QWidget>(shown.window, "centralWidget").sizeHint().width(), size.width());
}

/// In every size that a title bar or a window list may request.
void MountWindowTest::hasAnIcon()
{
    const SkyFileFixture file;
    const virtualmount::MountWindow window(file.path());
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        const QImage picture = window.windowIcon().pixmap(side, side).toImage();
        QCOMPARE(picture.size(), QSize(side, side));
        QVERIFY(picture.pixelColor(side / 2, side / 2).alpha() > 0);
    }
}

void MountWindowTest::returnPressesOnce_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("space bar") << Qt::Key_Space;
}

void MountWindowTest::returnPressesOnce()
{
    QFETCH(Qt::Key, key);
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &truth = named<QAbstractButton>(shown.window, "showTruth");
    const QSignalSpy clicks(&truth, &QAbstractButton::clicked);
    truth.setFocus();
    press(key);
    QCOMPARE(clicks.count(), 1);
    auto &tracking = named<QAbstractButton>(shown.window, "tracking");
    const bool before = tracking.isChecked();
    tracking.setFocus();
    press(key);
    QCOMPARE(tracking.isChecked(), !before);
}

void MountWindowTest::laterStartsLeaveNothingBehind()
{
    const SkyFileFixture file;
    ShownWindow shown(file.path());
    virtualmount::OneInstance instance(file.path());
    QVERIFY(!instance.isOpenElsewhere());
    instance.announce(shown.window);
    const DeletedSockets deleted;
    constexpr int starts = 3;
    int found = 0;
    std::atomic<bool> areOver{false};
    std::thread later([&] {
        for (int i = 0; i < starts; ++i)
            found += virtualmount::OneInstance(file.path()).isOpenElsewhere(false) ? 1 : 0;
        areOver = true;
    });
    const bool haveEnded = comesTrue([&areOver] { return areOver.load(); });
    later.join();
    QVERIFY(haveEnded);
    QCOMPARE(found, starts);
    QTRY_COMPARE(deleted.count(), starts);
}

QTEST_MAIN(MountWindowTest)
#include "tst_mountwindow.moc"
