#include <LibControl/worksheets/taxstairs.h>

#include <QtTest>

namespace {

// A two-bracket schedule: 15 % up to 50,000, 20.5 % above.
void twoBrackets(STRUCT_TAX_STAIRS_JURISDICTION &stairs)
{
    stairs.addLevel(0, 0.15, 0);
    stairs.addLevel(50000, 0.205, 7500);
}

} // namespace

class tst_TaxStairs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tax_data();
    void tax();
    void bracketOfIncome_data();
    void bracketOfIncome();
    void singleBracketIsNotRounded();
    void emptySchedule();
    void thresholds();
    void spouseAmount_data();
    void spouseAmount();
    void capacity();
};

void tst_TaxStairs::tax_data()
{
    QTest::addColumn<double>("income");
    QTest::addColumn<double>("tax");

    QTest::newRow("zero income") << 0.0 << 0.0;
    QTest::newRow("inside the first bracket") << 10000.0 << 1500.0;
    QTest::newRow("exactly at a threshold stays in the lower bracket") << 50000.0 << 7500.0;
    // 0.01 x 0.205 = 0.00205, rounded to cents: 0.00.
    QTest::newRow("one cent above the threshold") << 50000.01 << 7500.0;
    // 10,000.37 x 0.205 = 2050.07585 -> 2050.08; + 7500.
    QTest::newRow("upper bracket rounds each step") << 60000.37 << 9550.08;
    QTest::newRow("negative income falls in the first bracket") << -100.0 << -15.0;
}

void tst_TaxStairs::tax()
{
    QFETCH(double, income);
    QFETCH(double, tax);
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    twoBrackets(stairs);
    QCOMPARE(stairs.CalcAlgoForTax(income), tax);
}

void tst_TaxStairs::bracketOfIncome_data()
{
    QTest::addColumn<double>("income");
    QTest::addColumn<double>("threshold");
    QTest::addColumn<double>("rate");

    QTest::newRow("first") << 1.0 << 0.0 << 0.15;
    QTest::newRow("at the threshold") << 50000.0 << 0.0 << 0.15;
    QTest::newRow("above") << 50000.5 << 50000.0 << 0.205;
}

void tst_TaxStairs::bracketOfIncome()
{
    QFETCH(double, income);
    QFETCH(double, threshold);
    QFETCH(double, rate);
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    twoBrackets(stairs);
    double t = -1, r = -1, base = -1;
    stairs.CalcAlgoForSetFieldsToCalcTax(income, t, r, base);
    QCOMPARE(t, threshold);
    QCOMPARE(r, rate);
}

void tst_TaxStairs::singleBracketIsNotRounded()
{
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    stairs.addLevel(1000, 0.15, 99);
    QCOMPARE(stairs.CalcAlgoForTax(12345.678), 12345.678 * 0.15);
}

void tst_TaxStairs::emptySchedule()
{
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    QCOMPARE(stairs.CalcAlgoForTax(50000), 0.0);
    double t = 7, r = 7, base = 7;
    stairs.CalcAlgoForSetFieldsToCalcTax(100, t, r, base);
    QCOMPARE(t, 7.0);
    QCOMPARE(r, 7.0);
    QCOMPARE(base, 7.0);
}

void tst_TaxStairs::thresholds()
{
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    std::list<double> out{1.0};
    stairs.GetIncomeThresholds(out);
    QCOMPARE(out.size(), size_t(1));
    stairs.addLevel(0, 0.15, 0);
    stairs.addLevel(57375, 0.205, 8606.25);
    stairs.addLevel(114750, 0.26, 20368.13);
    stairs.GetIncomeThresholds(out);
    QCOMPARE(out, (std::list<double>{1.0, 57375.0, 114750.0}));
}

void tst_TaxStairs::spouseAmount_data()
{
    QTest::addColumn<double>("income");
    QTest::addColumn<double>("tax");

    QTest::newRow("below the second threshold") << 40000.0 << 0.0;
    QTest::newRow("just 0.005 above") << 50000.005 << 0.0;
    QTest::newRow("0.01 above") << 50000.01 << 7500.0;
    QTest::newRow("well above") << 60000.0 << 9550.0;
}

void tst_TaxStairs::spouseAmount()
{
    QFETCH(double, income);
    QFETCH(double, tax);
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    twoBrackets(stairs);
    double result = -1;
    stairs.CalcAlgoForSpouseF260S2(income, result);
    QCOMPARE(result, tax);
}

void tst_TaxStairs::capacity()
{
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    for (int i = 0; i < 10; ++i)
        QCOMPARE(stairs.addLevel(i * 1000.0, 0.1, 0), i + 1);
    QCOMPARE(stairs.addLevel(99999, 0.5, 0), 10);
}

QTEST_GUILESS_MAIN(tst_TaxStairs)
#include "tst_taxstairs.moc"
