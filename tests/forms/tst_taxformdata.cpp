#include "../fields/fieldarchive.h"

#include <LibControl/fields/DateField.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/worksheets/DepWorkSheetData.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <QtTest>

namespace {

constexpr unsigned int BeforeDataFlags = 66035;
constexpr unsigned int WithDataFlags = 66036;

// A form with one field of each kind, a retired field and a worksheet.
class TestForm : public CTaxData_Form
{
public:
    TestForm()
        : CTaxData_Form(FORM_T1GENERAL)
        , fld_count(10, 0, FIELD_ATTR_INCREASE_NEXTYEAR)
        , fld_amount(0.0, 20)
        , fld_kept(0.0, 21, false, FIELD_VERSION_FIRST, FIELD_ATTR_KEEP_NEXTYEAR)
        , fld_name(30, "", 20, FIELD_ATTR_CLEAR_TEXT_NEXTYEAR, 0, FIELD_VERSION_FIRST)
        , fld_flag(40, 0)
        , fld_due(50, FIELD_ATTR_DATE_NEXTYEAR)
        , fld_paid(51, FIELD_ATTR_CLEAR_DATE_NEXTYEAR)
        , fld_old_notused(FIELD_VERSION_FIRST, 0x10100)
    {
        add(fld_count, "fld_count");
        add(fld_amount, "fld_amount");
        add(fld_kept, "fld_kept");
        add(fld_name, "fld_name");
        add(fld_flag, "fld_flag");
        add(fld_due, "fld_due");
        add(fld_paid, "fld_paid");
        add(fld_old_notused, "fld_old_notused");
        worksheet.m_strName = "WS";
        m_listWorksheets.push_back(&worksheet);
    }

    void fillValues()
    {
        fld_count.m_nValue = 7;
        fld_amount.m_dValue = 1234.5;
        fld_kept.m_dValue = 10.0;
        fld_name.m_strValue = CString("A&B");
        fld_flag.m_nValue = 1;
        fld_due.m_date = QDate(2024, 4, 30);
        fld_paid.m_date = QDate(2024, 1, 15);
        worksheet.DepIdx.m_nValue = 2;
        worksheet.AmountClaim.m_dValue = 55.25;
        m_DataFlag2.m_nValue = 4;
    }

    CIntField fld_count;
    CFloatField fld_amount;
    CFloatField fld_kept;
    CStringField fld_name;
    CBoolField fld_flag;
    CDateField fld_due;
    CDateField fld_paid;
    CFloatFieldNotused fld_old_notused;
    CWSDepAmtData worksheet;

private:
    void add(CField &field, char const *name)
    {
        field.m_strName = name;
        m_fields.push_back(&field);
    }
};

// Two plain fields, for byte-exact archives.
class SmallForm : public CTaxData_Form
{
public:
    SmallForm() : CTaxData_Form(FORM_SCHEDULE2), fld_count(1, 0, FIELD_ATTR_NONE), fld_amount(0.0, 2)
    {
        fld_count.m_strName = "fld_count";
        fld_amount.m_strName = "fld_amount";
        m_fields = {&fld_count, &fld_amount};
    }
    CIntField fld_count;
    CFloatField fld_amount;
};

class SharedForm : public CSharableTaxData_Form
{
public:
    SharedForm() : CSharableTaxData_Form(FORM_T776), fld_rent(0.0, 8141)
    {
        fld_rent.m_strName = "fld_rent";
        m_fields.push_back(&fld_rent);
    }
    CFloatField fld_rent;
};

// The archive as the format defines it, built without the code under test.
QByteArray archiveBytes(QByteArray text, QByteArray const &key, qint32 marker = FORM_ARCHIVE_DELIMITER)
{
    for (int i = 0; i < text.size() && !key.isEmpty(); ++i)
        text[i] = char(text[i] ^ key[i % key.size()]);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << marker << qint32(text.size());
    out.writeRawData(text.constData(), text.size());
    return bytes;
}

QByteArray store(CTaxData_Form &form, unsigned int version, CString const &key)
{
    return archived([&](MyDataStream &ar) { form.Serialize(version, key, ar); });
}

QDataStream::Status load(CTaxData_Form &form, QByteArray const &bytes, unsigned int version, CString const &key)
{
    return readArchive(bytes, [&](MyDataStream &ar) { form.Serialize(version, key, ar); });
}

} // namespace

