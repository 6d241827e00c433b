#include "recordinghttpserver.h"

#include <LibControl/common/cstring.h>
#include <LibControl/services/qwebclient.h>

#include <QBuffer>
#include <QDataStream>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray FormBoundary = "----WebKitFormBoundary7MA4YWxkTrZu0gW";

QByteArray formPart(const QByteArray &disposition, const QByteArray &body)
{
    return "--" + FormBoundary + "\r\nContent-Disposition: " + disposition + "\r\n\r\n" + body + "\r\n";
}

} // namespace

class tst_QWebClient : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();

    void getSendsAcceptAndAuthorisation_data();
    void getSendsAcceptAndAuthorisation();
    void resultIsUtf8UpToFirstNul_data();
    void resultIsUtf8UpToFirstNul();
    void plainPostIsUrlEncoded_data();
    void plainPostIsUrlEncoded();
    void multipartPostCarriesItemsAndFile();
    void multipartPostCanBeRepeated();
    void unreadableUploadSendsNothing();
    void postByMultiPartHasNoBlankLine();
    void postSoapXmlAuthorisation_data();
    void postSoapXmlAuthorisation();
    void callSoapT2SendsRelatedParts();
    void postAndExpectFileDownloadStreamsBody();
    void getDownloadFileWritesFile();
    void getDownloadFileToUnwritablePathSendsNothing();
    void timeOutAbortsSilentServer();
    void canIgnoreSslError_data();
    void canIgnoreSslError();
    void useMultiPart_data();
    void useMultiPart();
    void base64_data();
    void base64();
};

