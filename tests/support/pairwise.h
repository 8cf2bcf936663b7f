// SPDX-License-Identifier: MIT
// Which few of a table's rows have every pair of values that the whole table has?
#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstddef>
#include <set>
#include <vector>

/// Every two of a row's values, one text for each pair; the same value in two columns differs.
inline QStringList pairsOf(const QStringList &values)
{
    QStringList pairs;
    for (int a = 0; a < values.size(); ++a)
        for (int b = a + 1; b < values.size(); ++b)
            pairs << QString("%1=%2, %3=%4").arg(a).arg(values[a]).arg(b).arg(values[b]);
    return pairs;
}

/// Indices of rows, in rising order, that have together all that the rows have. Greedy: each time
/// the first one of those with the most that is still missing.
inline std::vector<std::size_t> coveringRows(const std::vector<QStringList> &rows)
{
    std::set<QString> missing;
    for (const QStringList &row : rows)
        missing.insert(row.begin(), row.end());
    std::vector<std::size_t> chosen;
    while (!missing.empty()) {
        std::size_t best = 0;
        std::ptrdiff_t most = 0;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto n = std::count_if(rows[i].begin(), rows[i].end(), [&](const QString &pair) {
                return missing.count(pair) > 0;
            });
            if (n > most) {
                most = n;
                best = i;
            }
        }
        for (const QString &pair : rows[best])
            missing.erase(pair);
        chosen.push_back(best);
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}
