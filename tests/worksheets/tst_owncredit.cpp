#include "../fields/fieldarchive.h"

#include <LibControl/worksheets/NonDepWorkSheetData.h>

#include <QtTest>

// 2025 figures used below (federal): age amount 9,028 reduced by 15% of the
// net income above 45,522; disability supplement 5,914 less care expenses
// above 3,464; dividend credit 15.0198% on eligible and 9.0301% on other
// dividends; adoption expenses up to 19,866 per child. 2025 has 365 days.

namespace {

QByteArray archive(CWSBaseData &worksheet)
{
    return archived([&](MyDataStream &ar) { worksheet.Serialize(0x10200, ar); });
}

} // namespace

class tst_OwnCredit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ageAmount_data();
    void ageAmount();
    void ageWorksheetStoresNothing();
    void disabilitySupplement_data();
    void disabilitySupplement();
    void dividendCredit_data();
    void dividendCredit();
    void tuitionTransfer_data();
    void tuitionTransfer();
    void adoptionExpenses_data();
    void adoptionExpenses();
    void versionStamp();
};

void tst_OwnCredit::ageAmount_data()
{
    QTest::addColumn<double>("days");
    QTest::addColumn<bool>("eligible");
    QTest::addColumn<double>("netIncome");
    QTest::addColumn<double>("line1");
    QTest::addColumn<double>("line3");
    QTest::addColumn<double>("line4");
    QTest::addColumn<double>("line7");

    // 60000 - 45522 = 14478; x 0.15 = 2171.70; 9028 - 2171.70 = 6856.30; x 365/365.
    QTest::newRow("income above the threshold") << 365.0 << true << 60000.0 << 9028.0 << 45522.0 << 14478.0
                                                << 6856.30;
    // Nothing above the threshold: line 4 is 0, the whole 9028 is kept.
    QTest::newRow("income below the threshold") << 365.0 << true << 30000.0 << 9028.0 << 45522.0 << 0.0 << 9028.0;
    // 150000 - 45522 = 104478; x 0.15 = 15671.70 > 9028: nothing left.
    QTest::newRow("high income leaves nothing") << 365.0 << true << 150000.0 << 9028.0 << 45522.0 << 104478.0
                                                << 0.0;
    // 146 days = 0.4 of the year: line 1 = 3611.20, line 3 = 18208.80;
    // 20000 - 18208.80 = 1791.20; x 0.15 = 268.68; 3611.20 - 268.68 = 3342.52;
    // x 0.4 = 1337.008, rounded 1337.01.
    QTest::newRow("part of the year") << 146.0 << true << 20000.0 << 3611.20 << 18208.80 << 1791.20 << 1337.01;
    // Lines 1 to 3 are still filled for the page; line 4 is left as it was.
    QTest::newRow("not eligible") << 365.0 << false << 60000.0 << 9028.0 << 45522.0 << -1.0 << 0.0;
}

void tst_OwnCredit::ageAmount()
{
    QFETCH(double, days);
    QFETCH(bool, eligible);
    QFETCH(double, netIncome);
    QFETCH(double, line1);
    QFETCH(double, line3);
    QFETCH(double, line4);
    QFETCH(double, line7);

    CWSAgeAmtData ws;
    ws.fld_ws5808_4.m_dValue = -1.0;
    ws.SetAgeParameter(9028, 45522, 0.15, days, days, eligible, netIncome);
    QCOMPARE(ws.Calculate(), 0);

    QCOMPARE(ws.fld_ws5808_1.m_dValue, line1);
    QCOMPARE(ws.fld_ws5808_2.m_dValue, netIncome);
    QCOMPARE(ws.fld_ws5808_3.m_dValue, line3);
    QCOMPARE(ws.fld_ws5808_4.m_dValue, line4);
    QCOMPARE(ws.fld_ws5808_5.m_dValue, 0.15);
    QCOMPARE(ws.fld_ws5808_7.m_dValue, line7);
}

