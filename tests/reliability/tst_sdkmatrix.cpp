// SPDX-License-Identifier: MIT
// Does the program survive every failure and every wrong answer of the camera library, at every
// point, and connect again afterwards?
#include "tests/reliability/sdkwindow.h"
#include "tests/support/logrecorder.h"
#include "tests/support/pairwise.h"

#include <QLabel>
#include <QRegularExpression>
#include <QSlider>
#include <QtTest>
#include <limits>
#include <optional>

namespace
{
constexpr std::size_t bufferSize = 3686400;

/// When the fault begins.
enum class Moment {
    Start,     ///< before the window exists
    Live,      ///< while pictures arrive; the controls are moved, then Disconnect is chosen
    Again,     ///< while pictures arrive; then Disconnect and Connect are chosen
    WindowEnd, ///< while pictures arrive; then the window is closed
};
const std::pair<Moment, const char *> moments[] = {{Moment::Start, "at the start"},
                                                   {Moment::Live, "while live"},
                                                   {Moment::Again, "connecting again"},
                                                   {Moment::WindowEnd, "closing the window"}};

/// What an operation answers; which member counts depends on the operation.
struct Fault {
    QString operation;
    std::uint32_t status = 0;
    std::int32_t count = 0;
    double value = 0;
    QString name; ///< of the answer
};

void apply(const Fault &fault)
{
    if (fault.operation == "ScanVELDIX")
        sdk().setCameraCount(fault.count);
    else if (fault.operation == "GetVELDIXId")
        sdk().failId(0);
    else if (fault.operation == "GetVELDIXParam")
        for (const int control : {CONTROL_GAIN, CONTROL_EXPOSURE})
            sdk().setParam(control, fault.value);
    else
        sdk().setStatus(fault.operation.toStdString(), fault.status);
}

void lift(const Fault &fault)
{
    sdk().setCameraCount(1);
    sdk().failId(-1);
    sdk().setParam(CONTROL_GAIN, 10);
    sdk().setParam(CONTROL_EXPOSURE, 20000);
    sdk().setStatus(fault.operation.toStdString(), 0);
}

QList<Fault> allFaults()
{
    QList<Fault> faults;
    for (const char *const operation :
         {"InitVELDIXResource", "SetVELDIXReadMode", "SetVELDIXStreamMode", "InitVELDIX",
          "SetVELDIXBitsMode", "SetVELDIXBinMode", "SetVELDIXResolution", "SetVELDIXParam",
          "BeginVELDIXLive", "GetVELDIXLiveFrame", "StopVELDIXLive", "CloseVELDIX"})
        for (const std::uint32_t status : {1U, 0x80000000U, sdkError})
            faults.append({operation, status, 0, 0, QString::number(status, 16)});
    faults.append({"OpenVELDIX", sdkError, 0, 0, "null"});
    faults.append({"GetVELDIXId", sdkError, 0, 0, "ffffffff"});
    for (const std::int32_t count :
         {0, -1, std::numeric_limits<int>::min(), 5, std::numeric_limits<int>::max()})
        faults.append({"ScanVELDIX", 0, count, 0, "the count " + QString::number(count)});
    for (const double value :
         {-1.0, 0.0, 1e300, -1e300, double(sdkError), std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()})
        faults.append({"GetVELDIXParam", 0, 0, value, "the value " + QString::number(value)});
    return faults;
}

/// The result of a Connect under a fault.
struct Outcome {
    bool connects = true;
    std::optional<Box> box;
    QString critical; ///< the one critical line, if any
};

QStringList criticalLines(const Outcome &outcome)
{
    return outcome.critical.isEmpty() ? QStringList() : QStringList(outcome.critical);
}

Outcome outcomeOfConnecting(const Fault &fault)
{
    const Box notFound =
        okBox(QMessageBox::Information, "Info", "Not Found VELDIX Quorvandel equipment!");
    if (fault.operation == "ScanVELDIX" && fault.count <= 0)
        return {false, notFound, {}};
    if (fault.operation == "GetVELDIXId")
        return {false, notFound, {}};
    if (fault.operation == "OpenVELDIX")
        return {false, failedBox("OpenVELDIX"), "OpenVELDIX failure!"};
    if (fault.operation == "SetVELDIXReadMode" && fault.status == sdkError)
        return {true, {}, "SetVELDIXReadMode 0 Failure"};
    if (fault.operation == "SetVELDIXStreamMode")
        return {false, {}, "SetVELDIXStreamMode 1 Failure"};
    if (fault.operation == "InitVELDIX")
        return {false, failedBox("InitVELDIX"), "InitVELDIX failure!"};
    if (fault.operation == "BeginVELDIXLive")
        return {true, {}, "BeginVELDIXLive failure"};
    return {};
}

} // namespace
Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Moment)

class SdkMatrixTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(sdkViolations(), QStringList()); }
    void failure_data();
    void failure();
    void frame_data();
    void frame();
    void id_data();
    void id();
    void tooLongIdIsPassedOver();
    void hangingFetch_data();
    void hangingFetch();

private:
    void connecting(const CameraWindow &w, const Fault &fault, bool ready);
    void compareWith(const CameraWindow &w, const LogRecorder &log, const BoxWatcher &boxes,
                     const Outcome &outcome);
};

/// Every two of operation, fault and moment.
void SdkMatrixTest::failure_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<Moment>("moment");
    struct Row {
        Fault fault;
        Moment moment;
        const char *name;
    };
    std::vector<Row> rows;
    std::vector<QStringList> pairs;
    for (const Fault &fault : allFaults())
        for (const auto &[moment, name] : moments) {
            rows.push_back({fault, moment, name});
            pairs.push_back(pairsOf({fault.operation, fault.name, name}));
        }
    for (const std::size_t i : coveringRows(pairs))
        QTest::addRow("%s gives %s %s", qPrintable(rows[i].fault.operation),
                      qPrintable(rows[i].fault.name), rows[i].name)
            << rows[i].fault << rows[i].moment;
}

void SdkMatrixTest::compareWith(const CameraWindow &w, const LogRecorder &log,
                                const BoxWatcher &boxes, const Outcome &outcome)
{
    QCOMPARE(log.texts(QtCriticalMsg), criticalLines(outcome));
    QCOMPARE(boxes.boxes().size(), outcome.box ? 1 : 0);
    if (outcome.box)
        QCOMPARE(boxes.boxes().first(), *outcome.box);
    QCOMPARE(bool(w.session().camera.cameraConnected), outcome.connects);
}

/// Chooses Connect under the fault and checks the result.
void SdkMatrixTest::connecting(const CameraWindow &w, const Fault &fault, bool ready)
{
    const LogRecorder log;
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    const Outcome outcome = ready ? outcomeOfConnecting(fault) : Outcome{false, {}, {}};
    // The capture thread logs its line late; without one the thread goes on to fetch.
    QTRY_COMPARE(log.texts(QtCriticalMsg), criticalLines(outcome));
    const int fetches = sdk().fetchCount();
    if (outcome.connects && fault.operation != "BeginVELDIXLive")
        QTRY_VERIFY(sdk().fetchCount() > fetches);
    QTest::qWait(60); // and nothing more is logged
    compareWith(w, log, boxes, outcome);
}

void SdkMatrixTest::failure()
{
    QFETCH(Fault, fault);
    QFETCH(Moment, moment);
    const bool atStart = moment == Moment::Start;
    const bool neverReady = atStart && fault.operation == "InitVELDIXResource";
    const bool staysOpen = fault.operation == "CloseVELDIX" && !atStart;
    auto w = std::make_unique<CameraWindow>(QByteArray(), [&] {
        if (atStart)
            apply(fault);
        giveGoodFrames();
    });
    QCOMPARE(bool(w->session().camera.sdkReady), !neverReady);
    if (neverReady) // Connect says nothing, the status bar does
        QTRY_COMPARE(w->child<QLabel>("label_notice").text(),
                     QString("The camera library cannot be used: see the log."));
    if (atStart) {
        connecting(*w, fault, !neverReady);
    } else {
        w->trigger("actionConnect");
        QVERIFY(newPicture(*w));
        apply(fault);
        const LogRecorder log;
        const BoxWatcher boxes;
        moveControls(*w);
        if (moment == Moment::WindowEnd)
            w->window->close();
        else
            w->trigger("actionConnect");
        compareWith(*w, log, boxes, {staysOpen, {}, {}});
    }
    if (QTest::currentTestFailed())
        return;
    if (moment == Moment::Again && !staysOpen)
        connecting(*w, fault, true);
    lift(fault);
    if (moment == Moment::WindowEnd || neverReady) { // only a new start can recover
        w.reset();
        w = std::make_unique<CameraWindow>();
    }
    QVERIFY(worksAgain(*w));
}

