#include <QProcess>
#include <QtTest>

#include <random>

// The digest commands must print exactly what the system's sha1sum and
// sha256sum print, so scripts can use either; the configuration command
// shows what a file sets.
class tst_SysCommands : public QObject
{
    Q_OBJECT

private:
    static QByteArray run(QString const &program, QStringList const &args, QByteArray const &input = QByteArray(),
                          int *exitCode = nullptr);
    QString writeRandomFile(QString const &name, int size, unsigned seed);

private Q_SLOTS:
    void matchesSystemTool_data();
    void matchesSystemTool();
    void standardInput_data();
    void standardInput();
    void unreadableFileIsReported();
    void configCommandShowsTheSettings();

private:
    QTemporaryDir m_dir;
};

QByteArray tst_SysCommands::run(QString const &program, QStringList const &args, QByteArray const &input, int *exitCode)
{
    QProcess process;
    process.start(program, args);
    if (!process.waitForStarted())
        return "not started";
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000))
        return "timed out";
    if (exitCode)
        *exitCode = process.exitCode();
    return process.readAllStandardOutput();
}

QString tst_SysCommands::writeRandomFile(QString const &name, int size, unsigned seed)
{
    std::mt19937 generator(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(generator());
    QString const path = m_dir.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != size)
        return QString();
    return path;
}

void tst_SysCommands::matchesSystemTool_data()
{
    QTest::addColumn<QString>("command");
    for (char const *command : {"sha1", "sha256"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_SysCommands::matchesSystemTool()
{
    QFETCH(QString, command);
    QString const systemTool = QStandardPaths::findExecutable(command + QLatin1String("sum"));
    if (systemTool.isEmpty())
        QSKIP("the system has no checksum tool to compare with");

    // Sizes around block and read-chunk boundaries, and names the checksum
    // format escapes.
    QStringList files;
    int const sizes[] = {0, 1, 55, 56, 63, 64, 65, 1000, (1 << 20) - 1, (1 << 20) + 77, 3 << 20};
    for (int size : sizes)
        files << writeRandomFile(QStringLiteral("random-%1.bin").arg(size), size, unsigned(size));
    files << writeRandomFile(QStringLiteral("back\\slash"), 100, 1);
    files << writeRandomFile(QStringLiteral("line\nbreak"), 100, 2);
    files << writeRandomFile(QStringLiteral("space and \u00E9"), 100, 3);
    QVERIFY(!files.contains(QString()));

    int exitCode = -1;
    QByteArray const ours = run(QStringLiteral(LIBCONTROL_TOOL), QStringList{command} + files, {}, &exitCode);
    QCOMPARE(exitCode, 0);
    QCOMPARE(ours, run(systemTool, files));
}

void tst_SysCommands::standardInput_data()
{
    matchesSystemTool_data();
}

void tst_SysCommands::standardInput()
{
    QFETCH(QString, command);
    QString const systemTool = QStandardPaths::findExecutable(command + QLatin1String("sum"));
    if (systemTool.isEmpty())
        QSKIP("the system has no checksum tool to compare with");
    QByteArray const input = QByteArray(3000000, 'q') + "tail";
    QByteArray const ours = run(QStringLiteral(LIBCONTROL_TOOL), {command, QStringLiteral("-")}, input);
    QCOMPARE(ours, run(systemTool, {QStringLiteral("-")}, input));
}

void tst_SysCommands::unreadableFileIsReported()
{
    QString const good = writeRandomFile(QStringLiteral("good.bin"), 10, 9);
    QString const missing = m_dir.filePath(QStringLiteral("missing.bin"));
    int exitCode = 0;
    QByteArray const out = run(QStringLiteral(LIBCONTROL_TOOL), {QStringLiteral("sha256"), missing, good}, {}, &exitCode);
    QCOMPARE(exitCode, 3);
    QVERIFY(out.endsWith("  " + QFile::encodeName(good) + '\n'));
    QCOMPARE(out.count('\n'), 1);

    run(QStringLiteral(LIBCONTROL_TOOL), {QStringLiteral("sha1")}, {}, &exitCode);
    QCOMPARE(exitCode, 2);
}

void tst_SysCommands::configCommandShowsTheSettings()
{
    QString const path = m_dir.filePath(QStringLiteral("app.ini"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\xEF\xBB\xBF platform = Mac\r\nUpdateServer=https://updates.example.test\r\nAutoUpdate=YES\r\n"
               "UseProxy=perhaps\r\nunknown=1");
    file.close();

    int exitCode = -1;
    QByteArray const out = run(QStringLiteral(LIBCONTROL_TOOL), {QStringLiteral("config"), path}, {}, &exitCode);
    QCOMPARE(exitCode, 0);
    QCOMPARE(out, QByteArray("Platform: \"Mac\"\n"
                             "operating-system type: 2 (macOS)\n"
                             "UpdateServer: \"https://updates.example.test\"\n"
                             "DataFolder: \"\"\n"
                             "Language: \"en\"\n"
                             "AutoUpdate: yes\n"
                             "UseProxy: no\n"));

    run(QStringLiteral(LIBCONTROL_TOOL), {QStringLiteral("config"), m_dir.filePath(QStringLiteral("none.ini"))}, {},
        &exitCode);
    QCOMPARE(exitCode, 3);
}

QTEST_GUILESS_MAIN(tst_SysCommands)
#include "tst_syscommands.moc"
