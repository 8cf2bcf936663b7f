// SPDX-License-Identifier: MIT
// Is the pole found in frames of the virtual camera and in photographs, and followed from frame to
// frame?
#include <QImage>
#include <QtTest>

#include "astrometry/utcdate.h"
#include "recognition/follower.h"
#include "skyframes.h"

#include <cmath>
#include <opencv2/imgproc.hpp>
#include <random>

using namespace recognition;
using namespace skyframes;
using virtualsky::SkyState;

class RecognisedSkyTest : public QObject
{
    Q_OBJECT

private slots:
    void poleAgreesWithTheTruth_data();
    void poleAgreesWithTheTruth();
    void photograph_data();
    void photograph();
    void followsDriftAndShifts();
    void theBrightestStarsAreFollowed();
    void followerFindsALostField();
    void followerReportsClouds();
    void followerMeetsAnotherPicture_data();
    void followerMeetsAnotherPicture();
    void followerSearchesBlindEverySecondTime();
};

void RecognisedSkyTest::poleAgreesWithTheTruth_data()
{
    addSkies();
}

void RecognisedSkyTest::poleAgreesWithTheTruth()
{
    QFETCH(bool, south);
    QFETCH(double, date);
    std::mt19937 random(south ? 21 : 22);
    std::uniform_real_distribution<double> angle(0.0, 360.0);
    constexpr int trials = 25;
    Agreement agreement;
    for (unsigned trial = 0; trial < trials; ++trial) {
        SkyState state = skyOf(south, date);
        scatterAxis(state, 200.0, random);
        state.roll = angle(random);
        const Recognition found = recognised(frameOf(state, date, trial), date);
        QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
        QVERIFY(!found.mirrored);
        const virtualsky::Point pole = virtualsky::truth(state, date).pole.value();
        agreement.add(found.pole, found.poleCovariance, pole);
    }
    QVERIFY2(agreement.rms() < 1.0, qPrintable(QString::number(agreement.rms())));
    QVERIFY(agreement.withinTwoSigma() >= 20); // fewer by chance: 1 in 1000
}

void RecognisedSkyTest::photograph_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("x"); // of the plate-solved pole, with aberration
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("allowed"); // pixels
    QTest::newRow("north") << "north_pole.png" << 340.56 << 277.23 << 1.0;
    QTest::newRow("south") << "south_pole.png" << 764.32 << 333.89 << 0.6;
}

void RecognisedSkyTest::photograph()
{
    QFETCH(QString, file);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, allowed);
    QImage image(QStringLiteral(PROJECT_SOURCE_DIR "/../shared/photos/") + file);
    if (image.isNull())
        QSKIP("the photographs are not there");
    image = image.convertToFormat(QImage::Format_Grayscale8);
    const cv::Mat frame(image.height(), image.width(), CV_8UC1, image.bits(),
                        std::size_t(image.bytesPerLine()));
    const double date = astrometry::parseDate("2014-12-15T20:00:00Z").value();
    const Recognition found = recognised(frame, date);
    QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
    QVERIFY(found.hemisphere == (file.startsWith("south") ? Hemisphere::South : Hemisphere::North));
    QVERIFY(!found.mirrored);
    const double off = std::hypot(found.pole.x - x, found.pole.y - y);
    QVERIFY2(off < allowed, qPrintable(QString::number(off)));
}

void RecognisedSkyTest::followsDriftAndShifts()
{
    SkyState state = skyOf(false, november2026);
    Follower follower({});
    double date = november2026;
    for (unsigned frame = 0; frame < 12; ++frame) {
        date += 20.0;
        state.boltAltitude -= 0.05; // 6 pixels
        state.boltAzimuth += 0.03;
        const Recognition found = follower.follow(frameOf(state, date, frame), date);
        QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
        QCOMPARE(follower.followed(), frame > 0);
        const virtualsky::Point pole = virtualsky::truth(state, date).pole.value();
        QVERIFY2(error(found.pole, pole) < 3.0, qPrintable(QString::number(frame)));
        QVERIFY(claimed(found.pole, found.poleCovariance, pole) < 25.0);
        for (const MatchedStar &star : found.matched)
            QVERIFY(std::hypot(follower.stars()[star.detected].x - star.place.x,
                               follower.stars()[star.detected].y - star.place.y) < 2.0);
    }
}

void RecognisedSkyTest::theBrightestStarsAreFollowed()
{
    const SkyState state = skyOf(false, november2026);
    Follower follower({});
    const cv::Mat frame = frameOf(state, november2026, 1);
    Recognition first = follower.follow(frame, november2026);
    constexpr std::size_t brightest = 10;
    QVERIFY(first.matched.size() > brightest);
    const std::vector<DetectedStar> stars = follower.stars();
    std::sort(first.matched.begin(), first.matched.end(),
              [&stars](const MatchedStar &a, const MatchedStar &b) {
                  return stars[a.detected].flux > stars[b.detected].flux;
              });
    const Recognition second = follower.follow(frame, november2026 + 1.0);
    QVERIFY(follower.followed());
    for (std::size_t i = 0; i < brightest; ++i)
        QVERIFY2(std::any_of(second.matched.begin(), second.matched.end(),
                             [&](const MatchedStar &star) {
                                 return star.catalogue == first.matched[i].catalogue;
                             }),
                 qPrintable(QString::number(i)));
}

