// SPDX-License-Identifier: MIT
// Is `--camera` taken from the command line, and is a bad value refused with a message?
#include <QProcess>
#include <QtTest>

#include "camera/cameraoption.h"

class CameraOptionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { qunsetenv("QUORVANDEL_CAMERA"); }
    void taken_data();
    void taken();
    void refused_data();
    void refused();
    void programRefuses_data();
    void programRefuses();
    void programsHelp();
};

namespace
{
/// Arguments as `main` gets them.
struct Arguments {
    explicit Arguments(const QByteArrayList &list) : texts(list), count(list.size())
    {
        for (QByteArray &text : texts)
            pointers.append(text.data());
        pointers.append(nullptr);
    }
    QByteArrayList kept() const
    {
        QByteArrayList list;
        for (int i = 0; i < count; ++i)
            list.append(pointers[i]);
        return list;
    }
    QByteArrayList texts;
    QVector<char *> pointers;
    int count;
};
} // namespace

void CameraOptionTest::taken_data()
{
    QTest::addColumn<QByteArrayList>("arguments");
    QTest::addColumn<QByteArrayList>("kept");
    QTest::addColumn<QByteArray>("camera");
    using List = QByteArrayList;
    QTest::newRow("none") << List{"p", "--maximized"} << List{"p", "--maximized"} << QByteArray();
    QTest::newRow("sky") << List{"p", "--camera", "sky"} << List{"p"} << QByteArray("sky");
    QTest::newRow("with =") << List{"p", "--camera=files:/a b", "x"} << List{"p", "x"}
                            << QByteArray("files:/a b");
    QTest::newRow("among others") << List{"p", "--a", "--camera", "indi://h/d", "--b"}
                                  << List{"p", "--a", "--b"} << QByteArray("indi://h/d");
    QTest::newRow("the last counts")
        << List{"p", "--camera", "sky", "--camera=files:a"} << List{"p"} << QByteArray("files:a");
    QTest::newRow("another option")
        << List{"p", "--cameras"} << List{"p", "--cameras"} << QByteArray();
}

void CameraOptionTest::taken()
{
    QFETCH(QByteArrayList, arguments);
    QFETCH(QByteArrayList, kept);
    QFETCH(QByteArray, camera);
    Arguments given(arguments);
    QVERIFY(takeCameraOption(given.count, given.pointers.data()));
    QCOMPARE(given.kept(), kept);
    QCOMPARE(given.pointers[given.count], nullptr);
    QCOMPARE(qgetenv("QUORVANDEL_CAMERA"), camera);
}

void CameraOptionTest::refused_data()
{
    QTest::addColumn<QByteArrayList>("arguments");
    using List = QByteArrayList;
    QTest::newRow("no value") << List{"p", "--camera"};
    QTest::newRow("empty") << List{"p", "--camera="};
    QTest::newRow("unknown") << List{"p", "--camera", "webcam"};
    QTest::newRow("no device") << List{"p", "--camera", "indi://localhost"};
}

void CameraOptionTest::refused()
{
    QFETCH(QByteArrayList, arguments);
    Arguments given(arguments);
    QVERIFY(!takeCameraOption(given.count, given.pointers.data()));
    QVERIFY(!qEnvironmentVariableIsSet("QUORVANDEL_CAMERA"));
}

void CameraOptionTest::programRefuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown")
        << QStringList{"--camera", "webcam"}
        << QByteArray("quorvandel: --camera must be sky, indi://HOST[:PORT]/DEVICE or "
                      "files:PATTERN\n");
    QTest::newRow("no value") << QStringList{"--maximized", "--camera"}
                              << QByteArray("quorvandel: --camera needs a value\n");
}

void CameraOptionTest::programRefuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QProcess program;
    program.start(PROGRAM_FILE, arguments);
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 2);
    QCOMPARE(program.readAllStandardError(), message);
}

void CameraOptionTest::programsHelp()
{
    QProcess program;
    program.start(PROGRAM_FILE, {"--help"});
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitCode(), 0);
    const QByteArray help = program.readAllStandardOutput();
    for (const char *word : {"--camera ADDRESS", "indi://HOST[:PORT]/DEVICE", "files:PATTERN"})
        QVERIFY2(help.contains(word), word);
    for (const QByteArray &line : help.split('\n'))
        QVERIFY2(line.size() <= 80, line.constData());
}

QTEST_GUILESS_MAIN(CameraOptionTest)
#include "tst_cameraoption.moc"
