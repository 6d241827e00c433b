#include <LibControl/services/qserversocket.h>

#include <QPointer>
#include <QTcpSocket>
#include <QtTest>

#include <memory>
#include <vector>

namespace {

// The latest buffer reported for each server-side socket.
struct Latest
{
    QHash<QTcpSocket *, QByteArray> data;
    QList<QPointer<QTcpSocket>> sockets;
    int emissions = 0;
    QObject context;

    void watch(QServerSocket &server)
    {
        QObject::connect(
            &server, &QServerSocket::dataReceived, &context, [this](QTcpSocket *socket, const QByteArray &bytes) {
                ++emissions;
                if (!data.contains(socket))
                    sockets.append(socket);
                data[socket] = bytes;
            });
    }
    bool contains(const QByteArray &bytes) const { return data.values().contains(bytes); }
};

std::unique_ptr<QTcpSocket> connectedClient(quint16 port)
{
    auto client = std::make_unique<QTcpSocket>();
    client->connectToHost(QHostAddress::LocalHost, port);
    if (!client->waitForConnected(5000))
        return nullptr;
    return client;
}

QByteArray payload(int index, int size)
{
    QByteArray bytes = QByteArray::number(index).rightJustified(6, '0');
    while (bytes.size() < size)
        bytes += char('a' + (bytes.size() + index) % 26);
    return bytes;
}

} // namespace

class tst_QServerSocket : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void logsListeningOutcome();
    void eachSignalCarriesEverythingSoFar();
    void connectionsKeepSeparateBuffers();
    void portInUseLeavesServerThatAcceptsNothing();
    void closeKeepsOpenConnections();
    void clientVanishingMidStreamReleasesSocket();
    void receiverCanAnswerAndClose();
    void manyConnectionsAtOnce();
};

void tst_QServerSocket::logsListeningOutcome()
{
    QTest::ignoreMessage(QtInfoMsg, "port: 0  Listening: succ");
    QTest::ignoreMessage(QtInfoMsg, "Listening: succ");
    QServerSocket server(0);
    QVERIFY(server.isListening());
    QVERIFY(server.serverPort() != 0);
}

void tst_QServerSocket::eachSignalCarriesEverythingSoFar()
{
    QServerSocket server(0);
    QSignalSpy spy(&server, &QServerSocket::dataReceived);
    auto client = connectedClient(server.serverPort());
    QVERIFY(client);

    client->write("AB");
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(1).toByteArray(), QByteArray("AB"));
    client->write("CD");
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy.last().at(1).toByteArray(), QByteArray("ABCD"));
    QCOMPARE(spy.first().at(0).value<QTcpSocket *>(), spy.last().at(0).value<QTcpSocket *>());
}

void tst_QServerSocket::connectionsKeepSeparateBuffers()
{
    QServerSocket server(0);
    Latest latest;
    latest.watch(server);
    auto first = connectedClient(server.serverPort());
    auto second = connectedClient(server.serverPort());
    QVERIFY(first && second);

    first->write("one");
    QTRY_VERIFY(latest.contains("one"));
    second->write("two");
    QTRY_VERIFY(latest.contains("two"));
    first->write("+1");
    QTRY_VERIFY(latest.contains("one+1"));
    QCOMPARE(latest.data.size(), 2);
    QVERIFY(latest.contains("two"));
}

void tst_QServerSocket::portInUseLeavesServerThatAcceptsNothing()
{
    QServerSocket owner(0);
    const quint16 port = owner.serverPort();
    const QByteArray portText = QByteArray::number(port);

    QTest::ignoreMessage(QtInfoMsg, ("port: " + portText + "  Listening: fail").constData());
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("^Listening failed! Reason: \\S.*")));
    QServerSocket second(port);
    QCOMPARE(second.isListening(), false);
    QVERIFY(!second.errorString().isEmpty());

    QSignalSpy ownerSpy(&owner, &QServerSocket::dataReceived);
    QSignalSpy secondSpy(&second, &QServerSocket::dataReceived);
    auto client = connectedClient(port);
    QVERIFY(client);
    client->write("hello");
    QTRY_COMPARE(ownerSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 0);
    second.close();
}

void tst_QServerSocket::closeKeepsOpenConnections()
{
    QServerSocket server(0);
    const quint16 port = server.serverPort();
    QSignalSpy spy(&server, &QServerSocket::dataReceived);
    auto client = connectedClient(port);
    QVERIFY(client);
    QTRY_VERIFY(server.findChildren<QTcpSocket *>().size() == 1);

    server.close();
    QCOMPARE(server.isListening(), false);
    client->write("still here");
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(1).toByteArray(), QByteArray("still here"));

    QTcpSocket late;
    late.connectToHost(QHostAddress::LocalHost, port);
    QTRY_COMPARE(late.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(late.error(), QAbstractSocket::ConnectionRefusedError);
}

void tst_QServerSocket::clientVanishingMidStreamReleasesSocket()
{
    QServerSocket server(0);
    Latest latest;
    latest.watch(server);
    auto client = connectedClient(server.serverPort());
    QVERIFY(client);
    client->write(payload(1, 4096));
    QTRY_VERIFY(latest.emissions > 0);
    client->write(payload(2, 100000));
    client->abort();
    client.reset();

    QCOMPARE(latest.sockets.size(), 1);
    QTRY_VERIFY(latest.sockets.first().isNull());

    // A new connection, possibly at the same address, starts with an empty buffer.
    auto next = connectedClient(server.serverPort());
    QVERIFY(next);
    next->write("X");
    QTRY_VERIFY(latest.contains("X"));
}

void tst_QServerSocket::receiverCanAnswerAndClose()
{
    QServerSocket server(0);
    connect(&server, &QServerSocket::dataReceived, this, [](QTcpSocket *socket, const QByteArray &data) {
        if (data.endsWith('\n')) {
            socket->write("got " + QByteArray::number(data.size()));
            socket->disconnectFromHost();
        }
    });
    auto client = connectedClient(server.serverPort());
    QVERIFY(client);
    QSignalSpy closed(client.get(), &QTcpSocket::disconnected);
    client->write("line ");
    client->flush();
    QTest::qWait(20);
    client->write("end\n");
    QVERIFY(closed.wait(5000));
    QCOMPARE(client->readAll(), QByteArray("got 9"));
    QTRY_VERIFY(server.findChildren<QTcpSocket *>().isEmpty());
}

void tst_QServerSocket::manyConnectionsAtOnce()
{
    constexpr int Connections = 64;
    constexpr int Size = 20000;
    QServerSocket server(0);
    Latest latest;
    latest.watch(server);

    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (int i = 0; i < Connections; ++i) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(QHostAddress::LocalHost, server.serverPort());
        clients.back()->write(payload(i, Size));
    }
    auto complete = [&latest] {
        int count = 0;
        for (const QByteArray &bytes : qAsConst(latest.data))
            count += bytes.size() == Size;
        return count;
    };
    QTRY_COMPARE_WITH_TIMEOUT(complete(), Connections, 20000);
    for (int i = 0; i < Connections; ++i)
        QVERIFY2(latest.contains(payload(i, Size)), qPrintable(QString::number(i)));

    for (auto &client : clients)
        client->disconnectFromHost();
    QTRY_VERIFY_WITH_TIMEOUT(std::all_of(latest.sockets.cbegin(), latest.sockets.cend(),
                                 [](const QPointer<QTcpSocket> &socket) { return socket.isNull(); }),
        20000);
}

QTEST_GUILESS_MAIN(tst_QServerSocket)
#include "tst_qserversocket.moc"
