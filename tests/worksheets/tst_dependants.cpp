#include "../fields/fieldarchive.h"

#include <LibControl/widgets/styledcombobox.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <QtTest>

#include <cstring>

namespace {

// Archive versions of the three record layouts.
constexpr int TextDateLayout = 0x10211;
constexpr int DayNumberLayout = 0x10200;
constexpr int SingleFloatLayout = 0x100b0;

struct Person
{
    char const *first;
    char const *last;
    QDate birth;
    int relationship;
    int infirm;
    double netIncome;
};

void fill(_OneDependantInfoStru &record, Person const &person)
{
    qstrncpy(record.m_szFirstName, person.first, sizeof record.m_szFirstName);
    qstrncpy(record.m_szLastName, person.last, sizeof record.m_szLastName);
    record.m_dateBirth = person.birth;
    record.m_nRelationship = person.relationship;
    record.fld_Infirm.m_nValue = person.infirm;
    record.m_dNetIncome = person.netIncome;
}

void fillList(DependantInfoStruct &list, std::initializer_list<Person> people)
{
    list.AllocData(int(people.size()));
    int i = 0;
    for (Person const &person : people)
        fill(list.m_pData[size_t(i++)], person);
}

QByteArray store(DependantInfoStruct &list, int version)
{
    return archived([&](MyDataStream &ar) { list.serilize(version, ar); });
}

QDataStream::Status load(DependantInfoStruct &list, QByteArray const &bytes, int version)
{
    return readArchive(bytes, [&](MyDataStream &ar) { list.serilize(version, ar); });
}

// Writers for hand-built archives, independent of the code under test.
void raw(QDataStream &out, char const *text, int width)
{
    QByteArray bytes(text);
    bytes.append(QByteArray(width - bytes.size(), '\0'));
    out.writeRawData(bytes.constData(), width);
}

double dayNumberOf(QDate date)
{
    // Day n of the old layouts is 1899-12-31 plus n days.
    return double(QDate(1899, 12, 31).daysTo(date));
}

} // namespace

class tst_Dependants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsOfOneRecord_data();
    void countsOfOneRecord();
    void unnamedRecordsKeepTheirNumber();
    void selectorText_data();
    void selectorText();
    void fillComboBox_data();
    void fillComboBox();
    void validateAndCorrectDepIndex_data();
    void validateAndCorrectDepIndex();
    void netIncomeWithAdjustment();
    void recordComparison_data();
    void recordComparison();
    void listAssignmentIsDeep();
    void storedLayoutIsExact();
    void loadsEachLayout_data();
    void loadsEachLayout();
    void damagedCountReadsNothing_data();
    void damagedCountReadsNothing();
};

