// SPDX-License-Identifier: MIT
// Is one value of a sky file changed, and every other byte kept?
#include <QtTest>

#include "cameracommand/skyvalues.h"
#include "virtualcamera/skyfile.h"

class SkyValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void changed_data();
    void changed();
};

void SkyValuesTest::changed_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    using Text = QByteArray;
    QTest::newRow("empty") << Text("") << Text("[camera]\nscale = 6\n");
    QTest::newRow("replaced") << Text("[camera]\n# lens\nscale = auto # by hand\nroll = 3\n")
                              << Text("[camera]\n# lens\nscale = 6\nroll = 3\n");
    QTest::newRow("section without the key")
        << Text("[site]\nlatitude = 4\n\n[camera]\nroll = 3\n[time]\nrunning = true\n")
        << Text("[site]\nlatitude = 4\n\n[camera]\nscale = 6\nroll = 3\n[time]\nrunning = true\n");
    QTest::newRow("another section")
        << Text("[site]\nlatitude = 4\n") << Text("[site]\nlatitude = 4\n[camera]\nscale = 6\n");
    QTest::newRow("in a comment") << Text("[camera]\n#scale = 5\n")
                                  << Text("[camera]\nscale = 6\n#scale = 5\n");
    QTest::newRow("blanks") << Text(" [ camera ] ; x\n\t scale=5\n")
                            << Text(" [ camera ] ; x\nscale = 6\n");
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

QTEST_GUILESS_MAIN(SkyValuesTest)
#include "tst_skyvalues.moc"
