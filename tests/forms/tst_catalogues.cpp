// Integrity of the exported catalogues: transcription faults (a shifted row,
// a lost entry, a retyped text) show up here before they reach a return.

#include <LibControl/common/utilities.h>
#include <LibControl/forms/taxformtype.h>

#include <QSet>
#include <QString>
#include <QtTest>

#include <iterator>

namespace {

QString text(char const *s)
{
    return s ? QString::fromLatin1(s) : QString();
}

template<typename Row, std::size_t N> QVector<int> idsOf(Row const (&table)[N])
{
    QVector<int> ids;
    for (Row const &row : table)
        ids << row.id;
    return ids;
}

template<std::size_t N> QVector<int> codesOf(STRUCT_GENERAL_RELATION_CODE_INFO const (&table)[N])
{
    QVector<int> codes;
    for (auto const &row : table)
        codes << row.code;
    return codes;
}

template<std::size_t N> QVector<int> formsOf(STRUCT_JURISDICTION_FORM_INFO const (&list)[N])
{
    QVector<int> forms;
    for (auto const &entry : list)
        forms << entry.form;
    return forms;
}

template<typename T> int distinctCount(QList<T> const &values)
{
    QSet<T> set;
    for (T const &value : values)
        set.insert(value);
    return set.size();
}

QVector<int> rowNumbers(int count)
{
    QVector<int> rows;
    for (int i = 0; i < count; ++i)
        rows << i;
    return rows;
}

} // namespace

class tst_Catalogues : public QObject
{
    Q_OBJECT

private slots:
    void idsAreRowNumbers_data();
    void idsAreRowNumbers();
    void formShortNames_data();
    void formShortNames();
    void formColumnsAreWellFormed();
    void formFlags_data();
    void formFlags();
    void federalList();
    void provincialLists_data();
    void provincialLists();
    void formBelongsToOneJurisdiction();
    void provinceIndexAfterLoad();
    void provinces_data();
    void provinces();
    void slips();
    void taxWizard();
    void countries();
    void usStates();
    void combinedProvincesAndStates();
    void codeTables_data();
    void codeTables();
    void fixedLists();
};

void tst_Catalogues::idsAreRowNumbers_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<QVector<int>>("expected");
    QTest::newRow("forms") << idsOf(Global_Forms_Info) << rowNumbers(214);
    QTest::newRow("slips") << idsOf(Global_Slips_Info) << rowNumbers(27);
    QTest::newRow("provinces") << idsOf(Global_Provs_Info) << rowNumbers(18);
    QTest::newRow("trust provinces") << idsOf(Global2_Provs_Info) << rowNumbers(18);
    QTest::newRow("wizard steps") << idsOf(Global_TaxWizard_Info) << rowNumbers(7);
    QTest::newRow("US states") << idsOf(Global_USStates_Info) << rowNumbers(60);
    QTest::newRow("provinces and states") << codesOf(Global_CAUSProvs_Info) << rowNumbers(77);
    QTest::newRow("countries end with 999") << idsOf(Global_Countries_Info) << (rowNumbers(117) << 999);
}

void tst_Catalogues::idsAreRowNumbers()
{
    QFETCH(QVector<int>, ids);
    QFETCH(QVector<int>, expected);
    QCOMPARE(ids, expected);
}

void tst_Catalogues::formShortNames_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("shortName");
    QTest::newRow("none") << 0 << "N/A";
    QTest::newRow("T1 General") << 1 << "T1 General";
    QTest::newRow("old schedule 8") << 8 << "Schedule 8";
    QTest::newRow("Ontario tax") << int(FORM_ON428) << "Ontario Tax";
    QTest::newRow("first commission") << 33 << "COMMISSION";
    QTest::newRow("Newfoundland tax") << 63 << "Newfoundland and Labrador Tax and Credits";
    QTest::newRow("T1-KS") << 93 << "T1-KS";
    QTest::newRow("second commission") << 131 << "COMMISSION";
    QTest::newRow("current schedule 8") << 150 << "Schedule 8";
    QTest::newRow("first RC59") << 176 << "RC59";
    QTest::newRow("second RC59") << 184 << "RC59";
    QTest::newRow("misspelled unused row") << 200 << "Unsued";
    QTest::newRow("last row") << 213 << "T1198";
}

