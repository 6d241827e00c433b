#include "../fields/fieldarchive.h"

#include <LibControl/worksheets/DepWorkSheetData.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <QtTest>

#include <cstdio>

namespace {

// One named dependant with the given net income and birth year.
void oneDependant(DependantInfoStruct &list, double netIncome, int birthYear = 1990)
{
    list.AllocData(1);
    qstrcpy(list.m_pData[0].m_szFirstName, "Pat");
    list.m_pData[0].m_dNetIncome = netIncome;
    list.m_pData[0].m_dateBirth = QDate(birthYear, 7, 1);
}

QByteArray archive(CWSBaseData &worksheet, unsigned int version)
{
    return archived([&](MyDataStream &ar) { worksheet.Serialize(version, ar); });
}

QString javaText(CWSBaseData &worksheet)
{
    FILE *file = std::tmpfile();
    worksheet.WriteJavaFileDeclaration(file);
    worksheet.WriteJavaFileContruction(file);
    std::rewind(file);
    QByteArray text;
    char chunk[512];
    size_t n;
    while ((n = std::fread(chunk, 1, sizeof chunk, file)) > 0)
        text.append(chunk, int(n));
    std::fclose(file);
    return QString::fromUtf8(text);
}

} // namespace

class tst_DepWorksheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dependantAmount_data();
    void dependantAmount();
    void infirmDependantAmount_data();
    void infirmDependantAmount();
    void caregiverAmount_data();
    void caregiverAmount();
    void disabilityTransfer_data();
    void disabilityTransfer();
    void medicalExpenseAdjustment_data();
    void medicalExpenseAdjustment();
    void copyFromCopiesCommonPrefix();
    void stringExport();
    void readFromStringMapKeyOrder_data();
    void readFromStringMapKeyOrder();
    void archiveFollowsVersionStamps_data();
    void archiveFollowsVersionStamps();
    void archiveRoundTrip();
    void newYearRollOver();
    void javaDeclarations();
};

void tst_DepWorksheets::dependantAmount_data()
{
    QTest::addColumn<int>("depIdx");
    QTest::addColumn<double>("base");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("netIncome");
    QTest::addColumn<double>("adjustment");
    QTest::addColumn<double>("expectedNet");
    QTest::addColumn<double>("expectedClaim");

    // 8601.00 - 1000.50 = 7600.50
    QTest::newRow("income reduces the base") << 1 << 8601.0 << 0.0 << 1000.5 << 0.0 << 1000.5 << 7600.5;
    // net 1000 + adjustment 500 = 1500; 8601 - 1500 = 7101
    QTest::newRow("adjustment is added to the income") << 1 << 8601.0 << 0.0 << 1000.0 << 500.0 << 1500.0 << 7101.0;
    // 5000 - 6000 < 0
    QTest::newRow("income above the base gives zero") << 1 << 5000.0 << 0.0 << 6000.0 << 0.0 << 6000.0 << 0.0;
    QTest::newRow("maximum of 0.005 does not cap") << 1 << 5000.0 << 0.005 << 0.0 << 0.0 << 0.0 << 5000.0;
    QTest::newRow("maximum of 0.01 caps") << 1 << 5000.0 << 0.01 << 0.0 << 0.0 << 0.0 << 0.01;
    QTest::newRow("maximum above the claim") << 1 << 5000.0 << 9000.0 << 0.0 << 0.0 << 0.0 << 5000.0;
    QTest::newRow("no dependant selected") << 0 << 5000.0 << 0.0 << 1000.0 << 0.0 << 0.0 << 0.0;
    // Outside the list the income is 0, adjustment included.
    QTest::newRow("index beyond the list") << 5 << 5000.0 << 0.0 << 1000.0 << 300.0 << 0.0 << 5000.0;
}