void tst_Dependants::countsOfOneRecord_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("birthYear");
    QTest::addColumn<int>("relationship");
    QTest::addColumn<int>("infirm");
    QTest::addColumn<int>("expected");

    QTest::newRow("infirm born 2008 is under 18") << "under18" << 2008 << 0 << 1 << 1;
    QTest::newRow("infirm born 2007 is 18, no longer under 18") << "under18" << 2007 << 0 << 1 << 0;
    QTest::newRow("healthy child is not counted under 18") << "under18" << 2015 << 0 << 0 << 0;
    QTest::newRow("infirm parent of 70 is at least 65") << "notUnder65" << 1955 << 3 << 1 << 1;
    QTest::newRow("infirm parent of 60 is under 65") << "notUnder65" << 1965 << 3 << 1 << 0;
    QTest::newRow("born after the tax year has a negative age") << "notUnder0" << 2026 << 0 << 1 << 0;
    QTest::newRow("disabled adult, no upper age") << "disabled18to0" << 1990 << 9 << 2 << 1;
    QTest::newRow("infirm is not disabled") << "disabled18to0" << 1990 << 9 << 1 << 0;
    QTest::newRow("disabled adult above the upper age") << "disabled18to30" << 1990 << 9 << 2 << 0;
    QTest::newRow("child of 18 outside 0 to 17") << "children0to17" << 2007 << 0 << 0 << 0;
    QTest::newRow("child of 17 inside 0 to 17") << "children0to17" << 2008 << 0 << 0 << 1;
    QTest::newRow("any relationship counts as a child") << "children0to17" << 2010 << 12 << 0 << 1;
    QTest::newRow("children count needs the infirm flag to match") << "infirmChildren" << 2010 << 0 << 0 << 0;
    QTest::newRow("infirm child matches the infirm flag") << "infirmChildren" << 2010 << 0 << 1 << 1;
    QTest::newRow("daughter counted by relation whatever her age") << "daughters0to5" << 1990 << 1 << 0 << 1;
    QTest::newRow("son is not a daughter") << "daughters0to5" << 2022 << 0 << 0 << 0;
    QTest::newRow("child under 18 counts for line 305") << "children305" << 2015 << 0 << 0 << 1;
    QTest::newRow("healthy adult child does not count for line 305") << "children305" << 1990 << 0 << 0 << 0;
    QTest::newRow("infirm adult child counts for line 305") << "children305" << 1990 << 0 << 1 << 1;
    QTest::newRow("brother aged 20 does not count for line 305") << "others305" << 2005 << 8 << 0 << 0;
    QTest::newRow("infirm brother aged 20 counts for line 305") << "others305" << 2005 << 8 << 1 << 1;
    QTest::newRow("sister aged 17 counts for line 305") << "others305" << 2008 << 9 << 0 << 1;
    QTest::newRow("mother counts at any age") << "others305" << 1940 << 3 << 0 << 1;
    QTest::newRow("grandmother counts at any age") << "others305" << 1930 << 5 << 0 << 1;
    QTest::newRow("disabled nephew never counts") << "others305" << 2015 << 10 << 2 << 0;
    QTest::newRow("daughter is a child, not an other") << "others305" << 2015 << 1 << 0 << 0;
}

void tst_Dependants::countsOfOneRecord()
{
    QFETCH(QString, query);
    QFETCH(int, birthYear);
    QFETCH(int, relationship);
    QFETCH(int, infirm);
    QFETCH(int, expected);

    DependantInfoStruct list;
    fillList(list, {{"Ann", "Lee", QDate(birthYear, 6, 15), relationship, infirm, 0.0}});

    int count = -1;
    if (query == QLatin1String("under18"))
        count = list.GetInfirmDependentNumberUnderAge18();
    else if (query == QLatin1String("notUnder65"))
        count = list.GetInfirmDependantsNumberNotUnderAge(65);
    else if (query == QLatin1String("notUnder0"))
        count = list.GetInfirmDependantsNumberNotUnderAge(0);
    else if (query == QLatin1String("disabled18to0"))
        count = list.GetDisabledDependantsBetweenAges(18, 0);
    else if (query == QLatin1String("disabled18to30"))
        count = list.GetDisabledDependantsBetweenAges(18, 30);
    else if (query == QLatin1String("children0to17"))
        count = list.GetDepChildrenNumberBetweenAges(0, 17);
    else if (query == QLatin1String("infirmChildren"))
        count = list.GetDepChildrenNumberBetweenAges_Infirm(0, 0, true);
    else if (query == QLatin1String("daughters0to5"))
        count = list.GetDepNumberBetweenAgesAndRelation(0, 5, 1);
    else if (query == QLatin1String("children305"))
        count = list.GetDepChildrenNumberForLine305();
    else if (query == QLatin1String("others305"))
        count = list.GetDepOtherThanChildrenNumberForLine305();
    QCOMPARE(count, expected);
}

