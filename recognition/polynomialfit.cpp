// SPDX-License-Identifier: MIT
// Complex least squares by Cholesky's decomposition of the normal matrix.
#include "recognition/polynomialfit.h"

#include <cmath>

namespace recognition
{
namespace
{
using Complex = std::complex<double>;
constexpr std::size_t maxTerms = SkyMapping::maxTerms;
using Matrix = std::array<Complex, maxTerms * maxTerms>;
using Vector = std::array<Complex, maxTerms>;

// Decomposes the lower triangle in place; false if the matrix is singular to working precision.
bool decompose(Matrix &a, std::size_t n)
{
    constexpr double minPivot = 1e-9; // of the diagonal: coordinates are of order 1
    for (std::size_t k = 0; k < n; ++k) {
        double pivot = a[k * maxTerms + k].real();
        const double before = pivot;
        for (std::size_t j = 0; j < k; ++j)
            pivot -= std::norm(a[k * maxTerms + j]);
        if (!(pivot > minPivot * before))
            return false;
        const double root = std::sqrt(pivot);
        a[k * maxTerms + k] = root;
        for (std::size_t i = k + 1; i < n; ++i) {
            Complex sum = a[i * maxTerms + k];
            for (std::size_t j = 0; j < k; ++j)
                sum -= a[i * maxTerms + j] * std::conj(a[k * maxTerms + j]);
            a[i * maxTerms + k] = sum / root;
        }
    }
    return true;
}

void solve(const Matrix &l, std::size_t n, Vector &x)
{
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < i; ++j)
            x[i] -= l[i * maxTerms + j] * x[j];
        x[i] /= l[i * maxTerms + i];
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t j = i + 1; j < n; ++j)
            x[i] -= std::conj(l[j * maxTerms + i]) * x[j];
        x[i] /= l[i * maxTerms + i];
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
            normal[i * maxTerms + j] += weighted * terms[j];
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
    const double variance = std::real(solution.inverse[*term * maxTerms + *term]);
    for (std::size_t i = 0; i < termCount(solution.terms); ++i)
        solution.coefficients[i] -=
            Complex(0.0, twist / variance) * phase * solution.inverse[i * maxTerms + *term];
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
            result.fit.inverse[row * maxTerms + column] = unit[row];
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
