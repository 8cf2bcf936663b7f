// SPDX-License-Identifier: MIT
// Does a window open and work, whatever is in the settings file's place?
#include "tests/reliability/settingsplace.h"
#include "tests/support/reachablecopy.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "resources/resources.h"
#include "tests/reliability/processcounts.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QSlider>
#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// The twelve values in the order of the file; numbers with the six digits that are stored.
const QStringList keys{"STYLE/style",
                       "LANGUAGE/lang",
                       "REGION/region",
                       "ZOOM/factor",
                       "ASTRONOMICAL_REFRACTION/latitude",
                       "ASTRONOMICAL_REFRACTION/longitude",
                       "ASTRONOMICAL_REFRACTION/P",
                       "ASTRONOMICAL_REFRACTION/T",
                       "ASTRONOMICAL_REFRACTION/enabledCorrect",
                       "ASTRONOMICAL_REFRACTION/P_unit",
                       "AXIS_CENTER/x",
                       "AXIS_CENTER/y"};
const QStringList defaults{"Color", "EN", "North", "1",   "39.9", "116.3",
                           "101",   "10", "false", "kPa", "0",    "0"};
const QStringList numbers{keys[3], keys[4], keys[5], keys[6], keys[7], keys[10], keys[11]};
const QStringList texts{keys[0], keys[1], keys[2], keys[9]};

QStringList inForce(SessionWindow &window)
{
    const MainWindowProbe probe(window);
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    return {probe.styleName(),
            probe.languageCode(),
            probe.regionName(),
            number(double(probe.zoomFactor())),
            number(double(window.ownSession.refraction.latitude)),
            number(double(window.ownSession.refraction.longitude)),
            number(double(window.ownSession.refraction.P)),
            number(double(window.ownSession.refraction.T)),
            window.ownSession.refraction.enabledCorrect ? "true" : "false",
            window.ownSession.refraction.P_unit,
            number(window.ownSession.alignmentPoints.savedAxisCenter.x),
            number(window.ownSession.alignmentPoints.savedAxisCenter.y)};
}

QStringList stored(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    QStringList values;
    for (const QString &key : keys)
        values.append(file.value(key).toString());
    return values;
}

QStringList with(const QString &key, const QString &value)
{
    QStringList values = defaults;
    values[keys.indexOf(key)] = value;
    return values;
}

QByteArray fileWith(const QString &key, const QByteArray &value)
{
    return '[' + key.section('/', 0, 0).toLatin1() + "]\n" + key.section('/', 1).toLatin1() + '=' +
           value + '\n';
}

/// The value in effect: the refraction dialog's boxes, which show two decimals, limit four of the
/// numbers to their ranges and write them back.
QString throughBox(const QString &key, const QString &number)
{
    const struct {
        QString key;
        double least, most;
    } boxes[] = {{keys[4], 0, 90}, {keys[5], 0, 180}, {keys[6], 90, 110}, {keys[7], -84, 200}};
    for (const auto &box : boxes) {
        if (box.key != key)
            continue;
        const double value = number.toDouble();
        const double held = value < box.most ? std::max(value, box.least) : box.most;
        return QString::number(std::round(held * 100) / 100, 'g', 6);
    }
    return number;
}

/// Uses a window as far as possible without a connection: pictures, template, style.
void work(SessionWindow &window)
{
    window.resize(1600, 1100);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window, patience))
        qFatal("the window does not appear");
    QImage picture(1280, 960, QImage::Format_RGB888);
    picture.fill(Qt::blue);
    window.ownSession.frameQueue.append(picture);
    MainWindowProbe probe(window);
    probe.switchStep(2);
    if (!comesTrue([&window] { return window.ownSession.frameQueue.isEmpty(); }))
        qFatal("the window shows no picture");
    QTest::mouseDClick(&named<QLabel>(window, "label_showImg"), Qt::LeftButton, {}, QPoint(0, 0));
    for (const int angle : {90, 359, 0})
        named<QSlider>(window, "horizontalSlider_confirm_match").setValue(angle);
    QTest::qWait(30);
    if (window.grab().isNull())
        qFatal("the window cannot be painted");
}
} // namespace

class SettingsMatrixTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { clearPlace(); }
    void content_data();
    void content();
    void place_data();
    void place();
    void hugeFile();
    void rubbish_data();
    void rubbish();
};