void tst_QWebClient::initTestCase()
{
    // Never route the test traffic anywhere but the local test server.
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void tst_QWebClient::getSendsAcceptAndAuthorisation_data()
{
    QTest::addColumn<QByteArray>("credentials");
    QTest::addColumn<QByteArray>("scheme");
    QTest::addColumn<QByteArray>("authorization");

    QTest::newRow("no authorisation") << QByteArray() << QByteArray() << QByteArray();
    QTest::newRow("basic") << QByteArray("dTpw") << QByteArray("Basic") << QByteArray("Basic dTpw");
    QTest::newRow("bearer") << QByteArray("tok-1") << QByteArray("Bearer") << QByteArray("Bearer tok-1");
    QTest::newRow("credentials without scheme") << QByteArray("dTpw") << QByteArray() << QByteArray();
    QTest::newRow("empty credentials") << QByteArray("") << QByteArray("Basic") << QByteArray();
}

void tst_QWebClient::getSendsAcceptAndAuthorisation()
{
    QFETCH(QByteArray, credentials);
    QFETCH(QByteArray, scheme);
    QFETCH(QByteArray, authorization);

    RecordingHttpServer server;
    QWebClient client(server.url().constData(), false);
    client.addQueryItem("ignored", "by get");
    QString result;
    QVERIFY(client.get(result, credentials.isNull() ? nullptr : credentials.constData(),
        scheme.isNull() ? nullptr : scheme.constData()));

    QCOMPARE(result, QStringLiteral("canned reply"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    QCOMPARE(request.requestLine(), QByteArray("GET /svc HTTP/1.1"));
    QCOMPARE(request.header("Accept"), QByteArray("application/json"));
    QCOMPARE(request.header("Authorization"), authorization);
    QCOMPARE(request.header("Authorization").isNull(), authorization.isNull());
    QCOMPARE(request.body, QByteArray());
}

void tst_QWebClient::resultIsUtf8UpToFirstNul_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("result");

    QTest::newRow("plain text") << QByteArray("ok") << 200 << QStringLiteral("ok");
    QTest::newRow("UTF-8 decoded") << QByteArray("caf\xc3\xa9") << 200 << QStringLiteral("caf\u00e9");
    QTest::newRow("text after a NUL byte dropped") << QByteArray("abc\0def", 7) << 200 << QStringLiteral("abc");
    QTest::newRow("empty body") << QByteArray() << 200 << QString();
    QTest::newRow("error status still a result") << QByteArray("oops") << 500 << QStringLiteral("oops");
}

void tst_QWebClient::resultIsUtf8UpToFirstNul()
{
    QFETCH(QByteArray, body);
    QFETCH(int, status);
    QFETCH(QString, result);

    RecordingHttpServer server;
    server.setResponse(body, status);
    QWebClient client(server.url().constData(), false);
    QString got = QStringLiteral("stale");
    QVERIFY(client.get(got));
    QCOMPARE(got, result);
}

void tst_QWebClient::plainPostIsUrlEncoded_data()
{
    QTest::addColumn<QList<QByteArray>>("items");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("no items: empty body") << QList<QByteArray>() << QByteArray();
    QTest::newRow("two items") << QList<QByteArray> { "a", "1", "b", "two" } << QByteArray("a=1&b=two");
    QTest::newRow("delimiters and spaces encoded")
        << QList<QByteArray> { "q", "x&y=z", "s", "a b" } << QByteArray("q=x%26y%3Dz&s=a%20b");
    QTest::newRow("non-ASCII as UTF-8") << QList<QByteArray> { "n", "\xc3\xa9" } << QByteArray("n=%C3%A9");
}

void tst_QWebClient::plainPostIsUrlEncoded()
{
    QFETCH(QList<QByteArray>, items);
    QFETCH(QByteArray, body);

    RecordingHttpServer server;
    QWebClient client(server.url().constData(), false);
    for (int i = 0; i + 1 < items.size(); i += 2)
        client.addQueryItem(items[i].constData(), items[i + 1].constData());
    QString result;
    QVERIFY(client.post(result, "dTpw"));

    QCOMPARE(result, QStringLiteral("canned reply"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    QCOMPARE(request.requestLine(), QByteArray("POST /svc HTTP/1.1"));
    QCOMPARE(request.header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(request.header("Accept"), QByteArray("application/json"));
    QCOMPARE(request.header("Authorization"), QByteArray("Basic dTpw"));
    QCOMPARE(request.body, body);
}

void tst_QWebClient::multipartPostCarriesItemsAndFile()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("return.r21"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("file\0bytes", 10));
    file.close();

    RecordingHttpServer server;
    QWebClient client(server.url().constData(), path.toUtf8().constData(), "upload.r21", "doc");
    client.addQueryItem("year", "2025");
    client.addQueryItem("who", "caf\xc3\xa9");
    QString result;
    QVERIFY(client.post(result, nullptr));

    QCOMPARE(result, QStringLiteral("canned reply"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    QCOMPARE(request.header("Content-Type"), "multipart/form-data; boundary=\"" + FormBoundary + '"');
    QCOMPARE(request.header("Accept"), QByteArray("application/json"));
    QCOMPARE(request.header("Authorization"), QByteArray());
    QCOMPARE(request.body,
        formPart("form-data; name=\"year\"", "2025") + formPart("form-data; name=\"who\"", "caf\xc3\xa9")
            + formPart("form-data; name=\"doc\"; filename=\"upload.r21\"", QByteArray("file\0bytes", 10)) + "--"
            + FormBoundary + "--\r\n");
}

void tst_QWebClient::multipartPostCanBeRepeated()
{
    RecordingHttpServer server;
    QWebClient client(server.url().constData(), true);
    client.addQueryItem("a", "1");
    QString result;
    QVERIFY(client.post(result));
    QVERIFY(client.post(result));

    QCOMPARE(server.requests.size(), 2);
    QCOMPARE(server.requests[1].body, server.requests[0].body);
    QCOMPARE(server.requests[0].body, formPart("form-data; name=\"a\"", "1") + "--" + FormBoundary + "--\r\n");
}

void tst_QWebClient::unreadableUploadSendsNothing()
{
    RecordingHttpServer server;
    QWebClient client(server.url().constData(), "/nonexistent/dir/return.r21", "return.r21", "doc");
    QString result = QStringLiteral("untouched");
    QCOMPARE(client.post(result, nullptr), false);
    QCOMPARE(result, QStringLiteral("untouched"));
    QTest::qWait(50);
    QCOMPARE(server.connections, 0);
}

void tst_QWebClient::postByMultiPartHasNoBlankLine()
{
    RecordingHttpServer server;
    QWebClient client(server.url().constData(), false);
    QString result;
    QVERIFY(client.postByMultiPart(result, "t1", "<x>caf\xc3\xa9</x>"));

    QCOMPARE(result, QStringLiteral("canned reply"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    const QByteArray body
        = "--AaB03x\r\nContent-Disposition: form-data; name=\"t1\";\r\n<x>caf\xc3\xa9</x>\r\n--AaB03x--\r\n";
    QCOMPARE(request.requestLine(), QByteArray("POST /svc?fn=1&md=2 HTTP/1.1"));
    QCOMPARE(request.header("Content-Type"), QByteArray("multipart/form-data; boundary=AaB03x"));
    QCOMPARE(request.header("Content-Length"), QByteArray::number(body.size()));
    QCOMPARE(request.body, body);
}

void tst_QWebClient::postSoapXmlAuthorisation_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<bool>("stdStringBody");
    QTest::addColumn<QByteArray>("authorization");

    QTest::newRow("bearer in lower case")
        << QByteArray("authorization_bearer") << QByteArray("P") << false << QByteArray("Bearer P");
    QTest::newRow("bearer in mixed case")
        << QByteArray("Authorization_BEARER") << QByteArray("tok") << true << QByteArray("Bearer tok");
    QTest::newRow("basic user and password")
        << QByteArray("user") << QByteArray("pw") << false << QByteArray("Basic dXNlcjpwdw==");
    QTest::newRow("basic without password") << QByteArray("u") << QByteArray() << true << QByteArray("Basic dTo=");
    QTest::newRow("no user") << QByteArray() << QByteArray("pw") << false << QByteArray();
}

void tst_QWebClient::postSoapXmlAuthorisation()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    QFETCH(bool, stdStringBody);
    QFETCH(QByteArray, authorization);

    RecordingHttpServer server;
    server.setResponse(QByteArray("<ok/>\0tail", 10));
    QWebClient client(server.url().constData(), false);
    const QByteArray envelope = "<soap:Envelope>\xc3\xa9</soap:Envelope>";
    const char *userArg = user.isNull() ? nullptr : user.constData();
    const char *passwordArg = password.isNull() ? nullptr : password.constData();
    std::string result;
    const QString type = QStringLiteral("text/xml; charset=utf-8");
    QVERIFY(stdStringBody ? client.postSoapXML(envelope.toStdString(), type, userArg, passwordArg, result)
                          : client.postSoapXML(envelope, type, userArg, passwordArg, result));

    QCOMPARE(result, std::string("<ok/>"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    QCOMPARE(request.requestLine(), QByteArray("POST /svc HTTP/1.1"));
    QCOMPARE(request.header("Content-Type"), QByteArray("text/xml; charset=utf-8"));
    QCOMPARE(request.header("Content-Length"), QByteArray::number(envelope.size()));
    QCOMPARE(request.header("SOAPAction"), QByteArray("testest"));
    QCOMPARE(request.header("Authorization"), authorization);
    QCOMPARE(request.body, envelope);
}

void tst_QWebClient::callSoapT2SendsRelatedParts()
{
    RecordingHttpServer server;
    QWebClient client(server.url().constData(), false);
    QString result;
    QVERIFY(client.callSoapT2(CString("<Envelope/>"), std::string("T2 data\n"), result));

    QCOMPARE(result, QStringLiteral("canned reply"));
    QCOMPARE(server.requests.size(), 1);
    const auto &request = server.requests.first();
    QCOMPARE(request.header("Content-Type"),
        QByteArray("multipart/related; boundary=\"MULTI-PARTS-FORM-DATA-BOUNDARY\"; "
                   "type=\"text/xml\"; start=\"<soapPart>\""));
    QCOMPARE(request.header("SOAPAction"), QByteArray("testest"));
    QCOMPARE(request.body,
        QByteArray("--MULTI-PARTS-FORM-DATA-BOUNDARY\r\n"
                   "Content-Type: text/xml; charset=iso-8859-1\r\n"
                   "Content-Transfer-Encoding: 8bit\r\n"
                   "Content-ID: <soapPart>\r\n\r\n"
                   "<Envelope/>\r\n"
                   "--MULTI-PARTS-FORM-DATA-BOUNDARY\r\n"
                   "Content-Type: text/plain; charset=iso-8859-1\r\n\r\n"
                   "T2 data\n\r\n"
                   "--MULTI-PARTS-FORM-DATA-BOUNDARY--\r\n"));
}

void tst_QWebClient::postAndExpectFileDownloadStreamsBody()
{
    QByteArray payload(300 * 1024, '\0');
    for (int i = 0; i < payload.size(); ++i)
        payload[i] = char(i * 7);
    RecordingHttpServer server;
    server.setResponse(payload);
    QWebClient client(server.url().constData(), false);
    client.addQueryItem("id", "7");
    QBuffer sink;
    sink.open(QIODevice::WriteOnly);
    QDataStream out(&sink);
    QVERIFY(client.postAndExpectFileDownload(&out));

    QCOMPARE(sink.data().size(), payload.size());
    QVERIFY(sink.data() == payload);
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(server.requests.first().body, QByteArray("id=7"));
}

void tst_QWebClient::getDownloadFileWritesFile()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("form.pdf"));
    RecordingHttpServer server;
    server.setResponse(QByteArray("%PDF\0\1\2", 7));
    QWebClient client(server.url().constData(), false);
    QVERIFY(client.getDownloadFile(path));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("%PDF\0\1\2", 7));
    QCOMPARE(server.requests.first().requestLine(), QByteArray("GET /svc HTTP/1.1"));
}

void tst_QWebClient::getDownloadFileToUnwritablePathSendsNothing()
{
    RecordingHttpServer server;
    QWebClient client(server.url().constData(), false);
    QCOMPARE(client.getDownloadFile(QStringLiteral("/nonexistent/dir/form.pdf")), false);
    QTest::qWait(50);
    QCOMPARE(server.connections, 0);
}

void tst_QWebClient::timeOutAbortsSilentServer()
{
    RecordingHttpServer server;
    server.setSilent(true);
    QWebClient client(server.url().constData(), false);
    QCOMPARE(client.timeoutMs(), 0);
    client.setTimeoutMs(100);
    QString result = QStringLiteral("stale");
    QVERIFY(client.get(result));
    QCOMPARE(result, QString());
    QCOMPARE(server.requests.size(), 1);
}

void tst_QWebClient::canIgnoreSslError_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<bool>("ignored");

    QTest::newRow("https to 192.168.1.10") << QByteArray("https://192.168.1.10/efile") << true;
    QTest::newRow("https to 192.168.0.1 with port") << QByteArray("https://192.168.0.1:8443") << true;
    QTest::newRow("https to 10.0.0.1") << QByteArray("https://10.0.0.1/efile") << false;
    QTest::newRow("http to 192.168.1.10") << QByteArray("http://192.168.1.10/efile") << false;
    QTest::newRow("scheme in upper case") << QByteArray("HTTPS://192.168.1.10/") << false;
    QTest::newRow("user before the address") << QByteArray("https://u@192.168.1.10/") << false;
    QTest::newRow("prefix without its last dot") << QByteArray("https://192.168") << false;
    QTest::newRow("public host") << QByteArray("https://example.org/") << false;
    QTest::newRow("empty url") << QByteArray() << false;
}

void tst_QWebClient::canIgnoreSslError()
{
    QFETCH(QByteArray, url);
    QFETCH(bool, ignored);

    QWebClient client(url.isNull() ? nullptr : url.constData(), false);
    QCOMPARE(client.canIgnoreSslError(), ignored);
}

void tst_QWebClient::useMultiPart_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QByteArray>("fileName");
    QTest::addColumn<bool>("multiPart");

    QTest::newRow("flag off") << false << QByteArray() << false;
    QTest::newRow("flag on") << true << QByteArray() << true;
    QTest::newRow("upload file name") << false << QByteArray("a.r21") << true;
}

void tst_QWebClient::useMultiPart()
{
    QFETCH(bool, flag);
    QFETCH(QByteArray, fileName);
    QFETCH(bool, multiPart);

    if (fileName.isEmpty()) {
        QCOMPARE(QWebClient("http://127.0.0.1/", flag).useMultiPart(), multiPart);
    } else {
        QCOMPARE(QWebClient("http://127.0.0.1/", "/tmp/a", fileName.constData(), "f").useMultiPart(), multiPart);
    }
}

void tst_QWebClient::base64_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("encoded");

    QTest::newRow("empty") << QByteArray("") << QByteArray("");
    QTest::newRow("one byte, two pads") << QByteArray("f") << QByteArray("Zg==");
    QTest::newRow("user and password") << QByteArray("user:pw") << QByteArray("dXNlcjpwdw==");
}

void tst_QWebClient::base64()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, encoded);

    const int size = Base64encode_len(input.size());
    QCOMPARE(size, (input.size() + 2) / 3 * 4 + 1);
    QByteArray buffer(size + 4, 'x');
    QCOMPARE(Base64encode(buffer.data(), input.constData(), input.size()), encoded.size() + 1);
    QCOMPARE(QByteArray(buffer.constData()), encoded);
    QCOMPARE(buffer.at(size), 'x');
}

QTEST_GUILESS_MAIN(tst_QWebClient)
#include "tst_qwebclient.moc"
