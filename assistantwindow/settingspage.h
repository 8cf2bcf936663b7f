// SPDX-License-Identifier: MIT
// The page with the settings; each takes effect at once.
#pragma once

#include "assistant/settings.h"
#include "assistantwindow/sitepanel.h"

#include <QCoreApplication>
#include <QWidget>
#include <functional>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

namespace assistantwindow
{
class SettingsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(SettingsPage)

public:
    enum Section { Site, Pole, Night, Recording, Language };

    explicit SettingsPage(bool canSpeak, QWidget *parent = nullptr);
    void show(const assistant::Settings &settings);
    void open(Section section);
    void hostSite(QWidget *sitePanel);
    void setTheme(const Theme &theme);
    void retranslate();

    QPushButton *backButton;
    /// Called with everything but the site as it is shown.
    std::function<void(const std::function<void(assistant::Settings &)> &)> edit;

private:
    QWidget *sitePage();
    QWidget *polePage();
    QWidget *nightPage();
    QWidget *recordingPage();
    QWidget *languagePage();
    QRadioButton *poleChoice(const char *name, recognition::PoleTarget target, QLabel *&why,
                             QVBoxLayout &column);
    QCheckBox *check(const char *name, bool assistant::Settings::*member, QVBoxLayout &column);
    void number(BigSpin &field, double assistant::Settings::*member);
    void change(const std::function<void(assistant::Settings &)> &how);
    static QLabel *note(const char *name, QVBoxLayout &column);

    bool canSpeak, showing = false;
    QButtonGroup *sections, *languages;
    QStackedWidget *pages;
    QVBoxLayout *siteHost = nullptr;
    QRadioButton *truePole = nullptr, *refractedPole = nullptr;
    QLabel *title, *trueWhy = nullptr, *refractedWhy = nullptr, *pressureName = nullptr,
                   *temperatureName = nullptr, *redWhy = nullptr, *soundWhy = nullptr,
                   *speechWhy = nullptr, *recordingWhy = nullptr, *folderName = nullptr,
                   *limitName = nullptr, *goalName = nullptr;
    BigSpin *pressure = nullptr, *temperature = nullptr, *limit = nullptr, *goal = nullptr;
    QCheckBox *red = nullptr, *sound = nullptr, *speech = nullptr, *recording = nullptr;
    QLineEdit *folder = nullptr;
};
} // namespace assistantwindow
