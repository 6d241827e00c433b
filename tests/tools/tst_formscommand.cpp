// The forms command: which forms it lists, and how it refuses bad options.

#include <QProcess>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run runForms(QStringList const &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral(LIBCONTROL_TOOL), QStringList { QStringLiteral("forms") } + arguments);
    Run run;
    if (!tool.waitForFinished(10000) || tool.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = tool.exitCode();
    run.out = QString::fromUtf8(tool.readAllStandardOutput());
    run.err = QString::fromUtf8(tool.readAllStandardError());
    return run;
}

// The form ids of the table rows, in order.
QList<int> listedIds(QString const &out)
{
    QList<int> ids;
    QRegularExpression const row(QStringLiteral("^ *(\\d+)  "), QRegularExpression::MultilineOption);
    auto it = row.globalMatch(out);
    while (it.hasNext())
        ids << it.next().captured(1).toInt();
    return ids;
}

} // namespace

class tst_FormsCommand : public QObject
{
    Q_OBJECT

private slots:
    void listing_data();
    void listing();
    void refusal_data();
    void refusal();
};

void tst_FormsCommand::listing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("mandatory");
    QTest::newRow("whole catalogue") << QStringList {} << 213 << QList<int> {};
    QTest::newRow("Ontario, kind 1") << QStringList { "--province", "on", "--mandatory", "1" } << 7
                                     << QList<int> { 1, 24, 25, 93, 96, 140, 169 };
    QTest::newRow("no province, kind 2") << QStringList { "--mandatory", "2" } << 2 << QList<int> { 1, 93 };
    QTest::newRow("Quebec has no provincial forms")
        << QStringList { "--province", "QC", "--mandatory", "3" } << 3 << QList<int> { 1, 93, 96 };
}

void tst_FormsCommand::listing()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, count);
    QFETCH(QList<int>, mandatory);
    Run const run = runForms(arguments);
    QCOMPARE(run.exitCode, 0);
    QList<int> const ids = listedIds(run.out);
    QCOMPARE(ids.size(), count);
    if (!mandatory.isEmpty())
        QCOMPARE(ids, mandatory);
    QVERIFY(run.out.contains(QStringLiteral("%1 forms. Marks:").arg(count)));
}

void tst_FormsCommand::refusal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown province") << QStringList { "--province", "OT" };
    QTest::newRow("missing value") << QStringList { "--mandatory" };
    QTest::newRow("kinds not a number") << QStringList { "--mandatory", "all" };
    QTest::newRow("kinds past a byte") << QStringList { "--mandatory", "256" };
    QTest::newRow("unknown option") << QStringList { "--year", "2025" };
}

void tst_FormsCommand::refusal()
{
    QFETCH(QStringList, arguments);
    Run const run = runForms(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.out, QString());
    QVERIFY(run.err.startsWith(QLatin1String("libcontrol forms: ")));
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(tst_FormsCommand)
#include "tst_formscommand.moc"
