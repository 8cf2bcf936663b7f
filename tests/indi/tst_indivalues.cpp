// SPDX-License-Identifier: MIT
// What do a server's messages say, as plain values?
#include <QtTest>
#include <libindi/lilxml.h>
#include <memory>

#include "framesources/indivalues.h"

using framesources::EncodedBlob;
using framesources::IndiValues;

namespace
{
struct XmlDeleter {
    void operator()(XMLEle *message) const { delXMLEle(message); }
    void operator()(LilXML *reader) const { delLilXML(reader); }
};
using Message = std::unique_ptr<XMLEle, XmlDeleter>;

Message messageOf(const std::string &text)
{
    const std::unique_ptr<LilXML, XmlDeleter> reader(newLilXML());
    char fault[2048] = "";
    for (const char c : text)
        if (XMLEle *const whole = readXMLEle(reader.get(), c, fault))
            return Message(whole);
    qFatal("no message: %s", fault);
}

QByteArray compressed(const QByteArray &bytes)
{
    return qCompress(bytes).mid(4); // without the length that Qt puts before it
}

const QByteArray picture = "0123456789abcdefghij";
} // namespace

class IndiValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data();
    void numbers();
    void pictures_data();
    void pictures();
    void saidSizeOfAPicture_data();
    void saidSizeOfAPicture();
};

void IndiValuesTest::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    const double none = std::nan("");
    QTest::newRow("whole") << QByteArray("12") << 12.0;
    QTest::newRow("fraction") << QByteArray("-12.5") << -12.5;
    QTest::newRow("exponent") << QByteArray("+1.25e3") << 1250.0;
    QTest::newRow("blanks about it") << QByteArray(" \n\t7 \n") << 7.0;
    QTest::newRow("minutes") << QByteArray("10:30") << 10.5;
    QTest::newRow("seconds") << QByteArray("10:30:36") << 10.51;
    QTest::newRow("semicolons") << QByteArray("10;30;36") << 10.51;
    QTest::newRow("blanks inside") << QByteArray("10 30 36") << 10.51;
    QTest::newRow("negative, below a degree") << QByteArray("-0:30:36") << -0.51;
    QTest::newRow("more than three parts") << QByteArray("1:30:0:59") << 1.5;
    QTest::newRow("text behind it") << QByteArray("5 metres") << 5.0;
    QTest::newRow("empty") << QByteArray() << none;
    QTest::newRow("a sign alone") << QByteArray("-") << none;
    QTest::newRow("text") << QByteArray("five") << none;
    QTest::newRow("not a number") << QByteArray("nan") << none;
    QTest::newRow("infinite") << QByteArray("-inf") << none;
    QTest::newRow("too great") << QByteArray("1e999") << none;
}

void IndiValuesTest::numbers()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    const std::optional<double> found =
        framesources::parseNumber(std::string_view(text.constData(), std::size_t(text.size())));
    QCOMPARE(found.has_value(), !std::isnan(value));
    if (found)
        QVERIFY2(std::abs(*found - value) < 1e-12, qPrintable(QString::number(*found, 'g', 17)));
}

void IndiValuesTest::pictures_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("shortFormat");
    const auto row = [](const char *name, const QByteArray &text, const char *format, int size,
                        const QByteArray &bytes, const char *shortFormat) {
        QTest::newRow(name) << text << QByteArray(format) << size << bytes
                            << QByteArray(shortFormat);
    };
    const QByteArray text = picture.toBase64();
    row("as said", text, ".fits", picture.size(), picture, ".fits");
    row("no size said", text, ".fits", 0, picture, ".fits");
    row("a negative size", text, ".fits", -7, picture, ".fits");
    row("shorter, says the sender", text, ".fits", 5, picture.left(5), ".fits");
    row("longer, says the sender", text, ".fits", 500, picture, ".fits");
    row("lines", text.left(8) + "\n" + text.mid(8, 8) + "\r\n\t " + text.mid(16), ".fits", 0,
        picture, ".fits");
    row("cut", text.left(10), ".fits", 0, picture.left(7), ".fits");
    row("other signs", text.left(8) + "*" + text.mid(8), ".fits", 0, picture.left(6), ".fits");
    for (int length = 0; length < 4; ++length) {
        const QByteArray bytes = picture.left(length);
        const auto options = QByteArray::Base64Encoding | QByteArray::OmitTrailingEquals;
        row(qPrintable(QString("%1 bytes, padded").arg(length)), bytes.toBase64(), ".fits", 0,
            bytes, ".fits");
        row(qPrintable(QString("%1 bytes, not padded").arg(length)), bytes.toBase64(options),
            ".fits", 0, bytes, ".fits");
    }
    row("less than a byte", "Q", ".fits", 0, "", ".fits");
    row("compressed", compressed(picture).toBase64(), ".fits.z", picture.size(), picture, ".fits");
    row("compressed, shorter", compressed(picture).toBase64(), ".stream.z", 9, picture.left(9),
        ".stream");
    row("not compressed, though it says so", text, ".fits.z", 0, "", ".fits");
}

void IndiValuesTest::pictures()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, format);
    QFETCH(int, size);
    const framesources::IndiBlob found =
        framesources::decoded({text.toStdString(), format.toStdString(), size});
    QTEST(QByteArray::fromStdString(found.bytes), "bytes");
    QTEST(QByteArray::fromStdString(found.format), "shortFormat");
}

void IndiValuesTest::saidSizeOfAPicture_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<int>("size");
    QTest::newRow("said") << QByteArray("5") << 5;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("none") << QByteArray() << 0;
    QTest::newRow("no number") << QByteArray("x") << 0;
    QTest::newRow("too great") << QByteArray("99999999999999999999999") << 0;
}

void IndiValuesTest::saidSizeOfAPicture()
{
    QFETCH(QByteArray, said);
    QFETCH(int, size);
    IndiValues values("Camera");
    std::vector<std::string> blobs;
    values.take(messageOf("<defBLOBVector device='Camera' name='CCD1' state='Ok'>"
                          "<defBLOB name='CCD1'/></defBLOBVector>")
                    .get(),
                blobs);
    blobs = {picture.toBase64().toStdString()};
    const QByteArray message = "<setBLOBVector device='Camera' name='CCD1'><oneBLOB name='CCD1' "
                               "format='.fits' size='" +
                               said + "'/></setBLOBVector>";
    values.take(messageOf(message.toStdString()).get(), blobs);
    QVERIFY(values.blob.has_value());
    QCOMPARE(values.blob->size, long(size));
    QCOMPARE(values.blob->format, std::string(".fits"));
    QCOMPARE(QByteArray::fromStdString(values.blob->text), picture.toBase64());
}

QTEST_GUILESS_MAIN(IndiValuesTest)
#include "tst_indivalues.moc"
