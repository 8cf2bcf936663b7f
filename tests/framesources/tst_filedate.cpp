// SPDX-License-Identifier: MIT
// Are the dates of files found by little reading, wherever in the file they are?
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>
#include <opencv2/imgcodecs.hpp>

#include "framesources/filedate.h"
#include "framesources/filelist.h"
#include "pictures/fitsfile.h"

namespace
{
constexpr int pixels = 6000000; // bytes between a file's start and its date
constexpr double date = 1600000000.0;

template <typename Number> QByteArray little(Number value)
{
    value = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&value), sizeof value);
}
QByteArray big(quint32 value)
{
    value = qToBigEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&value), sizeof value);
}

/// A TIFF structure with DateTime and its offset from UTC, `gap` bytes after its head.
QByteArray tiff(int gap)
{
    const QByteArray text = "2020:09:13 12:26:40", offset = "+00:00";
    const quint32 directory = 8 + quint32(gap), texts = directory + 2 + 2 * 12 + 4;
    const auto entry = [](quint16 tag, const QByteArray &value, quint32 place) {
        return little(tag) + little(quint16(2)) + little(quint32(value.size() + 1)) + little(place);
    };
    return "II" + little(quint16(42)) + little(directory) + QByteArray(gap, '\0') +
           little(quint16(2)) + entry(0x0132, text, texts) +
           entry(0x9010, offset, texts + quint32(text.size()) + 1) + little(quint32(0)) + text +
           '\0' + offset + '\0';
}

QByteArray chunk(const char *name, const QByteArray &content)
{
    return big(quint32(content.size())) + name + content + "sum.";
}

QByteArray png(bool dateFirst)
{
    const QByteArray exif = chunk("eXIf", tiff(0)), data = chunk("IDAT", QByteArray(pixels, 'x'));
    return "\x89PNG\r\n\x1a\n" + (dateFirst ? exif + data : data + exif) + chunk("IEND", {});
}

QByteArray jpeg()
{
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff(0);
    return QByteArray("\xff\xd8\xff\xe1") + big(quint32(exif.size() + 2)).mid(2) + exif +
           QByteArray("\xff\xda\x00\x02", 4) + QByteArray(pixels, 'x');
}

qint64 bytesRead()
{
    QFile file("/proc/self/io");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readLine().mid(6).trimmed().toLongLong(); // "rchar: ..."
}
} // namespace

class FileDateTest : public QObject
{
    Q_OBJECT

private slots:
    void dateIsFound_data();
    void dateIsFound();
    void damagedFilesHaveNone_data();
    void damagedFilesHaveNone();
    void entriesBehindTheirDirectoryAreNone();
    void aCompleteHeaderIsReadOnce();
    void largeFolderIsPutInOrderQuickly();

private:
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return file.fileName();
    }
    const QTemporaryDir folder;
};

void FileDateTest::dateIsFound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("TIFF, before the pixels") << tiff(0) + QByteArray(pixels, 'x');
    QTest::newRow("TIFF, behind the pixels") << tiff(pixels);
    QTest::newRow("PNG, before the pixels") << png(true);
    QTest::newRow("PNG, behind the pixels") << png(false);
    QTest::newRow("JPEG") << jpeg();
}

void FileDateTest::dateIsFound()
{
    QFETCH(QByteArray, bytes);
    const QString path = write("picture", bytes);
    const qint64 before = bytesRead();
    const auto found = framesources::dateInFile(path.toStdString());
    const qint64 read = bytesRead() - before;
    QVERIFY(found);
    QCOMPARE(*found, date);
    QVERIFY2(read < 500000, qPrintable(QString::number(read)));
}

void FileDateTest::damagedFilesHaveNone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("I");
    QTest::newRow("TIFF without its directory") << tiff(pixels).left(pixels);
    QTest::newRow("PNG whose chunk is longer than the file") << png(false).left(pixels / 2);
    QTest::newRow("PNG of zeros") << "\x89PNG\r\n\x1a\n" + QByteArray(pixels, '\0');
    QTest::newRow("FITS cut in its header") << QByteArray("SIMPLE  =                    T");
}

void FileDateTest::damagedFilesHaveNone()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!framesources::dateInFile(write("damaged", bytes).toStdString()));
    QVERIFY(!framesources::dateInFile(folder.filePath("absent").toStdString()));
    QVERIFY(!framesources::dateInFile(folder.path().toStdString()));
}

void FileDateTest::entriesBehindTheirDirectoryAreNone()
{
    const auto dateOf = [this](quint16 entries) {
        const QByteArray bytes = tiff(0).replace(8, 2, little(entries));
        return framesources::dateInFile(write("directory", bytes).toStdString());
    };
    QCOMPARE(dateOf(2), std::optional(date));
    QVERIFY(!dateOf(0));
}

/// A picture without a date is not searched for one behind its header.
void FileDateTest::aCompleteHeaderIsReadOnce()
{
    QByteArray header;
    for (const char *card : {"SIMPLE  =                    T", "BITPIX  =                    8",
                             "NAXIS   =                    2", "NAXIS1  =                 3000",
                             "NAXIS2  =                 2000"})
        header += QByteArray(card).leftJustified(80);
    header = (header + "END").leftJustified(2880);
    const QString path = write("undated", header + QByteArray(pixels, '\0'));
    const qint64 before = bytesRead();
    QVERIFY(!framesources::dateInFile(path.toStdString()));
    const qint64 read = bytesRead() - before;
    QVERIFY2(read < 200000, qPrintable(QString::number(read)));
}

void FileDateTest::largeFolderIsPutInOrderQuickly()
{
    constexpr int count = 2000;
    const QTemporaryDir large;
    const cv::Mat grey(4, 4, CV_8UC1, cv::Scalar::all(9));
    for (int i = 0; i < count; ++i) { // in the reverse order of their names
        const QString path = large.filePath(QString("%1.fits").arg(i, 5, 10, QLatin1Char('0')));
        QCOMPARE(pictures::writeFits(path.toStdString(), grey, date - i, 0.0), std::string());
        QVERIFY(QFile::resize(path, pixels)); // as long as a camera's, without its room on the disk
    }
    QTest::qWait(400); // files younger than that may still be being written
    const qint64 before = bytesRead();
    QElapsedTimer timer;
    timer.start();
    auto files = framesources::matchingFiles(large.path().toStdString());
    for (framesources::ListedFile &file : files)
        setDate(file);
    sortByDate(files);
    const double megabytes = double(bytesRead() - before) * 1e-6;
    qInfo("%d files in %lld ms, %.0f MB read", count, timer.elapsed(), megabytes);
    QCOMPARE(int(files.size()), count);
    QCOMPARE(files.front().date, date - (count - 1));
    QVERIFY(files.front().path.find("01999.fits") != std::string::npos);
    QVERIFY2(megabytes < 200.0, qPrintable(QString::number(megabytes)));
}

QTEST_GUILESS_MAIN(FileDateTest)
#include "tst_filedate.moc"
