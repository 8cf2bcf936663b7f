// SPDX-License-Identifier: MIT
// Is the sky file read as documented, and refused as a whole if anything is wrong?
#include <QFile>
#include <QtTest>
#include <random>

#include "tests/support/skytext.h"

using namespace virtualsky;

namespace
{
QByteArray line(const SkyKey &key, const QByteArray &value)
{
    return '[' + QByteArray(key.section.data(), int(key.section.size())) + "]\n" +
           QByteArray(key.name.data(), int(key.name.size())) + " = " + value + '\n';
}

} // namespace

class SkyFileTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyIsTaken_data();
    void everyKeyIsTaken();
    void ranges_data();
    void ranges();
    void refused_data();
    void refused();
    void taken_data();
    void taken();
    void faultNamesKeyAndLine();
    void defaults();
    void roundTrip();
    void randomBytesAreRefusedOrTaken();
    void truncatedTextsNeverTakePartOfANumber();
};

void SkyFileTest::everyKeyIsTaken_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("text");
    const QHash<QString, QByteArray> special = {
        {"time.date", "2024-05-23T12:00:00Z"},
        {"mount.tracking_since", "2024-05-23T12:00:00.250Z"},
        {"camera.channels", "3"},
        {"camera.source", "indi"},
        {"camera.indi", "localhost:7625/CCD Simulator"},
        {"camera.files", "/tmp/*.fits"},
        {"camera.pace", "own"},
        {"camera.scale", "6.25"},
        {"camera.mirrored", "auto"},
        {"faults.fail", "InitVELDIX, GetVELDIXLiveFrame"},
        {"faults.cameras", "2"},
        {"faults.picture", "saturated"}};
    for (const SkyKey &key : skyKeys()) {
        QByteArray text = special.value(name(key));
        if (text.isEmpty() && std::holds_alternative<bool SkyState::*>(key.member))
            text = keyText(SkyState(), key) == "true" ? "false" : "true";
        else if (text.isEmpty())
            text = QByteArray::number((key.least + 3.0 * key.most) / 4.0, 'f', 0);
        QTest::newRow(qPrintable(name(key))) << name(key) << text;
    }
}

void SkyFileTest::everyKeyIsTaken()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, text);
    const SkyKey &wanted = keyNamed(key);
    const SkyState state = parse(line(wanted, text).toStdString());
    QCOMPARE(QByteArray::fromStdString(keyText(state, wanted)), text);
    for (const SkyKey &other : skyKeys())
        if (&other != &wanted)
            QCOMPARE(keyText(state, other), keyText(SkyState(), other));
        else
            QVERIFY(keyText(state, other) != keyText(SkyState(), other));
}

void SkyFileTest::ranges_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("good");
    for (const SkyKey &key : skyKeys()) {
        const bool whole = std::holds_alternative<unsigned SkyState::*>(key.member);
        if (!whole && !std::holds_alternative<double SkyState::*>(key.member))
            continue;
        const double step = whole ? 1.0 : 0.001;
        const auto row = [&](double value, bool good) {
            const QByteArray text = QByteArray::number(value, 'f', whole ? 0 : 3);
            QTest::newRow(qPrintable(name(key) + " = " + text)) << name(key) << text << good;
        };
        row(key.least, true);
        row(key.most, true);
        row(key.least - step, false);
        row(key.most + step, false);
        for (const char *text :
             {"nan", "inf", "-inf", "1e999", "", "x", "1,5", "0x10", "1 2", "+1"})
            QTest::newRow(qPrintable(name(key) + " = " + text))
                << name(key) << QByteArray(text) << false;
    }
    const auto words = [](const char *key, std::initializer_list<const char *> texts, bool good) {
        for (const char *text : texts)
            QTest::newRow(qPrintable(QString("%1 = %2").arg(key, text)))
                << QString(key) << QByteArray(text) << good;
    };
    words("camera.scale", {"native", "auto", "0.1", "30.45", "1000"}, true);
    words("camera.scale",
          {"", "0", "-6", "0.0999", "1000.1", "nan", "inf", "6x", "+6", "Auto", "native auto"},
          false);
    words("camera.mirrored", {"true", "false", "auto"}, true);
    words("camera.mirrored", {"", "True", "1", "yes", "native"}, false);
    words("camera.source", {"sky", "indi", "files"}, true);
    words("camera.source", {"", "Indi", "indi://localhost/A", "webcam"}, false);
    words("camera.pace", {"exposure", "own"}, true);
    words("camera.pace", {"", "fast", "0.5"}, false);
    words("camera.indi", {"localhost/A", "mount.local:7625/A B", "[::1]:7/A"}, true);
    words("camera.indi", {"localhost", "localhost/", "a b/A", "h:0/A", "indi://localhost/A"},
          false);
}

