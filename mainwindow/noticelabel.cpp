// SPDX-License-Identifier: MIT
// Draws as much of a sentence as fits.
#include "mainwindow/noticelabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace
{
/// Same height as the other read-outs, so that the status bar keeps its height.
constexpr int readOutHeight = 18;
} // namespace

NoticeLabel::NoticeLabel(QWidget *parent) : QLabel(parent)
{
    setFrameStyle(QFrame::NoFrame);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(readOutHeight);
}

void NoticeLabel::showSentence(const QString &sentence)
{
    if (text() == sentence)
        return;
    setText(sentence);
    updateToolTip();
}

QString NoticeLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QSize NoticeLabel::sizeHint() const
{
    return {0, readOutHeight};
}

void NoticeLabel::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())),
                          option.palette, isEnabled(), shownText(), foregroundRole());
}

void NoticeLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    updateToolTip();
}

void NoticeLabel::updateToolTip()
{
    setToolTip(shownText() == text() ? QString() : text());
}