void tst_Dependants::unnamedRecordsKeepTheirNumber()
{
    DependantInfoStruct list;
    fillList(list, {{"Tom", "Ray", QDate(2012, 3, 1), 0, 0, 0.0},
                    {"  ", "", QDate(2012, 4, 1), 0, 1, 0.0},
                    {"", "Ray", QDate(2012, 5, 1), 1, 0, 0.0}});

    QCOMPARE(list.GetDepChildrenNumberBetweenAges(0, 0), 2);
    QCOMPARE(list.GetInfirmDependentNumberUnderAge18(), 0);
    // Birth months of the named 13-year-olds: March and May.
    QCOMPARE(list.GetMonthsDepChildrenAtAge_Infirm(13), 3 + 5);

    StyledComboBox box;
    list.FillComboBox(&box, nullptr);
    QCOMPARE(box.GetCount(), 3);
    QCOMPARE(box.GetItemData(1), 1);
    QCOMPARE(box.GetItemData(2), 3);
}

void tst_Dependants::selectorText_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QDate>("birth");
    QTest::addColumn<int>("relationship");
    QTest::addColumn<int>("infirm");
    QTest::addColumn<double>("netIncome");
    QTest::addColumn<bool>("named");
    QTest::addColumn<QString>("expected");

    QTest::newRow("full record") << "John" << "Smith" << QDate(2010, 5, 1) << 0 << 0 << 1234.0 << true
                                 << "John Smith - Son - net inc.($1234.00) -  - Normal - 2010-05-01";
    QTest::newRow("names are trimmed") << "  Mary " << " Brown  " << QDate(1950, 1, 2) << 3 << 1 << 0.5 << true
                                       << "Mary Brown - Mother - net inc.($0.50) -  - Infirm - 1950-01-02";
    QTest::newRow("blank first name, no birth date") << "" << "Smith" << QDate() << 14 << 2 << -20.0 << true
                                                     << "<FirstName> Smith - Other - net inc.($-20.00) -  - Disabled";
    QTest::newRow("blank last name") << "Jo" << " " << QDate() << 9 << 0 << 0.0 << true
                                     << "Jo <LastName> - Sister - net inc.($0.00) -  - Normal";
    QTest::newRow("both names blank") << " " << "" << QDate(2010, 5, 1) << 0 << 0 << 0.0 << false << "";
}

void tst_Dependants::selectorText()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(QDate, birth);
    QFETCH(int, relationship);
    QFETCH(int, infirm);
    QFETCH(double, netIncome);
    QFETCH(bool, named);
    QFETCH(QString, expected);

    _OneDependantInfoStru record;
    QByteArray const firstBytes = first.toLatin1();
    QByteArray const lastBytes = last.toLatin1();
    fill(record, {firstBytes.constData(), lastBytes.constData(), birth, relationship, infirm, netIncome});

    CString text("stale");
    QCOMPARE(record.MakeComboBoxString(text), named);
    QCOMPARE(QString(text), expected);
}

void tst_Dependants::fillComboBox_data()
{
    QTest::addColumn<int>("records");
    QTest::addColumn<QByteArray>("firstItem");
    QTest::addColumn<QStringList>("items");

    QTest::newRow("empty list") << 0 << QByteArray() << QStringList{"No dependant information was entered."};
    QTest::newRow("default first item") << 1 << QByteArray()
                                        << QStringList{"Please select a dependant",
                                                       "Zoé Roy - Daughter - net inc.($10.00) -  - Normal"};
    QTest::newRow("caller's first item") << 1 << QByteArray("Spouse or none")
                                         << QStringList{"Spouse or none",
                                                        "Zoé Roy - Daughter - net inc.($10.00) -  - Normal"};
}

void tst_Dependants::fillComboBox()
{
    QFETCH(int, records);
    QFETCH(QByteArray, firstItem);
    QFETCH(QStringList, items);

    DependantInfoStruct list;
    list.AllocData(records);
    if (records > 0)
        fill(list.m_pData[0], {"Zo\xe9", "Roy", QDate(), 1, 0, 10.0});

    StyledComboBox box;
    list.FillComboBox(&box, firstItem.isNull() ? nullptr : firstItem.data());
    QStringList shown;
    for (int i = 0; i < box.GetCount(); ++i)
        shown << box.itemText(i);
    QCOMPARE(shown, items);
    QCOMPARE(box.GetItemData(0), 0);
    list.FillComboBox(nullptr, nullptr);
}

