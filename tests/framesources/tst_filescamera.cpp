// SPDX-License-Identifier: MIT
// Are files shown in the order of their dates, at the pace that is asked for, and does the last
// stay?
#include <QtTest>

#include "pictures/fitsfile.h"
#include "tests/framesources/filestest.h"

class FilesCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void formats_data();
    void formats();
    void folderInTheOrderOfDates();
    void ownDatePrecedesTheFiles();
    void patternTakesItsFilesAlone();
    void folderWithPatternCharacters();
    void lastOneStays();
    void newerFilesAreShown();
    void changedFileIsShownAgain();
    void videoFrames();
    void exposuresPace();
    void ownPace();
    void videosOwnPace();
    void pauses_data();
    void pauses();
    void nothingWithoutAFetch();
    void noFile();
};

void FilesCameraTest::formats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    const auto row = [](const char *name, int type, int value) {
        QTest::newRow(qPrintable(QString("%1, type %2").arg(name).arg(type)))
            << QString(name) << type << value;
    };
    for (const char *name : {"a.png", "a.TIF", "a.tiff", "a.jpg", "a.JPEG"})
        row(name, CV_8UC1, 100);
    for (const char *name : {"a.png", "a.tif"}) {
        row(name, CV_16UC1, 30000);
        row(name, CV_8UC3, 100);
        row(name, CV_16UC3, 30000);
    }
    row("a.jpg", CV_8UC3, 100);
}

void FilesCameraTest::formats()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(int, value);
    const PictureFolder folder;
    folder.add(name, value, 0, type);
    RunningCamera running(folder.folder.path());
    const auto frame = running.frame();
    QVERIFY2(frame, qPrintable(running.lines.join("\n")));
    QCOMPARE(frame->pixels.type(), type);
    QCOMPARE(frame->pixels.size(), cv::Size(64, 48));
    QCOMPARE(running.camera.isPresent(), true);
    const double shown = type == CV_8UC1 || type == CV_8UC3 ? frame->pixels.ptr<uchar>(40)[60]
                                                            : frame->pixels.ptr<ushort>(40)[60];
    QVERIFY(std::abs(shown - value) <= (name.endsWith("g", Qt::CaseInsensitive) ? 1 : 0));
}

void FilesCameraTest::folderInTheOrderOfDates()
{
    const PictureFolder folder;
    folder.add("a.png", 30, 30);
    folder.add("b.png", 10, 10);
    folder.add("c.tif", 20, 20);
    folder.write("notes.txt", "no picture", 5);
    RunningCamera running(folder.folder.path());
    for (const int value : {10, 20, 30})
        QCOMPARE(running.value(), value);
    QCOMPARE(running.lines, QStringList());
}

void FilesCameraTest::ownDatePrecedesTheFiles()
{
    const PictureFolder folder;
    folder.add("new.png", 50, 1000000);
    const double before = 1577836800.0 + 500.0; // the file itself is changed now
    QCOMPARE(pictures::writeFits(folder.path("old.fits").toStdString(), PictureFolder::picture(40),
                                 before, 0.0),
             std::string());
    QTest::qWait(400); // files younger than that may still be being written
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 40);
    QCOMPARE(running.value(), 50);
}

void FilesCameraTest::patternTakesItsFilesAlone()
{
    const PictureFolder folder;
    folder.add("light1.png", 1, 1);
    folder.add("light2.png", 2, 2);
    folder.add("dark1.png", 3, 3);
    RunningCamera running(folder.path("light[0-9].png"));
    for (const int value : {1, 2, 2})
        QCOMPARE(running.value(), value);
}

void FilesCameraTest::folderWithPatternCharacters()
{
    const PictureFolder folder;
    QVERIFY(QDir(folder.folder.path()).mkdir("a [1] *"));
    folder.add("a [1] */x.png", 7, 0);
    RunningCamera running(folder.path("a [1] *"));
    QCOMPARE(running.value(), 7);
    RunningCamera one(folder.path("a [1] */x.png"));
    QCOMPARE(one.value(), 7);
}

void FilesCameraTest::lastOneStays()
{
    const PictureFolder folder;
    folder.add("a.png", 1, 1);
    folder.add("b.png", 2, 2);
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 1);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(running.value(), 2);
}

void FilesCameraTest::newerFilesAreShown()
{
    const PictureFolder folder;
    folder.add("a.png", 1, 1);
    RunningCamera running(folder.folder.path());
    QCOMPARE(running.value(), 1);
    folder.add("b.png", 2, 2);
    QTRY_COMPARE_WITH_TIMEOUT(running.value(), 2, 20000);
}

void FilesCameraTest::changedFileIsShownAgain()
{
    const PictureFolder folder;
    folder.add("latest.png", 1, 1);
    RunningCamera running(folder.path("latest.png"));
    QCOMPARE(running.value(), 1);
    folder.add("latest.png", 9, 5);
    QTRY_COMPARE_WITH_TIMEOUT(running.value(), 9, 20000);
}

