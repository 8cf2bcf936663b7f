// SPDX-License-Identifier: MIT
// Does the virtual mount's window show everything in every language, with room for every text?
#include "app/stylesheet.h"
#include "core/languages.h"
#include "resources/resources.h"
#include "tests/support/catalogues.h"
#include "tests/support/textroom.h"
#include "tests/support/toolkitwalk.h"
#include "tests/virtualmount/mountwindowtest.h"
#include "virtualmount/panelarea.h"
#include "virtualmount/places.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSet>
#include <QSlider>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>

namespace
{
/// Texts of boxes that are wider than their room; size hints do not cover them well enough.
QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    const auto compare = [&](const QWidget &widget, const QString &text, int room) {
        const int needed = widget.fontMetrics().horizontalAdvance(text);
        if (needed > room)
            cut.append(QStringLiteral("%1 needs %2 and has %3").arg(text).arg(needed).arg(room));
    };
    for (const auto *const box : window.findChildren<QComboBox *>()) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const int room =
            box->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
                .width();
        for (int i = 0; i < box->count(); ++i)
            compare(*box, box->itemText(i), room);
    }
    for (const auto *const box : window.findChildren<QAbstractSpinBox *>())
        if (const auto *const edit = box->findChild<QLineEdit *>())
            compare(*edit, edit->text(), edit->width() - 4); // the line edit's own margins
    for (const auto *const panel : window.findChildren<QGroupBox *>())
        compare(*panel, panel->title(), panel->width() - 20); // 10 on either side
    return cut;
}

/// Everything that a user reads or a screen reader speaks, each with the widget's name.
QStringList textsIn(const QWidget &window)
{
    QStringList texts = {window.windowTitle()};
    for (const auto *const widget : window.findChildren<QWidget *>()) {
        texts << widget->accessibleName() << widget->toolTip();
        if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            texts << button->text();
        if (const auto *const label = qobject_cast<const QLabel *>(widget))
            texts << label->text();
        if (const auto *const panel = qobject_cast<const QGroupBox *>(widget))
            texts << panel->title();
        if (const auto *const box = qobject_cast<const QComboBox *>(widget))
            for (int i = 0; i < box->count(); ++i)
                texts << box->itemText(i);
    }
    texts.removeAll(QString());
    return texts;
}
} // namespace

class MountLanguagesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { QVERIFY(installTranslator("mount", languages.front())); }
    void everyTextFits_data();
    void everyTextFits();
    void theTruthButtonHasRoomForBothTexts_data() { everyTextFits_data(); }
    void theTruthButtonHasRoomForBothTexts();
    void anAlignedStartFits_data() { everyTextFits_data(); }
    void anAlignedStartFits();
    void aLowScreen_data() { everyTextFits_data(); }
    void aLowScreen();
    void mnemonicsAreUnique_data() { everyTextFits_data(); }
    void mnemonicsAreUnique();
    void nothingIsLeftInEnglish_data();
    void nothingIsLeftInEnglish();
    void toolkitTextsAreTranslated_data() { everyTextFits_data(); }
    void toolkitTextsAreTranslated();
    void numbersFollowTheLanguage();
    void rowsHaveNamesForScreenReaders();
    void thePartsOfTheTruth_data();
    void thePartsOfTheTruth();
};

void MountLanguagesTest::initTestCase()
{
    initialiseResources();
    Q_INIT_RESOURCE(mount_catalogues);
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountLanguagesTest::everyTextFits_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < languages.size(); ++i)
        QTest::newRow(languages[i].code) << int(i);
}

void MountLanguagesTest::everyTextFits()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2028-12-28T20:08:58Z\n[mount]\nra_angle = -88.8\n"
                   "bolt_altitude = 0.8\nbolt_azimuth = 9.5\n[weather]\nclouds = 1\nmoon = 1\n"
                   "[sensor]\nseeing = 118\n");
    ShownWindow shown(file.path());
    virtualmount::MountWindow &window = shown.window;
    // A screen of 1366 x 768 with a panel.
    const virtualmount::WindowGeometries places = virtualmount::sharedScreen(
        QRect(0, 0, 1366, 728), window.sizeHint(), QMargins(4, 36, 4, 4));
    QCOMPARE(window.size(), places.mount.size());
    QVERIFY2(places.program.width() >= 900, qPrintable(QString::number(window.width())));
    const auto lacks = [&] {
        settle();
        return (lacksIn(window) + cutTexts(window)).join("; ");
    };
    QCOMPARE(lacks(), QString());
    clickOn(window, "showTruth");
    QCOMPARE(lacks(), QString());
    // The longest counts and errors that a user can reach: an hour of sky and more.
    file.writeText(file.text().replace("0.8\n", "10.4\n").replace("9.5\n", "-8.8\n"));
    QTRY_VERIFY(textOf(window, "azimuthCount").contains("54"));
    QCOMPARE(lacks(), QString());
    file.writeText(file.text().replace("10.4\n", "-8.8\n"));
    QTRY_VERIFY(textOf(window, "altitudeCount").contains("28"));
    QCOMPARE(lacks(), QString());
    file.writeText("[weather]\nmoon = 0.5\nclouds = 7\n");
    QTRY_VERIFY(named<QAbstractButton>(window, "replace").isVisible());
    QCOMPARE(lacks(), QString());
    QCOMPARE(window.size(), places.mount.size());
}

