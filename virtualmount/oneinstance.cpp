// SPDX-License-Identifier: MIT
// A lock and a local socket, named after the user and the sky file; each start connects there
// first.
#include "virtualmount/oneinstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <QWidget>
#include <unistd.h>

namespace virtualmount
{
namespace
{
/// Milliseconds to wait for an answer from a process that is starting.
constexpr int startTimeout = 5000;
constexpr char raiseRequest[] = "raise\n";
constexpr char findRequest[] = "find\n";
constexpr char answer[] = "here\n";

/// The file may be missing, but its folder usually exists; links to it are resolved.
QString placeOf(const QString &skyFile)
{
    const QFileInfo file(skyFile);
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + '/' + file.fileName();
}

void bringForward(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void answerTo(QLocalSocket &socket, QWidget &window)
{
    if (!socket.canReadLine())
        return;
    if (socket.readLine() == raiseRequest)
        bringForward(window);
    socket.write(answer);
    socket.flush();
    socket.disconnectFromServer();
}

QString nameFor(const QString &skyFile)
{
    const QByteArray place = placeOf(skyFile).toUtf8();
    const auto digest = QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex().left(16);
    return QStringLiteral("quorvandel-mount-%1-%2").arg(getuid()).arg(QLatin1String(digest));
}

bool answers(const QString &name, const char *request)
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(startTimeout))
        return false;
    socket.write(request);
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(startTimeout))
            return false;
    return socket.readLine() == answer;
}
} // namespace

OneInstance::OneInstance(const QString &skyFile)
    : name(nameFor(skyFile)), lock(QDir::temp().filePath(name + QStringLiteral(".lock")))
{
    lock.setStaleLockTime(0);
    server.setSocketOptions(QLocalServer::UserAccessOption);
}

bool OneInstance::isOpenElsewhere(bool raise)
{
    for (const QDeadlineTimer deadline(startTimeout); !deadline.hasExpired(); QThread::msleep(50)) {
        if (lock.tryLock() || lock.error() != QLockFile::LockFailedError)
            return false;
        if (answers(name, raise ? raiseRequest : findRequest))
            return true;
    }
    return false;
}

void OneInstance::announce(QWidget &window)
{
    if (!lock.isLocked())
        return;
    QObject::connect(&server, &QLocalServer::newConnection, &window, [this, &window] {
        while (QLocalSocket *const socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, &window,
                             [socket, &window] { answerTo(*socket, window); });
            answerTo(*socket, window); // requests that arrived with the connection
        }
    });
    QLocalServer::removeServer(name); // left over from a process that was killed
    server.listen(name);
}
} // namespace virtualmount
