// The questions asked of the catalogues: jurisdiction, mandatory forms,
// sharing, expiry, and province, state and country codes as written.

#include <LibControl/common/utilities.h>
#include <LibControl/forms/taxformtype.h>

#include <QtTest>

Q_DECLARE_METATYPE(ENUMTYPE_FORM)
Q_DECLARE_METATYPE(ENUMTYPE_PROVINCE)

class tst_CatalogueLookups : public QObject
{
    Q_OBJECT

private slots:
    void provinceRanges_data();
    void provinceRanges();
    void getProvince_data();
    void getProvince();
    void getFormProv_data();
    void getFormProv();
    void isFormMandatory_data();
    void isFormMandatory();
    void formKinds_data();
    void formKinds();
    void expiryIgnoresProvince();
    void slipSharable_data();
    void slipSharable();
    void caisFormOfProvince_data();
    void caisFormOfProvince();
    void provinceOrStateCode_data();
    void provinceOrStateCode();
    void countryCode_data();
    void countryCode();
};

void tst_CatalogueLookups::provinceRanges_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("canadian");
    QTest::addColumn<bool>("supported");
    QTest::addColumn<bool>("usState");
    QTest::newRow("negative") << -1 << false << false << false;
    QTest::newRow("none") << 0 << false << false << false;
    QTest::newRow("Alberta") << 1 << true << true << false;
    QTest::newRow("Ontario") << 9 << true << true << false;
    QTest::newRow("Quebec has no module") << 11 << true << false << false;
    QTest::newRow("Yukon") << 13 << true << true << false;
    QTest::newRow("non-resident") << 14 << false << false << false;
    QTest::newRow("deemed resident") << 17 << false << false << false;
    QTest::newRow("first state") << 18 << false << false << true;
    QTest::newRow("Wyoming") << 76 << false << false << true;
    QTest::newRow("past the states") << 77 << false << false << false;
}

void tst_CatalogueLookups::provinceRanges()
{
    QFETCH(int, value);
    QFETCH(bool, canadian);
    QFETCH(bool, supported);
    QFETCH(bool, usState);
    QCOMPARE(isCanProvince(value), canadian);
    QCOMPARE(isCanProv(value), canadian);
    QCOMPARE(IsProvinceSupported(value), supported);
    QCOMPARE(isUsaState(value), usState);
}

void tst_CatalogueLookups::getProvince_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<bool>("null");
    QTest::addColumn<int>("province");
    QTest::newRow("lower case") << QByteArray("on") << false << 9;
    QTest::newRow("upper case") << QByteArray("ON") << false << 9;
    QTest::newRow("mixed case") << QByteArray("Qc") << false << 11;
    QTest::newRow("first") << QByteArray("AB") << false << 1;
    QTest::newRow("last") << QByteArray("yt") << false << 13;
    QTest::newRow("non-resident code") << QByteArray("OT") << false << 0;
    QTest::newRow("longer text") << QByteArray("ONT") << false << 0;
    QTest::newRow("empty") << QByteArray() << false << 0;
    QTest::newRow("null") << QByteArray() << true << 0;
}

void tst_CatalogueLookups::getProvince()
{
    QFETCH(QByteArray, code);
    QFETCH(bool, null);
    QFETCH(int, province);
    QCOMPARE(int(::getProvince(null ? nullptr : code.constData())), province);
}

void tst_CatalogueLookups::getFormProv_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("province");
    QTest::newRow("federal form") << int(FORM_T1GENERAL) << 0;
    QTest::newRow("form in no list") << int(FORM_T776) << 0;
    QTest::newRow("Ontario tax") << int(FORM_ON428) << 9;
    QTest::newRow("Alberta tax") << int(FORM_AB428) << 1;
    QTest::newRow("BC optional form") << int(FORM_T1356) << 2;
    QTest::newRow("last of Manitoba") << int(FORM_T1299) << 3;
    QTest::newRow("Yukon schedule 14") << int(FORM_YT_S14) << 13;
    QTest::newRow("unknown id") << 999 << 0;
    QTest::newRow("negative id") << -5 << 0;
}

void tst_CatalogueLookups::getFormProv()
{
    QFETCH(int, form);
    QFETCH(int, province);
    QCOMPARE(int(::getFormProv(ENUMTYPE_FORM(form))), province);
}

