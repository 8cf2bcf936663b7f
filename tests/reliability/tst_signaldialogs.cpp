// SPDX-License-Identifier: MIT
// Does a signal end the program also while a box, a dialog or a menu waits for an answer?
#include "app/terminationsignals.h"
#include "resources/resources.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QtTest>
#include <csignal>
#include <functional>
#include <unistd.h>

using Ask = std::function<void(MainWindow &)>;
Q_DECLARE_METATYPE(Ask)

class SignalDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void endsWhileWaiting_data();
    void endsWhileWaiting();
};

void SignalDialogsTest::endsWhileWaiting_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("nothing") << Ask([](MainWindow &) {});
    QTest::newRow("box on the window")
        << Ask([](MainWindow &w) { QMessageBox::warning(&w, "Warn", "text", QMessageBox::Ok); });
    QTest::newRow("box without a parent") << Ask([](MainWindow &) {
        QMessageBox::question(nullptr, "Question", "text", QMessageBox::Yes | QMessageBox::No);
    });
    QTest::newRow("file dialog") << Ask(
        [](MainWindow &w) { QFileDialog::getSaveFileName(&w, "Save"); });
    QTest::newRow("menu") << Ask(
        [](MainWindow &w) { named<QMenu>(w, "menuLanguage").exec(w.pos()); });
    QTest::newRow("dialogs that stay open") << Ask([](MainWindow &w) {
        named<QAction>(w, "actionAbout").trigger();
        named<QAction>(w, "actionAstronomical_Refraction").setEnabled(true);
        named<QAction>(w, "actionAstronomical_Refraction").trigger();
    });
}

void SignalDialogsTest::endsWhileWaiting()
{
    QFETCH(Ask, ask);
    removeSettings();
    bool stillAsked = false;
    {
        SessionWindow window;
        const TerminationSignals closing(window);
        window.show();
        QTimer::singleShot(50, &window, [&] {
            stillAsked = true;
            ask(window);
            stillAsked = false;
        });
        QTimer::singleShot(500, [] { ::kill(::getpid(), SIGTERM); });
        QTimer tooLong; // of this row only
        connect(&tooLong, &QTimer::timeout, [] { QCoreApplication::exit(1); });
        tooLong.start(patience);
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!window.isVisible());
    }
    QVERIFY(!stillAsked);
    QVERIFY(QFile::exists(settingsFilePath()));
    removeSettings();
}

QTEST_MAIN(SignalDialogsTest)
#include "tst_signaldialogs.moc"
