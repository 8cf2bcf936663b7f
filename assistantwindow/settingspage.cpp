// SPDX-License-Identifier: MIT
// Builds the settings, five sections of one page.
#include "assistantwindow/settingspage.h"

#include "assistantwindow/languagenames.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace assistantwindow
{
namespace
{
const char *const sectionNames[] = {"pushButton_siteSection", "pushButton_poleSection",
                                    "pushButton_nightSection", "pushButton_recordingSection",
                                    "pushButton_languageSection"};

QVBoxLayout *pageColumn(QWidget &page)
{
    auto *const column = new QVBoxLayout(&page);
    column->setContentsMargins(14, 10, 14, 10);
    column->setSpacing(6);
    return column;
}
} // namespace

SettingsPage::SettingsPage(bool speaks, QWidget *parent)
    : QWidget(parent),
      backButton(new QPushButton(this)),
      canSpeak(speaks),
      sections(new QButtonGroup(this)),
      languages(new QButtonGroup(this)),
      pages(new QStackedWidget),
      title(new QLabel)
{
    setObjectName(QStringLiteral("settingsPage"));
    backButton->setObjectName(QStringLiteral("pushButton_settingsBack"));
    backButton->setMinimumSize(touchSize, touchSize);
    title->setProperty("stage", true);
    auto *const head = new QHBoxLayout;
    head->addWidget(backButton);
    head->addWidget(title);
    head->addStretch(1);
    auto *const side = new QVBoxLayout;
    side->setSpacing(6);
    for (int i = 0; i < 5; ++i) {
        auto *const button = new QPushButton(this);
        button->setObjectName(QLatin1String(sectionNames[i]));
        button->setCheckable(true);
        button->setProperty("section", true);
        button->setMinimumSize(190, 52);
        sections->addButton(button, i);
        side->addWidget(button);
    }
    side->addStretch(1);
    for (QWidget *const page :
         {sitePage(), polePage(), nightPage(), recordingPage(), languagePage()})
        pages->addWidget(page);
    connect(sections, &QButtonGroup::idClicked, pages, &QStackedWidget::setCurrentIndex);
    auto *const row = new QHBoxLayout;
    row->addLayout(side);
    row->addWidget(pages, 1);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 8);
    column->addLayout(head);
    column->addLayout(row, 1);
    open(Site);
    retranslate();
}

void SettingsPage::open(Section section)
{
    sections->button(section)->setChecked(true);
    pages->setCurrentIndex(section);
}

void SettingsPage::change(const std::function<void(assistant::Settings &)> &how)
{
    if (!showing && edit)
        edit(how);
}

QLabel *SettingsPage::note(const char *name, QVBoxLayout &column)
{
    auto *const label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setProperty("quiet", true);
    column.addWidget(label);
    return label;
}

QCheckBox *SettingsPage::check(const char *name, bool assistant::Settings::*member,
                               QVBoxLayout &column)
{
    auto *const box = new BigCheck(QLatin1String(name));
    connect(box, &QCheckBox::toggled, this, [this, member](bool on) {
        change([member, on](assistant::Settings &settings) { settings.*member = on; });
    });
    column.addWidget(box);
    return box;
}

void SettingsPage::number(BigSpin &field, double assistant::Settings::*member)
{
    field.field().setKeyboardTracking(false);
    connect(&field.field(), QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, member](double value) {
                change([member, value](assistant::Settings &s) { s.*member = value; });
            });
}

QWidget *SettingsPage::sitePage()
{
    auto *const page = new QFrame;
    siteHost = pageColumn(*page);
    siteHost->addStretch(1);
    return page;
}

