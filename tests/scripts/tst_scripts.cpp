// SPDX-License-Identifier: MIT
// Do the two commands report a stage's progress, why it failed, what was counted and what is waited
// for?
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <fcntl.h>
#include <unistd.h>

namespace
{
struct Outcome {
    QString text; ///< standard output and standard error
    int status;
};
} // namespace

class ScriptsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    /// Runs bash commands after sourcing the scripts' functions, in a folder with the project's
    /// tools.
    Outcome bash(const QString &commands, const QStringList &arguments = {}) const
    {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(
            "bash",
            QStringList{"-c", ". tools/stages.sh; . tools/results.sh; " + commands, "bash"} +
                arguments);
        if (!process.waitForFinished(60'000))
            qFatal("the script does not end");
        QString text = QString::fromUtf8(process.readAll());
        text.replace(QRegularExpression("\\(\\d+ s\\)"), "(0 s)"); // the time varies
        return {text, process.exitCode()};
    }

    /// Puts a program of this name before the system's on the search path.
    void standIn(const QString &name, const QByteArray &script) const
    {
        write("bin/" + name, "#!/bin/bash\n" + script);
        QFile(path("bin/" + name))
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private slots:
    void initTestCase();
    void progress_data();
    void progress();
    void aLongStageMoves_data();
    void aLongStageMoves();
    void aStageThatSucceeds();
    void aStageThatFails();
    void stagesOfAScriptThatStopsAtErrors();
    void errorsBeforeTheEnd();
    void counts();
    void countsWithoutFailures();
    void reasons_data();
    void reasons();
    void noNoise();
    void skippedRows();
    void coreDumps();
    void waitsForALock_data();
    void waitsForALock();
    void doesNotWaitForEver();
    void otherFaultsAreNotWaitedFor();
    void lintsAreNotForQuick();
};

/// The failing tests run once, under the real ctest.
void ScriptsTest::initTestCase()
{
    QVERIFY(folder.isValid());
    QVERIFY(QDir(folder.path()).mkpath("bin"));
    QVERIFY(QFile::link(PROJECT_SOURCE_DIR "/tools", path("tools")));
    const Outcome made =
        bash("\"$1\" -G \"$2\" -S \"$3\" -B failing >made 2>&1 || { cat made; exit 1; }; "
             "\"$4\" --test-dir failing -j 4 >report 2>&1",
             {CMAKE_PROGRAM, GENERATOR, TEST_SOURCE_DIR "/failing", CTEST_PROGRAM});
    QVERIFY2(QFile::exists(path("failing/Testing/Temporary/LastTest.log")), qPrintable(made.text));
    QVERIFY(made.status != 0);
}

void ScriptsTest::progress_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing yet") << QByteArray() << "";
    QTest::newRow("ninja") << QByteArray("[1/8] Building a\n[2/8] Linking b\n") << "25 % (2 of 8)";
    QTest::newRow("ninja's warnings")
        << QByteArray("[6/8] Building a\nwarning: b\n") << "75 % (6 of 8)";
    QTest::newRow("ctest") << QByteArray("      Start  3: c\n 10/79 Test  #5: b .......   Passed\n")
                           << "12 % (10 of 79)";
    QTest::newRow("the last file") << QByteArray("clang-tidy -p x /src/a.cpp\n"
                                                 "clang-tidy -p x /src/app/main.cpp\n")
                                   << "main.cpp";
    QTest::newRow("a package") << QByteArray("Setting up g++ (12)\n\n") << "Setting up g++ (12)";
}

void ScriptsTest::progress()
{
    QFETCH(QByteArray, log);
    QFETCH(QString, text);
    write("log", log);
    QCOMPARE(bash("progress_of log").text, text);
}

void ScriptsTest::aLongStageMoves_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("line");
    QTest::newRow("on a terminal") << "script -qefc 'bash staged' said >/dev/null </dev/null"
                                   << "Doing it ... 25 % (1 of 4), log: build/logs/Doing-it.log";
    QTest::newRow("in a file") << "bash staged >said"
                               << "Doing it ... (log: build/logs/Doing-it.log)\n"
                                  "    25 % (1 of 4)\n";
}

/// The stage ends as soon as its progress is seen, or fails.
void ScriptsTest::aLongStageMoves()
{
    QFETCH(QString, command);
    QFETCH(QString, line);
    write("staged", ". tools/stages.sh; progress_interval=1\n"
                    "stage 'Doing it' bash -c 'echo \"[1/4] Building a\"; for i in {1..200}; do "
                    "grep -q \"25 %\" said && exit; sleep 0.1; done; exit 1'\n");
    QFile::remove(path("said"));
    const Outcome outcome = bash(command + "; status=$?; cat said; exit $status");
    QVERIFY2(outcome.text.contains(line), qPrintable(outcome.text));
    QVERIFY2(outcome.text.contains("Doing it ... done (0 s)"), qPrintable(outcome.text));
    QCOMPARE(outcome.status, 0);
}

