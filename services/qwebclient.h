#ifndef LIBCONTROL_SERVICES_QWEBCLIENT_H
#define LIBCONTROL_SERVICES_QWEBCLIENT_H

#include <LibControl/libcontrol_export.h>

#include <QByteArray>
#include <QHttpMultiPart>
#include <QList>
#include <QNetworkReply>
#include <QObject>
#include <QSslError>
#include <QString>
#include <QUrlQuery>

#include <memory>
#include <string>

class CString;
class QDataStream;
class QNetworkAccessManager;
class QNetworkRequest;

/**
 * A small blocking HTTP client for the applications' web-service calls.
 *
 * Every request operation sends one request to the client's URL with a fresh
 * QNetworkAccessManager and waits in a nested QEventLoop until the reply has
 * finished, so the caller's thread must be one that can run an event loop
 * (the user-interface thread, or a thread with its own loop). One client runs
 * one request at a time.
 *
 * Every request operation returns true once a reply has arrived, whatever its
 * HTTP status; network and HTTP errors are not reported separately, the result
 * is then whatever body the reply carried (often empty). Results are the reply
 * body decoded as UTF-8 up to its first NUL byte.
 *
 * There is no time-out unless one is asked for with setTimeoutMs().
 */
class LIBCONTROL_EXPORT QWebClient : public QObject
{
    Q_OBJECT
public:
    /** A client for `url` (read as ASCII); `multiPart` chooses multipart form posts. */
    QWebClient(const char *url, bool multiPart);
    /**
     * A client that uploads a file with its posts: `filePath` is read, sent
     * under `fileName` in the form field `fieldName`. A non-empty `fileName`
     * makes every post multipart. Null pointers read as empty strings.
     */
    QWebClient(const char *url, const char *filePath, const char *fileName, const char *fieldName);
    ~QWebClient() override;

    /** True if the upload file name is not empty, else the multipart flag given at construction. */
    bool useMultiPart() const;
    /**
     * Adds a name and value pair: to the URL-encoded form of plain posts and,
     * when useMultiPart() is true, also as a "form-data" part whose body is the
     * value's bytes. Null pointers read as empty strings.
     */
    void addQueryItem(const char *name, const char *value);

    /**
     * GET with "Accept: application/json", and an "Authorization" header of
     * `scheme` and `credentials` when both are given (see requestAddAuthHeader).
     */
    bool get(QString &result, const char *credentials, const char *scheme);
    /** GET without authorisation. */
    bool get(QString &result);

    /**
     * POST of the query items with "Accept: application/json" and optional
     * authorisation: URL-encoded ("application/x-www-form-urlencoded", UTF-8,
     * an empty body when there are no items), or multipart form-data with
     * boundary "----WebKitFormBoundary7MA4YWxkTrZu0gW" carrying the upload
     * file, if any, after the items. Returns false, sending nothing, when the
     * upload file cannot be opened.
     */
    bool post(QString &result, const char *credentials, const char *scheme);
    /** post() with the "Basic" scheme; a null `credentials` sends no authorisation. */
    bool post(QString &result, const char *credentials = nullptr);

    /**
     * POST to the client URL followed by "?fn=1&md=2" of a hand-made
     * multipart/form-data body (boundary "AaB03x") with one part named `name`.
     * The part header is followed directly by `content`, without the usual
     * blank line; servers of this call expect exactly that layout.
     */
    bool postByMultiPart(QString &result, const char *name, const char *content);

    /**
     * POST of a SOAP `body` with the given content type, "SOAPAction: testest"
     * and authorisation: Bearer with `password` as token when `user` equals
     * "authorization_bearer" in any case, else Basic of "user:password" when a
     * user is given, else none. `result` receives the reply bytes up to the
     * first NUL.
     */
    bool postSoapXML(const QByteArray &body, const QString &contentType, const char *user, const char *password,
        std::string &result);
    /** postSoapXML() with the body given as a std::string of bytes. */
    bool postSoapXML(const std::string &body, const QString &contentType, const char *user, const char *password,
        std::string &result);

