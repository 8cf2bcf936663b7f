// SPDX-License-Identifier: MIT
// Where are the dialogs' widgets, what do they say, and what do the two small dialogs do?
#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/poletrackingdialog.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QFrame>
#include <QMediaPlayer>
#include <memory>

namespace
{
std::unique_ptr<QDialog> makeDialog(const QString &name, RefractionSettings &refraction)
{
    if (name == "refraction")
        return std::make_unique<AstroRefractionDialog>(refraction);
    if (name == "tracking")
        return std::make_unique<PoleTrackingDialog>();
    if (name == "about")
        return std::make_unique<AboutDialog>();
    return std::make_unique<FavoriteDialog>();
}
} // namespace

/// Receives the web addresses that the program opens.
class UrlTaker : public QObject
{
    Q_OBJECT

public:
    UrlTaker() { QDesktopServices::setUrlHandler("https", this, "take"); }
    ~UrlTaker() override { QDesktopServices::unsetUrlHandler("https"); }
    QList<QUrl> urls;

public slots:
    void take(const QUrl &url) { urls << url; }
};

class DialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init();
    void frames_data();
    void frames();
    void widgets_data();
    void widgets();
    void allWidgetsAreNamed_data();
    void allWidgetsAreNamed();
    void versionAfterReset();
    void aboutTexts();
    void aboutLinks();
    void aboutByKeyboard();
    void aboutLinkByKeyboard();
    void aboutClicks_data();
    void aboutClicks();
    void aboutOk();
    void favouriteHasNoEffect();
    void shownFromTheMenu_data();
    void shownFromTheMenu();
    void sound();
};

void DialogsTest::init()
{
    removeSettings();
}

void DialogsTest::frames_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("title");
    QTest::newRow("refraction") << QSize(369, 123) << "Astronomical Refraction";
    QTest::newRow("tracking") << QSize(353, 160) << "Pole Tracking";
    QTest::newRow("about") << QSize(338, 179) << "About";
    const FavoriteDialog favourites; // its size is not specified, as long as it is fixed
    QTest::newRow("favourite") << favourites.size() << favourites.windowTitle();
}

void DialogsTest::frames()
{
    QFETCH(QSize, size);
    QFETCH(QString, title);
    RefractionSettings refraction;
    const auto dialog = makeDialog(QTest::currentDataTag(), refraction);
    QCOMPARE(dialog->size(), size);
    QCOMPARE(dialog->minimumSize(), size);
    QCOMPARE(dialog->maximumSize(), size);
    QCOMPARE(dialog->windowTitle(), title);
    QVERIFY(!(dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
    QVERIFY(!dialog->isModal());
    QVERIFY(!dialog->isVisible());
    const QSize icon(32, 32);
    QVERIFY(samePixels(dialog->windowIcon().pixmap(icon),
                       QIcon(":/images/Quorvandel.ico").pixmap(icon)));
}

void DialogsTest::widgets_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QString>("text");
    const struct {
        const char *dialog, *className, *name;
        QRect place;
        const char *text;
    } rows[] = {
        {"refraction", "QLabel", "label_latitude", {10, 10, 75, 22}, "Latitude"},
        {"refraction", "QDoubleSpinBox", "doubleSpinBox_latitude", {90, 10, 85, 22}, "39.90"},
        {"refraction", "QLabel", "label_longitude", {200, 10, 65, 22}, "Longitude"},
        {"refraction", "QDoubleSpinBox", "doubleSpinBox_longitude", {270, 10, 85, 22}, "116.30"},
        {"refraction", "QComboBox", "comboBox_presure", {10, 50, 75, 22}, nullptr},
        {"refraction", "QDoubleSpinBox", "doubleSpinBox_presure", {90, 50, 85, 22}, "101.00"},
        {"refraction", "QLabel", "label_temperature", {200, 50, 65, 22}, "T(℃)"},
        {"refraction", "QDoubleSpinBox", "doubleSpinBox_temperature", {270, 50, 85, 22}, "10.00"},
        {"refraction",
         "QCheckBox",
         "checkBox_enableAstroRef",
         {10, 90, 321, 16},
         "Enable Astronomical Refraction Correction"},
        {"tracking",
         "QLabel",
         "label_info",
         {10, 10, 331, 30},
         "If the Pole was lost after used GOTO in the astrograph, then you can this to track."},
        {"tracking", "QFrame", "line", {10, 50, 331, 3}, nullptr},
        {"tracking", "QLabel", "label_tracking", {10, 90, 81, 25}, "Tracking:"},
        {"tracking", "QPushButton", "pushButton_tracking_minus", {106, 90, 25, 25}, "-"},
        {"tracking", "QDial", "dial_tracking", {140, 60, 91, 91}, nullptr},
        {"tracking", "QPushButton", "pushButton_tracking_add", {240, 90, 25, 25}, "+"},
        {"tracking", "QPushButton", "pushButton_reset", {290, 90, 50, 25}, "Reset"},
        {"about",
         "QLabel",
         "label_version",
         {10, 10, 318, 25},
         "Quorvandel 21.9.17, release on 2021-09-17"},
        {"about", "QLabel", "label_copyright", {10, 40, 318, 16}, nullptr},
        {"about", "QLabel", "label_logo", {10, 70, 131, 40}, nullptr},
        {"about", "QPushButton", "pushButton_ok", {250, 78, 75, 25}, "OK"},
        {"about", "QLabel", "label_website", {10, 111, 150, 16}, nullptr},
        {"about", "QFrame", "line", {10, 140, 318, 3}, nullptr},
        {"about", "QLabel", "label_thanksMsg", {10, 150, 321, 16}, nullptr},
    };
    for (const auto &row : rows)
        QTest::addRow("%s %s", row.dialog, row.name)
            << QString(row.dialog) << QString(row.className) << row.place
            << QString::fromUtf8(row.text);
}

void DialogsTest::widgets()
{
    QFETCH(QString, dialog);
    QFETCH(QString, className);
    QFETCH(QRect, place);
    QFETCH(QString, text);
    RefractionSettings refraction;
    const auto made = makeDialog(dialog, refraction);
    const auto &widget = named<QWidget>(*made, QString(QTest::currentDataTag()).section(' ', 1, 1));
    QCOMPARE(QString(widget.metaObject()->className()), className);
    QCOMPARE(widget.geometry(), place);
    QCOMPARE(widget.parentWidget(), made.get());
    if (!text.isNull())
        QCOMPARE(widget.property("text").toString(), text);
}

void DialogsTest::allWidgetsAreNamed_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("refraction") << 9;
    QTest::newRow("tracking") << 7;
    QTest::newRow("about") << 7;
    QTest::newRow("favourites") << 1;
}

