// SPDX-License-Identifier: MIT
// Directions as unit vectors, rotations as 3 x 3 matrices.
#pragma once

#include <array>
#include <cmath>

namespace astrometry
{
inline constexpr double pi = 3.141592653589793;
inline constexpr double degree = pi / 180.0;
inline constexpr double arcsecond = degree / 3600.0;

struct Vector3 {
    double x, y, z;
};

inline double dot(const Vector3 &a, const Vector3 &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Vector3 cross(const Vector3 &a, const Vector3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(const Vector3 &a)
{
    return std::sqrt(dot(a, a));
}

inline Vector3 scaled(const Vector3 &a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

/// The angle between two directions, radians, 0 to pi; exact for small angles too.
inline double angleBetween(const Vector3 &a, const Vector3 &b)
{
    return std::atan2(length(cross(a, b)), dot(a, b));
}

/// Unit vector of a longitude and a latitude (radians): x at (0, 0), z at latitude pi / 2.
inline Vector3 direction(double longitude, double latitude)
{
    return {std::cos(longitude) * std::cos(latitude), std::sin(longitude) * std::cos(latitude),
            std::sin(latitude)};
}

/// Rows of a matrix; `apply` turns a vector into the frame whose axes the rows are.
struct Matrix3 {
    std::array<Vector3, 3> rows;
};

inline Vector3 apply(const Matrix3 &m, const Vector3 &v)
{
    return {dot(m.rows[0], v), dot(m.rows[1], v), dot(m.rows[2], v)};
}

inline Matrix3 transposed(const Matrix3 &m)
{
    const auto &[a, b, c] = m.rows;
    return {{{{a.x, b.x, c.x}, {a.y, b.y, c.y}, {a.z, b.z, c.z}}}};
}

/// first * second: `second` acts on the vector before `first`.
inline Matrix3 product(const Matrix3 &first, const Matrix3 &second)
{
    const Matrix3 columns = transposed(second);
    return {{apply(columns, first.rows[0]), apply(columns, first.rows[1]),
             apply(columns, first.rows[2])}};
}
} // namespace astrometry
