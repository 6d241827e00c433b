// Amount fields: rounding on assignment, texts, tolerance, corrections and
// the archive payload with its single-precision versions.

#include "fieldarchive.h"

#include <LibControl/fields/IntField.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

double const NaN = std::numeric_limits<double>::quiet_NaN();

enum class Kind { Amount, WholeNumber, ThreeDecimals, Percent };

std::unique_ptr<CFloatField> makeField(Kind kind)
{
    switch (kind) {
    case Kind::WholeNumber: return std::make_unique<CIntFloatField>(0.0, 1);
    case Kind::ThreeDecimals: return std::make_unique<CDecimalFloatField>(3, 0.0, 1);
    case Kind::Percent: return std::make_unique<CPercentField>(0.0, 1, false, FIELD_VERSION_FIRST);
    case Kind::Amount: break;
    }
    return std::make_unique<CFloatField>(0.0, 1);
}

// Each variant has its own operator=(double); call the one of its class.
void assign(CFloatField &field, Kind kind, double value)
{
    switch (kind) {
    case Kind::WholeNumber: static_cast<CIntFloatField &>(field) = value; break;
    case Kind::Percent: static_cast<CPercentField &>(field) = value; break;
    default: field = value; break;
    }
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class tst_FloatField : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void roundedAssignment_data();
    void roundedAssignment();
    void text_data();
    void text();
    void fromText_data();
    void fromText();
    void centTolerance_data();
    void centTolerance();
    void negativeCorrection_data();
    void negativeCorrection();
    void wholeValue_data();
    void wholeValue();
    void archivePayload_data();
    void archivePayload();
    void debugOutput();
};

void tst_FloatField::cleanup()
{
    CFloatField::p_for_quillon = false;
}

void tst_FloatField::roundedAssignment_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("wholeDollars");
    QTest::addColumn<double>("assigned");
    QTest::addColumn<double>("stored");

    QTest::newRow("cents, half cent up") << Kind::Amount << false << 1.005 << 1.01;
    QTest::newRow("cents, negative half cent") << Kind::Amount << false << -1.005 << -1.0;
    QTest::newRow("whole dollars, minus half") << Kind::Amount << true << -2.5 << -3.0;
    QTest::newRow("whole dollars, plus half") << Kind::Amount << true << 2.5 << 3.0;
    QTest::newRow("whole number field") << Kind::WholeNumber << false << 2.5 << 3.0;
    QTest::newRow("whole number field, negative") << Kind::WholeNumber << false << -7.5 << -8.0;
    QTest::newRow("three decimals keep cents") << Kind::ThreeDecimals << false << 1.2345 << 1.23;
    QTest::newRow("three decimals, whole dollars") << Kind::ThreeDecimals << true << 1.6 << 2.0;
    QTest::newRow("percent four decimals") << Kind::Percent << false << 12.34567 << 12.3457;
    QTest::newRow("percent ignores whole dollars") << Kind::Percent << true << 12.5 << 12.5;
}

void tst_FloatField::roundedAssignment()
{
    QFETCH(Kind, kind);
    QFETCH(bool, wholeDollars);
    QFETCH(double, assigned);
    QFETCH(double, stored);

    CFloatField::p_for_quillon = wholeDollars;
    auto field = makeField(kind);
    assign(*field, kind, assigned);
    QCOMPARE(field->m_dValue, stored);
}

void tst_FloatField::text_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("two decimals") << Kind::Amount << 1234.5 << "1234.50";
    QTest::newRow("negative whole") << Kind::Amount << -3.0 << "-3.00";
    QTest::newRow("no grouping") << Kind::Amount << 1234567.891 << "1234567.89";
    QTest::newRow("negative zero") << Kind::Amount << -0.0 << "0.00";
    QTest::newRow("whole number field") << Kind::WholeNumber << 41.0 << "41";
    QTest::newRow("three decimals") << Kind::ThreeDecimals << 1.23 << "1.230";
    QTest::newRow("percent zero") << Kind::Percent << 0.0 << "0.0000";
    QTest::newRow("percent") << Kind::Percent << 12.5 << "12.5000";
}

void tst_FloatField::text()
{
    QFETCH(Kind, kind);
    QFETCH(double, value);
    QFETCH(QString, text);

    auto field = makeField(kind);
    field->m_dValue = value;
    CString out;
    QCOMPARE(field->toString(out), 0);
    QCOMPARE(QString(out), text);
}

void tst_FloatField::fromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    QTest::newRow("grouped thousands") << "1,234.56" << 1234.56;
    QTest::newRow("not rounded") << "2.675" << 2.675;
    QTest::newRow("negative") << "-0.5" << -0.5;
    QTest::newRow("letters") << "abc" << 0.0;
    QTest::newRow("dollar sign") << "$12" << 0.0;
}

void tst_FloatField::fromText()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    CFloatField field(99.0, 1);
    QCOMPARE(field.readFromString(CString(text)), 0);
    QCOMPARE(field.m_dValue, value);
}

