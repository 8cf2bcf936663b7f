// SPDX-License-Identifier: MIT
// Does the connection to an INDI server never hold anybody up, and lose nothing while it lasts?
#include <QElapsedTimer>
#include <QtTest>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include "framesources/indiclient.h"
#include "tests/support/patience.h"

using framesources::IndiClient;
using std::chrono::milliseconds;

Q_DECLARE_METATYPE(std::string)

namespace
{
constexpr qint64 connectTimeout = 2000; // milliseconds

/// A server on loopback without any manners; its calls wait.
class Server
{
public:
    explicit Server(int family = AF_INET, int backlog = 8)
        : listener(::socket(family, SOCK_STREAM, 0))
    {
        sockaddr_in6 six = {};
        six.sin6_family = AF_INET6;
        six.sin6_addr = in6addr_loopback;
        sockaddr_in four = {};
        four.sin_family = AF_INET;
        four.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto *const address = family == AF_INET6 ? reinterpret_cast<sockaddr *>(&six)
                                                 : reinterpret_cast<sockaddr *>(&four);
        socklen_t size = family == AF_INET6 ? sizeof six : sizeof four;
        isThere = ::bind(listener, address, size) == 0 && ::listen(listener, backlog) == 0 &&
                  ::getsockname(listener, address, &size) == 0;
        port = ntohs(family == AF_INET6 ? six.sin6_port : four.sin_port);
    }
    ~Server()
    {
        ::close(client);
        ::close(listener);
    }
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    void accept() { client = ::accept(listener, nullptr, nullptr); }
    void end()
    {
        ::close(client);
        client = -1;
    }
    void send(const QByteArray &bytes) const
    {
        ::send(client, bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL);
    }
    /// What comes until `part` is in it, or the client has gone, or nothing comes for a second.
    QByteArray hear(const QByteArray &part) const
    {
        QByteArray all;
        char bytes[65536];
        pollfd wait = {client, POLLIN, 0};
        while (::poll(&wait, 1, 1000) > 0) {
            const ssize_t got = ::recv(client, bytes, sizeof bytes, 0);
            if (got <= 0)
                break;
            all.append(bytes, int(got));
            if (all.right(int(got) + part.size()).contains(part))
                break;
        }
        return all;
    }
    /// Whether the client ends the connection by itself, not by a reset.
    bool isLeft() const
    {
        char bytes[4096];
        ssize_t got = 0;
        do
            got = ::recv(client, bytes, sizeof bytes, 0);
        while (got > 0);
        return got == 0;
    }

    bool isThere = false;
    quint16 port = 0;

private:
    const int listener;
    int client = -1;
};

const QByteArray definition =
    "<defNumberVector device='A &amp; B' name='N' state='Busy'>"
    "<defNumber name='X' min='-1' max='2.5e3'> -0:30:36 </defNumber></defNumberVector>\n"
    "<defSwitchVector device='A &amp; B' name='S' state='Ok'>"
    "<defSwitch name='ONE'>\n  On\n</defSwitch><defSwitch name='TWO'>Off</defSwitch>"
    "</defSwitchVector>\n";
} // namespace

class IndiConnectionTest : public QObject
{
    Q_OBJECT

private slots:
    void absentServer_data();
    void absentServer();
    void silentHost();
    void everyFamily_data();
    void everyFamily();
    void messagesInPieces_data();
    void messagesInPieces();
    void removals();
    void pingIsAnswered();
    void namesAreEscaped();
    void serverThatNeverReads();
    void lastCommandArrives();
};

void IndiConnectionTest::absentServer_data()
{
    QTest::addColumn<std::string>("host");
    QTest::newRow("refused") << std::string("127.0.0.1");
    QTest::newRow("no such name") << std::string("no-such-host.invalid");
    QTest::newRow("no name at all") << std::string();
}

void IndiConnectionTest::absentServer()
{
    QFETCH(std::string, host);
    quint16 port = 1;
    if (const Server server; host == "127.0.0.1")
        port = server.port; // free again
    QElapsedTimer waiting;
    waiting.start();
    IndiClient client(host, port, "Camera");
    QVERIFY(!client.connectServer());
    QVERIFY(!client.isConnected());
    QVERIFY2(waiting.elapsed() < connectTimeout + 500,
             qPrintable(QString::number(waiting.elapsed())));
}

