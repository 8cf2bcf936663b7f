// SPDX-License-Identifier: MIT
// What does a program say that was built without INDI?
#include <QtTest>

#include "framesources/indilist.h"
#include "framesources/nativecameras.h"
#include "tests/support/patience.h"

class WithoutIndiTest : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsRefusedByName();
    void listSaysSo();
    void filesStay();
};

void WithoutIndiTest::cameraIsRefusedByName()
{
    QVERIFY(!framesources::hasIndi());
    framesources::SourceSettings settings;
    settings.address.source = virtualsky::Source::Indi;
    settings.address.host = "127.0.0.1";
    settings.address.device = "CCD Simulator";
    std::string said;
    const auto camera =
        framesources::makeNativeCamera(settings, [&said](const std::string &line) { said = line; });
    QVERIFY(!camera);
    QCOMPARE(QString::fromStdString(said),
             QString("this program was built without INDI: install libindi-dev and zlib1g-dev and "
                     "build it again"));
}

void WithoutIndiTest::listSaysSo()
{
    const auto list = framesources::listIndi({});
    QCOMPARE(list.size(), std::size_t(1));
    QVERIFY(list.front().name.empty() && !list.front().isCamera);
    QCOMPARE(QString::fromStdString(list.front().remark),
             QString("this program was built without INDI"));
}

void WithoutIndiTest::filesStay()
{
    framesources::SourceSettings settings;
    settings.address.source = virtualsky::Source::Files;
    settings.address.pattern = PROJECT_SOURCE_DIR "/tests/pictures/golden/uint16.fits";
    const auto camera = framesources::makeNativeCamera(settings, [](const std::string &) {});
    QVERIFY(camera);
    framesources::Wish wish;
    wish.wanted = true;
    std::optional<framesources::NativeFrame> frame;
    QTRY_VERIFY((frame = camera->next(wish)));
    QVERIFY(!frame->pixels.empty());
}

QTEST_GUILESS_MAIN(WithoutIndiTest)
#include "tst_withoutindi.moc"
