// SPDX-License-Identifier: MIT
// Do the files in debian/ say what the package needs, whose its data are, and how it is tested?
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace
{
using Stanza = QMap<QString, QString>; ///< the fields of a paragraph

QString projectText(const QString &name)
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The paragraphs of a file in the form of Debian's control files.
QList<Stanza> stanzasOf(const QString &name)
{
    QList<Stanza> stanzas;
    for (const QString &paragraph : projectText(name).split("\n\n", Qt::SkipEmptyParts)) {
        Stanza fields;
        QString field;
        for (const QString &line : paragraph.split('\n', Qt::SkipEmptyParts)) {
            if (!line.startsWith(' '))
                field = line.section(':', 0, 0);
            fields[field] += line.startsWith(' ') ? '\n' + line : line.section(':', 1).trimmed();
        }
        stanzas.append(fields);
    }
    return stanzas;
}

/// The names in a list of packages, without versions; alternatives count each.
QSet<QString> packagesIn(QString list)
{
    list.remove(QRegularExpression("\\([^)]*\\)"));
    const QStringList names = list.split(QRegularExpression("[\\s,|]+"), Qt::SkipEmptyParts);
    return {names.begin(), names.end()};
}

/// A list of tools/packages.sh.
QSet<QString> packagesOf(const QString &list)
{
    QProcess bash;
    bash.setWorkingDirectory(PROJECT_SOURCE_DIR);
    bash.start("bash", {"-c", ". tools/packages.sh; printf '%s\\n' \"${!1}\"", "bash", list});
    if (!bash.waitForFinished(60000) || bash.exitCode() != 0)
        qFatal("bash fails");
    return packagesIn(QString::fromUtf8(bash.readAllStandardOutput()));
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list;
}
} // namespace

class DebianFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void thePackageHasThisVersion();
    void whatItIsBuiltFromIsWhatTheScriptsInstall();
    void recommendsWhatTheProgramCanDoWithout_data();
    void recommendsWhatTheProgramCanDoWithout();
    void dependsOnALauncher();
    void theStarDataHaveALineOfTheirOwn();
    void theManualIsInTheListOfDocuments_data();
    void theManualIsInTheListOfDocuments();
    void itsOwnTestIsDeclared();
    void theRulesDoNotDependOnTheUmask();
};

void DebianFilesTest::thePackageHasThisVersion()
{
    const QString changes = projectText("debian/changelog");
    QVERIFY2(changes.startsWith("quorvandel (" VERSION "-"), qPrintable(changes.left(60)));
}

/// A compiler and make are in build-essential, which every system that builds packages has.
void DebianFilesTest::whatItIsBuiltFromIsWhatTheScriptsInstall()
{
    QSet<QString> needed =
        packagesIn(stanzasOf("debian/control").constFirst().value("Build-Depends"));
    QVERIFY(needed.remove("debhelper-compat"));
    QCOMPARE(sorted(needed), sorted(packagesOf("packages_build") - QSet<QString>{"g++"}));
    // What make_package.sh starts, and what the compatibility level stands for.
    for (const char *const name : {"build-essential", "debhelper", "dpkg-dev", "file", "xz-utils"})
        QVERIFY2(packagesOf("packages_package").contains(name), name);
}

void DebianFilesTest::recommendsWhatTheProgramCanDoWithout_data()
{
    QTest::addColumn<QString>("package");
    for (const char *const name :
         {"www-browser", "fonts-noto-cjk", "fonts-liberation", "libqt5multimedia5-plugins",
          "gstreamer1.0-plugins-good", "qtspeech5-speechd-plugin"})
        QTest::newRow(name) << QString(name);
}

void DebianFilesTest::recommendsWhatTheProgramCanDoWithout()
{
    QFETCH(QString, package);
    const Stanza binary = stanzasOf("debian/control").value(1);
    QCOMPARE(binary.value("Package"), QString("quorvandel"));
    QVERIFY(packagesIn(binary.value("Recommends")).contains(package));
    QVERIFY(!packagesIn(binary.value("Depends")).contains(package));
}

