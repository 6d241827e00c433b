#include <LibControl/fields/floatfield.h>
#include <LibControl/forms/NetfileGeneral.h>

#include <QtTest>

#include <cstring>

namespace {

// The output of one batch of record calls.
struct Netfile
{
    CString output;
    int lines = 0;
    std::map<int, STRUCT_NETFILE_TIA_FIELD_TYPE> tia;
    NetfileGenObjParamStru param{nullptr, &output, &lines, &tia};
};

QString returnLine(int code, QString const &value)
{
    return QStringLiteral("<comm:ReturnLine>\n<comm:FieldCode>%1</comm:FieldCode>\n"
                          "<comm:FieldValue>%2</comm:FieldValue>\n</comm:ReturnLine>\n")
        .arg(code)
        .arg(value);
}

CFloatField amount(double value, int lineCode = 0)
{
    CFloatField field(value, lineCode, true, FIELD_VERSION_FIRST, FIELD_ATTR_NONE);
    field.m_dValue = value; // unrounded, as loaded from a return
    return field;
}

enum class Writer { DollarValue, DollarValueOrOne, DollarFieldOrOne, DollarCent, Numeric };

int write(Writer writer, int code, double value, NetfileGenObjParamStru &param)
{
    CFloatField field = amount(value);
    switch (writer) {
    case Writer::DollarValue:
        return NETFILE_DOLLAR_VALUE_Func(code, value, param);
    case Writer::DollarValueOrOne:
        return NETFILE_DOLLAR_VALUE_IFZEROTHENONE_Func(code, value, param);
    case Writer::DollarFieldOrOne:
        return NETFILE_DOLLAR_FIELD_IFZEROTHENONE_Func(code, field, param);
    case Writer::DollarCent:
        return NETFILE_DOLLARCENT_VALUE_Func(code, value, param);
    case Writer::Numeric:
        return NETFILE_NUMERIC_VALUE_Func(code, value, param);
    }
    return -1;
}

double recordedNumber(STRUCT_NETFILE_TIA_FIELD_TYPE const &entry)
{
    return entry.nType == 3 ? double(entry.nValue) : entry.dValue;
}

} // namespace

Q_DECLARE_METATYPE(Writer)

class tst_Netfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elementShapes();
    void dollarField_data();
    void dollarField();
    void valueWriters_data();
    void valueWriters();
    void texts_data();
    void texts();
    void textOfNullPointer();
    void countsAndFirstWriter();
    void missingTargets();
};

void tst_Netfile::elementShapes()
{
    Netfile n;
    CFloatField field = amount(1500.75);
    CString code("WHEAT");
    NETFILE_DOLLAR_VALUE_Func(10100, 12.99, n.param);
    NETFILE_DOLLAR_CCMMODITY_FIELD_Func(code, field, n.param);
    NETFILE_COMMODITY_TOTAL_FIELD_Func(9659, field, n.param);

    QCOMPARE(QString(n.output),
             QStringLiteral("<comm:ReturnLine>\n"
                            "<comm:FieldCode>10100</comm:FieldCode>\n"
                            "<comm:FieldValue>12</comm:FieldValue>\n"
                            "</comm:ReturnLine>\n"
                            "<sfd:Commodity>\n"
                            "<sfd:CommodityCode>WHEAT</sfd:CommodityCode>\n"
                            "<sfd:CommodityAmount>1500</sfd:CommodityAmount>\n"
                            "</sfd:Commodity>\n"
                            "<sfd:CommodityTotalFieldCode>9659</sfd:CommodityTotalFieldCode>\n"
                            "<sfd:FieldAmount>1501</sfd:FieldAmount>\n"));
}

void tst_Netfile::dollarField_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<double>("recorded");

    QTest::newRow("thirty cents files one") << 0.30 << 11500 << returnLine(11500, "1") << 1.0;
    QTest::newRow("minus thirty cents files minus one") << -0.30 << 11500 << returnLine(11500, "-1") << -1.0;
    QTest::newRow("half a cent is left out") << 0.005 << 11500 << QString() << 0.0;
    QTest::newRow("just under a cent is left out") << 0.009 << 11500 << QString() << 0.0;
    QTest::newRow("a cent files one") << 0.01 << 11500 << returnLine(11500, "1") << 1.0;
    QTest::newRow("half a dollar rounds up") << 2.5 << 11500 << returnLine(11500, "3") << 3.0;
    QTest::newRow("minus half a dollar rounds down") << -2.5 << 11500 << returnLine(11500, "-3") << -3.0;
    QTest::newRow("code 0 files the line code") << 10.0 << 0 << returnLine(30000, "10") << 10.0;
}

