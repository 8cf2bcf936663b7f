// SPDX-License-Identifier: MIT
// Is every bundled file present in the right form, and do the template masks show the real sky?
#include "resources/resources.h"
#include "tests/support/logrecorder.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>

#include <cmath>

namespace
{
constexpr double pi = 3.141592653589793;
constexpr int directions = 24;

struct Ring {
    bool found = false;
    double x = 0.0; ///< centre, pixels
    double y = 0.0;
    double radius = 0.0; ///< of the innermost ring, pixels
};

/// Opaque light at a pixel, 0 to 1: the dark rims of the rings give 0, the rings about 0.6 to 1.
double lightAt(const QImage &image, int x, int y)
{
    if (!image.valid(x, y)) {
        return 0.0;
    }
    const QColor colour = image.pixelColor(x, y);
    return colour.alphaF() * colour.lightnessF();
}

double lightBetween(const QImage &image, double x, double y)
{
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const double u = x - left;
    const double v = y - top;
    return (1 - v) * ((1 - u) * lightAt(image, left, top) + u * lightAt(image, left + 1, top)) +
           v * ((1 - u) * lightAt(image, left, top + 1) + u * lightAt(image, left + 1, top + 1));
}

/// Distance from (x, y) to the first light in one direction, to a tenth of a pixel; negative if
/// there is none within `limit` pixels.
double firstLight(const QImage &image, double x, double y, double angle, double limit)
{
    for (double start = 0.0; start < limit; start += 0.1) {
        if (lightBetween(image, x + start * std::cos(angle), y + start * std::sin(angle)) < 0.3) {
            continue;
        }
        double sum = 0.0;
        double weighted = 0.0;
        for (double r = start - 0.5; r < start + 2.5; r += 0.1) {
            const double light =
                lightBetween(image, x + r * std::cos(angle), y + r * std::sin(angle));
            sum += light;
            weighted += light * r;
        }
        return weighted / sum;
    }
    return -1.0;
}

/// The ring around (x, y): a circle whose centre is off by d has radius R + d . u in direction u.
Ring ringAround(const QImage &image, double x, double y)
{
    Ring ring{true, x, y, 0.0};
    for (int k = 0; k < directions; ++k) {
        const double angle = 2.0 * pi * k / directions;
        const double r = firstLight(image, x, y, angle, 15.0);
        if (r < 0.0) {
            return Ring{};
        }
        ring.radius += r / directions;
        ring.x += 2.0 * r * std::cos(angle) / directions;
        ring.y += 2.0 * r * std::sin(angle) / directions;
    }
    return ring;
}

QImage mask(const QString &hemisphere)
{
    return QImage(QStringLiteral(":/images/%1_mask.png").arg(hemisphere))
        .convertToFormat(QImage::Format_ARGB32);
}

QString styleSheet()
{
    QFile file(QStringLiteral(":/qss/default.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void images_data();
    void images();
    void icon();
    void starData_data();
    void starData();
    void sound();
    void englishCatalogue();
    void masks_data();
    void masks();
    void templatePixels_data();
    void templatePixels();
    void ringsGrowWithBrightness();
    void styleSheetParses();
    void styleSheetImagesExist();
    void styleSheetNamesEveryKind_data();
    void styleSheetNamesEveryKind();
};

void ResourcesTest::initTestCase()
{
    initialiseResources();
    initialiseResources(); // a second call is harmless
}

void ResourcesTest::images_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    const struct {
        QSize size;
        QStringList names;
    } table[] = {
        {{24, 24}, {"pole", "center", "pole_color", "center_color"}},
        {{25, 25}, {"lightoff_mono", "lighton_mono", "lightoff_color", "lighton_color"}},
        {{16, 16}, {"collapse", "expand"}},
        {{48, 48},
         {"message-critical", "message-information", "message-question", "message-warning"}},
        {{238, 171}, {"direction"}},
        {{237, 50}, {"logo"}},
        {{262, 80}, {"veldix"}},
        {{800, 800}, {"north_mask"}},
        {{800, 674}, {"south_mask"}},
        {{12, 12},
         {"up-arrow", "up-arrow_hover", "down-arrow", "down-arrow_hover", "left-arrow",
          "left-arrow_hover", "right-arrow", "right-arrow_hover", "down-arrow-combox",
          "down-arrow-hover-combox"}},
        {{10, 10},
         {"left-arrow-spinbox", "left-arrow-hover-spinbox", "right-arrow-spinbox",
          "right-arrow-hover-spinbox"}},
    };
    for (const auto &group : table) {
        for (const QString &name : group.names) {
            QTest::newRow(qPrintable(name)) << name << group.size;
        }
    }
}

void ResourcesTest::images()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage image(QStringLiteral(":/images/%1.png").arg(name));
    QCOMPARE(image.size(), size);
    QVERIFY2(image.hasAlphaChannel(), "the background must stay transparent");
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    bool drawn = false;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            drawn = drawn || image.pixelColor(x, y).alpha() > 200;
        }
    }
    QVERIFY2(drawn, "the picture is empty");
}

