// SPDX-License-Identifier: MIT
// Splits an INI file into sections and keys.
#include "core/iniscanner.h"

#include "core/initext.h"

#include <QIODevice>

namespace
{
constexpr int chunkSize = 1 << 16;
constexpr int nothing = -1;

bool isLineEnd(int c)
{
    return c == '\n' || c == '\r';
}

bool isSpecial(char c)
{
    return isLineEnd(c) || c == ';' || c == '"' || c == '=' || c == '\\';
}
} // namespace

IniScanner::IniScanner(QIODevice &file, int longestEntry) : device(file), longest(longestEntry)
{
    chunk = device.read(chunkSize);
    isUtf8 = chunk.startsWith("\xEF\xBB\xBF");
    position = isUtf8 ? 3 : 0;
}

int IniScanner::peek()
{
    if (position >= chunk.size()) {
        chunk = device.read(chunkSize);
        position = 0;
    }
    return position < chunk.size() ? uchar(chunk.at(position)) : nothing;
}

int IniScanner::take()
{
    const int c = peek();
    if (c != nothing)
        ++position;
    return c;
}

/// False at the end of the file.
bool IniScanner::skipSpaceAndComments()
{
    for (;;) {
        const int c = peek();
        if (c == nothing)
            return false;
        if (c == ';') {
            while (peek() != nothing && !isLineEnd(peek()))
                take();
        } else if (c == ' ' || c == '\t' || isLineEnd(c)) {
            take();
        } else {
            return true;
        }
    }
}

/// Takes what follows a backslash literally; an escaped line end may have two bytes.
void IniScanner::takeEscaped(QByteArray &text)
{
    const int c = take();
    if (c == nothing)
        return;
    text += char(c);
    if (isLineEnd(c) && isLineEnd(peek()) && peek() != c)
        text += char(take());
}

/// Takes bytes up to the next special one or the end of the chunk.
void IniScanner::takePlain(QByteArray &text)
{
    const int start = position;
    while (position < chunk.size() && !isSpecial(chunk.at(position)))
        ++position;
    text.append(chunk.constData() + start, position - start);
}

/// Reads the entry that begins here; `equals` is the position of its '=', or -1. False if the entry
/// is too long.
bool IniScanner::readEntry(QByteArray &text, int &equals)
{
    bool inQuotes = false, fits = true;
    text.clear();
    equals = -1;
    for (int c = peek(); c != nothing; c = peek()) {
        if (!inQuotes && (isLineEnd(c) || c == ';'))
            break;
        if (isSpecial(char(c)))
            text += char(take());
        else
            takePlain(text);
        if (c == '"')
            inQuotes = !inQuotes;
        if (c == '=' && !inQuotes && equals < 0)
            equals = text.size() - 1;
        if (c == '\\')
            takeEscaped(text);
        if (text.size() > longest) {
            fits = false;
            inQuotes = false; // an unclosed quotation mark would hide the rest of the file
            text.clear();
        }
    }
    return fits;
}

void IniScanner::takeSection(const QByteArray &text)
{
    const int end = text.indexOf(']');
    const QByteArray name = text.mid(1, end < 0 ? -1 : end - 1).trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0)
        section.clear();
    else if (name.compare("%general", Qt::CaseInsensitive) == 0)
        section = QString::fromLatin1(name.mid(1)) + '/';
    else
        section = decodedIniKey(name) + '/';
}

bool IniScanner::next(IniEntry &entry)
{
    int equals = -1;
    do {
        if (!skipSpaceAndComments())
            return false;
    } while (!readEntry(entry.text, equals));
    const QByteArray &text = entry.text;
    entry.kind = text.startsWith('[') ? IniEntry::Section
                 : equals >= 0        ? IniEntry::Key
                                      : IniEntry::Other;
    entry.name.clear();
    entry.isUtf8 = isUtf8;
    if (entry.kind == IniEntry::Section) {
        takeSection(text);
    } else if (entry.kind == IniEntry::Key) {
        int end = equals;
        while (end > 0 && (text.at(end - 1) == ' ' || text.at(end - 1) == '\t'))
            --end;
        entry.name = section + decodedIniKey(text.left(end));
        entry.valueStart = equals + 1;
    }
    return true;
}

QStringList IniEntry::elements() const
{
    return decodedIniValue(text.mid(valueStart), isUtf8);
}

bool isSerialisedObject(const QString &element)
{
    return element.startsWith(QLatin1String("@Variant(")) ||
           element.startsWith(QLatin1String("@DateTime("));
}