void SettingsMatrixTest::initTestCase()
{
    initialiseResources();
    QVERIFY(givePlaceAway());
}

void SettingsMatrixTest::content_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    const struct {
        const char *text, *number;
    } numberRows[] = {{"north", "0"},      {"", "0"},       {"nan", "nan"},    {"inf", "inf"},
                      {"-inf", "-inf"},    {"1e39", "inf"}, {"-1e39", "-inf"}, {"1e400", "inf"},
                      {"-1", "-1"},        {"0", "0"},      {"1e9", "1e+09"},  {"-1e9", "-1e+09"},
                      {"1e-30", "1e-30"},  {"1,5", "0"},    {"0x10", "0"},     {"\"0.5\"", "0.5"},
                      {"  0.75  ", "0.75"}};
    for (const QString &key : numbers)
        for (const auto &row : numberRows)
            QTest::addRow("%s = '%s'", qPrintable(key), row.text)
                << fileWith(key, row.text) << with(key, throughBox(key, row.number));
    const QByteArray longText(100000, 'x');
    const struct {
        const char *name;
        QByteArray text;
        QString value;
    } textRows[] = {{"nonsense", "nonsense", "nonsense"},
                    {"empty", "", ""},
                    {"a number", "1e9", "1e9"},
                    {"a list", "a, b", ""},
                    {"with its quotation open", "\"Mono", "Mono\n"},
                    {"escapes", "\\x4d\\0\\n", QString("M") + QChar(0) + '\n'},
                    {"100,000 letters", longText, QString(longText)}};
    for (const QString &key : texts)
        for (const auto &row : textRows)
            QTest::addRow("%s: %s", qPrintable(key), row.name)
                << fileWith(key, row.text)
                << with(key, key == keys[2] ? QString("South") : row.value); // all but "North"
    const struct {
        const char *text, *truth;
    } truthRows[] = {{"true", "true"},   {"TRUE", "true"},   {"1", "true"},
                     {"0", "false"},     {"false", "false"}, {"", "false"},
                     {"maybe", "false"}, {"nan", "false"},   {"a, b", "false"}};
    for (const auto &row : truthRows)
        QTest::addRow("%s = '%s'", qPrintable(keys[8]), row.text)
            << fileWith(keys[8], row.text) << with(keys[8], row.truth);

    QTest::newRow("empty file") << QByteArray("") << defaults;
    QTest::newRow("no line end") << QByteArray("[STYLE]\nstyle=Mono") << with(keys[0], "Mono");
    QTest::newRow("group twice") << QByteArray("[ZOOM]\nfactor=0.5\n[STYLE]\nstyle=Mono\n"
                                               "[ZOOM]\nfactor=0.75\n[STYLE]\n")
                                 << [] {
                                        QStringList values = with(keys[3], "0.75");
                                        values[0] = "Mono";
                                        return values;
                                    }();
    QTest::newRow("key twice") << QByteArray("[ZOOM]\nfactor=0.5\nfactor=0.75\n")
                               << with(keys[3], "0.75");
    QTest::newRow("another case") << QByteArray("[style]\nSTYLE=Mono\n[Zoom]\nFactor=0.5\n")
                                  << defaults;
    QTest::newRow("CR LF") << QByteArray("[STYLE]\r\nstyle=Mono\r\n") << with(keys[0], "Mono");
    QTest::newRow("CR alone") << QByteArray("[STYLE]\rstyle=Mono\r") << with(keys[0], "Mono");
    QTest::newRow("byte order mark")
        << QByteArray("\xEF\xBB\xBF[STYLE]\nstyle=Mono\n") << with(keys[0], "Mono");
    const QString utf16 = "[STYLE]\nstyle=Mono\n";
    QTest::newRow("UTF-16") << "\xFF\xFE" +
                                   QByteArray(reinterpret_cast<const char *>(utf16.utf16()),
                                              utf16.size() * 2)
                            << defaults;
    QTest::newRow("group without its end")
        << QByteArray("[STYLE\nstyle=Mono\n") << with(keys[0], "Mono");
    QTest::newRow("keys without a group") << QByteArray("style=Mono\nfactor=0.5\n") << defaults;
    QTest::newRow("comments alone") << QByteArray("; nothing\n# here\n") << defaults;
    QTest::newRow("a million line ends") << QByteArray(1000000, '\n') << defaults;
    // A list that claims 2^28 or more entries, without any bytes for them.
    for (const char *const count : {"\\x10\\0\\0\\0", "\\x7f\\xff\\xff\\xff"})
        for (const char *const type : {"@Variant", "@DateTime"})
            QTest::addRow("%s with a list of %s entries", type, count)
                << fileWith(keys[0], QByteArray(type) + "(\\0\\0\\0\\x0b\\0" + count + ")")
                << defaults;
    // Written so that the bytes do not show it; the other keys are read.
    // The toolkit reads "@Variant" in an old format, without the byte before the count.
    const QByteArray list = "\\0\\0\\0\\x0b\\x7f\\xff\\xff\\xff)";
    const QByteArray dated = "\\0\\0\\0\\x0b\\0\\x7f\\xff\\xff\\xff)";
    for (const QByteArray &hidden :
         {"@Variant(" + list, "@\\126ariant(" + list, "@Variant\\x28" + list,
          "\"@Var\"\"iant(\"" + list, "\\x40Variant(" + list, "a, @Variant(" + list,
          "@Date\\x54ime(" + dated})
        QTest::addRow("between others: %s", hidden.constData())
            << "[ZOOM]\nfactor=0.5\n[MINE]\nlist=" + hidden + "\n[LANGUAGE]\nlang=" + hidden +
                   "\n[STYLE]\nstyle=Mono\n"
            << [&] {
                   QStringList values = with(keys[3], "0.5");
                   values[0] = "Mono";
                   if (hidden.startsWith("a, ")) // a list is not a text
                       values[1] = "";
                   return values;
               }();
    for (const char *const typed : {"@Size(1 2)", "@Rect(1 2 3 4)", "@Invalid()"})
        QTest::newRow(typed) << fileWith(keys[0], typed) << defaults;
    QTest::newRow("@ByteArray") << fileWith(keys[0], "@ByteArray(Mono)") << with(keys[0], "Mono");
    QTest::newRow("@@") << fileWith(keys[0], "@@Variant(x)") << with(keys[0], "@Variant(x)");
    QTest::newRow("@ alone") << fileWith(keys[0], "@home") << with(keys[0], "@home");
}

