// Construction defaults of every field class and the four field-list
// operations: clearing, archiving, comparing and copying a record's fields.

#include "fieldarchive.h"

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>

#include <QtTest>

#include <memory>

using FieldPtr = std::shared_ptr<CField>;
Q_DECLARE_METATYPE(FieldPtr)

namespace {

// One field of each archived kind, with a retired one in the middle: the
// shape of a small dependant record.
struct Record
{
    CIntField count{0, 3, FIELD_ATTR_NONE};
    CBoolField flag{1};
    CStringField name{"Ann", 6};
    CIntFieldNotused retired{0x10000, 0x10100};
    CFloatField amount{12.5, 1};
    CPercentField rate{40.0, 2, false, 0x10200};
    CDateField birth{QDate(1960, 5, 17), false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST};
    CDateTimeField stamp{FIELD_ATTR_NONE};

    std::vector<CField *> fields{&count, &flag, &name, &retired, &amount, &rate, &birth, &stamp};
};

QByteArray storeList(std::vector<CField *> &fields, int version)
{
    return archived([&](MyDataStream &ar) { Common_Serialize_Func(version, ar, fields); });
}

QDataStream::Status loadList(std::vector<CField *> &fields, int version, QByteArray const &bytes)
{
    return readArchive(bytes, [&](MyDataStream &ar) { Common_Serialize_Func(version, ar, fields); });
}

} // namespace

class tst_FieldList : public QObject
{
    Q_OBJECT

private slots:
    void constructorDefaults_data();
    void constructorDefaults();
    void clearKeepsIntegersAndDates();
    void archiveLayout_data();
    void archiveLayout();
    void truncatedArchiveIsHarmless();
    void comparison_data();
    void comparison();
    void assignmentCopiesValuesOnly();
};

void tst_FieldList::constructorDefaults_data()
{
    QTest::addColumn<FieldPtr>("field");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("lineCode");
    QTest::addColumn<bool>("allowNegative");
    QTest::addColumn<unsigned int>("from");
    QTest::addColumn<unsigned int>("to");
    QTest::addColumn<int>("attr");
    QTest::addColumn<int>("extra");

    unsigned int const first = FIELD_VERSION_FIRST;
    unsigned int const last = FIELD_VERSION_LAST;
    auto const keep = FIELD_ATTR_KEEP_NEXTYEAR;
    auto row = [](char const *name, CField *field) -> QTestData & { return QTest::newRow(name) << FieldPtr(field); };

    row("int, value", new CIntField(5, keep)) << 0 << 0 << false << first << last << 1 << 0;
    row("int, line code", new CIntField(7, 5, keep)) << 0 << 7 << false << first << last << 1 << 0;
    row("int, all", new CIntField(7, 5, keep, 9, 0x10040)) << 0 << 7 << false << 0x10040u << last << 1 << 9;
    row("int, retired", new CIntFieldNotused(0x10010, 0x10020)) << 0 << 0 << false << 0x10010u << 0x10020u << 0 << 0;
    row("flag, value", new CBoolField(1)) << 1 << 0 << false << first << last << 0 << 0;
    row("flag, line code", new CBoolField(8, 1)) << 1 << 8 << false << first << last << 0 << 0;
    row("flag, all", new CBoolField(8, 1, keep, 3, 0x10050)) << 1 << 8 << false << 0x10050u << last << 1 << 3;
    row("flag, retired", new CBoolFieldNotused(0x10010, 0x10020)) << 1 << 0 << false << 0x10010u << 0x10020u << 0 << 0;
    row("text, size", new CStringField("a", 5)) << 2 << 0 << false << first << last << 0 << 0;
    row("text, version", new CStringField(4, "a", 5, 0x10060)) << 2 << 4 << false << 0x10060u << last << 0 << 0;
    row("text, all", new CStringField(4, "a", 5, keep, 6, 0x10060)) << 2 << 4 << false << 0x10060u << last << 1 << 6;
    row("text, retired", new CStringFieldNotused(5, 0x10010, 0x10020))
        << 2 << 0 << false << 0x10010u << 0x10020u << 0 << 0;
    row("amount, versions", new CFloatField(0x10010, 0x10020)) << 3 << 0 << true << 0x10010u << 0x10020u << 0 << 0;
    row("amount, line code", new CFloatField(1.0, 9)) << 3 << 9 << false << first << last << 0 << 0;
    row("amount, five", new CFloatField(1.0, 9, true, 0x10070, keep)) << 3 << 9 << true << 0x10070u << last << 1 << 0;
    row("amount, seven", new CFloatField(false, 1.0, 9, true, keep, 2, 0x10070))
        << 3 << 9 << true << 0x10070u << last << 1 << 2;
    row("whole amount", new CIntFloatField(1.0, 9)) << 3 << 9 << false << first << last << 0 << 0;
    row("decimal amount", new CDecimalFloatField(3, 1.0, 9, true, 0x10070, keep))
        << 3 << 9 << true << 0x10070u << last << 1 << 0;
    row("inverse print", new CFloatFieldInversePrint(true, 1.0, 9)) << 3 << 9 << false << first << last << 0 << 0;
    row("amount, retired", new CFloatFieldNotused(0x10010, 0x10020))
        << 3 << 0 << true << 0x10010u << 0x10020u << 0 << 0;
    row("percent", new CPercentField(1.0, 9, true, 0x10070)) << 3 << 9 << true << 0x10070u << last << 0 << 0;
    row("date, attribute", new CDateField(keep)) << 4 << 0 << false << first << last << 1 << 0;
    row("date, line code", new CDateField(11, keep)) << 4 << 11 << false << first << last << 1 << 0;
    row("date, all", new CDateField(QDate(2020, 1, 1), true, keep, 4, 0x10080))
        << 4 << 0 << true << 0x10080u << last << 1 << 4;
    row("date-time", new CDateTimeField(keep)) << 5 << 0 << false << first << last << 1 << 0;
}

