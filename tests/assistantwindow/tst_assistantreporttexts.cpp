// SPDX-License-Identifier: MIT
// What does the report's page say?
#include "assistantwindow/aimtext.h"
#include "assistantwindow/report.h"

#include <QtTest>

using namespace assistantwindow;
using assistant::Aim;

namespace
{
const QLocale british(QLocale::English, QLocale::UnitedKingdom);

QString valueOf(const std::vector<ReportRow> &rows, const QString &name)
{
    for (const ReportRow &row : rows)
        if (row.name == name)
            return row.value;
    return {};
}
} // namespace

class AssistantReportTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("TZ", "Asia/Kathmandu"); }
    void momentIsLocal();
    void aims_data();
    void aims();
    void rowsHoldAll();
    void withoutSite();
    void theTitleIsAboveTheNames();
};

void AssistantReportTextsTest::momentIsLocal()
{
    const QString text = momentText(1795204800.0, british); // 2026-11-20, 20:00 UTC
    QVERIFY2(text.contains("21/11/2026 01:45") && text.endsWith("(UTC+5:45)"), qPrintable(text));
}

void AssistantReportTextsTest::aims_data()
{
    QTest::addColumn<int>("pole");
    QTest::addColumn<double>("pressure");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, Aim::Pole pole, double pressure, const char *text) {
        QTest::newRow(name) << int(pole) << pressure << QString::fromUtf8(text);
    };
    row("true", Aim::Pole::True, 1013.25, "true pole, refraction at 1013 hPa, -4\u00a0°C");
    row("refracted", Aim::Pole::Refracted, 850.0, "refracted pole, at 850 hPa, -4\u00a0°C");
    row("no air", Aim::Pole::True, 0.0, "true pole, no refraction");
    row("no air, refracted", Aim::Pole::Refracted, 0.0, "true pole, no refraction");
    row("no site", Aim::Pole::Seen, 0.0, "pole as the air shows it");
}

void AssistantReportTextsTest::aims()
{
    QFETCH(int, pole);
    QFETCH(double, pressure);
    QTEST(aimText({Aim::Pole(pole), pressure, -4.0}, british), "text");
}

void AssistantReportTextsTest::rowsHoldAll()
{
    assistant::Report report;
    report.utcSeconds = 1795204800.0;
    report.site = astrometry::Site{-33.9, 18.4};
    report.aim = {Aim::Pole::Refracted, 850.0, 12.0};
    report.after.total = {60.0, 1.0};
    report.seconds = 343.0;
    const std::vector<ReportRow> rows = reportRows(report, british);
    QCOMPARE(valueOf(rows, "Time taken"), QStringLiteral("5:43"));
    QCOMPARE(valueOf(rows, "Aimed at"), aimText(report.aim, british));
    QCOMPARE(valueOf(rows, "Date and site"),
             momentText(report.utcSeconds, british) + "; 33.900° S, 18.400° E");
    QCOMPARE(valueOf(rows, "Drift in declination, anywhere, at most"),
             QStringLiteral("15.8″ an hour"));
    QCOMPARE(
        valueOf(rows, "Angle of field rotation at most, at the equator and at declination 60°"),
        QStringLiteral("15.8″, 31.5″ an hour"));
}

void AssistantReportTextsTest::withoutSite()
{
    const std::vector<ReportRow> rows = reportRows({}, british);
    QCOMPARE(valueOf(rows, "in altitude"), dash());
    QCOMPARE(valueOf(rows, "Date and site"), momentText(0.0, british));
}

/// At the same margin, apart from them.
void AssistantReportTextsTest::theTitleIsAboveTheNames()
{
    const QImage picture = reportPicture({}, british);
    const auto inkOf = [&picture](int top, int bottom) {
        QRect ink;
        for (int y = top; y < bottom; ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != picture.pixel(0, 0))
                    ink |= QRect(x, y, 1, 1);
        return ink;
    };
    const int half = picture.height() / 2;
    int gap = inkOf(0, half).top();
    while (!inkOf(gap, gap + 12).isNull()) // of twelve empty rows
        ++gap;
    const QRect title = inkOf(0, gap), names = inkOf(gap, picture.height());
    QVERIFY(title.height() > 20 && title.width() > 100 && title.bottom() < half / 2);
    QVERIFY2(std::abs(title.left() - names.left()) < 8,
             qPrintable(QString("%1, %2").arg(title.left()).arg(names.left())));
}

QTEST_MAIN(AssistantReportTextsTest)
#include "tst_assistantreporttexts.moc"
