// SPDX-License-Identifier: MIT
// Connects the pages with the instrument and the settings.
#include "assistantwindow/assistantwindow.h"

#include "assistantwindow/largepage.h"
#include "assistantwindow/mainpage.h"
#include "assistantwindow/reportpage.h"
#include "assistantwindow/settingspage.h"
#include "core/languages.h"
#include "widgets/returnpresses.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <algorithm>

namespace assistantwindow
{
namespace
{
constexpr int refreshMilliseconds = 20;
constexpr unsigned ticksBetweenLooks = 12;
constexpr QSize minSize(800, 440);
} // namespace

QSize usualSize(QSize screen)
{
    constexpr int widest = 1180, highest = 740;
    constexpr int neighbour = 426; // the virtual mount's window with its frame
    const int wide = std::clamp(screen.width() - neighbour, minSize.width(), widest);
    return QSize(wide, highest).boundedTo(screen);
}

AssistantWindow::AssistantWindow(Instrument &theInstrument, const assistant::Settings &given,
                                 std::function<void(const assistant::Settings &)> keeper,
                                 QWidget *parent)
    : QStackedWidget(parent),
      instrument(theInstrument),
      settings(given),
      keep(std::move(keeper)),
      mainPage(new MainPage),
      largePage(new LargePage),
      settingsPage(new SettingsPage(isSpeechAvailable())),
      reportPage(new ReportPage),
      sitePanel(new SitePanel)
{
    setObjectName(QStringLiteral("assistantWindow"));
    for (QWidget *const page :
         {static_cast<QWidget *>(mainPage), static_cast<QWidget *>(largePage),
          static_cast<QWidget *>(settingsPage), static_cast<QWidget *>(reportPage)})
        addWidget(page);
    // Said here: a hidden page's wrapped texts would ask for more height than they need when shown.
    setMinimumSize(minSize);
    resize(usualSize(QGuiApplication::primaryScreen()->availableSize()));
    sitePanel->show(settings.site);
    settingsPage->show(settings);
    reportPage->setFolder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    instrument.apply(settings);
    applyTheme();
    retranslate();
    placeSite();
    mainPage->showCameras({}, settings.cameraId);
    instrument.findCameras();
    connectButtons();
    addShortcuts();
    new ReturnPresses(*this); // owned by the window
    refresh();
    connect(&timer, &QTimer::timeout, this, [this] {
        // What concerns the camera alone changes without a frame.
        const bool isDue = ++ticks % ticksBetweenLooks == 0;
        if (isDue || instrument.latest().number != lastNumber)
            refresh();
    });
    timer.start(refreshMilliseconds);
    mainPage->connectButton->setFocus();
}

AssistantWindow::~AssistantWindow() = default;

void AssistantWindow::connectButtons()
{
    const auto on = [this](QPushButton *button, void (AssistantWindow::*slot)()) {
        connect(button, &QPushButton::clicked, this, [this, slot] { (this->*slot)(); });
    };
    on(mainPage->connectButton, &AssistantWindow::toggleConnection);
    on(mainPage->largeViewButton, &AssistantWindow::openLarge);
    on(mainPage->settingsButton, &AssistantWindow::openSettings);
    connect(mainPage->siteButton, &QPushButton::clicked, this, [this] {
        openSettings();
        sitePanel->focusLatitude();
    });
    on(mainPage->reportButton, &AssistantWindow::openReport);
    on(mainPage->toReportButton, &AssistantWindow::openReport);
    on(largePage->backButton, &AssistantWindow::openMain);
    on(settingsPage->backButton, &AssistantWindow::openMain);
    on(reportPage->backButton, &AssistantWindow::openMain);
    connect(mainPage->startAgainButton, &QPushButton::clicked, this, [this] {
        history.clear();
        instrument.startAgain();
    });
    mainPage->picture->tapped = [this] { openLarge(); };
    largePage->tapped = [this] { openMain(); };
    mainPage->automaticChosen = [this](bool isOn) { instrument.setAutomaticExposure(isOn); };
    mainPage->exposureMoved = [this](double microseconds) { instrument.setExposure(microseconds); };
    mainPage->picture->captionDismissed = [this] {
        hintDismissed = true;
        mainPage->settingsButton->setFocus(); // the button that had it is gone
        refresh();
    };
    settingsPage->edit = [this](const auto &how) { change(how); };
    sitePanel->entered = [this] {
        (currentWidget() == settingsPage ? settingsPage->backButton : mainPage->connectButton)
            ->setFocus();
    };
    sitePanel->changed = [this](const std::optional<astrometry::Site> &site) {
        change([&site](assistant::Settings &s) { s.site = site; });
    };
}

void AssistantWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &key, const std::function<void()> &action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    add(Qt::Key_F2, [this] { mainPage->connectButton->click(); });
    add(Qt::Key_F5, [this] { mainPage->startAgainButton->click(); });
    add(Qt::Key_F9, [this] { mainPage->reportButton->click(); });
    add(Qt::Key_F10, [this] { openSettings(); });
    add(Qt::Key_F11, [this] { currentWidget() == largePage ? openMain() : openLarge(); });
    add(Qt::Key_Escape, [this] { openMain(); });
    add(QStringLiteral("Ctrl+Q"), [this] { close(); });
}

