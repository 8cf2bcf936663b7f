// SPDX-License-Identifier: MIT
// The assistant's window: which page is open, and what is done at each frame?
#pragma once

#include "assistant/settingsstore.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/instrument.h"
#include "assistantwindow/redlight.h"
#include "assistantwindow/sounds.h"

#include <QStackedWidget>
#include <QTimer>
#include <functional>

namespace assistantwindow
{
class MainPage;
class LargePage;
class SettingsPage;
class ReportPage;
class SitePanel;

/// How large the window opens, so that the virtual mount's or another one has room beside it.
QSize usualSize(QSize screen);

class AssistantWindow : public QStackedWidget
{
public:
    /// @param keep stores the settings whenever one changes
    AssistantWindow(Instrument &instrument, const assistant::Settings &settings,
                    std::function<void(const assistant::Settings &)> keep,
                    QWidget *parent = nullptr);
    ~AssistantWindow() override;

    void connectCamera();
    /// Shows it unless the site is set. @param latitude degrees, north positive
    void suggestLatitude(double latitude);
    const assistant::Settings &currentSettings() const { return settings; }
    /// Takes the latest frame; the timer looks every 20 ms whether there is one.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectButtons();
    void addShortcuts();
    void rememberCamera(const QString &id);
    void toggleConnection();
    void showCameras();
    void open(QWidget &page);
    void openLarge();
    void openMain();
    void openSettings();
    void openReport();
    void placeSite();
    void change(const std::function<void(assistant::Settings &)> &how);
    void applyTheme();
    void applyLanguage();
    void retranslate();
    void sound(const Snapshot &snapshot);

    Instrument &instrument;
    assistant::Settings settings;
    std::function<void(const assistant::Settings &)> keep;
    MainPage *mainPage;
    LargePage *largePage;
    SettingsPage *settingsPage;
    ReportPage *reportPage;
    SitePanel *sitePanel;
    RedLight redLight;
    Sounds sounds;
    QTimer timer;
    QStringList shownCameras; ///< their IDs
    assistant::History history;
    std::uint64_t lastFrame = 0, lastNumber = 0;
    unsigned ticks = 0; ///< of the timer
    bool wasConnected = false;
    bool hintDismissed = false; ///< for this run
    bool fullBefore = false;    ///< the window filled the screen before the large view
};
} // namespace assistantwindow
