// SPDX-License-Identifier: MIT
// What is in a Qt Linguist catalogue?
#pragma once

#include <QFile>
#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QXmlStreamReader>

/// One text; the state is empty for a finished one.
struct Message {
    QString context, source, translation, state;
};

/// The messages of a .ts file, in its order; none if it cannot be read.
inline QList<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append({context, {}, {}, {}});
        } else if (xml.name() == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().state = xml.attributes().value("type").toString();
            messages.last().translation =
                xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    return messages;
}

/// Sorted.
inline QStringList placeholdersIn(const QString &text)
{
    static const QRegularExpression placeholder("%[0-9n]");
    QStringList found;
    auto match = placeholder.globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured());
    found.sort();
    return found;
}