void tst_Dependants::validateAndCorrectDepIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("corrected");
    QTest::addColumn<int>("result");

    QTest::newRow("no dependant stays") << 0 << 0 << 0;
    QTest::newRow("named record stays") << 1 << 1 << 0;
    QTest::newRow("negative index") << -3 << 0 << 1;
    QTest::newRow("beyond the count") << 4 << 0 << 1;
    QTest::newRow("unnamed record") << 2 << 0 << 1;
    QTest::newRow("last record") << 3 << 3 << 0;
}

void tst_Dependants::validateAndCorrectDepIndex()
{
    QFETCH(int, index);
    QFETCH(int, corrected);
    QFETCH(int, result);

    DependantInfoStruct list;
    fillList(list, {{"A", "B", QDate(), 0, 0, 0.0}, {"", "", QDate(), 0, 0, 0.0}, {"C", "", QDate(), 0, 0, 0.0}});
    QCOMPARE(list.ValidateAndCorrectDepIndex(index), result);
    QCOMPARE(index, corrected);
}

void tst_Dependants::netIncomeWithAdjustment()
{
    DependantInfoStruct list;
    fillList(list, {{"A", "B", QDate(), 0, 0, 1000.25}});
    list.fld_AdjustAmount.m_dValue = 250.5;
    QCOMPARE(list.GetDepNetIncConsideringF185(0), 1250.75);
    QCOMPARE(list.GetDepNetIncConsideringF185(-1), 0.0);
    QCOMPARE(list.GetDepNetIncConsideringF185(1), 0.0);
}

void tst_Dependants::recordComparison_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("equal");

    QTest::newRow("identical") << "none" << true;
    QTest::newRow("net income within 0.009") << "income+0.008" << true;
    QTest::newRow("net income a cent apart") << "income+0.01" << false;
    QTest::newRow("last name") << "name" << false;
    QTest::newRow("birth date") << "birth" << false;
    QTest::newRow("infirmity field") << "infirm" << false;
}

void tst_Dependants::recordComparison()
{
    QFETCH(QString, change);
    QFETCH(bool, equal);

    _OneDependantInfoStru a;
    fill(a, {"Ann", "Lee", QDate(2001, 2, 3), 2, 0, 100.0});
    _OneDependantInfoStru b(a);
    if (change == QLatin1String("income+0.008"))
        b.m_dNetIncome = 100.008;
    else if (change == QLatin1String("income+0.01"))
        b.m_dNetIncome = 100.01;
    else if (change == QLatin1String("name"))
        qstrcpy(b.m_szLastName, "Lea");
    else if (change == QLatin1String("birth"))
        b.m_dateBirth = QDate();
    else if (change == QLatin1String("infirm"))
        b.fld_Infirm.m_nValue = 1;
    QCOMPARE(a == b, equal);
}

void tst_Dependants::listAssignmentIsDeep()
{
    DependantInfoStruct source;
    fillList(source, {{"A", "B", QDate(2000, 1, 1), 0, 2, 5.0}, {"C", "D", QDate(), 3, 0, 7.0}});
    source.fld_medexp_van_notused.m_dValue = 12.0;

    DependantInfoStruct copy;
    copy = source;
    QCOMPARE(copy.m_nCount, 2);
    QVERIFY(copy == source);
    copy.m_pData[1].fld_Infirm.m_nValue = 1;
    QCOMPARE(source.m_pData[1].fld_Infirm.m_nValue, 0);
    QVERIFY(copy != source);

    // The counts are not compared: a longer list whose first records match is equal.
    DependantInfoStruct shorter;
    fillList(shorter, {{"A", "B", QDate(2000, 1, 1), 0, 2, 5.0}});
    shorter.fld_medexp_van_notused.m_dValue = 12.0;
    QVERIFY(shorter == source);
    QVERIFY(source != shorter);
}