void tst_Catalogues::formShortNames()
{
    QFETCH(int, form);
    QFETCH(QString, shortName);
    QCOMPARE(text(Global_Forms_Info[form].shortName), shortName);
}

void tst_Catalogues::formColumnsAreWellFormed()
{
    QCOMPARE(text(Global_Forms_Info[FORM_NA].dataClass), QStringLiteral("None"));
    QCOMPARE(text(Global_Forms_Info[FORM_SCHEDULE1].title), QStringLiteral("Schedule 1 - Federal Tax"));
    QCOMPARE(text(Global_Forms_Info[FORM_SCHEDULE1].dataClass), QStringLiteral("TaxData_S1"));
    QCOMPARE(text(Global_Forms_Info[FORM_T1GENERAL].printFile), QStringLiteral("5000-r-25e.pdf"));
    QSet<QString> classes;
    for (int f = 1; f < 214; ++f) {
        STRUCT_TAXFORM_INFO const &row = Global_Forms_Info[f];
        QString const where = QStringLiteral("row %1").arg(f);
        QVERIFY2(text(row.title).contains(QLatin1String(" - ")), qPrintable(where));
        QVERIFY2(text(row.dataClass).startsWith(QLatin1String("TaxData_")), qPrintable(where));
        QVERIFY2(text(row.printFile) == QLatin1String("noprint.pdf") || text(row.printFile).endsWith("-25e.pdf"),
            qPrintable(where));
        QVERIFY2(text(row.layoutFile).endsWith(".xml") || text(row.layoutFile).endsWith(".xmd"), qPrintable(where));
        QVERIFY2(row.flagA <= 1 && row.flagB <= 1, qPrintable(where));
        classes.insert(text(row.dataClass));
    }
    QCOMPARE(classes.size(), 213);
}

void tst_Catalogues::formFlags_data()
{
    QTest::addColumn<bool>("flagB");
    QTest::addColumn<int>("expectedCount");
    QTest::addColumn<QVector<int>>("named");
    QTest::newRow("flag A") << false << 21
                            << QVector<int> { FORM_T1GENERAL, FORM_SCHEDULE1, FORM_SCHEDULE5, FORM_ON428, FORM_BC428,
                                   FORM_AB428, FORM_MB428, FORM_NB428, FORM_NL428, FORM_NT428, FORM_NS428, FORM_NU428,
                                   FORM_PE428, FORM_SK428, FORM_YT428, FORM_T778, FORM_T1238, FORM_SCHEDULE14 };
    QTest::newRow("flag B") << true << 18
                            << QVector<int> { FORM_T1GENERAL, FORM_SCHEDULE1, FORM_SCHEDULE2, FORM_SCHEDULE5, FORM_T776,
                                   FORM_T1163, FORM_T2032, FORM_T2042, FORM_T2124, FORM_COMMISSION, FORM_T5013,
                                   FORM_T1KS_LASTYEAR, FORM_ON428, FORM_BC428, FORM_AB428 };
}

void tst_Catalogues::formFlags()
{
    QFETCH(bool, flagB);
    QFETCH(int, expectedCount);
    QFETCH(QVector<int>, named);
    auto flagOf = [flagB](int f) { return flagB ? Global_Forms_Info[f].flagB : Global_Forms_Info[f].flagA; };
    int count = 0;
    for (int f = 0; f < 214; ++f)
        count += flagOf(f) ? 1 : 0;
    QCOMPARE(count, expectedCount);
    for (int f : named)
        QVERIFY2(flagOf(f), Global_Forms_Info[f].shortName);
}