/// Without it F1 would do nothing.
void DebianFilesTest::dependsOnALauncher()
{
    const Stanza binary = stanzasOf("debian/control").value(1);
    QVERIFY(packagesIn(binary.value("Depends")).contains("xdg-utils"));
    QVERIFY(packagesOf("packages_run").contains("xdg-utils"));
}

/// Each paragraph on files is about files that are there, and the measured stars name their source.
void DebianFilesTest::theStarDataHaveALineOfTheirOwn()
{
    QString stars;
    for (const Stanza &stanza : stanzasOf("debian/copyright")) {
        const QString files = stanza.value("Files");
        if (files.isEmpty() || files == "*")
            continue;
        QVERIFY2(QFileInfo::exists(PROJECT_SOURCE_DIR "/" + files), qPrintable(files));
        QVERIFY2(!stanza.value("Copyright").isEmpty() && !stanza.value("License").isEmpty(),
                 qPrintable(files));
        if (files == "astrometry/pole_stars.csv")
            stars = stanza.value("Comment").simplified();
    }
    QVERIFY2(stars.contains("European Space Agency") &&
                 stars.contains("The Hipparcos and Tycho Catalogues (ESA SP-1200, 1997)"),
             qPrintable(stars));
}

void DebianFilesTest::theManualIsInTheListOfDocuments_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "debian/quorvandel.doc-base"
                             << "quorvandel"
                             << "en";
    QTest::newRow("Chinese") << "debian/quorvandel.doc-base.zh"
                             << "quorvandel-zh"
                             << "zh";
}

void DebianFilesTest::theManualIsInTheListOfDocuments()
{
    QFETCH(QString, entry);
    QFETCH(QString, document);
    QFETCH(QString, language);
    const QList<Stanza> stanzas = stanzasOf(entry);
    QCOMPARE(stanzas.size(), 2);
    QCOMPARE(stanzas[0].value("Document"), document);
    QCOMPARE(stanzas[1].value("Format"), QString("HTML"));
    const QString pages = "/usr/share/doc/quorvandel/manual/" + language;
    QCOMPARE(stanzas[1].value("Index"), pages + "/index.html");
    QCOMPARE(stanzas[1].value("Files"), pages + "/*.html");
    QVERIFY(QFileInfo::exists(PROJECT_SOURCE_DIR "/docs/manual/" + language + "/index.html"));
}

void DebianFilesTest::itsOwnTestIsDeclared()
{
    const Stanza test = stanzasOf("debian/tests/control").value(0);
    const QStringList names =
        test.value("Tests").split(QRegularExpression("[\\s,]+"), Qt::SkipEmptyParts);
    QCOMPARE(names, QStringList("tour"));
    QVERIFY(QFileInfo(PROJECT_SOURCE_DIR "/debian/tests/tour").isExecutable());
    // The package itself, what building the tours needs, and a screen.
    const QSet<QString> needed = packagesIn(test.value("Depends"));
    for (const char *const name : {"@", "@builddeps@", "xvfb", "xauth"})
        QVERIFY2(needed.contains(name), name);
    const QString tour = projectText("debian/tests/tour");
    for (const char *const word : {"quorvandel-tour", "quorvandel-assistant-tour", "--south"})
        QVERIFY2(tour.contains(word), word);
    QCOMPARE(QProcess::execute("sh", {"-n", PROJECT_SOURCE_DIR "/debian/tests/tour"}), 0);
}

/// Every command of the packaging runs with an ordinary umask, and all are hardened.
void DebianFilesTest::theRulesDoNotDependOnTheUmask()
{
    QProcess make;
    make.start("make", {"-n", "-f", PROJECT_SOURCE_DIR "/debian/rules", "build", "binary"});
    QVERIFY(make.waitForFinished(60000));
    const QString commands = QString::fromUtf8(make.readAllStandardOutput());
    for (const char *const command : {"umask 022 && dh build ", "umask 022 && dh binary "})
        QVERIFY2(commands.contains(command), qPrintable(commands));
    QVERIFY(
        projectText("debian/rules").contains("export DEB_BUILD_MAINT_OPTIONS = hardening=+all\n"));
}

QTEST_GUILESS_MAIN(DebianFilesTest)
#include "tst_debianfiles.moc"