void ScriptsTest::aStageThatSucceeds()
{
    const Outcome outcome = bash("stage 'Doing it' sh -c 'echo talk; echo seen >&3'");
    QCOMPARE(outcome.text, QString("Doing it ... (log: build/logs/Doing-it.log)\nseen\n"
                                   "Doing it ... done (0 s)\n"));
    QCOMPARE(outcome.status, 0);
}

void ScriptsTest::aStageThatFails()
{
    const Outcome outcome = bash("stage 'Doing it' sh -c 'seq 100; exit 3'");
    QCOMPARE(outcome.status, 3);
    QVERIFY2(outcome.text.contains("FAILED"), qPrintable(outcome.text));
    QVERIFY2(outcome.text.endsWith("\n    99\n    100\n"), qPrintable(outcome.text));
    QVERIFY(!outcome.text.contains("\n    60\n"));
}

/// Such as the one that makes the package: it goes on after a stage, and learns of one that fails.
void ScriptsTest::stagesOfAScriptThatStopsAtErrors()
{
    const Outcome outcome = bash("set -euo pipefail; stage 'One' true; stage 'Two' sh -c 'exit 3'; "
                                 "echo 'not reached'");
    QVERIFY2(outcome.text.contains("One ... done (0 s)\n"), qPrintable(outcome.text));
    QVERIFY2(outcome.text.contains("Two ... FAILED (0 s) with status 3"), qPrintable(outcome.text));
    QVERIFY2(!outcome.text.contains("not reached"), qPrintable(outcome.text));
    QCOMPARE(outcome.status, 3);
}

/// A compiler's messages are shown, not what others print until the end.
void ScriptsTest::errorsBeforeTheEnd()
{
    write("said", "a.cpp:3:1: error: 'x' was not declared\n   3 | x;\n" +
                      QByteArray("[7/9] Building y\n").repeated(200));
    const Outcome outcome = bash("stage 'Building' sh -c 'cat said; exit 1'");
    QVERIFY2(outcome.text.contains("error: 'x' was not declared"), qPrintable(outcome.text));
    QVERIFY(outcome.text.count('\n') < 50);
}

void ScriptsTest::counts()
{
    // passed: passes 2, skips 1, fails 1, leaks 4, plain 1; failed: fails 2, and crashes, stops,
    // leaks, hangs and absent 1 each; skipped: skips 1, fails 1.
    const Outcome outcome = bash("count_results report failing/Testing/Temporary/LastTest.log");
    QCOMPARE(outcome.text, QString("9 7 2\n"));
}

void ScriptsTest::countsWithoutFailures()
{
    const Outcome outcome =
        bash("\"$1\" --test-dir failing -R 'passes|skips|plain' >well 2>&1; "
             "cp failing/Testing/Temporary/LastTest.log well.log; count_results well well.log; "
             "explain_failures well well.log; \"$1\" --test-dir failing >report 2>&1",
             {CTEST_PROGRAM});
    QCOMPARE(outcome.text, QString("4 0 1\n"));
}

void ScriptsTest::reasons_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("compared") << "fails (Failed)\n"
                                 "    FAIL!  : C::first(a row) Compared values are not the same\n"
                                 "       Actual   (x): 1\n       Expected (y): 2\n"
                                 "       Loc: [c.cpp(5)]\n"
                                 "    FAIL!  : C::second() 'isOpen' returned FALSE. (the door\n"
                                 "    is closed)\n       Loc: [c.cpp(9)]\n";
    QTest::newRow("crashed") << "crashes (SEGFAULT)\n";
    QTest::newRow("where it crashed") << "    QDEBUG : D::second() the last word\n";
    QTest::newRow("stopped") << "stops (Subprocess aborted)\n"
                                "    QFATAL : E::first() the file cannot be read\n"
                                "leaks (Failed)\n";
    QTest::newRow("leaked") << "leaks (Failed)\n"
                               "    ==12==ERROR: LeakSanitizer: detected memory leaks\n"
                               "        #0 0x1 in leak f.cpp:1\n    SUMMARY: AddressSanitizer";
    QTest::newRow("hung") << "hangs (Timeout)\n    PASS   : F::first()\n";
    QTest::newRow("absent") << "absent (Not Run)\n";
}

void ScriptsTest::reasons()
{
    QFETCH(QString, text);
    const QString said =
        bash("explain_failures report failing/Testing/Temporary/LastTest.log").text;
    QVERIFY2(said.contains(text), qPrintable(said));
}

