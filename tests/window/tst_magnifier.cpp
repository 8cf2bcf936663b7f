// SPDX-License-Identifier: MIT
// Which pixels does the magnifier paint?
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"
#include "widgets/magnifierwidget.h"

#include <QImage>
#include <QPainter>
#include <QtTest>
#include <cmath>
#include <memory>

namespace
{
const QColor ground(10, 20, 30);

/// Every pixel encodes its place: red is x, green y, each modulo 256, and blue counts the wraps.
QPixmap placePicture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, 16 * (x / 256) + y / 256));
    return QPixmap::fromImage(image);
}

QPixmap plainPicture(const QColor &colour)
{
    QPixmap picture(400, 300);
    picture.fill(colour);
    return picture;
}

QImage paint(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(ground);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// A simple implementation of the view: each ellipse is filled completely.
class PlainView : public QWidget
{
public:
    PlainView(QSize viewSize, const QPixmap &square, float factor)
        : view(viewSize), region(square), zoom(double(factor))
    {
        resize(viewSize + QSize(2, 2));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing, true);
        QBrush brush(region);
        brush.setTransform(QTransform::fromScale(zoom, zoom));
        painter.setBrush(brush);
        const QRect whole(QPoint(0, 0), view);
        painter.drawEllipse(whole);
        const auto usePen = [&](const QColor &colour, int width) {
            painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        };
        usePen(QColor(160, 160, 160), 1);
        painter.drawEllipse(whole.adjusted(-1, -1, 1, 1));
        usePen(Qt::white, 2);
        painter.drawEllipse(whole);
        usePen(QColor(215, 215, 215), 1);
        painter.drawEllipse(whole.adjusted(1, 1, -1, -1));
        usePen(Qt::green, 1);
        const int x = view.width() / 2, y = view.height() / 2;
        painter.drawLine(x - 8, y, x + 8, y);
        painter.drawLine(x, y - 8, x, y + 8);
    }

private:
    QSize view;
    QPixmap region;
    double zoom;
};

/// The largest difference of two colours in one channel.
int distance(const QColor &a, const QColor &b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

QColor mean(const QColor &a, const QColor &b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}
} // namespace

class MagnifierTest : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data();
    void geometry();
    void clamping_data();
    void clamping();
    void paintingMovesTheCentre_data();
    void paintingMovesTheCentre();
    void initialState();
    void regionHoldsTheSquare_data();
    void regionHoldsTheSquare();
    void everyPixelOfTheView_data();
    void everyPixelOfTheView();
    void sameAsThePlainForm_data();
    void sameAsThePlainForm();
    void cross_data();
    void cross();
    void rims_data();
    void rims();
    void cornersStayClear();
    void emptyView_data();
    void emptyView();
    void oddZooms_data();
    void oddZooms();
    void sourceIsACopy();
    void settersDoNotRepaint();
};

void MagnifierTest::geometry_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("parent only") << QSize() << QRect(2, 2, 122, 122);
    QTest::newRow("150 x 150") << QSize(150, 150) << QRect(2, 2, 152, 152);
    QTest::newRow("80 x 60") << QSize(80, 60) << QRect(2, 2, 82, 62);
}

void MagnifierTest::geometry()
{
    QFETCH(QSize, view);
    QFETCH(QRect, expected);
    QWidget parent;
    const auto *const widget = view.isValid()
                                   ? new MagnifierWidget(view.width(), view.height(), &parent)
                                   : new MagnifierWidget(&parent);
    QCOMPARE(widget->geometry(), expected);
    QCOMPARE(widget->parentWidget(), &parent);
}

void MagnifierTest::clamping_data()
{
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");
    const QSize full(1280, 960);
    QTest::newRow("inside") << QPoint(300, 200) << full << QPoint(300, 200);
    QTest::newRow("origin") << QPoint(0, 0) << full << QPoint(25, 25);
    QTest::newRow("left") << QPoint(24, 200) << full << QPoint(25, 200);
    QTest::newRow("on the left bound") << QPoint(25, 200) << full << QPoint(25, 200);
    QTest::newRow("top") << QPoint(300, -7) << full << QPoint(300, 25);
    QTest::newRow("right") << QPoint(1279, 200) << full << QPoint(1255, 200);
    QTest::newRow("on the right bound") << QPoint(1255, 200) << full << QPoint(1255, 200);
    QTest::newRow("bottom") << QPoint(300, 2000) << full << QPoint(300, 935);
    QTest::newRow("far out") << QPoint(INT_MAX, INT_MIN) << full << QPoint(1255, 25);
    QTest::newRow("smaller source") << QPoint(10, 10) << QSize(20, 30) << QPoint(-5, 5);
    QTest::newRow("no source") << QPoint(10, 10) << QSize(0, 0) << QPoint(-25, -25);
}