void tst_DepWorksheets::dependantAmount()
{
    QFETCH(int, depIdx);
    QFETCH(double, base);
    QFETCH(double, max);
    QFETCH(double, netIncome);
    QFETCH(double, adjustment);
    QFETCH(double, expectedNet);
    QFETCH(double, expectedClaim);

    DependantInfoStruct list;
    oneDependant(list, netIncome);
    list.fld_AdjustAmount.m_dValue = adjustment;
    CWSDepAmtData ws;
    ws.SetDepInfo(&list);
    ws.SetParameter(base, max);
    ws.DepIdx.m_nValue = depIdx;
    ws.bOverWriteDepNetInc_notused.m_nValue = 1;
    QCOMPARE(ws.Calculate(), 0);
    QCOMPARE(ws.DepNetInc.m_dValue, expectedNet);
    QCOMPARE(ws.AmountClaim.m_dValue, expectedClaim);
    QCOMPARE(ws.bOverWriteDepNetInc_notused.m_nValue, 0);
}

void tst_DepWorksheets::infirmDependantAmount_data()
{
    QTest::addColumn<int>("depIdx");
    QTest::addColumn<double>("base");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("typedNet");
    QTest::addColumn<int>("otherIdx");
    QTest::addColumn<double>("otherAmount");
    QTest::addColumn<double>("expectedNet");
    QTest::addColumn<double>("expectedLine3");
    QTest::addColumn<double>("expectedLine4");
    QTest::addColumn<double>("expectedClaim");

    // The listed dependant earns 3000.
    // 8601 - 3000 = 5601
    QTest::newRow("income reduces line 1") << 1 << 8601.0 << 8601.0 << 0.0 << 0 << 0.0 << 3000.0 << 5601.0 << 0.0
                                           << 5601.0;
    // 8601 - 3000 = 5601, limited to 5000
    QTest::newRow("line 3 limited by the maximum") << 1 << 8601.0 << 5000.0 << 0.0 << 0 << 0.0 << 3000.0 << 5000.0
                                                   << 0.0 << 5000.0;
    QTest::newRow("a maximum of 0 limits line 3 to 0") << 1 << 8601.0 << 0.0 << 0.0 << 0 << 0.0 << 3000.0 << 0.0
                                                       << 0.0 << 0.0;
    // 5601 - 2000 claimed elsewhere for the same dependant = 3601
    QTest::newRow("same dependant on the other worksheet") << 1 << 8601.0 << 8601.0 << 0.0 << 1 << 2000.0 << 3000.0
                                                           << 5601.0 << 2000.0 << 3601.0;
    QTest::newRow("other dependant on the other worksheet") << 1 << 8601.0 << 8601.0 << 0.0 << 2 << 2000.0 << 3000.0
                                                            << 5601.0 << 0.0 << 5601.0;
    // 5601 - 9000 < 0
    QTest::newRow("other amount above line 3") << 1 << 8601.0 << 8601.0 << 0.0 << 1 << 9000.0 << 3000.0 << 5601.0
                                               << 9000.0 << 0.0;
    // Spouse: typed 2000 kept; 8000 - 2000 = 6000; less 1200 always = 4800
    QTest::newRow("spouse keeps the typed income") << 303 << 8000.0 << 10000.0 << 2000.0 << 0 << 1200.0 << 2000.0
                                                   << 6000.0 << 1200.0 << 4800.0;
    // No dependant: income 0, line 3 = 8601, but no claim
    QTest::newRow("no dependant") << 0 << 8601.0 << 8601.0 << 500.0 << 0 << 100.0 << 0.0 << 8601.0 << 0.0 << 0.0;
}

void tst_DepWorksheets::infirmDependantAmount()
{
    QFETCH(int, depIdx);
    QFETCH(double, base);
    QFETCH(double, max);
    QFETCH(double, typedNet);
    QFETCH(int, otherIdx);
    QFETCH(double, otherAmount);
    QFETCH(double, expectedNet);
    QFETCH(double, expectedLine3);
    QFETCH(double, expectedLine4);
    QFETCH(double, expectedClaim);

    DependantInfoStruct list;
    oneDependant(list, 3000.0);
    list.fld_AdjustAmount.m_dValue = 777.0; // not used by this worksheet
    CWSInfirmDepAmtData ws;
    ws.SetDepInfo(&list);
    ws.SetParameterAndF5816Info(base, max, otherIdx, otherAmount);
    ws.DepIdx.m_nValue = depIdx;
    ws.DepNetInc.m_dValue = typedNet;
    ws.Calculate();
    QCOMPARE(ws.DepNetInc.m_dValue, expectedNet);
    QCOMPARE(ws.fld_3.m_dValue, expectedLine3);
    QCOMPARE(ws.fld_4.m_dValue, expectedLine4);
    QCOMPARE(ws.AmountClaim.m_dValue, expectedClaim);
}

