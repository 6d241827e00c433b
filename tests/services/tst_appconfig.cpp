#include <LibControl/services/appconfig.h>

#include <QtTest>

namespace {

// An application's configuration: two texts, two switches and a default
// filled in after reading.
class TestConfig : public CAppConfig
{
public:
    TestConfig()
    {
        registerString("ServerUrl", &serverUrl);
        registerString("DataFolder", &dataFolder);
        registerBool("AutoUpdate", &autoUpdate);
        registerBool("UseProxy", &useProxy);
    }

    QString valueOf(QString const &key) const
    {
        if (key == QLatin1String("ServerUrl"))
            return serverUrl;
        if (key == QLatin1String("DataFolder"))
            return dataFolder;
        if (key == QLatin1String("AutoUpdate"))
            return autoUpdate ? QStringLiteral("true") : QStringLiteral("false");
        if (key == QLatin1String("UseProxy"))
            return useProxy ? QStringLiteral("true") : QStringLiteral("false");
        return QString::number(getOSType());
    }

    CString serverUrl;
    CString dataFolder;
    bool autoUpdate = false;
    bool useProxy = true;
    int afterReadCalls = 0;
    int osTypeSeenAfterRead = -1;

protected:
    void afterReadConfigFile() override
    {
        ++afterReadCalls;
        osTypeSeenAfterRead = getOSType();
        setStringValIfNotSet(dataFolder, "/default");
    }
};

} // namespace

class tst_AppConfig : public QObject
{
    Q_OBJECT

private:
    QString writeFile(QByteArray const &content);

private Q_SLOTS:
    void settingsFromFile_data();
    void settingsFromFile();
    void booleanSpellings_data();
    void booleanSpellings();
    void platformSetsTheSystemType_data();
    void platformSetsTheSystemType();
    void unreadableFileChangesNothing_data();
    void unreadableFileChangesNothing();
    void afterReadRunsOncePerRead();

private:
    QTemporaryDir m_dir;
    int m_files = 0;
};

QString tst_AppConfig::writeFile(QByteArray const &content)
{
    QString const path = m_dir.filePath(QStringLiteral("config%1.ini").arg(++m_files));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QString();
    return path;
}

void tst_AppConfig::settingsFromFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");

    QByteArray const paddedKey = "DataFolder=" + QByteArray(511 - 11, 'p');
    // Qt's UTF-16LE codec writes the byte-order mark itself.
    QTextCodec *utf16 = QTextCodec::codecForName("UTF-16LE");

    QTest::newRow("plain line") << QByteArray("ServerUrl=https://example.test/a\n") << "ServerUrl"
                                << "https://example.test/a";
    QTest::newRow("blanks around key and value") << QByteArray("  ServerUrl \t=  spaced out  \n") << "ServerUrl"
                                                 << "spaced out";
    QTest::newRow("key in another case") << QByteArray("SERVERurl=x\n") << "ServerUrl"
                                         << "x";
    QTest::newRow("value with more equals signs") << QByteArray("ServerUrl=a=b=c\n") << "ServerUrl"
                                                  << "a=b=c";
    QTest::newRow("empty value") << QByteArray("DataFolder=\n") << "DataFolder"
                                 << "/default";
    QTest::newRow("last line wins") << QByteArray("ServerUrl=first\nServerUrl=second\n") << "ServerUrl"
                                    << "second";
    QTest::newRow("lines without equals and unknown keys skipped")
        << QByteArray("# comment\n\nColour=blue\nServerUrl=kept\n[section]\n") << "ServerUrl"
        << "kept";
    QTest::newRow("no final newline") << QByteArray("AutoUpdate=yes\nServerUrl=last") << "ServerUrl"
                                      << "last";
    QTest::newRow("Windows line endings") << QByteArray("ServerUrl=x\r\nAutoUpdate=1\r\n") << "AutoUpdate"
                                          << "true";
    QTest::newRow("UTF-8 text") << QByteArray("DataFolder=/home/Montr\xC3\xA9" "al\n") << "DataFolder"
                                << QStringLiteral("/home/Montr\u00E9al");
    QTest::newRow("UTF-8 byte-order mark before the first key")
        << QByteArray("\xEF\xBB\xBFServerUrl=bom\n") << "ServerUrl"
        << "bom";
    QTest::newRow("UTF-16 file with byte-order mark")
        << utf16->fromUnicode(QStringLiteral("ServerUrl=wide \u00E9\r\n")) << "ServerUrl"
        << QStringLiteral("wide \u00E9");
    QTest::newRow("value cut at 511 characters of line")
        << "ServerUrl=" + QByteArray(600, 'x') + "\nUseProxy=no\n" << "ServerUrl" << QString(511 - 10, 'x');
    QTest::newRow("line after an over-long one still read")
        << "ServerUrl=" + QByteArray(600, 'x') + "\nUseProxy=no\n" << "UseProxy"
        << "false";
    QTest::newRow("rest of an over-long line read as a line") << paddedKey + "AutoUpdate=yes\n" << "AutoUpdate"
                                                              << "true";
    QTest::newRow("line of exactly 511 characters") << paddedKey + "\nAutoUpdate=yes\n" << "DataFolder"
                                                    << QString(500, 'p');
    QTest::newRow("NUL bytes are ordinary characters") << QByteArray("ServerUrl=a\0b\n", 14) << "ServerUrl"
                                                       << QString::fromLatin1("a\0b", 3);
}