void tst_Catalogues::federalList()
{
    QCOMPARE(Federal_Forms_Num, 62);
    QCOMPARE(int(std::size(Federal_Forms_Info)), Federal_Forms_Num);
    QCOMPARE(Federal_Forms_Info[0].form, int(FORM_T1GENERAL));
    QCOMPARE(Federal_Forms_Info[7].form, int(FORM_SCHEDULE8));
    QCOMPARE(Federal_Forms_Info[61].form, int(FORM_INSTALMENT));
    // Only the marked rows differ from mask 3, conditional 0.
    QMap<int, QPair<int, int>> const marked { { FORM_T1GENERAL, { 3, 1 } }, { FORM_T183, { 1, 1 } },
        { FORM_T185, { 1, 0 } }, { FORM_T1013_ONLINE, { 1, 0 } }, { FORM_RC71, { 1, 0 } }, { FORM_T1KS, { 3, 1 } } };
    QSet<int> seen;
    for (auto const &entry : Federal_Forms_Info) {
        QPair<int, int> const expected = marked.value(entry.form, { 3, 0 });
        QCOMPARE(qMakePair(int(entry.mandatory), int(entry.conditional)), expected);
        QCOMPARE(entry.reserved[0] | entry.reserved[1], 0);
        seen.insert(entry.form);
    }
    QCOMPARE(seen.size(), 62);
}

void tst_Catalogues::provincialLists_data()
{
    QTest::addColumn<int>("province");
    QTest::addColumn<QVector<int>>("forms");
    QTest::addColumn<QVector<int>>("mandatory");
    QTest::newRow("AB") << int(PROV_AB) << formsOf(AB_Forms_Info) << QVector<int> { FORM_AB428 };
    QTest::newRow("BC") << int(PROV_BC) << formsOf(BC_Forms_Info) << QVector<int> { FORM_BC428, FORM_BC479 };
    QTest::newRow("MB") << int(PROV_MB) << formsOf(MB_Forms_Info)
                        << QVector<int> { FORM_MB428, FORM_MB479, FORM_MB428A };
    QTest::newRow("NB") << int(PROV_NB) << formsOf(NB_Forms_Info) << QVector<int> { FORM_NB428 };
    QTest::newRow("NL") << int(PROV_NL) << formsOf(NL_Forms_Info) << QVector<int> { FORM_NL428, FORM_NL479 };
    QTest::newRow("NS") << int(PROV_NS) << formsOf(NS_Forms_Info) << QVector<int> { FORM_NS428, FORM_NS479 };
    QTest::newRow("NT") << int(PROV_NT) << formsOf(NT_Forms_Info) << QVector<int> { FORM_NT428, FORM_NT479 };
    QTest::newRow("NU") << int(PROV_NU) << formsOf(NU_Forms_Info) << QVector<int> { FORM_NU428, FORM_NU479 };
    QTest::newRow("ON") << int(PROV_ON) << formsOf(ON_Forms_Info)
                        << QVector<int> { FORM_ON428, FORM_ON428A, FORM_ON479, FORM_ON_BEN };
    QTest::newRow("PE") << int(PROV_PE) << formsOf(PE_Forms_Info) << QVector<int> { FORM_PE428 };
    QTest::newRow("SK") << int(PROV_SK) << formsOf(SK_Forms_Info) << QVector<int> { FORM_SK428, FORM_SK479 };
    QTest::newRow("YT") << int(PROV_YT) << formsOf(YT_Forms_Info)
                        << QVector<int> { FORM_YT428, FORM_YT479, FORM_YT432, FORM_YT_S14 };
}

void tst_Catalogues::provincialLists()
{
    QFETCH(int, province);
    QFETCH(QVector<int>, forms);
    QFETCH(QVector<int>, mandatory);
    static int const counts[14] = { 0, 3, 10, 11, 5, 7, 5, 4, 4, 8, 3, 0, 8, 7 };
    STRUCT_PROVINCE_FORMS_INFO const &entry = Province_Forms_Info[province];
    QCOMPARE(forms.size(), counts[province]);
    QCOMPARE(entry.count, counts[province]);
    QVector<int> marked;
    for (int i = 0; i < entry.count; ++i) {
        QCOMPARE(entry.forms[i].form, forms[i]);
        QCOMPARE(entry.forms[i].conditional, 0);
        QVERIFY(entry.forms[i].mandatory <= 1);
        if (entry.forms[i].mandatory)
            marked << entry.forms[i].form;
    }
    QCOMPARE(marked, mandatory);
}

