// SPDX-License-Identifier: MIT
// When is a video stream used that was silent before?
#include <QtTest>

#include "framesources/streamchoice.h"

using framesources::StreamChoice;

namespace
{
StreamChoice::Time at(double seconds)
{
    return StreamChoice::Time(std::chrono::milliseconds(qint64(seconds * 1000.0)));
}
} // namespace

class StreamChoiceTest : public QObject
{
    Q_OBJECT

private slots:
    void unwantedIsNeverUsed();
    void pausesGrow();
    void tryIsGivenUpSoon();
    void newConnectionIsNotWaitedForLong();
    void newConnectionIsAReason();
    void failedTryIsNoReasonAtTheNextConnection();
    void steadyStreamBeginsAgain();
    void lossBeforeTheFirstFrameIsAFailure();
    void lossAfterAFrameIsNone();
};

void StreamChoiceTest::unwantedIsNeverUsed()
{
    StreamChoice choice(false, {});
    choice.connected(at(1000.0));
    for (const double when : {1000.0, 1010.0, 1e6})
        QVERIFY(!choice.isUsed(at(when)));
}

void StreamChoiceTest::pausesGrow()
{
    StreamChoice choice(true, {});
    double now = 1000.0;
    QVERIFY(choice.isUsed(at(now)));
    for (const double pause : {60.0, 120.0, 240.0, 480.0, 960.0, 960.0}) {
        (void)choice.fell(at(now));
        QVERIFY(!choice.isUsed(at(now)));
        QVERIFY(!choice.isUsed(at(now + pause - 0.1)));
        now += pause;
        QVERIFY(choice.isUsed(at(now)));
    }
}

void StreamChoiceTest::tryIsGivenUpSoon()
{
    StreamChoice choice(true, {});
    QCOMPARE(choice.patience(), 6.0);
    QVERIFY(choice.fell(at(1000.0))); // no try
    QCOMPARE(choice.patience(), 2.0);
    QVERIFY(!choice.fell(at(1062.0))); // a try
    QVERIFY(choice.came(at(1200.0)));
    QVERIFY(!choice.came(at(1319.0)));
    QCOMPARE(choice.patience(), 2.0); // until it is steady
    QVERIFY(!choice.came(at(1321.0)));
    QCOMPARE(choice.patience(), 6.0);
    QVERIFY(choice.fell(at(1330.0)));
}

/// Frames are soon back, by exposures if not by the stream.
void StreamChoiceTest::newConnectionIsNotWaitedForLong()
{
    StreamChoice choice(true, {});
    choice.connected(at(1000.0));
    QCOMPARE(choice.patience(), 6.0);
    (void)choice.came(at(1001.0));
    choice.connected(at(1010.0));
    QVERIFY(choice.isUsed(at(1010.0)));
    QCOMPARE(choice.patience(), 2.0);
    (void)choice.came(at(1129.0));
    QCOMPARE(choice.patience(), 2.0);
    (void)choice.came(at(1131.0));
    QCOMPARE(choice.patience(), 6.0);
}

void StreamChoiceTest::newConnectionIsAReason()
{
    StreamChoice choice(true, {});
    (void)choice.fell(at(1000.0));
    choice.connected(at(1010.0));
    QVERIFY(!choice.isUsed(at(1014.9))); // first, exposures show that the camera is back
    QVERIFY(choice.isUsed(at(1015.0)));
    choice.connected(at(1500.0));
    QVERIFY(!choice.isUsed(at(1504.9)));
    QVERIFY(choice.isUsed(at(1505.0)));
}

/// It may have been what ended the connection.
void StreamChoiceTest::failedTryIsNoReasonAtTheNextConnection()
{
    StreamChoice choice(true, {});
    (void)choice.fell(at(1000.0));
    choice.connected(at(1010.0));
    (void)choice.fell(at(1017.0)); // the second pause begins
    choice.connected(at(1018.0));
    QVERIFY(!choice.isUsed(at(1017.0 + 119.9)));
    QVERIFY(choice.isUsed(at(1017.0 + 120.0)));
    (void)choice.came(at(1137.0));
    (void)choice.came(at(1300.0)); // steady
    (void)choice.fell(at(1310.0));
    choice.connected(at(1311.0)); // now it is one again
    QVERIFY(choice.isUsed(at(1316.0)));
}

void StreamChoiceTest::steadyStreamBeginsAgain()
{
    StreamChoice choice(true, {});
    for (const double now : {1000.0, 1062.0, 1190.0})
        (void)choice.fell(at(now));
    (void)choice.came(at(1500.0));
    (void)choice.came(at(1619.0)); // too soon
    (void)choice.fell(at(1619.0));
    QVERIFY(!choice.isUsed(at(1619.0 + 479.0)));
    (void)choice.came(at(2100.0));
    (void)choice.came(at(2221.0));
    (void)choice.fell(at(2222.0));
    QVERIFY(choice.isUsed(at(2222.0 + 60.0)));
}

/// A driver that ends whenever its video is switched on.
void StreamChoiceTest::lossBeforeTheFirstFrameIsAFailure()
{
    StreamChoice choice(true, {});
    double now = 1000.0;
    for (const double pause : {5.0, 120.0, 240.0, 480.0}) { // the first by the new connection
        choice.began();
        QCOMPARE(choice.lost(at(now)), now == 1000.0);
        choice.connected(at(now));
        QVERIFY(!choice.isUsed(at(now + pause - 0.1)));
        now += pause;
        QVERIFY(choice.isUsed(at(now)));
    }
}

void StreamChoiceTest::lossAfterAFrameIsNone()
{
    StreamChoice choice(true, {});
    choice.began();
    (void)choice.came(at(1000.0));
    QVERIFY(!choice.lost(at(1001.0)));
    QVERIFY(choice.isUsed(at(1001.0)));
    choice.began(); // the frame was of the connection before
    QVERIFY(choice.lost(at(1002.0)));
    QVERIFY(!choice.isUsed(at(1002.0)));
}

QTEST_GUILESS_MAIN(StreamChoiceTest)
#include "tst_streamchoice.moc"
