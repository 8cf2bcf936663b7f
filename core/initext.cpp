// SPDX-License-Identifier: MIT
// Decodes keys and values of an INI file.
#include "core/initext.h"

#include <cstring>

namespace
{
bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

int digitOf(char c, int base)
{
    const int value = c >= '0' && c <= '9'   ? c - '0'
                      : c >= 'a' && c <= 'f' ? c - 'a' + 10
                      : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                             : base;
    return value < base ? value : -1;
}

/// Parses a value, character by character.
class ValueDecoder
{
public:
    ValueDecoder(const QByteArray &value, bool utf8) : text(value), isUtf8(utf8) {}

    QStringList decode()
    {
        skipBlanks();
        while (at < text.size()) {
            const char c = text.at(at);
            if (c == '\\') {
                takeEscape();
                firstChopped = element.size();
            } else if (c == '"')
                takeMark();
            else if (c == ',' && !inQuotes)
                endElement();
            else
                takePlain();
        }
        chop();
        elements.append(element);
        return elements;
    }

private:
    void skipBlanks()
    {
        while (at < text.size() && isBlank(text.at(at)))
            ++at;
    }
    /// Removes the blanks at an element's end, except those before an escape and those of an
    /// element with quotation marks.
    void chop()
    {
        while (!wasQuoted && element.size() > firstChopped &&
               (element.endsWith(' ') || element.endsWith('\t')))
            element.chop(1);
    }
    void endElement()
    {
        chop();
        elements.append(element);
        element.clear();
        firstChopped = 0;
        wasQuoted = false;
        ++at;
        skipBlanks();
    }
    void takeMark()
    {
        ++at;
        wasQuoted = true;
        inQuotes = !inQuotes;
        if (!inQuotes)
            skipBlanks();
    }
    void takePlain()
    {
        const int start = at;
        const auto isPlain = [](char c) { return c != '\\' && c != '"' && c != ','; };
        for (++at; at < text.size() && isPlain(text.at(at));)
            ++at;
        const QByteArray plain = text.mid(start, at - start);
        element += isUtf8 ? QString::fromUtf8(plain) : QString::fromLatin1(plain);
    }
    void takeNumber(int base)
    {
        unsigned code = 0;
        for (int digit = 0; at < text.size() && (digit = digitOf(text.at(at), base)) >= 0; ++at)
            code = code * unsigned(base) + unsigned(digit);
        element += QChar(ushort(code & 0xFFFF));
    }
    void takeEscape();

    const QByteArray &text;
    const bool isUtf8;
    int at = 0;
    bool inQuotes = false, wasQuoted = false;
    int firstChopped = 0; ///< where the removable blanks of `element` may begin
    QString element;
    QStringList elements;
};

void ValueDecoder::takeEscape()
{
    static constexpr char letters[] = "abfnrtv\"?'\\";
    static constexpr char meanings[] = "\a\b\f\n\r\t\v\"?'\\";
    if (++at >= text.size())
        return;
    const char c = text.at(at++);
    if (const char *const letter = c ? std::strchr(letters, c) : nullptr) {
        element += QLatin1Char(meanings[letter - letters]);
    } else if (c == 'x') {
        if (at < text.size() && digitOf(text.at(at), 16) >= 0)
            takeNumber(16);
    } else if (digitOf(c, 8) >= 0) {
        --at;
        takeNumber(8);
    } else if ((c == '\n' || c == '\r') && at < text.size()) {
        const char second = text.at(at);
        at += (second == '\n' || second == '\r') && second != c ? 1 : 0;
    }
}
} // namespace

QString decodedIniKey(const QByteArray &text)
{
    if (!text.contains('%') && !text.contains('\\'))
        return QString::fromLatin1(text);
    QString key;
    for (int at = 0; at < text.size(); ++at) {
        const char c = text.at(at);
        key += QLatin1Char(c == '\\' ? '/' : c);
        if (c != '%' || at + 1 >= text.size())
            continue;
        const int first = text.at(at + 1) == 'U' ? at + 2 : at + 1;
        const int digits = text.at(at + 1) == 'U' ? 4 : 2;
        bool isNumber = false;
        const int code = text.mid(first, digits).toInt(&isNumber, 16);
        if (!isNumber || first + digits > text.size())
            continue;
        key.back() = QChar(ushort(code));
        at = first + digits - 1;
    }
    return key;
}

QStringList decodedIniValue(const QByteArray &text, bool isUtf8)
{
    return ValueDecoder(text, isUtf8).decode();
}