class tst_TaxFormData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void goldenArchive_data();
    void goldenArchive();
    void roundTrip_data();
    void roundTrip();
    void oldNames_data();
    void oldNames();
    void unreadableBlockChangesNothing_data();
    void unreadableBlockChangesNothing();
    void wrongMarkerIsLoggedAndLoadingContinues();
    void printData();
    void assignmentAndComparison();
    void reFileCompare_data();
    void reFileCompare();
    void newYearRollOver_data();
    void newYearRollOver();
    void setDepInfoReachesDependantWorksheets();
    void sharableFormFieldsComeFirst();
    void shouldBeImported_data();
    void shouldBeImported();
};

void tst_TaxFormData::initTestCase()
{
    // Without this option no text field takes part in the XML block.
    CStringField::setLargeSizeSerializeOption(0x10000, 100);
}

void tst_TaxFormData::goldenArchive_data()
{
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty key writes plain text, no data flags before 66036")
        << BeforeDataFlags << QString() << QByteArray("<m><f n=\"fld_count\">7</f><f n=\"fld_amount\">12.50</f></m>");
    QTest::newRow("data flags from 66036, scrambled")
        << WithDataFlags << QStringLiteral("k3y")
        << QByteArray("<m><f n=\"m_DataFlag1\">0</f><f n=\"m_DataFlag2\">3</f><f n=\"m_DataFlag3\">0</f>"
                      "<f n=\"m_DataFlag4\">0</f><f n=\"fld_count\">7</f><f n=\"fld_amount\">12.50</f></m>");
    QTest::newRow("key scrambles with its UTF-8 bytes")
        << BeforeDataFlags << QStringLiteral("cl\u00e9")
        << QByteArray("<m><f n=\"fld_count\">7</f><f n=\"fld_amount\">12.50</f></m>");
}

void tst_TaxFormData::goldenArchive()
{
    QFETCH(unsigned int, version);
    QFETCH(QString, key);
    QFETCH(QByteArray, text);

    SmallForm form;
    form.fld_count.m_nValue = 7;
    form.fld_amount.m_dValue = 12.5;
    form.m_DataFlag2.m_nValue = 3;
    QByteArray const expected = archiveBytes(text, key.toUtf8());
    QCOMPARE(store(form, version, CString(key)), expected);
    QCOMPARE(form.m_nDelimiter, FORM_ARCHIVE_DELIMITER);

    SmallForm loaded;
    QCOMPARE(load(loaded, expected, version, CString(key)), QDataStream::Ok);
    QCOMPARE(loaded.fld_count.m_nValue, 7);
    QCOMPARE(loaded.fld_amount.m_dValue, 12.5);
}

void tst_TaxFormData::roundTrip_data()
{
    QTest::addColumn<unsigned int>("version");
    QTest::newRow("before data flags") << BeforeDataFlags;
    QTest::newRow("with data flags") << WithDataFlags;
}