void tst_Dependants::storedLayoutIsExact()
{
    DependantInfoStruct list;
    fillList(list, {{"Ann", "Lee", QDate(2010, 5, 1), 1, 2, 1234.5}});
    list.m_pData[0].fld_InfirmNature.m_strValue = CString("Asthma");
    list.m_pData[0].fld_iProv.m_dValue = 9;
    list.fld_medexp_move_spouse_notused.m_dValue = 3.5;
    list.fld_AdjustAmount.m_dValue = 99.0; // never stored

    QByteArray expected;
    QDataStream out(&expected, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << qint32(1);
    raw(out, "Ann", 80);
    raw(out, "Lee", 80);
    out << qint32(0);
    raw(out, "20100501", 8);
    out << qint32(1) << 1234.5;
    out << qint32(2);
    raw(out, "Asthma", 80);
    raw(out, "", 160);
    out << 9.0 << 0.0 << 0.0 << 0.0 << 0.0;
    for (int i = 0; i < 9; ++i)
        out << 0.0;
    out << 3.5;

    QCOMPARE(store(list, TextDateLayout), expected);
}

void tst_Dependants::loadsEachLayout_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("bytes");

    for (int version : {TextDateLayout, DayNumberLayout, SingleFloatLayout}) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << qint32(1);
        raw(out, "Ann", 80);
        raw(out, "Lee", 80);
        out << qint32(0);
        if (version == TextDateLayout)
            raw(out, "20100501", 8);
        else
            out << dayNumberOf(QDate(2010, 5, 1));
        out << qint32(8);
        if (version == SingleFloatLayout) {
            out.setFloatingPointPrecision(QDataStream::SinglePrecision);
            out << 1234.5f;
            out.setFloatingPointPrecision(QDataStream::DoublePrecision);
        } else {
            out << 1234.5;
        }
        out << qint32(2); // fld_Infirm exists from 0x100a1
        if (version != SingleFloatLayout) {
            raw(out, "Asthma", 80);
            raw(out, "1 Main St", 160);
            for (int i = 0; i < 5; ++i)
                out << 0.0;
            for (int i = 0; i < 10; ++i)
                out << 1.0;
        }
        QTest::newRow(qPrintable(QStringLiteral("version 0x%1").arg(version, 0, 16))) << version << bytes;
    }
}

void tst_Dependants::loadsEachLayout()
{
    QFETCH(int, version);
    QFETCH(QByteArray, bytes);

    DependantInfoStruct list;
    QCOMPARE(load(list, bytes, version), QDataStream::Ok);
    QCOMPARE(list.m_nCount, 1);
    _OneDependantInfoStru const &record = list.m_pData[0];
    QCOMPARE(QByteArray(record.m_szFirstName), QByteArray("Ann"));
    QCOMPARE(QByteArray(record.m_szLastName), QByteArray("Lee"));
    QCOMPARE(record.m_dateBirth, QDate(2010, 5, 1));
    QCOMPARE(record.m_nRelationship, 8);
    QCOMPARE(record.m_dNetIncome, 1234.5);
    QCOMPARE(record.fld_Infirm.m_nValue, 2);
    QCOMPARE(QString(record.fld_InfirmNature.m_strValue), version == SingleFloatLayout ? QString() : "Asthma");
    QCOMPARE(list.fld_medexp_notused.m_dValue, version == SingleFloatLayout ? 0.0 : 1.0);
}

void tst_Dependants::damagedCountReadsNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("count");

    QByteArray huge;
    QDataStream out(&huge, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << qint32(0x7fffffff);
    huge.append(QByteArray(500, 'x'));
    QTest::newRow("count far beyond the bytes") << huge << 0;
    QTest::newRow("stream ends inside the count") << QByteArray("\x01\x00", 2) << 0;
    QTest::newRow("negative count") << QByteArray("\xff\xff\xff\xff", 4) << 0;
}

void tst_Dependants::damagedCountReadsNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, count);

    DependantInfoStruct list;
    fillList(list, {{"A", "B", QDate(), 0, 0, 0.0}});
    load(list, bytes, TextDateLayout);
    QCOMPARE(list.m_nCount, count);
}

QTEST_MAIN(tst_Dependants)
#include "tst_dependants.moc"
