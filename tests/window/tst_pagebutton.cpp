// SPDX-License-Identifier: MIT
// Which second press of a double click belongs to the press before it?
#include "mainwindow/pagebutton.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QtTest>

class PageButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void limits_data();
    void limits();
};

void PageButtonTest::limits_data()
{
    QTest::addColumn<QPoint>("way"); // from the first press to the second
    QTest::addColumn<int>("time");   // between them, milliseconds
    QTest::addColumn<bool>("happened");
    QTest::addColumn<bool>("belongs");
    const int reach = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    QTest::newRow("same place and time") << QPoint() << 0 << true << true;
    QTest::newRow("the very distance") << QPoint(reach, reach) << 0 << true << true;
    QTest::newRow("the very distance, back") << QPoint(-reach, -reach) << 0 << true << true;
    QTest::newRow("too far right") << QPoint(reach + 1, 0) << 0 << true << false;
    QTest::newRow("too far left") << QPoint(-reach - 1, 0) << 0 << true << false;
    QTest::newRow("too far down") << QPoint(0, reach + 1) << 0 << true << false;
    QTest::newRow("too far up") << QPoint(0, -reach - 1) << 0 << true << false;
    QTest::newRow("the very interval") << QPoint() << interval << true << true;
    QTest::newRow("too late") << QPoint() << interval + 1 << true << false;
    QTest::newRow("no press before") << QPoint() << 0 << false << false;
}

void PageButtonTest::limits()
{
    QFETCH(QPoint, way);
    QFETCH(int, time);
    QFETCH(bool, happened);
    QFETCH(bool, belongs);
    const ButtonPress press{QPoint(400, 300), 5000, happened};
    const QPoint place = press.place + way;
    QMouseEvent second(QEvent::MouseButtonDblClick, place, place, place, Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    second.setTimestamp(press.time + ulong(time));
    QCOMPARE(beganWith(press, second), belongs);
}

QTEST_MAIN(PageButtonTest)
#include "tst_pagebutton.moc"