/// What the window says about a mount that is aligned at the start needs no more room.
void MountLanguagesTest::anAlignedStartFits()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture usual;
    const ShownWindow other(usual.path());
    const SkyFileFixture file;
    file.writeText("[mount]\nbolt_altitude = 0\nbolt_azimuth = 0\n");
    const ShownWindow shown(file.path());
    settle();
    QVERIFY(textOf(shown.window, "truth") != textOf(other.window, "truth"));
    QCOMPARE((lacksIn(shown.window) + cutTexts(shown.window)).join("; "), QString());
    QCOMPARE(shown.window.sizeHint(), other.window.sizeHint());
    // The button is named as it is read, without its letter in brackets.
    QString button = named<QAbstractButton>(shown.window, "newExercise").text();
    button.remove(QRegularExpression("\\(&.\\)")).remove('&');
    QVERIFY2(textOf(shown.window, "truth").contains(button), qPrintable(button));
}

/// The panels scroll there, and nothing is cut off beside the scroll bar.
void MountLanguagesTest::aLowScreen()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    ShownWindow shown(file.path());
    virtualmount::MountWindow &window = shown.window;
    auto &area = *window.findChild<virtualmount::PanelArea *>();
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);
    const QMargins frame(1, 20, 1, 5);
    const QRect screen(0, 0, 800, 480);
    window.fitScreen(screen.height());
    const virtualmount::WindowGeometries places =
        virtualmount::sharedScreen(screen, window.sizeHint(), frame);
    settle(); // the smallest size follows
    window.resize(places.mount.size());
    settle();
    QCOMPARE(window.size(), places.mount.size());
    QCOMPARE((lacksIn(window) + cutTexts(window)).join("; "), QString());
    QVERIFY2(area.widget()->width() <= area.viewport()->width(),
             qPrintable(QString::number(area.widget()->width())));
    // The Tab key leads to the last panel.
    const auto &exercise = named<QAbstractButton>(window, "newExercise");
    QVERIFY(exercise.visibleRegion().isEmpty());
    for (int presses = 0; presses < 40 && !exercise.hasFocus(); ++presses)
        press(Qt::Key_Tab);
    QCOMPARE(exercise.visibleRegion().boundingRect().size(), exercise.size());
    QVERIFY(contextMenuOf(*area.verticalScrollBar(), {2, 2}).isEmpty());
}

void MountLanguagesTest::mnemonicsAreUnique()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QHash<QString, QString> users;
    const auto take = [&](const QString &text) {
        const QString key = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText);
        if (key.isEmpty())
            return;
        QVERIFY2(!users.contains(key), qPrintable(text + " and " + users.value(key)));
        users.insert(key, text);
    };
    for (const auto *const button : shown.window.findChildren<QAbstractButton *>())
        take(button->text());
    for (const auto *const label : shown.window.findChildren<QLabel *>())
        if (label->buddy())
            take(label->text());
    QCOMPARE(users.size(), 17);
}

void MountLanguagesTest::nothingIsLeftInEnglish_data()
{
    QTest::addColumn<int>("number");
    // Scripts in which no English word can be mistaken for one of the language's own.
    for (const std::size_t i : {1U, 2U, 3U, 9U})
        QTest::newRow(languages[i].code) << int(i);
}

void MountLanguagesTest::nothingIsLeftInEnglish()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    file.writeText("[weather]\nclouds = 7\n");
    const ShownWindow shown(file.path());
    static const QRegularExpression word("[A-Za-z]{2,}");
    const QSet<QString> names = {"Quorvandel", "RA",     "UTC", "USB", "Ctrl",
                                 "Shift",      "clouds", "Esc", "tmp"};
    for (QString text : textsIn(shown.window)) {
        text.remove(file.path());
        auto match = word.globalMatch(text);
        while (match.hasNext())
            QVERIFY2(names.contains(match.next().captured()), qPrintable(text));
    }
}