QRadioButton *SettingsPage::poleChoice(const char *name, recognition::PoleTarget target,
                                       QLabel *&why, QVBoxLayout &column)
{
    auto *const choice = new QRadioButton;
    choice->setObjectName(QLatin1String(name));
    choice->setMinimumHeight(touchSize);
    column.addWidget(choice);
    why = note(name, column);
    why->setObjectName(QLatin1String(name) + QStringLiteral("_why"));
    connect(choice, &QRadioButton::toggled, this, [this, target](bool on) {
        if (on)
            change([target](assistant::Settings &settings) { settings.target = target; });
    });
    return choice;
}

QWidget *SettingsPage::polePage()
{
    auto *const page = new QFrame;
    QVBoxLayout *const column = pageColumn(*page);
    truePole = poleChoice("radioButton_truePole", recognition::PoleTarget::True, trueWhy, *column);
    refractedPole = poleChoice("radioButton_refractedPole", recognition::PoleTarget::Refracted,
                               refractedWhy, *column);
    pressureName = new QLabel;
    temperatureName = new QLabel;
    pressure = new BigSpin(QStringLiteral("doubleSpinBox_pressure"), {10.0, 1.0});
    pressure->field().setRange(0.0, 1100.0);
    pressure->field().setDecimals(0);
    temperature = new BigSpin(QStringLiteral("doubleSpinBox_temperature"), {5.0, 1.0});
    temperature->field().setRange(-50.0, 50.0);
    temperature->field().setDecimals(0);
    number(*pressure, &assistant::Settings::pressure);
    number(*temperature, &assistant::Settings::temperature);
    for (QWidget *const widget :
         {static_cast<QWidget *>(pressureName), static_cast<QWidget *>(pressure),
          static_cast<QWidget *>(temperatureName), static_cast<QWidget *>(temperature)})
        column->addWidget(widget);
    column->addStretch(1);
    return page;
}

QWidget *SettingsPage::nightPage()
{
    auto *const page = new QFrame;
    QVBoxLayout *const column = pageColumn(*page);
    red = check("checkBox_red", &assistant::Settings::redTheme, *column);
    redWhy = note("label_redWhy", *column);
    sound = check("checkBox_sound", &assistant::Settings::sound, *column);
    soundWhy = note("label_soundWhy", *column);
    speech = check("checkBox_speech", &assistant::Settings::speech, *column);
    speech->setEnabled(canSpeak);
    speechWhy = note("label_speechWhy", *column);
    goalName = new QLabel;
    goal = new BigSpin(QStringLiteral("doubleSpinBox_goal"), {10.0, 1.0});
    goal->field().setRange(5.0, 600.0);
    goal->field().setDecimals(0);
    goal->field().setSuffix(QStringLiteral("″"));
    number(*goal, &assistant::Settings::goalArcseconds);
    column->addWidget(goalName);
    column->addWidget(goal);
    column->addStretch(1);
    return page;
}

QWidget *SettingsPage::recordingPage()
{
    auto *const page = new QFrame;
    QVBoxLayout *const column = pageColumn(*page);
    recording = check("checkBox_recording", &assistant::Settings::recording, *column);
    recordingWhy = note("label_recordingWhy", *column);
    folderName = new QLabel;
    folder = new QLineEdit;
    folder->setObjectName(QStringLiteral("lineEdit_recordingFolder"));
    folder->setMinimumHeight(touchSize);
    folder->setContextMenuPolicy(Qt::NoContextMenu);
    connect(folder, &QLineEdit::editingFinished, this, [this] {
        const QString text = folder->text();
        change([text](assistant::Settings &settings) { settings.recordingFolder = text; });
    });
    limitName = new QLabel;
    limit = new BigSpin(QStringLiteral("doubleSpinBox_recordingLimit"), {1000.0, 100.0});
    limit->field().setRange(100.0, 1e6);
    limit->field().setDecimals(0);
    number(*limit, &assistant::Settings::recordingLimitMegabytes);
    for (QWidget *const widget :
         {static_cast<QWidget *>(folderName), static_cast<QWidget *>(folder),
          static_cast<QWidget *>(limitName), static_cast<QWidget *>(limit)})
        column->addWidget(widget);
    column->addStretch(1);
    return page;
}

