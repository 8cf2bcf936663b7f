// SPDX-License-Identifier: MIT
// Searches for the manual, starting from the folder of the executable.
#include "core/manual.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace
{
/// How many levels above an executable in a build tree the source tree may be.
constexpr int levelsUp = 6;

QStringList foldersToTry(const QString &applicationFolder)
{
    QStringList folders{QStringLiteral("../share/" QUORVANDEL_DOCUMENTS)};
    QString above;
    for (int level = 0; level < levelsUp; ++level) {
        above += QStringLiteral("../");
        folders.append(above + QStringLiteral("docs"));
    }
    const QDir start(applicationFolder);
    for (QString &folder : folders)
        folder = start.absoluteFilePath(folder);
    return folders;
}
} // namespace

QUrl manualUrl(const QString &languageCode)
{
    return manualUrl(languageCode, QCoreApplication::applicationDirPath());
}

QUrl manualUrl(const QString &languageCode, const QString &applicationFolder)
{
    const auto language = languageCode == QLatin1String("ZH") ? "zh" : "en";
    const QString page = QStringLiteral("manual/%1/").arg(language);
    for (const QString &folder : foldersToTry(applicationFolder)) {
        const QFileInfo file(folder + '/' + page + QStringLiteral("index.html"));
        if (file.isFile())
            return QUrl::fromLocalFile(file.canonicalFilePath());
    }
    return QUrl(QStringLiteral("https://quorvandel.example/") + page);
}