/// One whose machine does not answer: its queue is full.
void IndiConnectionTest::silentHost()
{
    const Server server(AF_INET, 0);
    std::vector<std::unique_ptr<IndiClient>> queue;
    QElapsedTimer waiting;
    bool connected = true;
    for (int i = 0; i < 5 && connected; ++i) {
        queue.push_back(std::make_unique<IndiClient>("127.0.0.1", server.port, "Camera"));
        waiting.start();
        connected = queue.back()->connectServer();
    }
    QVERIFY(!connected);
    QVERIFY2(waiting.elapsed() >= connectTimeout - 100 && waiting.elapsed() < connectTimeout + 500,
             qPrintable(QString::number(waiting.elapsed())));
}

void IndiConnectionTest::everyFamily_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<std::string>("host");
    QTest::newRow("IPv4") << AF_INET << std::string("127.0.0.1");
    QTest::newRow("IPv6") << AF_INET6 << std::string("::1");
    QTest::newRow("a name with addresses of both, the server on one")
        << AF_INET << std::string("localhost");
}

void IndiConnectionTest::everyFamily()
{
    QFETCH(int, family);
    QFETCH(std::string, host);
    Server server(family);
    if (!server.isThere)
        QSKIP("this machine has no such addresses");
    IndiClient client(host, server.port, "A & B");
    QVERIFY(client.connectServer());
    server.accept();
    QVERIFY(server.hear("/>").startsWith("<getProperties version='1.7'"));
    server.send(definition);
    QTRY_VERIFY((client.waitForNews(milliseconds(10)), client.has("S")));
    server.end();
    QTRY_VERIFY((client.waitForNews(milliseconds(10)), !client.isConnected()));
}

void IndiConnectionTest::messagesInPieces_data()
{
    QTest::addColumn<int>("piece");
    QTest::newRow("whole") << 100000;
    QTest::newRow("of seven bytes") << 7;
    QTest::newRow("of one byte") << 1;
}

void IndiConnectionTest::messagesInPieces()
{
    QFETCH(int, piece);
    Server server;
    IndiClient client("127.0.0.1", server.port, "A & B");
    QVERIFY(client.connectServer());
    server.accept();
    const QByteArray blob =
        "<defBLOBVector device='A &amp; B' name='CCD1'><defBLOB name='CCD1'/></defBLOBVector>"
        "<setBLOBVector device='A &amp; B' name='CCD1' state='Ok'>"
        "<oneBLOB name='CCD1' size='6' format='.x>y'>\nUXVv\ndmFu\n</oneBLOB></setBLOBVector>"
        "<setNumberVector device='A &amp; B' name='N' state='Ok' message='It works'>"
        "<oneNumber name='X'>1.25</oneNumber><oneNumber name='Y'>3</oneNumber></setNumberVector>";
    for (int at = 0; at < definition.size(); at += piece) {
        server.send(definition.mid(at, piece));
        client.waitForNews(milliseconds(0));
    }
    QTRY_VERIFY((client.waitForNews(milliseconds(10)), client.has("S")));
    const auto before = client.number("N", "X");
    QVERIFY(before);
    QCOMPARE(before->value, -0.51);
    QCOMPARE(before->least, -1.0);
    QCOMPARE(before->most, 2500.0);
    QVERIFY(client.state("N") == framesources::IndiState::Busy);
    QVERIFY(client.isOn("S", "ONE") == true);
    QVERIFY(client.isOn("S", "TWO") == false);
    QVERIFY(!client.isOn("S", "THREE") && !client.number("N", "Y") && !client.has("CCD1"));
    for (int at = 0; at < blob.size(); at += piece) {
        server.send(blob.mid(at, piece));
        client.waitForNews(milliseconds(0));
    }
    QTRY_VERIFY(
        (client.waitForNews(milliseconds(10)), client.state("N") == framesources::IndiState::Ok));
    QCOMPARE(client.number("N", "X")->value, 1.25);
    QVERIFY(!client.number("N", "Y")); // never defined
    QCOMPARE(client.takeMessage(), std::string("It works"));
    QCOMPARE(client.takeMessage(), std::string());
    const auto picture = client.takeBlob();
    QVERIFY(picture);
    QCOMPARE(picture->bytes, std::string("Quovan"));
    QCOMPARE(picture->format, std::string(".x>y"));
    QVERIFY(!client.takeBlob());
    QCOMPARE(client.devices(), std::vector<std::string>{"A & B"});
}

