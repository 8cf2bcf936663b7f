// SPDX-License-Identifier: MIT
// How does a sentence fit into the free space of the status bar?
#pragma once

#include <QLabel>

/// Requests no space of its own. A text that is too long ends in an ellipsis; the tooltip and
/// screen readers get the full text.
class NoticeLabel : public QLabel
{
public:
    explicit NoticeLabel(QWidget *parent);

    void showSentence(const QString &sentence);
    /// The visible part of the text.
    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();
};
