#include <QProcess>
#include <QtTest>

class tst_CheckCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdicts_data();
    void verdicts();
};

void tst_CheckCommand::verdicts_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::newRow("valid SIN") << QStringList { "sin", "046454286" } << 0 << QStringLiteral("046454286: ok\n");
    QTest::newRow("one of two refused") << QStringList { "sin", "046454286", "046454287" } << 1
                                        << QStringLiteral("046454286: ok\n046454287: refused\n");
    QTest::newRow("business number exception") << QStringList { "bn", "NR" } << 0 << QStringLiteral("NR: ok\n");
    QTest::newRow("GST account") << QStringList { "gst", "123456789RT0001" } << 0
                                 << QStringLiteral("123456789RT0001: ok\n");
    QTest::newRow("trust") << QStringList { "trust", "a12345678" } << 1 << QStringLiteral("a12345678: refused\n");
    QTest::newRow("partnership") << QStringList { "partnership", "000000000RZ0000" } << 0
                                 << QStringLiteral("000000000RZ0000: ok\n");
    QTest::newRow("tax shelter") << QStringList { "taxshelter", "TS12345" } << 1
                                 << QStringLiteral("TS12345: refused\n");
    QTest::newRow("NISA PIN") << QStringList { "nisapin", "12345674" } << 0 << QStringLiteral("12345674: ok\n");
    QTest::newRow("postal code with a space")
        << QStringList { "postal", "K1A 0B1" } << 0 << QStringLiteral("K1A 0B1: ok\n");
    QTest::newRow("ZIP code") << QStringList { "zip", "1234" } << 1 << QStringLiteral("1234: refused\n");
    QTest::newRow("phone") << QStringList { "phone", "(416) 555-1234" } << 0 << QStringLiteral("(416) 555-1234: ok\n");
    QTest::newRow("e-mail") << QStringList { "email", "a@bc" } << 1 << QStringLiteral("a@bc: refused\n");
    QTest::newRow("unknown kind") << QStringList { "iban", "x" } << 2 << QString();
    QTest::newRow("no value") << QStringList { "sin" } << 2 << QString();
}

void tst_CheckCommand::verdicts()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    QProcess tool;
    tool.start(QStringLiteral(LIBCONTROL_TOOL), QStringList { QStringLiteral("check") } + arguments);
    QVERIFY(tool.waitForFinished(10000));
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), exitCode);
    QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), output);
    if (exitCode == 2)
        QVERIFY(tool.readAllStandardError().startsWith("libcontrol check: "));
}

QTEST_GUILESS_MAIN(tst_CheckCommand)

#include "tst_checkcommand.moc"
