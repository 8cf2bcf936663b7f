// SPDX-License-Identifier: MIT
// The two tables of colours, and how they reach the widgets.
#include "assistantwindow/theme.h"

#include <QFile>
#include <algorithm>
#include <utility>

namespace assistantwindow
{
namespace
{
constexpr QRgb redOf(int value)
{
    return qRgb(value, 0, 0);
}

const Theme dark{0xff12100e, 0xff1b1815, 0xff25201b, 0xff312a23, 0xff4a3f34, 0xffece3d7, 0xffb8ab9b,
                 0xff7d7367, 0xff936639, 0xffe0a35f, 0xffffffff, 0xff7cc47f, 0xfff0b450, 0xff7fd0ff,
                 0xffffa04a, 0xffa9c47f, 0xff5d6c76, 0xfff2e27a, 0xffd9a3ff};
const Theme red{redOf(0),   redOf(10),  redOf(22),  redOf(44),  redOf(74),  redOf(215), redOf(170),
                redOf(105), redOf(120), redOf(190), redOf(255), redOf(235), redOf(255), redOf(255),
                redOf(200), redOf(165), redOf(90),  redOf(255), redOf(190)};
} // namespace

const Theme &theme(bool isRed)
{
    return isRed ? red : dark;
}

QString themeSheet(const Theme &theme)
{
    QFile file(QStringLiteral(":/assistant/assistant.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    // Longer names first where one begins another.
    const std::pair<const char *, QColor> names[] = {
        {"@onAccent", theme.onAccent}, {"@well", theme.well},         {"@window", theme.window},
        {"@panel", theme.panel},       {"@control", theme.control},   {"@border", theme.border},
        {"@text", theme.text},         {"@quiet", theme.quiet},       {"@disabled", theme.disabled},
        {"@accent", theme.accent},     {"@lit", theme.lit},           {"@good", theme.good},
        {"@warning", theme.warning},   {"@altitude", theme.altitude}, {"@azimuth", theme.azimuth}};
    for (const auto &[name, colour] : names)
        sheet.replace(QLatin1String(name), colour.name());
    return sheet;
}

QPalette themePalette(const Theme &theme)
{
    QPalette colours(theme.control, theme.window);
    const std::pair<QPalette::ColorRole, QColor> roles[] = {
        {QPalette::WindowText, theme.text},
        {QPalette::Text, theme.text},
        {QPalette::ButtonText, theme.text},
        {QPalette::BrightText, theme.lit},
        {QPalette::Base, theme.well},
        {QPalette::AlternateBase, theme.panel},
        {QPalette::Highlight, theme.accent},
        {QPalette::HighlightedText, theme.onAccent},
        {QPalette::ToolTipBase, theme.control},
        {QPalette::ToolTipText, theme.text},
        {QPalette::PlaceholderText, theme.quiet},
        {QPalette::Link, theme.lit},
        {QPalette::LinkVisited, theme.lit}};
    for (const auto &[role, colour] : roles)
        colours.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, theme.disabled);
    return colours;
}

QImage reddened(const QImage &image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = line[x];
            const int brightest = std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)});
            line[x] = qRgba(brightest, 0, 0, qAlpha(pixel));
        }
    }
    return result;
}
} // namespace assistantwindow
