// SPDX-License-Identifier: MIT
// Is any of the toolkit's texts left in English: in the context menus, the file dialog or the
// boxes?
#include "core/languages.h"
#include "resources/resources.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/sessionwindow.h"
#include "tests/support/toolkitwalk.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>
#include <utility>

class ToolkitTextsTest : public QObject
{
    Q_OBJECT

private:
    /// For all rows: the dialog opens where the last one was, and makes a folder there.
    const QTemporaryDir folder;

private slots:
    void initTestCase();
    void areTranslated_data();
    void areTranslated();
};

namespace
{
/// Some that the walk must meet, where no other text has the same words.
constexpr std::pair<const char *, const char *> shownTexts[] = {
    {"QLineEdit", "Delete"},
    {"QAbstractSpinBox", "&Step up"},
    {"QScrollBar", "Scroll here"},
    {"QScrollBar", "Page left"},
    {"QWidgetTextControl", "Copy &Link Location"},
    {"QFileDialog", "&New Folder"},
    {"QFileDialog", "Show &hidden files"},
};

/// Closes the open message box with its last button; returns its text and buttons.
QStringList answerBox()
{
    auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return {};
    QStringList texts{box->text()};
    for (const QAbstractButton *const button : box->buttons())
        texts << button->text();
    box->buttons().constLast()->click();
    return texts;
}

/// Texts that are never shown: key names for parsing shortcuts, and the portable names of the
/// dialog's own shortcuts.
bool isShortcut(const QString &text)
{
    return text.startsWith("QShortcut: ") || text.startsWith("QFileDialog: Alt+");
}

/// Runs `action`, which may block in a box; returns the box's texts.
QStringList boxAfter(const std::function<void()> &action)
{
    QStringList texts;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&texts] { texts += answerBox(); });
    timer.start(1);
    action();
    QTest::qWait(20);
    return texts;
}

QAction *actionNamed(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QAction *>(name);
}

/// Walks through everything that the file dialog offers. The folder has the files `here.png` and,
/// write-protected, `locked.png`.
QStringList walkFileDialog(QFileDialog &dialog)
{
    QStringList seen = contextMenusIn(dialog);
    for (const char *const name : {"detailModeButton", "listModeButton"}) {
        dialog.findChild<QToolButton *>(name)->click();
        QTest::qWait(20);
        seen += contextMenusIn(dialog);
    }
    dialog.findChild<QToolButton *>("detailModeButton")->click();
    auto *const tree = dialog.findChild<QTreeView *>("treeView");
    for (const QAction *const column : tree->header()->actions())
        seen << column->text();
    auto *const edit = dialog.findChild<QLineEdit *>("fileNameEdit");
    edit->setText("here.png");
    seen += boxAfter(
        [&] { dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click(); });
    for (const char *const name : {"here.png", "locked.png"}) {
        dialog.selectFile(name);
        QTest::qWait(50);
        seen += boxAfter([&] { actionNamed(dialog, "qt_delete_action")->trigger(); });
    }
    actionNamed(dialog, "qt_new_folder_action")->trigger();
    QTest::qWait(20);
    return seen;
}
} // namespace

void ToolkitTextsTest::initTestCase()
{
    initialiseResources();
}

void ToolkitTextsTest::areTranslated_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < languages.size(); ++i)
        QTest::newRow(languages[i].code) << int(i);
}

void ToolkitTextsTest::areTranslated()
{
    QFETCH(int, number);
    QVERIFY(QDir::setCurrent(folder.path()));
    QFile::remove("locked.png");
    for (const char *const name : {"here.png", "locked.png"})
        QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(name));
    QVERIFY(QFile::setPermissions("locked.png", QFile::ReadOwner));
    LastTranslator last;
    SessionWindow window;
    window.resize(700, 400); // scroll bars
    window.show();
    window.findChild<QLabel *>("label_showImg")->setPixmap(QPixmap(1280, 960));
    window.findChild<QAction *>(languages.at(std::size_t(number)).action)->setChecked(true);
    MainWindowProbe(window).switchStep(1);
    QTest::qWait(20);
    last.forget(); // texts of the window in English
    QStringList seen = contextMenusIn(window);
    for (QDialog *const dialog : window.findChildren<QDialog *>()) {
        dialog->show();
        QTest::qWait(20);
        seen += contextMenusIn(*dialog);
        dialog->close();
    }
    window.ownSession.camera.cameraConnected = true;
    window.findChild<QAction *>("actionSave_As")->setEnabled(true);
    QTimer::singleShot(200, &window, [&seen] {
        auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        seen += walkFileDialog(*dialog);
        dialog->reject();
    });
    window.findChild<QAction *>("actionSave_As")->trigger();
    window.ownSession.camera.cameraConnected = false;
    QStringList left = last.texts();
    left.erase(std::remove_if(left.begin(), left.end(), isShortcut), left.end());
    QCOMPARE(left.join("; "), QString());
    QTranslator catalogue;
    QVERIFY(catalogue.load(cataloguePath("lan", languages.at(std::size_t(number)))));
    for (const auto &[context, text] : shownTexts)
        QVERIFY2(seen.contains(catalogue.translate(context, text)), text);
    // The keys beside "Redo" in a field's menu, which depend on the desktop.
    const QKeySequence redo(int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_Z));
    QCOMPARE(redo.toString(QKeySequence::NativeText),
             catalogue.translate("QShortcut", "Ctrl") + '+' +
                 catalogue.translate("QShortcut", "Shift") + "+Z");
}

QTEST_MAIN(ToolkitTextsTest)
#include "tst_toolkittexts.moc"
