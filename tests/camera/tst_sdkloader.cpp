// SPDX-License-Identifier: MIT
// Where is the camera library looked for, and what is said when it is not there or not whole?
#include "camera/veldix.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace
{
const QString soname = QStringLiteral("libveldix.so.20");
const QString allFail = QStringLiteral("111111111111111"); // the fifteen operations after Init

enum class File { None, Whole, Lacking, Unreadable, Crashing };

bool put(File file, const QString &folder)
{
    const QString target = folder + '/' + soname;
    // Two of the folders are one where the architecture has no folder of its own.
    if (file == File::None || QFile::exists(target))
        return true;
    if (!QDir().mkpath(folder))
        return false;
    if (file == File::Unreadable) {
        QFile text(target);
        return text.open(QIODevice::WriteOnly) && text.write("no library") > 0;
    }
    return QFile::copy(file == File::Whole     ? WHOLE_LIBRARY
                       : file == File::Lacking ? LACKING_LIBRARY
                                               : CRASHING_LIBRARY,
                       target);
}
} // namespace

Q_DECLARE_METATYPE(File)

class SdkLoaderTest : public QObject
{
    Q_OBJECT

private slots:
    void folders_data();
    void folders();
    void search_data();
    void search();
};

void SdkLoaderTest::folders_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("privateFolder");
    QTest::newRow("installed") << "/opt/program/bin"
                               << "/opt/program/lib/quorvandel/" + soname;
    QTest::newRow("folder with a dot") << "/a/b/../c/bin"
                                       << "/a/c/lib/quorvandel/" + soname;
    QTest::newRow("in the root") << "/bin"
                                 << "/lib/quorvandel/" + soname;
}

void SdkLoaderTest::folders()
{
    QFETCH(QString, application);
    QFETCH(QString, privateFolder);
    const QStringList names = librariesToTry(application);
    QCOMPARE(names.value(0), soname);
    QCOMPARE(names.value(1), privateFolder);
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    const QString system = QDir::cleanPath(application + "/../" LIBDIR "/quorvandel/" + soname);
    QVERIFY(names.contains(system));
}

void SdkLoaderTest::search_data()
{
    QTest::addColumn<File>("onPath");
    QTest::addColumn<File>("inLib");
    QTest::addColumn<File>("inLibdir");
    QTest::addColumn<QString>("loadedFrom"); ///< folder; empty = none is left loaded
    QTest::addColumn<QString>("message");    ///< a critical line; @ stands for the test's folder
    const QString lacks = QStringLiteral("%1 lacks the function CloseVELDIX");
    QTest::newRow("loader's path") << File::Whole << File::None << File::None << "path"
                                   << "";
    QTest::newRow("own folder") << File::None << File::Whole << File::None << "lib/quorvandel"
                                << "";
    QTest::newRow("own folder of the architecture")
        << File::None << File::None << File::Whole << LIBDIR "/quorvandel"
        << "";
    QTest::newRow("loader's path before own folder")
        << File::Whole << File::Whole << File::Whole << "path"
        << "";
    QTest::newRow("no library under the name")
        << File::Unreadable << File::Whole << File::None << "lib/quorvandel"
        << "a camera library is left out: @/path/" + soname + ": file too short";
    QTest::newRow("crashing one on the path, whole one behind it")
        << File::Crashing << File::Whole << File::None << "lib/quorvandel"
        << soname + " is left out: it ends or holds up the program as it is loaded";
    QTest::newRow("crashing one on the path, none behind it")
        << File::Crashing << File::None << File::None << ""
        << soname + " is left out: it ends or holds up the program as it is loaded";
    QTest::newRow("lacks a function, loader's path")
        << File::Lacking << File::None << File::None << "" << lacks.arg(soname);
    QTest::newRow("lacks a function, a whole one behind it")
        << File::Lacking << File::Whole << File::None << "" << lacks.arg(soname);
    QTest::newRow("lacks a function, own folder") << File::None << File::Lacking << File::None << ""
                                                  << lacks.arg("@/lib/quorvandel/" + soname);
    QTest::newRow("absent") << File::None << File::None << File::None << ""
                            << "the camera library can not be loaded: " + soname;
}

void SdkLoaderTest::search()
{
    QFETCH(File, onPath);
    QFETCH(File, inLib);
    QFETCH(File, inLibdir);
    QFETCH(QString, loadedFrom);
    QFETCH(QString, message);
    const QTemporaryDir temporary;
    const QString root = QDir(temporary.path()).canonicalPath();
    QVERIFY(QDir(root).mkpath("bin") && QDir(root).mkpath("path"));
    QVERIFY(QFile::copy(PROBE, root + "/bin/sdkprobe"));
    QVERIFY(put(onPath, root + "/path"));
    QVERIFY(put(inLib, root + "/lib/quorvandel"));
    QVERIFY(put(inLibdir, root + "/" LIBDIR "/quorvandel"));

    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", root + "/path");
    environment.insert("CRASHING_SDK", "abort");
    probe.setProcessEnvironment(environment);
    probe.start(root + "/bin/sdkprobe", QStringList());
    QVERIFY(probe.waitForFinished());
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    QCOMPARE(probe.exitCode(), 0);
    const QStringList lines =
        QString::fromLocal8Bit(probe.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);

    const bool isLoaded = !loadedFrom.isEmpty();
    const QString status = isLoaded ? "0" : QString::number(veldixError);
    QVERIFY2(lines.contains("before " + allFail), qPrintable(lines.join('\n')));
    QVERIFY2(lines.contains("status " + status), qPrintable(lines.join('\n')));
    QVERIFY(lines.contains("again " + status));
    QVERIFY(lines.contains(isLoaded ? "cameras 1" : "cameras 0"));
    QCOMPARE(lines.contains("after " + allFail), !isLoaded);
    // The thread sanitizer's loader lists a library that was loaded twice as often.
    QStringList loaded = lines.filter(QRegularExpression("^loaded "));
    loaded.removeDuplicates();
    if (isLoaded)
        QCOMPARE(loaded, QStringList("loaded " + root + '/' + loadedFrom + '/' + soname));
    else // one that lacks a function may stay in memory, but no other is tried behind it
        QVERIFY2(loaded.size() <= 1, qPrintable(loaded.join('\n')));
    const QStringList critical = lines.filter(QRegularExpression("^critical "));
    if (isLoaded)
        QCOMPARE(critical, message.isEmpty()
                               ? QStringList()
                               : QStringList("critical " + message.replace("@", root)));
    else
        QVERIFY2(critical.value(0).startsWith("critical " + message.replace("@", root)),
                 qPrintable(critical.join('\n')));
}

QTEST_GUILESS_MAIN(SdkLoaderTest)
#include "tst_sdkloader.moc"