void FilesCameraTest::videoFrames()
{
    const PictureFolder folder;
    const QString video = folder.path("a.ser");
    QVERIFY(
        QFile::copy(QStringLiteral(PROJECT_SOURCE_DIR "/tests/pictures/golden/grey16.ser"), video));
    folder.date("a.ser", 0);
    folder.add("z.png", 5, 400000000); // later than the video's own date
    RunningCamera running(folder.folder.path());
    for (const int value : {1000, 1016, 1032, 5, 5})
        QCOMPARE(running.value(), value);
}

void FilesCameraTest::exposuresPace()
{
    const PictureFolder folder;
    for (int i = 0; i < 3; ++i)
        folder.add(QString("%1.png").arg(i), i, i);
    RunningCamera running(folder.folder.path(), virtualsky::Pace::Exposure, 0.4);
    QCOMPARE(running.value(), 0);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(running.value(), 1);
    QCOMPARE(running.value(), 2);
    QVERIFY2(timer.elapsed() >= 780, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(running.value(), 2); // the last one again, as after an exposure of its own
    QVERIFY2(timer.elapsed() >= 1170, qPrintable(QString::number(timer.elapsed())));
}

void FilesCameraTest::ownPace()
{
    const PictureFolder folder;
    folder.add("a.png", 1, 1);
    folder.add("b.png", 2, 3); // two seconds later
    RunningCamera running(folder.folder.path(), virtualsky::Pace::Own, 0.4);
    QCOMPARE(running.value(), 1);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(running.value(), 2);
    QVERIFY2(timer.elapsed() >= 1950, qPrintable(QString::number(timer.elapsed())));
    timer.start();
    QCOMPARE(running.value(), 2); // the last one again, after an exposure
    QVERIFY2(timer.elapsed() >= 390, qPrintable(QString::number(timer.elapsed())));
}

/// Its frames have time stamps half a second apart.
void FilesCameraTest::videosOwnPace()
{
    const PictureFolder folder;
    QVERIFY(QFile::copy(QStringLiteral(PROJECT_SOURCE_DIR "/tests/pictures/golden/grey16.ser"),
                        folder.path("a.ser")));
    folder.date("a.ser", 0);
    RunningCamera running(folder.path("a.ser"), virtualsky::Pace::Own);
    QCOMPARE(running.value(), 1000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(running.value(), 1016);
    QCOMPARE(running.value(), 1032);
    QVERIFY2(timer.elapsed() >= 950, qPrintable(QString::number(timer.elapsed())));
}

void FilesCameraTest::pauses_data()
{
    QTest::addColumn<bool>("own");
    QTest::addColumn<double>("exposure");
    QTest::addColumn<double>("earlier"); // negative = without a date
    QTest::addColumn<double>("later");
    QTest::addColumn<double>("pause");
    const auto row = [](const char *name, bool own, double exposure, double earlier, double later,
                        double pause) {
        QTest::newRow(name) << own << exposure << earlier << later << pause;
    };
    row("the exposure's", false, 0.5, 100.0, 107.0, 0.5);
    row("the exposure's, long", false, 60.0, 100.0, 107.0, 60.0);
    row("the exposure's, at most 30 a second", false, 0.001, 100.0, 107.0, 1.0 / 30.0);
    row("their own", true, 0.5, 100.0, 107.0, 7.0);
    row("their own, shorter than the exposure", true, 2.0, 100.0, 100.25, 0.25);
    row("their own, at most 10 seconds", true, 0.5, 100.0, 110.5, 10.0);
    row("their own, of one time", true, 0.5, 100.0, 100.0, 1.0 / 30.0);
    row("their own, backwards", true, 0.5, 100.0, 50.0, 1.0 / 30.0);
    row("the first without a date", true, 0.5, -1.0, 107.0, 0.5);
    row("the second without a date", true, 0.5, 100.0, -1.0, 0.5);
}

void FilesCameraTest::pauses()
{
    QFETCH(bool, own);
    QFETCH(double, exposure);
    QFETCH(double, earlier);
    QFETCH(double, later);
    QFETCH(double, pause);
    const auto date = [](double value) {
        return value < 0.0 ? std::nullopt : std::optional<double>(value);
    };
    QCOMPARE(framesources::pauseBetween(own ? virtualsky::Pace::Own : virtualsky::Pace::Exposure,
                                        exposure, date(earlier), date(later)),
             pause);
}

void FilesCameraTest::nothingWithoutAFetch()
{
    const PictureFolder folder;
    folder.add("a.png", 1, 1);
    RunningCamera running(folder.folder.path());
    running.wish.wanted = false;
    QCOMPARE(running.value(300), -1);
    running.wish.wanted = true;
    QCOMPARE(running.value(), 1);
}

void FilesCameraTest::noFile()
{
    const PictureFolder folder;
    RunningCamera running(folder.path("*.png"));
    QVERIFY(!running.camera.isPresent());
    QCOMPARE(running.value(1500), -1);
    QCOMPARE(running.lines, QStringList("no file matches"));
    folder.add("a.png", 3, 0);
    QTRY_COMPARE_WITH_TIMEOUT(running.value(100), 3, 20000);
    QVERIFY(running.camera.isPresent());
}

QTEST_GUILESS_MAIN(FilesCameraTest)
#include "tst_filescamera.moc"
