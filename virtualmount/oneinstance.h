// SPDX-License-Identifier: MIT
// Is there a window already for this sky file, and does it come to the front?
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>

class QWidget;

/// One window for each sky file of a user. A later start raises the window that is there.
class OneInstance
{
public:
    explicit OneInstance(const QString &skyFile);

    /// Whether another process has the sky file's window, or is about to open it. It has raised it
    /// then, unless `raise` is false. After false this process has it, if anybody has.
    bool isOpenElsewhere(bool raise = true);
    /// From now on later starts find this window.
    void announce(QWidget &window);

private:
    QString name;
    QLockFile lock; ///< held while the window is open; the system notices where its holder has died
    QLocalServer server;
};