void SkyFileTest::ranges()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, text);
    QFETCH(bool, good);
    const QString fault = faultOf(line(keyNamed(key), text));
    QVERIFY2(fault.isEmpty() == good, qPrintable(fault));
    if (!good)
        QVERIFY(fault.startsWith("line 2: " + key.section('.', 1) + ": must be") ||
                fault.startsWith("line 2: " + key.section('.', 1) + ": must lie between"));
}

void SkyFileTest::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *title, const QByteArray &text, const QByteArray &fault) {
        QTest::newRow(title) << text << QString(fault);
    };
    row("empty", "", "the file is empty");
    row("half-written number", "[site]\nlatitude = 4",
        "line 2: the last line has no end: the file is half-written");
    row("half-written section", "[si",
        "line 1: the last line has no end: the file is half-written");
    row("unknown section", "[sight]\n", "line 1: unknown section [sight]");
    row("section without end", "[site\n", "line 1: the section's ] is missing");
    row("unknown key", "[site]\n\nlattitude = 3\n", "line 3: lattitude: unknown key in [site]");
    row("key of another section", "[site]\nfwhm = 3\n", "line 2: fwhm: unknown key in [site]");
    row("key in capitals", "[site]\nLatitude = 3\n", "line 2: Latitude: unknown key in [site]");
    row("key before a section", "latitude = 3\n", "line 1: latitude: appears before any section");
    row("twice", "[site]\nlatitude = 3\nlatitude = 3\n", "line 3: latitude: duplicate key");
    row("twice in a section given twice", "[site]\nlatitude = 3\n[site]\nlatitude = 3\n",
        "line 4: latitude: duplicate key");
    row("no equals sign", "[site]\nlatitude 3\n",
        "line 2: latitude 3: not of the form key = value");
    row("no number", "[site]\nlatitude = north\n", "line 2: latitude: must be a number");
    row("out of range", "[site]\nlatitude = 91\n", "line 2: latitude: must lie between -90 and 90");
    row("fraction", "[sensor]\nseed = 1.5\n", "line 2: seed: must be a whole number");
    row("negative", "[sensor]\nseed = -1\n", "line 2: seed: must be a whole number");
    row("too long for the type", "[sensor]\nseed = 99999999999\n",
        "line 2: seed: must lie between 0 and 4294967295");
    row("no boolean", "[mount]\ntracking = yes\n", "line 2: tracking: must be true or false");
    row("two channels", "[camera]\nchannels = 2\n", "line 2: channels: must be 1 or 3");
    row("no picture", "[faults]\npicture = grey\n",
        "line 2: picture: must be sky, black or saturated");
    row("no operation", "[faults]\nfail = InitVELDIX, Foo\n",
        "line 2: fail: unknown operation: \"Foo\"");
    row("unprintable", "[site]\n\x01\xff = 3\n", "line 2: ??: unknown key in [site]");
    row("sentences about values are cut", "[time]\ndate = today\n",
        "line 2: date: must be now or a date from 1973 to 2100 like 2026-11-20T20:0");
    row("a long operation", "[faults]\nfail = " + QByteArray(90, 'x') + '\n',
        "line 2: fail: unknown operation: \"" + QByteArray(40, 'x'));
    row("a long section", '[' + QByteArray(90, 'x') + "]\n",
        "line 1: unknown section [" + QByteArray(60, 'x') + ']');
    row("zero byte", QByteArray("[site]\nlat\0 = 3\n", 16), "line 2: lat?: unknown key in [site]");
}

void SkyFileTest::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    const QString found = faultOf(text);
    QCOMPARE(found, fault);
}

