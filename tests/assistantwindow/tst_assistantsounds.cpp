// SPDX-License-Identifier: MIT
// What is the loudspeaker asked to play and to say, and when?
#include "assistantwindow/sounds.h"
#include "core/languages.h"

#include <QtEndian>
#include <QtTest>
#include <algorithm>

using namespace assistantwindow;

namespace
{
/// What was asked for.
struct Heard {
    int pulses = 0;
    QStringList others;
};

class Listener : public Player
{
public:
    explicit Listener(Heard &listener) : heard(listener) {}
    void playPulse() override { ++heard.pulses; }
    void setTone(bool on) override { heard.others.append(on ? "tone" : "silence"); }
    void say(const QString &phrase, const QLocale &locale) override
    {
        heard.others.append(locale.name() + QLatin1Char(' ') + phrase);
    }

private:
    Heard &heard;
};

Pulses every(int milliseconds)
{
    return {Pulses::Kind::Pulse, milliseconds};
}

assistant::ErrorFigures figures(double altitude, double azimuth)
{
    assistant::ErrorFigures error;
    error.total = {std::hypot(altitude, azimuth), 1.0};
    error.altitude = recognition::Measured{altitude, 1.0};
    error.azimuth = recognition::Measured{azimuth, 1.0};
    return error;
}
} // namespace

class AssistantSoundsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(assistant_catalogues);
        Q_INIT_RESOURCE(assistantwindow);
    }
    void cleanup() { installTranslator("assistant", languages.front()); }
    void pulsesComeAtTheirInterval();
    void aChangingIntervalPutsOffNothing();
    void fasterAtOnce();
    void toneUnderTheGoal();
    void phrasesHaveTime();
    void loudspeakerHasItsSounds_data();
    void loudspeakerHasItsSounds();
    void offAtFirst();
    void speaksEveryLanguage_data();
    void speaksEveryLanguage();
};

void AssistantSoundsTest::pulsesComeAtTheirInterval()
{
    Heard heard;
    Sounds sounds(std::make_unique<Listener>(heard));
    QElapsedTimer clock;
    clock.start();
    sounds.setPulses(every(50));
    QTRY_VERIFY(heard.pulses >= 10);
    QVERIFY(clock.elapsed() >= 9 * 50 - 10);
    sounds.setPulses({});
    const int before = heard.pulses;
    QTest::qWait(150);
    QCOMPARE(heard.pulses, before);
}

/// Every frame has another number while a bolt is turned.
void AssistantSoundsTest::aChangingIntervalPutsOffNothing()
{
    Heard heard;
    Sounds sounds(std::make_unique<Listener>(heard));
    QElapsedTimer clock;
    clock.start();
    for (int frame = 0; clock.elapsed() < 1000; ++frame) {
        sounds.setPulses(every(200 + frame % 7));
        QTest::qWait(20);
    }
    QVERIFY2(heard.pulses >= 3 && heard.pulses <= 6, qPrintable(QString::number(heard.pulses)));
}

void AssistantSoundsTest::fasterAtOnce()
{
    Heard heard;
    Sounds sounds(std::make_unique<Listener>(heard));
    sounds.setPulses(every(60000));
    QTRY_COMPARE(heard.pulses, 1);
    QTest::qWait(60);
    sounds.setPulses(every(40));
    QTRY_VERIFY(heard.pulses >= 3);
}

void AssistantSoundsTest::toneUnderTheGoal()
{
    Heard heard;
    Sounds sounds(std::make_unique<Listener>(heard));
    const auto at = [&](double total) { sounds.setPulses(pulsesFor(figures(total, 0.0), 20.0)); };
    at(25.0);
    QTRY_VERIFY(heard.pulses >= 2);
    at(19.0);
    at(12.0);
    const int before = heard.pulses;
    QTest::qWait(300);
    QCOMPARE(heard.pulses, before);
    QCOMPARE(heard.others, (QStringList{"silence", "tone"}));
    at(21.0);
    QTRY_VERIFY(heard.pulses > before);
    sounds.setPulses(pulsesFor({}, 20.0)); // a cloud
    QCOMPARE(heard.others, (QStringList{"silence", "tone", "silence", "silence"}));
}

