// SPDX-License-Identifier: MIT
// What do Save As and the entries that only log do?
#include "camera/camerastate.h"
#include "tests/support/logrecorder.h"
#include "tests/window/camerawindow.h"

#include <QAction>
#include <QFileDialog>
#include <QImageReader>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

namespace
{
/// Answers the file dialog with a name, or cancels it if the name is empty.
class NameChooser
{
public:
    explicit NameChooser(const QString &name)
        : watcher([this, name](QWidget *widget) { answer(widget, name); })
    {
    }

    int dialogs = 0;
    QString title;
    QStringList filters;
    bool isForSaving = false;
    bool isOnWindow = false;
    QList<Box> boxes() const { return watcher.boxes(); }

private:
    void answer(QWidget *widget, const QString &name)
    {
        auto *const dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog)
            return;
        ++dialogs;
        title = dialog->windowTitle();
        filters = dialog->nameFilters();
        isForSaving = dialog->acceptMode() == QFileDialog::AcceptSave;
        isOnWindow = qobject_cast<QMainWindow *>(dialog->parentWidget()) != nullptr;
        if (name.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->selectFile(name);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    BoxWatcher watcher;
};

/// A connected window whose picture is shown and no longer changes.
class SavingWindow : public CameraWindow
{
public:
    explicit SavingWindow(const QByteArray &settings = {}) : CameraWindow(settings)
    {
        showFrame(starFrame({{640, 480}, {200, 300}}));
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
        sdk().setFramesLeft(0);
        QTest::qWait(100);
        picture = child<QLabel>("label_showImg").pixmap(Qt::ReturnByValue).toImage();
    }
    QImage picture;
};

double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return sum / (a.width() * a.height());
}
} // namespace

class SaveAsTest : public QObject
{
    Q_OBJECT

private slots:
    void formats_data();
    void formats();
    void nothingSaved_data();
    void nothingSaved();
    void beforeTheFirstPicture();
    void notConnected();
    void loggedOnly_data();
    void loggedOnly();
};

void SaveAsTest::formats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<double>("difference"); ///< in grey levels, on average
    QTest::newRow("png") << "sky.png" << QByteArray("png") << QByteArray() << 0.0;
    QTest::newRow("bmp") << "sky.bmp" << QByteArray("bmp") << QByteArray() << 0.0;
    QTest::newRow("jpg") << "sky.jpg" << QByteArray("jpeg") << QByteArray() << 1.0;
    QTest::newRow("upper case") << "SKY.PNG" << QByteArray("png") << QByteArray() << 0.0;
    QTest::newRow("odd name") << QString::fromUtf8("sky of σ Oct.2.png") << QByteArray("png")
                              << QByteArray() << 0.0;
    QTest::newRow("at its zoom") << "sky.png" << QByteArray("png")
                                 << QByteArray("[ZOOM]\nfactor=0.5\n") << 0.0;
}

void SaveAsTest::formats()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, settings);
    QFETCH(double, difference);
    const QTemporaryDir folder;
    const SavingWindow w(settings);
    const NameChooser chooser(folder.filePath(name));
    const LogRecorder log;
    w.trigger("actionSave_As");
    QCOMPARE(chooser.dialogs, 1);
    QCOMPARE(chooser.title, QStringLiteral("Save"));
    QCOMPARE(chooser.filters, QStringList("Images (*.png *.jpg *.bmp)"));
    QVERIFY(chooser.isForSaving && chooser.isOnWindow);
    QVERIFY(log.contains(QtDebugMsg, "click save as..."));
    QCOMPARE(chooser.boxes(), QList<Box>());
    QImageReader reader(folder.filePath(name));
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), format);
    const QImage saved = reader.read();
    QCOMPARE(saved.size(), w.picture.size());
    QVERIFY(meanDifference(saved, w.picture) <= difference);
    const double zoom = settings.isEmpty() ? 1.0 : 0.5;
    QCOMPARE(saved.size(), QSize(int(1280 * zoom), int(960 * zoom)));
    QVERIFY(qGray(saved.pixel(int(640 * zoom), int(480 * zoom))) > 100);
}

void SaveAsTest::nothingSaved_data()
{
    QTest::addColumn<QString>("name"); ///< @ stands for the test's folder
    QTest::newRow("cancelled") << "";
    QTest::newRow("no suffix") << "@/sky";
    QTest::newRow("unknown suffix") << "@/sky.text";
    QTest::newRow("no such folder") << "@/none/sky.png";
    QTest::newRow("folder that cannot be written") << "/proc/sky.png";
}

void SaveAsTest::nothingSaved()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const SavingWindow w;
    const QString path = name.replace('@', folder.path());
    const NameChooser chooser(path);
    const LogRecorder log;
    w.trigger("actionSave_As");
    QCOMPARE(chooser.dialogs, 1);
    QVERIFY(log.contains(QtDebugMsg, "click save as..."));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(chooser.boxes(), QList<Box>());
    QVERIFY(path.isEmpty() || !QFile::exists(path));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

/// The name is requested, but there is nothing to save, and no message.
void SaveAsTest::beforeTheFirstPicture()
{
    const QTemporaryDir folder;
    const CameraWindow w;
    w.connectCamera(); // the camera has no frames yet
    QVERIFY(w.child<QAction>("actionSave_As").isEnabled());
    const NameChooser chooser(folder.filePath("sky.png"));
    const LogRecorder log;
    w.trigger("actionSave_As");
    QCOMPARE(chooser.dialogs, 1);
    QVERIFY(log.contains(QtDebugMsg, "click save as..."));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(chooser.boxes(), QList<Box>());
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void SaveAsTest::notConnected()
{
    const CameraWindow w;
    const NameChooser chooser({});
    const LogRecorder log;
    QVERIFY(!w.child<QAction>("actionSave_As").isEnabled());
    w.call("on_actionSave_As_triggered");
    QTest::qWait(30);
    QCOMPARE(chooser.dialogs, 0);
    QCOMPARE(log.texts(QtDebugMsg) + log.texts(QtCriticalMsg), QStringList());
}

void SaveAsTest::loggedOnly_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("text");
    QTest::newRow("display template") << "actionDisplay_Template"
                                      << "click display tempalte";
    QTest::newRow("stretch") << "actionStretch"
                             << "click stretch";
}

void SaveAsTest::loggedOnly()
{
    QFETCH(QString, action);
    QFETCH(QString, text);
    const CameraWindow w;
    auto &entry = w.child<QAction>(qPrintable(action));
    QVERIFY(!entry.isVisible() && entry.isCheckable());
    const bool first = !entry.isChecked();
    const LogRecorder log;
    entry.toggle();
    entry.toggle();
    const auto line = [&text](bool on) { return text + (on ? " true" : " false"); };
    QCOMPARE(log.texts(QtDebugMsg), QStringList({line(first), line(!first)}));
}

QTEST_MAIN(SaveAsTest)
#include "tst_saveas.moc"