void tst_OwnCredit::ageWorksheetStoresNothing()
{
    CWSAgeAmtData ws(0x10200);
    ws.m_strName = "WSAge";
    ws.SetAgeParameter(9028, 45522, 0.15, 365, 365, true, 60000);
    ws.Calculate();

    CString text;
    QCOMPARE(ws.writeToString(text), 0);
    QCOMPARE(QString(text), QString());
    QCOMPARE(archive(ws), QByteArray());
    QCOMPARE(ws.fld_ws5808_7.m_nVersionFrom, 0x10200u);
    QCOMPARE(ws.fld_ws5808_7.m_strName, std::string());
}

void tst_OwnCredit::disabilitySupplement_data()
{
    QTest::addColumn<bool>("claimed");
    QTest::addColumn<bool>("eligible");
    QTest::addColumn<double>("expenses");
    QTest::addColumn<double>("expensesAfter");
    QTest::addColumn<double>("line4");
    QTest::addColumn<double>("line5");

    // 2000 < 3464: no reduction, full 5914.
    QTest::newRow("expenses below the threshold") << true << true << 2000.0 << 2000.0 << 0.0 << 5914.0;
    // 5000 - 3464 = 1536; 5914 - 1536 = 4378.
    QTest::newRow("expenses partly above") << true << true << 5000.0 << 5000.0 << 1536.0 << 4378.0;
    // 10000 - 3464 = 6536 > 5914: nothing left.
    QTest::newRow("expenses above threshold and supplement") << true << true << 10000.0 << 10000.0 << 6536.0 << 0.0;
    QTest::newRow("negative expenses count as none") << true << true << -50.0 << 0.0 << 0.0 << 5914.0;
    // Line 4 keeps its earlier 123 when nothing is claimed.
    QTest::newRow("not claimed") << false << true << 5000.0 << 5000.0 << 123.0 << 0.0;
    QTest::newRow("not eligible") << true << false << 5000.0 << 5000.0 << 123.0 << 0.0;
}

void tst_OwnCredit::disabilitySupplement()
{
    QFETCH(bool, claimed);
    QFETCH(bool, eligible);
    QFETCH(double, expenses);
    QFETCH(double, expensesAfter);
    QFETCH(double, line4);
    QFETCH(double, line5);

    CWSDisabilityAmtData ws;
    ws.SetF5844Parameter(5914, 3464, eligible);
    ws.fld_ws5844_claim.m_nValue = claimed ? 1 : 0;
    ws.fld_ws5844_2.m_dValue = expenses;
    ws.fld_ws5844_4.m_dValue = 123.0;
    ws.fld_ws5844_5.m_dValue = 999.0;
    QCOMPARE(ws.Calculate(), 0);

    QCOMPARE(ws.fld_ws5844_1.m_dValue, 5914.0);
    QCOMPARE(ws.fld_ws5844_2.m_dValue, expensesAfter);
    QCOMPARE(ws.fld_ws5844_3.m_dValue, 3464.0);
    QCOMPARE(ws.fld_ws5844_4.m_dValue, line4);
    QCOMPARE(ws.fld_ws5844_5.m_dValue, line5);
}

void tst_OwnCredit::dividendCredit_data()
{
    QTest::addColumn<double>("all");
    QTest::addColumn<double>("eligible");
    QTest::addColumn<double>("other");
    QTest::addColumn<double>("onEligible");
    QTest::addColumn<double>("onOther");
    QTest::addColumn<double>("credit");

    // 6000 x 0.150198 = 901.188 -> 901.19; 4000 x 0.090301 = 361.204 -> 361.20.
    QTest::newRow("both kinds") << 10000.0 << 6000.0 << 4000.0 << 901.19 << 361.20 << 1262.39;
    // 1500 x 0.150198 = 225.297 -> 225.30; other dividends cannot go negative.
    QTest::newRow("eligible above all dividends") << 1000.0 << 1500.0 << 0.0 << 225.30 << 0.0 << 225.30;
    // 2500 x 0.090301 = 225.7525 -> 225.75.
    QTest::newRow("no eligible dividends") << 2500.0 << 0.0 << 2500.0 << 0.0 << 225.75 << 225.75;
}