void tst_FieldList::constructorDefaults()
{
    QFETCH(FieldPtr, field);
    QFETCH(int, type);
    QFETCH(int, lineCode);
    QFETCH(bool, allowNegative);
    QFETCH(unsigned int, from);
    QFETCH(unsigned int, to);
    QFETCH(int, attr);
    QFETCH(int, extra);

    QCOMPARE(field->GetType(), type);
    QCOMPARE(field->m_nLineCode, lineCode);
    QCOMPARE(field->m_bAllowNegative, allowNegative);
    QCOMPARE(field->m_nVersionFrom, from);
    QCOMPARE(field->m_nVersionTo, to);
    QCOMPARE(int(field->m_eAttr), attr);
    QCOMPARE(field->m_nExtra, extra);
    QVERIFY(field->m_strName.empty());
    QVERIFY(field->m_strPrintValue.empty());
}

void tst_FieldList::clearKeepsIntegersAndDates()
{
    Record record;
    Common_ClearData_Func(&record.fields);
    QCOMPARE(record.count.m_nValue, 3);
    QCOMPARE(record.flag.m_nValue, 0);
    QVERIFY(record.name.m_strValue.isEmpty());
    QCOMPARE(record.amount.m_dValue, 0.0);
    QCOMPARE(record.rate.m_dValue, 0.0);
    QCOMPARE(record.birth.m_date, QDate(1960, 5, 17));
    Common_ClearData_Func(nullptr);
}

void tst_FieldList::archiveLayout_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("hex");

    QByteArray const head = "03000000" "01000000" "416e6e000000";
    QByteArray const amount = "0000000000002940";
    QByteArray const rate = "0000000000004440";
    QByteArray const birth = "d02f250000000000";
    // The retired integer still holds -1; the percentage exists from 0x10200.
    QTest::newRow("retired field present") << 0x10050 << head + "ffffffff" + amount + birth;
    QTest::newRow("both absent") << 0x10150 << head + amount + birth;
    QTest::newRow("newer field present") << 0x10200 << head + amount + rate + birth;
}