void ResourcesTest::icon()
{
    QVERIFY(QFile::exists(QStringLiteral(":/images/Quorvandel.ico")));
    QSet<int> widths;
    for (const QSize &size : QIcon(QStringLiteral(":/images/Quorvandel.ico")).availableSizes()) {
        widths.insert(size.width());
    }
    // A larger one would be converted by the toolkit's threads (core/poolthread.h).
    QCOMPARE(widths, (QSet<int>{16, 24, 32, 48, 64, 128}));
}

void ResourcesTest::starData_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("north") << ":/starData/NStarPosData.ini";
    QTest::newRow("south") << ":/starData/SStarPosData.ini";
}

void ResourcesTest::starData()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("\r\n"), 60);
}

/// An MPEG audio file, with or without a tag, that does not bloat the program.
void ResourcesTest::sound()
{
    QFile file(QStringLiteral(":/audio/audio.mp3"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY2(bytes.size() > 10000, qPrintable(QString::number(bytes.size())));
    QVERIFY2(bytes.size() < 2 * 1024 * 1024, qPrintable(QString::number(bytes.size())));
    const bool hasTag = bytes.startsWith("ID3");
    const bool isFrame = quint8(bytes[0]) == 0xFF && (quint8(bytes[1]) & 0xE0) == 0xE0;
    QVERIFY(hasTag || isFrame);
}

void ResourcesTest::englishCatalogue()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/languages/lan_en_us.qm"), QString(), QString(),
                            QString()));
    QCOMPARE(translator.translate("MainWindow", "Confirm Polaris/\u03c3 Oct"),
             QStringLiteral("Confirm Polaris/\u03c3 Oct"));
    QVERIFY(translator.translate("MainWindow", "no such text").isNull());
}

// Generated by golden_masks.py beside this file.
void ResourcesTest::masks_data()
{
    QTest::addColumn<QString>("hemisphere");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    const struct {
        const char *hemisphere, *star;
        double x, y;
    } table[] = {
        {"north", "A", 445.5, 218.0},         {"north", "D", 648.0, 494.7},
        {"north", "HD 5848", 607.7, 697.7},   {"north", "HD 107192", 198.2, 117.2},
        {"north", "HD 5914", 432.4, 421.0},   {"north", "HD 221142", 737.8, 550.1},
        {"south", "A", 227.1, 405.1},         {"south", "B", 400.0, 336.9},
        {"south", "D", 227.9, 563.0},         {"south", "HD 129723", 393.0, 579.0},
        {"south", "HD 206553", 380.7, 283.2}, {"south", "HD 148451", 523.8, 548.2},
        {"south", "HD 219765", 442.0, 133.5},
    };
    for (const auto &row : table) {
        QTest::addRow("%s %s", row.hemisphere, row.star) << row.hemisphere << row.x << row.y;
    }
}