void MagnifierTest::clamping()
{
    QFETCH(QPoint, centre);
    QFETCH(QSize, size);
    QFETCH(QPoint, expected);
    QCOMPARE(clampedCentre(centre, 25, size), expected);
}

void MagnifierTest::paintingMovesTheCentre_data()
{
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("3, origin") << 3.0F << QPoint(0, 0) << QPoint(25, 25);
    QTest::newRow("3, far corner") << 3.0F << QPoint(399, 299) << QPoint(375, 275);
    QTest::newRow("5, origin") << 5.0F << QPoint(0, 0) << QPoint(15, 15);
    QTest::newRow("5, far corner") << 5.0F << QPoint(500, 500) << QPoint(385, 285);
    QTest::newRow("5, inside") << 5.0F << QPoint(200, 150) << QPoint(200, 150);
}

void MagnifierTest::paintingMovesTheCentre()
{
    QFETCH(float, zoom);
    QFETCH(QPoint, centre);
    QFETCH(QPoint, expected);
    MagnifierWidget widget(150, 150);
    widget.setZoom(zoom);
    widget.setSource(placePicture(400, 300));
    widget.setCentre(centre);
    QCOMPARE(widget.magnifiedCentre(), centre);
    paint(widget);
    QCOMPARE(widget.magnifiedCentre(), expected);
}

void MagnifierTest::initialState()
{
    MagnifierWidget widget(150, 150);
    QCOMPARE(widget.magnifiedCentre(), QPoint(20, 20));
    widget.setSource(placePicture(400, 300));
    paint(widget);
    QCOMPARE(widget.magnifiedRegion().size(), QSize(50, 50)); // zoom 3
    QCOMPARE(widget.magnifiedCentre(), QPoint(25, 25));
}

void MagnifierTest::regionHoldsTheSquare_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QRect>("square");
    const QSize large(150, 150);
    QTest::newRow("150 at 3") << large << 3.0F << QRect(75, 75, 50, 50);
    QTest::newRow("150 at 5") << large << 5.0F << QRect(85, 85, 30, 30);
    QTest::newRow("120 at 3") << QSize(120, 120) << 3.0F << QRect(80, 80, 40, 40);
    QTest::newRow("an odd side") << large << 2.0F << QRect(63, 63, 75, 75);
    QTest::newRow("truncated") << large << 4.0F << QRect(82, 82, 37, 37);
    // Only the width counts.
    QTest::newRow("wider than high") << QSize(150, 90) << 3.0F << QRect(75, 75, 50, 50);
    QTest::newRow("higher than wide") << QSize(90, 150) << 3.0F << QRect(85, 85, 30, 30);
}

void MagnifierTest::regionHoldsTheSquare()
{
    QFETCH(QSize, view);
    QFETCH(float, zoom);
    QFETCH(QRect, square);
    MagnifierWidget widget(view.width(), view.height());
    widget.setZoom(zoom);
    const QPixmap source = placePicture(200, 200);
    widget.setSource(source);
    widget.setCentre(QPoint(100, 100));
    paint(widget);
    QCOMPARE(widget.magnifiedRegion().toImage(), source.copy(square).toImage());
}

void MagnifierTest::everyPixelOfTheView_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QPoint>("centre");
    QTest::newRow("3, inside") << 3 << QPoint(150, 120);
    QTest::newRow("5, inside") << 5 << QPoint(150, 120);
    QTest::newRow("5, past a wrap") << 5 << QPoint(260, 257);
    QTest::newRow("5, clamped") << 5 << QPoint(0, 0);
}