void tst_TaxFormData::roundTrip()
{
    QFETCH(unsigned int, version);

    TestForm source;
    source.fillValues();
    source.fld_old_notused.m_dValue = 3.0;
    QByteArray const bytes = store(source, version, CString("secret"));

    TestForm loaded;
    loaded.m_DataFlag2.m_nValue = 9;
    QCOMPARE(load(loaded, bytes, version, CString("secret")), QDataStream::Ok);
    loaded.fld_old_notused.m_dValue = 3.0; // retired fields are not in the block
    QVERIFY(!(loaded != source));
    QCOMPARE(QString(loaded.fld_name.m_strValue), QStringLiteral("A&B"));
    QCOMPARE(loaded.fld_due.m_date, QDate(2024, 4, 30));
    QCOMPARE(loaded.worksheet.DepIdx.m_nValue, 2);
    QCOMPARE(loaded.worksheet.AmountClaim.m_dValue, 55.25);
    QCOMPARE(loaded.m_DataFlag2.m_nValue, version >= WithDataFlags ? 4 : 9);
}

void tst_TaxFormData::oldNames_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("expected");

    QTest::newRow("old name only") << QByteArray("<m><f n=\"fld_older\">5</f></m>") << 5;
    QTest::newRow("current name wins") << QByteArray("<m><f n=\"fld_older\">5</f><f n=\"fld_count\">6</f></m>") << 6;
    QTest::newRow("first old name before the second")
        << QByteArray("<m><f n=\"fld_old\">8</f><f n=\"fld_older\">5</f></m>") << 5;
    QTest::newRow("second old name when the first is absent") << QByteArray("<m><f n=\"fld_old\">8</f></m>") << 8;
    QTest::newRow("no name found keeps the value") << QByteArray("<m><f n=\"fld_other\">1</f></m>") << 42;
}

void tst_TaxFormData::oldNames()
{
    QFETCH(QByteArray, text);
    QFETCH(int, expected);

    SmallForm form;
    form.addFieldOldName("fld_count", "fld_older");
    form.addFieldOldName("fld_count", "fld_old");
    form.fld_count.m_nValue = 42;
    QCOMPARE(load(form, archiveBytes(text, "key"), BeforeDataFlags, CString("key")), QDataStream::Ok);
    QCOMPARE(form.fld_count.m_nValue, expected);
}

void tst_TaxFormData::unreadableBlockChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("streamOk");

    QByteArray const text("<m><f n=\"fld_count\">7</f><f n=\"fld_amount\">12.50</f></m>");
    QByteArray const good = archiveBytes(text, "right");
    QTest::newRow("wrong key") << archiveBytes(text, "wrong") << true;
    QTest::newRow("not XML") << archiveBytes("garbage <<", "right") << true;
    QTest::newRow("empty block") << archiveBytes(QByteArray(), "right") << true;
    QTest::newRow("block cut short") << good.left(good.size() - 5) << false;
    QTest::newRow("count beyond the stream") << good.left(8) + QByteArray(3, 'x') << false;
    QTest::newRow("negative count") << QByteArray::fromHex("04030201ffffffff") << false;
    QTest::newRow("marker only") << QByteArray::fromHex("04030201") << false;
    QTest::newRow("nothing at all") << QByteArray() << false;
}

void tst_TaxFormData::unreadableBlockChangesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, streamOk);

    SmallForm form;
    form.fld_count.m_nValue = 1;
    form.fld_amount.m_dValue = 2.0;
    QCOMPARE(load(form, bytes, BeforeDataFlags, CString("right")) == QDataStream::Ok, streamOk);
    QCOMPARE(form.fld_count.m_nValue, 1);
    QCOMPARE(form.fld_amount.m_dValue, 2.0);
}

void tst_TaxFormData::wrongMarkerIsLoggedAndLoadingContinues()
{
    SmallForm form;
    QTest::ignoreMessage(QtInfoMsg, "delimeter error");
    QByteArray const bytes = archiveBytes("<m><f n=\"fld_count\">3</f></m>", "", 0x11223344);
    QCOMPARE(load(form, bytes, BeforeDataFlags, CString()), QDataStream::Ok);
    QCOMPARE(form.fld_count.m_nValue, 3);
    QCOMPARE(form.m_nDelimiter, 0x11223344);
}