namespace
{
QString frameName(const std::array<uint, 4> &frame)
{
    return QString("%1 x %2, %3 channels, %4 bits")
        .arg(frame[0])
        .arg(frame[1])
        .arg(frame[2])
        .arg(frame[3]);
}

/// What is strange about a frame: frames of one kind are treated alike.
QString kindOf(const std::array<uint, 4> &frame)
{
    const auto [width, height, channels, bits] = frame;
    if (width == 0 || height == 0)
        return "empty";
    if (channels != 1 && channels != 3)
        return "channels";
    if (quint64(width) * height * channels > bufferSize)
        return "too large";
    return bits == 8 ? "size" : "bits";
}
} // namespace

/// Every frame, and every kind of them in every step.
void SdkMatrixTest::frame_data()
{
    QTest::addColumn<uint>("width");
    QTest::addColumn<uint>("height");
    QTest::addColumn<uint>("channels");
    QTest::addColumn<uint>("bits");
    QTest::addColumn<int>("step");
    const std::array<uint, 4> frames[] = {
        {0, 0, 1, 8},          {0, 960, 1, 8},
        {1280, 0, 3, 8},       {1280, 960, 0, 8},
        {1, 1, 1, 8},          {2, 3, 3, 8},
        {1281, 961, 1, 8},     {640, 480, 2, 8},
        {640, 480, 4, 8},      {1280, 960, 4, 8},
        {1280, 960, 1, 16},    {1280, 960, 3, 16},
        {640, 480, 1, 0},      {2560, 1440, 1, 8},
        {1281, 960, 3, 8},     {3686400, 1, 1, 8},
        {1, 3686400, 1, 8},    {1228800, 1, 3, 8},
        {40000, 90, 1, 8},     {65536, 65536, 1, 8},
        {0x80000000, 2, 1, 8}, {sdkError, sdkError, sdkError, sdkError}};
    struct Row {
        std::array<uint, 4> frame;
        int step;
    };
    std::vector<Row> rows;
    std::vector<QStringList> needed;
    for (const auto &frame : frames)
        for (const int step : {1, 2, 9, 10, 13}) {
            rows.push_back({frame, step});
            needed.push_back(pairsOf({kindOf(frame), QString::number(step)}) +
                             QStringList(frameName(frame)));
        }
    for (const std::size_t i : coveringRows(needed)) {
        const auto &[width, height, channels, bits] = rows[i].frame;
        QTest::addRow("%s, in step %d", qPrintable(frameName(rows[i].frame)), rows[i].step)
            << width << height << channels << bits << rows[i].step;
    }
}

/// Good frames, then strange ones, then good ones again; mouse and controls work meanwhile.
void SdkMatrixTest::frame()
{
    QFETCH(uint, width);
    QFETCH(uint, height);
    QFETCH(uint, channels);
    QFETCH(uint, bits);
    QFETCH(int, step);
    const bool usable = width > 0 && height > 0 && (channels == 1 || channels == 3) &&
                        quint64(width) * height * channels <= bufferSize;
    const CameraWindow w({}, giveGoodFrames);
    const BoxWatcher boxes;
    w.trigger("actionConnect");
    QVERIFY(newPicture(w));
    if (step > 1)
        w.enterStep(step);
    const LogRecorder log;
    sdk().setFrameBits(bits);
    sdk().setFrame(width, height, channels, std::vector<std::uint8_t>(bufferSize, 90));
    const int before = sdk().fetchCount();
    QTRY_VERIFY(sdk().fetchCount() > before + 3);
    QTest::mouseDClick(&w.child<QLabel>("label_showImg"), Qt::LeftButton, {}, QPoint(0, 0));
    moveControls(w);
    const QRegularExpression refusal("cannot be shown|MatToQImage");
    QTRY_COMPARE(log.texts(QtCriticalMsg).filter(refusal).size(), usable ? 0 : 1);
    if (usable)
        QVERIFY(newPicture(w));
    giveGoodFrames();
    QVERIFY(newPicture(w, QSize(320, 240)));
    w.trigger("actionConnect");
    QVERIFY(worksAgain(w));
}

