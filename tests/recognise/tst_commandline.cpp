// SPDX-License-Identifier: MIT
// Are options, dates of pictures and JSON what they should be?
#include "pictures/exifdate.h"
#include "pictures/picturefile.h"
#include "recognise/commandline.h"
#include "recognise/report.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <ctime>
#include <random>

namespace
{
const QString folder = QStringLiteral(TEST_SOURCE_DIR "/golden/");

QByteArray bytesOf(const QString &name)
{
    QFile file(folder + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), std::size_t(bytes.size())};
}

CommandLine parsed(const QString &line)
{
    std::vector<std::string> arguments;
    for (const QString &word : line.split(' ', Qt::SkipEmptyParts))
        arguments.push_back(word.toStdString());
    return parseCommandLine(arguments);
}

QJsonObject objectOf(const PictureReport &report)
{
    const QByteArray line = QByteArray::fromStdString(jsonOf(report));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    return error.error == QJsonParseError::NoError && !line.contains('\n') ? document.object()
                                                                           : QJsonObject();
}
} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }
    void goodLines_data();
    void goodLines();
    void misuse_data();
    void misuse();
    void isoDates_data();
    void isoDates();
    void datesOfPictures_data();
    void datesOfPictures();
    void localTimeWithoutOffset();
    void damagedFiles();
    void unreadableFiles_data();
    void unreadableFiles();
    void namesInJson_data();
    void namesInJson();
    void fieldsInJson();
};

void CommandLineTest::goodLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("images");
    QTest::addColumn<int>("hemisphere"); // 0 both, 1 north, -1 south
    QTest::addColumn<double>("low");     // 0: not given
    QTest::addColumn<bool>("json");
    QTest::addColumn<QString>("picture");
    QTest::newRow("one picture") << "a.png" << 1 << 0 << 0.0 << false << "";
    QTest::newRow("all options")
        << "--date 2026-11-20T20:00:00Z --hemisphere south --scale 3 70.5 --json a.png b.jpg" << 2
        << -1 << 3.0 << true << "";
    QTest::newRow("options after pictures")
        << "a.png --hemisphere north --json b.tif" << 2 << 1 << 0.0 << true << "";
    QTest::newRow("with equals signs")
        << "--hemisphere=both --picture=o.png --date=2026-11-20 a.png" << 1 << 0 << 0.0 << false
        << "o.png";
    QTest::newRow("names like options") << "--json -- --json -x" << 2 << 0 << 0.0 << true << "";
    QTest::newRow("widest scales") << "--scale 0.01 600 a" << 1 << 0 << 0.01 << false << "";
    QTest::newRow("one scale") << "--scale 30.45 30.45 a" << 1 << 0 << 30.45 << false << "";
}

void CommandLineTest::goodLines()
{
    QFETCH(QString, line);
    QFETCH(int, images);
    QFETCH(int, hemisphere);
    QFETCH(double, low);
    QFETCH(bool, json);
    QFETCH(QString, picture);
    const CommandLine wishes = parsed(line);
    QCOMPARE(wishes.wish, CommandLine::Wish::Recognise);
    QCOMPARE(int(wishes.images.size()), images);
    const int found = !wishes.hemisphere                                     ? 0
                      : *wishes.hemisphere == recognition::Hemisphere::North ? 1
                                                                             : -1;
    QCOMPARE(found, hemisphere);
    QCOMPARE(wishes.scale ? wishes.scale->first : 0.0, low);
    QCOMPARE(wishes.json, json);
    QCOMPARE(QString::fromStdString(wishes.picture), picture);
}

void CommandLineTest::misuse_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("word");
    const auto row = [](const char *name, const char *line, const char *word) {
        QTest::newRow(name) << QString(line) << QByteArray(word);
    };
    row("nothing", "", "No picture");
    row("options alone", "--json", "No picture");
    row("unknown option", "--frob a.png", "--frob");
    row("short option", "-j a.png", "-j");
    row("no date", "a.png --date", "--date needs");
    row("bad date", "--date yesterday a.png", "2026-11-20T20:00:00Z");
    row("date that is none", "--date 2026-02-30 a.png", "--date takes");
    row("bad hemisphere", "--hemisphere east a.png", "north, south or both");
    row("one number", "--scale 3 a.png", "--scale takes");
    row("scales the wrong way", "--scale 70 3 a.png", "--scale takes");
    row("no scale", "--scale 0 0 a.png", "--scale takes");
    row("scale below 0", "--scale -3 70 a.png", "--scale takes");
    row("scale too large", "--scale 2 600.1 a.png", "up to 600");
    row("scale with a tail", "--scale 3x 70 a.png", "--scale takes");
    row("not a number", "--scale nan nan a.png", "--scale takes");
    row("a value too many", "--json=yes a.png", "no value");
    row("two pictures to draw", "--picture o.png a.png b.png", "one IMAGE");
}

void CommandLineTest::misuse()
{
    QFETCH(QString, line);
    QFETCH(QByteArray, word);
    const CommandLine wishes = parsed(line);
    QCOMPARE(wishes.wish, CommandLine::Wish::Misuse);
    QVERIFY2(QByteArray::fromStdString(wishes.complaint).contains(word), wishes.complaint.c_str());
}

void CommandLineTest::isoDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("seconds"); // -1: none
    QTest::newRow("whole") << "2026-11-20T20:00:00Z" << 1795204800.0;
    QTest::newRow("without Z") << "2026-11-20T20:00:00" << 1795204800.0;
    QTest::newRow("a day") << "2026-11-20" << 1795132800.0;
    QTest::newRow("empty") << "" << -1.0;
    QTest::newRow("no day") << "2026-11" << -1.0;
    QTest::newRow("a tail") << "2026-11-20T20:00:00Zz" << -1.0;
}

