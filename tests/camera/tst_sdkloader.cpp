// SPDX-License-Identifier: MIT
// Where is the camera library searched for, and what is logged when it is missing or incomplete?
#include "camera/loaderfolders.h"
#include "camera/veldix.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <cstddef>
#include <link.h>

namespace
{
const QString soname = QStringLiteral("libveldix.so.20");
const QString allFail = QStringLiteral("111111111111111"); // the fifteen operations after Init

enum class File {
    None,
    Whole,
    Lacking,
    NoLibrary,
    Crashing,
    NeedsAnother,   ///< library, which is not there
    OtherProcessor, ///< by its machine number, which the loader skips
    OtherClass,     ///< 32 bits for 64
    Folder,
    DanglingLink
};

bool copyWithByte(const QString &target, int position, char value)
{
    QFile whole(WHOLE_LIBRARY), changed(target);
    if (!whole.open(QIODevice::ReadOnly) || !changed.open(QIODevice::WriteOnly))
        return false;
    QByteArray bytes = whole.readAll();
    bytes[position] = value;
    return changed.write(bytes) == bytes.size();
}

bool put(File file, const QString &folder)
{
    const QString target = folder + '/' + soname;
    // Two of the folders are the same where the architecture has no folder of its own.
    if (file == File::None || QFile::exists(target))
        return true;
    if (!QDir().mkpath(folder))
        return false;
    switch (file) {
    case File::NoLibrary: {
        QFile text(target);
        return text.open(QIODevice::WriteOnly) && text.write("no library") > 0;
    }
    case File::OtherProcessor:
        return copyWithByte(target, offsetof(ElfW(Ehdr), e_machine), char(EM_SPARC));
    case File::OtherClass:
        return copyWithByte(target, EI_CLASS, ELFCLASS32);
    case File::Folder:
        return QDir().mkpath(target);
    case File::DanglingLink:
        return QFile::link("nowhere", target);
    default:
        return QFile::copy(file == File::Whole          ? WHOLE_LIBRARY
                           : file == File::Lacking      ? LACKING_LIBRARY
                           : file == File::NeedsAnother ? NEEDING_LIBRARY
                                                        : CRASHING_LIBRARY,
                           target);
    }
}
} // namespace

/// What the program can do with what it finds.
enum class Result {
    Ready,    ///< there is a camera
    NoCamera, ///< the log says that its library cannot be used
    Failed    ///< InitVELDIXResource fails
};

Q_DECLARE_METATYPE(File)
Q_DECLARE_METATYPE(Result)

class SdkLoaderTest : public QObject
{
    Q_OBJECT

private slots:
    void folders_data();
    void folders();
    void search_data();
    void search();
    void chosenCameraLoadsTheShippedLibrary_data();
    void chosenCameraLoadsTheShippedLibrary();
    void anotherFolderOfThePath();
    void configuredFolders();
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
    QTest::addColumn<Result>("result");
    QTest::addColumn<QString>("text"); ///< the folder, or the critical line; @ is the test's folder
    const auto row = [](const char *name, File onPath, File inLib, File inLibdir, Result result,
                        const QString &text) {
        QTest::newRow(name) << onPath << inLib << inLibdir << result << text;
    };
    const File none = File::None, whole = File::Whole;
    row("loader's path", whole, none, none, Result::Ready, "path");
    row("own folder", none, whole, none, Result::Ready, "lib/quorvandel");
    row("own folder of the architecture", none, none, whole, Result::Ready, LIBDIR "/quorvandel");
    row("loader's path before own folder", whole, whole, whole, Result::Ready, "path");

