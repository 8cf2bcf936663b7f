// SPDX-License-Identifier: MIT
// Does every text of every language have the room that it needs, in the window, its pages, menus
// and dialogs, and does nothing cover its neighbour? Everything measured is also saved as pictures,
// one folder per language, for visual inspection.
#include "app/stylesheet.h"
#include "core/languages.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/textroom.h"
#include "widgets/magnifierwidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTabWidget>
#include <QTest>
#include <memory>

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true; // the same pictures, many times slower
#else
constexpr bool isSanitized = false;
#endif
/// For a picture's file: little compression, which is fast.
constexpr int pngQuality = 80;

/// The rectangle of a box's title.
QRect titlePlace(const QGroupBox &box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.lineWidth = 1;
    option.textAlignment = Qt::Alignment(box.alignment());
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                       &box);
}

/// The title must be inside its box, and none of the box's contents may cover it.
QString lackOfTitle(const QGroupBox &box)
{
    if (box.title().isEmpty())
        return {};
    const QFontMetrics metrics(box.font());
    const QRect place = titlePlace(box);
    const QSize needed(metrics.horizontalAdvance(box.title()), metrics.ascent());
    if (const QString less = lack(box, needed, (place & box.rect()).size()); !less.isEmpty())
        return "title of " + less;
    const QRect ink(place.topLeft(), needed);
    for (const auto *const child :
         box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (child->isVisible() && child->geometry().intersects(ink))
            return child->objectName() + " lies over the title of " + box.objectName();
    return {};
}

/// @param text the longest that the field may have to show
QString lackOfField(const QWidget &field, const QLineEdit &edit, const QString &text)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth =
        edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    // The rectangle that clips the text.
    const QRect inside = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    const QFontMetrics metrics(edit.font());
    return lack(field, {metrics.horizontalAdvance(text), metrics.ascent()}, inside.size());
}

QString lackOfNumber(const QDoubleSpinBox &box)
{
    const auto *const edit = box.findChild<QLineEdit *>();
    for (const double number : {box.minimum(), box.maximum()})
        if (const QString found = lackOfField(box, *edit, box.textFromValue(number));
            !found.isEmpty())
            return found;
    return {};
}

/// How much room a widget of any kind lacks; empty if none.
QString lackOfAny(const QWidget &widget)
{
    if (const auto *const box = qobject_cast<const QGroupBox *>(&widget))
        return lackOfTitle(*box);
    if (const auto *const box = qobject_cast<const QDoubleSpinBox *>(&widget))
        return lackOfNumber(*box);
    const auto *const edit = qobject_cast<const QLineEdit *>(&widget);
    if (edit && !qobject_cast<const QAbstractSpinBox *>(edit->parentWidget()))
        return lackOfField(*edit, *edit, "500"); // the largest number of a slider
    return lackOf(widget);
}

/// The visible part of a widget, in window coordinates.
QRect placeOf(const QWidget &widget)
{
    const QWidget *const window = widget.window();
    QRect place(widget.mapTo(window, QPoint()), widget.size());
    for (const QWidget *p = widget.parentWidget(); p && p != window; p = p->parentWidget())
        place &= QRect(p->mapTo(window, QPoint()), p->size());
    return place;
}

/// Whether a widget shows something that must neither cover another widget nor be covered. The
/// picture and the template are below everything else on purpose.
bool isPiece(const QWidget &widget)
{
    const QString name = widget.objectName();
    if (name == "label_showImg" || name == "label_templateImg" || name.startsWith("qt_"))
        return false;
    const QWidget *const parent = widget.parentWidget();
    if (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent) ||
        qobject_cast<const QMenuBar *>(parent))
        return false;
    return qobject_cast<const QLabel *>(&widget) ||
           qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QAbstractSlider *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QGroupBox *>(&widget) || qobject_cast<const QMenuBar *>(&widget) ||
           qobject_cast<const MagnifierWidget *>(&widget) || name == "line";
}

QList<const QWidget *> visibleIn(const QWidget &window)
{
    QList<const QWidget *> found;
    for (const QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            found.append(widget);
    return found;
}

QStringList lacksAndOverlapsIn(const QWidget &window)
{
    QStringList lacks;
    QList<QPair<const QWidget *, QRect>> pieces;
    for (const QWidget *const widget : visibleIn(window)) {
        if (const QString found = lackOfAny(*widget); !found.isEmpty())
            lacks.append(found);
        if (isPiece(*widget))
            pieces.append({widget, placeOf(*widget)});
    }
    for (int i = 0; i < pieces.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            const QWidget &a = *pieces[i].first, &b = *pieces[j].first;
            if (pieces[i].second.intersects(pieces[j].second) && !a.isAncestorOf(&b) &&
                !b.isAncestorOf(&a))
                lacks.append(a.objectName() + " and " + b.objectName() + " overlap");
        }
    }
    return lacks;
}