void tst_AppConfig::settingsFromFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, key);
    QFETCH(QString, expected);

    TestConfig config;
    QVERIFY(config.readConfigFile(QFile::encodeName(writeFile(content)).constData()));
    QCOMPARE(config.valueOf(key), expected);
}

void tst_AppConfig::booleanSpellings_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("expected");
    // UseProxy starts true: only the false spellings and junk are telling.
    QTest::newRow("true") << QByteArray("TRUE") << true;
    QTest::newRow("yes") << QByteArray("Yes") << true;
    QTest::newRow("one") << QByteArray("1") << true;
    QTest::newRow("false") << QByteArray("False") << false;
    QTest::newRow("no") << QByteArray("nO") << false;
    QTest::newRow("zero") << QByteArray("0") << false;
    QTest::newRow("maybe keeps the value") << QByteArray("Maybe") << true;
    QTest::newRow("empty keeps the value") << QByteArray("") << true;
    QTest::newRow("two keeps the value") << QByteArray("2") << true;
}

void tst_AppConfig::booleanSpellings()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, expected);

    TestConfig config;
    QVERIFY(config.readConfigFile(QFile::encodeName(writeFile("useproxy = " + value + " \n")).constData()));
    QCOMPARE(config.useProxy, expected);
}

void tst_AppConfig::platformSetsTheSystemType_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("osType");
    QTest::addColumn<bool>("windows");
    QTest::newRow("Win with blanks, key in capitals") << QByteArray("  PLATFORM  =  Win \n") << 0 << true;
    QTest::newRow("mac") << QByteArray("Platform=MAC\n") << 2 << false;
    QTest::newRow("linux") << QByteArray("platform=linux\n") << 1 << false;
    QTest::newRow("unknown text: this build's type") << QByteArray("Platform=Windows\n") << 1 << false;
    QTest::newRow("no platform line") << QByteArray("ServerUrl=x\n") << 1 << false;
}

void tst_AppConfig::platformSetsTheSystemType()
{
    QFETCH(QByteArray, content);
    QFETCH(int, osType);
    QFETCH(bool, windows);

    TestConfig config;
    QVERIFY(config.readConfigFile(QFile::encodeName(writeFile(content)).constData()));
    QCOMPARE(config.getOSType(), osType);
    QCOMPARE(config.isPlatformWindows(), windows);
    QCOMPARE(config.osTypeSeenAfterRead, osType);
}

void tst_AppConfig::unreadableFileChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing file") << m_dir.filePath(QStringLiteral("absent.ini"));
    QTest::newRow("folder") << m_dir.path();
    QTest::newRow("empty path") << QString();
}

void tst_AppConfig::unreadableFileChangesNothing()
{
    QFETCH(QString, path);

    TestConfig config;
    config.serverUrl = "preset";
    QCOMPARE(config.readConfigFile(QFile::encodeName(path).constData()), false);
    QCOMPARE(config.afterReadCalls, 0);
    QCOMPARE(config.serverUrl, CString("preset"));
    QCOMPARE(config.dataFolder, CString());
    QCOMPARE(config.useProxy, true);
    QCOMPARE(config.getPlatform(), CString());
    QCOMPARE(config.getOSType(), 1);
}

void tst_AppConfig::afterReadRunsOncePerRead()
{
    TestConfig config;
    QString const path = writeFile("Platform=win\n");
    QVERIFY(config.readConfigFile(QFile::encodeName(path).constData()));
    QVERIFY(config.readConfigFile(QFile::encodeName(writeFile("ServerUrl=x\n")).constData()));
    QCOMPARE(config.afterReadCalls, 2);
    // The platform text stays from the first file, and with it the type.
    QCOMPARE(config.getPlatform(), CString("win"));
    QCOMPARE(config.getOSType(), 0);
    QCOMPARE(config.readConfigFile(nullptr), false);
    QCOMPARE(config.afterReadCalls, 2);
}

QTEST_GUILESS_MAIN(tst_AppConfig)
#include "tst_appconfig.moc"