/// Inside the rims and off the cross each picture pixel is a block of zoom x zoom view pixels.
void MagnifierTest::everyPixelOfTheView()
{
    QFETCH(int, zoom);
    QFETCH(QPoint, centre);
    MagnifierWidget widget(150, 150);
    widget.setZoom(float(zoom));
    const QPixmap source = placePicture(400, 300);
    widget.setSource(source);
    widget.setCentre(centre);
    const QImage view = paint(widget);
    const QImage picture = source.toImage();
    const int half = 150 / zoom / 2;
    const QPoint corner = widget.magnifiedCentre() - QPoint(half, half);
    int compared = 0;
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 150; ++x) {
            const bool isOnCross = std::abs(x - 75) <= 10 && std::abs(y - 75) <= 10;
            if (std::hypot(x + 0.5 - 75, y + 0.5 - 75) > 71 || isOnCross)
                continue;
            QCOMPARE(QColor(view.pixel(x, y)),
                     QColor(picture.pixel(corner + QPoint(x / zoom, y / zoom))));
            ++compared;
        }
    }
    QVERIFY(compared > 15000);
}

void MagnifierTest::sameAsThePlainForm_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPixmap>("source");
    QTest::addColumn<QPoint>("centre");
    const QPixmap places = placePicture(400, 300);
    const QSize program(150, 150);
    QTest::newRow("the program's") << program << 5.0F << places << QPoint(200, 150);
    QTest::newRow("clamped") << program << 5.0F << places << QPoint(0, 299);
    QTest::newRow("3 times") << program << 3.0F << places << QPoint(260, 257);
    QTest::newRow("not whole") << program << 4.3F << places << QPoint(101, 77);
    QTest::newRow("larger than the picture")
        << program << 5.0F << placePicture(20, 13) << QPoint(5, 5);
    QTest::newRow("no picture") << program << 5.0F << QPixmap() << QPoint(20, 20);
    QTest::newRow("an oval") << QSize(151, 97) << 3.0F << places << QPoint(200, 150);
    for (int side = 1; side <= 40; side += 3)
        QTest::addRow("%d x %d", side, side + 2)
            << QSize(side, side + 2) << 2.0F << places << QPoint(200, 150);
}

/// To the last bit.
void MagnifierTest::sameAsThePlainForm()
{
    QFETCH(QSize, view);
    QFETCH(float, zoom);
    QFETCH(QPixmap, source);
    QFETCH(QPoint, centre);
    MagnifierWidget widget(view.width(), view.height());
    widget.setZoom(zoom);
    widget.setSource(source);
    widget.setCentre(centre);
    const QImage painted = paint(widget);
    PlainView plain(view, widget.magnifiedRegion(), zoom);
    QCOMPARE(painted, paint(plain));
}

void MagnifierTest::cross_data()
{
    QTest::addColumn<QSize>("view");
    QTest::newRow("150 x 150") << QSize(150, 150);
    QTest::newRow("120 x 120") << QSize(120, 120);
    QTest::newRow("101 x 81") << QSize(101, 81);
}

/// Lines of one pixel between whole coordinates cover half of the pixels on both their sides.
void MagnifierTest::cross()
{
    QFETCH(QSize, view);
    MagnifierWidget widget(view.width(), view.height());
    widget.setSource(plainPicture(Qt::black));
    widget.setCentre(QPoint(200, 150));
    const QImage image = paint(widget);
    const QPoint middle(view.width() / 2, view.height() / 2);
    const QColor half = mean(Qt::green, Qt::black);
    const auto at = [&](int dx, int dy) { return image.pixelColor(middle + QPoint(dx, dy)); };
    for (int along = -8; along < 8; ++along) {
        if (std::abs(along) < 2)
            continue; // the crossing itself is brighter
        for (const int across : {-1, 0}) {
            QVERIFY(distance(at(along, across), half) <= 2);
            QVERIFY(distance(at(across, along), half) <= 2);
        }
        for (const int beside : {-2, 1}) {
            QVERIFY(distance(at(along, beside), Qt::black) <= 1);
            QVERIFY(distance(at(beside, along), Qt::black) <= 1);
        }
    }
    // A square cap adds half a pixel at each end.
    for (const int end : {-9, 8}) {
        QVERIFY(distance(at(end, 0), mean(half, Qt::black)) <= 2);
        QVERIFY(distance(at(0, end), mean(half, Qt::black)) <= 2);
    }
    for (const int end : {-10, 9}) {
        QVERIFY(distance(at(end, 0), Qt::black) <= 1);
        QVERIFY(distance(at(0, end), Qt::black) <= 1);
    }
}

