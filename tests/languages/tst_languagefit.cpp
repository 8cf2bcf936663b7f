// SPDX-License-Identifier: MIT
// Has every text of every language the room that it needs, in the window, its pages and its
// dialogs?
#include "app/stylesheet.h"
#include "dialogs/languages.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace
{
/// What is missing of the room that a widget's text needs; empty if nothing is.
QString lackOf(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const bool isText = (label && !label->text().isEmpty() && !label->text().startsWith('<')) ||
                        qobject_cast<const QAbstractButton *>(&widget) ||
                        qobject_cast<const QComboBox *>(&widget);
    if (!isText)
        return {};
    const bool wraps = label && label->wordWrap();
    // Text may use the line spacing above and below its letters: what counts is the ink.
    const QFontMetrics metrics(widget.font());
    const int neededWidth = wraps ? 0 : widget.sizeHint().width();
    const int neededHeight = wraps ? widget.heightForWidth(widget.width())
                                   : std::min(widget.sizeHint().height(), metrics.ascent() + 2);
    if (neededWidth <= widget.width() && neededHeight <= widget.height())
        return {};
    return QStringLiteral("%1 needs %2 x %3 and has %4 x %5")
        .arg(widget.objectName())
        .arg(neededWidth)
        .arg(neededHeight)
        .arg(widget.width())
        .arg(widget.height());
}

/// Layouts within layouts settle one after the other.
void settle()
{
    for (int i = 0; i < 6; ++i)
        QCoreApplication::processEvents();
}

QStringList lacksIn(const QWidget &window)
{
    QStringList lacks;
    for (const QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            if (const QString lack = lackOf(*widget); !lack.isEmpty())
                lacks.append(lack);
    return lacks;
}
} // namespace

class TestLanguageFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fits_data();
    void fits();

private:
    void choose(MainWindow &window, const char *action);
};

void TestLanguageFit::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
}

void TestLanguageFit::fits_data()
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

void TestLanguageFit::fits()
{
    QFETCH(int, number);
    QFETCH(bool, mono);
    QFETCH(QSize, size);
    MainWindow window;
    window.resize(size);
    window.show();
    window.findChild<QAction *>("actionMono_Style")->setChecked(mono);
    window.findChild<QAction *>(languages.at(std::size_t(number)).action)->setChecked(true);
    MainWindowProbe probe(window);
    const auto *const panel = window.findChild<QScrollArea *>("scrollArea_manager");
    for (const char *const hemisphere : {"radioButton_south", "radioButton_north"}) {
        window.findChild<QAbstractButton *>(hemisphere)->setChecked(true);
        for (int step = 1; step <= 13; ++step) {
            probe.switchStep(step);
            settle();
            const QStringList lacks = lacksIn(window);
            QVERIFY2(lacks.isEmpty(),
                     qPrintable(QStringLiteral("step %1: ").arg(step) + lacks.join("; ")));
            QCOMPARE(panel->horizontalScrollBar()->maximum(), 0);
        }
    }
    auto *const bar = window.findChild<QMenuBar *>("menuBar");
    QVERIFY(bar->sizeHint().width() <= window.width());
    for (QDialog *const dialog : window.findChildren<QDialog *>()) {
        dialog->show();
        settle();
        const QStringList lacks = lacksIn(*dialog);
        QVERIFY2(lacks.isEmpty(), qPrintable(lacks.join("; ")));
    }
}

QTEST_MAIN(TestLanguageFit)
#include "tst_languagefit.moc"
