// SPDX-License-Identifier: MIT
// Greek letters for their abbreviations, and the curve that lifts faint stars.
#include "assistantwindow/starlabel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace assistantwindow
{
namespace
{
constexpr int brightSky = 160; // of 255

struct Letter {
    const char *abbreviation, *letter;
};
constexpr Letter letters[] = {{"alp", "α"}, {"bet", "β"}, {"gam", "γ"}, {"del", "δ"}, {"eps", "ε"},
                              {"zet", "ζ"}, {"eta", "η"}, {"the", "θ"}, {"iot", "ι"}, {"kap", "κ"},
                              {"lam", "λ"}, {"mu", "μ"},  {"nu", "ν"},  {"xi", "ξ"},  {"omi", "ο"},
                              {"pi", "π"},  {"rho", "ρ"}, {"sig", "σ"}, {"tau", "τ"}, {"ups", "υ"},
                              {"phi", "φ"}, {"chi", "χ"}, {"psi", "ψ"}, {"ome", "ω"}};

int medianOf(const QImage &picture)
{
    std::array<int, 256> counts{};
    int total = 0;
    for (int y = 0; y < picture.height(); y += 8)
        for (int x = 0; x < picture.width(); x += 8, ++total)
            ++counts[std::size_t(qGreen(picture.pixel(x, y)))];
    int sum = 0, value = 0;
    while (value < 255 && (sum += counts[std::size_t(value)]) * 2 < total)
        ++value;
    return value;
}

std::array<uchar, 256> curveOf(int median)
{
    std::array<uchar, 256> curve{};
    for (int v = 0; v < 256; ++v) {
        const double above = std::max(0.0, v - median + 2.0) / (257.0 - median);
        curve[std::size_t(v)] = uchar(std::min(255.0, 255.0 * std::pow(above, 0.6)));
    }
    return curve;
}
} // namespace

QString starLabel(const std::string &name)
{
    // "alp UMi, Polaris" is called by its own name.
    const QString text = QString::fromStdString(name).section(QLatin1String(", "), -1);
    if (text.isEmpty() || !text.at(0).isLetter())
        return {};
    const QString first = text.section(QLatin1Char(' '), 0, 0);
    for (const Letter &row : letters)
        if (first == QLatin1String(row.abbreviation))
            return QString::fromUtf8(row.letter) + text.mid(first.size());
    return text;
}

QImage brightened(const QImage &picture)
{
    if (picture.isNull())
        return picture;
    const int median = medianOf(picture);
    if (median > brightSky)
        return picture;
    const std::array<uchar, 256> curve = curveOf(median);
    // Grey is converted here: the toolkit does it in several threads (core/poolthread.h).
    const bool isGrey = picture.format() == QImage::Format_Grayscale8;
    QImage result = isGrey ? QImage(picture.size(), QImage::Format_RGB888)
                           : picture.convertToFormat(QImage::Format_RGB888);
    const int width = result.width(), height = result.height();
    for (int y = 0; y < height; ++y) {
        uchar *out = result.scanLine(y);
        if (isGrey) {
            const uchar *const grey = picture.constScanLine(y);
            for (int x = 0; x < width; ++x, out += 3)
                out[0] = out[1] = out[2] = curve[grey[x]];
        } else {
            std::transform(out, out + 3 * width, out, [&curve](uchar v) { return curve[v]; });
        }
    }
    return result;
}
} // namespace assistantwindow