void ResourcesTest::masks()
{
    QFETCH(QString, hemisphere);
    QFETCH(double, x);
    QFETCH(double, y);
    const Ring ring = ringAround(mask(hemisphere), x, y);
    QVERIFY(ring.found);
    const double away = std::hypot(ring.x - x, ring.y - y);
    QVERIFY2(away < 0.4, qPrintable(QStringLiteral("off by %1 px").arg(away)));
    QVERIFY2(ring.radius > 5.0, "no room for the star");
}

void ResourcesTest::templatePixels_data()
{
    QTest::addColumn<QString>("hemisphere");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<double>("tolerance"); // pixels
    QTest::newRow("north A") << "north" << QPoint(445, 218) << 0.7;
    QTest::newRow("north B, the centre") << "north" << QPoint(400, 400) << 0.1;
    QTest::newRow("north D") << "north" << QPoint(648, 495) << 0.7;
    QTest::newRow("south A") << "south" << QPoint(227, 405) << 0.4;
    QTest::newRow("south B, the centre") << "south" << QPoint(400, 337) << 0.1;
    QTest::newRow("south D") << "south" << QPoint(228, 563) << 0.4;
}

void ResourcesTest::templatePixels()
{
    QFETCH(QString, hemisphere);
    QFETCH(QPoint, pixel);
    QFETCH(double, tolerance);
    const QImage image = mask(hemisphere);
    const Ring ring = ringAround(image, pixel.x(), pixel.y());
    QVERIFY(ring.found);
    const double away = std::hypot(ring.x - pixel.x(), ring.y - pixel.y());
    QVERIFY2(away < tolerance, qPrintable(QStringLiteral("off by %1 px").arg(away)));
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            QCOMPARE(image.pixelColor(pixel + QPoint(x, y)).alpha(), 0);
        }
    }
}

void ResourcesTest::ringsGrowWithBrightness()
{
    const QImage image = mask(QStringLiteral("north"));
    const double polaris = ringAround(image, 400.0, 400.0).radius;  // V = 2.0
    const double bright = ringAround(image, 607.7, 697.7).radius;   // V = 4.2
    const double middling = ringAround(image, 198.2, 117.2).radius; // V = 6.3
    const double faint = ringAround(image, 737.8, 550.1).radius;    // V = 6.6
    QVERIFY(polaris > bright + 1.0);
    QVERIFY(bright > middling + 1.0);
    QVERIFY(middling > faint + 0.1);
}

void ResourcesTest::styleSheetParses()
{
    const QString sheet = styleSheet();
    QVERIFY(sheet.contains(QStringLiteral("#936639")));
    LogRecorder log;
    qApp->setStyleSheet(sheet);
    QWidget widget;
    widget.ensurePolished();
    qApp->setStyleSheet(QString());
    QCOMPARE(log.lines(), QList<LogLine>());
}

void ResourcesTest::styleSheetImagesExist()
{
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    QSet<QString> paths;
    auto matches = url.globalMatch(styleSheet());
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
        paths.insert(path);
    }
    // Every arrow, normal and under the pointer, and the icons in the four kinds of boxes.
    QCOMPARE(paths.size(), 14 + 4);
}

void ResourcesTest::styleSheetNamesEveryKind_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"QMainWindow", "QDialog",
                             "QMenuBar",    "QMenu",
                             "QStatusBar",  "QGroupBox",
                             "QPushButton", "QRadioButton",
                             "QCheckBox",   "QSlider",
                             "QLineEdit",   "QAbstractSpinBox",
                             "QComboBox",   "QDial",
                             "QScrollBar",  "QTabWidget",
                             "QLabel",      "QToolTip",
                             "QMessageBox", "QFileDialog",
                             "QHeaderView", "QAbstractItemView",
                             "QScrollArea"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void ResourcesTest::styleSheetNamesEveryKind()
{
    QFETCH(QString, kind);
    const QRegularExpression rule(QStringLiteral("(?:^|, )%1\\b[^;]*\\{").arg(kind),
                                  QRegularExpression::MultilineOption);
    QVERIFY(rule.match(styleSheet()).hasMatch());
}

QTEST_MAIN(ResourcesTest)
#include "tst_resources.moc"