void tst_DepWorksheets::caregiverAmount_data()
{
    QTest::addColumn<int>("depIdx");
    QTest::addColumn<int>("otherIdx");
    QTest::addColumn<double>("otherAmount");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<double>("entered");
    QTest::addColumn<double>("expectedClaim");

    // Base 8601, maximum 8601, dependant's income 1000: line 3 = 7601.
    QTest::newRow("computed claim") << 1 << 0 << 0.0 << false << 123.0 << 7601.0;
    QTest::newRow("overwrite keeps a lower entry") << 1 << 0 << 0.0 << true << 5000.0 << 5000.0;
    QTest::newRow("overwrite lowers a higher entry") << 1 << 0 << 0.0 << true << 9000.0 << 7601.0;
    // 7601 - 7000 = 601
    QTest::newRow("same dependant on the other worksheet") << 1 << 1 << 7000.0 << false << 0.0 << 601.0;
    // 7601 - 8000 < 0
    QTest::newRow("other amount above line 3") << 1 << 1 << 8000.0 << false << 0.0 << 0.0;
    QTest::newRow("overwrite with a negative entry") << 1 << 0 << 0.0 << true << -10.0 << 0.0;
    QTest::newRow("no dependant") << 0 << 0 << 0.0 << true << 5000.0 << 0.0;
}

void tst_DepWorksheets::caregiverAmount()
{
    QFETCH(int, depIdx);
    QFETCH(int, otherIdx);
    QFETCH(double, otherAmount);
    QFETCH(bool, overwrite);
    QFETCH(double, entered);
    QFETCH(double, expectedClaim);

    DependantInfoStruct list;
    oneDependant(list, 1000.0);
    CWSCaregiverAmtData ws;
    ws.SetDepInfo(&list);
    ws.SetParameter(8601.0, 8601.0, otherIdx, otherAmount);
    ws.DepIdx.m_nValue = depIdx;
    ws.bOverwrite.m_nValue = overwrite ? 1 : 0;
    ws.AmountClaim.m_dValue = entered;
    ws.Calculate();
    QCOMPARE(ws.AmountClaim.m_dValue, expectedClaim);
}