/// In the context menus of all widgets and in the boxes' lists.
void MountLanguagesTest::toolkitTextsAreTranslated()
{
    QFETCH(int, number);
    LastTranslator last;
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    ShownWindow shown(file.path());
    last.forget(); // English is in the sources, and has no catalogue
    QStringList seen = contextMenusIn(shown.window);
    for (auto *const box : shown.window.findChildren<QComboBox *>()) {
        box->showPopup();
        QVERIFY(QApplication::activePopupWidget());
        seen += contextMenusIn(*QApplication::activePopupWidget());
        box->hidePopup();
    }
    const auto isWord = [](const QString &entry) { return !entry.isEmpty(); };
    QVERIFY(std::count_if(seen.begin(), seen.end(), isWord) > 20);
    QStringList left = last.texts();
    const auto isKey = [](const QString &text) { return text.startsWith("QShortcut: "); };
    left.erase(std::remove_if(left.begin(), left.end(), isKey), left.end());
    if (number > 0)
        QCOMPARE(left.join("; "), QString());
}

void MountLanguagesTest::numbersFollowTheLanguage()
{
    QVERIFY(installRequestedLanguage("mount", "DE"));
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 48.25\n[mount]\nra_angle = 7.5\ntracking = false\n");
    const ShownWindow shown(file.path());
    press(Qt::Key_Up);
    const QString angle = textOf(shown.window, "angle");
    const QString count = textOf(shown.window, "altitudeCount");
    const QString latitude =
        named<QAbstractSpinBox>(shown.window, "latitude").findChild<QLineEdit *>()->text();
    QLocale::setDefault(QLocale::system());
    QCOMPARE(angle, QString("+7,5°"));
    QCOMPARE(count, QString("0,25 höher"));
    QCOMPARE(latitude, QString("48,250°"));
    QVERIFY(file.text().startsWith("[site]\nlatitude = 48.25\n"));
}

void MountLanguagesTest::rowsHaveNamesForScreenReaders()
{
    QVERIFY(installTranslator("mount", languages.front()));
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    const auto name = [&](const char *field) {
        return named<QWidget>(shown.window, field).accessibleName();
    };
    QCOMPARE(name("latitude"), QString("Latitude in degrees"));
    QCOMPARE(name("latitudeSide"), QString("Latitude: north or south"));
    QCOMPARE(name("longitude"), QString("Longitude in degrees"));
    QCOMPARE(name("longitudeSide"), QString("Longitude: east or west"));
    QCOMPARE(name("clouds"), QString("Clouds in percent"));
    QCOMPARE(name("moon"), QString("Glow of the moon in percent"));
    QCOMPARE(name("seeing"), QString("Seeing in seconds of arc"));
}

void MountLanguagesTest::thePartsOfTheTruth_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("altitude");
    QTest::addColumn<QString>("azimuth");
    QTest::newRow("DE") << "DE"
                        << "zu hoch"
                        << "zu weit westlich";
    QTest::newRow("JA") << "JA"
                        << "上に"
                        << "西に";
    QTest::newRow("RU") << "RU"
                        << "выше"
                        << "западнее";
}

void MountLanguagesTest::thePartsOfTheTruth()
{
    QFETCH(QString, code);
    QFETCH(QString, altitude);
    QFETCH(QString, azimuth);
    QVERIFY(installTranslator("mount", languageOf(code)));
    const SkyFileFixture file;
    const ShownWindow shown(file.path()); // 0.6 degrees up and 1 degree west
    clickOn(shown.window, "showTruth");
    const QString truth = textOf(shown.window, "truth");
    QVERIFY2(truth.contains(altitude) && truth.contains(azimuth), qPrintable(truth));
    QCOMPARE(truth.count("′"), 3);
}

/// Otherwise the buttons beside it would move at each click.
void MountLanguagesTest::theTruthButtonHasRoomForBothTexts()
{
    QFETCH(int, number);
    QVERIFY(installTranslator("mount", languages.at(std::size_t(number))));
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    const auto &button = named<QAbstractButton>(shown.window, "showTruth");
    QStringList texts;
    for (int i = 0; i < 2; ++i) {
        texts.append(button.text());
        QVERIFY2(button.minimumWidth() >= button.sizeHint().width(), qPrintable(button.text()));
        clickOn(shown.window, "showTruth");
    }
    QVERIFY(texts[0] != texts[1]);
}

QTEST_MAIN(MountLanguagesTest)
#include "tst_mountlanguages.moc"
