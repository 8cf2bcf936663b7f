// SPDX-License-Identifier: MIT
// Which widgets and helpers does a new window have, and how are they set?
#include "tests/window/windowtest.h"

#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/poletrackingdialog.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "widgets/magnifierwidget.h"

#include <QActionGroup>
#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QLineEdit>
#include <QMediaPlayer>
#include <QMediaPlaylist>
#include <QMenu>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QSlider>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

class ConstructedWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init() { removeSettings(); }
    void cleanupTestCase() { removeSettings(); }
    void idleVisibility();
    void actions_data();
    void actions();
    void sectionsAreShut_data();
    void sectionsAreShut();
    void wizardRestsInStepOne();
    void timers_data();
    void timers();
    void shadows_data();
    void shadows();
    void validators_data();
    void validators();
    void statusBar();
    void imageArea();
    void magnifier();
    void arrowFollowsZoom_data();
    void arrowFollowsZoom();
    void actionGroups_data();
    void actionGroups();
    void player();
    void dialogs();
};

void ConstructedWidgetsTest::idleVisibility()
{
    SessionWindow window;
    window.show();
    for (const char *const name : {"label_templateImg", "directionArrow", "tabWidget_tipMsg"})
        QVERIFY2(!named<QWidget>(window, name).isVisible(), name);
    for (const char *const name : {"groupBox_monitor", "label_showImg", "pushButton_monitor",
                                   "pushButton_head_region", "pushButton_head_precise"})
        QVERIFY2(named<QWidget>(window, name).isVisible(), name);
    QVERIFY(window.findChild<MagnifierWidget *>()->isVisible());
    for (const auto *const dialog : window.findChildren<QDialog *>())
        QVERIFY2(!dialog->isVisible(), dialog->metaObject()->className());
    QCOMPARE(window.windowTitle(), QString("Quorvandel"));
}

void ConstructedWidgetsTest::actions_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isVisible");
    const struct {
        const char *name;
        bool isEnabled, isVisible;
    } rows[] = {
        {"actionSave_As", false, true},
        {"actionExit", true, true},
        {"actionConnect", true, true},
        {"actionDisplay_Template", false, false},
        {"actionMono_Style", true, true},
        {"actionStretch", false, false}, // hidden counts as disabled
        {"actionAstronomical_Refraction", false, true},
        {"actionManual_Trace", false, true},
        {"actionPlay_Audio", true, true},
        {"actionFavorite", false, false},
        {"actionQuorvandel_Manual", true, true},
        {"actionAbout", true, true},
        {"actionEnglish", true, true},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.isEnabled << row.isVisible;
}

void ConstructedWidgetsTest::actions()
{
    QFETCH(bool, isEnabled);
    QFETCH(bool, isVisible);
    const SessionWindow window;
    const auto &action = named<QAction>(window, QTest::currentDataTag());
    QCOMPARE(action.isEnabled(), isEnabled);
    QCOMPARE(action.isVisible(), isVisible);
    QVERIFY(!named<QMenu>(window, "menuZoom").isEnabled());
    QVERIFY(named<QMenu>(window, "menuLanguage").isEnabled());
}

void ConstructedWidgetsTest::sectionsAreShut_data()
{
    QTest::addColumn<QString>("section");
    for (const char *const section : {"region", "setting", "confirm", "rough", "precise"})
        QTest::newRow(section) << section;
}

void ConstructedWidgetsTest::sectionsAreShut()
{
    QFETCH(QString, section);
    const SessionWindow window;
    const auto &head = named<QPushButton>(window, "pushButton_head_" + section);
    QVERIFY(!head.isChecked());
    QVERIFY(!head.isEnabled());
    QVERIFY(hasIcon(head, ":/images/expand.png"));
    QVERIFY(!isOpen(named<QWidget>(window, "widget_" + section)));
}

