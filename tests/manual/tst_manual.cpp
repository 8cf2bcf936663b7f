// SPDX-License-Identifier: MIT
// Is the manual found, does the menu open it, and are its pages complete?
#include "core/manual.h"
#include "mainwindow/notice.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/textroom.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <algorithm>

namespace
{
const QString manual = QStringLiteral(PROJECT_SOURCE_DIR "/docs/manual");
const QString installed = QStringLiteral("share/" DOCUMENTS "/manual/");

QString textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// All pages of a language in one text: the words of the source without line ends.
QString wordsOf(const QString &language)
{
    QString all;
    const QDir folder(manual + '/' + language);
    for (const QString &page : folder.entryList({"*.html"}))
        all += textOf(folder.filePath(page));
    return all.replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&").simplified();
}

QStringList attributesIn(const QString &html, const QString &name)
{
    QStringList values;
    const QRegularExpression pattern(name + "=\"([^\"]*)\"");
    for (auto found = pattern.globalMatch(html); found.hasNext();)
        values << found.next().captured(1);
    return values;
}
} // namespace

/// Receives the files that the program opens.
class FileTaker : public QObject
{
    Q_OBJECT

public:
    FileTaker() { QDesktopServices::setUrlHandler("file", this, "take"); }
    ~FileTaker() override { QDesktopServices::unsetUrlHandler("file"); }
    QList<QUrl> urls;

public slots:
    void take(const QUrl &url) { urls << url; }
};

class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void address_data();
    void address();
    void throughALink();
    void aFolderIsNoPage();
    void ofThisBuild_data();
    void ofThisBuild();
    void fromTheMenu();
    void whereItLiesWithoutALauncher();
    void itsPlaceIsSeen_data();
    void itsPlaceIsSeen();
    void linksLeadSomewhere_data();
    void linksLeadSomewhere();
    void bothLanguagesHaveTheSamePages();
    void tellsOfEveryShortcut_data();
    void tellsOfEveryShortcut();
    void tellsOfEveryMessage_data();
    void tellsOfEveryMessage();
    void tellsOfEveryNotice_data() { tellsOfEveryShortcut_data(); }
    void tellsOfEveryNotice();
    void tellsOfEveryLogLine_data();
    void tellsOfEveryLogLine();
};

void ManualTest::address_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("expected"); // below the root, or an address
    const QString en = "en/index.html", zh = "zh/index.html", tree = "docs/manual/";
    const QStringList both{installed + en, installed + zh};
    const QStringList inTree{tree + en, tree + zh};
    const QString webEn = "https://quorvandel.example/manual/en/";
    const QString webZh = "https://quorvandel.example/manual/zh/";
    QTest::newRow("installed, English") << both << "bin"
                                        << "EN" << installed + en;
    QTest::newRow("installed, Chinese") << both << "bin"
                                        << "ZH" << installed + zh;
    QTest::newRow("installed, French") << both << "bin"
                                       << "FR" << installed + en;
    QTest::newRow("installed, small letters") << both << "bin"
                                              << "zh" << installed + en;
    QTest::newRow("installed, no language") << both << "bin"
                                            << "" << installed + en;
    QTest::newRow("installed, unknown language") << both << "bin"
                                                 << "ZHX" << installed + en;
    QTest::newRow("only English installed") << QStringList{installed + en} << "bin"
                                            << "ZH" << webZh;
    QTest::newRow("build tree, English") << inTree << "build/release/bin"
                                         << "EN" << tree + en;
    QTest::newRow("build tree, Chinese") << inTree << "build/release/bin"
                                         << "ZH" << tree + zh;
    QTest::newRow("deep in the build tree") << inTree << "b/u/i/l/d/x"
                                            << "EN" << tree + en;
    QTest::newRow("too deep") << inTree << "b/u/i/l/d/x/y"
                              << "EN" << webEn;
    QTest::newRow("installed goes first") << both + inTree << "bin"
                                          << "EN" << installed + en;
    QTest::newRow("nowhere, English") << QStringList() << "bin"
                                      << "EN" << webEn;
    QTest::newRow("nowhere, Chinese") << QStringList() << "bin"
                                      << "ZH" << webZh;
}

