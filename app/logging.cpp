// SPDX-License-Identifier: MIT
// Names the log file of a run and writes its lines.
#include "app/logging.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>
#include <QtDebug>
#include <array>
#include <cstdlib>

QString logFilePath;

namespace
{
/// In the order of QtMsgType: debug, warning, critical, fatal, info.
constexpr std::array<const char *, 5> levelTemplates{
    "\tDebug\t %1", "\tWarning\t %1", "\tCritical\t %1", "\tFatal\t %1", "\tInfo\t %1"};
} // namespace

void prepareLogFile(const QDateTime &start)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString programFolder = QDir::toNativeSeparators(documents + "/Quorvandel");
    const QString logFolder = QDir::toNativeSeparators(programFolder + "/Log");
    const QDir directory;
    for (const QString &folder : {programFolder, logFolder})
        if (!directory.exists(folder))
            directory.mkdir(folder);
    logFilePath = QDir::toNativeSeparators(
        logFolder + '/' + start.toString(QStringLiteral("yyyy-MM-dd.hh-mm-ss")) + ".log");
}

QString levelText(QtMsgType type, const QString &message)
{
    const auto index = static_cast<std::size_t>(type);
    if (index >= levelTemplates.size())
        return QString();
    return QString(levelTemplates[index]).arg(message);
}

void logMessageHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const QString text = levelText(type, QString::fromLocal8Bit(message.toLocal8Bit()));
    if (type == QtFatalMsg)
        std::abort();
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    // Unbuffered: a line of any length is one appending write, which no other thread can split.
    QFile file(logFilePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text |
                   QIODevice::Unbuffered)) {
        qDebug("Failed to open log file.");
        return;
    }
    if (!text.isEmpty()) {
        QByteArray line;
        QTextStream(&line) << time << text << Qt::endl;
        file.write(line);
    }
    file.close();
}
