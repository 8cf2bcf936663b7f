// SPDX-License-Identifier: MIT
// What does `cmake --install` put where, and is it what desktops and software centres expect?
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>
#include <sys/stat.h>

namespace
{
const QList<int> iconSizes{16, 22, 24, 32, 48, 64, 128, 256};
struct Application {
    QString program;
    QString id;
};
const QList<Application> applications{{"quorvandel", "example.quorvandel.quorvandel"},
                                      {"quorvandel-assistant", "example.quorvandel.assistant"},
                                      {"quorvandel-mount", "example.quorvandel.mount"}};
/// Those that software centres list.
const QList<Application> listed = applications.mid(0, 2);

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString iconName(int size, const QString &id)
{
    return QStringLiteral(DATADIR "/icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(id);
}

QString metainfoName(const Application &application)
{
    return DATADIR "/metainfo/" + application.id + ".metainfo.xml";
}

QString entryName(const Application &application)
{
    return DATADIR "/applications/" + application.id + ".desktop";
}

/// Everything except the manual's own files, relative to the prefix.
QStringList expectedFiles()
{
    QStringList files{BINDIR "/quorvandel",
                      BINDIR "/quorvandel-camera",
                      BINDIR "/quorvandel-assistant",
                      BINDIR "/quorvandel-mount",
                      BINDIR "/quorvandel-recognise",
                      LIBDIR "/quorvandel/libveldix.so.20",
                      LIBDIR "/quorvandel/quorvandel-framesources.so",
                      LIBEXECDIR "/quorvandel/bin/quorvandel",
                      LIBEXECDIR "/quorvandel/lib",
                      LIBEXECDIR "/quorvandel/share",
                      MANDIR "/man1/quorvandel-camera.1",
                      MANDIR "/man1/quorvandel-recognise.1"};
    for (const Application &application : listed)
        files << metainfoName(application);
    for (const Application &application : applications) {
        files << entryName(application) << MANDIR "/man1/" + application.program + ".1"
              << DATADIR "/icons/hicolor/scalable/apps/" + application.id + ".svg";
        for (const int size : iconSizes)
            files << iconName(size, application.id);
    }
    for (const char *name : {"LICENSE", "CHANGELOG.md", "installing.md", "your-camera.md",
                             "recognition.md", "virtual-camera.md"})
        files << QStringLiteral(DOCDIR "/") + name;
    files.sort();
    return files;
}

/// The texts of all elements with a name, or of one of their attributes.
QStringList elements(const QString &path, const QString &name, const QString &attribute = {})
{
    QFile file(path);
    QStringList found;
    if (!file.open(QIODevice::ReadOnly))
        return found;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name)
            found << (attribute.isEmpty() ? reader.readElementText()
                                          : reader.attributes().value(attribute).toString());
    return reader.hasError() ? QStringList() : found;
}
} // namespace

class InstallationTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir scratch;

    /// Not there before.
    QString prefix() const { return scratch.path() + "/new/prefix"; }
    QString installed(const QString &name) const { return prefix() + '/' + name; }

    QStringList installedFiles() const
    {
        QStringList files;
        QDirIterator all(prefix(), QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
        while (all.hasNext())
            files << QDir(prefix()).relativeFilePath(all.next());
        for (const char *link : {LIBEXECDIR "/quorvandel/lib", LIBEXECDIR "/quorvandel/share"})
            if (QFileInfo(installed(link)).isSymLink())
                files << link;
        files.sort();
        return files;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(scratch.isValid());
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        const mode_t usual = umask(077); // as a careful administrator has it
        process.start(CMAKE_PROGRAM, {"--install", PROJECT_BINARY_DIR, "--prefix", prefix()});
        umask(usual);
        QVERIFY(process.waitForFinished(60000));
        QVERIFY2(process.exitCode() == 0, process.readAll().constData());
    }

    void everyFileIsInItsPlace()
    {
        QStringList files = installedFiles();
        const QRegularExpression manual("^" DOCDIR "/(manual|images)/");
        for (int i = files.size() - 1; i >= 0; --i)
            if (files[i].contains(manual))
                files.removeAt(i);
        QCOMPARE(files, expectedFiles());
    }

    void manualIsWhole()
    {
        const QDir source(PROJECT_SOURCE_DIR "/docs");
        QVERIFY(source.exists("manual/en/index.html"));
        QDirIterator all(source.filePath("manual"), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString file = all.next();
            const QString name = DOCDIR "/" + source.relativeFilePath(file);
            QVERIFY2(textOf(installed(name)) == textOf(file), qPrintable(name));
        }
    }

    /// The pictures that the manual's pages show are installed, those alone, and none twice.
    void picturesAreThoseOfThePages()
    {
        QSet<QString> shown;
        const QRegularExpression address("(?:src|href)=\"\\.\\./\\.\\./(images/[^\"#]+)");
        QDirIterator pages(installed(DOCDIR "/manual"), {"*.html"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (pages.hasNext()) {
            auto found = address.globalMatch(textOf(pages.next()));
            while (found.hasNext())
                shown << found.next().captured(1);
        }
        QVERIFY(shown.contains("images/north/step-01-exposure.png"));
        QSet<QString> there;
        QHash<QByteArray, QString> contents;
        QDirIterator pictures(installed(DOCDIR "/images"), QDir::Files,
                              QDirIterator::Subdirectories);
        while (pictures.hasNext()) {
            QFile file(pictures.next());
            const QString name = QDir(installed(DOCDIR)).relativeFilePath(file.fileName());
            there << name;
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            QVERIFY2(!contents.contains(bytes), qPrintable(name + " is " + contents.value(bytes)));
            contents.insert(bytes, name);
        }
        QCOMPARE(there, shown);
    }

    void linksLeadTo_data()
    {
        QTest::addColumn<QString>("name");
        const QString program = QStringLiteral(LIBEXECDIR "/quorvandel/");
        QTest::newRow("the virtual camera") << program + "lib/quorvandel/libveldix.so.20";
        QTest::newRow("the documents") << program + "share/" +
                                              QDir("/" DATADIR).relativeFilePath("/" DOCDIR) +
                                              "/installing.md";
    }

    void linksLeadTo()
    {
        QFETCH(QString, name);
        QVERIFY2(QFileInfo(installed(name)).isFile(), qPrintable(name));
    }

    void programsMayBeStarted_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {BINDIR "/quorvandel", BINDIR "/quorvandel-assistant", BINDIR "/quorvandel-camera",
              BINDIR "/quorvandel-mount", BINDIR "/quorvandel-recognise",
              LIBEXECDIR "/quorvandel/bin/quorvandel"})
            QTest::newRow(name) << QString(name);
    }

    void programsMayBeStarted()
    {
        QFETCH(QString, name);
        const auto wanted = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther | QFile::ReadOwner |
                            QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(installed(name)) & wanted, QFile::Permissions(wanted));
    }

    /// Whatever the umask was: folders and programs 0755, other files 0644.
    void everybodyMayReadEverything()
    {
        int folders = 0;
        QDirIterator all(scratch.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QByteArray path = QFile::encodeName(all.next());
            struct stat found = {};
            QCOMPARE(lstat(path.constData(), &found), 0);
            if (S_ISLNK(found.st_mode))
                continue;
            folders += S_ISDIR(found.st_mode);
            const mode_t mode = found.st_mode & 07777;
            const bool isFile = S_ISREG(found.st_mode);
            QVERIFY2(mode == 0755 || (isFile && mode == 0644),
                     path + " has mode 0" + QByteArray::number(mode, 8));
        }
        QVERIFY(folders > 30);
    }

    /// A folder that was there keeps its mode.
    void foldersOfOthersStay()
    {
        const QString doors = prefix() + "/" DATADIR "/applications";
        QVERIFY(chmod(QFile::encodeName(doors).constData(), 0750) == 0);
        QCOMPARE(QProcess::execute("sh", {"-c",
                                          CMAKE_PROGRAM " --install \"$1\" --prefix \"$2\" "
                                                        ">/dev/null",
                                          "sh", PROJECT_BINARY_DIR, prefix()}),
                 0);
        struct stat found = {};
        QCOMPARE(stat(QFile::encodeName(doors).constData(), &found), 0);
        QCOMPARE(found.st_mode & 07777, mode_t(0750));
    }

    void iconsHaveTheSizeOfTheirFolder()
    {
        for (const Application &application : applications)
            for (const int size : iconSizes) {
                const QImage image(installed(iconName(size, application.id)));
                QCOMPARE(image.size(), QSize(size, size));
                QVERIFY2(image.hasAlphaChannel(), qPrintable(application.id));
            }
    }

    void desktopEntriesNameWhatIsInstalled()
    {
        for (const Application &application : applications) {
            const QStringList lines = textOf(installed(entryName(application))).split('\n');
            for (const char *key : {"Exec=", "TryExec=", "StartupWMClass="})
                QVERIFY2(lines.contains(key + application.program), key);
            QVERIFY(lines.contains("Icon=" + application.id));
        }
    }

    /// Desktops find the menu entry and the icon of a window by the name that its program gives.
    void programsNameTheirMenuEntry()
    {
        for (const Application &application : applications) {
            const bool hasLauncher = application.id == applications.first().id;
            QFile program(installed((hasLauncher ? LIBEXECDIR "/quorvandel/bin/" : BINDIR "/") +
                                    application.program));
            QVERIFY(program.open(QIODevice::ReadOnly));
            const QByteArray literal(reinterpret_cast<const char *>(application.id.utf16()),
                                     (application.id.size() + 1) * 2);
            QVERIFY2(program.readAll().contains(literal), qPrintable(application.id));
        }
    }

    void everyLanguageIsInTheDesktopEntries()
    {
        for (const Application &application : applications) {
            const QString entry = textOf(installed(entryName(application)));
            for (const char *language : {"de", "es", "fr", "it", "ja", "ko", "pt", "ru", "zh_CN"})
                for (const char *key : {"\nGenericName[%1]=", "\nComment[%1]="})
                    QVERIFY2(entry.contains(QString(key).arg(language)), language);
        }
    }

    void passesTheValidator_data()
    {
        QTest::addColumn<QString>("validator");
        QTest::addColumn<QStringList>("arguments");
        const auto page = QStringLiteral(MANDIR "/man1/%1.1");
        for (const Application &application : applications) {
            QTest::newRow(qPrintable("menu entry of " + application.program))
                << "desktop-file-validate" << QStringList{installed(entryName(application))};
            QTest::newRow(qPrintable("man page of " + application.program))
                << "mandoc"
                << QStringList{"-Tlint", "-Wwarning", installed(page.arg(application.program))};
        }
        for (const QString &command :
             {QStringLiteral("quorvandel-recognise"), QStringLiteral("quorvandel-camera")})
            QTest::newRow(qPrintable("man page of " + command))
                << "mandoc" << QStringList{"-Tlint", "-Wwarning", installed(page.arg(command))};
        for (const Application &application : listed)
            QTest::newRow(qPrintable("metainfo of " + application.program))
                << "appstreamcli"
                << QStringList{"validate", "--no-net", installed(metainfoName(application))};
    }

    void passesTheValidator()
    {
        QFETCH(QString, validator);
        QFETCH(QStringList, arguments);
        if (QStandardPaths::findExecutable(validator).isEmpty())
            QSKIP(qPrintable(validator + " is not installed"));
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(validator, arguments);
        QVERIFY(process.waitForFinished(30000));
        const QString output = QString::fromUtf8(process.readAll());
        QVERIFY2(process.exitCode() == 0, qPrintable(output));
        const QRegularExpression warning("^[EW]: ", QRegularExpression::MultilineOption);
        QVERIFY2(!output.contains(warning), qPrintable(output));
    }

    void releasesAreThoseOfTheChangelog()
    {
        const QRegularExpression heading(R"(^## \[([0-9.]+)\] - (\S+)$)",
                                         QRegularExpression::MultilineOption);
        QStringList versions;
        QStringList days;
        auto matches = heading.globalMatch(textOf(PROJECT_SOURCE_DIR "/CHANGELOG.md"));
        while (matches.hasNext()) {
            const auto match = matches.next();
            versions << match.captured(1);
            days << match.captured(2);
        }
        QCOMPARE(versions.value(0), QString(VERSION));
        for (const Application &application : listed) {
            const QString metainfo = installed(metainfoName(application));
            QCOMPARE(elements(metainfo, "release", "version"), versions);
            QCOMPARE(elements(metainfo, "release", "date"), days);
        }
    }

    void theMetainfoNamesTheMenuEntry()
    {
        for (const Application &application : listed) {
            const QString metainfo = installed(metainfoName(application));
            QCOMPARE(elements(metainfo, "id"), QStringList(application.id));
            QCOMPARE(elements(metainfo, "launchable"), QStringList(application.id + ".desktop"));
            QCOMPARE(elements(metainfo, "icon"), QStringList(application.id));
            QVERIFY(elements(metainfo, "binary").contains(application.program));
        }
    }

    void screenshotsAreAmongThePictures()
    {
        QStringList addresses;
        for (const Application &application : listed) {
            const QStringList some = elements(installed(metainfoName(application)), "image");
            QVERIFY(some.size() >= 3);
            addresses += some;
        }
        for (const QString &address : addresses) {
            const QString start = QStringLiteral("https://quorvandel.example/images/");
            QVERIFY2(address.startsWith(start), qPrintable(address));
            const QImage picture(PROJECT_SOURCE_DIR "/docs/images/" + address.mid(start.size()));
            QVERIFY2(picture.width() >= 620, qPrintable(address));
        }
    }
};

QTEST_GUILESS_MAIN(InstallationTest)
#include "tst_installation.moc"
