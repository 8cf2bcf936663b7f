// SPDX-License-Identifier: MIT
// What is shown about the place under the mouse, over the picture and over the pages?
#include "tests/support/logrecorder.h"
#include "tests/window/pickingwindow.h"
#include "widgets/magnifierwidget.h"

#include <QTabWidget>

Q_DECLARE_METATYPE(QEvent::Type)

class PointerTest : public QObject
{
    Q_OBJECT

private slots:
    void readOut_data();
    void readOut();
    void rounding_data();
    void rounding();
    void noReadOutWithoutButton();
    void zoomKeepsThePlace_data();
    void zoomKeepsThePlace();
    void overThePages_data();
    void overThePages();
    void notConnected();
    void noPictureYet();
    void consumed_data();
    void consumed();
};

void PointerTest::readOut_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("scroll");
    QTest::addColumn<QPoint>("view");
    QTest::addColumn<QString>("text");
    const QPoint still;
    QTest::newRow("100") << 1.0 << still << QPoint(640, 480) << "640.0,480.0";
    QTest::newRow("75") << 0.75 << still << QPoint(481, 400) << "641.3,533.3";
    QTest::newRow("50") << 0.5 << still << QPoint(321, 240) << "642.0,480.0";
    QTest::newRow("100, scrolled") << 1.0 << QPoint(90, 120) << QPoint(340, 480) << "340.0,480.0";
    QTest::newRow("off to the left") << 0.5 << still << QPoint(-1, 217) << "-2.0,434.0";
    QTest::newRow("off to the left, 100") << 1.0 << still << QPoint(-12, 300) << "-12.0,300.0";
    QTest::newRow("off below") << 0.75 << still << QPoint(300, 1200) << "400.0,1600.0";
    QTest::newRow("off to the left, scrolled")
        << 1.0 << QPoint(90, 120) << QPoint(-30, 333) << "-30.0,333.0";
}

void PointerTest::readOut()
{
    QFETCH(double, zoom);
    QFETCH(QPoint, scroll);
    QFETCH(QPoint, view);
    QFETCH(QString, text);
    const PickingWindow w(zoom, scroll);
    const LogRecorder log;
    w.drag(QPoint(200, 420) * zoom + scroll, view);
    QCOMPARE(w.position.text(), text);
    QCOMPARE(w.window->step(), 1);
    auto *const magnifier = w.window->findChild<MagnifierWidget *>();
    if (w.image.rect().adjusted(100, 100, -100, -100).contains(view))
        QCOMPARE(magnifier->magnifiedCentre(), view);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
}

void PointerTest::rounding_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QString>("text");
    QTest::newRow("halves go up") << 1.0 << QPointF(2.5, 3.5) << "3.0,4.0";
    QTest::newRow("below a half") << 1.0 << QPointF(2.4, 3.49) << "2.0,3.0";
    QTest::newRow("minus a half") << 1.0 << QPointF(-0.5, -1.5) << "0.0,-1.0";
    QTest::newRow("-4.5") << 0.5 << QPointF(-4.5, 17.2) << "-8.0,34.0";
    QTest::newRow("single precision") << 0.75 << QPointF(1, 2) << "1.3,2.7";
}

void PointerTest::rounding()
{
    QFETCH(double, zoom);
    QFETCH(QPointF, place);
    QFETCH(QString, text);
    const PickingWindow w(zoom);
    sendMouse(w.image, QEvent::MouseMove, place);
    QCOMPARE(w.position.text(), text);
}

void PointerTest::noReadOutWithoutButton()
{
    const PickingWindow w;
    QTest::mouseMove(w.window->windowHandle(), w.inWindow({300, 400}));
    QTest::qWait(20);
    QCOMPARE(w.position.text(), QString());
}

void PointerTest::zoomKeepsThePlace_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<double>("to");
    QTest::newRow("100 to 75") << 1.0 << QByteArray("action75") << 0.75;
    QTest::newRow("75 to 100") << 0.75 << QByteArray("action100") << 1.0;
    QTest::newRow("100 to 50") << 1.0 << QByteArray("action50") << 0.5;
    QTest::newRow("50 to 100") << 0.5 << QByteArray("action100") << 1.0;
}

/// In the middle of the view, as far as scrolling allows, and in the magnifier.
void PointerTest::zoomKeepsThePlace()
{
    QFETCH(double, from);
    QFETCH(QByteArray, action);
    QFETCH(double, to);
    const PickingWindow w(from);
    w.window->resize(700, 400);
    const auto &area = w.child<QScrollArea>("scrollArea_showImg");
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 100);
    QTRY_VERIFY(area.horizontalScrollBar()->maximum() > 100);
    const auto place = [&](double zoom) {
        return QPointF(area.horizontalScrollBar()->value() + area.viewport()->width() / 2.0,
                       area.verticalScrollBar()->value() + area.viewport()->height() / 2.0) /
               zoom;
    };
    area.horizontalScrollBar()->setValue(int(640 * from) - area.viewport()->width() / 2);
    area.verticalScrollBar()->setValue(int(480 * from) - area.viewport()->height() / 2);
    const QPoint star = (QPointF(600, 450) * from).toPoint();
    sendMouse(w.image, QEvent::MouseMove, star);
    const QPointF before = place(from);
    w.trigger(action);
    QTRY_COMPARE(w.image.width(), int(1280 * to));
    QTest::qWait(50); // later layouting must not undo it
    QVERIFY2((place(to) - before).manhattanLength() <= 6, "another place is in the middle");
    const QPoint magnified = w.window->findChild<MagnifierWidget *>()->magnifiedCentre();
    QVERIFY((QPointF(magnified) / to - QPointF(star) / from).manhattanLength() <= 4);
}