void tst_TaxFormData::printData()
{
    TestForm form;
    form.fillValues();
    QCOMPARE(archived([&](MyDataStream &ar) { form.SerializeXml("T1", 2, ar); }),
             QByteArray("<item>\n<c>T1</c>\n<d>2</d>\n"
                        "<f><c>fld_count</c><v>7</v></f>\n"
                        "<f><c>fld_amount</c><v>1234.50</v></f>\n"
                        "<f><c>fld_kept</c><v>10.00</v></f>\n"
                        "<f><c>fld_name</c><v>A&#38;B</v></f>\n"
                        "<f><c>fld_flag</c><v>1</v></f>\n"
                        "<f><c>fld_due</c><v>20240430</v></f>\n"
                        "<f><c>fld_paid</c><v>20240115</v></f>\n"
                        "</item>"));

    qint64 position = -1;
    readArchive("unchanged", [&](MyDataStream &ar) {
        form.SerializeXml("T1", 2, ar);
        position = ar.device()->pos();
    });
    QCOMPARE(position, qint64(0));
}

void tst_TaxFormData::assignmentAndComparison()
{
    TestForm source;
    source.fillValues();
    source.m_nDelimiter = 0x55;
    TestForm target;
    QVERIFY(target != source);

    static_cast<CTaxData_Form &>(target) = source;
    QVERIFY(!(target != source));
    QCOMPARE(target.m_nDelimiter, 0x55);
    QCOMPARE(target.worksheet.AmountClaim.m_dValue, 55.25);
    QCOMPARE(target.m_DataFlag2.m_nValue, 0); // data flags are not copied

    // Only the common part of two field lists is compared.
    SmallForm small;
    small.fld_count.m_nValue = 7;
    small.fld_amount.m_dValue = 1234.5;
    QVERIFY(!(small != source));
    small.fld_amount.m_dValue = 1234.6;
    QVERIFY(small != source);
}

void tst_TaxFormData::reFileCompare_data()
{
    QTest::addColumn<double>("filedAmount");
    QTest::addColumn<QString>("filedName");
    QTest::addColumn<int>("filedCount");
    QTest::addColumn<QList<int>>("changedLines");

    QTest::newRow("no change") << 100.0 << "Main St" << 7 << QList<int>{};
    QTest::newRow("amount within the cent tolerance") << 100.004 << "Main St" << 7 << QList<int>{};
    QTest::newRow("amount a cent apart") << 100.01 << "Main St" << 7 << QList<int>{20};
    QTest::newRow("text differs in case only") << 100.0 << "MAIN st" << 7 << QList<int>{};
    QTest::newRow("text differs") << 100.0 << "Main Rd" << 7 << QList<int>{30};
    QTest::newRow("integer and amount differ") << 50.0 << "Main St" << 8 << QList<int>{10, 20};
}

void tst_TaxFormData::reFileCompare()
{
    QFETCH(double, filedAmount);
    QFETCH(QString, filedName);
    QFETCH(int, filedCount);
    QFETCH(QList<int>, changedLines);

    TestForm current;
    current.fld_amount.m_dValue = 100.0;
    current.fld_name.m_strValue = CString("Main St");
    current.fld_count.m_nValue = 7;
    current.fld_old_notused.m_dValue = 1.0; // line code 0: never compared
    TestForm filed;
    filed.fld_amount.m_dValue = filedAmount;
    filed.fld_name.m_strValue = CString(filedName);
    filed.fld_count.m_nValue = filedCount;

    std::map<int, _ReFileFieldCompareStru> changes;
    QCOMPARE(current.ReFileCompareFields(&filed, changes), 0);
    QList<int> lines;
    for (auto const &change : changes) {
        lines << change.first;
        QCOMPARE(change.second.pField->m_nLineCode, change.first);
        QCOMPARE(change.second.pOtherField->m_nLineCode, change.first);
    }
    QCOMPARE(lines, changedLines);
}

