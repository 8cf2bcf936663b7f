// SPDX-License-Identifier: MIT
// Can every notice be read in full in every language in a small window, and does it push nothing
// aside? A picture of the longest one is saved for each language, for visual inspection.
#include "app/stylesheet.h"
#include "core/languages.h"
#include "mainwindow/notice.h"
#include "mainwindow/noticelabel.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/textroom.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QStatusBar>
#include <QTest>
#include <memory>

namespace
{
const QSize smallest(800, 480);

/// What else the status bar shows, and the window itself.
QVector<QRect> others(const QMainWindow &window)
{
    return {window.geometry(), window.statusBar()->geometry(), window.centralWidget()->geometry(),
            window.findChild<QLabel *>("positionLabel")->geometry(),
            window.findChild<QLabel *>("fpsLabel")->geometry()};
}
} // namespace

class NoticeFitTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fits_data();
    void fits();
    void tooNarrow();
    void rightEnd();

private:
    std::unique_ptr<SessionWindow> open(QSize size, const char *language = nullptr) const;
};

void NoticeFitTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
}

/// A window whose own look for notices has ended.
std::unique_ptr<SessionWindow> NoticeFitTest::open(QSize size, const char *language) const
{
    auto window = std::make_unique<SessionWindow>();
    window->resize(size);
    window->show();
    if (language)
        window->findChild<QAction *>(language)->setChecked(true);
    MainWindowProbe(*window).fpsTimer().stop();
    settle();
    return window;
}

void NoticeFitTest::fits_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QSize>("size");
    for (std::size_t i = 0; i < languages.size(); ++i)
        for (const QSize size : {smallest, QSize(1366, 768)})
            QTest::addRow("%s %d", languages[i].code, size.width()) << int(i) << size;
}

void NoticeFitTest::fits()
{
    QFETCH(int, number);
    QFETCH(QSize, size);
    const Language &language = languages[std::size_t(number)];
    const auto window = open(size, language.action);
    auto *const label = dynamic_cast<NoticeLabel *>(window->findChild<QLabel *>("label_notice"));
    QVERIFY(label && label->text().isEmpty());
    const QVector<QRect> before = others(*window);
    QCOMPARE(window->size(), size);
    QString longest;
    for (int code = 0; code <= int(NoticeCode::SettingsNotKept); ++code) {
        const QString text = noticeText({NoticeCode(code), 360, 38});
        label->showSentence(text);
        settle();
        QVERIFY2(label->shownText() == text,
                 qPrintable(QStringLiteral("%1 needs %2 and has %3")
                                .arg(text)
                                .arg(label->fontMetrics().horizontalAdvance(text))
                                .arg(label->width())));
        QVERIFY(label->fontMetrics().ascent() + 2 <= label->height());
        QVERIFY(label->toolTip().isEmpty());
        QCOMPARE(others(*window), before);
        if (label->fontMetrics().horizontalAdvance(text) >
            label->fontMetrics().horizontalAdvance(longest))
            longest = text;
    }
    label->showSentence(longest);
    QDir folder(QCoreApplication::applicationDirPath() + "/notices");
    QVERIFY(folder.mkpath("."));
    QVERIFY(window->grab().save(
        folder.filePath(QStringLiteral("%1-%2.png").arg(language.code).arg(size.width()))));
    window->close();
}

/// A text that has no room is cut, whole in the tooltip, and makes nothing wider.
void NoticeFitTest::tooNarrow()
{
    const auto window = open(smallest);
    auto *const label = dynamic_cast<NoticeLabel *>(window->findChild<QLabel *>("label_notice"));
    QVERIFY(label);
    const QVector<QRect> before = others(*window);
    const QSize least = window->minimumSizeHint();
    const QString text = QString("Far too long a sentence. ").repeated(20);
    label->showSentence(text);
    settle();
    QCOMPARE(others(*window), before);
    QCOMPARE(window->minimumSizeHint(), least);
    QVERIFY(label->shownText().endsWith(QChar(0x2026)));
    QCOMPARE(label->toolTip(), text);
    QCOMPARE(label->text(), text); // what a screen reader speaks
    label->showSentence(QString());
    QVERIFY(label->toolTip().isEmpty());
    window->close();
}

/// Behind the other two, and nothing but the grip for resizing behind it.
void NoticeFitTest::rightEnd()
{
    constexpr int grip = 24;
    const auto window = open(smallest);
    const QRect place = window->findChild<QLabel *>("label_notice")->geometry();
    for (const char *const other : {"positionLabel", "fpsLabel"})
        QVERIFY(window->findChild<QLabel *>(other)->geometry().right() < place.left());
    QVERIFY(place.right() > window->statusBar()->width() - grip);
    window->close();
}

QTEST_MAIN(NoticeFitTest)
#include "tst_noticefit.moc"
