// SPDX-License-Identifier: MIT
// Does a window open and work, whatever is in the settings file's place?
#include "tests/reliability/settingsplace.h"
#include "tests/reliability/settingsrows.h"
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
#include <QSlider>
#include <algorithm>
#include <cmath>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace settingsrows;

namespace
{
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

/// Every value of every key, each in one of the windows, whose file has a value for every key.
void SettingsMatrixTest::content_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    for (int window = 0; window < int(numberValues().size()); ++window) {
        QByteArray bytes, open; // an open quotation goes on to the file's end
        QStringList expected;
        for (const QString &key : keys) {
            const int place = expected.size();
            const auto &values = valuesOf(key);
            const Value &value =
                values[std::size_t(window + 5 * place + place / 8) % values.size()];
            (value.bytes.startsWith("\"M") ? open : bytes) += fileWith(key, value.bytes);
            // All but "North" is the other hemisphere.
            expected << (key == keys[2] ? QString("South") : throughBox(key, value.read));
        }
        bytes += open;
        QTest::addRow("window %d", window) << bytes << expected;
    }
    QTest::newRow("empty file") << QByteArray() << defaults;
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
enum class After { NoFile, Unchanged, Saved };
const QByteArray monoFile = "[STYLE]\nstyle=Mono\n";

QByteArray place8Bit()
{
    return settingsFilePath().toLocal8Bit();
}
} // namespace
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

void SettingsMatrixTest::rubbish_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const std::vector<Rubbish> rows = settingsrows::rubbish();
    for (std::size_t i = 9; i < rows.size(); i += 10)
        QTest::newRow(rows[i].name) << rows[i].bytes;
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
