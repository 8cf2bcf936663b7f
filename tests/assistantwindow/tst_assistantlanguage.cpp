// SPDX-License-Identifier: MIT
// Is every sentence seen in full in every language, and does a switch of the language change all?
#include "assistantwindow/advicetexts.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/languagenames.h"
#include "assistantwindow/report.h"
#include "core/languages.h"
#include "tests/assistantwindow/scenes.h"
#include "tests/assistantwindow/smallscreen.h"
#include "tests/support/paintedtexts.h"
#include "tests/support/textroom.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

namespace
{
using assistant::Advice;
using assistant::AdviceCode;
using assistantwindow::AssistantWindow;

constexpr int codes = int(AdviceCode::RecordingFull) + 1; // the enumeration's last one

/// With the longest number or text that a night may bring.
Advice adviceOf(AdviceCode code)
{
    switch (code) {
    case AdviceCode::CameraUnusable:
        return {code, 0.0, 0.0,
                "libveldix.so.20: cannot open shared object file: No such file or directory"};
    case AdviceCode::CameraRefuses:
        return {code, 0.0, 0.0, "QUORVANDEL-V0001"};
    case AdviceCode::CameraLost:
    case AdviceCode::CameraHangs:
        return {code, 3600.0, 0.0, {}};
    case AdviceCode::ClockJumped:
        return {code, -2592000.0, 0.0, {}};
    case AdviceCode::NotThePole:
        return {code, 1234.0, 0.0, {}};
    case AdviceCode::PoleThatWay:
        return {code, 12.3, 130.0, {}};
    case AdviceCode::TurnBolts:
        return {code, 43200.0, 0.0, {}};
    case AdviceCode::RecordingFailed:
        return {code, 0.0, 0.0, "/home/observer/Pictures/quorvandel-recordings"};
    default:
        return {code, 17.2, 0.0, {}};
    }
}

struct Shown {
    madestatus::MadeInstrument instrument;
    std::unique_ptr<AssistantWindow> window;

    Shown(const char *scene, const QString &language, bool red)
    {
        const scenes::Scene &shown = scenes::all()[std::size_t(scenes::numberOf(scene))];
        scenes::fill(instrument, shown);
        window = std::make_unique<AssistantWindow>(
            instrument, scenes::settingsOf(shown, red, language), [](const auto &) {});
        window->resize(smallScreen);
        window->show();
        scenes::openPage(*window, shown.button);
        window->showNormal();
        window->resize(smallScreen);
        settle();
    }
    void say(const std::vector<Advice> &advice)
    {
        instrument.snapshot.status.advice = advice;
        ++instrument.snapshot.number;
        window->refresh();
        settle();
    }
    template <typename T> T &named(const char *name) const
    {
        T *const found = window->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("no widget %s", name);
        return *found;
    }
};

QString sentence(const Advice &advice, bool hasBolts = true)
{
    return assistantwindow::adviceText(advice, hasBolts, QLocale());
}

/// What every page shows as words, sorted: each with its widget's name.
QStringList textsOf(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        const QString name = widget->objectName() + ": ";
        if (const auto *const label = qobject_cast<const QLabel *>(widget))
            texts.append(name + label->text());
        if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            texts.append(name + button->text());
        texts.append(name + "tip " + widget->toolTip());
        texts.append(name + "spoken " + widget->accessibleName());
    }
    texts.sort();
    return texts;
}

/// Those of the first that the second does not have.
QStringList missing(const QStringList &first, QStringList second)
{
    QStringList gone;
    for (const QString &text : first)
        if (!second.removeOne(text))
            gone.append(text);
    return gone;
}

void forEachLanguage()
{
    QTest::addColumn<QString>("language");
    for (const Language &language : languages)
        QTest::newRow(language.code) << QString::fromLatin1(language.code);
}

void forEachLanguageAndTheme()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("red");
    for (const Language &language : languages)
        for (const bool red : {false, true})
            QTest::addRow("%s%s", language.code, red ? ", red" : "")
                << QString::fromLatin1(language.code) << red;
}
} // namespace

class AssistantLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseAssistantResources(); }
    void cleanup() { installRequestedLanguage(QStringLiteral("assistant"), "EN"); }
    void adviceIsSeenInFull_data() { forEachLanguageAndTheme(); }
    void adviceIsSeenInFull();
    void hintIsSeenInFull_data() { forEachLanguageAndTheme(); }
    void hintIsSeenInFull();
    void largeViewIsSeenInFull_data();
    void largeViewIsSeenInFull();
    void reportIsSeenInFull_data() { forEachLanguage(); }
    void reportIsSeenInFull();
    void switchChangesEveryText_data() { forEachLanguage(); }
    void switchChangesEveryText();
    void switchKeepsTheState();
};

