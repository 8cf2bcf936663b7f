// SPDX-License-Identifier: MIT
// Is there already a window for this sky file, and can it be raised?
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>

class QWidget;

namespace virtualmount
{
/// One window per sky file and user. A later start raises the existing window.
class OneInstance
{
public:
    explicit OneInstance(const QString &skyFile);

    /// Whether another process has the sky file's window or is about to open it. If so, that
    /// process has raised it, unless `raise` is false. After false, this process owns it, if any
    /// does.
    bool isOpenElsewhere(bool raise = true);
    /// From now on, later starts find this window.
    void announce(QWidget &window);

private:
    QString name;
    QLockFile lock; ///< held while the window is open; the system detects a dead holder
    QLocalServer server;
};
} // namespace virtualmount