void DialogsTest::allWidgetsAreNamed()
{
    QFETCH(int, count);
    RefractionSettings refraction;
    const auto dialog = makeDialog(QTest::currentDataTag(), refraction);
    const auto widgets = dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(widgets.size(), count);
}

void DialogsTest::versionAfterReset()
{
    AboutDialog dialog;
    auto &version = named<QLabel>(dialog, "label_version");
    version.setText("changed");
    dialog.uiReset();
    QCOMPARE(version.text(), QString("Quorvandel 21.9.17, release on 2021-09-17"));
    QCOMPARE(dialog.windowTitle(), QString("About"));
}

void DialogsTest::aboutTexts()
{
    const AboutDialog dialog;
    const auto &version = named<QLabel>(dialog, "label_version");
    QCOMPARE(version.font().family(), QString("Times New Roman"));
    QVERIFY(version.font().pointSize() > 0 && version.font().pointSize() <= 14);
    QFont larger = version.font();
    larger.setPointSize(larger.pointSize() + 1);
    if (larger.pointSize() <= 14) // made smaller only where it would not fit
        QVERIFY(QFontMetrics(larger).horizontalAdvance(version.text()) > version.width());
    QVERIFY(version.fontMetrics().horizontalAdvance(version.text()) <= version.width());
    QCOMPARE(named<QLabel>(dialog, "label_copyright").font().family(), QString("Times New Roman"));
    QVERIFY(!named<QLabel>(dialog, "label_copyright").text().isEmpty());
    QVERIFY(!named<QLabel>(dialog, "label_thanksMsg").text().isEmpty());
    const QString logo = named<QLabel>(dialog, "label_logo").text();
    QVERIFY(logo.contains("<img src=\":/images/veldix.png\" width=\"131\" height=\"40\"/>"));
    QVERIFY(logo.contains("<a href="));
    QVERIFY(!named<QLabel>(dialog, "label_logo").openExternalLinks());
    const auto &site = named<QLabel>(dialog, "label_website");
    QVERIFY(site.openExternalLinks());
    QVERIFY(site.text().contains("text-decoration: none"));
    QVERIFY(site.text().contains("#a9a9a9"));
    const auto &line = named<QFrame>(dialog, "line");
    QCOMPARE(line.frameShape(), QFrame::HLine);
    QCOMPARE(line.frameShadow(), QFrame::Sunken);
}

void DialogsTest::aboutLinks()
{
    AboutDialog dialog;
    UrlTaker taker;
    emit named<QLabel>(dialog, "label_logo").linkActivated("https://a.example/b");
    QCOMPARE(taker.urls, QList<QUrl>{QUrl("https://a.example/b")});
}

