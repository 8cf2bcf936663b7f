// SPDX-License-Identifier: MIT
// Do the program and the virtual mount fit on the screen completely, frames included?
#include "virtualmount/places.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>
#include <QtTest>

using namespace virtualmount;

namespace
{
/// With its frame: the requested place is the frame's corner and the size inside the frame.
QRect outer(const QRect &place, const QMargins &frame)
{
    return {place.topLeft(),
            place.size() + QSize(frame.left() + frame.right(), frame.top() + frame.bottom())};
}

/// Places windows as a window manager does, away from the screen's corner.
class PlacingWindows : public QObject
{
public:
    bool placed = false;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *const window = qobject_cast<QWidget *>(watched);
            window && event->type() == QEvent::Show) {
            window->move(70, 80);
            placed = true;
        }
        return false;
    }
};
} // namespace
Q_DECLARE_METATYPE(QMargins)

class PlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void neitherLeavesTheScreen_data();
    void neitherLeavesTheScreen();
    void noMoreThanThePictureNeeds();
    void forScripts_data();
    void forScripts();
    void frameOfAWindow();
};

void PlacesTest::neitherLeavesTheScreen_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QMargins>("frame");
    QTest::addColumn<bool>("beside");
    const QMargins plain(1, 20, 1, 5), broad(10, 60, 10, 10);
    QTest::newRow("800 x 480") << QRect(0, 0, 800, 480) << plain << false;
    QTest::newRow("1024 x 768") << QRect(0, 0, 1024, 768) << plain << false;
    QTest::newRow("1280 x 720") << QRect(0, 0, 1280, 720) << plain << true;
    QTest::newRow("1366 x 768") << QRect(0, 0, 1366, 768) << plain << true;
    QTest::newRow("with panels") << QRect(60, 32, 1306, 688) << plain << true;
    QTest::newRow("with broad frames") << QRect(0, 0, 1366, 768) << broad << true;
    QTest::newRow("without frames") << QRect(0, 0, 1366, 768) << QMargins() << true;
    QTest::newRow("1920 x 1080") << QRect(0, 0, 1920, 1080) << plain << true;
    QTest::newRow("the right one of two screens") << QRect(1920, 0, 1920, 1080) << plain << true;
}

void PlacesTest::neitherLeavesTheScreen()
{
    QFETCH(QRect, screen);
    QFETCH(QMargins, frame);
    QFETCH(bool, beside);
    const WindowGeometries places = sharedScreen(screen, QSize(414, 644), frame);
    QCOMPARE(places.beside, beside);
    const QRect program = outer(places.program, frame), mount = outer(places.mount, frame);
    QVERIFY(screen.contains(program));
    QVERIFY(screen.contains(mount));
    QCOMPARE(places.mount.width(), 414);
    QCOMPARE(program.intersects(mount), !beside);
    if (beside)
        QVERIFY2(program.width() >= 800, qPrintable(QString::number(program.width())));
    else
        QCOMPARE(program, screen);
}

void PlacesTest::noMoreThanThePictureNeeds()
{
    const WindowGeometries places =
        sharedScreen(QRect(0, 0, 3840, 2160), QSize(414, 644), QMargins());
    QCOMPARE(places.program, QRect(0, 0, 1620, 1040));
    QCOMPARE(places.mount.size(), QSize(414, 644));
}

void PlacesTest::forScripts_data()
{
    QTest::addColumn<bool>("beside");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("beside") << true << QByteArray("beside 900x700+4+30 414x644+950+30");
    QTest::newRow("behind") << false << QByteArray("behind 900x700+4+30 414x644+950+30");
}

void PlacesTest::forScripts()
{
    QFETCH(bool, beside);
    QFETCH(QByteArray, text);
    QCOMPARE(geometriesText({beside, QRect(4, 30, 900, 700), QRect(950, 30, 414, 644)}), text);
}

void PlacesTest::frameOfAWindow()
{
    QWidget window;
    window.setGeometry(100, 200, 300, 400);
    window.show();
    const QRect outside = window.frameGeometry();
    const QMargins frame(100 - outside.left(), 200 - outside.top(), outside.right() - 399,
                         outside.bottom() - 599);
    QVERIFY(!frame.isNull());
    PlacingWindows placing;
    qApp->installEventFilter(&placing);
    // A busy machine may delay one try; a wait delays them all.
    bool waits = true;
    for (int i = 0; i < 10 && waits; ++i) {
        QElapsedTimer time;
        time.start();
        QCOMPARE(windowFrame(), frame);
        waits = time.elapsed() >= 500;
    }
    QVERIFY2(!waits, "waits although the frame is there");
    QVERIFY(placing.placed);
}

QTEST_MAIN(PlacesTest)
#include "tst_places.moc"