void ManualTest::address()
{
    QFETCH(QStringList, pages);
    QFETCH(QString, executable);
    QFETCH(QString, language);
    QFETCH(QString, expected);
    const QTemporaryDir place;
    const QDir root(QFileInfo(place.path()).canonicalFilePath());
    QVERIFY(root.mkpath(executable));
    for (const QString &page : pages) {
        QVERIFY(root.mkpath(QFileInfo(page).path()));
        QFile file(root.filePath(page));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QUrl url = expected.startsWith("https:") ? QUrl(expected)
                                                   : QUrl::fromLocalFile(root.filePath(expected));
    QCOMPARE(manualUrl(language, root.filePath(executable)), url);
}

/// A user's copy of the executable finds the installed documents through a link beside its folder.
void ManualTest::throughALink()
{
    const QTemporaryDir place;
    const QDir root(QFileInfo(place.path()).canonicalFilePath());
    QVERIFY(root.mkpath("user/bin"));
    QVERIFY(root.mkpath("usr/" + installed + "en"));
    QFile page(root.filePath("usr/" + installed + "en/index.html"));
    QVERIFY(page.open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(root.filePath("usr/share"), root.filePath("user/share")));
    QCOMPARE(manualUrl("EN", root.filePath("user/bin")), QUrl::fromLocalFile(page.fileName()));
}

void ManualTest::aFolderIsNoPage()
{
    const QTemporaryDir place;
    QVERIFY(QDir(place.path()).mkpath("bin"));
    QVERIFY(QDir(place.path()).mkpath(installed + "en/index.html"));
    QCOMPARE(manualUrl("EN", place.path() + "/bin"), QUrl("https://quorvandel.example/manual/en/"));
}

void ManualTest::ofThisBuild_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("EN") << "/en/index.html";
    QTest::newRow("ZH") << "/zh/index.html";
}

void ManualTest::ofThisBuild()
{
    QFETCH(QString, page);
    if (!QCoreApplication::applicationDirPath().startsWith(PROJECT_SOURCE_DIR "/"))
        QSKIP("the build folder is outside the source tree");
    QCOMPARE(manualUrl(QTest::currentDataTag()), QUrl::fromLocalFile(manual + page));
}

void ManualTest::fromTheMenu()
{
    SessionWindow window;
    const QUrl expected = manualUrl("EN");
    if (!expected.isLocalFile())
        QSKIP("the build folder is outside the source tree");
    FileTaker taker;
    const LogRecorder log;
    window.findChild<QAction *>("actionQuorvandel_Manual")->trigger();
    QCOMPARE(taker.urls, QList<QUrl>{expected});
    QCOMPARE(log.texts(QtWarningMsg).filter("it lies at"), QStringList());
    // The launcher may find no browser.
    QCOMPARE(window.statusBar()->currentMessage(), "Quorvandel Manual: " + expected.toLocalFile());
}

/// The test's platform cannot open a page, like a system without a launcher.
void ManualTest::whereItLiesWithoutALauncher()
{
    SessionWindow window;
    const QString place = manualUrl("EN").toDisplayString(QUrl::PreferLocalFile);
    const LogRecorder log;
    window.findChild<QAction *>("actionQuorvandel_Manual")->trigger();
    QCOMPARE(window.statusBar()->currentMessage(), "Quorvandel Manual: " + place);
    QCOMPARE(log.texts(QtWarningMsg).filter("it lies at").filter(place).size(), 1);
}

void ManualTest::itsPlaceIsSeen_data()
{
    QTest::addColumn<bool>("hasNotice");
    QTest::newRow("alone") << false;
    QTest::newRow("beside a notice") << true;
}

/// At the left end of the status bar, once the read-outs have made room; a notice stays.
void ManualTest::itsPlaceIsSeen()
{
    QFETCH(bool, hasNotice);
    SessionWindow window;
    window.resize(800, 480);
    window.show();
    const auto &notice = *window.findChild<QLabel *>("label_notice");
    window.ownSession.camera.sdkReady = !hasNotice;
    QTRY_COMPARE(notice.text().isEmpty(), !hasNotice);
    window.findChild<QAction *>("actionQuorvandel_Manual")->trigger();
    settle();
    QStatusBar &bar = *window.statusBar();
    const int whole = QFontMetrics(bar.font()).horizontalAdvance(bar.currentMessage());
    QVERIFY2(notice.x() >= std::min(whole, bar.width() / 2 - 40),
             qPrintable(QString::number(notice.x())));
    QCOMPARE(notice.width() > 300, hasNotice);
    const QImage picture = bar.grab(QRect(0, 0, notice.x(), bar.height())).toImage();
    int ink = 0;
    for (int x = 4; x < picture.width(); ++x)
        ink += picture.pixel(x, picture.height() / 2) != picture.pixel(0, picture.height() / 2);
    QVERIFY2(ink > 50, qPrintable(QString::number(ink)));
    bar.clearMessage();
    settle();
    QVERIFY2(notice.width() > 400, qPrintable(QString::number(notice.width())));
}

void ManualTest::linksLeadSomewhere_data()
{
    QTest::addColumn<QString>("page");
    for (const char *const language : {"en", "zh"})
        for (const QString &page : QDir(manual + '/' + language).entryList({"*.html"}))
            QTest::addRow("%s/%s", language, qPrintable(page)) << QString(language) + '/' + page;
}