    const QString broken = "@/path/" + soname + " is there and cannot be used: ";
    const struct {
        const char *name;
        File file;
        QString complaint;
    } unusable[] = {
        {"no library", File::NoLibrary, broken + "@/path/" + soname + ": file too short"},
        {"crashing", File::Crashing,
         soname + " is there and cannot be used: it ends or holds up the program"},
        {"needs another", File::NeedsAnother, soname + " is there and cannot be used: libneeded"},
        {"other processor", File::OtherProcessor, broken + soname + ": cannot open shared object"},
        {"other class", File::OtherClass, broken + soname + ": wrong ELF class"},
        {"folder", File::Folder, broken + "@/path/" + soname + ": cannot read file data"},
        {"dangling link", File::DanglingLink, broken + soname + ": cannot open shared object"},
    };
    for (const auto &[name, file, complaint] : unusable) {
        const QString line = file == File::NeedsAnother ? "@/path/" + complaint : complaint;
        row(qPrintable(QString("%1, nothing behind it").arg(name)), file, none, none,
            Result::NoCamera, line);
        row(qPrintable(QString("%1, a whole one behind it").arg(name)), file, whole, none,
            Result::NoCamera, line);
    }
    row("own folder, no library, a whole one behind it", none, File::NoLibrary, whole,
        Result::NoCamera, "@/lib/quorvandel/" + soname + " is there and cannot be used: ");

    const QString lacks = QStringLiteral("%1 lacks the function CloseVELDIX");
    row("lacks a function", File::Lacking, none, none, Result::Failed, lacks.arg(soname));
    row("lacks a function, a whole one behind it", File::Lacking, whole, none, Result::Failed,
        lacks.arg(soname));
    row("lacks a function, own folder", none, File::Lacking, none, Result::Failed,
        lacks.arg("@/lib/quorvandel/" + soname));
    row("absent", none, none, none, Result::Failed,
        "the camera library cannot be loaded: " + soname);
}

