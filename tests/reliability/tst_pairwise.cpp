// SPDX-License-Identifier: MIT
// Do the rows that are chosen from a table have every pair of its values, and are they few?
#include "tests/support/pairwise.h"

#include <QtTest>

class PairwiseTest : public QObject
{
    Q_OBJECT

private slots:
    void pairsOfARow();
    void nothingIsMissing_data();
    void nothingIsMissing();
    void forbiddenRowsAreNotMadeUp();
    void whatOnlyOneRowHasIsKept();
};

void PairwiseTest::pairsOfARow()
{
    QCOMPARE(pairsOf({"a", "b", "a"}), QStringList({"0=a, 1=b", "0=a, 2=a", "1=b, 2=a"}));
    QCOMPARE(pairsOf({"a"}), QStringList());
    QVERIFY(pairsOf({"a", "b"}) != pairsOf({"b", "a"}));
}

namespace
{
/// Every combination of so many values in each column.
std::vector<QStringList> everyRow(const std::vector<int> &values)
{
    std::vector<QStringList> rows{{}};
    for (const int count : values) {
        std::vector<QStringList> longer;
        for (const QStringList &row : rows)
            for (int value = 0; value < count; ++value)
                longer.push_back(row + QStringList(QString::number(value)));
        rows = longer;
    }
    return rows;
}

std::vector<QStringList> pairsOfAll(const std::vector<QStringList> &rows)
{
    std::vector<QStringList> pairs;
    for (const QStringList &row : rows)
        pairs.push_back(pairsOf(row));
    return pairs;
}
} // namespace

void PairwiseTest::nothingIsMissing_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<int>("least"); // the product of the two largest columns
    QTest::addColumn<int>("most");
    QTest::newRow("two columns: every row") << QList<int>{3, 4} << 12 << 12;
    QTest::newRow("three columns") << QList<int>{12, 3, 4} << 48 << 50;
    QTest::newRow("four columns of three") << QList<int>{3, 3, 3, 3} << 9 << 12;
    QTest::newRow("one row") << QList<int>{1, 1, 1} << 1 << 1;
}

void PairwiseTest::nothingIsMissing()
{
    QFETCH(QList<int>, values);
    QFETCH(int, least);
    QFETCH(int, most);
    const auto rows = everyRow(std::vector<int>(values.begin(), values.end()));
    const std::vector<std::size_t> chosen = coveringRows(pairsOfAll(rows));
    for (int a = 0; a < values.size(); ++a)
        for (int b = a + 1; b < values.size(); ++b)
            for (int va = 0; va < values[a]; ++va)
                for (int vb = 0; vb < values[b]; ++vb)
                    QVERIFY(std::any_of(chosen.begin(), chosen.end(), [&](std::size_t i) {
                        return rows[i][a].toInt() == va && rows[i][b].toInt() == vb;
                    }));
    QVERIFY2(int(chosen.size()) >= least && int(chosen.size()) <= most,
             qPrintable(QString::number(chosen.size())));
}

void PairwiseTest::forbiddenRowsAreNotMadeUp()
{
    const std::vector<std::size_t> chosen =
        coveringRows(pairsOfAll({{"a", "1"}, {"b", "2"}, {"a", "1"}}));
    QCOMPARE(chosen, (std::vector<std::size_t>{0, 1}));
}

void PairwiseTest::whatOnlyOneRowHasIsKept()
{
    QCOMPARE(coveringRows({{"x"}, {"x", "y"}, {"z"}}), (std::vector<std::size_t>{1, 2}));
    QCOMPARE(coveringRows({}), std::vector<std::size_t>());
}

QTEST_GUILESS_MAIN(PairwiseTest)
#include "tst_pairwise.moc"
