// SPDX-License-Identifier: MIT
// Does the window survive a user who clicks, types and pulls the cable at random?
//
// QUORVANDEL_MONKEY_SECONDS  how long, 20 where it is not set
// QUORVANDEL_MONKEY_SEED     which random actions, 1 where it is not set; printed at the start
#include "tests/reliability/virtualwindow.h"

#include "mainwindow/wizardtable.h"
#include "tests/support/mainwindowprobe.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMap>
#include <QMessageBox>
#include <QtTest>
#include <cstdio>
#include <random>

namespace
{
unsigned fromEnvironment(const char *name, unsigned otherwise)
{
    return qEnvironmentVariableIsSet(name) ? unsigned(qEnvironmentVariableIntValue(name))
                                           : otherwise;
}
} // namespace

/// Performs one random action after another on the window and its dialogs.
class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(VirtualWindow &virtualWindow, unsigned seed) : w(virtualWindow), random(seed)
    {
        connect(&dismisser, &QTimer::timeout, this, &Monkey::dismiss);
        dismisser.start(10);
    }

    void act();
    QMap<QString, int> done; ///< how often each kind of action was done
    int boxes = 0;           ///< that were answered

private:
    struct Kind {
        const char *name;
        int weight;
        void (Monkey::*act)();
    };
    static const std::vector<Kind> kinds;

    int below(int count) { return count > 0 ? int(random() % unsigned(count)) : 0; }
    template <typename T> T *anyVisible();
    QPoint placeOn(const QWidget &widget);
    void dismiss();

    void connectOrDisconnect() { w.toggleConnection(); }
    void chooseAction();
    void clickButton();
    void moveSlider();
    void typeNumber();
    void turnSpinBox();
    void chooseFromBox();
    void pickInPicture();
    void hover();
    void resizeWindow();
    void changeSky();
    void failOperations();
    void plugOrUnplug() { w.plug(!below(3)); }
    void lift() { w.liftFaults(); }
    void enterStep();
    void closeAndOpen();
    void rest() { QTest::qWait(below(80)); }

    VirtualWindow &w;
    std::mt19937 random;
    QTimer dismisser;
};

const std::vector<Monkey::Kind> Monkey::kinds{
    {"connect or disconnect", 6, &Monkey::connectOrDisconnect},
    {"menu action", 12, &Monkey::chooseAction},
    {"button", 30, &Monkey::clickButton},
    {"slider", 12, &Monkey::moveSlider},
    {"number typed", 6, &Monkey::typeNumber},
    {"spin box", 4, &Monkey::turnSpinBox},
    {"combo box", 2, &Monkey::chooseFromBox},
    {"double click", 20, &Monkey::pickInPicture},
    {"pointer moved", 6, &Monkey::hover},
    {"window resized", 3, &Monkey::resizeWindow},
    {"sky changed", 6, &Monkey::changeSky},
    {"operations fail", 2, &Monkey::failOperations},
    {"cable", 3, &Monkey::plugOrUnplug},
    {"faults lifted", 6, &Monkey::lift},
    {"window closed and opened", 1, &Monkey::closeAndOpen},
    {"step entered", 4, &Monkey::enterStep},
    {"rest", 12, &Monkey::rest},
};

void Monkey::act()
{
    int sum = 0;
    for (const Kind &kind : kinds)
        sum += kind.weight;
    int chosen = below(sum);
    for (const Kind &kind : kinds) {
        chosen -= kind.weight;
        if (chosen >= 0)
            continue;
        ++done[kind.name];
        (this->*kind.act)();
        return;
    }
}

/// Any enabled, visible widget of the type; null if there is none.
template <typename T> T *Monkey::anyVisible()
{
    QList<T *> found;
    for (QWidget *const window : QApplication::topLevelWidgets())
        if (window->isVisible())
            for (T *const each : window->findChildren<T *>())
                if (each->isVisible() && each->isEnabled())
                    found.append(each);
    return found.isEmpty() ? nullptr : found[below(found.size())];
}

QPoint Monkey::placeOn(const QWidget &widget)
{
    return {below(widget.width()), below(widget.height())};
}

/// Presses any button of a message box, and closes a dialog or menu without an answer.
void Monkey::dismiss()
{
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    QWidget *const modal = QApplication::activeModalWidget();
    if (auto *const box = qobject_cast<QMessageBox *>(modal)) {
        ++boxes;
        box->buttons().at(below(box->buttons().size()))->click();
    } else if (auto *const dialog = qobject_cast<QDialog *>(modal)) {
        dialog->reject();
    }
}

void Monkey::chooseAction()
{
    QList<QAction *> actions;
    for (QAction *const action : w.window->findChildren<QAction *>(QRegularExpression("^action")))
        if (action->isEnabled() && action->isVisible() && action->objectName() != "actionExit")
            actions.append(action);
    actions[below(actions.size())]->trigger();
}

