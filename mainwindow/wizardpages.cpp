// SPDX-License-Identifier: MIT
// How are the instruction pages built, labelled and placed over the picture?
#include "mainwindow/mainwindow.h"

#include "mainwindow/buttonrow.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <utility>

namespace
{
/// Distance of the overlays from the edges of the image area and from each other, pixels.
constexpr int gap = 6;
/// Wider than this a tip is harder to read than tall.
constexpr int maxPageWidth = 760;

/// Pages without tabs. No key switches pages; `roomChanged` is called after every change of the
/// available space.
class Pages : public QTabWidget
{
public:
    Pages(QAbstractScrollArea &area, std::function<void()> roomChanged)
        : QTabWidget(&area), place(std::move(roomChanged))
    {
        tabBar()->hide();
        tabBar()->setFocusPolicy(Qt::NoFocus); // otherwise Tab would stop at the hidden tab bar
        area.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            place();
        return QTabWidget::eventFilter(watched, event);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override { event->ignore(); } // Ctrl+Tab among others

private:
    std::function<void()> place;
};

template <typename Widget> Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(name);
    return widget;
}
} // namespace

void MainWindow::buildWizardPages()
{
    tipTabs = named(new Pages(*ui->scrollArea_showImg, [this] { placeImageOverlays(); }),
                    "tabWidget_tipMsg");
    for (int step = 1; step <= wizardStepCount; ++step)
        buildWizardPage(wizardPage(step));
    applyPageTexts();
}

void MainWindow::buildWizardPage(const WizardPage &page)
{
    auto *const widget = new QWidget;
    if (page.name)
        widget->setObjectName(page.name);
    auto *const rows = new QVBoxLayout(widget);
    auto *const tip = named(new QLabel(widget), page.tipName);
    tip->setWordWrap(true);
    rows->addWidget(tip, 1);
    auto *const row = new ButtonRow;
    if (page.askName)
        row->addWidget(named(new QLabel(widget), page.askName));
    for (const PageButton *const button : {&page.back, &page.forward}) {
        if (!button->name)
            continue;
        auto *const pushButton = named(new PageButtonWidget(buttonPress, widget), button->name);
        connect(pushButton, SIGNAL(clicked(bool)), this, button->slot);
        row->addWidget(pushButton);
    }
    if (row->count() > 0)
        rows->addLayout(row);
    else
        delete row;
    widget->installEventFilter(this);
    tipTabs->addTab(widget, QString());
}

void MainWindow::applyPageTexts()
{
    for (int step = 1; step <= wizardStepCount; ++step) {
        const WizardPage &page = wizardPage(step);
        tipTabs->findChild<QLabel *>(page.tipName)->setText(tr(page.northTip));
        if (page.askName)
            tipTabs->findChild<QLabel *>(page.askName)->setText(tr(page.ask));
        for (const PageButton *const button : {&page.back, &page.forward})
            if (button->name)
                tipTabs->findChild<QPushButton *>(button->name)->setText(tr(button->text));
    }
}

void MainWindow::applyRegionTexts()
{
    for (int step = 1; step <= wizardStepCount; ++step) {
        const WizardPage &page = wizardPage(step);
        if (const char *const tip = regionTip(page, regionName))
            tipTabs->findChild<QLabel *>(page.tipName)->setText(tr(tip));
    }
}

/// Puts the page over the top of the picture and the arrow below it. The page is right of the
/// magnifier, or over it if the widest of the question and its buttons does not fit, and no higher
/// than its text needs.
void MainWindow::placeImageOverlays()
{
    const QRect area = ui->scrollArea_showImg->viewport()->geometry();
    QWidget *const page = tipTabs->currentWidget();
    const int frame = std::max(tipTabs->height() - page->height(), 0);
    page->layout()->activate();
    const int right = area.right() - gap;
    const int narrowest = page->minimumSizeHint().width() + frame;
    const int left =
        std::max(std::min(magnifier->geometry().right() + gap, right - narrowest), gap);
    const int width = std::clamp(right - left, 0, maxPageWidth);
    const int height = std::max(page->layout()->totalHeightForWidth(width - frame), 0) + frame;
    tipTabs->setGeometry(left, gap, width, std::max(height, page->minimumSizeHint().height()));
    directionArrow->adjustSize();
    directionArrow->move(std::max(left + (width - directionArrow->width()) / 2, 0),
                         tipTabs->geometry().bottom() + gap);
}
