#include <QDataStream>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A form block as return files hold it: marker, count, text XOR-ed with the key.
QByteArray block(QByteArray text, QByteArray const &key)
{
    for (int i = 0; i < text.size(); ++i)
        text[i] = char(text[i] ^ key[i % key.size()]);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << qint32(0x01020304) << qint32(text.size());
    out.writeRawData(text.constData(), text.size());
    return bytes;
}

QByteArray const FirstText("<m><f n=\"fld_a\">1</f><f n=\"fld_name\">Main St</f></m>");
QByteArray const SecondText("<m><f n=\"fld_amount\">100.00</f></m>");

} // namespace

class tst_FormFileCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void commands_data();
    void commands();

private:
    QString write(QString const &name, QByteArray const &bytes);
    QTemporaryDir m_dir;
};

void tst_FormFileCommand::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

QString tst_FormFileCommand::write(QString const &name, QByteArray const &bytes)
{
    QString const path = m_dir.filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return path;
}

void tst_FormFileCommand::commands_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");

    QString const two = write("two", "junk" + block(FirstText, "k") + "more" + block(SecondText, "k"));
    QString const same = write("same", block("<m><f n=\"fld_a\">1.00</f><f n=\"fld_name\">MAIN st</f></m>", "k")
                                           + block("<m><f n=\"fld_amount\">100.004</f></m>", "k"));
    QString const changed = write("changed", block("<m><f n=\"fld_name\">Main Rd</f><f n=\"fld_b\">2</f></m>", "k")
                                                 + block("<m><f n=\"fld_amount\">100.01</f></m>", "k"));
    QString const none = write("none", "no blocks in here");

    QTest::newRow("fields of every block")
        << QStringList{"inspect", two, "--key", "k"} << 0
        << QStringLiteral("block 1 at offset 4 (52 bytes)\n  fld_a = 1\n  fld_name = Main St\n"
                          "block 2 at offset 68 (35 bytes)\n  fld_amount = 100.00\n");
    QTest::newRow("raw XML") << QStringList{"inspect", "--xml", two, "--key", "k"} << 0
                             << QStringLiteral("block 1 at offset 4 (52 bytes)\n%1\nblock 2 at offset 68 (35 bytes)\n%2\n")
                                    .arg(QString::fromUtf8(FirstText), QString::fromUtf8(SecondText));
    QTest::newRow("wrong key is reported, not guessed")
        << QStringList{"inspect", two, "--key", "x"} << 1
        << QStringLiteral("block 1 at offset 4 (52 bytes): does not parse as XML (wrong key or damaged)\n"
                          "block 2 at offset 68 (35 bytes): does not parse as XML (wrong key or damaged)\n");
    QTest::newRow("no block") << QStringList{"inspect", none, "--key", "k"} << 1
                              << QStringLiteral("no form block found\n");
    QTest::newRow("key missing") << QStringList{"inspect", two} << 2 << QString();
    QTest::newRow("unreadable file") << QStringList{"inspect", m_dir.filePath("absent"), "--key", "k"} << 3
                                     << QString();
    QTest::newRow("differences within the tolerances") << QStringList{"diff", two, same, "--key", "k"} << 0
                                                       << QStringLiteral("no differences\n");
    QTest::newRow("differences") << QStringList{"diff", two, changed, "--key", "k"} << 1
                                 << QStringLiteral("block 1: fld_a: 1 -> (absent)\n"
                                                   "block 1: fld_name: Main St -> Main Rd\n"
                                                   "block 1: fld_b: (absent) -> 2\n"
                                                   "block 2: fld_amount: 100.00 -> 100.01\n");
    QTest::newRow("extra block") << QStringList{"diff", two, none, "--key", "k"} << 1
                                 << QStringLiteral("block 1: only in OLD\nblock 2: only in OLD\n");
    QTest::newRow("diff needs two files") << QStringList{"diff", two, "--key", "k"} << 2 << QString();
}

void tst_FormFileCommand::commands()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);

    QProcess tool;
    tool.start(QStringLiteral(LIBCONTROL_TOOL), arguments);
    QVERIFY(tool.waitForFinished(10000));
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), exitCode);
    QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), output);
}

QTEST_GUILESS_MAIN(tst_FormFileCommand)

#include "tst_formfilecommand.moc"
