// SPDX-License-Identifier: MIT
// A local socket, named for the user and the sky file; each start asks there first.
#include "virtualmount/oneinstance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalSocket>
#include <QWidget>
#include <unistd.h>

namespace
{
constexpr int patience = 1000; // milliseconds, for an answer
constexpr char raiseRequest[] = "raise\n";
constexpr char findRequest[] = "find\n";
constexpr char answer[] = "here\n";

/// The file need not be there, but its folder usually is: by whichever links it is reached.
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
} // namespace

OneInstance::OneInstance(const QString &skyFile)
{
    const QByteArray place = placeOf(skyFile).toUtf8();
    const auto digest = QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex().left(16);
    name = QStringLiteral("quorvandel-mount-%1-%2").arg(getuid()).arg(QLatin1String(digest));
    server.setSocketOptions(QLocalServer::UserAccessOption);
}

bool OneInstance::isOpenElsewhere(bool raise) const
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(raise ? raiseRequest : findRequest);
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(patience))
            return false;
    return socket.readLine() == answer;
}

bool OneInstance::announce(QWidget &window)
{
    QObject::connect(&server, &QLocalServer::newConnection, &window, [this, &window] {
        while (QLocalSocket *const socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, &window,
                             [socket, &window] { answerTo(*socket, window); });
            answerTo(*socket, window); // what came with the connection
        }
    });
    QLocalServer::removeServer(name); // what a process that was killed has left
    return server.listen(name);
}
