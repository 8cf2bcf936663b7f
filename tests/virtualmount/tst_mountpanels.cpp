// SPDX-License-Identifier: MIT
// Is everything in the virtual mount's panels where it belongs, with room for its text?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/virtualmount/mountwindowtest.h"

#include <QGroupBox>
#include <QStyleOptionGroupBox>

class MountPanelsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void titlesAreAboveTheFirstRow();
    void nothingOverlaps();
    void theDialIsAboveItsAngle();
    void namesAreLeftOfWhatTheyName();
    void errorsAreNamed();
};

void MountPanelsTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
}

namespace
{
QRect titleOf(const QGroupBox &panel)
{
    QStyleOptionGroupBox option;
    option.initFrom(&panel);
    option.text = panel.title();
    option.lineWidth = 1;
    option.textAlignment = Qt::AlignLeft;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return panel.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                         &panel);
}
} // namespace

void MountPanelsTest::titlesAreAboveTheFirstRow()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int titles = 0;
    for (const auto *const panel : shown.window.findChildren<QGroupBox *>()) {
        if (panel->title().isEmpty())
            continue;
        ++titles;
        const QRect title = titleOf(*panel);
        QVERIFY2(title.height() >= panel->fontMetrics().ascent(), qPrintable(panel->title()));
        for (const auto *const widget :
             panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            if (!widget->isHidden())
                QVERIFY2(widget->y() > title.bottom(),
                         qPrintable(panel->title() + ": " + widget->objectName()));
    }
    QVERIFY2(titles >= 4, qPrintable(QString::number(titles)));
}

void MountPanelsTest::nothingOverlaps()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int compared = 0;
    for (const auto *const panel : shown.window.findChildren<QGroupBox *>()) {
        const auto widgets = panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const auto *const a : widgets)
            for (const auto *const b : widgets) {
                if (a == b || !a->isVisible() || !b->isVisible())
                    continue;
                ++compared;
                QVERIFY2(!a->geometry().intersects(b->geometry()),
                         qPrintable(a->objectName() + " and " + b->objectName()));
            }
    }
    QVERIFY2(compared > 100, qPrintable(QString::number(compared)));
}

void MountPanelsTest::theDialIsAboveItsAngle()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    const QRect dial = named<QWidget>(shown.window, "dial").geometry();
    const QRect angle = named<QWidget>(shown.window, "angle").geometry();
    QVERIFY(dial.bottom() < angle.top());
    QVERIFY(dial.left() < angle.right() && angle.left() < dial.right());
}

void MountPanelsTest::namesAreLeftOfWhatTheyName()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int names = 0;
    for (const auto *const label : shown.window.findChildren<QLabel *>()) {
        if (!label->buddy())
            continue;
        ++names;
        // The dial is above both.
        const QRect field = label->buddy()->objectName() == "dial"
                                ? named<QWidget>(shown.window, "angle").geometry()
                                : label->buddy()->geometry();
        QVERIFY2(label->geometry().right() < field.left(), qPrintable(label->text()));
        QVERIFY2(label->y() <= field.bottom() && field.top() <= label->geometry().bottom(),
                 qPrintable(label->text()));
    }
    QVERIFY2(names >= 4, qPrintable(QString::number(names)));
}

/// For a screen reader.
void MountPanelsTest::errorsAreNamed()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QCOMPARE(named<QLabel>(shown.window, "truth").accessibleName(),
             QStringLiteral("Remaining error"));
    QCOMPARE(named<QLabel>(shown.window, "angles").accessibleName(),
             QStringLiteral("Error of the star angles"));
}

QTEST_MAIN(MountPanelsTest)
#include "tst_mountpanels.moc"