void tst_DepWorksheets::disabilityTransfer_data()
{
    QTest::addColumn<int>("depIdx");
    QTest::addColumn<int>("birthYear");
    QTest::addColumn<double>("careExpenses");
    QTest::addColumn<double>("added");
    QTest::addColumn<double>("taxableIncome");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<double>("entered");
    QTest::addColumn<double>("expectedSupplement");
    QTest::addColumn<double>("expectedLine8");
    QTest::addColumn<double>("expectedLine7");
    QTest::addColumn<double>("expectedClaim");

    // Base 10000, line 2 maximum 6000, line 4 threshold 3000.
    // Aged 10: line 5 = 4000 - 3000 = 1000; line 6 = 6000 - 1000 = 5000 = supplement;
    // line 8 = 15000; line 7 = 15000 - 3000 = 12000; claim = 12000
    QTest::newRow("minor with care expenses") << 1 << 2015 << 4000.0 << 0.0 << 3000.0 << false << 0.0 << 5000.0
                                              << 15000.0 << 12000.0 << 12000.0;
    // line 5 = 12000 - 3000 = 9000; line 6 = 6000 - 9000 < 0: no supplement
    QTest::newRow("care expenses use up the supplement") << 1 << 2015 << 12000.0 << 0.0 << 0.0 << false << 0.0
                                                         << 0.0 << 10000.0 << 10000.0 << 10000.0;
    QTest::newRow("aged 18 gets no supplement") << 1 << 2007 << 0.0 << 0.0 << 0.0 << false << 0.0 << 0.0 << 10000.0
                                                << 10000.0 << 10000.0;
    // fld_5 = 10000 + 2000 = 12000; line 7 = 12000 - 11000 = 1000; claim = min(10000, 1000)
    QTest::newRow("amount added before the income test") << 1 << 1990 << 0.0 << 2000.0 << 11000.0 << false << 0.0
                                                         << 0.0 << 10000.0 << 1000.0 << 1000.0;
    QTest::newRow("negative inputs count as zero") << 1 << 1990 << 0.0 << -50.0 << -100.0 << false << 0.0 << 0.0
                                                   << 10000.0 << 10000.0 << 10000.0;
    QTest::newRow("overwrite keeps a lower entry") << 1 << 1990 << 0.0 << 0.0 << 0.0 << true << 4000.0 << 0.0
                                                   << 10000.0 << 10000.0 << 4000.0;
    QTest::newRow("overwrite lowers an entry to line 8") << 1 << 1990 << 0.0 << 0.0 << 0.0 << true << 20000.0 << 0.0
                                                         << 10000.0 << 10000.0 << 10000.0;
    QTest::newRow("no dependant") << 0 << 2015 << 4000.0 << 500.0 << 300.0 << false << 0.0 << 0.0 << 0.0 << 0.0
                                  << 0.0;
}

void tst_DepWorksheets::disabilityTransfer()
{
    QFETCH(int, depIdx);
    QFETCH(int, birthYear);
    QFETCH(double, careExpenses);
    QFETCH(double, added);
    QFETCH(double, taxableIncome);
    QFETCH(bool, overwrite);
    QFETCH(double, entered);
    QFETCH(double, expectedSupplement);
    QFETCH(double, expectedLine8);
    QFETCH(double, expectedLine7);
    QFETCH(double, expectedClaim);

    DependantInfoStruct list;
    oneDependant(list, 0.0, birthYear);
    CWSDisabilityTransferAmtData ws;
    ws.SetDepInfo(&list);
    ws.SetF5848Parameter(10000.0, 6000.0, 3000.0);
    ws.DepIdx.m_nValue = depIdx;
    ws.fld_Line3ChldCareExp.m_dValue = careExpenses;
    ws.fld_4.m_dValue = added;
    ws.DepTaxInc.m_dValue = taxableIncome;
    ws.fld_overwrite.m_nValue = overwrite ? 1 : 0;
    ws.fld_claim.m_dValue = entered;
    ws.fld_2.m_dValue = 99.0; // stale results are cleared first
    ws.Calculate();
    QCOMPARE(ws.fld_2.m_dValue, expectedSupplement);
    QCOMPARE(ws.fld_Line8.m_dValue, expectedLine8);
    QCOMPARE(ws.fld_7.m_dValue, expectedLine7);
    QCOMPARE(ws.fld_claim.m_dValue, expectedClaim);
}

void tst_DepWorksheets::medicalExpenseAdjustment_data()
{
    QTest::addColumn<int>("depIdx");
    QTest::addColumn<double>("maxClaim");
    QTest::addColumn<double>("netIncome");
    QTest::addColumn<double>("expenses");
    QTest::addColumn<double>("expectedLine2");
    QTest::addColumn<double>("expectedClaim");

    // Threshold cap 2834, rate 3 %.
    // 50000 x 0.03 = 1500; 4000 - 1500 = 2500
    QTest::newRow("income threshold below the cap") << 1 << 100000.0 << 50000.0 << 4000.0 << 1500.0 << 2500.0;
    // 200000 x 0.03 = 6000, capped at 2834; 4000 - 2834 = 1166
    QTest::newRow("threshold capped") << 1 << 100000.0 << 200000.0 << 4000.0 << 2834.0 << 1166.0;
    QTest::newRow("expenses below the threshold") << 1 << 100000.0 << 50000.0 << 1000.0 << 1500.0 << 0.0;
    QTest::newRow("claim above the maximum") << 1 << 1000.0 << 50000.0 << 4000.0 << 1500.0 << 1000.0;
    QTest::newRow("no dependant") << 0 << 100000.0 << 50000.0 << 4000.0 << 0.0 << 0.0;
}

