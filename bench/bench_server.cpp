// Pushes many concurrent loopback connections through QServerSocket and
// reports how long it took for every byte to arrive.
//
//   bench_server [CONNECTIONS [KIB [ROUNDS]]]    (defaults 200 64 5)

#include <LibControl/services/qserversocket.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHostAddress>
#include <QLoggingCategory>
#include <QTcpSocket>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

struct Round
{
    qint64 nanoseconds = 0;
    int complete = 0;
    qint64 bytes = 0;
    qint64 emissions = 0;
};

// Each connection's bytes start with its index, so the server side can tell
// whose payload it is looking at and check every byte.
QByteArray payload(int index, int size)
{
    QByteArray bytes = QByteArray::number(index).rightJustified(8, '0');
    bytes.reserve(size);
    while (bytes.size() < size)
        bytes += char((bytes.size() * 31 + index) & 0xff);
    return bytes.left(size);
}

Round runRound(const std::vector<QByteArray> &payloads, int size)
{
    const int connections = int(payloads.size());
    Round round;
    QServerSocket server(0);
    QEventLoop loop;
    QObject::connect(&server, &QServerSocket::dataReceived, [&](QTcpSocket *, const QByteArray &data) {
        ++round.emissions;
        if (data.size() < size)
            return;
        round.bytes += data.size();
        const int index = data.left(8).toInt();
        if (index >= 0 && index < connections && data == payloads[size_t(index)])
            ++round.complete;
        if (round.complete == connections)
            loop.quit();
    });

    std::vector<std::unique_ptr<QTcpSocket>> clients;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < connections; ++i) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(QHostAddress::LocalHost, server.serverPort());
        clients.back()->write(payloads[size_t(i)]);
    }
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    round.nanoseconds = timer.nsecsElapsed();
    return round;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    const QStringList args = app.arguments();
    const int connections = args.size() > 1 ? qMax(1, args[1].toInt()) : 200;
    const int size = (args.size() > 2 ? qMax(1, args[2].toInt()) : 64) * 1024;
    const int rounds = args.size() > 3 ? qMax(1, args[3].toInt()) : 5;

    QTextStream out(stdout);
    std::vector<QByteArray> payloads;
    for (int i = 0; i < connections; ++i)
        payloads.push_back(payload(i, size));
    std::vector<double> milliseconds;
    bool allArrived = true;
    for (int r = 0; r < rounds; ++r) {
        const Round round = runRound(payloads, size);
        const double ms = round.nanoseconds / 1e6;
        milliseconds.push_back(ms);
        allArrived = allArrived && round.complete == connections;
        out << "round " << r + 1 << ": " << QString::number(ms, 'f', 1) << " ms, " << round.complete << '/'
            << connections << " connections complete, " << round.bytes << " bytes checked, " << round.emissions
            << " signals, " << QString::number(round.bytes / 1048576.0 / (ms / 1000.0), 'f', 1) << " MiB/s\n";
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    out << "median " << QString::number(milliseconds[milliseconds.size() / 2], 'f', 1) << " ms for " << connections
        << " connections of " << size / 1024 << " KiB; every byte arrived: " << (allArrived ? "yes" : "NO") << '\n';
    return allArrived ? 0 : 1;
}
