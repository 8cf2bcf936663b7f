// SPDX-License-Identifier: MIT
// Does the page on the sky file match the sky file, and are dates read as it says?
#include <QFile>
#include <QtTest>

#include "tests/support/skytext.h"

using namespace virtualsky;

class SkyPageTest : public QObject
{
    Q_OBJECT

private slots:
    void dates_data();
    void dates();
    void dateRoundTrip();
    void pageNamesEveryKey_data();
    void pageNamesEveryKey();
    void pageExamplesAreTaken();
};

void SkyPageTest::dates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("seconds"); // -1 = refused
    const auto row = [](const char *text, double seconds) {
        QTest::newRow(text) << QByteArray(text) << seconds;
    };
    row("2024-05-23T12:00:00Z", 1716465600.0);
    row("2026-11-20T20:00:00Z", 1795204800.0);
    row("1973-01-01T00:00:00Z", 94694400.0);
    row("2100-12-31T23:59:59Z", 4133980799.0);
    row("2024-02-29T00:00:00.5Z", 1709164800.5);
    row("2024-02-29T00:00:00.125Z", 1709164800.125);
    for (const char *text : {"",
                             "Z",
                             "now",
                             "2024-05-23",
                             "2024-05-23T12:00:00",
                             "2024-05-23 12:00:00Z",
                             "2024-05-23T12:00Z",
                             "1972-12-31T23:59:59Z",
                             "2101-01-01T00:00:00Z",
                             "2023-02-29T00:00:00Z",
                             "2100-02-29T00:00:00Z",
                             "2024-13-01T00:00:00Z",
                             "2024-00-01T00:00:00Z",
                             "2024-01-00T00:00:00Z",
                             "2024-04-31T00:00:00Z",
                             "2024-05-23T24:00:00Z",
                             "2024-05-23T23:60:00Z",
                             "2024-05-23T23:59:60Z",
                             "2024-05-23T12:00:00.Z",
                             "2024-05-23T12:00:00.1234Z",
                             "2024-05-23T12:00:00x5Z",
                             "2024-05-23T12:00:00+00:00",
                             "-024-05-23T12:00:00Z",
                             "2024-05-23T12:00:00.-1Z"})
        row(text, -1.0);
}

void SkyPageTest::dates()
{
    QFETCH(QByteArray, text);
    QFETCH(double, seconds);
    QCOMPARE(parseDate(text.toStdString()).value_or(-1.0), seconds);
}

void SkyPageTest::dateRoundTrip()
{
    for (double seconds = 94694400.0; seconds < 4133980799.0; seconds += 8640001.375)
        QCOMPARE(parseDate(formatDate(seconds)).value_or(-1.0), seconds);
}

void SkyPageTest::pageNamesEveryKey_data()
{
    QTest::addColumn<QString>("key");
    for (const SkyKey &key : skyKeys())
        QTest::newRow(qPrintable(name(key))) << name(key);
}

void SkyPageTest::pageNamesEveryKey()
{
    QFETCH(QString, key);
    QFile page(QStringLiteral(PROJECT_SOURCE_DIR "/docs/virtual-camera.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const SkyKey &wanted = keyNamed(key);
    // One table row: | `key` | meaning | unit | range | default |
    bool inSection = false;
    for (const QString &text : QString::fromUtf8(page.readAll()).split('\n')) {
        if (text.startsWith("### "))
            inSection = text.contains("`[" + key.section('.', 0, 0) + "]`");
        if (!inSection || !text.startsWith("| `" + key.section('.', 1) + "` |"))
            continue;
        const QStringList cells = text.split('|');
        QCOMPARE(cells.size(), 7);
        const QString value = QString::fromStdString(keyText(SkyState(), wanted));
        QCOMPARE(cells[5].trimmed().remove('`'), value);
        if (wanted.most > wanted.least && key != "camera.channels")
            QCOMPARE(cells[4].trimmed(), QStringLiteral("%1 to %2")
                                             .arg(QString::number(wanted.least, 'g', 10),
                                                  QString::number(wanted.most, 'g', 10)));
        return;
    }
    QFAIL("not on the page");
}

void SkyPageTest::pageExamplesAreTaken()
{
    QFile page(QStringLiteral(PROJECT_SOURCE_DIR "/docs/virtual-camera.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    int examples = 0;
    for (int at = text.indexOf("```ini\n"); at >= 0; at = text.indexOf("```ini\n", at + 1)) {
        const int end = text.indexOf("```", at + 7);
        QVERIFY(end > at);
        QCOMPARE(faultOf(text.mid(at + 7, end - at - 7).toUtf8()), QString());
        ++examples;
    }
    QVERIFY(examples >= 3);
}

QTEST_GUILESS_MAIN(SkyPageTest)
#include "tst_skypage.moc"
