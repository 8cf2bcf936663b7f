// SPDX-License-Identifier: MIT
// What survives a change of language while a camera is connected and monitored?
#include "tests/window/monitorwindow.h"

#include <QAction>
#include <QImage>
#include <QPixmap>

namespace
{
/// How the texts are set again: by a language's action, or by the slot alone.
void resetTexts(const CameraWindow &w, const QString &how)
{
    if (how == "uiReset")
        w.call("uiReset");
    else
        w.trigger(qPrintable(how));
}

/// A window in monitor mode whose pictures have all arrived: nothing changes by itself any more.
class StillWindow : public MonitorWindow
{
public:
    StillWindow(QPointF starB, QPointF starA) : MonitorWindow(45, starB, {starB, starA})
    {
        call("pushbuttonGetCurPolarisDoneClicked");
        enterStep(13);
        const auto &enlarged = child<QLabel>("label_biggerImg");
        const bool all = QTest::qWaitFor([&] {
            return !enlarged.pixmap(Qt::ReturnByValue).isNull() && shown("label_refStarA_pos") &&
                   shown("label_refStarB_pos");
        });
        sdk().setFramesLeft(0);
        const int fetches = sdk().fetchCount();
        // The frame in flight is processed once another fetch has begun.
        const bool still = QTest::qWaitFor([&] {
            return sdk().fetchCount() > fetches + 1 && session().frameQueue.isEmpty() &&
                   session().magnifierQueue.isEmpty();
        });
        if (!all || !still)
            qFatal("monitor mode does not come to rest");
    }

    QString text(const char *label) const { return child<QLabel>(label).text(); }
    QImage picture(const char *label) const
    {
        return child<QLabel>(label).pixmap(Qt::ReturnByValue).toImage();
    }

private:
    bool shown(const char *label) const { return text(label) != "(0,0)"; }
};
} // namespace

class KeptByLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void texts_data();
    void texts();
    void pictures_data();
    void pictures();
    void connectActionSaysDisconnect_data();
    void connectActionSaysDisconnect();
};

void KeptByLanguageTest::initTestCase()
{
    const CameraWindow w; // reads the catalogue
    QVERIFY(northCatalogue.starBX > 0);
}

void KeptByLanguageTest::texts_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("label_curPos") << "actionGerman";
    QTest::newRow("label_eptPos") << "actionGerman";
    QTest::newRow("label_refStarA_pos") << "actionGerman";
    QTest::newRow("label_refStarB_pos") << "actionGerman";
    QTest::newRow("label_curPos by the slot") << "uiReset";
    QTest::newRow("label_eptPos by the slot") << "uiReset";
    QTest::newRow("label_refStarA_pos by the slot") << "uiReset";
    QTest::newRow("label_refStarB_pos by the slot") << "uiReset";
}

void KeptByLanguageTest::texts()
{
    QFETCH(QString, how);
    const QPointF starB(500.4, 420.3);
    const StillWindow w(starB, starB + offsetToA(45));
    const QByteArray label = QByteArray(QTest::currentDataTag()).split(' ').first();
    const QString before = w.text(label);
    QVERIFY(before != "(0,0)");
    resetTexts(w, how);
    QCOMPARE(w.text(label), before);
}

void KeptByLanguageTest::pictures_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("label_showImg") << "actionGerman";
    QTest::newRow("label_biggerImg") << "actionGerman";
    QTest::newRow("label_templateImg") << "actionGerman";
    QTest::newRow("label_showImg by the slot") << "uiReset";
    QTest::newRow("label_biggerImg by the slot") << "uiReset";
    QTest::newRow("label_templateImg by the slot") << "uiReset";
}

void KeptByLanguageTest::pictures()
{
    QFETCH(QString, how);
    const QPointF starB(500.4, 420.3);
    const StillWindow w(starB, starB + offsetToA(45));
    const QByteArray label = QByteArray(QTest::currentDataTag()).split(' ').first();
    const QImage before = w.picture(label);
    QVERIFY(!before.isNull());
    resetTexts(w, how);
    QVERIFY(w.picture(label) == before);
    QCOMPARE(w.text(label), QString());
}

void KeptByLanguageTest::connectActionSaysDisconnect_data()
{
    QTest::addColumn<QString>("connected");
    QTest::addColumn<QString>("disconnected");
    QTest::newRow("actionGerman") << "Trennen"
                                  << "Verbinden";
    QTest::newRow("actionEnglish") << "Disconnect"
                                   << "Connect";
    QTest::newRow("uiReset") << "Disconnect"
                             << "Connect";
}

void KeptByLanguageTest::connectActionSaysDisconnect()
{
    QFETCH(QString, connected);
    QFETCH(QString, disconnected);
    const CameraWindow w;
    const auto &action = w.child<QAction>("actionConnect");
    w.connectCamera();
    if (QByteArray(QTest::currentDataTag()) == "actionEnglish")
        w.trigger("actionGerman"); // and back
    resetTexts(w, QTest::currentDataTag());
    QCOMPARE(action.text(), connected);
    w.trigger("actionConnect");
    QCOMPARE(action.text(), disconnected);
    resetTexts(w, "uiReset");
    QCOMPARE(action.text(), disconnected);
}

QTEST_MAIN(KeptByLanguageTest)
#include "tst_keptbylanguage.moc"
