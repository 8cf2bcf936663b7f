// SPDX-License-Identifier: MIT
// Does the program take the angles of the present date where it is asked to, and only there?
#include "geometry/anglesofdate.h"
#include "geometry/starcatalogue.h"
#include "geometry/templatepole.h"
#include "resources/resources.h"

#include <QDateTime>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace
{
/// Where the program says that the north's pole lies in the template.
QPointF templatePole(const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setReadChannel(QProcess::StandardError);
    program.start(PROGRAM_FILE, arguments);
    QByteArray log;
    while (!log.contains("InitVELDIX") && program.waitForReadyRead(60000))
        log += program.readAllStandardError();
    program.kill(); // an ordinary end would write the settings file beside the program
    program.waitForFinished();
    const QRegularExpression line("north pole in template +([0-9.]+) +([0-9.]+)",
                                  QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = line.match(QString::fromUtf8(log));
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

QPointF expectedPole(bool ofDate)
{
    const QDateTime now = QDateTime::currentDateTime();
    StarCatalogue stars =
        readStarCatalogue(":/starData/NStarPosData.ini", catalogueEpoch(now.date()));
    if (ofDate)
        takeAnglesOfDate(stars, false, double(now.toSecsSinceEpoch()));
    QImage mask;
    computeTemplatePole(stars, mask, "north");
    return {stars.templatePoleX, stars.templatePoleY};
}
} // namespace

class AngleOptionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void anglesAreBuiltInByDefault();
    void anglesOfDateOnRequest();
};

void AngleOptionTest::anglesAreBuiltInByDefault()
{
    const QPointF off = templatePole({}) - expectedPole(false);
    QVERIFY(std::hypot(off.x(), off.y()) < 1e-3);
}

void AngleOptionTest::anglesOfDateOnRequest()
{
    const QPointF off = templatePole({"--angles-of-date"}) - expectedPole(true);
    QVERIFY(std::hypot(off.x(), off.y()) < 1e-3);
    const QPointF moved = expectedPole(true) - expectedPole(false);
    QVERIFY(std::hypot(moved.x(), moved.y()) > 0.5); // the built-in ones lack the aberration
}

QTEST_GUILESS_MAIN(AngleOptionTest)
#include "tst_angleoption.moc"
