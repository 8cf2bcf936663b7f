// SPDX-License-Identifier: MIT
// Is a person who aligns rightly left in peace, and one with a wrong template told so in time?
#include "tests/e2e/noticewindow.h"

#include <QMap>

namespace
{
const QString misfit = QStringLiteral("The template does not fit: ");

/// Fewer rows where a sanitizer slows everything down.
bool isLeftOut(int row)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return row % 3 != 0;
#else
    return row < 0;
#endif
}
} // namespace

class NoticesTest : public QObject
{
    Q_OBJECT

private slots:
    void rightAlignment_data();
    void rightAlignment();
    void wrongTemplate_data();
    void wrongTemplate();
};

void NoticesTest::rightAlignment_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<bool>("reuse");
    QTest::addColumn<unsigned>("seed");
    unsigned seed = 0;
    int row = 0;
    for (const bool south : {false, true})
        for (const bool reuse : {false, true})
            if (!isLeftOut(row++))
                QTest::addRow("%s, %s", south ? "south" : "north",
                              reuse ? "saved axis" : "three picks")
                    << south << reuse << ++seed;
}

/// At the end of each step, from connecting to the marks lying one over the other, nothing is said.
void NoticesTest::rightAlignment()
{
    QFETCH(bool, south);
    QFETCH(bool, reuse);
    QFETCH(unsigned, seed);
    Settings settings;
    NoticeWindow w(south, settings);
    if (reuse) { // the axis of the night before: the camera has not been moved
        settings.axisX = w.knobs.axis().x();
        settings.axisY = w.knobs.axis().y();
        w.session().alignmentPoints.savedAxisCenter = w.knobs.axis();
        w.options.reuseSavedAxis = true;
    }
    QVERIFY(w.notice().isEmpty());
    QMap<QString, QString> said;
    QStringList ends;
    try {
        Person person = w.person(seed);
        person.arrived = [&](const QString &name) {
            ends.append(name);
            // The notice seen last may be from before the last action.
            const QString notice = w.nextNotice();
            if (!notice.isEmpty())
                said.insert(name, notice);
        };
        person.align();
        person.disconnectCamera();
    } catch (const std::exception &problem) {
        QFAIL(problem.what());
    }
    QVERIFY2(said.isEmpty(), qPrintable(said.keys().join(", ") + ": " + said.values().join(" ")));
    QVERIFY(ends.size() >= (reuse ? 10 : 16));
    QVERIFY(w.staysAway());
}

void NoticesTest::wrongTemplate_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<QPointF>("slip");
    QTest::addColumn<int>("turn");
    int row = 0;
    for (const bool south : {false, true}) {
        const char *const pole = south ? "south" : "north";
        if (!isLeftOut(row++))
            QTest::addRow("%s, 12 pixels beside", pole) << south << QPointF(9, 8) << 0;
        if (!isLeftOut(row++))
            QTest::addRow("%s, turned by 5 degrees", pole) << south << QPointF() << 5;
        if (!isLeftOut(row++))
            QTest::addRow("%s, turned by 60 degrees", pole) << south << QPointF() << 60;
    }
}

/// Who clicks through all the same is told so wherever the template is shown, and beside the pole
/// mark.
void NoticesTest::wrongTemplate()
{
    QFETCH(bool, south);
    QFETCH(QPointF, slip);
    QFETCH(int, turn);
    NoticeWindow w(south);
    w.options.templateSlip = slip;
    w.options.templateTurn = turn;
    QMap<QString, QString> said;
    try {
        Person person = w.person();
        person.arrived = [&](const QString &name) { said.insert(name, w.nextNotice()); };
        person.connectCamera();
        person.prepare();
        person.setExposure();
        person.confirmTemplate();
        person.findAxis();
        person.placePoleStar();
        person.startMonitor();
    } catch (const std::exception &problem) {
        QFAIL(problem.what());
    }
    for (const char *const step :
         {"step-02-template", "step-09-expected", "step-11-current", "step-12-monitor"})
        QVERIFY2(said.value(step).startsWith(misfit), qPrintable(step + (": " + said.value(step))));
    // A template that is far off has no star where it expects star A.
    const QString atTheMark = said.value("step-13-before");
    QVERIFY2(atTheMark.startsWith(misfit) || atTheMark == QLatin1String("Star A lost."),
             qPrintable(atTheMark));
    for (const char *const step : {"step-01-exposure", "step-08-axis"})
        QVERIFY2(said.value(step).isEmpty(), qPrintable(said.value(step)));
    // The notice goes with its cause.
    w.click("pushButton_finetunePole_reset");
    QVERIFY(w.staysAway());
}

QTEST_MAIN(NoticesTest)
#include "tst_notices.moc"
