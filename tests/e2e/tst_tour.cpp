// SPDX-License-Identifier: MIT
// Does the tour align by itself, report how well, and leave a picture of every step?
#include "tests/support/patience.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <memory>

namespace
{
constexpr int stepCount = 13;
/// Depends on the tour's pictures and on the machine's load, milliseconds.
constexpr int longestTour = 8 * patience;
/// In the north the tour starts 0.8 degrees off in altitude and 0.9 degrees in azimuth: at least
/// this error in arcminutes.
constexpr double smallestError = 50;
/// Remaining error of the method on a quiet sensor at the tour's date, arcseconds.
constexpr double largestRest = 75;
} // namespace

class TourTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void alignsByItself_data();
    void alignsByItself();
    void showsTheViews();
    void assistantAlignsByItself();
    void saysWhatIsInItsWay();
    void refusesStrayOptions_data();
    void refusesStrayOptions();

private:
    /// Runs the tour and stores what it prints.
    void run(const QStringList &options);
    void runProgram(const QString &program, const QStringList &options);
    QStringList pictures() const { return QDir(folder->path()).entryList({"*.png"}); }
    double told(const char *before, const char *after) const;

    std::unique_ptr<QTemporaryDir> folder; ///< for the pictures, a new one for each test
    QByteArray output;
    QByteArray errors;
    int exitCode = -1;
};

void TourTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TourTest::run(const QStringList &options)
{
    runProgram(TOUR_PROGRAM, QStringList{"--fast", "--zoom", "50"} + options);
}

void TourTest::runProgram(const QString &program, const QStringList &options)
{
    QProcess tour;
    tour.start(program, options);
    QVERIFY(tour.waitForFinished(longestTour));
    output = tour.readAllStandardOutput();
    errors = tour.readAllStandardError();
    QCOMPARE(tour.exitStatus(), QProcess::NormalExit);
    exitCode = tour.exitCode();
}

/// The number that the tour printed between two texts.
double TourTest::told(const char *before, const char *after) const
{
    const QRegularExpression line(QString(before) + " ([0-9.]+) " + after);
    const auto match = line.match(QString::fromUtf8(output));
    return match.hasMatch() ? match.captured(1).toDouble() : -1;
}

void TourTest::alignsByItself_data()
{
    QTest::addColumn<QStringList>("hemisphere");
    QTest::newRow("north") << QStringList();
    QTest::newRow("south") << QStringList{"--south"};
}

void TourTest::alignsByItself()
{
    QFETCH(QStringList, hemisphere);
    run(hemisphere + QStringList{"--pictures", folder->path()});
    QVERIFY2(exitCode == 0, errors);
    QVERIFY2(told("true error before:", "arcminutes") > smallestError, output);
    const double rest = told("true error after:", "arcseconds");
    QVERIFY2(rest >= 0 && rest < largestRest, output);

    QSet<int> steps;
    static const QRegularExpression numbered("^step-(\\d\\d)-");
    for (const QString &name : pictures()) {
        const QImage picture(folder->filePath(name));
        QVERIFY2(!picture.isNull(), qPrintable(name));
        const auto match = numbered.match(name);
        if (match.hasMatch())
            steps.insert(match.captured(1).toInt());
    }
    for (int step = 1; step <= stepCount; ++step)
        QVERIFY2(steps.contains(step), qPrintable(QString::number(step)));
}

void TourTest::showsTheViews()
{
    run({"--views", folder->path()});
    QVERIFY2(exitCode == 0, errors);
    for (const char *name : {"zoom-50.png", "zoom-75.png", "zoom-100.png"})
        QVERIFY2(pictures().contains(name), name);
    QVERIFY(pictures().filter("menu-").size() >= 6);
    QVERIFY(pictures().filter("dialog").size() == 4);
}

/// As ./run --assistant --tour does without a screen.
void TourTest::assistantAlignsByItself()
{
    runProgram(ASSISTANT_TOUR_PROGRAM, {"--fast", "--pictures", folder->path(), "--south"});
    QVERIFY2(exitCode == 0, errors);
    QVERIFY2(told("true error before:", "arcminutes") > smallestError, output);
    const double rest = told("true error after:", "arcseconds");
    QVERIFY2(rest >= 0 && rest < 15.0, output);
    for (const char *step : {"connect", "sky", "axis", "bolts", "large", "aligned", "report",
                             "night", "red", "pole"}) {
        const QStringList found = pictures().filter(step);
        QVERIFY2(found.size() == 1, step);
        QVERIFY2(!QImage(folder->filePath(found.first())).isNull(), step);
    }
}

void TourTest::saysWhatIsInItsWay()
{
    run({"--pictures", "/dev/null/nowhere"});
    QCOMPARE(exitCode, 1);
    QVERIFY2(errors.contains("the tour is stuck: cannot write /dev/null/nowhere"), errors);
}

void TourTest::refusesStrayOptions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("a word") << QStringList{"south"};
    QTest::newRow("an option") << QStringList{"--sotuh"};
    QTest::newRow("a zoom") << QStringList{"--zoom", "80"};
}

void TourTest::refusesStrayOptions()
{
    QFETCH(QStringList, options);
    run(options);
    QCOMPARE(exitCode, 1);
    QVERIFY2(errors.contains(options.last().toUtf8().mid(2)) || errors.contains("--zoom takes"),
             errors);
    QVERIFY2(output.isEmpty(), output);
}

QTEST_GUILESS_MAIN(TourTest)
#include "tst_tour.moc"