    /**
     * A SOAP call sent as multipart/related: the envelope (in the local 8-bit
     * encoding) as the "<soapPart>" start part, then `attachment` as plain text.
     */
    bool callSoapT2(const CString &envelope, const std::string &attachment, QString &result);

    /**
     * post(), writing the reply body to `out` as raw bytes while it arrives.
     * A null `out` discards the body.
     */
    bool postAndExpectFileDownload(QDataStream *out);
    /**
     * GET, writing the reply body to the file at `path`; the file is replaced
     * only once the reply has finished. Returns false, sending nothing, when the
     * file cannot be created, and false when it cannot be written.
     */
    bool getDownloadFile(const QString &path);

    /** True when the URL begins exactly with "https://192.168." (private servers with self-made certificates). */
    bool canIgnoreSslError();

    /**
     * Bounds every later request to `ms` milliseconds; 0 (the default) waits
     * for ever. A request that takes longer is aborted and ends like a failed
     * request: the operation returns true with whatever body had arrived.
     * Negative values read as 0.
     */
    void setTimeoutMs(int ms);
    /** The time-out set by setTimeoutMs(); 0 means none. */
    int timeoutMs() const;

public Q_SLOTS:
    /** Schedules `reply` and the access manager for deletion and forgets the manager. */
    void replyFinished(QNetworkReply *reply);
    /** Does nothing: errors are not reported separately. */
    void onError(QNetworkReply::NetworkError code);
    /** Ignores the TLS errors of the current reply when canIgnoreSslError() allows it. */
    void onSslError(const QList<QSslError> &errors);
    /** Moves everything the current reply has received so far to the download stream. */
    void onUpdateProgress(qint64 read, qint64 total);

private:
    enum class Hooks { None, ErrorsAndTls };

    QString urlText() const;
    QNetworkRequest newRequest(const QString &url) const;
    QNetworkAccessManager *startManager();
    QByteArray waitFor(QNetworkReply *reply, Hooks hooks);
    bool postForm(QByteArray &reply, const char *credentials, const char *scheme);
    std::unique_ptr<QHttpMultiPart> newFormMultiPart() const;

    QNetworkAccessManager *m_manager = nullptr;
    QNetworkReply *m_reply = nullptr;
    QUrlQuery m_queryItems;
    // The form-data parts added so far; each multipart post sends them in a
    // body of its own, so a client can post more than once.
    QList<QHttpPart> m_multiPart;
    std::string m_url;
    QString m_filePath;
    QString m_fileName;
    QString m_fieldName;
    bool m_isMultiPart = false;
    QDataStream *m_downloadStream = nullptr;
    int m_timeoutMs = 0;
};

/**
 * Sets the raw "Authorization" header of `request` to `scheme`, a blank and
 * `credentials` (for example "Basic dXNlcjpwdw==") in the local 8-bit
 * encoding, when both are given; a null or empty one leaves the request alone.
 */
LIBCONTROL_EXPORT void requestAddAuthHeader(QNetworkRequest &request, const char *credentials, const char *scheme);

/**
 * The size of the buffer Base64encode() needs for `len` bytes: four
 * characters per started group of three, plus the terminating zero byte.
 * A negative `len` counts as 0.
 */
LIBCONTROL_EXPORT int Base64encode_len(int len);

/**
 * Writes the standard base64 of the `len` bytes at `string` ("A"-"Z", "a"-"z",
 * "0"-"9", "+", "/", "=" padding) and a terminating zero byte to `encoded`,
 * which must hold Base64encode_len(len) bytes. Returns the number of bytes
 * written, the zero byte included. A null `string` or negative `len` encodes
 * nothing; a null `encoded` writes nothing and returns 0.
 */
LIBCONTROL_EXPORT int Base64encode(char *encoded, const char *string, int len);

#endif