void tst_FloatField::centTolerance_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<bool>("differ");

    QTest::newRow("under a cent") << 10.004 << 10.00 << false;
    QTest::newRow("just under tolerance") << 10.0089 << 10.00 << false;
    QTest::newRow("a cent") << 10.01 << 10.00 << true;
    QTest::newRow("two NaN") << NaN << NaN << false;
    QTest::newRow("NaN and zero") << NaN << 0.0 << true;
    QTest::newRow("same infinity") << HUGE_VAL << HUGE_VAL << false;
    QTest::newRow("opposite infinities") << HUGE_VAL << -HUGE_VAL << true;
}

void tst_FloatField::centTolerance()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(bool, differ);

    CFloatField x(0.0, 1);
    CFloatField y(0.0, 2);
    x.m_dValue = a;
    y.m_dValue = b;
    QCOMPARE(x != y, differ);
    QCOMPARE(y != x, differ);
}

void tst_FloatField::negativeCorrection_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("checkNegative");
    QTest::addColumn<bool>("allowNegative");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("corrected");

    QTest::newRow("negative not allowed") << Kind::Amount << true << false << -10.0 << 0.0;
    QTest::newRow("negative allowed") << Kind::Amount << true << true << -10.0 << -10.0;
    QTest::newRow("check switched off") << Kind::Amount << false << false << -10.0 << -10.0;
    QTest::newRow("positive kept") << Kind::Amount << true << false << 10.0 << 10.0;
    QTest::newRow("percent above 100") << Kind::Percent << true << false << 150.0 << 100.0;
    QTest::newRow("percent below 0") << Kind::Percent << true << true << -5.0 << 0.0;
    QTest::newRow("percent below 0, no check") << Kind::Percent << false << true << -5.0 << 0.0;
}

void tst_FloatField::negativeCorrection()
{
    QFETCH(Kind, kind);
    QFETCH(bool, checkNegative);
    QFETCH(bool, allowNegative);
    QFETCH(double, value);
    QFETCH(double, corrected);

    std::unique_ptr<CFloatField> field;
    if (kind == Kind::Percent)
        field = std::make_unique<CPercentField>(checkNegative, value, 1, allowNegative, FIELD_ATTR_NONE, 0,
                                                FIELD_VERSION_FIRST);
    else
        field = std::make_unique<CFloatField>(checkNegative, value, 1, allowNegative, FIELD_ATTR_NONE, 0,
                                              FIELD_VERSION_FIRST);
    QCOMPARE(field->ValidateAndCorrect(), 0);
    QCOMPARE(field->m_dValue, corrected);
}

void tst_FloatField::wholeValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("truncated");
    QTest::addColumn<int>("rounded");

    QTest::newRow("minus two and a half") << -2.5 << -2 << -3;
    QTest::newRow("two and a half") << 2.5 << 2 << 3;
    QTest::newRow("NaN") << NaN << 0 << 0;
    QTest::newRow("beyond int range") << 1e12 << std::numeric_limits<int>::max()
                                      << std::numeric_limits<int>::max();
    QTest::newRow("far below int range") << -1e12 << std::numeric_limits<int>::min()
                                         << std::numeric_limits<int>::min();
}

void tst_FloatField::wholeValue()
{
    QFETCH(double, value);
    QFETCH(int, truncated);
    QFETCH(int, rounded);

    CFloatField field(0.0, 1);
    field.m_dValue = value;
    QCOMPARE(field.getIntVal(false), truncated);
    QCOMPARE(field.getIntVal(true), rounded);
}

void tst_FloatField::archivePayload_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<double>("loaded");

    QTest::newRow("one tenth, current") << 0.1 << QByteArray("9a9999999999b93f") << 65714u << 0.1;
    QTest::newRow("one tenth, single precision version")
        << 0.1 << QByteArray("9a9999999999b93f") << 65713u << 0.10000000149011612;
    QTest::newRow("exact in single precision") << 1234.5 << QByteArray("00000000004a9340") << 65713u << 1234.5;
    QTest::newRow("negative three") << -3.0 << QByteArray("00000000000008c0") << 0x10100u << -3.0;
    QTest::newRow("beyond float range, old version")
        << 1e300 << QByteArray("9c7500883ce4377e") << 65713u << double(HUGE_VAL);
}

void tst_FloatField::archivePayload()
{
    QFETCH(double, value);
    QFETCH(QByteArray, hex);
    QFETCH(unsigned int, version);
    QFETCH(double, loaded);

    CFloatField field(0.0, 1);
    field.m_dValue = value;
    QCOMPARE(storeField(field, version).toHex(), hex);

    CFloatFieldNotused back(0x10000, 0x10100);
    QCOMPARE(loadField(back, version, QByteArray::fromHex(hex)), QDataStream::Ok);
    QCOMPARE(back.m_dValue, loaded);
}

void tst_FloatField::debugOutput()
{
    CFloatField field(12.5, 301);
    QString text;
    QDebug(&text).nospace() << field;
    QCOMPARE(text, QStringLiteral("FF(id: 301, value: 12.50)"));
}

QTEST_GUILESS_MAIN(tst_FloatField)
#include "tst_floatfield.moc"
