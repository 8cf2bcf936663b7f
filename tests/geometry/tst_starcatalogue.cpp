// SPDX-License-Identifier: MIT
// Is the right epoch chosen, and does every number of the star data reach its field?
#include "geometry/starcatalogue.h"

#include "resources/resources.h"
#include "tests/geometry/geometrytest.h"

#include <QDate>
#include <QSettings>
#include <QTemporaryDir>

using namespace geometrytest;

class StarCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void epoch_data();
    void epoch();
    void load();
    void golden();
    void fileForm_data();
    void fileForm();
    void missingKeys();
};

namespace
{
QString starData(const QString &letter)
{
    return QStringLiteral(PROJECT_SOURCE_DIR "/resources/starData/%1StarPosData.ini").arg(letter);
}
} // namespace

void StarCatalogueTest::epoch_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<int>("year");
    QTest::newRow("clock in 2010") << QDate(2010, 1, 1) << 2016;
    QTest::newRow("invalid date") << QDate() << 2016;
    QTest::newRow("far future") << QDate(9999, 12, 31) << 2024;
    QTest::newRow("2030") << QDate(2030, 1, 1) << 2024;
    for (int year = 2016; year <= 2023; ++year) {
        QTest::addRow("day before the boundary of %d", year) << QDate(year, 11, 22) << year;
        QTest::addRow("boundary of %d", year) << QDate(year, 11, 23) << year + 1;
    }
    QTest::newRow("a boundary day after the last") << QDate(2024, 11, 23) << 2024;
}

void StarCatalogueTest::epoch()
{
    QFETCH(QDate, today);
    QFETCH(int, year);
    QCOMPARE(catalogueEpoch(today), year);
    northCatalogue = southCatalogue = StarCatalogue();
    LogRecorder recorder;
    loadStarCatalogues(today);
    QCOMPARE(logOf(recorder),
             QStringList("debug: Loading star data at " + QString::number(year) + "0523"));
    QCOMPARE(northCatalogue.angleBAP, readStarCatalogue(starData("N"), year).angleBAP);
    QCOMPARE(southCatalogue.angleBAP, readStarCatalogue(starData("S"), year).angleBAP);
}

void StarCatalogueTest::load()
{
    northCatalogue.templatePoleX = 1.0;
    LogRecorder recorder;
    loadStarCatalogues(QDate(2016, 11, 22));
    const auto fields = [](const StarCatalogue &c) {
        return QVector<double>{c.angleABP,      c.angleBAP, c.angleDBP, c.templatePoleX,
                               c.templatePoleY, c.starBX,   c.starBY,   c.starAX,
                               c.starAY,        c.starDX,   c.starDY};
    };
    QCOMPARE(fields(northCatalogue),
             (QVector<double>{18.4713634052194, 12.4543449046107, 115.088198660843, 0, 0, 400, 400,
                              445, 218, 648, 495}));
    QCOMPARE(fields(southCatalogue),
             (QVector<double>{5.3729631099286, 12.4931201999016, 25.822029682887, 0, 0, 400, 337,
                              227, 405, 228, 563}));
}

void StarCatalogueTest::golden()
{
    const auto rows = goldenRows("templatepole");
    QCOMPARE(rows.size(), 18);
    for (const auto &[name, v] : rows) {
        const StarCatalogue c =
            readStarCatalogue(starData(name.startsWith('n') ? "N" : "S"), name.rightRef(4).toInt());
        QCOMPARE((QVector<double>{c.starAX, c.starAY, c.angleBAP, c.starBX, c.starBY, c.angleABP,
                                  c.starDX, c.starDY, c.angleDBP}),
                 v.mid(0, 9));
    }
}

void StarCatalogueTest::fileForm_data()
{
    QTest::addColumn<QString>("letter");
    QTest::newRow("north") << "N";
    QTest::newRow("south") << "S";
}

void StarCatalogueTest::fileForm()
{
    QFETCH(QString, letter);
    QFile file(starData(letter));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text.count("\r\n"), 60);
    QCOMPARE(text.count('\n'), 60);
    QVERIFY(text.endsWith("\r\n") && !text.contains('['));
    QFile bundled(QStringLiteral(":/starData/%1StarPosData.ini").arg(letter));
    QVERIFY(bundled.open(QIODevice::ReadOnly));
    QCOMPARE(bundled.readAll(), text);

    const QSettings settings(file.fileName(), QSettings::IniFormat);
    QCOMPARE(settings.allKeys().size(), 60);
    for (int year = 2016; year <= 2024; ++year) {
        for (const char *triangle : {"BAP ABP BPA", "BDP DBP BPD"}) {
            double sum = 0.0;
            for (const QString &angle : QString(triangle).split(' '))
                sum +=
                    settings.value(angle + "_" + QString::number(year) + "0523").toDouble() / 1e14;
            COMPARE_WITHIN(sum, 180.0, 1e-7);
        }
    }
}

void StarCatalogueTest::missingKeys()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("stars.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("A_X_Mask=12\r\nBAP_20180523=100000000000000\r\nB_X_Mask=north\r\n");
    file.close();
    LogRecorder recorder;
    const StarCatalogue c = readStarCatalogue(file.fileName(), 2018);
    QCOMPARE(c.starAX, 12.0);
    QCOMPARE(c.angleBAP, 1.0);
    QCOMPARE(c.starBX, 0.0);
    QCOMPARE(c.starDY, 0.0);
    QCOMPARE(c.angleDBP, 0.0);
    QCOMPARE(readStarCatalogue(folder.filePath("absent.ini"), 2018).starAX, 0.0);
    QCOMPARE(logOf(recorder), QStringList());
}

QTEST_GUILESS_MAIN(StarCatalogueTest)
#include "tst_starcatalogue.moc"