void tst_DepWorksheets::medicalExpenseAdjustment()
{
    QFETCH(int, depIdx);
    QFETCH(double, maxClaim);
    QFETCH(double, netIncome);
    QFETCH(double, expenses);
    QFETCH(double, expectedLine2);
    QFETCH(double, expectedClaim);

    DependantInfoStruct list;
    oneDependant(list, netIncome);
    CWSMedicalExpAdjustmentData ws(2834.0, 0.03, maxClaim);
    ws.SetDepInfo(&list);
    ws.DepIdx.m_nValue = depIdx;
    ws.fld_exp.m_dValue = expenses;
    ws.Calculate();
    QCOMPARE(ws.fld_line2.m_dValue, expectedLine2);
    QCOMPARE(ws.AmountClaim.m_dValue, expectedClaim);
}

void tst_DepWorksheets::copyFromCopiesCommonPrefix()
{
    CWSInfirmDepAmtData infirm;
    infirm.DepIdx.m_nValue = 2;
    infirm.BaseAmount.m_dValue = 100.0;
    infirm.AmountClaim.m_dValue = 40.0;
    CWSCaregiverAmtData caregiver;
    caregiver.bOverwrite.m_nValue = 1;

    caregiver.copyFrom(infirm);
    QCOMPARE(caregiver.DepIdx.m_nValue, 2);
    QCOMPARE(caregiver.BaseAmount.m_dValue, 100.0);
    QCOMPARE(caregiver.AmountClaim.m_dValue, 40.0);
    QCOMPARE(caregiver.bOverwrite.m_nValue, 1);

    caregiver.fld_4.m_dValue = 7.0;
    infirm.copyFrom(caregiver);
    QCOMPARE(infirm.fld_4.m_dValue, 7.0);
}

void tst_DepWorksheets::stringExport()
{
    CWSDepAmtData ws;
    ws.m_strName = "WS5";
    ws.DepIdx.m_nValue = 2;
    ws.BaseAmount.m_dValue = 8601.0;
    ws.AmountClaim.m_dValue = 12.5;
    CString out("<x/>");
    QCOMPARE(ws.writeToString(out), 0);
    QCOMPARE(QString(out), QStringLiteral("<x/><f n=\"WS5_DepIdx\">2</f><f n=\"WS5_BaseAmount\">8601.00</f>"
                                          "<f n=\"WS5_bOverWriteDepNetInc_notused\">0</f>"
                                          "<f n=\"WS5_DepNetInc\">0.00</f><f n=\"WS5_AmountClaim\">12.50</f>"));
}

void tst_DepWorksheets::readFromStringMapKeyOrder_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<double>("expected");

    // Each key holds a different value: full 1, old names 2 and 3, bare 4.
    QTest::newRow("full name wins") << QStringList{"WS_BaseAmount", "OldBase1", "BaseAmount"} << 1.0;
    QTest::newRow("first old name before the second") << QStringList{"OldBase1", "OldBase2", "BaseAmount"} << 2.0;
    QTest::newRow("second old name before the bare name") << QStringList{"OldBase2", "BaseAmount"} << 3.0;
    QTest::newRow("bare name last") << QStringList{"BaseAmount"} << 4.0;
    QTest::newRow("no key keeps the value") << QStringList{"Other"} << 55.0;
}

void tst_DepWorksheets::readFromStringMapKeyOrder()
{
    QFETCH(QStringList, keys);
    QFETCH(double, expected);

    std::map<std::string, CString> const values = {
        {"WS_BaseAmount", CString("1")}, {"OldBase1", CString("2")}, {"OldBase2", CString("3")},
        {"BaseAmount", CString("4")}, {"Other", CString("5")}};
    std::map<std::string, CString> given;
    for (QString const &key : keys)
        given[key.toStdString()] = values.at(key.toStdString());

    CWSDepAmtData ws;
    ws.m_strName = "WS";
    ws.addFieldOldName("WS_BaseAmount", "OldBase1");
    ws.addFieldOldName("WS_BaseAmount", "OldBase2");
    ws.BaseAmount.m_dValue = 55.0;
    QCOMPARE(ws.readFromStringMap(given), 0);
    QCOMPARE(ws.BaseAmount.m_dValue, expected);
}

