// SPDX-License-Identifier: MIT
// Is one value of a sky file changed, every other byte kept, and the key's line found?
#include <QtTest>

#include "cameracommand/skyvalues.h"
#include "virtualcamera/skyfile.h"

class SkyValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void changed_data();
    void changed();
    void lines();
};

void SkyValuesTest::changed_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    using Text = QByteArray;
    QTest::newRow("empty") << Text("") << Text("[camera]\nscale = 6\n");
    QTest::newRow("replaced") << Text("[camera]\n# lens\nscale = auto # by hand\nroll = 3\n")
                              << Text("[camera]\n# lens\nscale = 6 # by hand\nroll = 3\n");
    QTest::newRow("section without the key")
        << Text("[site]\nlatitude = 4\n\n[camera]\nroll = 3\n[time]\nrunning = true\n")
        << Text("[site]\nlatitude = 4\n\n[camera]\nscale = 6\nroll = 3\n[time]\nrunning = true\n");
    QTest::newRow("another section")
        << Text("[site]\nlatitude = 4\n") << Text("[site]\nlatitude = 4\n[camera]\nscale = 6\n");
    QTest::newRow("in a comment") << Text("[camera]\n#scale = 5\n")
                                  << Text("[camera]\nscale = 6\n#scale = 5\n");
    QTest::newRow("blanks") << Text(" [ camera ] ; x\n\t scale=5\n")
                            << Text(" [ camera ] ; x\n\t scale=6\n");
    QTest::newRow("no value") << Text("[camera]\nscale =\nroll = 3\n")
                              << Text("[camera]\nscale = 6\nroll = 3\n");
    QTest::newRow("line ends of another system") << Text("[camera]\r\nscale = 5\r\nroll = 3\r\n")
                                                 << Text("[camera]\r\nscale = 6\r\nroll = 3\r\n");
    QTest::newRow("a new line with such an end")
        << Text("[camera]\r\nroll = 3\r\n") << Text("[camera]\r\nscale = 6\r\nroll = 3\r\n");
    QTest::newRow("the section twice") << Text("[camera]\nroll = 3\n[time]\n[camera]\nscale = 5\n")
                                       << Text("[camera]\nroll = 3\n[time]\n[camera]\nscale = 6\n");
}

void SkyValuesTest::changed()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const std::string text = withSkyValue(before.toStdString(), "camera", "scale", "6");
    QCOMPARE(QByteArray::fromStdString(text), after);
    QCOMPARE(virtualsky::parse(text).scale.arcseconds, 6.0);
    QCOMPARE(withSkyValue(text, "camera", "scale", "6"), text);
}

void SkyValuesTest::lines()
{
    const std::string text =
        "# mine\n[site]\nscale = 1\n[camera]\r\n  scale = auto ; so\r\nroll = 3";
    const auto scale = skyLine(text, "camera", "scale"), roll = skyLine(text, "camera", "roll");
    QVERIFY(scale && roll);
    QCOMPARE(scale->number, 5);
    QCOMPARE(QByteArray::fromStdString(scale->text), QByteArray("scale = auto ; so"));
    QCOMPARE(roll->number, 6);
    QCOMPARE(QByteArray::fromStdString(roll->text), QByteArray("roll = 3"));
    QVERIFY(!skyLine(text, "camera", "mirrored"));
    QVERIFY(!skyLine(text, "time", "scale"));
    QVERIFY(!skyLine("", "camera", "scale"));
}

QTEST_GUILESS_MAIN(SkyValuesTest)
#include "tst_skyvalues.moc"
