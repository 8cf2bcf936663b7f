// SPDX-License-Identifier: MIT
// How does a sentence stand in the room that the status bar leaves it?
#pragma once

#include <QLabel>

/// Takes no room of its own: a text that is too long for it ends in an ellipsis and is whole in the
/// tooltip and for screen readers.
class NoticeLabel : public QLabel
{
public:
    explicit NoticeLabel(QWidget *parent);

    void showSentence(const QString &sentence);
    /// What of the text is to be seen.
    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();
};