void tst_Catalogues::formBelongsToOneJurisdiction()
{
    QSet<int> seen;
    for (auto const &entry : Federal_Forms_Info)
        seen.insert(entry.form);
    int total = Federal_Forms_Num;
    for (int p = PROV_AB; p <= PROV_YT; ++p) {
        for (int i = 0; i < Province_Forms_Info[p].count; ++i) {
            int const form = Province_Forms_Info[p].forms[i].form;
            QVERIFY2(!seen.contains(form), Global_Forms_Info[form].shortName);
            seen.insert(form);
            ++total;
        }
    }
    QCOMPARE(seen.size(), total);
}

void tst_Catalogues::provinceIndexAfterLoad()
{
    QCOMPARE(Province_Forms_Info[PROV_NONE].forms, nullptr);
    QCOMPARE(Province_Forms_Info[PROV_NONE].count, 0);
    QCOMPARE(Province_Forms_Info[PROV_QC].forms, nullptr);
    QCOMPARE(Province_Forms_Info[PROV_QC].count, 0);
    QCOMPARE(QC_Forms_Info, nullptr);
    QCOMPARE(QC_Forms_Num, 0);
    QCOMPARE(Province_Forms_Info[PROV_ON].forms, &ON_Forms_Info[0]);
    QCOMPARE(Province_Forms_Info[PROV_ON].count, ON_Forms_Num);
    QCOMPARE(Province_Forms_Info[PROV_YT].count, YT_Forms_Num);
}

void tst_Catalogues::provinces_data()
{
    QTest::addColumn<int>("province");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("hasModules");
    QTest::newRow("none") << 0 << "Choose A Province" << QString() << false;
    QTest::newRow("Alberta") << 1 << QStringLiteral("Alberta") << "AB" << true;
    QTest::newRow("Newfoundland") << 5 << QStringLiteral("Newfoundland And Labrador") << "NL" << true;
    QTest::newRow("Northwest Territories") << 7 << QStringLiteral("Northwest Territory") << "NT" << true;
    QTest::newRow("Quebec") << 11 << QStringLiteral("Quebec") << "QC" << false;
    QTest::newRow("Yukon") << 13 << QStringLiteral("Yukon Territory") << "YT" << true;
    QTest::newRow("non-resident") << 14 << QStringLiteral("Non-Resident") << "OT" << false;
    QTest::newRow("section 217") << 16 << QStringLiteral("Non-Resident Under Section 217") << "OT" << false;
    QTest::newRow("deemed resident") << 17 << QStringLiteral("Deemed Resident") << "OT" << false;
}

void tst_Catalogues::provinces()
{
    QFETCH(int, province);
    QFETCH(QString, name);
    QFETCH(QString, code);
    QFETCH(bool, hasModules);
    STRUCT_PROVINCE_INFO const &row = Global_Provs_Info[province];
    QCOMPARE(text(row.name), name);
    QCOMPARE(text(row.code), code);
    QCOMPARE(!text(row.module).isEmpty(), hasModules);
    QCOMPARE(!text(row.nonResidentModule).isEmpty(), hasModules);
    QCOMPARE(row.module == nullptr, !hasModules);
    STRUCT_PROVINCE2_INFO const &trust = Global2_Provs_Info[province];
    QCOMPARE(text(trust.name), name);
    QCOMPARE(text(trust.code), code);
    QCOMPARE(!text(trust.module).isEmpty(), hasModules);
}