void SdkMatrixTest::id_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<bool>("terminated");
    QTest::addColumn<bool>("connects");
    QTest::newRow("empty") << QByteArray() << true << false;
    QTest::newRow("empty, no NUL") << QByteArray() << false << false;
    QTest::newRow("38 letters, no NUL") << QByteArray(38, 'Q') << false << false;
    QTest::newRow("ours, 38 letters, no NUL")
        << "QUORVANDEL-" + QByteArray(27, '7') << false << true;
    QTest::newRow("ours, 37 letters") << "QUORVANDEL-" + QByteArray(26, '7') << true << true;
    QTest::newRow("ours, 200 letters") << "QUORVANDEL-" + QByteArray(189, '7') << true << true;
    QTest::newRow("ours, 255 letters") << "QUORVANDEL-" + QByteArray(244, '7') << true << true;
    QTest::newRow("ours, 256 letters") << "QUORVANDEL-" + QByteArray(245, '7') << true << false;
    QTest::newRow("ours, 16,384 letters, no NUL")
        << "QUORVANDEL-" + QByteArray(16373, '7') << false << false;
    QTest::newRow("38 hyphens") << QByteArray(38, '-') << false << false;
    QTest::newRow("bytes that are no text") << QByteArray(38, '\xFF') << false << false;
    QTest::newRow("format signs") << QByteArray("QUORVANDEL-%s%n%1") << true << true;
}

void SdkMatrixTest::id()
{
    QFETCH(QByteArray, id);
    QFETCH(bool, terminated);
    QFETCH(bool, connects);
    const CameraWindow w({}, [&] {
        sdk().setCameras({id.toStdString()}, terminated);
        giveGoodFrames();
    });
    {
        const LogRecorder log;
        const BoxWatcher boxes;
        w.trigger("actionConnect");
        QCOMPARE(bool(w.session().camera.cameraConnected), connects);
        QCOMPARE(boxes.boxes().size(), connects ? 0 : 1);
        QCOMPARE(log.texts(QtCriticalMsg).filter("too long").size(), id.size() > 255 ? 1 : 0);
        // It is returned unchanged, or not at all.
        QCOMPARE(sdkCalls({"OpenVELDIX"}),
                 connects ? QStringList("OpenVELDIX(" + id + ")") : QStringList());
        if (connects)
            QVERIFY(newPicture(w));
    }
    sdk().setCameras({"QUORVANDEL-0001"});
    QVERIFY(worksAgain(w));
}

/// A camera whose ID cannot be returned does not hide the one behind it.
void SdkMatrixTest::tooLongIdIsPassedOver()
{
    const CameraWindow w({}, [] {
        sdk().setCameras({"QUORVANDEL-" + std::string(300, '7'), "QUORVANDEL-0002"});
        giveGoodFrames();
    });
    w.trigger("actionConnect");
    QVERIFY(w.session().camera.cameraConnected);
    QCOMPARE(sdkCalls({"OpenVELDIX"}), QStringList("OpenVELDIX(QUORVANDEL-0002)"));
    QCOMPARE(w.window->windowTitle(), QString("Quorvandel - ID:QUORVANDEL-0002"));
}

void SdkMatrixTest::hangingFetch_data()
{
    QTest::addColumn<bool>("disconnects");
    QTest::newRow("nothing is done") << false;
    QTest::newRow("Disconnect is chosen") << true;
}

/// The window stays usable while a fetch hangs; Disconnect waits for the fetch and no longer.
void SdkMatrixTest::hangingFetch()
{
    QFETCH(bool, disconnects);
    const CameraWindow w({}, giveGoodFrames);
    w.trigger("actionConnect");
    QVERIFY(newPicture(w));
    sdk().holdFetches();
    QVERIFY(sdk().waitForHeldFetch(patience));
    const int fetches = sdk().fetchCount();
    if (disconnects) {
        w.trigger("actionConnect");
        QTest::qWait(3000);
        QVERIFY(w.session().camera.cameraConnected);
        sdk().releaseFetches();
        QTRY_VERIFY(!w.session().camera.cameraConnected);
    } else {
        int ticks = 0;
        QTimer tick;
        connect(&tick, &QTimer::timeout, [&ticks] { ++ticks; });
        tick.start(20);
        QTRY_VERIFY(ticks > 50);
        QVERIFY(w.session().camera.cameraConnected);
    }
    QCOMPARE(sdk().fetchCount(), fetches); // it hung all the time, and there was no other
    sdk().releaseFetches();
    QVERIFY(worksAgain(w));
}

QTEST_MAIN(SdkMatrixTest)
#include "tst_sdkmatrix.moc"