void SkyFileTest::taken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("latitude");
    QTest::newRow("blank line alone") << QByteArray("\n") << 40.0;
    QTest::newRow("comments") << QByteArray("# a\n; b\n[site] # c\nlatitude = 3 ; d\n") << 3.0;
    QTest::newRow("blanks") << QByteArray("  [ site ]\t\n\tlatitude=-3.5  \n") << -3.5;
    QTest::newRow("line ends of other systems") << QByteArray("[site]\r\nlatitude = 3\r\n") << 3.0;
    QTest::newRow("section twice")
        << QByteArray("[site]\n[time]\n[site]\nlatitude = 1e1\n") << 10.0;
    QTest::newRow("no failures") << QByteArray("[faults]\nfail =\n") << 40.0;
}

void SkyFileTest::taken()
{
    QFETCH(QByteArray, text);
    QFETCH(double, latitude);
    QCOMPARE(faultOf(text), QString());
    QCOMPARE(parse(text.toStdString()).latitude, latitude);
}

void SkyFileTest::faultNamesKeyAndLine()
{
    try {
        parse("[site]\n\nlongitude = 181\n");
        QFAIL("accepted");
    } catch (const SkyFileError &error) {
        QCOMPARE(error.line(), 3);
        QCOMPARE(error.key(), std::string("longitude"));
        QVERIFY(error.fault().code == SkyFaultCode::OutOfRange);
        QCOMPARE(error.fault().arguments, (std::vector<std::string>{"-180", "180"}));
    }
}

void SkyFileTest::defaults()
{
    const SkyState state = parse("\n");
    QCOMPARE(format(state), format(SkyState()));
    QCOMPARE(state.latitude, 40.0);
    QCOMPARE(state.longitude, 116.0);
    QVERIFY(!state.date);
    QVERIFY(!state.refraction);
    QVERIFY(state.fail.none());
}

void SkyFileTest::roundTrip()
{
    SkyState state;
    state.latitude = -33.123456789012345;
    state.date = 1716465600.125;
    state.trackingSince = 1716465600.0;
    state.fail = OperationSet(0x8421);
    state.seed = 4294967295u;
    state.picture = virtualsky::Picture::Black;
    state.refraction = true;
    const SkyState back = parse(format(state));
    QCOMPARE(format(back), format(state));
    QVERIFY(back.latitude == state.latitude);
    QVERIFY(back.date == state.date);
    QVERIFY(back.fail == state.fail);
    QVERIFY(back.picture == state.picture);
}

void SkyFileTest::randomBytesAreRefusedOrTaken()
{
    std::mt19937 random(20240523);
    const std::string good = format(SkyState());
    int refusals = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text = round % 4 == 0 ? std::string() : good;
        const auto changes = 1 + random() % 12;
        for (std::uint_fast32_t i = 0; i < changes; ++i) {
            const std::size_t at = random() % (text.size() + 1);
            const char byte = static_cast<char>(random() & 0xff);
            if (random() % 3 == 0 || at == text.size())
                text.insert(at, 1, byte);
            else if (random() % 2 == 0)
                text[at] = byte;
            else
                text.erase(at, random() % 20);
        }
        try {
            const SkyState state = parse(text);
            QCOMPARE(format(parse(format(state))), format(state));
        } catch (const SkyFileError &error) {
            ++refusals;
            for (const char *c = error.what(); *c; ++c)
                QVERIFY(*c >= ' ' && *c <= '~');
        }
    }
    QVERIFY(refusals > 10000 && refusals < 20000);
}

void SkyFileTest::truncatedTextsNeverTakePartOfANumber()
{
    const std::string text = "[site]\nlatitude = 40.5\nlongitude = 116\n";
    for (std::size_t n = 1; n < text.size(); ++n) {
        const std::string part = text.substr(0, n);
        if (part.back() != '\n')
            QVERIFY(!faultOf(QByteArray::fromStdString(part)).isEmpty());
        else
            QVERIFY(faultOf(QByteArray::fromStdString(part)).isEmpty());
    }
}

QTEST_GUILESS_MAIN(SkyFileTest)
#include "tst_skyfile.moc"
