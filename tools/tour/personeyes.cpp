// SPDX-License-Identifier: MIT
// What a user sees: stars, marks and the template in the picture, numbers in the labels.
#include "camera/session.h"
#include "tools/tour/person.h"

#include <QLabel>
#include <QRegularExpression>

namespace
{
constexpr int ringReach = 16; ///< frame pixels; larger than the template's rings
} // namespace

/// Throws if the shown template has no ring around a star, that is, pixels in all four quadrants.
void Person::checkRingRound(QPointF star) const
{
    auto &label = widget<QLabel>("label_templateImg");
    const QImage mask = label.pixmap(Qt::ReturnByValue).toImage();
    const double zoom = options.zoomPercent / 100.0;
    const QPoint centre =
        label.mapFrom(&window, widget<QLabel>("label_showImg").mapTo(&window, inView(star)));
    const int reach = int(ringReach * zoom);
    bool quarters[2][2] = {};
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx)
            if (mask.valid(centre + QPoint(dx, dy)) &&
                qAlpha(mask.pixel(centre + QPoint(dx, dy))) > 60)
                quarters[dy > 0][dx > 0] = true;
    if (!label.isVisible() || !quarters[0][0] || !quarters[0][1] || !quarters[1][0] ||
        !quarters[1][1])
        throw Stuck("the template has no ring around its star");
}

/// Where a user sees something: within a pixel or so.
QPointF Person::eye(QPointF place)
{
    std::uniform_real_distribution<double> slip(-1.5, 1.5);
    return place + QPointF(slip(random), slip(random));
}

/// Whether a star is well inside the frame and not covered by a page or the magnifier.
bool Person::staysClear(QPointF star) const
{
    constexpr int underOverlays = 170;
    const QRectF frame(30, 30, 1220, 900);
    return frame.contains(star) && star.y() * options.zoomPercent / 100.0 > underOverlays;
}

/// Whether a star can be picked at all three angles of the RA axis. A user can see which circle it
/// will move along.
bool Person::isPickable(QPointF (Knobs::*star)() const) const
{
    Knobs turned = knobs;
    for (const int angle : {0, firstTurn, 2 * firstTurn}) {
        turned.edit().raAngle = angle;
        if (!staysClear((turned.*star)()))
            return false;
    }
    return true;
}

QPointF Person::read(const char *label) const
{
    const QString text = widget<QLabel>(label).text();
    static const QRegularExpression point(R"(^\((-?[0-9.]+),(-?[0-9.]+)\)$)");
    const auto match = point.match(text);
    if (!match.hasMatch())
        throw Stuck(std::string("no position in ") + label);
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

QImage Person::shownPicture() const
{
    return widget<QLabel>("label_showImg")
        .pixmap(Qt::ReturnByValue)
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// The centroid of the green or red pixels, in frame pixels.
QPointF Person::markInPicture(Mark mark) const
{
    const QImage picture = shownPicture();
    QPointF sum;
    double weight = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            // Grey sky has no such pixels; where one mark covers the other, each gets its share.
            const int pure =
                (mark == Mark::Pole ? qGreen(line[x]) : qRed(line[x])) - qBlue(line[x]);
            if (pure <= 0)
                continue;
            sum += QPointF(x, y) * pure;
            weight += pure;
        }
    }
    if (weight <= 0)
        throw Stuck(mark == Mark::Pole ? "no pole mark is visible" : "no axis mark is visible");
    return sum / weight * 100.0 / options.zoomPercent;
}

QPointF Person::axisMark() const
{
    return options.mono ? session.alignmentPoints.savedAxisCenter.load()
                        : markInPicture(Mark::Axis);
}

/// The vector from the moving pole mark to the axis mark, averaged over some frames; frame pixels.
QPointF Person::fromPoleToAxis() const
{
    constexpr int frames = 8;
    QPointF sum;
    for (int i = 0; i < frames; ++i) {
        waitForFrames(1);
        if (!session.monitorPositions.poleValid)
            throw Stuck("the pole is not shown");
        sum += axisMark() - (options.mono ? session.monitorPositions.poleCurrent.load()
                                          : markInPicture(Mark::Pole));
    }
    return sum / frames;
}
