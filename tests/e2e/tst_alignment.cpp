// SPDX-License-Identifier: MIT
// Does a person who follows the instructions end with an aligned mount?
#include "app/stylesheet.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/support/sessionwindow.h"
#include "tools/practicesky.h"
#include "tools/tour/person.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QTest>
#include <algorithm>
#include <optional>
#include <vector>

namespace
{
/// Every alignment starts this far off in both bolts, degrees.
constexpr double startOff = 1.0;
/// Limits of the remaining true error at the date of the built-in angles, arcseconds.
constexpr double worstAllowed = 60.0;
constexpr double medianAllowed = 35.0;
/// With the angles of the sky's own date only clicks, template and centroids are left.
constexpr double worstOfDate = 25.0;
constexpr double medianOfDate = 10.0;
/// The fewest rows of one sky that are held to a median: two for each zoom.
constexpr int rowsOfOneSky = 3 * 2;

struct Result {
    QString date, hemisphere;
    bool anglesOfDate;
    int zoom;
    bool reuse, mono;
    double before, after; ///< arcseconds
};

/// Whether a row is run: all are if the environment says so; else every fourth, chosen so that any
/// two choices meet under each sky. There each zoom has two rows, which differ in hemisphere, reuse
/// and style.
bool isRun(int sky, int zoom, bool south, bool reuse, bool mono)
{
    if (qEnvironmentVariableIsSet("QUORVANDEL_ALL_ALIGNMENTS"))
        return true;
    const int agreement = int(south == reuse) + 2 * int(south == mono);
    return agreement == (sky + zoom / 25) % 4;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t half = values.size() / 2;
    return values.size() % 2 ? values[half] : (values[half - 1] + values[half]) / 2;
}
} // namespace

class AlignmentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aligns_data();
    void aligns();
    void cleanupTestCase();

private:
    double run(SessionWindow &window, Knobs &knobs, const Person::Options &options);

    std::vector<Result> results;
};

void AlignmentTest::initTestCase()
{
    // Beside the executable, like the settings file: runs of other builds have their own.
    qputenv("QUORVANDEL_SKY", (QCoreApplication::applicationDirPath() + "/sky.ini").toUtf8());
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
}

void AlignmentTest::aligns_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<bool>("anglesOfDate");
    QTest::addColumn<bool>("south");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("reuse");
    QTest::addColumn<bool>("mono");
    const struct {
        const char *date;
        bool anglesOfDate;
    } skies[] = {{"2024-05-23", false}, {"2026-11-20", false}, {"2026-11-20", true}};
    for (int sky = 0; sky < 3; ++sky)
        for (const bool south : {false, true})
            for (const int zoom : {100, 75, 50})
                for (const bool reuse : {false, true})
                    for (const bool mono : {false, true}) {
                        if (!isRun(sky, zoom, south, reuse, mono))
                            continue;
                        const auto &[date, ofDate] = skies[sky];
                        QTest::addRow("%s%s %s %d%% %s %s", date, ofDate ? " angles of date" : "",
                                      south ? "south" : "north", zoom,
                                      reuse ? "reuse" : "three picks", mono ? "mono" : "colour")
                            << date << ofDate << south << zoom << reuse << mono;
                    }
}

double AlignmentTest::run(SessionWindow &window, Knobs &knobs, const Person::Options &options)
{
    Person person(window, window.ownSession, knobs, options, 20240523);
    person.align();
    return knobs.poleError();
}

void AlignmentTest::aligns()
{
    QFETCH(QString, date);
    QFETCH(bool, anglesOfDate);
    QFETCH(bool, south);
    QFETCH(int, zoom);
    QFETCH(bool, reuse);
    QFETCH(bool, mono);

    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.date = double(QDateTime::fromString(date + "T14:00:00Z", Qt::ISODate).toSecsSinceEpoch());
    sky.running = false;
    const std::optional<double> anglesAt = anglesOfDate ? sky.date : std::nullopt;
    sky.boltAltitude = startOff;
    sky.boltAzimuth = -startOff;
    hurry(sky);
    Knobs knobs(qEnvironmentVariable("QUORVANDEL_SKY").toStdString(), sky);

    // A centre from an earlier night is saved, so the program asks whether to use it.
    Settings settings;
    settings.axisX = 600;
    settings.axisY = 500;
    writeSettings(settingsFilePath(), settings);
    Person::Options options;
    options.zoomPercent = zoom;
    options.south = south;
    options.mono = mono;
    try {
        if (reuse) { // an earlier night on which the axis was found
            SessionWindow earlier(nullptr, anglesAt);
            earlier.resize(1280, 800);
            earlier.show();
            run(earlier, knobs, options);
            earlier.close();
            knobs.turnBoltsTo(startOff, -startOff);
            options.reuseSavedAxis = true;
        }
        SessionWindow window(nullptr, anglesAt);
        window.resize(1280, 800);
        window.show();
        const double before = knobs.poleError();
        const double after = run(window, knobs, options);
        window.close();
        results.push_back(
            {date, south ? "south" : "north", anglesOfDate, zoom, reuse, mono, before, after});
        if (anglesOfDate)
            QVERIFY2(after <= worstOfDate, qPrintable(QString::number(after)));
        else if (date == "2024-05-23")
            QVERIFY2(after <= worstAllowed, qPrintable(QString::number(after)));
    } catch (const std::exception &problem) {
        QFAIL(problem.what());
    }
}

/// Prints the tables and holds the medians.
void AlignmentTest::cleanupTestCase()
{
    const struct {
        QString date;
        bool anglesOfDate;
        double allowed; ///< median; 0 where the age of the angles is all there is to see
    } skies[] = {{"2024-05-23", false, medianAllowed},
                 {"2026-11-20", false, 0.0},
                 {"2026-11-20", true, medianOfDate}};
    for (const auto &sky : skies) {
        std::vector<double> errors;
        printf("sky of %s%s: remaining true error in arcseconds\n", qPrintable(sky.date),
               sky.anglesOfDate ? ", angles of date" : "");
        for (const Result &r : results) {
            if (r.date != sky.date || r.anglesOfDate != sky.anglesOfDate)
                continue;
            printf("  %s  %3d %%  %-11s  %-6s  %7.1f -> %5.1f\n", qPrintable(r.hemisphere), r.zoom,
                   r.reuse ? "reuse" : "three picks", r.mono ? "mono" : "colour", r.before,
                   r.after);
            errors.push_back(r.after);
        }
        if (errors.empty())
            continue;
        const double middle = median(errors);
        printf("  median %.1f, worst %.1f of %zu\n", middle,
               *std::max_element(errors.begin(), errors.end()), errors.size());
        // A median of one row by itself would say nothing.
        if (sky.allowed > 0.0 && int(errors.size()) >= rowsOfOneSky)
            QVERIFY2(middle <= sky.allowed, qPrintable(QString::number(middle)));
    }
    QFile::remove(settingsFilePath());
}

QTEST_MAIN(AlignmentTest)
#include "tst_alignment.moc"
