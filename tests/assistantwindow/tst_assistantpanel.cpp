// SPDX-License-Identifier: MIT
// Are the plot's points where its own lines and its age say, and are the large view's figures as
// large as they must be? By the pixels.
#include "assistantwindow/display.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/largepage.h"
#include "core/languages.h"
#include "tests/assistantwindow/drawing.h"
#include "tests/assistantwindow/smallscreen.h"
#include "tests/support/paintedtexts.h"

#include <QtTest>

using namespace assistantwindow;
using assistant::Stage;
using drawing::Expected;
using drawing::Points;

namespace
{
using Samples = std::deque<assistant::History::Point>;

constexpr QSize plotSize(420, 180);
constexpr double now = 1000.0; // seconds

assistant::History::Point point(double secondsAgo, double arcseconds)
{
    return {now - secondsAgo, arcseconds, {}, {}};
}

/// Rows or columns of a picture that have a lit pixel, as runs.
struct Run {
    int first, last;
    int length() const { return last - first + 1; }
};

std::vector<Run> litRows(const QImage &image, int least = 60)
{
    std::vector<Run> runs;
    for (int y = 0; y < image.height(); ++y) {
        bool isLit = false;
        for (int x = 0; x < image.width() && !isLit; ++x)
            isLit = qGray(image.pixel(x, y)) >= least;
        if (isLit && !runs.empty() && runs.back().last == y - 1)
            runs.back().last = y;
        else if (isLit)
            runs.push_back({y, y});
    }
    return runs;
}

std::vector<Run> litColumns(const QImage &image)
{
    return litRows(image.transformed(QTransform().rotate(90)).mirrored(true, false));
}

class Plot
{
public:
    explicit Plot(const Samples &history, double goal = 20.0) : points(history), goalOf(goal) {}

    QImage with(QColor Theme::*mark)
    {
        Theme colours = drawing::only(mark);
        ErrorPlot plot;
        plot.resize(plotSize);
        plot.setTheme(colours);
        plot.show(points, goalOf, now);
        texts = paintedTexts(plot);
        QImage image(plotSize, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        plot.render(&painter, {}, {}, QWidget::DrawChildren);
        return image;
    }
    std::vector<PaintedText> texts;

private:
    Samples points;
    double goalOf;
};

/// Where an age and an error lie, by the lines that the plot draws at 1", 1' and 1 degree, which
/// are as long as five minutes.
class Scale
{
public:
    Scale()
    {
        const QImage lines = Plot({}).with(&Theme::grid);
        const std::vector<Run> rows = litRows(lines), columns = litColumns(lines);
        isGood = rows.size() == 3 && columns.size() == 1;
        if (!isGood)
            return;
        degree = rows[0].first + 0.5;
        minute = rows[1].first + 0.5;
        second = rows[2].first + 0.5;
        left = columns[0].first;
        right = columns[0].last + 1.0;
    }
    QPointF place(double secondsAgo, double arcseconds) const
    {
        return {right - secondsAgo / 300.0 * (right - left),
                second - std::log(arcseconds) / std::log(60.0) * (second - minute)};
    }

    bool isGood = false;
    double degree = 0.0, minute = 0.0, second = 0.0, left = 0.0, right = 0.0;
};

/// What the large view shows for figures that are not good yet, with advice in another colour.
Display displayOf(double altitude, double azimuth, bool hasSite)
{
    assistant::Status status;
    status.stage = Stage::Bolts;
    status.error = assistant::ErrorFigures{{std::hypot(altitude, azimuth), 1.0}, {}, {}};
    if (hasSite) {
        status.error->altitude = recognition::Measured{altitude, 1.0};
        status.error->azimuth = recognition::Measured{azimuth, 1.0};
    }
    status.pole = recognition::PixelPlace{600.0, 500.0};
    status.axis.place = recognition::PixelPlace{620.0, 480.0};
    status.advice = {{assistant::AdviceCode::Clouds, 0.0, 0.0, {}}};
    return assistantwindow::displayOf(status, {}, QLocale());
}
} // namespace

class AssistantPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void plotHasItsLines();
    void plotShowsEachPoint_data();
    void plotShowsEachPoint();
    void plotLeavesOutWhatIsOld();
    void plotShowsTheGoal();
    void gapsAloneAreHatched();
    void figuresAreLarge_data();
    void figuresAreLarge();
    void wordsAreBelowTheirArrows();
};