void Monkey::clickButton()
{
    if (auto *const button = anyVisible<QAbstractButton>())
        button->click();
}

void Monkey::moveSlider()
{
    auto *const slider = anyVisible<QSlider>();
    if (!slider)
        return;
    static const Qt::Key keys[] = {Qt::Key_Left,     Qt::Key_Right, Qt::Key_PageUp,
                                   Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End};
    if (below(2))
        QTest::keyClick(slider, keys[below(6)]);
    else
        slider->setValue(slider->minimum() + below(slider->maximum() - slider->minimum() + 1));
}

void Monkey::typeNumber()
{
    auto *const edit = anyVisible<QLineEdit>();
    if (!edit)
        return;
    static const char *const texts[] = {"0",          "1",  "20", "500", "99999",
                                        "4294967296", "-5", "x",  ""};
    edit->selectAll();
    QTest::keyClicks(edit, texts[below(9)]);
    QTest::keyClick(edit, Qt::Key_Return);
}

void Monkey::turnSpinBox()
{
    if (auto *const box = anyVisible<QAbstractSpinBox>())
        box->stepBy(below(200) - 100);
}

void Monkey::chooseFromBox()
{
    if (auto *const box = anyVisible<QComboBox>())
        box->setCurrentIndex(below(box->count()));
}

void Monkey::pickInPicture()
{
    auto &picture = named<QLabel>(*w.window, "label_showImg");
    QTest::mouseDClick(&picture, below(8) ? Qt::LeftButton : Qt::RightButton, {}, placeOn(picture));
}

void Monkey::hover()
{
    auto &picture = named<QLabel>(*w.window, "label_showImg");
    QTest::mouseMove(&picture, placeOn(picture));
}

void Monkey::resizeWindow()
{
    w.window->resize(200 + below(2200), 150 + below(1600));
}

void Monkey::changeSky()
{
    auto &sky = w.sky.edit();
    sky.raAngle = below(720) - 360;
    sky.clouds = below(4) ? 0.0 : 1.0;
    sky.channels = below(2) ? 1 : 3;
    sky.unthrottled = !below(3);
    sky.latitude = below(2) ? 40 : -40;
    sky.picture = below(5) ? virtualsky::Picture::Sky : virtualsky::Picture::Saturated;
    w.sky.write();
}

void Monkey::failOperations()
{
    auto &sky = w.sky.edit();
    sky.fail.set(std::size_t(below(int(sky.fail.size()))));
    sky.slow = below(4) ? 0.0 : 0.5;
    sky.cameras = unsigned(below(3));
    w.sky.write();
}

/// Chance alone rarely reaches the later steps.
void Monkey::enterStep()
{
    if (w.session().camera.cameraConnected)
        MainWindowProbe(*w.window).switchStep(1 + below(wizardStepCount));
}

void Monkey::closeAndOpen()
{
    w.window->close();
    w.window.reset();
    w.open();
}

class MonkeyTest : public QObject
{
    Q_OBJECT

public slots:
    void noPage(const QUrl &) { ++pages; }

private slots:
    void hammered();

private:
    int pages = 0; ///< that would have opened in the browser
};

void MonkeyTest::hammered()
{
    const unsigned seed = fromEnvironment("QUORVANDEL_MONKEY_SEED", 1);
    const qint64 duration = 1000 * qint64(fromEnvironment("QUORVANDEL_MONKEY_SECONDS", 20));
    // Not with qInfo, which Qt Test cuts off after 2000 messages.
    std::printf("seed %u, %lld seconds\n", seed, duration / 1000);
    std::fflush(stdout);
    for (const char *const scheme : {"http", "https", "file"})
        QDesktopServices::setUrlHandler(scheme, this, "noPage");
    VirtualWindow w;
    int actions = 0;
    {
        Monkey monkey(w, seed);
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < duration; ++actions) {
            monkey.act();
            QCoreApplication::processEvents();
        }
        w.liftFaults();
        for (auto kind = monkey.done.cbegin(); kind != monkey.done.cend(); ++kind)
            std::printf("%5d %s\n", kind.value(), qPrintable(kind.key()));
        std::printf("%d actions, %d boxes answered, %d pages not opened\n", actions, monkey.boxes,
                    pages);
        if (w.session().camera.cameraConnected)
            w.toggleConnection();
        // An initialisation that was made to fail is only tried again by a new window.
        w.window->close();
        w.window.reset();
        w.open();
    }
    QVERIFY(actions > 0);
    QVERIFY(w.connectCamera());
    w.toggleConnection();
    QVERIFY(!w.session().camera.cameraConnected);
    QTRY_COMPARE(named<QLabel>(*w.window, "fpsLabel").text(), QString("FPS : 0.0"));
}

QTEST_MAIN(MonkeyTest)
#include "tst_monkey.moc"