void AssistantSoundsTest::phrasesHaveTime()
{
    Heard heard;
    Sounds sounds(std::make_unique<Listener>(heard));
    const QLocale german(QLocale::German, QLocale::Germany);
    sounds.say({}, german);
    QVERIFY(heard.others.isEmpty());
    sounds.say("auf", german);
    sounds.say("ab", german);
    QCOMPARE(heard.others, QStringList{"de_DE auf"});
    QTRY_COMPARE_WITH_TIMEOUT((sounds.say("ab", german), heard.others.size()), 2,
                              int(2 * Sounds::betweenPhrases));
}

void AssistantSoundsTest::loudspeakerHasItsSounds_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("pulse") << pulseSource;
    QTest::newRow("tone") << toneSource;
}

/// Without a sound server: 16-bit samples of one channel, complete, and loud enough.
void AssistantSoundsTest::loudspeakerHasItsSounds()
{
    QFETCH(QString, source);
    QFile file(source.mid(3)); // ":/..." is its name as a file
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    constexpr int headerSize = 44;
    QVERIFY(bytes.size() > headerSize);
    const auto number = [&bytes](int at, auto type) {
        return qFromLittleEndian<decltype(type)>(bytes.constData() + at);
    };
    QCOMPARE(bytes.mid(0, 4) + bytes.mid(8, 8) + bytes.mid(36, 4), QByteArray("RIFFWAVEfmt data"));
    QCOMPARE(number(20, quint16()), quint16(1));  // uncompressed
    QCOMPARE(number(22, quint16()), quint16(1));  // channel
    QCOMPARE(number(34, quint16()), quint16(16)); // bits
    QCOMPARE(number(40, quint32()), quint32(bytes.size() - headerSize));
    int loudest = 0;
    for (int at = headerSize; at < bytes.size(); at += 2)
        loudest = std::max(loudest, std::abs(int(number(at, qint16()))));
    QVERIFY2(loudest > 32767 / 10, qPrintable(QString::number(loudest)));
}

void AssistantSoundsTest::offAtFirst()
{
    assistant::Settings settings;
    settings.site = astrometry::Site{40.0, 116.0};
    const auto error = figures(-120.0, 0.0);
    QVERIFY(chosenPulses(error, settings).kind == Pulses::Kind::Silent);
    QVERIFY(chosenPhrase(error, settings).isEmpty());
    settings.sound = true;
    QVERIFY(chosenPulses(error, settings).kind == Pulses::Kind::Pulse);
    QVERIFY(chosenPhrase(error, settings).isEmpty());
    settings.speech = true;
    QCOMPARE(chosenPhrase(error, settings), QStringLiteral("up, 2 minutes"));
    settings.site.reset();
    QVERIFY(chosenPhrase(error, settings).isEmpty());
}

void AssistantSoundsTest::speaksEveryLanguage_data()
{
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("west");
    QTest::addColumn<QString>("aligned");
    const auto row = [](const char *code, const char *up, const char *west, const char *aligned) {
        QTest::newRow(code) << QString::fromUtf8(up) << QString::fromUtf8(west)
                            << QString::fromUtf8(aligned);
    };
    row("EN", "up, 2 minutes", "west, 45 seconds", "aligned");
    row("DE", "aufwärts, 2 Minuten", "Westen, 45 Sekunden", "ausgerichtet");
    row("ES", "arriba, 2 minutos", "oeste, 45 segundos", "alineado");
    row("FR", "haut, 2 minutes", "ouest, 45 secondes", "aligné");
    row("IT", "alto, 2 minuti", "ovest, 45 secondi", "allineato");
    row("JA", "上、2 分", "西、45 秒", "合いました");
    row("KO", "위로, 2분", "서쪽, 45초", "정렬되었습니다");
    row("PT", "cima, 2 minutos", "oeste, 45 segundos", "alinhado");
    row("RU", "вверх, 2 минуты", "запад, 45 секунд", "готово");
    row("ZH", "向上，2 分", "向西，45 秒", "已校准");
}

/// The worse bolt: too low by two minutes, or too far east by 45 seconds.
void AssistantSoundsTest::speaksEveryLanguage()
{
    QFETCH(QString, up);
    QFETCH(QString, west);
    QFETCH(QString, aligned);
    QVERIFY(installTranslator("assistant", languageOf(QTest::currentDataTag())));
    QCOMPARE(spokenPhrase(figures(-120.0, 10.0), 40.0, 20.0), up);
    QCOMPARE(spokenPhrase(figures(0.0, 45.0), 0.0, 20.0), west);
    QCOMPARE(spokenPhrase(figures(3.0, 2.0), 40.0, 20.0), aligned);
}

QTEST_MAIN(AssistantSoundsTest)
#include "tst_assistantsounds.moc"