void PointerTest::overThePages_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("scroll");
    QTest::newRow("100") << 1.0 << QPoint();
    QTest::newRow("75") << 0.75 << QPoint();
    QTest::newRow("50") << 0.5 << QPoint();
    QTest::newRow("100, scrolled") << 1.0 << QPoint(90, 120);
}

void PointerTest::overThePages()
{
    QFETCH(double, zoom);
    QFETCH(QPoint, scroll);
    const PickingWindow w(zoom, scroll);
    auto &tabs = w.child<QTabWidget>("tabWidget_tipMsg");
    QWidget &page = *tabs.currentWidget();
    const QPoint from(20, 10), to(61, 17);
    QWindow *const handle = w.window->windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, page.mapTo(w.window.get(), from));
    QTest::mouseMove(handle, page.mapTo(w.window.get(), to));
    QTest::qWait(5);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, page.mapTo(w.window.get(), to));
    // The tab widget's place counts, not the page's place in it and not the scrolling.
    const QPoint view = tabs.pos() + to;
    const float factor = float(zoom);
    const QString text = QString::number(double(float(view.x()) / factor), 'f', 1) + ',' +
                         QString::number(double(float(view.y()) / factor), 'f', 1);
    QCOMPARE(w.position.text(), text);
    QCOMPARE(w.window->findChild<MagnifierWidget *>()->magnifiedCentre(), view);
}

void PointerTest::notConnected()
{
    const CameraWindow w;
    auto &image = w.child<QLabel>("label_showImg");
    const BoxWatcher boxes;
    const LogRecorder log;
    sendMouse(image, QEvent::MouseMove, {10, 10});
    sendMouse(image, QEvent::MouseButtonDblClick, {10, 10});
    sendMouse(*w.child<QTabWidget>("tabWidget_tipMsg").currentWidget(), QEvent::MouseMove, {5, 5});
    QTest::qWait(30);
    QCOMPARE(w.child<QLabel>("positionLabel").text(), QString());
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(log.texts(QtDebugMsg) + log.texts(QtCriticalMsg), QStringList());
}

void PointerTest::noPictureYet()
{
    const CameraWindow w;
    w.connectCamera();
    w.enterStep(3);
    const BoxWatcher boxes;
    const LogRecorder log;
    sendMouse(w.child<QLabel>("label_showImg"), QEvent::MouseMove, {11, 12});
    const QString message = "no pixmap has been set in the Label_showImg";
    QCOMPARE(log.texts(QtCriticalMsg), QStringList(message));
    QCOMPARE(w.child<QLabel>("positionLabel").text(), QStringLiteral("11.0,12.0"));
    sendMouse(w.child<QLabel>("label_showImg"), QEvent::MouseButtonDblClick, {21, 22});
    QCOMPARE(log.texts(QtCriticalMsg).value(1), message);
    QCOMPARE(w.child<QLabel>("positionLabel").text(), QStringLiteral("21.0,22.0"));
    QCOMPARE(boxes.boxes(), QList<Box>{noStarBox});
    QCOMPARE(w.window->step(), 3);
}

void PointerTest::consumed_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("onPage"); ///< otherwise on the picture
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<bool>("expected");
    const struct {
        const char *name;
        QEvent::Type type;
        bool byPicture, byPage; ///< while connected
    } events[] = {
        {"move", QEvent::MouseMove, true, true},
        {"double click", QEvent::MouseButtonDblClick, true, false},
        {"press", QEvent::MouseButtonPress, false, false},
        {"release", QEvent::MouseButtonRelease, false, false},
    };
    for (const auto &e : events) {
        QTest::addRow("picture, %s", e.name) << true << false << e.type << e.byPicture;
        QTest::addRow("page, %s", e.name) << true << true << e.type << e.byPage;
        QTest::addRow("not connected, picture, %s", e.name) << false << false << e.type << false;
        QTest::addRow("not connected, page, %s", e.name) << false << true << e.type << false;
    }
    // Other kinds of events are passed on to the widget.
    for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::Show, QEvent::Resize,
                                    QEvent::FocusIn, QEvent::HoverMove, QEvent::LanguageChange}) {
        QTest::addRow("picture, event %d", type) << true << false << type << false;
        QTest::addRow("page, event %d", type) << true << true << type << false;
    }
}

/// A consumed event does not reach the widget; one that is not leaves the read-out unchanged.
void PointerTest::consumed()
{
    QFETCH(bool, connected);
    QFETCH(bool, onPage);
    QFETCH(QEvent::Type, type);
    QFETCH(bool, expected);
    const CameraWindow w;
    auto &image = w.child<QLabel>("label_showImg");
    if (connected) {
        showFrame(starFrame({{300, 400}}));
        w.connectCamera();
        QVERIFY(w.waitForNewFrame());
    }
    QWidget &page = *w.child<QTabWidget>("tabWidget_tipMsg").currentWidget();
    QWidget &watched = onPage ? page : static_cast<QWidget &>(image);
    const BoxWatcher boxes;
    // A mouse event of every type: only the mouse's own types may be handled as one.
    QMouseEvent event(type, QPointF(300, 400), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCOMPARE(w.window->eventFilter(&watched, &event), expected);
    QCOMPARE(w.child<QLabel>("positionLabel").text().isEmpty(), !expected);
    QCOMPARE(boxes.boxes(), QList<Box>());
    QCOMPARE(w.window->step(), 1);
}

QTEST_MAIN(PointerTest)
#include "tst_pointer.moc"