/// In the logarithm: as far from 1' to 1 degree as from 1" to 1'.
void AssistantPanelTest::plotHasItsLines()
{
    const Scale scale;
    QVERIFY(scale.isGood);
    QVERIFY(std::abs((scale.second - scale.minute) - (scale.minute - scale.degree)) <= 1.5);
    QVERIFY(scale.right - scale.left > plotSize.width() * 0.8);
    Plot plot({});
    plot.with(&Theme::quiet);
    QCOMPARE(plot.texts.size(), std::size_t(3));
    const std::pair<const char *, double> lines[] = {
        {"1°", scale.degree}, {"1′", scale.minute}, {"1″", scale.second}};
    for (std::size_t i = 0; i < 3; ++i) {
        QCOMPARE(plot.texts[i].text, QString::fromUtf8(lines[i].first));
        QVERIFY(std::abs(plot.texts[i].box.center().y() - lines[i].second) < 3.0);
        QVERIFY(plot.texts[i].box.right() <= scale.left);
    }
    QVERIFY(cutTexts(plot.texts).isEmpty());
}

void AssistantPanelTest::plotShowsEachPoint_data()
{
    QTest::addColumn<double>("first"); // arcseconds, 290 seconds ago
    QTest::addColumn<double>("last");  // now
    QTest::newRow("stays") << 100.0 << 100.0;
    QTest::newRow("shrinks") << 9000.0 << 6.0;
    QTest::newRow("grows") << 20.0 << 2000.0;
}

/// A line through all points and a dot at the newest, nothing else.
void AssistantPanelTest::plotShowsEachPoint()
{
    QFETCH(double, first);
    QFETCH(double, last);
    const Scale scale;
    Samples history;
    Points places;
    for (int ago = 290; ago >= 0; --ago) {
        // Straight in the logarithm, with a step in the middle.
        const double share = (290 - ago) / 290.0;
        const double error =
            first * std::pow(last / first, share) * (ago > 100 && ago < 150 ? 2.0 : 1.0);
        history.push_back(point(ago, error));
        places.push_back(scale.place(ago, error));
    }
    const QImage image = Plot(history).with(&Theme::lit);
    Expected expected(image);
    const double share = expected.curve(places, 2.5);
    QVERIFY2(share > 0.97, qPrintable(QString::number(share)));
    QVERIFY(expected.points() > 250);
    for (std::size_t i = 1; i < places.size(); ++i)
        expected.curve(drawing::segment(places[i - 1], places[i]), 2.5);
    expected.allow({places.back() - QPointF(4, 4), QSizeF(8, 8)});
    QCOMPARE(expected.strays(), 0);
    QVERIFY(drawing::light(image, places.back() - QPointF(0, 2)) > 90);
}

void AssistantPanelTest::plotLeavesOutWhatIsOld()
{
    const Scale scale;
    Samples history;
    for (int ago = 500; ago >= 0; --ago)
        history.push_back(point(ago, ago > 300 ? 3000.0 : 30.0));
    const std::vector<Run> columns = litColumns(Plot(history).with(&Theme::lit));
    QCOMPARE(columns.size(), std::size_t(1));
    QVERIFY(std::abs(columns[0].first - scale.left) < 4.0);
    const std::vector<Run> rows = litRows(Plot(history).with(&Theme::lit));
    QCOMPARE(rows.size(), std::size_t(1));
    QVERIFY(std::abs(rows[0].first - scale.place(0.0, 30.0).y()) < 5.0);
}

void AssistantPanelTest::plotShowsTheGoal()
{
    const Scale scale;
    for (const double goal : {5.0, 20.0, 600.0}) {
        const std::vector<Run> rows = litRows(Plot({}, goal).with(&Theme::good));
        QCOMPARE(rows.size(), std::size_t(1));
        QVERIFY(std::abs(rows[0].first + 0.5 - scale.place(0.0, goal).y()) < 1.5);
    }
}

/// From the last point before a gap to the first after it, and from the newest to now.
void AssistantPanelTest::gapsAloneAreHatched()
{
    const Scale scale;
    Samples history;
    for (int ago = 280; ago >= 20; --ago)
        if (ago > 200 || ago < 120)
            history.push_back(point(ago, 100.0));
    const QImage image = Plot(history).with(&Theme::border);
    const std::vector<Run> columns = litColumns(image);
    QCOMPARE(columns.size(), std::size_t(2));
    const std::pair<double, double> gaps[] = {{201.0, 119.0}, {20.0, 0.0}};
    for (std::size_t i = 0; i < 2; ++i) {
        QVERIFY(std::abs(columns[i].first - scale.place(gaps[i].first, 1.0).x()) < 3.0);
        QVERIFY(std::abs(columns[i].last - scale.place(gaps[i].second, 1.0).x()) < 3.0);
    }
    const std::vector<Run> rows = litRows(image);
    QVERIFY(rows.size() == 1 && rows[0].length() > plotSize.height() / 2);
    // No line is drawn through the gap.
    const QImage line = Plot(history).with(&Theme::lit);
    QVERIFY(drawing::light(line, scale.place(160.0, 100.0)) < 40);
    QVERIFY(drawing::light(line, scale.place(240.0, 100.0)) > 90);
}

