#include <QProcess>
#include <QtTest>

#include <random>

// The digest commands must print exactly what the system's sha1sum and
// sha256sum print, so scripts can use either.
class tst_ShaTool : public QObject
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

private:
    QTemporaryDir m_dir;
};

QByteArray tst_ShaTool::run(QString const &program, QStringList const &args, QByteArray const &input, int *exitCode)
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

QString tst_ShaTool::writeRandomFile(QString const &name, int size, unsigned seed)
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

void tst_ShaTool::matchesSystemTool_data()
{
    QTest::addColumn<QString>("command");
    for (char const *command : {"sha1", "sha256"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_ShaTool::matchesSystemTool()
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

void tst_ShaTool::standardInput_data()
{
    matchesSystemTool_data();
}

void tst_ShaTool::standardInput()
{
    QFETCH(QString, command);
    QString const systemTool = QStandardPaths::findExecutable(command + QLatin1String("sum"));
    if (systemTool.isEmpty())
        QSKIP("the system has no checksum tool to compare with");
    QByteArray const input = QByteArray(3000000, 'q') + "tail";
    QByteArray const ours = run(QStringLiteral(LIBCONTROL_TOOL), {command, QStringLiteral("-")}, input);
    QCOMPARE(ours, run(systemTool, {QStringLiteral("-")}, input));
}

void tst_ShaTool::unreadableFileIsReported()
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

QTEST_GUILESS_MAIN(tst_ShaTool)
#include "tst_shatool.moc"