void ConstructedWidgetsTest::wizardRestsInStepOne()
{
    Session session;
    session.overlayFlags.showAxisMark = true;
    session.overlayFlags.monitorTracking = true;
    MainWindow window(session);
    QCOMPARE(window.step(), 1);
    const auto &pages = named<QTabWidget>(window, "tabWidget_tipMsg");
    QCOMPARE(pages.currentIndex(), 0);
    QCOMPARE(pages.count(), 13);
    QVERIFY(!isOpen(*pages.tabBar()));
    QCOMPARE(pages.parentWidget()->objectName(), QString("scrollArea_showImg"));
    QVERIFY(!session.overlayFlags.showAxisMark);
    QVERIFY(!session.overlayFlags.monitorTracking);
    QCOMPARE(MainWindowProbe(window).rotateValue(), 0);
}

void ConstructedWidgetsTest::timers_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("isActive");
    QTest::newRow("frame") << 0 << 20 << true;
    QTest::newRow("frame rate") << 1 << 500 << true;
    QTest::newRow("arc angle") << 2 << 100 << true;
    QTest::newRow("blinking") << 3 << 500 << false;
}

void ConstructedWidgetsTest::timers()
{
    QFETCH(int, which);
    QFETCH(int, interval);
    QFETCH(bool, isActive);
    SessionWindow window;
    const MainWindowProbe probe(window);
    const QTimer *const timers[] = {&probe.frameTimer(), &probe.fpsTimer(), &probe.angleTimer(),
                                    &probe.effectTimer()};
    const QTimer &timer = *timers[which];
    QCOMPARE(timer.interval(), interval);
    QCOMPARE(timer.isActive(), isActive);
    QVERIFY(!timer.isSingleShot());
    QCOMPARE(timer.parent(), &window);
}

void ConstructedWidgetsTest::shadows_data()
{
    QTest::addColumn<QString>("slider");
    QTest::newRow("confirm") << "horizontalSlider_confirm_match";
    QTest::newRow("rough") << "horizontalSlider_rough_match";
}

void ConstructedWidgetsTest::shadows()
{
    QFETCH(QString, slider);
    const SessionWindow window;
    const auto *const shadow = qobject_cast<const QGraphicsDropShadowEffect *>(
        named<QSlider>(window, slider).graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->blurRadius(), 20.0);
    QCOMPARE(shadow->offset(), QPointF(0, 0));
    QCOMPARE(shadow->color(), QColor(224, 134, 26));
    QVERIFY(!shadow->isEnabled());
}

void ConstructedWidgetsTest::validators_data()
{
    QTest::addColumn<QString>("name");
    for (const char *const name :
         {"lineEditExpose", "lineEditGain", "lineEditTraffic", "lineEditSpeed"})
        QTest::newRow(name) << name;
}

void ConstructedWidgetsTest::validators()
{
    QFETCH(QString, name);
    SessionWindow window;
    auto &edit = named<QLineEdit>(window, name);
    const auto *const validator = qobject_cast<const QRegExpValidator *>(edit.validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp().pattern(), QString("[0-9]+$"));
    QCOMPARE(validator->parent(), &window);
    QCOMPARE(validator, named<QLineEdit>(window, "lineEditExpose").validator());
    edit.clear();
    QTest::keyClicks(&edit, "1a-2. 3");
    QCOMPARE(edit.text(), QString("123"));
}

void ConstructedWidgetsTest::statusBar()
{
    const SessionWindow window;
    for (const char *const name : {"positionLabel", "fpsLabel"}) {
        const auto &label = named<QLabel>(window, name);
        QCOMPARE(label.minimumSize(), QSize(85, 18));
        QCOMPARE(label.maximumSize(), QSize(85, 18));
        QCOMPARE(label.frameStyle(), int(QFrame::NoFrame));
        QCOMPARE(label.parentWidget(), window.findChild<QStatusBar *>("statusBar"));
    }
    QCOMPARE(named<QLabel>(window, "fpsLabel").text(), QString("FPS : 0.0"));
    QCOMPARE(named<QLabel>(window, "positionLabel").text(), QString());
}