void tst_Catalogues::slips()
{
    static char const *const shortNames[27] = { "N/A", "T4 (Releve 1)", "T4A", "T4A(P)", "T4RSP", "T4E", "T4A(OAS)",
        "T4RIF", "T5", "T3", "T5003", "T5007", "T4F", "T5013", "T4PS", "T4A-RCA", "T5006", "RC62", "RC210", "T5008",
        "RRSP Contribution", "Manitoba Shelter Benefit", "PRPP Receipt", "T1204", "NR4", "T2202", "T4FHSA" };
    for (int s = 0; s < 27; ++s) {
        QCOMPARE(text(Global_Slips_Info[s].shortName), QString::fromLatin1(shortNames[s]));
        QVERIFY(!text(Global_Slips_Info[s].title).isEmpty());
        if (s > 0)
            QVERIFY(text(Global_Slips_Info[s].dataClass).startsWith(QLatin1String("SlipData_")));
    }
    QCOMPARE(text(Global_Slips_Info[SLIP_T4AOAS].dataClass), QStringLiteral("SlipData_T4AOAS"));
    QCOMPARE(text(Global_Slips_Info[SLIP_RRSP_CONTRIBUTION].dataClass), QStringLiteral("SlipData_RRSPContriubtion"));
}

void tst_Catalogues::taxWizard()
{
    STRUCT_TAXWIZARD_INFO const &general = Global_TaxWizard_Info[TAXWIZARD_GENERAL_INFO];
    QCOMPARE(text(general.title), QStringLiteral("General Info, Donation, Union Due"));
    QCOMPARE(text(general.shortTitle), QStringLiteral("General Info, Donation, Union Due, Moving Expenses"));
    QCOMPARE(text(Global_TaxWizard_Info[TAXWIZARD_LAST_YEAR].title),
        QStringLiteral("Amounts from Last Year Tax Return Assessment"));
    QCOMPARE(text(Global_TaxWizard_Info[TAXWIZARD_DEPENDANTS].shortTitle), QStringLiteral("Dependant's Information"));
    QCOMPARE(text(Global_TaxWizard_Info[TAXWIZARD_RRSP].shortTitle), QStringLiteral("RRSP Claim"));
    QVector<int> enabled;
    for (auto const &step : Global_TaxWizard_Info)
        enabled << step.enabled;
    QCOMPARE(enabled, (QVector<int> { 0, 1, 1, 1, 1, 1, 0 }));
}

void tst_Catalogues::countries()
{
    STRUCT_COUNTRY_INFO const &select = Global_Countries_Info[0];
    QCOMPARE(text(select.name), QStringLiteral("Select"));
    QCOMPARE(text(select.isoCode2) + text(select.isoCode3), QString(""));
    auto row = [](int i) {
        STRUCT_COUNTRY_INFO const &c = Global_Countries_Info[i];
        return QStringList { text(c.name), text(c.isoCode2), text(c.isoCode3) };
    };
    QCOMPARE(row(1), (QStringList { "Canada", "CA", "CAN" }));
    QCOMPARE(row(2), (QStringList { "United States of America", "US", "USA" }));
    QCOMPARE(row(116), (QStringList { "Nigeria", "NG", "NGA" }));
    QCOMPARE(row(117), (QStringList { "Other Country", "OT", "OTH" }));
    QSet<QString> names, codes2, codes3;
    for (int i = 1; i <= 116; ++i) {
        QStringList const r = row(i);
        QVERIFY2(QRegularExpression("^[A-Z]{2}$").match(r[1]).hasMatch(), qPrintable(r[0]));
        QVERIFY2(QRegularExpression("^[A-Z]{3}$").match(r[2]).hasMatch(), qPrintable(r[0]));
        names.insert(r[0]);
        codes2.insert(r[1]);
        codes3.insert(r[2]);
    }
    QCOMPARE(names.size(), 116);
    QCOMPARE(codes2.size(), 116);
    QCOMPARE(codes3.size(), 116);
}

void tst_Catalogues::usStates()
{
    auto row = [](int i) {
        return QStringList { text(Global_USStates_Info[i].name), text(Global_USStates_Info[i].code) };
    };
    QCOMPARE(row(0), (QStringList { "Choose A State", "N/A" }));
    QCOMPARE(row(1), (QStringList { "Alaska", "AK" }));
    QCOMPARE(row(55), (QStringList { "Vemont", "VT" }));
    QCOMPARE(row(59), (QStringList { "Wyoming", "WY" }));
    for (int i = 2; i <= 59; ++i)
        QVERIFY2(row(i - 1)[1] < row(i)[1], qPrintable(row(i)[0]));
    for (auto const &state : Global_USStates_Info)
        QCOMPARE(state.unused, 0);
}