void MagnifierTest::rims_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<QColor>("expected");
    const QColor white(255, 255, 255), light(215, 215, 215), grey(160, 160, 160);
    QTest::newRow("right, inside the rims") << 147 << QColor(Qt::black);
    QTest::newRow("right, half light") << 148 << mean(light, Qt::black);
    QTest::newRow("right, light over white") << 149 << mean(light, white);
    QTest::newRow("right, white") << 150 << white;
    QTest::newRow("right, half grey") << 151 << mean(grey, ground);
    QTest::newRow("left, light over white") << 0 << mean(light, white);
    QTest::newRow("left, half light") << 1 << mean(light, Qt::black);
    QTest::newRow("left, inside the rims") << 2 << QColor(Qt::black);
}

/// Along the row through the middle, where the rims are upright; their bend adds a few levels.
void MagnifierTest::rims()
{
    QFETCH(int, x);
    QFETCH(QColor, expected);
    MagnifierWidget widget(150, 150);
    widget.setSource(plainPicture(Qt::black));
    widget.setCentre(QPoint(200, 150));
    const QImage image = paint(widget);
    for (const QColor &found : {image.pixelColor(x, 75), image.pixelColor(75, x)})
        QVERIFY2(distance(found, expected) <= 8, qPrintable(found.name() + " " + expected.name()));
}

void MagnifierTest::cornersStayClear()
{
    MagnifierWidget widget(150, 150);
    widget.setSource(plainPicture(Qt::red));
    const QImage image = paint(widget);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(151, 0), QPoint(0, 151), QPoint(151, 151),
                                 QPoint(15, 15), QPoint(135, 135)})
        QVERIFY(distance(image.pixelColor(corner), ground) <= 0);
}

void MagnifierTest::emptyView_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::newRow("never given a picture") << false;
    QTest::newRow("given an empty one") << true;
}

void MagnifierTest::emptyView()
{
    QFETCH(bool, isSet);
    MagnifierWidget widget(150, 150);
    widget.setZoom(5.0F);
    if (isSet)
        widget.setSource(QPixmap());
    const LogRecorder log;
    const QImage image = paint(widget);
    QCOMPARE(log.lines().size(), 0);
    for (const QPoint &inside : {QPoint(40, 40), QPoint(75, 30), QPoint(110, 90)})
        QCOMPARE(image.pixelColor(inside), ground);
    QVERIFY(distance(image.pixelColor(150, 75), Qt::white) <= 4);
    QVERIFY(distance(image.pixelColor(70, 75), mean(Qt::green, ground)) <= 2);
}

void MagnifierTest::oddZooms_data()
{
    QTest::addColumn<float>("zoom");
    QTest::newRow("larger than the view") << 151.0F;
    QTest::newRow("zero") << 0.0F;
    QTest::newRow("negative") << -5.0F;
    QTest::newRow("no number") << std::nanf("");
}

/// Zooms that no caller sets are painted without errors.
void MagnifierTest::oddZooms()
{
    QFETCH(float, zoom);
    MagnifierWidget widget(150, 150);
    widget.setZoom(zoom);
    widget.setSource(placePicture(200, 200));
    const QImage image = paint(widget);
    QVERIFY(distance(image.pixelColor(150, 75), Qt::white) <= 4);
    QVERIFY(widget.magnifiedRegion().width() <= 200);
}

void MagnifierTest::sourceIsACopy()
{
    MagnifierWidget widget(150, 150);
    QPixmap picture = plainPicture(Qt::blue);
    widget.setSource(picture);
    picture.fill(Qt::red);
    QCOMPARE(paint(widget).pixelColor(40, 75), QColor(Qt::blue));
}

/// Counts the paint events that a widget gets.
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

void MagnifierTest::settersDoNotRepaint()
{
    MagnifierWidget widget(150, 150);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QTest::qWait(50);
    PaintCounter counter;
    widget.installEventFilter(&counter);
    widget.setZoom(5.0F);
    widget.setSource(plainPicture(Qt::red));
    widget.setCentre(QPoint(50, 50));
    QTest::qWait(50);
    QCOMPARE(counter.count, 0);
    widget.update();
    QTRY_COMPARE(counter.count, 1);
}

QTEST_MAIN(MagnifierTest)
#include "tst_magnifier.moc"