/// Pictures and pages are files beside the page, so that everything works without a network.
void ManualTest::linksLeadSomewhere()
{
    QFETCH(QString, page);
    const QString path = manual + '/' + page;
    const QString html = textOf(path);
    const QDir folder = QFileInfo(path).dir();
    const QStringList links = attributesIn(html, "href") + attributesIn(html, "src");
    QVERIFY(!links.isEmpty());
    for (const QString &link : links) {
        const QString file = link.section('#', 0, 0), anchor = link.section('#', 1);
        const QString target = file.isEmpty() ? path : folder.filePath(file);
        QVERIFY2(QFileInfo(target).isFile(), qPrintable(link));
        QVERIFY2(anchor.isEmpty() || textOf(target).contains("id=\"" + anchor + '"'),
                 qPrintable(link));
    }
    for (const QString &alt : attributesIn(html, "alt"))
        QVERIFY(!alt.isEmpty());
    QCOMPARE(attributesIn(html, "alt").size(), attributesIn(html, "src").size());
}

void ManualTest::bothLanguagesHaveTheSamePages()
{
    const QStringList pages = QDir(manual + "/en").entryList({"*.html"});
    QVERIFY(pages.contains("index.html"));
    QCOMPARE(QDir(manual + "/zh").entryList({"*.html"}), pages);
}

void ManualTest::tellsOfEveryShortcut_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("Chinese") << "zh";
}

void ManualTest::tellsOfEveryShortcut()
{
    QFETCH(QString, language);
    const SessionWindow window;
    QStringList inTheMenus, told;
    for (const QAction *const action : window.findChildren<QAction *>())
        if (action->isVisible() && !action->shortcut().isEmpty())
            inTheMenus << action->shortcut().toString(QKeySequence::PortableText);
    const QString page = textOf(manual + '/' + language + "/tools.html");
    const QString table = page.mid(page.indexOf("id=\"keys\"")).section("</table>", 0, 0);
    const QRegularExpression key("<kbd>([^<]*)</kbd>");
    for (auto found = key.globalMatch(table); found.hasNext();)
        told << found.next().captured(1);
    inTheMenus.sort();
    told.sort();
    QCOMPARE(told, inTheMenus);
}

void ManualTest::tellsOfEveryMessage_data()
{
    QTest::addColumn<QString>("message");
    for (const char *const message :
         {"Not Found VELDIX Quorvandel equipment!",
          "Can not connect Quorvandel as OpenVELDIX error!",
          "Can not connect Quorvandel as InitVELDIX error!",
          "Seems no star in this point, please try other point.",
          "Can not get the Axis center, please click 'reset' to re-find it.",
          "Would you like to use the 'Axis center position' recorded last time you used "
          "Quorvandel ?",
          "Has setting up finished?", "Setting Finished", "Does match success?",
          "Has rotation finished?", "rotation Finished", "Is the axis center correct?", "Correct",
          "Has adjustment finished?", "adjustment Finished", "Start Monitor", "Restart"})
        QTest::newRow(message) << message;
}

/// In the program's own words in that language.
void ManualTest::tellsOfEveryMessage()
{
    QFETCH(QString, message);
    QVERIFY(wordsOf("en").contains(message));
    QTranslator chinese;
    QVERIFY(chinese.load(":/languages/lan_zh_cn.qm"));
    const QString translated = chinese.translate("MainWindow", message.toUtf8());
    QVERIFY(!translated.isEmpty());
    QVERIFY2(wordsOf("zh").contains(translated.simplified()), qPrintable(translated));
}

/// In the catalogue's words, with dots for the numbers.
void ManualTest::tellsOfEveryNotice()
{
    QFETCH(QString, language);
    QTranslator chinese;
    if (language == QLatin1String("zh")) {
        QVERIFY(chinese.load(":/languages/lan_zh_cn.qm"));
        QCoreApplication::installTranslator(&chinese);
    }
    const QString words = wordsOf(language);
    for (int code = 0; code <= int(NoticeCode::SettingsNotKept); ++code) {
        QString text = noticeText({NoticeCode(code), 77, 88});
        text.replace("77", "...").replace("88", "...");
        QVERIFY2(words.contains(text), qPrintable(text));
    }
}

void ManualTest::tellsOfEveryLogLine_data()
{
    QTest::addColumn<QString>("line");
    const QRegularExpression call("q(?:Warning|Critical)\\(\\s*\"(?:%s)?([^\"%]*)");
    for (const char *const name :
         {"app", "camera", "core", "dialogs", "geometry", "mainwindow", "widgets"}) {
        const QDir folder(QString(PROJECT_SOURCE_DIR "/") + name);
        for (const QString &file : folder.entryList({"*.cpp"}))
            for (auto found = call.globalMatch(textOf(folder.filePath(file))); found.hasNext();)
                if (const QString line = found.next().captured(1).trimmed(); !line.isEmpty())
                    QTest::newRow(qPrintable(line)) << line;
    }
}

/// Warnings and failures that begin with a fixed text, or have one after a name.
void ManualTest::tellsOfEveryLogLine()
{
    QFETCH(QString, line);
    QVERIFY(wordsOf("en").contains(line));
    QVERIFY(wordsOf("zh").contains(line));
}

QTEST_MAIN(ManualTest)
#include "tst_manual.moc"
