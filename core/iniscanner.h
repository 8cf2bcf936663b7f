// SPDX-License-Identifier: MIT
// Which keys does an INI file hold, as plain texts, however large or damaged it is?
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

class QIODevice;

/// One entry of an INI file, as the toolkit's own reader divides it: what stands between quotation
/// marks may go over several lines, what follows ';' is a comment.
struct IniEntry {
    enum Kind { Section, Key, Other };
    Kind kind = Other;
    QByteArray text;     ///< the entry as it stands in the file
    QString name;        ///< of a key: "GROUP/key"
    int valueStart = 0;  ///< of a key: in the text
    bool isUtf8 = false; ///< the file begins with that encoding's byte order mark

    /// The value of a key: more than one text for a list.
    QStringList elements() const;
};

/// Reads one entry after the other, in bounded memory. Values are decoded and left at that: the
/// toolkit's reader makes objects of those like "@Variant(...)", as large as a damaged text says.
class IniScanner
{
public:
    /// \param longestEntry bytes; what is longer is passed over, to the end of its line
    IniScanner(QIODevice &file, int longestEntry);
    /// The next entry; false at the end.
    bool next(IniEntry &entry);

private:
    int peek();
    int take();
    bool skipSpaceAndComments();
    void takeEscaped(QByteArray &text);
    void takePlain(QByteArray &text);
    bool readEntry(QByteArray &text, int &equals);
    void takeSection(const QByteArray &text);

    QIODevice &device;
    const int longest;
    QByteArray chunk;
    int position = 0;
    bool isUtf8 = false;
    QString section; ///< with its '/', or empty
};

/// Whether the toolkit's reader would make an object of what a text says: its serialised types.
bool isSerialisedObject(const QString &element);