void IndiConnectionTest::removals()
{
    Server server;
    IndiClient client("127.0.0.1", server.port, "A & B");
    QVERIFY(client.connectServer());
    server.accept();
    int messages = 0;
    const auto after = [&](const QByteArray &message) {
        const QByteArray end = "END" + QByteArray::number(++messages);
        server.send(message + "<defTextVector device='A &amp; B' name='" + end + "'/>");
        const auto isRead = [&] {
            client.waitForNews(milliseconds(10));
            return client.has(end.toStdString());
        };
        return comesTrue(isRead) ? int(client.removals()) : -1;
    };
    QCOMPARE(after(definition), 0);
    QCOMPARE(after("<delProperty device='A &amp; B' name='CCD1'/>"), 0); // it never had one
    QCOMPARE(after("<delProperty device='Other'/>"), 0);
    QCOMPARE(after("<delProperty device='A &amp; B' name='N'/>"), 0); // no camera needs it
    QVERIFY(!client.has("N"));
    QCOMPARE(after("<defNumberVector device='A &amp; B' name='CCD_EXPOSURE'/>"), 0);
    QCOMPARE(after("<delProperty device='A &amp; B' name='CCD_EXPOSURE'/>"), 1);
    server.send("<delProperty device='A &amp; B'/>");
    QTRY_VERIFY((client.waitForNews(milliseconds(10)), !client.has("S")));
    QCOMPARE(client.removals(), 2u);
    QVERIFY(client.devices().empty());
}

void IndiConnectionTest::pingIsAnswered()
{
    Server server;
    IndiClient client("127.0.0.1", server.port, "Camera");
    QVERIFY(client.connectServer());
    server.accept();
    server.send("<pingRequest uid='17/&lt;3'/>\n");
    client.waitForNews(milliseconds(1000));
    QVERIFY(server.hear("pingReply uid='17/&lt;3'").contains("<pingReply uid='17/&lt;3'/>"));
}

void IndiConnectionTest::namesAreEscaped()
{
    Server server;
    IndiClient client("127.0.0.1", server.port, "A & B's <\"camera\">");
    QVERIFY(client.connectServer());
    server.accept();
    client.sendSwitch("S", "ONE");
    const QByteArray expected = "<newSwitchVector device='A &amp; B&apos;s "
                                "&lt;&quot;camera&quot;&gt;' name='S'><oneSwitch name='ONE'>On"
                                "</oneSwitch></newSwitchVector>";
    QVERIFY(server.hear("</newSwitchVector>").contains(expected));
}

/// Its queues are full after some megabytes: then it counts as gone, and no call has waited.
void IndiConnectionTest::serverThatNeverReads()
{
    Server server;
    IndiClient client("127.0.0.1", server.port, "Camera");
    QVERIFY(client.connectServer());
    server.accept();
    qint64 slowest = 0;
    int sent = 0;
    for (; client.isConnected() && sent < 1000000; ++sent) {
        QElapsedTimer call;
        call.start();
        client.sendNumbers("CCD_EXPOSURE", {{"CCD_EXPOSURE_VALUE", 0.05}});
        slowest = std::max(slowest, call.elapsed());
    }
    QVERIFY(!client.isConnected());
    QVERIFY2(sent > 5000, qPrintable(QString::number(sent)));
    QVERIFY2(slowest < 500, qPrintable(QString::number(slowest)));
}

/// Also where the network has not taken all yet, and with something unread.
void IndiConnectionTest::lastCommandArrives()
{
    const auto sendUntilFull = [](IndiClient &client, int most) {
        int sent = 0;
        for (; client.isConnected() && sent < most; ++sent)
            client.sendNumbers("CCD_EXPOSURE", {{"CCD_EXPOSURE_VALUE", 0.05}});
        return sent;
    };
    int most = 0; // messages until the server counts as gone
    for (const char *kept : {"", "by the client", "by the system"}) {
        Server server;
        auto client = std::make_unique<IndiClient>("127.0.0.1", server.port, "Camera");
        QVERIFY(client->connectServer());
        server.accept();
        server.send(QByteArray(100000, ' '));
        if (most == 0) {
            most = sendUntilFull(*client, 1000000);
            continue;
        }
        // Some 600 of the 1000 kilobytes that the client keeps; or fewer than the system keeps.
        sendUntilFull(*client, kept == QByteArray("by the client") ? most - 4000 : most / 2);
        QVERIFY(client->isConnected());
        client->sendSwitch("CCD_ABORT_EXPOSURE", "ABORT");
        QByteArray heard;
        std::thread reading([&] { heard = server.hear("ABORT_EXPOSURE"); });
        QElapsedTimer ending;
        ending.start();
        client.reset();
        const qint64 ended = ending.elapsed();
        reading.join();
        QVERIFY2(ended < 1000, qPrintable(QString::number(ended)));
        QVERIFY2(heard.contains("CCD_ABORT_EXPOSURE"), kept);
        QVERIFY2(server.isLeft(), kept);
    }
}

QTEST_GUILESS_MAIN(IndiConnectionTest)
#include "tst_indiconnection.moc"
