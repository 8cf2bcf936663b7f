// SPDX-License-Identifier: MIT
// Where is the celestial pole in a picture with two stars at known positions?
#include "geometry/polecomputation.h"

#include "geometry/angles.h"

#include <QDebug>
#include <cmath>

namespace
{
struct Point {
    double x;
    double y;
};

enum class Outcome { Invalid, NotANumber, Apart, Touching, Crossing };

/// The two possible corners P of the triangle A-B-P; identical if the circles touch.
struct Corners {
    Outcome outcome;
    Point plus;
    Point minus;
};

double distance(Point p, Point q)
{
    return std::sqrt((p.x - q.x) * (p.x - q.x) + (p.y - q.y) * (p.y - q.y));
}

/// Intersects the circles about A and B whose radii follow from the law of sines.
Corners corners(Point a, double alpha, Point b, double beta)
{
    const double sinP = std::sin(toRadians(180.0 - alpha - beta));
    if (sinP == 0.0 || b.x == a.x)
        return {Outcome::Invalid, {0.0, 0.0}, {0.0, 0.0}};
    const double k = distance(a, b) / sinP;
    const double radiusA = k * std::sin(toRadians(beta));
    const double radiusB = k * std::sin(toRadians(alpha));

    // The line through both crossings is 2 (bx - ax) x + 2 (by - ay) y = chord.
    const double chord =
        radiusA * radiusA - radiusB * radiusB + b.x * b.x - a.x * a.x + b.y * b.y - a.y * a.y;
    const double slope = (b.y - a.y) / (b.x - a.x);
    const double e = chord / (2.0 * (b.x - a.x));
    const double quadratic = 1.0 + slope * slope;
    const double linear = slope * (2.0 * a.x - 2.0 * e) - 2.0 * a.y;
    const double constant = a.y * a.y + (a.x - e) * (a.x - e) - radiusA * radiusA;
    const double disc = linear * linear - 4.0 * quadratic * constant;
    if (disc == 0.0) {
        const double y = -linear / (2.0 * quadratic);
        return {Outcome::Touching, {y, y}, {y, y}};
    }
    if (!(disc > 0.0))
        return {disc < 0.0 ? Outcome::Apart : Outcome::NotANumber, {0.0, 0.0}, {0.0, 0.0}};

    const double root = std::sqrt(disc);
    const auto crossing = [&](double y) {
        return Point{(chord - 2.0 * y * (b.y - a.y)) / (2.0 * (b.x - a.x)), y};
    };
    return {Outcome::Crossing, crossing((root - linear) / (2.0 * quadratic)),
            crossing((-root - linear) / (2.0 * quadratic))};
}

/// Angle at B between the directions to D and to a candidate, degrees.
double angleAtB(Point candidate, Point d, Point b)
{
    const double a = distance(d, b);
    const double s = distance(candidate, b);
    const double t = distance(d, candidate);
    return toDegrees(std::acos((a * a + s * s - t * t) / (2.0 * a * s)));
}
/// The log messages for triangles without a pole; null = no message.
struct Complaints {
    const char *invalid, *apart, *notANumber;
};

int fail(const char *complaint)
{
    if (complaint)
        qCritical("%s", complaint);
    return -1;
}

/// Stores the pole in poleX and poleY: the only corner, or the one that `choose` picks of two.
/// Returns 0, or -1 with both outputs 0 if there is none.
template <typename Choose>
int pole(const Corners &found, const Complaints &complaints, Choose choose, double &poleX,
         double &poleY)
{
    const Point chosen = found.outcome == Outcome::Crossing ? choose() : found.plus;
    poleX = chosen.x;
    poleY = chosen.y;
    switch (found.outcome) {
    case Outcome::Invalid:
        return fail(complaints.invalid);
    case Outcome::Apart:
        return fail(complaints.apart);
    case Outcome::NotANumber:
        return fail(complaints.notANumber);
    case Outcome::Touching:
    case Outcome::Crossing:
        break;
    }
    return 0;
}
} // namespace

void CandidateByAngle(double firstX, double firstY, double secondX, double secondY, double xd,
                      double yd, double xb, double yb, double angleDBP, double &chosenX,
                      double &chosenY)
{
    const Point d{xd, yd};
    const Point b{xb, yb};
    const double first = std::fabs(angleAtB({firstX, firstY}, d, b) - angleDBP);
    const double second = std::fabs(angleAtB({secondX, secondY}, d, b) - angleDBP);
    chosenX = first < second ? firstX : secondX;
    chosenY = first < second ? firstY : secondY;
}

int PoleFromTriangle(double x1, double y1, double angleA, double x2, double y2, double angleB,
                     double xd, double yd, double angleDBP, double &poleX, double &poleY)
{
    const Corners found = corners({x1, y1}, angleA, {x2, y2}, angleB);
    const auto byAngle = [&] {
        Point chosen{};
        CandidateByAngle(found.plus.x, found.plus.y, found.minus.x, found.minus.y, xd, yd, x2, y2,
                         angleDBP, chosen.x, chosen.y);
        return chosen;
    };
    constexpr const char *none = "did not calculate the appropriate pole";
    return pole(found, {"invalid points, can not calculate pole.", none, none}, byAngle, poleX,
                poleY);
}

int CalcPoleCOOR(double x1, double y1, double angleA, double x2, double y2, double angleB,
                 double xr, double yr, double &poleX, double &poleY)
{
    const Corners found = corners({x1, y1}, angleA, {x2, y2}, angleB);
    const auto nearest = [&] {
        const auto squaredDistance = [&](Point p) {
            return (p.x - xr) * (p.x - xr) + (p.y - yr) * (p.y - yr);
        };
        return squaredDistance(found.plus) < squaredDistance(found.minus) ? found.plus
                                                                          : found.minus;
    };
    return pole(found,
                {"CalcPoleCOOR - Calculate pole failed as invalid value.",
                 "CalcPoleCOOR - Calculate pole failed.", nullptr},
                nearest, poleX, poleY);
}