void tst_FieldList::archiveLayout()
{
    QFETCH(int, version);
    QFETCH(QByteArray, hex);

    Record record;
    QCOMPARE(storeList(record.fields, version).toHex(), hex);

    Record back;
    Common_ClearData_Func(&back.fields);
    back.count.m_nValue = 0;
    back.birth.setNull();
    QCOMPARE(loadList(back.fields, version, QByteArray::fromHex(hex)), QDataStream::Ok);
    // A field absent from the archive keeps the value it had.
    QCOMPARE(back.rate.m_dValue, version >= 0x10200 ? 40.0 : 0.0);
    back.rate = record.rate;
    QVERIFY(!Common_Func_OperatorNotEqual(record.fields, back.fields));
}

void tst_FieldList::truncatedArchiveIsHarmless()
{
    Record record;
    QByteArray const full = storeList(record.fields, 0x10200);
    for (int cut = 0; cut < full.size(); ++cut) {
        Record back;
        QCOMPARE(loadList(back.fields, 0x10200, full.left(cut)), QDataStream::ReadPastEnd);
        QVERIFY(back.birth.m_date.isNull());
    }
}

void tst_FieldList::comparison_data()
{
    QTest::addColumn<int>("changed"); // index of the field changed in the second record, -1 none
    QTest::addColumn<int>("length"); // length of the second list
    QTest::addColumn<bool>("differ");

    QTest::newRow("same values") << -1 << 8 << false;
    QTest::newRow("integer differs") << 0 << 8 << true;
    QTest::newRow("text differs only in spaces") << 2 << 8 << false;
    QTest::newRow("amount under a cent") << 4 << 8 << false;
    QTest::newRow("date differs") << 6 << 8 << true;
    QTest::newRow("date-time is passed over") << 7 << 8 << false;
    QTest::newRow("shorter list, equal prefix") << 6 << 3 << false;
}

void tst_FieldList::comparison()
{
    QFETCH(int, changed);
    QFETCH(int, length);
    QFETCH(bool, differ);

    Record a;
    Record b;
    switch (changed) {
    case 0: b.count.m_nValue = 4; break;
    case 2: b.name.m_strValue = QStringLiteral(" Ann "); break;
    case 4: b.amount.m_dValue = 12.504; break;
    case 6: b.birth.m_date = QDate(1961, 5, 17); break;
    case 7: b.stamp.m_dateTime = QDateTime(QDate(2000, 1, 1), QTime(0, 0)); break;
    default: break;
    }
    b.fields.resize(size_t(length));
    QCOMPARE(Common_Func_OperatorNotEqual(a.fields, b.fields), differ);
    QCOMPARE(Common_Func_OperatorNotEqual(b.fields, a.fields), differ);
}

void tst_FieldList::assignmentCopiesValuesOnly()
{
    Record source;
    source.name.m_strName = "fld_name";
    Record target;
    Common_ClearData_Func(&target.fields);
    target.count.m_nValue = 0;
    target.birth.setNull();
    target.name.m_nSize = 20;
    QDateTime const stamp(QDate(2000, 1, 1), QTime(0, 0));
    target.stamp.m_dateTime = stamp;

    Common_Func_OperatorAssign(source.fields, target.fields);
    QVERIFY(!Common_Func_OperatorNotEqual(source.fields, target.fields));
    QCOMPARE(target.amount.m_dValue, 12.5);
    QCOMPARE(target.birth.m_date, QDate(1960, 5, 17));
    QCOMPARE(target.stamp.m_dateTime, stamp);
    QCOMPARE(target.name.m_nSize, 20);
    QVERIFY(target.name.m_strName.empty());

    // A mismatched pair is passed over rather than cast to the wrong class.
    std::vector<CField *> swapped{&target.flag, &target.count};
    std::vector<CField *> from{&source.count, &source.flag};
    target.count.m_nValue = 99;
    Common_Func_OperatorAssign(from, swapped);
    QCOMPARE(target.count.m_nValue, 99);
    QVERIFY(Common_Func_OperatorNotEqual(from, swapped));
}

QTEST_GUILESS_MAIN(tst_FieldList)
#include "tst_fieldlist.moc"