void tst_CatalogueLookups::isFormMandatory_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<int>("province");
    QTest::addColumn<int>("form");
    QTest::addColumn<bool>("mandatory");
    QTest::newRow("T1 General, kind 1") << 1 << 9 << int(FORM_T1GENERAL) << true;
    QTest::newRow("T1 General, kind 2") << 2 << 0 << int(FORM_T1GENERAL) << true;
    QTest::newRow("T1 General, no kind") << 0 << 9 << int(FORM_T1GENERAL) << false;
    QTest::newRow("T183, kind 1") << 1 << 0 << int(FORM_T183) << true;
    QTest::newRow("T183, kind 2 only") << 2 << 0 << int(FORM_T183) << false;
    QTest::newRow("T1-KS, kind 2") << 2 << 0 << int(FORM_T1KS) << true;
    QTest::newRow("federal, not conditional") << 3 << 9 << int(FORM_SCHEDULE2) << false;
    QTest::newRow("T185 mask without condition") << 1 << 0 << int(FORM_T185) << false;
    QTest::newRow("SFD form") << 3 << 9 << int(FORM_T776) << false;
    QTest::newRow("form in no list") << 3 << 9 << int(FORM_T1163) << false;
    QTest::newRow("unknown form") << 3 << 9 << 999 << false;
    QTest::newRow("Ontario tax in Ontario") << 1 << 9 << int(FORM_ON428) << true;
    QTest::newRow("Ontario tax ignores kinds") << 0 << 9 << int(FORM_ON428) << true;
    QTest::newRow("Ontario tax in Alberta") << 1 << 1 << int(FORM_ON428) << false;
    QTest::newRow("optional Ontario form") << 3 << 9 << int(FORM_ON479A) << false;
    QTest::newRow("ON-BEN in Ontario") << 2 << 9 << int(FORM_ON_BEN) << true;
    QTest::newRow("Yukon schedule 14 in Yukon") << 1 << 13 << int(FORM_YT_S14) << true;
    QTest::newRow("provincial form, no province") << 1 << 0 << int(FORM_BC428) << false;
    QTest::newRow("provincial form, non-resident") << 1 << 14 << int(FORM_BC428) << false;
    QTest::newRow("provincial form, Quebec") << 1 << 11 << int(FORM_BC428) << false;
}

void tst_CatalogueLookups::isFormMandatory()
{
    QFETCH(int, kinds);
    QFETCH(int, province);
    QFETCH(int, form);
    QFETCH(bool, mandatory);
    QCOMPARE(IsFormMandatory(static_cast<unsigned char>(kinds), ENUMTYPE_PROVINCE(province), ENUMTYPE_FORM(form)),
        mandatory);
}

void tst_CatalogueLookups::formKinds_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<bool>("sfd");
    QTest::addColumn<bool>("multiple");
    QTest::addColumn<bool>("sharable");
    QTest::addColumn<bool>("expired");
    QTest::newRow("T1 General") << int(FORM_T1GENERAL) << false << false << false << false;
    QTest::newRow("rental statement") << int(FORM_T776) << true << true << true << false;
    QTest::newRow("second commission") << int(FORM_COMMISSION_SFD) << true << true << true << false;
    QTest::newRow("first commission") << int(FORM_COMMISSION) << false << false << false << false;
    QTest::newRow("last SFD form") << int(FORM_T1255) << true << true << true << false;
    QTest::newRow("Schedule 3") << int(FORM_SCHEDULE3) << false << false << true << false;
    QTest::newRow("T1-M") << int(FORM_T1M) << false << true << false << false;
    QTest::newRow("T2209") << int(FORM_T2209) << false << true << false << false;
    QTest::newRow("T1134 supplement") << int(FORM_T1134_SUPPLEMENT) << false << true << false << false;
    QTest::newRow("T1134") << int(FORM_T1134) << false << false << false << false;
    QTest::newRow("retired business statement") << int(FORM_T2124) << false << false << false << true;
    QTest::newRow("old schedule 8") << int(FORM_SCHEDULE8_OLD) << false << false << false << true;
    QTest::newRow("current schedule 8") << int(FORM_SCHEDULE8) << false << false << false << false;
    QTest::newRow("first expired") << int(FORM_AB479) << false << false << false << true;
    QTest::newRow("last expired") << int(FORM_T1DD) << false << false << false << true;
    QTest::newRow("unknown id") << 999 << false << false << false << false;
}

void tst_CatalogueLookups::formKinds()
{
    QFETCH(int, form);
    QFETCH(bool, sfd);
    QFETCH(bool, multiple);
    QFETCH(bool, sharable);
    QFETCH(bool, expired);
    ENUMTYPE_FORM const f = ENUMTYPE_FORM(form);
    QCOMPARE(IsSFDForm(f), sfd);
    QCOMPARE(IsMultipleForm(f), multiple);
    QCOMPARE(IsFormSharable(f), sharable);
    QCOMPARE(IsFormExpired(f, PROV_ON), expired);
}

void tst_CatalogueLookups::expiryIgnoresProvince()
{
    for (int p = -1; p <= 18; ++p) {
        QVERIFY(IsFormExpired(FORM_AB479, ENUMTYPE_PROVINCE(p)));
        QVERIFY(!IsFormExpired(FORM_AB428, ENUMTYPE_PROVINCE(p)));
    }
}

