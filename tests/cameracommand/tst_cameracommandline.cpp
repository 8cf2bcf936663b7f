// SPDX-License-Identifier: MIT
// Is every option of quorvandel-camera taken, and everything else refused with a sentence?
#include <QtTest>

#include "cameracommand/commandline.h"

using Wish = CameraCommandLine::Wish;
Q_DECLARE_METATYPE(CameraCommandLine::Wish)

namespace
{
CameraCommandLine parsed(const QStringList &arguments)
{
    std::vector<std::string> list;
    for (const QString &argument : arguments)
        list.push_back(argument.toStdString());
    return parseCameraCommandLine(list);
}
} // namespace

class CameraCommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void options();
    void refused_data();
    void refused();
    void helpFitsATerminal();
};

void CameraCommandLineTest::commands_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Wish>("wish");
    QTest::addColumn<QString>("target");
    const auto row = [](const QStringList &arguments, Wish wish, const QString &target = {}) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << wish << target;
    };
    row({"list"}, Wish::List);
    row({"list", "mount.local:7625"}, Wish::List, "mount.local:7625");
    row({"grab", "a.png"}, Wish::Grab, "a.png");
    row({"grab", "--", "-a.png"}, Wish::Grab, "-a.png");
    row({"record", "folder", "--frames", "7"}, Wish::Record, "folder");
    row({"check"}, Wish::Check);
    row({"--write", "check"}, Wish::Check);
    row({"--help"}, Wish::Help);
    row({"grab", "--help"}, Wish::Help);
    row({"--version"}, Wish::Version);
}

void CameraCommandLineTest::commands()
{
    QFETCH(QStringList, arguments);
    QFETCH(Wish, wish);
    QFETCH(QString, target);
    const CameraCommandLine line = parsed(arguments);
    QCOMPARE(line.wish, wish);
    QCOMPARE(QString::fromStdString(line.target), target);
}

void CameraCommandLineTest::options()
{
    const CameraCommandLine plain = parsed({"check"});
    QCOMPARE(plain.exposureSeconds, 0.2);
    QCOMPARE(plain.gain, 50.0);
    QCOMPARE(plain.frames, 1);
    QVERIFY(!plain.camera && !plain.date);
    QCOMPARE(plain.writing, LensWriting::WhereItCounts);
    QCOMPARE(parsed({"check", "--write"}).writing, LensWriting::Always);
    QCOMPARE(parsed({"check", "--no-write"}).writing, LensWriting::Never);
    QCOMPARE(parsed({"--no-write", "check", "--write"}).writing, LensWriting::Always); // the last
    const CameraCommandLine line =
        parsed({"--exposure", "500", "--gain=20", "--frames", "3", "--camera", "indi://h/D",
                "--date", "2026-11-20T20:00:00", "record", "x"});
    QCOMPARE(line.wish, Wish::Record);
    QCOMPARE(line.exposureSeconds, 0.5);
    QCOMPARE(line.gain, 20.0);
    QCOMPARE(line.frames, 3);
    QCOMPARE(QString::fromStdString(line.camera->device), QString("D"));
    QCOMPARE(*line.date, 1795204800.0);
}

void CameraCommandLineTest::refused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const QStringList &arguments, const QString &complaint) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << complaint;
    };
    row({}, "No command is given.");
    row({"look"}, "There is no command look.");
    row({"grab"}, "grab needs a name to write to.");
    row({"check", "x"}, "check takes no more arguments.");
    row({"list", "a", "b"}, "list takes no more arguments.");
    row({"--frames"}, "--frames needs a value.");
    row({"--frames", "0", "check"}, "--frames takes a number from 1 to 100000.");
    row({"--gain", "101", "check"}, "--gain takes a number from 0 to 100.");
    row({"--exposure", "x", "check"}, "--exposure takes a number from 0 to 600000.");
    row({"--exposure", "nan", "check"}, "--exposure takes a number from 0 to 600000.");
    row({"--write=1", "check"}, "--write takes no value.");
    row({"--no-write=1", "check"}, "--no-write takes no value.");
    row({"--write", "list"}, "--write and --no-write are for check.");
    row({"--no-write", "grab", "a.png"}, "--write and --no-write are for check.");
    row({"--date", "today", "check"},
        "--date takes a date such as 2026-11-20T20:00:00Z, 1973 to 2100.");
    row({"--camera", "x", "check"},
        "--camera must be sky, indi://HOST[:PORT]/DEVICE or files:PATTERN.");
    row({"-x", "check"}, "There is no option -x.");
}

void CameraCommandLineTest::refused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);
    const CameraCommandLine line = parsed(arguments);
    QCOMPARE(line.wish, Wish::Misuse);
    QCOMPARE(QString::fromStdString(line.complaint), complaint);
}

void CameraCommandLineTest::helpFitsATerminal()
{
    for (const QByteArray &line : QByteArray(cameraCommandHelp).split('\n'))
        QVERIFY2(line.size() <= 100, line.constData());
}

QTEST_GUILESS_MAIN(CameraCommandLineTest)
#include "tst_cameracommandline.moc"