void RecognisedSkyTest::followerFindsALostField()
{
    SkyState state = skyOf(true, november2026);
    Follower follower({});
    follower.follow(frameOf(state, november2026, 1), november2026);
    state.raAngle = 40.0; // every star leaves its window
    const Recognition found = follower.follow(frameOf(state, november2026, 2), november2026);
    QVERIFY(!follower.followed());
    QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
    const virtualsky::Point pole = virtualsky::truth(state, november2026).pole.value();
    QVERIFY(error(found.pole, pole) < 3.0);
}

void RecognisedSkyTest::followerReportsClouds()
{
    SkyState state = skyOf(false, november2026);
    Follower follower({});
    follower.follow(frameOf(state, november2026, 1), november2026);
    SkyState clouded = state;
    clouded.picture = virtualsky::Picture::Black;
    const Recognition lost = follower.follow(frameOf(clouded, november2026, 2), november2026);
    QVERIFY(lost.status == RecognitionStatus::TooFewStars);
    QVERIFY(!follower.followed());
    QVERIFY(follower.follow({}, november2026).status == RecognitionStatus::InvalidOptions);
    // After the cloud has passed the windows are still the right ones.
    const Recognition back = follower.follow(frameOf(state, november2026, 3), november2026);
    QVERIFY(back.status == RecognitionStatus::Recognised);
    QVERIFY(follower.followed());
}

void RecognisedSkyTest::followerMeetsAnotherPicture_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<bool>("flipped");
    QTest::addColumn<double>("size");         // of the picture
    QTest::addColumn<double>("sizeOfPixels"); // in arcseconds, against those before
    QTest::newRow("binned") << false << false << 0.5 << 2.0;
    QTest::newRow("flipped") << false << true << 1.0 << 1.0;
    QTest::newRow("the other pole") << true << false << 1.0 << 1.0;
    QTest::newRow("another lens") << false << false << 1.0 << 0.6;
}

// Another binning, a mirror, the other pole, another lens: nothing that was learned holds.
void RecognisedSkyTest::followerMeetsAnotherPicture()
{
    QFETCH(bool, south);
    QFETCH(bool, flipped);
    QFETCH(double, size);
    QFETCH(double, sizeOfPixels);
    Follower follower({});
    follower.follow(frameOf(skyOf(false, november2026), november2026, 1), november2026);
    const SkyState state = skyOf(south, november2026);
    const cv::Mat before = frameOf(state, november2026, 2);
    cv::Mat frame;
    cv::resize(before, frame, {}, 1.0 / sizeOfPixels, 1.0 / sizeOfPixels, cv::INTER_AREA);
    const int width = int(size * before.cols), height = int(size * before.rows);
    frame = frame({(frame.cols - width) / 2, (frame.rows - height) / 2, width, height}).clone();
    if (flipped)
        cv::flip(frame, frame, 1);
    for (int i = 0; i < 2; ++i) {
        const Recognition found = follower.follow(frame, november2026 + i);
        QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
        QVERIFY(found.hemisphere == (south ? Hemisphere::South : Hemisphere::North));
        QCOMPARE(found.mirrored, flipped);
        const double scale = sizeOfPixels * virtualsky::pixelScale;
        QVERIFY2(std::abs(found.scale / scale - 1.0) < 0.003,
                 qPrintable(QString::number(found.scale)));
        QCOMPARE(follower.followed(), i > 0);
    }
}

// A blind search that finds nothing takes long: of the frames that are like nothing expected, the
// first, the third and so on are searched blind.
void RecognisedSkyTest::followerSearchesBlindEverySecondTime()
{
    const cv::Mat sky = frameOf(skyOf(false, november2026), november2026, 1);
    cv::Mat flipped;
    cv::flip(sky, flipped, 1);
    cv::Mat strange = sky.clone(); // as many stars, none of them in its place
    for (int y = 0; y < sky.rows; y += 120)
        for (int x = 0; x < sky.cols; x += 160)
            sky({sky.cols - 160 - x, (y + 360) % sky.rows, 160, 120})
                .copyTo(strange({x, y, 160, 120}));
    Follower follower({});
    follower.follow(sky, november2026);
    QVERIFY(follower.follow(strange, november2026 + 1).status == RecognitionStatus::NoMatch);
    QVERIFY(follower.follow(flipped, november2026 + 2).status == RecognitionStatus::NoMatch);
    const Recognition found = follower.follow(flipped, november2026 + 3);
    QVERIFY2(found.status == RecognitionStatus::Recognised, reason(found).c_str());
    QVERIFY(found.mirrored);
    // The count begins again.
    const Recognition back = follower.follow(sky, november2026 + 4);
    QVERIFY2(back.status == RecognitionStatus::Recognised, reason(back).c_str());
    QVERIFY(!back.mirrored);
}

QTEST_GUILESS_MAIN(RecognisedSkyTest)
#include "tst_recognisedsky.moc"