void CommandLineTest::isoDates()
{
    QFETCH(QString, text);
    QFETCH(double, seconds);
    QCOMPARE(parseIsoDate(text.toStdString()).value_or(-1.0), seconds);
}

void CommandLineTest::datesOfPictures_data()
{
    QTest::addColumn<double>("seconds"); // -1: none
    QFile file(folder + "dates.csv");
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().trimmed().split(',');
        if (cells.size() == 2 && cells[0] != "file")
            QTest::newRow(cells[0].constData())
                << (cells[1].isEmpty() ? -1.0 : cells[1].toDouble());
    }
}

void CommandLineTest::datesOfPictures()
{
    QFETCH(double, seconds);
    const QByteArray bytes = bytesOf(QTest::currentDataTag());
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(dateOfPicture(viewOf(bytes)).value_or(-1.0), seconds);
    const PictureFile picture = readPicture((folder + QTest::currentDataTag()).toStdString());
    QCOMPARE(picture.pixels.size(), cv::Size(48, 40));
    QCOMPARE(picture.date.value_or(-1.0), seconds);
}

void CommandLineTest::localTimeWithoutOffset()
{
    qputenv("TZ", "EST5");
    tzset();
    const double local = parseExifDate("2014:12:10 21:30:15", "").value_or(-1.0);
    const double given = parseExifDate("2014:12:10 21:30:15", "+00:00").value_or(-1.0);
    qputenv("TZ", "UTC");
    tzset();
    QCOMPARE(given, 1418247015.0);
    QCOMPARE(local, 1418247015.0 + 5 * 3600);
}

void CommandLineTest::damagedFiles()
{
    std::mt19937 random(3);
    for (const char *name :
         {"original.jpg", "offset.jpg", "original.png", "little.tif", "big.tif"}) {
        const QByteArray whole = bytesOf(name);
        for (int length = 0; length < whole.size(); ++length)
            dateOfPicture(viewOf(whole.left(length)));
        for (int i = 0; i < 3000; ++i) {
            QByteArray damaged = whole;
            for (int j = 0; j < 4; ++j)
                damaged[int(random() % unsigned(std::min(damaged.size(), 400)))] =
                    char(random() % 256);
            const std::optional<double> date = dateOfPicture(viewOf(damaged));
            QVERIFY(!date || (*date > 6e8 && *date < 4.2e9));
        }
    }
}

void CommandLineTest::unreadableFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("absent") << folder + "absent.png";
    QTest::newRow("a folder") << folder;
    QTest::newRow("text") << folder + "dates.csv";
    QTest::newRow("an endless device") << "/dev/zero";
    QTest::newRow("an empty device") << "/dev/null";
    QTest::newRow("no name") << "";
}

void CommandLineTest::unreadableFiles()
{
    QFETCH(QString, path);
    const PictureFile picture = readPicture(path.toStdString());
    QVERIFY(picture.pixels.empty());
    QVERIFY(!picture.complaint.empty());
}

void CommandLineTest::namesInJson_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("written");
    QTest::newRow("plain") << QByteArray("a b.png") << "a b.png";
    QTest::newRow("quotes") << QByteArray("a\"b\\c.png") << "a\"b\\c.png";
    QTest::newRow("line end") << QByteArray("a\nb\t\x01") << QString("a\nb\t\x01");
    QTest::newRow("umlaut and star") << QByteArray("\xc3\xa4\xe2\x98\x85\xf0\x9f\x8c\x9f")
                                     << QString::fromUtf8("\xc3\xa4\xe2\x98\x85\xf0\x9f\x8c\x9f");
    QTest::newRow("no UTF-8") << QByteArray("a\xff\xe2\x98z\xc0\xaf")
                              << QString::fromUtf8("a\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbdz"
                                                   "\xef\xbf\xbd\xef\xbf\xbd");
}

void CommandLineTest::namesInJson()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, written);
    PictureReport report;
    report.file = name.toStdString();
    report.complaint = "No.";
    QCOMPARE(objectOf(report)["file"].toString(), written);
}

void CommandLineTest::fieldsInJson()
{
    PictureReport report;
    report.file = "a.png";
    QStringList names = {"extracted",         "file",     "hemisphere",   "matched", "mirrored",
                         "pole_sigma_arcsec", "pole_x",   "pole_y",       "reason",  "recognised",
                         "rms_arcsec",        "roll_deg", "scale_arcsec", "seconds"};
    names.sort();
    const QJsonObject unknown = objectOf(report);
    QStringList keys = unknown.keys();
    keys.sort();
    QCOMPARE(keys, names);
    QCOMPARE(unknown["recognised"], QJsonValue(false));
    QVERIFY(!unknown["reason"].toString().isEmpty());
    for (const char *key : {"hemisphere", "pole_x", "pole_y", "pole_sigma_arcsec", "scale_arcsec",
                            "roll_deg", "mirrored", "rms_arcsec"})
        QVERIFY2(unknown[QLatin1String(key)].isNull(), key);

    report.recognition.status = recognition::RecognitionStatus::Recognised;
    report.recognition.hemisphere = recognition::Hemisphere::South;
    report.recognition.pole = {12.25, -3.5};
    report.recognition.mirrored = true;
    const QJsonObject known = objectOf(report);
    keys = known.keys();
    keys.sort();
    names.removeAll("reason");
    QCOMPARE(keys, names);
    QCOMPARE(known["recognised"], QJsonValue(true));
    QCOMPARE(known["hemisphere"], QJsonValue("south"));
    QCOMPARE(known["pole_x"], QJsonValue(12.25));
    QCOMPARE(known["pole_y"], QJsonValue(-3.5));
    QCOMPARE(known["mirrored"], QJsonValue(true));
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
