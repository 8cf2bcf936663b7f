// SPDX-License-Identifier: MIT
// Does a camera library that is present but unusable keep the virtual sky away?
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include "mainwindow/mainwindow.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

namespace
{
const QString soname = QStringLiteral("libveldix.so.20");

/// The folder that the loader searches first, according to the test's environment.
QString pathOfLoader()
{
    return QString::fromLocal8Bit(qgetenv("LD_LIBRARY_PATH"));
}

/// Presses Connect and closes the box that appears; returns its text, empty without a box.
QString boxOfConnect(MainWindow &window)
{
    QString text;
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, [&text] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    });
    answering.start(5);
    named<QAction>(window, "actionConnect").trigger();
    return text;
}
} // namespace

class UnusableLibraryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void connectFindsNothing();
    void withoutItTheVirtualCameraConnects();
};

/// The virtual camera is where an installed program has it, and another library precedes it.
void UnusableLibraryTest::initTestCase()
{
    initialiseResources();
    qputenv("QUORVANDEL_SKY", (QCoreApplication::applicationDirPath() + "/sky.ini").toLocal8Bit());
    const QString own = QCoreApplication::applicationDirPath() + "/../lib/quorvandel";
    QFile::remove(own + '/' + soname);
    QVERIFY(QDir().mkpath(own) && QFile::copy(VIRTUAL_CAMERA, own + '/' + soname));
    QVERIFY(QDir().mkpath(pathOfLoader()));
    QFile broken(pathOfLoader() + '/' + soname);
    QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QVERIFY(broken.write("half a download") > 0);
}

void UnusableLibraryTest::connectFindsNothing()
{
    const LogRecorder log;
    SessionWindow window;
    QCOMPARE(log.texts(QtCriticalMsg).filter("is there and cannot be used").size(), 1);
    QCOMPARE(boxOfConnect(window), QString("Not Found VELDIX Quorvandel equipment!"));
    QVERIFY(!window.ownSession.camera.cameraConnected);
    window.close();
}

/// The counterpart: only the broken library kept it away.
void UnusableLibraryTest::withoutItTheVirtualCameraConnects()
{
    QVERIFY(QFile::remove(pathOfLoader() + '/' + soname));
    const LogRecorder log;
    SessionWindow window;
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
    QCOMPARE(boxOfConnect(window), QString());
    QVERIFY(window.ownSession.camera.cameraConnected);
    QVERIFY(window.windowTitle().contains("QUORVANDEL-V0001"));
    window.close();
}

QTEST_MAIN(UnusableLibraryTest)
#include "tst_unusablelibrary.moc"
