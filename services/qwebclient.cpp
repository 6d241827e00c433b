#include <LibControl/services/qwebclient.h>

#include <QDataStream>
#include <QEventLoop>
#include <QFile>
#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTimer>

#include <memory>

namespace {

QString fromBytes(const char *text)
{
    return text ? QString::fromUtf8(text) : QString();
}

// Reply bodies are text up to the first NUL byte.
QByteArray upToNul(const QByteArray &data)
{
    const int nul = data.indexOf('\0');
    return nul < 0 ? data : data.left(nul);
}

} // namespace

QWebClient::QWebClient(const char *url, bool multiPart)
    : m_url(url ? url : "")
    , m_isMultiPart(multiPart)
{ }

QWebClient::QWebClient(const char *url, const char *filePath, const char *fileName, const char *fieldName)
    : m_url(url ? url : "")
    , m_filePath(fromBytes(filePath))
    , m_fileName(fromBytes(fileName))
    , m_fieldName(fromBytes(fieldName))
{ }

QWebClient::~QWebClient() = default;

bool QWebClient::useMultiPart() const
{
    return !m_fileName.isEmpty() || m_isMultiPart;
}

void QWebClient::addQueryItem(const char *name, const char *value)
{
    m_queryItems.addQueryItem(fromBytes(name), fromBytes(value));
    if (!useMultiPart())
        return;
    QHttpPart part;
    part.setRawHeader("Content-Disposition", QByteArray("form-data; name=\"") + name + '"');
    part.setBody(QByteArray(value));
    m_multiPart.append(part);
}

void QWebClient::setTimeoutMs(int ms)
{
    m_timeoutMs = qMax(0, ms);
}

int QWebClient::timeoutMs() const
{
    return m_timeoutMs;
}

bool QWebClient::canIgnoreSslError()
{
    static const char prefix[] = "https://192.168.";
    return m_url.compare(0, sizeof prefix - 1, prefix) == 0;
}

QNetworkRequest QWebClient::newRequest(const QString &url) const
{
    return QNetworkRequest(QUrl(url));
}

QString QWebClient::urlText() const
{
    return QString::fromLatin1(m_url.data(), int(m_url.size()));
}

QNetworkAccessManager *QWebClient::startManager()
{
    m_manager = new QNetworkAccessManager(this);
    return m_manager;
}

QByteArray QWebClient::waitFor(QNetworkReply *reply, Hooks hooks)
{
    m_reply = reply;
    QEventLoop loop;
    connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (hooks == Hooks::ErrorsAndTls) {
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
        connect(reply, &QNetworkReply::errorOccurred, this, &QWebClient::onError);
#else
        connect(reply, qOverload<QNetworkReply::NetworkError>(&QNetworkReply::error), this, &QWebClient::onError);
#endif
        connect(reply, &QNetworkReply::sslErrors, this, &QWebClient::onSslError);
    }
    if (m_downloadStream)
        connect(reply, &QNetworkReply::downloadProgress, this, &QWebClient::onUpdateProgress);
    QTimer timer;
    if (m_timeoutMs > 0) {
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, reply, &QNetworkReply::abort);
        timer.start(m_timeoutMs);
    }
    if (!reply->isFinished())
        loop.exec();
    // Whatever arrived after the last progress report.
    if (m_downloadStream)
        onUpdateProgress(0, 0);
    // An aborted reply is closed and has nothing left to read.
    const QByteArray data = reply->isOpen() ? reply->readAll() : QByteArray();
    replyFinished(reply);
    m_reply = nullptr;
    return data;
}

void QWebClient::replyFinished(QNetworkReply *reply)
{
    if (reply)
        reply->deleteLater();
    if (!m_manager)
        return;
    m_manager->disconnect();
    m_manager->deleteLater();
    m_manager = nullptr;
}

void QWebClient::onError(QNetworkReply::NetworkError) { }

void QWebClient::onSslError(const QList<QSslError> &)
{
    if (m_reply && canIgnoreSslError())
        m_reply->ignoreSslErrors();
}

void QWebClient::onUpdateProgress(qint64, qint64)
{
    if (!m_reply || !m_downloadStream || !m_reply->isOpen())
        return;
    const QByteArray chunk = m_reply->readAll();
    if (!chunk.isEmpty())
        m_downloadStream->writeRawData(chunk.constData(), chunk.size());
}

bool QWebClient::get(QString &result)
{
    return get(result, nullptr, nullptr);
}

bool QWebClient::get(QString &result, const char *credentials, const char *scheme)
{
    QNetworkRequest request = newRequest(urlText());
    request.setRawHeader("Accept", "application/json");
    requestAddAuthHeader(request, credentials, scheme);
    result = QString::fromUtf8(upToNul(waitFor(startManager()->get(request), Hooks::None)));
    return true;
}

bool QWebClient::post(QString &result, const char *credentials)
{
    return post(result, credentials, "Basic");
}

bool QWebClient::post(QString &result, const char *credentials, const char *scheme)
{
    QByteArray data;
    if (!postForm(data, credentials, scheme))
        return false;
    result = QString::fromUtf8(upToNul(data));
    return true;
}

bool QWebClient::postAndExpectFileDownload(QDataStream *out)
{
    m_downloadStream = out;
    QByteArray rest;
    const bool sent = postForm(rest, nullptr, nullptr);
    m_downloadStream = nullptr;
    return sent;
}

bool QWebClient::getDownloadFile(const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    m_downloadStream = &out;
    waitFor(startManager()->get(newRequest(urlText())), Hooks::None);
    m_downloadStream = nullptr;
    return out.status() == QDataStream::Ok && file.commit();
}

bool QWebClient::postForm(QByteArray &reply, const char *credentials, const char *scheme)
{
    QNetworkRequest request = newRequest(urlText());
    requestAddAuthHeader(request, credentials, scheme);
    request.setRawHeader("Accept", "application/json");
    if (!useMultiPart()) {
        request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("application/x-www-form-urlencoded"));
        const QByteArray body = m_queryItems.query(QUrl::FullyEncoded).toUtf8();
        reply = waitFor(startManager()->post(request, body), Hooks::ErrorsAndTls);
        return true;
    }
    std::unique_ptr<QHttpMultiPart> body = newFormMultiPart();
    if (!body)
        return false;
    QNetworkAccessManager *manager = startManager();
    body->setParent(manager);
    reply = waitFor(manager->post(request, body.release()), Hooks::ErrorsAndTls);
    return true;
}

std::unique_ptr<QHttpMultiPart> QWebClient::newFormMultiPart() const
{
    auto body = std::make_unique<QHttpMultiPart>(QHttpMultiPart::FormDataType);
    body->setBoundary("----WebKitFormBoundary7MA4YWxkTrZu0gW");
    for (const QHttpPart &part : m_multiPart)
        body->append(part);
    if (m_filePath.isEmpty())
        return body;
    auto *file = new QFile(m_filePath, body.get());
    if (!file->open(QIODevice::ReadOnly))
        return nullptr;
    QHttpPart part;
    part.setRawHeader("Content-Disposition",
        QStringLiteral("form-data; name=\"%1\"; filename=\"%2\"").arg(m_fieldName, m_fileName).toUtf8());
    part.setBodyDevice(file);
    body->append(part);
    return body;
}