void AssistantPanelTest::figuresAreLarge_data()
{
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<bool>("hasSite");
    QTest::newRow("seconds") << 35.9 << -47.3 << true;
    QTest::newRow("minutes") << -3599.0 << 3548.0 << true;
    QTest::newRow("degrees") << 18000.0 << -17940.0 << true;
    QTest::newRow("far") << 39000.0 << -86000.0 << true;
    QTest::newRow("azimuth near the Earth's pole") << 3000.0 << 604000.0 << true;
    QTest::newRow("total, seconds") << 30.0 << 40.0 << false;
    QTest::newRow("total, minutes") << 2000.0 << 2900.0 << false;
    QTest::newRow("total, degrees") << 39000.0 << -46000.0 << false;
}

/// A fifth of the screen's height, also in the colour of a figure that is good.
void AssistantPanelTest::figuresAreLarge()
{
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(bool, hasSite);
    for (QColor Theme::*const ink : {&Theme::text, &Theme::good}) {
        Display display = displayOf(altitude, azimuth, hasSite);
        display.ways = {Way::Down, Way::West, Way::Down, Way::West};
        if (ink == &Theme::good)
            display.ways = {Way::Stay, Way::Stay, Way::Unknown, Way::Unknown};
        if (ink == &Theme::good && !hasSite)
            continue;
        LargePage page;
        const Theme colours = drawing::only(ink);
        page.setTheme(colours);
        page.resize(smallScreen);
        page.show(display);
        // What is right of the arrows: the tick of a good bolt is among them.
        const QImage image = page.grab(QRect(270, 0, 460, 480)).toImage();
        std::vector<int> heights;
        for (const Run &run : litRows(image))
            heights.push_back(run.length());
        QCOMPARE(heights.size(), std::size_t(hasSite ? 2 : 1));
        for (const int height : heights)
            QVERIFY2(height >= smallScreen.height() / 5, qPrintable(QString::number(height)));
        QVERIFY(cutTexts(paintedTexts(page)).isEmpty());
    }
}

void AssistantPanelTest::wordsAreBelowTheirArrows()
{
    Display display = displayOf(100.0, -200.0, true);
    display.ways = {Way::Down, Way::East, Way::Down, Way::East};
    LargePage page;
    page.resize(smallScreen);
    page.show(display);
    const std::vector<PaintedText> texts = paintedTexts(page);
    const auto boxOf = [&texts](const QString &text) {
        for (const PaintedText &each : texts)
            if (each.text == text)
                return each.box;
        return QRectF();
    };
    const LargeContent content = largeContent(display);
    QCOMPARE(content.rows.size(), std::size_t(2));
    for (const LargeRow &row : content.rows) {
        const QRectF word = boxOf(row.word), number = boxOf(row.number);
        QVERIFY2(!word.isEmpty() && !number.isEmpty(), qPrintable(row.word));
        QVERIFY(word.right() < number.left());
        QVERIFY(word.top() > number.center().y());
        QVERIFY(word.bottom() < page.height());
    }
    // A word is much nearer to its own arrow than to the other bolt's.
    const auto inkOf = [&page](QColor Theme::*ink) {
        const Theme colours = drawing::only(ink);
        page.setTheme(colours);
        const std::vector<Run> rows = litRows(page.grab(QRect(0, 0, 130, 480)).toImage());
        page.setTheme(theme(false));
        return rows;
    };
    const std::vector<Run> altitude = inkOf(&Theme::altitude), azimuth = inkOf(&Theme::azimuth);
    QCOMPARE(altitude.size(), std::size_t(2)); // the arrow and its word
    QCOMPARE(azimuth.size(), std::size_t(2));
    QVERIFY(1.5 * (altitude[1].first - altitude[0].last) < azimuth[0].first - altitude[1].last);
}

QTEST_MAIN(AssistantPanelTest)
#include "tst_assistantpanel.moc"