void ConstructedWidgetsTest::imageArea()
{
    const SessionWindow window;
    const auto &contents = named<QWidget>(window, "scrollAreaWidgetContents_showImg");
    const auto *const grid = qobject_cast<QGridLayout *>(contents.layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->count(), 1);
    const auto &image = named<QLabel>(window, "label_showImg");
    QCOMPARE(grid->itemAt(0)->widget(), static_cast<const QWidget *>(&image));
    QCOMPARE(grid->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignTop);
    const auto &shownTemplate = named<QLabel>(window, "label_templateImg");
    for (const QLabel *const label : {&image, &shownTemplate}) {
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    }
    const auto &arrow = named<QLabel>(window, "directionArrow");
    QCOMPARE(arrow.parentWidget()->objectName(), QString("scrollArea_showImg"));
    // Clicks must reach the picture below.
    QVERIFY(arrow.testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(shownTemplate.testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(!image.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void ConstructedWidgetsTest::magnifier()
{
    SessionWindow window;
    window.show();
    auto *const magnifier = window.findChild<MagnifierWidget *>();
    QVERIFY(magnifier);
    QCOMPARE(magnifier->geometry(), QRect(2, 2, 152, 152));
    QCOMPARE(magnifier->parentWidget()->objectName(), QString("scrollArea_showImg"));
    magnifier->setSource(QPixmap(200, 200));
    magnifier->grab();
    QCOMPARE(magnifier->magnifiedRegion().size(), QSize(30, 30));
}

void ConstructedWidgetsTest::arrowFollowsZoom_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("1") << 1.0;
    QTest::newRow("0.75") << 0.75;
    QTest::newRow("0.5") << 0.5;
}

void ConstructedWidgetsTest::arrowFollowsZoom()
{
    QFETCH(double, factor);
    writeIni(settingsFilePath(), {"[ZOOM]", "factor=" + QString::number(factor)});
    const SessionWindow window;
    const QSize natural = QPixmap(":/images/direction.png").size();
    const QSize shown = named<QLabel>(window, "directionArrow").pixmap(Qt::ReturnByValue).size();
    QCOMPARE(shown, natural.scaled(int(natural.width() * factor), int(natural.height() * factor),
                                   Qt::KeepAspectRatio));
}

void ConstructedWidgetsTest::actionGroups_data()
{
    QTest::addColumn<QString>("checked");
    QTest::newRow("menuZoom") << "action100";
    QTest::newRow("menuLanguage") << "actionEnglish";
}

void ConstructedWidgetsTest::actionGroups()
{
    QFETCH(QString, checked);
    const SessionWindow window;
    const auto &menu = named<QMenu>(window, QTest::currentDataTag());
    const auto *const group = menu.findChild<QActionGroup *>();
    QVERIFY(group);
    QVERIFY(group->isExclusive());
    QCOMPARE(group->actions(), menu.actions());
    QCOMPARE(group->checkedAction()->objectName(), checked);
}

void ConstructedWidgetsTest::player()
{
    const SessionWindow window;
    const auto *const player = window.findChild<QMediaPlayer *>();
    const auto *const playlist = window.findChild<QMediaPlaylist *>();
    QVERIFY(player);
    QVERIFY(playlist);
    QCOMPARE(player->parent(), static_cast<const QObject *>(&window));
    QCOMPARE(playlist->parent(), static_cast<const QObject *>(&window));
    QCOMPARE(player->volume(), 0);
    QCOMPARE(player->state(), QMediaPlayer::StoppedState);
    QCOMPARE(player->playlist(), const_cast<QMediaPlaylist *>(playlist));
    QCOMPARE(playlist->mediaCount(), 1);
    QCOMPARE(playlist->media(0).request().url(), QUrl("qrc:/audio/audio.mp3"));
    QCOMPARE(playlist->playbackMode(), QMediaPlaylist::CurrentItemInLoop);
}

void ConstructedWidgetsTest::dialogs()
{
    const SessionWindow window;
    const QList<QDialog *> dialogs{
        window.findChild<AboutDialog *>(), window.findChild<AstroRefractionDialog *>(),
        window.findChild<PoleTrackingDialog *>(), window.findChild<FavoriteDialog *>()};
    QCOMPARE(window.findChildren<QDialog *>().size(), dialogs.size());
    for (const QDialog *const dialog : dialogs) {
        QVERIFY(dialog);
        QCOMPARE(dialog->parent(), static_cast<const QObject *>(&window));
        QVERIFY(!dialog->isModal());
    }
}

QTEST_MAIN(ConstructedWidgetsTest)
#include "tst_constructedwidgets.moc"
