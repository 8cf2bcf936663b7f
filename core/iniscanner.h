// SPDX-License-Identifier: MIT
// Which keys and plain-text values does an INI file hold, even if it is large or damaged?
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

class QIODevice;

/// One entry of an INI file, split as QSettings does: quoted text may span several lines, and ';'
/// starts a comment.
struct IniEntry {
    enum Kind { Section, Key, Other };
    Kind kind = Other;
    QByteArray text;     ///< the entry as written in the file
    QString name;        ///< of a key: "GROUP/key"
    int valueStart = 0;  ///< of a key: its offset in `text`
    bool isUtf8 = false; ///< the file begins with the UTF-8 byte order mark

    /// The value of a key; several texts for a list.
    QStringList elements() const;
};

/// Reads one entry after another, in bounded memory. Values are decoded to plain text only:
/// QSettings would construct objects from values like "@Variant(...)", as large as a damaged text
/// claims.
class IniScanner
{
public:
    /// @param longestEntry bytes; a longer entry is skipped up to the end of its line
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
    QString section; ///< with its trailing '/', or empty
};

/// Whether QSettings would construct an object from the text: one of its serialised types.
bool isSerialisedObject(const QString &element);