void SettingsMatrixTest::content()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, expected);
    put(bytes);
    SessionWindow window;
    QCOMPARE(inForce(window), expected);
    work(window);
    QCOMPARE(inForce(window), expected);
    window.close();
    QCOMPARE(stored(settingsFilePath()), expected);
}

namespace
{
using Arrange = std::function<void()>;
enum class After { NoFile, Unchanged, Saved };
const QByteArray monoFile = "[STYLE]\nstyle=Mono\n";

QByteArray place8Bit()
{
    return settingsFilePath().toLocal8Bit();
}
} // namespace
Q_DECLARE_METATYPE(Arrange)
Q_DECLARE_METATYPE(After)

/// What else may be there instead of our file, or in which kind of folder.
void SettingsMatrixTest::place_data()
{
    QTest::addColumn<Arrange>("arrange");
    QTest::addColumn<QString>("style"); // that is read
    QTest::addColumn<After>("after");   // closing
    const auto limit = [](mode_t rights) {
        chmod(QCoreApplication::applicationDirPath().toLocal8Bit(), rights);
    };
    const auto putWith = [](mode_t rights) {
        put(monoFile);
        chmod(place8Bit(), rights);
    };
    const struct {
        const char *name;
        Arrange arrange;
        const char *style;
        After after;
    } rows[] = {
        {"absent", [] {}, "Color", After::Saved},
        {"folder", [] { QDir().mkpath(settingsFilePath()); }, "Color", After::NoFile},
        {"folder that is not empty", [] { QDir().mkpath(settingsFilePath() + "/within"); }, "Color",
         After::NoFile},
        {"read-only file", [=] { putWith(0444); }, "Mono", After::Unchanged},
        {"file that cannot be read", [=] { putWith(0000); }, "Color", After::Unchanged},
        {"folder that cannot be written",
         [=] {
             putWith(0644);
             limit(0555);
         },
         "Mono", After::Unchanged},
        {"absent, folder that cannot be written", [=] { limit(0555); }, "Color", After::NoFile},
        {"pipe", [] { mkfifo(place8Bit(), 0666); }, "Color", After::NoFile},
        {"link to nothing", [] { QFile::link("nowhere/at all.ini", settingsFilePath()); }, "Color",
         After::NoFile},
        {"link to a device without end", [] { QFile::link("/dev/zero", settingsFilePath()); },
         "Color", After::NoFile},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.arrange << QString(row.style) << row.after;
}

void SettingsMatrixTest::place()
{
    QFETCH(Arrange, arrange);
    QFETCH(QString, style);
    QFETCH(After, after);
    {
        const OrdinaryUser user;
        arrange();
        SessionWindow window;
        QCOMPARE(MainWindowProbe(window).styleName(), style);
        work(window);
        named<QAction>(window, "actionMono_Style").toggle(); // what is saved is not what was read
        window.close();
    }
    chmod(place8Bit(), 0755);
    const bool isFile = QFileInfo(settingsFilePath()).isFile();
    QCOMPARE(isFile, after != After::NoFile);
    if (!isFile)
        return;
    QFile file(settingsFilePath()); // QSettings caches what it has read
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    if (after == After::Unchanged)
        QCOMPARE(bytes, monoFile);
    else
        QVERIFY2(bytes.contains("style=Mono") && bytes.contains("P_unit=kPa"), bytes);
}

/// Its keys are read in little memory and time; saving the settings replaces it.
void SettingsMatrixTest::hugeFile()
{
    const auto peakOfOneWindow = [] {
        forgetPeakMemory();
        SessionWindow window;
        work(window);
        window.close();
        return peakMemory();
    };
    peakOfOneWindow(); // the first has more to load
    const qint64 plain = peakOfOneWindow();
    {
        QFile file(settingsFilePath());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        const QByteArray lines =
            QByteArray("[ZOOM]\nfactor=0.5\n") + QByteArray("a=b\n").repeated(1 << 18);
        while (file.size() < 25'000'000)
            QVERIFY(file.write(lines) == lines.size());
        // No closing quote; what follows is read all the same.
        const QByteArray open = "[STYLE]\nb=\"" + QByteArray(1 << 21, 'x') + "\nstyle=Mono\n";
        QVERIFY(file.write(open) == open.size());
    }
    QElapsedTimer timer;
    timer.start();
    const LogRecorder log;
    const qint64 huge = peakOfOneWindow();
    QVERIFY2(timer.elapsed() < patience, qPrintable(QString::number(timer.elapsed())));
    const qint64 more = huge - plain;
    QVERIFY2(more < 16 * 1024 * 1024, qPrintable(QString::number(more)));
    QCOMPARE(log.texts(QtWarningMsg).filter("is kept in").size(), 1);
    QStringList expected = with(keys[3], "0.5");
    expected[0] = "Mono";
    QCOMPARE(stored(settingsFilePath()), expected);
    QVERIFY(QFileInfo(settingsFilePath()).size() < 1000);
    QCOMPARE(keptAside().size(), 1);
    QVERIFY(QFileInfo(keptAside().constFirst()).size() >= 25'000'000);
}

/// Seeded: the same rows in every run.
void SettingsMatrixTest::rubbish_data()
{
    QTest::addColumn<QByteArray>("bytes");
    std::mt19937 random(20240523);
    const auto byte = [&] { return char(random() & 0xFF); };
    for (int row = 0; row < 20; ++row) {
        QByteArray bytes;
        for (int i = 0; i < 1 << (row / 2); ++i)
            bytes.append(byte());
        QTest::addRow("random bytes %d", row) << bytes;
    }
    QByteArray whole;
    for (int i = 0; i < keys.size(); ++i)
        whole += fileWith(keys[i], defaults[i].toLatin1());
    for (int row = 0; row < 40; ++row) {
        QByteArray bytes = whole;
        for (int change = 0; change <= row; ++change)
            bytes[int(random() % unsigned(bytes.size()))] = byte();
        QTest::addRow("damaged in %d places", row + 1) << bytes;
    }
}

void SettingsMatrixTest::rubbish()
{
    QFETCH(QByteArray, bytes);
    put(bytes);
    QStringList before;
    {
        SessionWindow window;
        before = inForce(window);
        work(window);
        QCOMPARE(inForce(window), before);
        window.close();
    }
    SessionWindow again;
    QCOMPARE(inForce(again), before);
}

int main(int argc, char *argv[])
{
    if (const auto status = statusOfCopy(argv))
        return *status;
    QTEST_MAIN_IMPL(SettingsMatrixTest)
}
#include "tst_settingsmatrix.moc"