void tst_Netfile::dollarField()
{
    QFETCH(double, value);
    QFETCH(int, code);
    QFETCH(QString, expected);
    QFETCH(double, recorded);

    Netfile n;
    CFloatField field = amount(value, 30000);
    int const result = NETFILE_DOLLAR_FIELD_Func(code, field, n.param);

    QCOMPARE(QString(n.output), expected);
    QCOMPARE(result, expected.isEmpty() ? 0 : 1);
    QCOMPARE(n.lines, expected.isEmpty() ? 0 : 1);
    QCOMPARE(int(n.tia.size()), expected.isEmpty() ? 0 : 1);
    if (!expected.isEmpty()) {
        // Recorded under the code argument, 0 included.
        QCOMPARE(n.tia.count(code), size_t(1));
        QCOMPARE(n.tia[code].nType, 1);
        QCOMPARE(n.tia[code].dValue, recorded);
    }
}

void tst_Netfile::valueWriters_data()
{
    QTest::addColumn<Writer>("writer");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("filed");
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("recorded");

    QTest::newRow("dollars: 99 cents left out") << Writer::DollarValue << 0.99 << QString() << 0 << 0.0;
    QTest::newRow("dollars: cents dropped") << Writer::DollarValue << 12.99 << "12" << 1 << 12.99;
    QTest::newRow("dollars: nudge keeps 12.9999999 at 13") << Writer::DollarValue << 12.9999999 << "13" << 1
                                                           << 12.9999999;
    QTest::newRow("dollars: negative cents dropped") << Writer::DollarValue << -12.99 << "-12" << 1 << -12.99;
    QTest::newRow("dollars or one: zero files one") << Writer::DollarValueOrOne << 0.0 << "1" << 1 << 1.0;
    QTest::newRow("dollars or one: 99 cents files one") << Writer::DollarValueOrOne << 0.99 << "1" << 1 << 1.0;
    QTest::newRow("dollars or one: negative under a dollar files one")
        << Writer::DollarValueOrOne << -0.5 << "1" << 1 << 1.0;
    QTest::newRow("field or one: rounds and records unrounded")
        << Writer::DollarFieldOrOne << 2.5 << "3" << 1 << 2.5;
    QTest::newRow("field or one: negative rounds away from zero")
        << Writer::DollarFieldOrOne << -7.5 << "-8" << 1 << -7.5;
    QTest::newRow("field or one: half a dollar files one") << Writer::DollarFieldOrOne << 0.5 << "1" << 1 << 1.0;
    QTest::newRow("cents: dollars and cents") << Writer::DollarCent << 1234.56 << "123456" << 2 << 1234.56;
    QTest::newRow("cents: a negative cent") << Writer::DollarCent << -0.01 << "-1" << 2 << -0.01;
    QTest::newRow("cents: half a cent left out") << Writer::DollarCent << 0.005 << QString() << 0 << 0.0;
    QTest::newRow("cents: just under the 64-bit switch")
        << Writer::DollarCent << 20999999.99 << "2099999999" << 2 << 20999999.99;
    QTest::newRow("cents: 25 million") << Writer::DollarCent << 25000000.0 << "2500000000" << 2 << 25000000.0;
    QTest::newRow("number: fraction dropped") << Writer::Numeric << 7.9 << "7" << 3 << 7.0;
    QTest::newRow("number: negative fraction dropped") << Writer::Numeric << -3.5 << "-3" << 3 << -3.0;
    QTest::newRow("number: nudge files 3 for 2.9999999, records 2")
        << Writer::Numeric << 2.9999999 << "3" << 3 << 2.0;
    QTest::newRow("number: half a cent left out") << Writer::Numeric << 0.005 << QString() << 0 << 0.0;
}

void tst_Netfile::valueWriters()
{
    QFETCH(Writer, writer);
    QFETCH(double, value);
    QFETCH(QString, filed);
    QFETCH(int, type);
    QFETCH(double, recorded);

    Netfile n;
    QCOMPARE(write(writer, 20600, value, n.param), 0);

    QCOMPARE(QString(n.output), filed.isEmpty() ? QString() : returnLine(20600, filed));
    QCOMPARE(n.lines, filed.isEmpty() ? 0 : 1);
    QCOMPARE(int(n.tia.size()), filed.isEmpty() ? 0 : 1);
    if (!filed.isEmpty()) {
        QCOMPARE(n.tia[20600].nType, type);
        QCOMPARE(recordedNumber(n.tia[20600]), recorded);
    }
}