void tst_OwnCredit::dividendCredit()
{
    QFETCH(double, all);
    QFETCH(double, eligible);
    QFETCH(double, other);
    QFETCH(double, onEligible);
    QFETCH(double, onOther);
    QFETCH(double, credit);

    CWSDividendTaxCreditData ws;
    ws.SetParameter(0.150198, 0.090301);
    ws.fld_Line120.m_dValue = all;
    ws.fld_Line180.m_dValue = eligible;
    QCOMPARE(ws.Calculate(), 0);

    QCOMPARE(ws.fld_rate1.m_dValue, 0.150198);
    QCOMPARE(ws.fld_rate2.m_dValue, 0.090301);
    QCOMPARE(ws.fld_Line120_sub_Line180.m_dValue, other);
    QCOMPARE(ws.fld_4.m_dValue, onEligible);
    QCOMPARE(ws.fld_5.m_dValue, onOther);
    QCOMPARE(ws.fld_6.m_dValue, credit);
}

void tst_OwnCredit::tuitionTransfer_data()
{
    QTest::addColumn<double>("transferred");
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("claim");

    QTest::newRow("prorated") << 5000.0 << 0.6 << 3000.0;
    // A direct store: 1234.567 x 0.5 = 617.2835 stays unrounded.
    QTest::newRow("cents kept unrounded") << 1234.567 << 0.5 << 617.2835;
    QTest::newRow("rate zero") << 5000.0 << 0.0 << 0.0;
}

void tst_OwnCredit::tuitionTransfer()
{
    QFETCH(double, transferred);
    QFETCH(double, rate);
    QFETCH(double, claim);

    DataWS58600 ws;
    ws.fld_5860.m_dValue = transferred;
    ws.fld_claim.m_dValue = 42.0;
    // The virtual calculation is the base's and changes nothing.
    QCOMPARE(static_cast<CWSBaseData &>(ws).Calculate(), 0);
    QCOMPARE(ws.fld_claim.m_dValue, 42.0);

    ws.Calculate(rate);
    QCOMPARE(ws.m_dRate, rate);
    QCOMPARE(ws.fld_claim.m_dValue, claim);
}

void tst_OwnCredit::adoptionExpenses_data()
{
    QTest::addColumn<QList<double>>("amounts");
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("result");

    // min(15000, 20000) + min(15000, 5000) = 15000 + 5000; the limit is per child.
    QTest::newRow("each child limited alone") << QList<double>{20000, 5000} << 15000.0 << 20000.0;
    QTest::newRow("none above the limit") << QList<double>{1000, 2000, 3000} << 19866.0 << 6000.0;
    // 6 x 19866 = 119196.
    QTest::newRow("six children at the limit") << QList<double>{25000, 25000, 25000, 25000, 25000, 25000}
                                               << 19866.0 << 119196.0;
    // Calculate turns -500 into 0 first.
    QTest::newRow("negative amount counts as none") << QList<double>{-500, 800} << 19866.0 << 800.0;
}

void tst_OwnCredit::adoptionExpenses()
{
    QFETCH(QList<double>, amounts);
    QFETCH(double, limit);
    QFETCH(double, result);

    DataWSAdoptionExpense ws;
    for (int i = 0; i < amounts.size(); ++i)
        static_cast<CFloatField *>(ws.m_fields[size_t(i)])->m_dValue = amounts[i];
    QCOMPARE(ws.Calculate(), 0);
    QCOMPARE(ws.CalcResult(limit), result);
}

void tst_OwnCredit::versionStamp()
{
    // Every listed field takes the constructor's stamp; the default is 0x10083.
    DataWSAdoptionExpense stamped(0x10300);
    DataWSAdoptionExpense plain;
    QCOMPARE(stamped.m_fields.size(), size_t(6));
    QCOMPARE(stamped.m_fields.back()->m_strName, std::string("fld_Adopt_ExpAmt_6"));
    for (size_t i = 0; i < stamped.m_fields.size(); ++i) {
        QCOMPARE(stamped.m_fields[i]->m_nVersionFrom, 0x10300u);
        QCOMPARE(plain.m_fields[i]->m_nVersionFrom, 0x10083u);
    }
}

QTEST_GUILESS_MAIN(tst_OwnCredit)
#include "tst_owncredit.moc"
