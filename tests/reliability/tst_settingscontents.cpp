// SPDX-License-Identifier: MIT
// What is read from a settings file with any content, and what is saved afterwards?
#include "core/settingsfile.h"
#include "tests/reliability/settingsrows.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace settingsrows;

class SettingsContentsTest : public QObject
{
    Q_OBJECT

private slots:
    void value_data();
    void value();
    void form_data();
    void form();
    void rubbishIsReadAlike_data();
    void rubbishIsReadAlike();
};

namespace
{
/// A settings file with that content.
class File
{
public:
    explicit File(const QByteArray &bytes)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the settings file cannot be written");
    }
    QString path() const { return folder.filePath("Quorvandel.ini"); }

private:
    QTemporaryDir folder;
};

/// What was read, as it is stored.
QStringList textsOf(const ::Settings &s)
{
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    return {s.styleName,
            s.languageCode,
            s.regionName,
            number(double(s.zoomFactor)),
            number(double(s.latitude)),
            number(double(s.longitude)),
            number(double(s.P)),
            number(double(s.T)),
            s.enabledCorrect ? "true" : "false",
            s.P_unit,
            number(s.axisX),
            number(s.axisY)};
}

void isReadAndSaved(const QByteArray &bytes, const QStringList &expected)
{
    const File file(bytes);
    ::Settings settings;
    settings.styleName = "not read"; // what is not in the file is as at first
    QVERIFY(readSettings(file.path(), settings));
    QCOMPARE(textsOf(settings), expected);
    writeSettings(file.path(), settings);
    QCOMPARE(stored(file.path()), expected);
}
} // namespace

void SettingsContentsTest::value_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    for (const QString &key : keys)
        for (const Value &value : valuesOf(key))
            QTest::addRow("%s: %s", qPrintable(key), value.name.constData())
                << fileWith(key, value.bytes) << with(key, value.read);
}

void SettingsContentsTest::value()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, expected);
    isReadAndSaved(bytes, expected);
}

void SettingsContentsTest::form_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("empty file") << QByteArray("") << defaults;
    QTest::newRow("no line end") << QByteArray("[STYLE]\nstyle=Mono") << with(keys[0], "Mono");
    QTest::newRow("group twice") << QByteArray("[ZOOM]\nfactor=0.5\n[STYLE]\nstyle=Mono\n"
                                               "[ZOOM]\nfactor=0.75\n[STYLE]\n")
                                 << [] {
                                        QStringList values = with(keys[3], "0.75");
                                        values[0] = "Mono";
                                        return values;
                                    }();
    QTest::newRow("key twice") << QByteArray("[ZOOM]\nfactor=0.5\nfactor=0.75\n")
                               << with(keys[3], "0.75");
    QTest::newRow("another case") << QByteArray("[style]\nSTYLE=Mono\n[Zoom]\nFactor=0.5\n")
                                  << defaults;
    QTest::newRow("CR LF") << QByteArray("[STYLE]\r\nstyle=Mono\r\n") << with(keys[0], "Mono");
    QTest::newRow("CR alone") << QByteArray("[STYLE]\rstyle=Mono\r") << with(keys[0], "Mono");
    QTest::newRow("byte order mark")
        << QByteArray("\xEF\xBB\xBF[STYLE]\nstyle=Mono\n") << with(keys[0], "Mono");
    const QString utf16 = "[STYLE]\nstyle=Mono\n";
    QTest::newRow("UTF-16") << "\xFF\xFE" +
                                   QByteArray(reinterpret_cast<const char *>(utf16.utf16()),
                                              utf16.size() * 2)
                            << defaults;
    QTest::newRow("group without its end")
        << QByteArray("[STYLE\nstyle=Mono\n") << with(keys[0], "Mono");
    QTest::newRow("keys without a group") << QByteArray("style=Mono\nfactor=0.5\n") << defaults;
    QTest::newRow("comments alone") << QByteArray("; nothing\n# here\n") << defaults;
    QTest::newRow("a million line ends") << QByteArray(1000000, '\n') << defaults;
    // A list that claims 2^28 or more entries, without any bytes for them.
    for (const char *const count : {"\\x10\\0\\0\\0", "\\x7f\\xff\\xff\\xff"})
        for (const char *const type : {"@Variant", "@DateTime"})
            QTest::addRow("%s with a list of %s entries", type, count)
                << fileWith(keys[0], QByteArray(type) + "(\\0\\0\\0\\x0b\\0" + count + ")")
                << defaults;
    // Written so that the bytes do not show it; the other keys are read.
    // The toolkit reads "@Variant" in an old format, without the byte before the count.
    const QByteArray list = "\\0\\0\\0\\x0b\\x7f\\xff\\xff\\xff)";
    const QByteArray dated = "\\0\\0\\0\\x0b\\0\\x7f\\xff\\xff\\xff)";
    for (const QByteArray &hidden :
         {"@Variant(" + list, "@\\126ariant(" + list, "@Variant\\x28" + list,
          "\"@Var\"\"iant(\"" + list, "\\x40Variant(" + list, "a, @Variant(" + list,
          "@Date\\x54ime(" + dated})
        QTest::addRow("between others: %s", hidden.constData())
            << "[ZOOM]\nfactor=0.5\n[MINE]\nlist=" + hidden + "\n[LANGUAGE]\nlang=" + hidden +
                   "\n[STYLE]\nstyle=Mono\n"
            << [&] {
                   QStringList values = with(keys[3], "0.5");
                   values[0] = "Mono";
                   if (hidden.startsWith("a, ")) // a list is not a text
                       values[1] = "";
                   return values;
               }();
    for (const char *const typed : {"@Size(1 2)", "@Rect(1 2 3 4)", "@Invalid()"})
        QTest::newRow(typed) << fileWith(keys[0], typed) << defaults;
    QTest::newRow("@ByteArray") << fileWith(keys[0], "@ByteArray(Mono)") << with(keys[0], "Mono");
    QTest::newRow("@@") << fileWith(keys[0], "@@Variant(x)") << with(keys[0], "@Variant(x)");
    QTest::newRow("@ alone") << fileWith(keys[0], "@home") << with(keys[0], "@home");
}

void SettingsContentsTest::form()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, expected);
    isReadAndSaved(bytes, expected);
}

void SettingsContentsTest::rubbishIsReadAlike_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const Rubbish &row : rubbish())
        QTest::newRow(row.name) << row.bytes;
}

void SettingsContentsTest::rubbishIsReadAlike()
{
    QFETCH(QByteArray, bytes);
    const File file(bytes);
    ::Settings first, second;
    QVERIFY(readSettings(file.path(), first));
    writeSettings(file.path(), first);
    QVERIFY(readSettings(file.path(), second));
    QCOMPARE(textsOf(second), textsOf(first));
}

QTEST_GUILESS_MAIN(SettingsContentsTest)
#include "tst_settingscontents.moc"
