#include <LibControl/services/syspaths.h>

#include <QDesktopServices>
#include <QtTest>

namespace {

// Stands in for the desktop's file manager.
class UrlRecorder : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> urls;
public Q_SLOTS:
    void openUrl(QUrl const &url) { urls.append(url); }
};

} // namespace

class tst_SysPaths : public QObject
{
    Q_OBJECT

private:
    QString writeFile(QString const &name, QByteArray const &content);

private Q_SLOTS:
    void libraryFileName_data();
    void libraryFileName();
    void makeFolderExists_data();
    void makeFolderExists();
    void showInFolderOpensTheFolder_data();
    void showInFolderOpensTheFolder();
    void loadFileToQString_data();
    void loadFileToQString();
    void loadFileToString_data();
    void loadFileToString();
    void unreadableFilesLeaveTheOutputAlone();
    void documentsFolderIsUnderHome();
    void systemDescriptionNamesTheMachine();

private:
    QTemporaryDir m_dir;
};

QString tst_SysPaths::writeFile(QString const &name, QByteArray const &content)
{
    QString const path = m_dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QString();
    return path;
}

void tst_SysPaths::libraryFileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain module") << "t1" << "libt1.so";
    QTest::newRow("non-resident variant") << "t1_nonresi" << "libt1.so";
    QTest::newRow("every marker removed") << "a_nonresi_b_nonresi" << "liba_b.so";
    QTest::newRow("marker in capitals kept") << "t1_NONRESI" << "libt1_NONRESI.so";
    QTest::newRow("empty name") << "" << "lib.so";
}

void tst_SysPaths::libraryFileName()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QString out = QStringLiteral("old");
    getOSLibFilename(name, out);
    QCOMPARE(out, expected);
}

void tst_SysPaths::makeFolderExists_data()
{
    QTest::addColumn<QString>("relativePath");
    QTest::addColumn<bool>("created");
    QTest::newRow("nested missing folders") << "a/b/c" << true;
    QTest::newRow("existing folder") << "." << true;
    QTest::newRow("under a file") << "plain.txt/sub" << false;
}

void tst_SysPaths::makeFolderExists()
{
    QFETCH(QString, relativePath);
    QFETCH(bool, created);
    writeFile(QStringLiteral("plain.txt"), "x");
    QString const path = m_dir.filePath(relativePath);
    QCOMPARE(::makeFolderExists(path), created);
    QCOMPARE(QFileInfo(path).isDir(), created);
}

void tst_SysPaths::showInFolderOpensTheFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QString const root = m_dir.path();
    QDir(root).mkpath(QStringLiteral("docs"));
    writeFile(QStringLiteral("docs/return.t1"), "x");
    QTest::newRow("folder") << root + "/docs" << root + "/docs";
    QTest::newRow("folder with trailing slash") << root + "/docs/" << root + "/docs";
    QTest::newRow("file") << root + "/docs/return.t1" << root + "/docs";
    QTest::newRow("missing file") << root + "/docs/gone.t1" << root + "/docs";
}

void tst_SysPaths::showInFolderOpensTheFolder()
{
    QFETCH(QString, path);
    QFETCH(QString, folder);
    UrlRecorder recorder;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &recorder, "openUrl");
    bool const opened = showInFolder(path);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));

    QVERIFY(opened);
    QCOMPARE(recorder.urls.size(), 1);
    QVERIFY(recorder.urls.first().isLocalFile());
    QCOMPARE(QDir::cleanPath(recorder.urls.first().toLocalFile()), folder);
}

void tst_SysPaths::loadFileToQString_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("UTF-8 text kept as it is") << QByteArray("caf\xC3\xA9\r\nline 2") << QStringLiteral("caf\u00E9\r\nline 2");
    QTest::newRow("byte-order mark dropped") << QByteArray("\xEF\xBB\xBFtext") << QStringLiteral("text");
    QTest::newRow("malformed byte replaced") << QByteArray("a\xFFz") << QStringLiteral("a\uFFFDz");
    QTest::newRow("empty file") << QByteArray() << QString();
}

void tst_SysPaths::loadFileToQString()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    QString out = QStringLiteral("replaced");
    QVERIFY(::loadFileToQString(QFile::encodeName(writeFile(QStringLiteral("q.txt"), content)).constData(), out));
    QCOMPARE(out, expected);
}

void tst_SysPaths::loadFileToString_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("every line ends with a newline") << QByteArray("a\nb") << QByteArray("head:a\nb\n");
    QTest::newRow("Windows line endings") << QByteArray("a\r\nb\r\n") << QByteArray("head:a\nb\n");
    QTest::newRow("blank lines kept") << QByteArray("a\n\n\nb\n") << QByteArray("head:a\n\n\nb\n");
    QTest::newRow("UTF-8 byte-order mark dropped") << QByteArray("\xEF\xBB\xBFr\xC3\xA9sum\xC3\xA9\n")
                                                   << QByteArray("head:r\xC3\xA9sum\xC3\xA9\n");
    QTest::newRow("UTF-16 file turned into UTF-8")
        << QTextCodec::codecForName("UTF-16LE")->fromUnicode(QStringLiteral("\u00E9t\u00E9\r\nx"))
        << QByteArray("head:\xC3\xA9t\xC3\xA9\nx\n");
    QTest::newRow("empty file") << QByteArray() << QByteArray("head:");
}

void tst_SysPaths::loadFileToString()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, expected);
    std::string out = "head:";
    QCOMPARE(::loadFileToString(writeFile(QStringLiteral("s.txt"), content), out), 0);
    QCOMPARE(QByteArray::fromStdString(out), expected);
}

void tst_SysPaths::unreadableFilesLeaveTheOutputAlone()
{
    QString const missing = m_dir.filePath(QStringLiteral("absent.txt"));
    std::string text = "kept";
    QCOMPARE(::loadFileToString(missing, text), 107);
    QCOMPARE(::loadFileToString(m_dir.path(), text), 107);
    QCOMPARE(text, std::string("kept"));

    QString qtext = QStringLiteral("kept");
    QCOMPARE(::loadFileToQString(QFile::encodeName(missing).constData(), qtext), false);
    QCOMPARE(::loadFileToQString(nullptr, qtext), false);
    QCOMPARE(qtext, QStringLiteral("kept"));
}

void tst_SysPaths::documentsFolderIsUnderHome()
{
    QByteArray const oldHome = qgetenv("HOME");
    qputenv("HOME", "/home/preparer");
    CString out("prefix:");
    formatWinDocPathToMacPath(out, CString("C:\\Users\\preparer\\Documents"), "ignored", 7);
    qputenv("HOME", oldHome);
    QCOMPARE(out, CString("prefix:/home/preparer/Documents"));
}

void tst_SysPaths::systemDescriptionNamesTheMachine()
{
    QString out = QStringLiteral("old");
    getSysUID(out);
    QStringList const parts = out.split(QLatin1Char('+'));
    QCOMPARE(parts.size(), 3);
    QVERIFY(parts.first().startsWith(QSysInfo::productType()));
    QCOMPARE(parts.last(), QSysInfo::currentCpuArchitecture());
    QCOMPARE(getQTBuildFolderNameVerStr(), QStringLiteral("Q59"));
}

QTEST_MAIN(tst_SysPaths)
#include "tst_syspaths.moc"