void tst_Netfile::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maxLen");
    QTest::addColumn<QString>("filed");
    QTest::addColumn<QByteArray>("recorded");

    QTest::newRow("blanks are left out") << "   " << 0 << QString() << QByteArray();
    QTest::newRow("leading blanks are filed") << "  Smith" << 0 << "  Smith" << QByteArray("  Smith");
    QTest::newRow("markup is escaped, recorded plain") << "A&B <Ltd>" << 0 << "A&#38;B &#60;Ltd&#62;"
                                                       << QByteArray("A&B <Ltd>");
    QTest::newRow("cut to the limit") << "Montreal" << 3 << "Mon" << QByteArray("Mon");
    QTest::newRow("blank once cut is left out") << "    x" << 2 << QString() << QByteArray();
    QTest::newRow("negative limit is left out") << "Montreal" << -1 << QString() << QByteArray();
    QTest::newRow("no limit records 31 bytes") << QString(40, QLatin1Char('z')) << 0 << QString(40, QLatin1Char('z'))
                                               << QByteArray(31, 'z');
    QTest::newRow("limit 31 records 31 bytes") << QString(40, QLatin1Char('z')) << 31
                                               << QString(31, QLatin1Char('z')) << QByteArray(31, 'z');
    QTest::newRow("limit 32 records nothing") << QString(40, QLatin1Char('z')) << 32 << QString(32, QLatin1Char('z'))
                                              << QByteArray();
    // The limit cuts the filed text by characters and the record by bytes.
    QTest::newRow("recorded in UTF-8 bytes") << QStringLiteral("Qu\u00e9bec") << 3 << QStringLiteral("Qu\u00e9")
                                             << QByteArray("Qu\xc3");
}

void tst_Netfile::texts()
{
    QFETCH(QString, text);
    QFETCH(int, maxLen);
    QFETCH(QString, filed);
    QFETCH(QByteArray, recorded);

    Netfile n;
    CString value(text);
    QCOMPARE(NETFILE_STRING_Func(58, maxLen, value, n.param), 0);

    QCOMPARE(QString(n.output), filed.isEmpty() ? QString() : returnLine(58, filed));
    QCOMPARE(n.lines, filed.isEmpty() ? 0 : 1);
    QCOMPARE(int(n.tia.size()), filed.isEmpty() ? 0 : 1);
    if (!filed.isEmpty()) {
        STRUCT_NETFILE_TIA_FIELD_TYPE const &entry = n.tia[58];
        QCOMPARE(entry.nType, 4);
        QCOMPARE(QByteArray(entry.szValue, int(qstrnlen(entry.szValue, sizeof entry.szValue))), recorded);
    }
}

void tst_Netfile::textOfNullPointer()
{
    Netfile n;
    QCOMPARE(NETFILE_STRING_VALUE_Func(58, 0, nullptr, n.param), 0);
    QCOMPARE(n.lines, 0);

    // Bytes are read as Latin-1: 0xE9 is é, filed as is and recorded in UTF-8.
    QCOMPARE(NETFILE_STRING_VALUE_Func(58, 0, "L\xe9vis", n.param), 0);
    QCOMPARE(QString(n.output), returnLine(58, QStringLiteral("L\u00e9vis")));
    QCOMPARE(QByteArray(n.tia[58].szValue), QByteArray("L\xc3\xa9vis"));
}

void tst_Netfile::countsAndFirstWriter()
{
    Netfile n;
    CFloatField forty = amount(40.0);
    CFloatField half = amount(0.5);
    CFloatField tiny = amount(0.005);
    CString code("CANOLA");

    NETFILE_DOLLAR_VALUE_Func(15000, 100.0, n.param);
    NETFILE_DOLLAR_VALUE_Func(15000, 250.0, n.param);
    QCOMPARE(QString(n.output), returnLine(15000, "100") + returnLine(15000, "250"));
    QCOMPARE(n.tia[15000].dValue, 100.0); // both filed, the first one kept

    QCOMPARE(NETFILE_COMMODITY_TOTAL_FIELD_Func(9660, forty, n.param), 1);
    QCOMPARE(n.lines, 3); // the total's two elements are one line
    QCOMPARE(NETFILE_COMMODITY_TOTAL_FIELD_Func(9661, half, n.param), 0);
    QCOMPARE(NETFILE_DOLLAR_CCMMODITY_FIELD_Func(code, half, n.param), 1);
    QCOMPARE(NETFILE_DOLLAR_CCMMODITY_FIELD_Func(code, tiny, n.param), 0);
    QCOMPARE(n.lines, 4);
    // Commodity lines are not recorded.
    QCOMPARE(n.tia.size(), size_t(2));
    QCOMPARE(n.tia[9660].dValue, 40.0);
}

void tst_Netfile::missingTargets()
{
    // A form may file with only some targets set; nothing may crash.
    CString output;
    NetfileGenObjParamStru outputOnly{nullptr, &output, nullptr, nullptr};
    CFloatField field = amount(5.0);
    QCOMPARE(NETFILE_DOLLAR_FIELD_Func(1, field, outputOnly), 1);
    QCOMPARE(QString(output), returnLine(1, "5"));

    int lines = 0;
    NetfileGenObjParamStru countOnly{nullptr, nullptr, &lines, nullptr};
    CString text("x");
    NETFILE_STRING_Func(2, 0, text, countOnly);
    QCOMPARE(NETFILE_COMMODITY_TOTAL_FIELD_Func(3, field, countOnly), 1);
    QCOMPARE(lines, 2);
}

QTEST_GUILESS_MAIN(tst_Netfile)
#include "tst_netfile.moc"