/// What is cut off of the page over the picture or of the panel beside it, and whether the page
/// covers the point that the magnifier shows.
QStringList lacksOfPage(const MainWindow &window)
{
    QStringList lacks;
    const auto &area = *window.findChild<QScrollArea *>("scrollArea_showImg");
    const auto &tabs = *window.findChild<QTabWidget *>("tabWidget_tipMsg");
    const QRect place = tabs.geometry();
    if (!area.viewport()->geometry().contains(place))
        lacks.append("the page is cut");
    const QRect magnifier = window.findChild<MagnifierWidget *>()->geometry();
    const int cross = 8; // pixels to either side of the centre
    if (place.intersects(
            QRect(magnifier.center(), QSize(1, 1)).adjusted(-cross, -cross, cross, cross)))
        lacks.append("the page covers the middle of the magnifier");
    QList<const QWidget *> pieces;
    for (const auto *const piece : tabs.currentWidget()->findChildren<QWidget *>()) {
        if (!tabs.currentWidget()->rect().contains(piece->geometry()))
            lacks.append(piece->objectName() + " is cut");
        for (const QWidget *const other : pieces)
            if (piece->geometry().intersects(other->geometry()))
                lacks.append(piece->objectName() + " and " + other->objectName() + " overlap");
        pieces.append(piece);
    }
    const auto &arrow = *window.findChild<QLabel *>("directionArrow");
    if (arrow.isVisible() && (arrow.geometry().intersects(place) ||
                              !area.viewport()->geometry().contains(arrow.geometry())))
        lacks.append("the arrow is cut");
    const auto &panel = *window.findChild<QScrollArea *>("scrollArea_manager");
    if (panel.horizontalScrollBar()->maximum() > 0)
        lacks.append("the panel is cut");
    for (const QWidget *const widget : visibleIn(window))
        if (panel.isAncestorOf(widget) || tabs.isAncestorOf(widget))
            if (const QString found = lackOf(*widget); !found.isEmpty())
                lacks.append(found);
    return lacks;
}

/// Saves the pictures of one language, or none.
class Pictures
{
public:
    /// @param code of the language; empty: nothing is saved
    explicit Pictures(const QString &code)
    {
        if (code.isEmpty())
            return;
        folder =
            std::make_unique<QDir>(QCoreApplication::applicationDirPath() + "/pictures/" + code);
        isThere = folder->mkpath(".");
    }
    /// False if the picture is wanted and cannot be saved.
    bool add(QWidget &widget, const QString &name) const
    {
        return !folder ||
               (isThere && widget.grab().save(folder->filePath(name + ".png"), "PNG", pngQuality));
    }

private:
    std::unique_ptr<QDir> folder;
    bool isThere = false;
};

/// How much room a menu's entries lack; opens the menu to measure them.
QStringList lacksAndOverlapsIn(QMenu &menu, const Pictures &pictures)
{
    QStringList lacks;
    menu.popup({0, 0});
    settle();
    if (!pictures.add(menu, menu.objectName()))
        lacks.append("no picture can be saved");
    const QFontMetrics metrics(menu.font());
    for (QAction *const action : menu.actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        const QRect place = menu.actionGeometry(action) & menu.rect();
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        // Between the paddings for the check mark and the arrow; the shortcuts have a column of
        // their own.
        const int needed = 30 + 28 + metrics.horizontalAdvance(action->text()) +
                           (keys.isEmpty() ? 0 : metrics.horizontalAdvance("  " + keys));
        if (place.width() < needed || place.height() < metrics.height())
            lacks.append(QStringLiteral("%1 needs %2 x %3 and has %4 x %5")
                             .arg(action->objectName())
                             .arg(needed)
                             .arg(metrics.height())
                             .arg(place.width())
                             .arg(place.height()));
    }
    menu.close();
    return lacks;
}
} // namespace

class LanguageFitTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fits_data();
    void fits();
    void fitsOnASmallScreen_data();
    void fitsOnASmallScreen();
};

void LanguageFitTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
}