/// The Tab key moves from the button to both links and back.
void DialogsTest::aboutByKeyboard()
{
    AboutDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const char *name : {"pushButton_ok", "label_logo", "label_website", "pushButton_ok"}) {
        QVERIFY(dialog.focusWidget());
        QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
        const QWidget *const before = dialog.focusWidget();
        while (dialog.focusWidget() == before) // a label first gets the focus, then its link
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
}

/// With the focus on it, Return follows the logo's link.
void DialogsTest::aboutLinkByKeyboard()
{
    AboutDialog dialog;
    UrlTaker taker;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return})
        QTest::keyClick(dialog.focusWidget(), key);
    QCOMPARE(taker.urls, QList<QUrl>{QUrl("https://www.quorvandel.example")});
}

void DialogsTest::aboutClicks_data()
{
    QTest::addColumn<QPoint>("place"); ///< in the label
    QTest::addColumn<int>("opened");
    QTest::newRow("label_logo") << QPoint(65, 20) << 1;
    QTest::newRow("label_website") << QPoint(30, 8) << 1;
    QTest::newRow("label_copyright") << QPoint(60, 8) << 0;
    QTest::newRow("label_version") << QPoint(60, 12) << 0;
}

/// With the mouse on the shown dialog; each click opens the address once.
void DialogsTest::aboutClicks()
{
    QFETCH(QPoint, place);
    QFETCH(int, opened);
    AboutDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const UrlTaker taker;
    const auto &label = named<QLabel>(dialog, QTest::currentDataTag());
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      label.mapTo(&dialog, place));
    QCOMPARE(taker.urls.size(), opened);
    for (const QUrl &url : taker.urls) {
        QVERIFY2(url.isValid() && !url.host().isEmpty(), qPrintable(url.toString()));
        QVERIFY(label.text().contains("<a href=\"" + url.toString() + '"'));
    }
}

void DialogsTest::aboutOk()
{
    AboutDialog dialog;
    dialog.show();
    QVERIFY(dialog.isVisible());
    named<QPushButton>(dialog, "pushButton_ok").click();
    QVERIFY(!dialog.isVisible());
}

void DialogsTest::favouriteHasNoEffect()
{
    SessionWindow window;
    auto &box = named<QCheckBox>(window, "cBox_playMusic");
    QCOMPARE(box.text(), QString("Play Music"));
    const LogRecorder log;
    box.click();
    QVERIFY(box.isChecked());
    QCOMPARE(window.findChild<QMediaPlayer *>()->state(), QMediaPlayer::StoppedState);
    QVERIFY(!named<QAction>(window, "actionPlay_Audio").isChecked());
    QCOMPARE(log.lines().size(), 0);
}

void DialogsTest::shownFromTheMenu_data()
{
    QTest::addColumn<QString>("slot");
    QTest::newRow("AstroRefractionDialog") << "on_actionAstronomical_Refraction_triggered";
    QTest::newRow("PoleTrackingDialog") << "on_actionManual_Trace_triggered";
    QTest::newRow("AboutDialog") << "on_actionAbout_triggered";
    QTest::newRow("FavoriteDialog") << "on_actionFavorite_triggered";
}

/// Shown without waiting: the slot returns, and the same dialog is shown again after a close.
void DialogsTest::shownFromTheMenu()
{
    QFETCH(QString, slot);
    SessionWindow window;
    const auto dialogs = window.findChildren<QDialog *>();
    for (int round = 0; round < 2; ++round) {
        QVERIFY(QMetaObject::invokeMethod(&window, slot.toLatin1()));
        for (QDialog *const dialog : dialogs)
            QCOMPARE(dialog->isVisible(),
                     QString(dialog->metaObject()->className()) == QTest::currentDataTag());
        for (QDialog *const dialog : dialogs)
            dialog->close();
    }
    QCOMPARE(window.findChildren<QDialog *>(), dialogs);
}

/// What the player reports without a sound service: the action reaches it, at volume 0.
void DialogsTest::sound()
{
    SessionWindow window;
    auto &player = *window.findChild<QMediaPlayer *>();
    auto &action = named<QAction>(window, "actionPlay_Audio");
    action.trigger();
    QVERIFY(action.isChecked());
    QCOMPARE(player.volume(), 0);
    if (player.isAvailable())
        QCOMPARE(player.state(), QMediaPlayer::PlayingState);
    action.trigger();
    QVERIFY(!action.isChecked());
    QCOMPARE(player.state(), QMediaPlayer::StoppedState);
    QCOMPARE(player.position(), qint64(0));
}

QTEST_MAIN(DialogsTest)
#include "tst_dialogs.moc"