void tst_TaxFormData::newYearRollOver_data()
{
    QTest::addColumn<bool>("keep");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("amount");
    QTest::addColumn<QDate>("due");
    QTest::addColumn<QDate>("paid");
    QTest::addColumn<double>("worksheetClaim");

    QTest::newRow("values kept, text still cleared") << true << 7 << 1234.5 << QDate(2024, 4, 30)
                                                     << QDate(2024, 1, 15) << 55.25;
    QTest::newRow("values rolled") << false << 8 << 0.0 << QDate(2025, 4, 30) << QDate() << 0.0;
}

void tst_TaxFormData::newYearRollOver()
{
    QFETCH(bool, keep);
    QFETCH(int, count);
    QFETCH(double, amount);
    QFETCH(QDate, due);
    QFETCH(QDate, paid);
    QFETCH(double, worksheetClaim);

    TestForm form;
    form.fillValues();
    form.ChangeToNewYearData(keep);
    QCOMPARE(form.fld_count.m_nValue, count);
    QCOMPARE(form.fld_amount.m_dValue, amount);
    QCOMPARE(form.fld_kept.m_dValue, 10.0);
    QCOMPARE(QString(form.fld_name.m_strValue), QString());
    QCOMPARE(form.fld_flag.m_nValue, 1);
    QCOMPARE(form.fld_due.m_date, due);
    QCOMPARE(form.fld_paid.m_date.isValid(), paid.isValid());
    QCOMPARE(form.worksheet.AmountClaim.m_dValue, worksheetClaim);
    QCOMPARE(form.m_DataFlag2.m_nValue, 4);
}

void tst_TaxFormData::setDepInfoReachesDependantWorksheets()
{
    TestForm form;
    CWSBaseData plain;
    form.m_listWorksheets.push_back(&plain);
    DependantInfoStruct dependants;
    form.SetDepInfo(&dependants);
    QCOMPARE(form.GetDepInfo(), &dependants);
    QCOMPARE(form.worksheet.GetDepInfo(), &dependants);
    form.SetDepInfo(nullptr);
    QCOMPARE(form.worksheet.GetDepInfo(), static_cast<DependantInfoStruct *>(nullptr));
}

void tst_TaxFormData::sharableFormFieldsComeFirst()
{
    SharedForm form;
    QCOMPARE(int(form.m_fields.size()), 3);
    QCOMPARE(form.m_fields[0]->m_strName, std::string("fld_bOverwritePercentIfShared"));
    QCOMPARE(form.m_fields[1]->m_strName, std::string("fld_MyPercent"));
    QCOMPARE(form.m_fields[1]->m_nVersionFrom, 0x10192u);
    QCOMPARE(form.m_nFormKind, 0);
    QCOMPARE(form.IsShared(), false);

    CSharableTaxData_Form slip(SLIP_T5);
    QCOMPARE(slip.m_nFormKind, 1);
    CString name;
    slip.GetDisplayName(name);
    QCOMPARE(QString(name), QStringLiteral("Untitled"));
}

void tst_TaxFormData::shouldBeImported_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("province");
    QTest::addColumn<bool>("imported");

    QTest::newRow("mandatory T1 General") << int(FORM_T1GENERAL) << 9 << true;
    QTest::newRow("optional form with the import flag") << int(FORM_T776) << 9 << true;
    QTest::newRow("optional form without the import flag") << int(FORM_T929) << 9 << false;
}

void tst_TaxFormData::shouldBeImported()
{
    QFETCH(int, form);
    QFETCH(int, province);
    QFETCH(bool, imported);

    CProvinceTaxData_Form data{ENUMTYPE_FORM(form)};
    QCOMPARE(data.ShouldBeImported(1, ENUMTYPE_PROVINCE(province)), imported);
}

QTEST_GUILESS_MAIN(tst_TaxFormData)
#include "tst_taxformdata.moc"