void tst_DepWorksheets::archiveFollowsVersionStamps_data()
{
    QTest::addColumn<unsigned int>("stamp");
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<int>("bytes");

    // DepIdx 4 + BaseAmount 8 + DepNetInc 8 + AmountClaim 8; the flag (0x1009a) 4 more.
    QTest::newRow("default stamp, before the flag") << 0x10083u << 0x10083u << 28;
    QTest::newRow("default stamp, with the flag") << 0x10083u << 0x1009au << 32;
    QTest::newRow("older archive than every field") << 0x10083u << 0x10082u << 0;
    // A worksheet stamped 0x10100 keeps the flag's own stamp.
    QTest::newRow("own stamp, only the flag") << 0x10100u << 0x100a0u << 4;
}

void tst_DepWorksheets::archiveFollowsVersionStamps()
{
    QFETCH(unsigned int, stamp);
    QFETCH(unsigned int, version);
    QFETCH(int, bytes);

    CWSDepAmtData ws(stamp);
    QCOMPARE(archive(ws, version).size(), bytes);
}

void tst_DepWorksheets::archiveRoundTrip()
{
    CWSDisabilityTransferAmtData source;
    source.DepIdx.m_nValue = 3;
    source.fld_Line3ChldCareExp.m_dValue = 1234.56;
    source.fld_overwrite.m_nValue = 1;
    source.fld_claim.m_dValue = 99.99;
    CWSDisabilityTransferAmtData loaded;
    QCOMPARE(readArchive(archive(source, 0x10200), [&](MyDataStream &ar) { loaded.Serialize(0x10200, ar); }),
             QDataStream::Ok);
    QVERIFY(!Common_Func_OperatorNotEqual(source.m_fields, loaded.m_fields));
    QCOMPARE(loaded.fld_claim.m_dValue, 99.99);
}

void tst_DepWorksheets::newYearRollOver()
{
    CWSCaregiverAmtData ws;
    ws.DepIdx.m_nValue = 2;
    ws.BaseAmount.m_dValue = 8601.0;
    ws.bOverwrite.m_nValue = 1;

    ws.ChangeToNewYearData(true);
    QCOMPARE(ws.BaseAmount.m_dValue, 8601.0);

    ws.ChangeToNewYearData(false);
    QCOMPARE(ws.BaseAmount.m_dValue, 0.0);
    QCOMPARE(ws.DepIdx.m_nValue, 2);
    QCOMPARE(ws.bOverwrite.m_nValue, 1);
}

void tst_DepWorksheets::javaDeclarations()
{
    CWSDepAmtData ws;
    ws.m_strName = "WS";
    QString const text = javaText(ws);
    QStringList const lines = text.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 11);
    QCOMPARE(lines.at(0), QStringLiteral("IntField WS_DepIdx = new IntField(\"WS_DepIdx\", 65667, 268435455);"));
    QCOMPARE(lines.at(1),
             QStringLiteral("FloatField WS_BaseAmount = new FloatField(\"WS_BaseAmount\", 65667, 268435455);"));
    // Flags are declared as integers.
    QCOMPARE(lines.at(2), QStringLiteral("IntField WS_bOverWriteDepNetInc_notused = new "
                                         "IntField(\"WS_bOverWriteDepNetInc_notused\", 65690, 268435455);"));
    QCOMPARE(lines.at(5), QStringLiteral("m_data.add(WS_DepIdx);"));
    QCOMPARE(lines.at(9), QStringLiteral("m_data.add(WS_AmountClaim);"));
}

QTEST_GUILESS_MAIN(tst_DepWorksheets)
#include "tst_depworksheets.moc"