void LanguageFitTest::fits_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("mono");
    QTest::addColumn<QSize>("size");
    for (std::size_t i = 0; i < languages.size(); ++i)
        for (const bool mono : {false, true})
            for (const QSize size : {QSize(1280, 800), QSize(1920, 1080)})
                QTest::addRow("%s %s %d", languages[i].code, mono ? "mono" : "colour", size.width())
                    << int(i) << mono << size;
}

void LanguageFitTest::fits()
{
    QFETCH(int, number);
    QFETCH(bool, mono);
    QFETCH(QSize, size);
    SessionWindow window;
    window.resize(size);
    window.show();
    window.findChild<QAction *>("actionMono_Style")->setChecked(mono);
    window.findChild<QAction *>(languages.at(std::size_t(number)).action)->setChecked(true);
    MainWindowProbe probe(window);
    const bool isShown = !isSanitized && !mono && size.width() == 1280;
    const Pictures pictures(isShown ? languages.at(std::size_t(number)).code : QString());
    const auto *const panel = window.findChild<QScrollArea *>("scrollArea_manager");
    for (const char *const hemisphere : {"radioButton_south", "radioButton_north"}) {
        window.findChild<QAbstractButton *>(hemisphere)->setChecked(true);
        for (int step = 1; step <= 13; ++step) {
            probe.switchStep(step);
            settle();
            const QStringList lacks = lacksAndOverlapsIn(window);
            QVERIFY2(lacks.isEmpty(),
                     qPrintable(QStringLiteral("step %1: ").arg(step) + lacks.join("; ")));
            QCOMPARE(panel->horizontalScrollBar()->maximum(), 0);
            QVERIFY(pictures.add(window, QStringLiteral("%1-%2")
                                             .arg(hemisphere + qstrlen("radioButton_"))
                                             .arg(step, 2, 10, QLatin1Char('0'))));
        }
    }
    auto *const bar = window.findChild<QMenuBar *>("menuBar");
    QVERIFY(bar->sizeHint().width() <= window.width());
    for (QMenu *const menu : bar->findChildren<QMenu *>()) {
        const QStringList lacks = lacksAndOverlapsIn(*menu, pictures);
        QVERIFY2(lacks.isEmpty(), qPrintable(menu->objectName() + ": " + lacks.join("; ")));
    }
    for (QDialog *const dialog : window.findChildren<QDialog *>()) {
        if (auto *const unit = dialog->findChild<QComboBox *>("comboBox_presure"))
            unit->setCurrentIndex(1); // the unit with the longer numbers
        dialog->show();
        settle();
        QVERIFY(pictures.add(*dialog, dialog->objectName()));
        const QStringList lacks = lacksAndOverlapsIn(*dialog);
        QVERIFY2(lacks.isEmpty(), qPrintable(lacks.join("; ")));
    }
}

void LanguageFitTest::fitsOnASmallScreen_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QSize>("size");
    for (std::size_t i = 0; i < languages.size(); ++i)
        for (const QSize size : {QSize(800, 480), QSize(800, 600), QSize(1024, 768)})
            QTest::addRow("%s %d x %d", languages[i].code, size.width(), size.height())
                << int(i) << size;
}

/// The page in all steps, with a picture that is larger than its view.
void LanguageFitTest::fitsOnASmallScreen()
{
    QFETCH(int, number);
    QFETCH(QSize, size);
    SessionWindow window;
    window.resize(size);
    window.show();
    window.findChild<QLabel *>("label_showImg")->setPixmap(QPixmap(1280, 960));
    window.findChild<QAction *>(languages.at(std::size_t(number)).action)->setChecked(true);
    const bool isShown = !isSanitized && size.height() == 480;
    const Pictures pictures(isShown ? languages.at(std::size_t(number)).code : QString());
    MainWindowProbe probe(window);
    for (const char *const hemisphere : {"radioButton_south", "radioButton_north"}) {
        window.findChild<QAbstractButton *>(hemisphere)->setChecked(true);
        for (int step = 1; step <= 13; ++step) {
            probe.switchStep(step);
            settle();
            QCOMPARE(window.size(), size);
            const QStringList lacks = lacksOfPage(window);
            QVERIFY2(lacks.isEmpty(),
                     qPrintable(QStringLiteral("step %1: ").arg(step) + lacks.join("; ")));
            QVERIFY(pictures.add(window, QStringLiteral("small-%1-%2")
                                             .arg(hemisphere + qstrlen("radioButton_"))
                                             .arg(step, 2, 10, QLatin1Char('0'))));
        }
    }
    QVERIFY(window.findChild<QMenuBar *>("menuBar")->sizeHint().width() <= window.width());
}

QTEST_MAIN(LanguageFitTest)
#include "tst_languagefit.moc"