void tst_CatalogueLookups::slipSharable_data()
{
    QTest::addColumn<int>("slip");
    QTest::addColumn<bool>("sharable");
    QTest::newRow("T4") << int(SLIP_T4) << false;
    QTest::newRow("T5") << int(SLIP_T5) << true;
    QTest::newRow("T3") << int(SLIP_T3) << true;
    QTest::newRow("T5013") << int(SLIP_T5013) << true;
    QTest::newRow("T5008") << int(SLIP_T5008) << false;
    QTest::newRow("unknown") << 99 << false;
}

void tst_CatalogueLookups::slipSharable()
{
    QFETCH(int, slip);
    QFETCH(bool, sharable);
    QCOMPARE(IsSlipSharable(ENUMTYPE_SLIP(slip)), sharable);
}

void tst_CatalogueLookups::caisFormOfProvince_data()
{
    QTest::addColumn<int>("province");
    QTest::addColumn<int>("form");
    QTest::newRow("Northwest Territories") << 7 << 0;
    QTest::newRow("Nova Scotia") << 6 << 0;
    QTest::newRow("Quebec") << 11 << 0;
    QTest::newRow("Prince Edward Island") << 10 << 15;
    QTest::newRow("Ontario") << 9 << 15;
    QTest::newRow("Saskatchewan") << 12 << 15;
    QTest::newRow("Alberta") << 1 << 15;
    QTest::newRow("British Columbia") << 2 << 109;
    QTest::newRow("Yukon") << 13 << 109;
    QTest::newRow("no province") << 0 << 109;
    QTest::newRow("non-resident") << 14 << 109;
    QTest::newRow("out of range") << 40 << 109;
}

void tst_CatalogueLookups::caisFormOfProvince()
{
    QFETCH(int, province);
    QFETCH(int, form);
    QCOMPARE(int(GetCAISFormTypeFromProv(ENUMTYPE_PROVINCE(province))), form);
}

void tst_CatalogueLookups::provinceOrStateCode_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("xml");
    QString const untouched = QStringLiteral("keep");
    QTest::newRow("province") << 1 << 9 << "ON"
                              << "<Prov>ON</Prov>\n";
    QTest::newRow("non-resident") << 1 << 15 << "OT"
                                  << "<Prov>OT</Prov>\n";
    QTest::newRow("no province") << 1 << 0 << untouched << "";
    QTest::newRow("past the provinces") << 1 << 18 << untouched << "";
    QTest::newRow("first state") << 2 << 1 << "AK"
                                 << "<Prov>AK</Prov>\n";
    QTest::newRow("misspelled state") << 2 << 55 << "VT"
                                      << "<Prov>VT</Prov>\n";
    QTest::newRow("last state") << 2 << 59 << "WY"
                                << "<Prov>WY</Prov>\n";
    QTest::newRow("state zero") << 2 << 0 << untouched << "";
    QTest::newRow("past the states") << 2 << 60 << untouched << "";
    QTest::newRow("other kind") << 3 << 9 << untouched << "";
    QTest::newRow("kind zero") << 0 << 9 << untouched << "";
}

void tst_CatalogueLookups::provinceOrStateCode()
{
    QFETCH(int, kind);
    QFETCH(int, value);
    QFETCH(QString, code);
    QFETCH(QString, xml);
    CString out("keep");
    setProvValueToShortName(kind, value, out);
    QCOMPARE(QString(out), code);
    CString written("<a/>\n");
    QCOMPARE(xmlWriteTagForProvCode(written, "Prov", kind, value), kind);
    QCOMPARE(QString(written), QStringLiteral("<a/>\n") + xml);
}

void tst_CatalogueLookups::countryCode_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("code");
    QTest::newRow("Canada") << 1 << 1 << "CAN";
    QTest::newRow("United States") << 2 << 2 << "USA";
    QTest::newRow("last country") << 116 << 116 << "NGA";
    QTest::newRow("other country is not found") << 999 << -1 << "keep";
    QTest::newRow("select") << 0 << -1 << "keep";
    QTest::newRow("past the countries") << 117 << -1 << "keep";
    QTest::newRow("negative") << -1 << -1 << "keep";
}

void tst_CatalogueLookups::countryCode()
{
    QFETCH(int, id);
    QFETCH(int, row);
    QFETCH(QString, code);
    CString out("keep");
    QCOMPARE(getCountryCode(out, id, 0), row);
    QCOMPARE(QString(out), code);
    CString xml;
    QCOMPARE(xmlWriteTagForCountryCode(xml, "Country", id), row);
    QString const expected = row < 0 ? QString() : QStringLiteral("<Country>%1</Country>\n").arg(code);
    QCOMPARE(QString(xml), expected);
}

QTEST_GUILESS_MAIN(tst_CatalogueLookups)
#include "tst_cataloguelookups.moc"