/// Two hundred lines of the media framework and of the program itself are not listed as reasons.
void ScriptsTest::noNoise()
{
    const QString said =
        bash("explain_failures report failing/Testing/Temporary/LastTest.log").text;
    QVERIFY2(!said.contains("GStreamer"), qPrintable(said));
    QVERIFY2(!said.contains("passes") && !said.contains("skips"), qPrintable(said));
    QVERIFY2(said.count('\n') < 40, qPrintable(said));
}

void ScriptsTest::skippedRows()
{
    QCOMPARE(bash("skipped_rows failing/Testing/Temporary/LastTest.log").text,
             QString("SKIP   : B::second(a row) no tool for it\n"));
}

/// Those of crashed tests, wherever they ran; nothing else of a similar name.
void ScriptsTest::coreDumps()
{
    QVERIFY(QDir(path("crashed")).mkpath("window/core"));
    QVERIFY(QDir(path("crashed")).mkpath("bin"));
    write("crashed/window/core/core", "a dump");
    write("crashed/bin/core.4711", "a dump");
    write("crashed/bin/core.cpp.o", "an object");
    write("crashed/bin/core.1", ""); // it was not written
    const Outcome outcome = bash("core_dumps crashed");
    QCOMPARE(outcome.text, QString("core dump: crashed/bin/core.4711\n"
                                   "core dump: crashed/window/core/core\n"));
}

void ScriptsTest::waitsForALock_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QString>("holder");
    QTest::newRow("of dpkg")
        << QByteArray("E: Could not get lock /var/lib/dpkg/lock-frontend. It is held by process "
                      "4711 (unattended-upgr)\nE: Unable to acquire the dpkg frontend lock\n")
        << "process 4711 (unattended-upgr)";
    QTest::newRow("of the lists")
        << QByteArray("E: Could not get lock /var/lib/apt/lists/lock. It is held by process 12 "
                      "(apt-get)\nE: Unable to lock directory /var/lib/apt/lists/\n")
        << "process 12 (apt-get)";
    QTest::newRow("held by nobody known")
        << QByteArray("E: Unable to lock directory /var/lib/apt/lists/\n") << "another program";
}

void ScriptsTest::waitsForALock()
{
    QFETCH(QByteArray, message);
    QFETCH(QString, holder);
    QFile::remove(path("tries"));
    write("message", message);
    standIn("apt-get", "echo try >>tries\n"
                       "[ $(wc -l <tries) -ge 3 ] || { cat message >&2; exit 100; }\n");
    const Outcome outcome = bash(
        "PATH=$PWD/bin:$PATH; lock_interval=0.1; stage Installing patiently apt-get install x");
    QCOMPARE(outcome.text, "Installing ... (log: build/logs/Installing.log)\nWaiting for " +
                               holder +
                               ", which holds the package system, for at most 30 minutes.\n"
                               "Installing ... done (0 s)\n");
    QCOMPARE(outcome.status, 0);
}

void ScriptsTest::doesNotWaitForEver()
{
    standIn("apt-get", "echo 'E: Could not get lock /a. It is held by process 1 (x)'; exit 100\n");
    const Outcome outcome = bash("PATH=$PWD/bin:$PATH; lock_interval=0.1; lock_patience=1; "
                                 "stage Installing patiently apt-get install x");
    QCOMPARE(outcome.status, 100);
    QVERIFY2(outcome.text.contains("    E: Could not get lock /a."), qPrintable(outcome.text));
}

void ScriptsTest::otherFaultsAreNotWaitedFor()
{
    standIn("apt-get", "echo 'E: Unable to locate package x'; exit 100\n");
    const Outcome outcome =
        bash("PATH=$PWD/bin:$PATH; stage Installing patiently apt-get install x");
    QCOMPARE(outcome.status, 100);
    QVERIFY2(!outcome.text.contains("Waiting"), qPrintable(outcome.text));
    QVERIFY2(outcome.text.contains("    E: Unable to locate package x"), qPrintable(outcome.text));
}

/// What ./test installs before it builds anything, on a system that has nothing.
void ScriptsTest::lintsAreNotForQuick()
{
    standIn("dpkg-query", "exit 1\n");
    standIn("apt-get", "echo \"$*\" >>asked\n[ \"$1\" = update ]\n");
    standIn("sudo", "[ \"$1\" = -v ] || exec \"$@\"\n");
    QFile::remove(path("test"));
    QFile::remove(path("asked"));
    QVERIFY(QFile::copy(PROJECT_SOURCE_DIR "/test", path("test")));
    bash("PATH=$PWD/bin:$PATH; bash ./test --quick");
    QFile asked(path("asked"));
    QVERIFY(asked.open(QIODevice::ReadOnly));
    const QByteArray packages = asked.readAll();
    QVERIFY2(packages.contains("qtbase5-dev"), packages);
    QVERIFY2(!packages.contains("clang"), packages);
}

QTEST_GUILESS_MAIN(ScriptsTest)
#include "tst_scripts.moc"
