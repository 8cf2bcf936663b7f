// SPDX-License-Identifier: MIT
// Reads and writes dates.
#include "astrometry/utcdate.h"

#include <cmath>
#include <cstdint>
#include <cstdio>

namespace astrometry
{
namespace
{
bool isLeap(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeap(year) ? 29 : days[month - 1];
}

std::optional<int> digits(std::string_view text)
{
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

// Milliseconds of ".5", ".25", ".125"; 0 for an empty text.
std::optional<int> milliseconds(std::string_view text)
{
    if (text.empty())
        return 0;
    if (text.size() < 2 || text.size() > 4 || text[0] != '.')
        return std::nullopt;
    constexpr int unit[] = {0, 100, 10, 1};
    const std::optional<int> value = digits(text.substr(1));
    return value ? std::optional<int>(*value * unit[text.size() - 1]) : std::nullopt;
}

std::int64_t daysSince1970(int year, int month, int day)
{
    std::int64_t days = day - 1;
    for (int y = 1970; y < year; ++y)
        days += isLeap(y) ? 366 : 365;
    for (int m = 1; m < month; ++m)
        days += daysInMonth(year, m);
    return days;
}
} // namespace

std::optional<double> parseDate(std::string_view text)
{
    constexpr std::string_view shape = "dddd-dd-ddTdd:dd:dd";
    if (text.size() <= shape.size() || text.back() != 'Z')
        return std::nullopt;
    for (std::size_t i = 0; i < shape.size(); ++i)
        if (shape[i] == 'd' ? !digits(text.substr(i, 1)) : text[i] != shape[i])
            return std::nullopt;
    const auto field = [text](std::size_t at, std::size_t n) {
        return *digits(text.substr(at, n));
    };
    const int year = field(0, 4);
    const int month = field(5, 2);
    const int day = field(8, 2);
    const int hour = field(11, 2);
    const int minute = field(14, 2);
    const int second = field(17, 2);
    const std::optional<int> milli =
        milliseconds(text.substr(shape.size(), text.size() - shape.size() - 1));
    const bool possible = milli && year >= firstYear && year <= lastYear && month >= 1 &&
                          month <= 12 && day >= 1 && day <= daysInMonth(year, month) && hour < 24 &&
                          minute < 60 && second < 60;
    if (!possible)
        return std::nullopt;
    return static_cast<double>(daysSince1970(year, month, day)) * 86400.0 + hour * 3600.0 +
           minute * 60.0 + second + *milli / 1000.0;
}

std::string formatDate(double utcSeconds)
{
    const std::int64_t milli = std::llround(utcSeconds * 1000.0);
    const std::int64_t ofDay = ((milli % 86400000) + 86400000) % 86400000;
    std::int64_t days = (milli - ofDay) / 86400000;
    int year = 1970;
    for (; days >= (isLeap(year) ? 366 : 365); ++year)
        days -= isLeap(year) ? 366 : 365;
    int month = 1;
    for (; days >= daysInMonth(year, month); ++month)
        days -= daysInMonth(year, month);
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", year, month,
                  static_cast<int>(days) + 1, static_cast<int>(ofDay / 3600000),
                  static_cast<int>(ofDay / 60000 % 60), static_cast<int>(ofDay / 1000 % 60));
    std::string date = text;
    if (ofDay % 1000 != 0) {
        std::snprintf(text, sizeof text, ".%03d", static_cast<int>(ofDay % 1000));
        date += text;
    }
    return date + 'Z';
}
} // namespace astrometry
