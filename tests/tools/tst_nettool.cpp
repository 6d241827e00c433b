#include "../services/recordinghttpserver.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

namespace {

// Runs the tool while this thread's event loop keeps the test's servers going.
bool runTool(QProcess &tool, const QStringList &arguments)
{
    QSignalSpy finished(&tool, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    tool.start(QStringLiteral(LIBCONTROL_TOOL), arguments);
    return finished.wait(20000) || finished.count() == 1;
}

} // namespace

class tst_NetTool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QProcess::ExitStatus>(); }
    void httpSendsRequest_data();
    void httpSendsRequest();
    void badArguments_data();
    void badArguments();
    void serveOnTakenPortFails();
    void serveShowsAccumulatedBytes();
};

void tst_NetTool::httpSendsRequest_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("requestLine");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("get puts the pairs in the URL")
        << QStringList { "get", "a=1", "b=x y" } << QByteArray("GET /svc?a=1&b=x%20y HTTP/1.1") << QByteArray();
    QTest::newRow("post sends a form") << QStringList { "post", "a=1", "b=x y" } << QByteArray("POST /svc HTTP/1.1")
                                       << QByteArray("a=1&b=x%20y");
}

void tst_NetTool::httpSendsRequest()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, requestLine);
    QFETCH(QByteArray, body);

    RecordingHttpServer server;
    arguments.insert(1, QString::fromLatin1(server.url()));
    QProcess tool;
    QVERIFY(runTool(tool, QStringList { QStringLiteral("http") } + arguments));
    QCOMPARE(tool.exitCode(), 0);
    QCOMPARE(tool.readAllStandardOutput(), QByteArray("canned reply\n"));
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(server.requests.first().requestLine(), requestLine);
    QCOMPARE(server.requests.first().body, body);
}

void tst_NetTool::badArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");

    QTest::newRow("http without URL") << QStringList { "http", "get" } << QByteArray("libcontrol http: expects");
    QTest::newRow("unknown method") << QStringList { "http", "put", "http://127.0.0.1:1/" }
                                    << QByteArray("libcontrol http: unknown method");
    QTest::newRow("not an http URL") << QStringList { "http", "get", "ftp://127.0.0.1/" }
                                     << QByteArray("libcontrol http: not an http");
    QTest::newRow("pair without equals") << QStringList { "http", "post", "http://127.0.0.1:1/", "a" }
                                         << QByteArray("libcontrol http: expects NAME=VALUE");
    QTest::newRow("port out of range") << QStringList { "serve", "65536" } << QByteArray("libcontrol serve: port out");
    QTest::newRow("port not a number") << QStringList { "serve", "http" } << QByteArray("libcontrol serve: not an");
}

void tst_NetTool::badArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);

    QProcess tool;
    QVERIFY(runTool(tool, arguments));
    QCOMPARE(tool.exitCode(), 2);
    QVERIFY2(tool.readAllStandardError().startsWith(error), error.constData());
}

void tst_NetTool::serveOnTakenPortFails()
{
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress::LocalHost, 0));
    QProcess tool;
    QVERIFY(runTool(tool, { QStringLiteral("serve"), QString::number(taken.serverPort()) }));
    QCOMPARE(tool.exitCode(), 3);
    QVERIFY(tool.readAllStandardError().contains("libcontrol serve: cannot listen on 127.0.0.1:"));
}

void tst_NetTool::serveShowsAccumulatedBytes()
{
    QProcess tool;
    tool.setReadChannel(QProcess::StandardOutput);
    tool.start(QStringLiteral(LIBCONTROL_TOOL), { QStringLiteral("serve"), QStringLiteral("0") });
    QByteArray output;
    QTRY_VERIFY_WITH_TIMEOUT((output += tool.readAll()).contains('\n'), 10000);
    const QRegularExpression listening(QStringLiteral("^listening on 127\\.0\\.0\\.1:(\\d+) "));
    const auto match = listening.match(QString::fromLatin1(output));
    QVERIFY2(match.hasMatch(), output.constData());

    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, match.captured(1).toUShort());
    QVERIFY(client.waitForConnected(5000));
    client.write("AB");
    QTRY_VERIFY_WITH_TIMEOUT((output += tool.readAll()).contains(": 2 bytes: AB\n"), 10000);
    client.write(QByteArray("C\nD", 3));
    QTRY_VERIFY_WITH_TIMEOUT((output += tool.readAll()).contains(": 5 bytes: ABC\\x0aD\n"), 10000);

    tool.kill();
    QVERIFY(tool.waitForFinished(5000));
}

QTEST_GUILESS_MAIN(tst_NetTool)
#include "tst_nettool.moc"