namespace
{
/// What the probe prints in a folder of its own, with `path` as the loader's path.
QStringList linesOfProbe(const QString &root, const QString &path, const QString &camera = {})
{
    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", path);
    environment.insert("CRASHING_SDK", "abort");
    environment.insert("QUORVANDEL_CAMERA", camera);
    probe.setProcessEnvironment(environment);
    probe.start(root + "/bin/sdkprobe", QStringList());
    if (!probe.waitForFinished() || probe.exitStatus() != QProcess::NormalExit ||
        probe.exitCode() != 0)
        return {};
    return QString::fromLocal8Bit(probe.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}
} // namespace

void SdkLoaderTest::search()
{
    QFETCH(File, onPath);
    QFETCH(File, inLib);
    QFETCH(File, inLibdir);
    QFETCH(Result, result);
    QFETCH(QString, text);
    const QTemporaryDir temporary;
    const QString root = QDir(temporary.path()).canonicalPath();
    QVERIFY(QDir(root).mkpath("bin") && QDir(root).mkpath("path"));
    QVERIFY(QFile::copy(PROBE, root + "/bin/sdkprobe"));
    QVERIFY(put(onPath, root + "/path"));
    QVERIFY(put(inLib, root + "/lib/quorvandel"));
    QVERIFY(put(inLibdir, root + "/" LIBDIR "/quorvandel"));
    const QStringList lines = linesOfProbe(root, root + "/path");

    const bool isReady = result == Result::Ready;
    const QString status = result == Result::Failed ? QString::number(veldixError) : "0";
    QVERIFY2(lines.contains("before " + allFail), qPrintable(lines.join('\n')));
    QVERIFY2(lines.contains("status " + status), qPrintable(lines.join('\n')));
    QVERIFY(lines.contains("again " + status));
    QVERIFY(lines.contains(isReady ? "cameras 1" : "cameras 0"));
    QCOMPARE(lines.contains("after " + allFail), !isReady);
    // Under the thread sanitizer, the loader lists a library twice that was loaded twice.
    QStringList loaded = lines.filter(QRegularExpression("^loaded "));
    loaded.removeDuplicates();
    const QStringList critical = lines.filter(QRegularExpression("^critical "));
    if (isReady) {
        QCOMPARE(loaded, QStringList("loaded " + root + '/' + text + '/' + soname));
        QCOMPARE(critical, QStringList());
    } else { // one that lacks a function may stay in memory, but no other is tried after it
        QVERIFY2(loaded.size() <= (result == Result::Failed ? 1 : 0),
                 qPrintable(loaded.join('\n')));
        QVERIFY2(critical.value(0).startsWith("critical " + text.replace("@", root)),
                 qPrintable(critical.join('\n')));
    }
}

void SdkLoaderTest::chosenCameraLoadsTheShippedLibrary_data()
{
    QTest::addColumn<File>("onPath");
    QTest::newRow("the maker's is there") << File::Whole;
    QTest::newRow("the maker's lacks a function") << File::Lacking;
    QTest::newRow("the maker's crashes") << File::Crashing;
    QTest::newRow("no other") << File::None;
}

void SdkLoaderTest::chosenCameraLoadsTheShippedLibrary()
{
    QFETCH(File, onPath);
    const QTemporaryDir temporary;
    const QString root = QDir(temporary.path()).canonicalPath();
    QVERIFY(QDir(root).mkpath("bin") && QDir(root).mkpath("path"));
    QVERIFY(QFile::copy(PROBE, root + "/bin/sdkprobe"));
    QVERIFY(put(onPath, root + "/path"));
    QVERIFY(put(File::Whole, root + "/lib/quorvandel"));
    const QStringList lines = linesOfProbe(root, root + "/path", "sky");
    QStringList loaded = lines.filter(QRegularExpression("^loaded "));
    loaded.removeDuplicates();
    QCOMPARE(loaded, QStringList("loaded " + root + "/lib/quorvandel/" + soname));
    QVERIFY2(lines.contains("cameras 1"), qPrintable(lines.join('\n')));
}

/// Like the loader: a library for another processor does not hide one in a later folder.
void SdkLoaderTest::anotherFolderOfThePath()
{
    const QTemporaryDir temporary;
    const QString root = QDir(temporary.path()).canonicalPath();
    QVERIFY(QDir(root).mkpath("bin") && QFile::copy(PROBE, root + "/bin/sdkprobe"));
    QVERIFY(put(File::OtherProcessor, root + "/first"));
    QVERIFY(put(File::Whole, root + "/second"));
    const QStringList lines = linesOfProbe(root, root + "/first:" + root + "/second");
    QVERIFY2(lines.contains("loaded " + root + "/second/" + soname), qPrintable(lines.join('\n')));
    QVERIFY(lines.contains("cameras 1"));
}

/// A library in a folder that ldconfig has not processed yet is found too.
void SdkLoaderTest::configuredFolders()
{
    const QTemporaryDir temporary;
    const QByteArray root = QFile::encodeName(QDir(temporary.path()).canonicalPath());
    const auto write = [&](const char *name, const QByteArray &text) {
        QFile file(QFile::decodeName(root + '/' + name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    QVERIFY(QDir(temporary.path()).mkpath("parts") && QDir(temporary.path()).mkpath("has it"));
    QVERIFY(write("main.conf", "# folders\n/first  # one\ninclude parts/*.conf\n\nhwcap 0 x\n"
                               "/last\ninclude " +
                                   root + "/main.conf\n"));
    QVERIFY(write("parts/a.conf", "/a\n\t" + root + "/has it\n"));
    QVERIFY(write("parts/b.conf", "/b\n/first\n"));
    QVERIFY(write("has it/libveldix.so.20", ""));
    const QByteArrayList folders = ::configuredFolders(root + "/main.conf");
    QCOMPARE(folders, QByteArrayList({"/first", "/a", root + "/has it", "/b", "/last"}));
    QCOMPARE(filesOfName("libveldix.so.20", folders),
             QByteArrayList{root + "/has it/libveldix.so.20"});
    QCOMPARE(::configuredFolders(root + "/nowhere.conf"), QByteArrayList());
}

QTEST_GUILESS_MAIN(SdkLoaderTest)
#include "tst_sdkloader.moc"