void AssistantLanguageTest::adviceIsSeenInFull()
{
    QFETCH(QString, language);
    QFETCH(bool, red);
    QVERIFY(installRequestedLanguage(QStringLiteral("assistant"), language));
    Shown shown("bolts", language, red);
    auto &label = shown.named<QLabel>("label_advice");
    QStringList faults;
    for (int code = 0; code < codes; ++code) {
        const Advice advice = adviceOf(AdviceCode(code));
        shown.say({advice});
        QCOMPARE(label.text(), sentence(advice));
        const auto texts = paintedTexts(label);
        if (lettersOf(texts) != lettersOf(label.text()))
            faults.append(QStringLiteral("%1: shown is %2").arg(label.text(), lettersOf(texts)));
        faults += cutTexts(texts) + lacksIn(*shown.window);
        QCOMPARE(shown.window->size(), smallScreen);
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

/// Over the lower border of the picture, of which most stays visible.
void AssistantLanguageTest::hintIsSeenInFull()
{
    QFETCH(QString, language);
    QFETCH(bool, red);
    QVERIFY(installRequestedLanguage(QStringLiteral("assistant"), language));
    Shown shown("bolts", language, red);
    auto &picture = shown.named<QLabel>("label_picture");
    const QColor ink = assistantwindow::theme(red).warning;
    QStringList faults;
    for (int code = 0; code < codes; ++code) {
        const Advice hint = adviceOf(AdviceCode(code));
        shown.say({adviceOf(AdviceCode::TurnBolts), hint});
        // Painted last, over the marks.
        const QString wanted =
            lettersOf(sentence(hint)) + lettersOf(assistantwindow::reasonText(hint.code));
        std::vector<PaintedText> texts = paintedTexts(picture);
        while (lettersOf(texts).size() > wanted.size())
            texts.erase(texts.begin());
        if (lettersOf(texts) != wanted)
            faults.append(QStringLiteral("%1: shown is %2").arg(wanted, lettersOf(texts)));
        QVERIFY(!texts.empty() && texts.front().colour == ink);
        const QWidget &button = shown.named<QWidget>("pushButton_dismissHint");
        if (!button.isHidden())
            for (const PaintedText &text : texts)
                if (QRectF(button.geometry()).intersects(text.ink))
                    faults.append(QStringLiteral("under the button: ") + text.text);
        if (texts.front().box.top() < 0.5 * picture.height())
            faults.append(QStringLiteral("covers the picture: ") + sentence(hint));
        faults += cutTexts(texts);
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

void AssistantLanguageTest::largeViewIsSeenInFull_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("scene");
    for (const Language &language : languages)
        for (const char *const scene : {"large", "largeaxis", "largesky", "largenosite"})
            QTest::addRow("%s, %s", scene, language.code)
                << QString::fromLatin1(language.code) << scene;
}

void AssistantLanguageTest::largeViewIsSeenInFull()
{
    QFETCH(QString, language);
    QFETCH(QString, scene);
    QVERIFY(installRequestedLanguage(QStringLiteral("assistant"), language));
    Shown shown(qPrintable(scene), language, false);
    auto &page = shown.named<QWidget>("largePage");
    QVERIFY(page.isVisible() && page.size() == smallScreen);
    QStringList faults;
    for (int code = 0; code < codes; ++code) {
        const Advice advice = adviceOf(AdviceCode(code));
        shown.say({advice});
        const auto texts = paintedTexts(page);
        if (!lettersOf(texts).contains(lettersOf(sentence(advice, scene == "large"))))
            faults.append(sentence(advice));
        faults += cutTexts(texts);
        const QRectF button = shown.named<QWidget>("pushButton_back").geometry();
        for (const PaintedText &text : texts)
            if (button.intersects(text.ink))
                faults.append(QStringLiteral("under the button: ") + text.text);
    }
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

/// On the page and in the picture that is saved, with every value as long as it can be.
void AssistantLanguageTest::reportIsSeenInFull()
{
    QFETCH(QString, language);
    QVERIFY(installRequestedLanguage(QStringLiteral("assistant"), language));
    Shown shown("report", language, false);
    assistant::Report &report = *shown.instrument.figures;
    report.before = madestatus::figuresOf({-40000.0, 40000.0}, true);
    report.after = madestatus::figuresOf({3599.0, -3599.0}, true);
    report.seconds = 36000.0;
    report.site = astrometry::Site{-34.567, -149.876};
    report.aim = {assistant::Aim::Pole::Refracted, 1013.25, -15.0};
    ++shown.instrument.snapshot.number;
    shown.window->refresh();
    QString all;
    for (const assistantwindow::ReportRow &row : assistantwindow::reportRows(report, QLocale()))
        all += lettersOf(row.value) + lettersOf(row.name);
    const auto texts = paintedTexts(shown.named<QWidget>("reportPage"));
    QVERIFY2(lettersOf(texts).contains(all), qPrintable(lettersOf(texts)));
    QStringList faults = cutTexts(texts);
    TextKeeper picture(QSize(1000, 640));
    {
        QPainter painter(&picture);
        assistantwindow::paintReport(painter, QRectF(24, 90, 952, 530), report, QLocale(),
                                     assistantwindow::theme(false));
    }
    QCOMPARE(lettersOf(picture.texts), all);
    faults += cutTexts(picture.texts);
    faults.removeDuplicates();
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

/// From English by the button, with every page's texts as in a window that began in the language;
/// nothing is cut.
void AssistantLanguageTest::switchChangesEveryText()
{
    QFETCH(QString, language);
    const QString assistant = QStringLiteral("assistant");
    QStringList begun;
    {
        QVERIFY(installRequestedLanguage(assistant, language));
        const Shown shown("bolts", language, false);
        begun = textsOf(*shown.window);
    }
    QVERIFY(installRequestedLanguage(assistant, "EN"));
    Shown shown("bolts", "EN", false);
    const QStringList english = textsOf(*shown.window);
    scenes::openPage(*shown.window, "pushButton_settings pushButton_languageSection");
    auto &button = shown.named<QAbstractButton>(qPrintable("pushButton_language" + language));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(shown.window->currentSettings().language, language);
    QVERIFY(button.isChecked());
    settle();
    QStringList faults = lacksIn(*shown.window);
    QTest::keyClick(shown.window.get(), Qt::Key_Escape);
    QApplication::focusWidget()->clearFocus(); // its border is wider
    settle();
    faults += lacksIn(*shown.window);
    const QStringList switched = textsOf(*shown.window);
    for (const QString &text : missing(begun, switched))
        faults.append("missing: " + text);
    QCOMPARE(switched.size(), begun.size());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    const int changed = missing(english, switched).size();
    QVERIFY2(language == "EN" ? changed == 0 : changed > 90, qPrintable(QString::number(changed)));
}

/// What is shown, chosen and typed stays through all ten.
void AssistantLanguageTest::switchKeepsTheState()
{
    Shown shown("bolts", "EN", true);
    scenes::addHistory(*shown.window, shown.instrument);
    auto &total = shown.named<QLabel>("label_totalError");
    const QVariant figure = total.property("arcseconds");
    QVERIFY(figure.isValid());
    auto &slider = shown.named<QSlider>("slider_exposure");
    const int exposure = slider.value();
    const assistant::Settings before = shown.window->currentSettings();
    const auto callsBefore = shown.instrument.calls;
    scenes::openPage(*shown.window, "pushButton_settings pushButton_languageSection");
    for (const Language &language : languages) {
        const QString name = QStringLiteral("pushButton_language") + language.code;
        QTest::mouseClick(&shown.named<QAbstractButton>(qPrintable(name)), Qt::LeftButton);
        QVERIFY(shown.named<QWidget>("settingsPage").isVisible());
        QCOMPARE(total.property("arcseconds"), figure);
        QCOMPARE(slider.value(), exposure);
        const assistant::Settings now = shown.window->currentSettings();
        QVERIFY(now.site && now.site->latitude == before.site->latitude);
        QCOMPARE(now.redTheme, before.redTheme);
        QCOMPARE(now.goalArcseconds, before.goalArcseconds);
        QVERIFY(shown.named<QAbstractButton>("checkBox_red").isChecked());
        QVERIFY(shown.instrument.connected);
        QCOMPARE(shown.instrument.calls, callsBefore);
        QVERIFY(shown.named<QWidget>("pushButton_report").isEnabled());
    }
}

QTEST_MAIN(AssistantLanguageTest)
#include "tst_assistantlanguage.moc"