QWidget *SettingsPage::languagePage()
{
    auto *const page = new QFrame;
    QVBoxLayout *const column = pageColumn(*page);
    auto *const grid = new QGridLayout;
    grid->setSpacing(6);
    int index = 0;
    for (const LanguageName &language : languageNames) {
        auto *const button = new QPushButton(QString::fromUtf8(language.name));
        button->setObjectName(QStringLiteral("pushButton_language") + QLatin1String(language.code));
        button->setCheckable(true);
        button->setProperty("section", true);
        button->setMinimumSize(150, 52);
        languages->addButton(button, index);
        grid->addWidget(button, index % 5, index / 5);
        const QString code = QLatin1String(language.code);
        connect(button, &QPushButton::clicked, this, [this, code] {
            change([code](assistant::Settings &settings) { settings.language = code; });
        });
        ++index;
    }
    column->addLayout(grid);
    column->addStretch(1);
    return page;
}

void SettingsPage::show(const assistant::Settings &settings)
{
    showing = true;
    const bool isTrue = settings.target == recognition::PoleTarget::True;
    (isTrue ? truePole : refractedPole)->setChecked(true);
    pressure->field().setValue(settings.pressure);
    temperature->field().setValue(settings.temperature);
    red->setChecked(settings.redTheme);
    sound->setChecked(settings.sound);
    speech->setChecked(settings.speech && canSpeak);
    goal->field().setValue(settings.goalArcseconds);
    recording->setChecked(settings.recording);
    folder->setText(settings.recordingFolder);
    limit->field().setValue(settings.recordingLimitMegabytes);
    for (int i = 0; i < int(languageNames.size()); ++i)
        if (settings.language == QLatin1String(languageNames[std::size_t(i)].code))
            languages->button(i)->setChecked(true);
    showing = false;
}

void SettingsPage::hostSite(QWidget *sitePanel)
{
    siteHost->insertWidget(0, sitePanel);
    sitePanel->show();
}

void SettingsPage::setTheme(const Theme &theme)
{
    backButton->setIcon(glyphIcon(Glyph::Back, theme));
}

void SettingsPage::retranslate()
{
    title->setText(tr("Settings"));
    backButton->setText(tr("Back"));
    const QString texts[] = {tr("Site"), tr("Pole"), tr("Night and sound"), tr("Recording"),
                             tr("Language")};
    for (int i = 0; i < 5; ++i)
        sections->button(i)->setText(texts[i]);
    truePole->setText(tr("True pole"));
    trueWhy->setText(tr("The Earth’s own axis: best for long exposures all over the sky."));
    refractedPole->setText(tr("Refracted pole"));
    refractedWhy->setText(
        tr("Where the air shows the pole: best for long exposures near the pole."));
    pressureName->setText(tr("Air pressure, hPa (0: no refraction)"));
    temperatureName->setText(tr("Temperature, °C"));
    pressure->setName(tr("Air pressure, hPa"));
    temperature->setName(temperatureName->text());
    red->setText(tr("Red light only"));
    redWhy->setText(tr("Keeps eyes used to the dark: the window emits no green and no blue."));
    sound->setText(tr("Sound"));
    soundWhy->setText(tr("Pulses come faster as the error shrinks; a steady tone at the goal."));
    speech->setText(tr("Speech"));
    speechWhy->setText(canSpeak ? tr("Says which bolt to turn, and how far.")
                                : tr("Speech is not available on this computer."));
    goalName->setText(tr("Goal: aligned below"));
    goal->setName(goalName->text());
    recording->setText(tr("Record the frames"));
    recordingWhy->setText(
        tr("Saves at most one frame a second as a FITS file, for a report of a fault."));
    folderName->setText(tr("Folder"));
    folder->setAccessibleName(tr("Folder"));
    limitName->setText(tr("Limit of disk space, MB"));
    limit->setName(limitName->text());
}
} // namespace assistantwindow