void tst_Catalogues::combinedProvincesAndStates()
{
    QCOMPARE(text(Global_CAUSProvs_Info[0].name), QStringLiteral("Choose A Province"));
    QCOMPARE(text(Global_CAUSProvs_Info[76].name), QStringLiteral("Wyoming"));
    for (int p = 0; p <= 17; ++p)
        QCOMPARE(text(Global_CAUSProvs_Info[p].name), text(Global_Provs_Info[p].name));
    for (int n = 1; n <= 59; ++n) {
        QCOMPARE(Global_CAUSProvs_Info[n + 17].code, n + 17);
        QCOMPARE(text(Global_CAUSProvs_Info[n + 17].name), text(Global_USStates_Info[n].name));
        QVERIFY(isUsaState(Global_CAUSProvs_Info[n + 17].code));
    }
}

void tst_Catalogues::codeTables_data()
{
    QTest::addColumn<QVector<int>>("codes");
    QTest::addColumn<QStringList>("names");
    auto add = [](char const *name, auto const &table) {
        QVector<int> codes;
        QStringList names;
        for (auto const &row : table) {
            codes << row.code;
            names << text(row.name);
        }
        QTest::newRow(name) << codes << names;
    };
    add("AB third-party types", Global_AB_3RDPartyTypes_Info);
    add("AB schedule 7 adjustments", Global_AB_SCH7_SRC_ADJUSTMENT_Info);
    add("MB book classes", Global_MB_S389_Book_Class_Info);
    add("MB book formats", Global_MB_S389_Book_Format_Info);
    add("QC annexe 3", Global_QC_ANNEXE3_Info);
    add("S11 relations", Global_S11_RELATIONCODE_Info);
    add("S15 T4PS filers", Global_S15_T4PSFiledBy_Info);
    add("S15 plan types", Global_S15_TypeOfPlan_Info);
    add("S23 association codes", Global_S23_ASSCCODE_Info);
    add("S29 payment codes", Global_S29_PAYMENT_CODE_Info);
    add("S8 class 43 assets", Global_S8_ASSET43_CODE_Info);
    add("S97 non-resident codes", Global_S97_NONRESI_CODE_Info);
    add("S9 relations", Global_S9_RELATIONCODE_Info);
    add("T106 pricing methods", Global_T106_TPM_CODE_Info);
    add("T661 billing", Global_T661_BILLING_CODE_Info);
}

void tst_Catalogues::codeTables()
{
    QFETCH(QVector<int>, codes);
    QFETCH(QStringList, names);
    QVERIFY(codes.size() >= 2);
    QCOMPARE(distinctCount(codes.toList()), codes.size());
    QCOMPARE(distinctCount(names), names.size());
    QVERIFY(!names.contains(QString()));
    if (QByteArray(QTest::currentDataTag()) == "T106 pricing methods")
        QCOMPARE(codes.size(), 8);
}

void tst_Catalogues::fixedLists()
{
    QCOMPARE(SFD_Forms_Num, 11);
    QCOMPARE(SFD_Forms_Info[3], FORM_COMMISSION_SFD);
    QSet<int> expired;
    for (ENUMTYPE_FORM form : Expired_Forms_Info)
        expired.insert(form);
    QCOMPARE(expired.size(), 17);
    QVERIFY(expired.contains(FORM_SCHEDULE8_OLD));
    QVERIFY(!expired.contains(FORM_SCHEDULE8));
    QCOMPARE(QVector<int>(std::begin(NoFarmStabilization_Provs_Info), std::end(NoFarmStabilization_Provs_Info)),
        (QVector<int> { 7, 6, 11 }));
    QCOMPARE(QVector<int>(std::begin(T1163_Provs_Info), std::end(T1163_Provs_Info)), (QVector<int> { 10, 9, 12, 1 }));
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
