// SPDX-License-Identifier: MIT
// Complex least squares by Cholesky's decomposition of the normal matrix.
#include "recognition/polynomialfit.h"

#include <cmath>

namespace recognition
{
namespace
{
using Complex = std::complex<double>;
constexpr std::size_t mostTerms = SkyMapping::mostTerms;
using Matrix = std::array<Complex, mostTerms * mostTerms>;
using Vector = std::array<Complex, mostTerms>;

// Decomposes the lower triangle in place; false if the matrix is singular to working precision.
bool decompose(Matrix &a, std::size_t n)
{
    constexpr double leastPivot = 1e-9; // of the diagonal: coordinates are of order 1
    for (std::size_t k = 0; k < n; ++k) {
        double pivot = a[k * mostTerms + k].real();
        const double before = pivot;
        for (std::size_t j = 0; j < k; ++j)
            pivot -= std::norm(a[k * mostTerms + j]);
        if (!(pivot > leastPivot * before))
            return false;
        const double root = std::sqrt(pivot);
        a[k * mostTerms + k] = root;
        for (std::size_t i = k + 1; i < n; ++i) {
            Complex sum = a[i * mostTerms + k];
            for (std::size_t j = 0; j < k; ++j)
                sum -= a[i * mostTerms + j] * std::conj(a[k * mostTerms + j]);
            a[i * mostTerms + k] = sum / root;
        }
    }
    return true;
}

void solve(const Matrix &l, std::size_t n, Vector &x)
{
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < i; ++j)
            x[i] -= l[i * mostTerms + j] * x[j];
        x[i] /= l[i * mostTerms + i];
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t j = i + 1; j < n; ++j)
            x[i] -= std::conj(l[j * mostTerms + i]) * x[j];
        x[i] /= l[i * mostTerms + i];
    }
}

void addToNormals(const Vector &terms, std::size_t n, const FitPoint &point, Matrix &normal,
                  Vector &right)
{
    const double weight = point.weight / point.variance;
    for (std::size_t i = 0; i < n; ++i) {
        const Complex weighted = weight * std::conj(terms[i]);
        right[i] += weighted * point.plane;
        for (std::size_t j = 0; j <= i; ++j)
            normal[i * mostTerms + j] += weighted * terms[j];
    }
}

// The least squares under the condition that the lens does not twist: closest to the free ones in
// the metric of the normal matrix.
void removeTwist(SkyMapping::Solution &solution)
{
    const auto term = distortionTerm(solution.terms);
    const double scale = std::abs(solution.coefficients[1]);
    if (!term || !(scale > 0.0))
        return;
    const Complex phase = solution.coefficients[1] / scale;
    const double twist = std::imag(std::conj(phase) * solution.coefficients[*term]);
    const double variance = std::real(solution.inverse[*term * mostTerms + *term]);
    for (std::size_t i = 0; i < termCount(solution.terms); ++i)
        solution.coefficients[i] -=
            Complex(0.0, twist / variance) * phase * solution.inverse[i * mostTerms + *term];
}
} // namespace

std::optional<PolynomialFit> fitPolynomial(MappingModel model, const std::vector<FitPoint> &points)
{
    const std::size_t n = termCount(model);
    Matrix normal = {};
    Vector right = {};
    Vector terms = {};
    PolynomialFit result;
    for (const FitPoint &point : points) {
        evaluateTerms(model, point.pixel, terms.data());
        addToNormals(terms, n, point, normal, right);
        result.weights += point.weight;
    }
    if (points.size() < n || !decompose(normal, n))
        return std::nullopt;
    solve(normal, n, right);
    result.fit.terms = model;
    result.fit.coefficients = right;
    for (std::size_t column = 0; column < n; ++column) {
        Vector unit = {};
        unit[column] = 1.0;
        solve(normal, n, unit);
        for (std::size_t row = 0; row < n; ++row)
            result.fit.inverse[row * mostTerms + column] = unit[row];
    }
    removeTwist(result.fit);
    for (const FitPoint &point : points) {
        evaluateTerms(model, point.pixel, terms.data());
        Complex residual = point.plane;
        for (std::size_t i = 0; i < n; ++i)
            residual -= result.fit.coefficients[i] * terms[i];
        result.chiSquared += point.weight / point.variance * std::norm(residual);
    }
    return result;
}
} // namespace recognition
