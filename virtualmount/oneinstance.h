// SPDX-License-Identifier: MIT
// Is there a window already for this sky file, and does it come to the front?
#pragma once

#include <QLocalServer>
#include <QString>

class QWidget;

/// One window for each sky file of a user. A later start raises the window that is there.
class OneInstance
{
public:
    explicit OneInstance(const QString &skyFile);

    /// Whether another process has the sky file's window. It has raised it then, unless `raise` is
    /// false.
    bool isOpenElsewhere(bool raise = true) const;
    /// From now on later starts find this window. False where that cannot be: they open their own.
    bool announce(QWidget &window);

private:
    QString name;
    QLocalServer server;
};
