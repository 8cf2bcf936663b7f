#include <QtTest>
class T : public QObject
{
    Q_OBJECT
};
QTEST_GUILESS_MAIN(T)
#include "tst_assistantsession.moc"