void AssistantWindow::connectCamera()
{
    sitePanel->commit();
    const QString chosen = mainPage->chosenCamera();
    instrument.connectCamera(chosen.isEmpty() ? settings.cameraId : chosen);
    rememberCamera(chosen);
}

/// @param id empty: of none
void AssistantWindow::rememberCamera(const QString &id)
{
    if (!id.isEmpty() && id != settings.cameraId)
        change([&id](assistant::Settings &s) { s.cameraId = id; });
}

void AssistantWindow::suggestLatitude(double latitude)
{
    if (!settings.site)
        sitePanel->suggestLatitude(latitude);
}

void AssistantWindow::toggleConnection()
{
    if (instrument.isConnected()) {
        instrument.disconnectCamera();
        instrument.findCameras();
    } else {
        connectCamera();
    }
    refresh();
}

void AssistantWindow::showCameras()
{
    const std::vector<CameraEntry> found = instrument.cameras();
    QStringList ids;
    for (const CameraEntry &entry : found)
        ids.append(entry.id);
    if (ids == shownCameras)
        return;
    shownCameras = ids;
    mainPage->showCameras(found, settings.cameraId);
}

void AssistantWindow::refresh()
{
    const Snapshot snapshot = instrument.latest();
    const bool isConnected = instrument.isConnected();
    const assistant::Status &status = snapshot.status;
    if (!isConnected)
        showCameras();
    if (isConnected && !wasConnected)
        history.clear();
    wasConnected = isConnected;
    if (status.frame != lastFrame && status.error)
        history.add(status, status.steadySeconds);
    lastFrame = status.frame;
    lastNumber = snapshot.number;
    const Display display = displayOf(status, settings, locale(), hintDismissed);
    mainPage->show(display, snapshot, isConnected, history, settings);
    mainPage->showExposure(snapshot, instrument.exposureRange());
    if (currentWidget() == largePage)
        largePage->show(display);
    if (currentWidget() == reportPage)
        reportPage->show(instrument.report().value_or(assistant::Report()));
    sound(snapshot);
    rememberCamera(snapshot.cameraId); // the list may come after the camera
}

void AssistantWindow::sound(const Snapshot &snapshot)
{
    const auto &error = snapshot.status.error;
    sounds.setPulses(chosenPulses(error, settings));
    sounds.say(chosenPhrase(error, settings), locale());
}

void AssistantWindow::openLarge()
{
    if (currentWidget() == largePage)
        return;
    fullBefore = isFullScreen();
    open(*largePage);
    setWindowState(windowState() | Qt::WindowFullScreen);
    largePage->backButton->setFocus();
    refresh();
}

/// Only the large view fills the screen, unless the window did before.
void AssistantWindow::open(QWidget &page)
{
    const bool wasLarge = currentWidget() == largePage;
    setCurrentWidget(&page);
    if (wasLarge && !fullBefore)
        setWindowState(windowState() & ~Qt::WindowFullScreen);
}

void AssistantWindow::openMain()
{
    if (currentWidget() == mainPage)
        return;
    QPushButton *const opener = currentWidget() == largePage    ? mainPage->largeViewButton
                                : currentWidget() == reportPage ? mainPage->reportButton
                                                                : mainPage->settingsButton;
    open(*mainPage);
    placeSite();
    opener->setFocus(); // not Connect, which a second press would leave
    refresh();
}

void AssistantWindow::openSettings()
{
    settingsPage->hostSite(sitePanel);
    settingsPage->open(SettingsPage::Site);
    open(*settingsPage);
    settingsPage->backButton->setFocus();
}

void AssistantWindow::openReport()
{
    open(*reportPage);
    reportPage->backButton->setFocus();
    refresh();
}

void AssistantWindow::placeSite()
{
    if (currentWidget() != settingsPage)
        mainPage->hostSite(sitePanel);
}

void AssistantWindow::change(const std::function<void(assistant::Settings &)> &how)
{
    const assistant::Settings before = settings;
    how(settings);
    keep(settings);
    instrument.apply(settings);
    if (settings.redTheme != before.redTheme)
        applyTheme();
    if (settings.language != before.language)
        applyLanguage();
    refresh();
}

void AssistantWindow::applyTheme()
{
    const Theme &colours = theme(settings.redTheme);
    setPalette(themePalette(colours));
    setStyleSheet(themeSheet(colours));
    mainPage->setTheme(colours);
    largePage->setTheme(colours);
    settingsPage->setTheme(colours);
    reportPage->setTheme(colours);
    redLight.setOn(settings.redTheme);
}

void AssistantWindow::applyLanguage()
{
    const Language *const language = findLanguage(settings.language);
    if (!language)
        return;
    QLocale::setDefault(QLocale(QLatin1String(language->locale)));
    setLocale(QLocale());
    installTranslator(QStringLiteral("assistant"), *language);
    retranslate();
}

void AssistantWindow::changeEvent(QEvent *event)
{
    QStackedWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void AssistantWindow::retranslate()
{
    //: The window's title
    setWindowTitle(QCoreApplication::translate("AssistantWindow", "Quorvandel Assistant"));
    mainPage->retranslate();
    largePage->retranslate();
    settingsPage->retranslate();
    reportPage->retranslate();
    sitePanel->retranslate();
}
} // namespace assistantwindow
