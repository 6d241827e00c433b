#include <LibControl/common/idchecks.h>

#include <QtTest>

#include <functional>
#include <vector>

namespace {

// A null-terminated exception list built from test data; `null` gives a null list.
struct ExceptionList
{
    explicit ExceptionList(QList<QByteArray> const &entries, bool null)
        : m_entries(entries)
        , m_null(null)
    {
        for (QByteArray const &entry : m_entries)
            m_pointers.push_back(entry.constData());
        m_pointers.push_back(nullptr);
    }

    char const **list() { return m_null ? nullptr : m_pointers.data(); }

private:
    QList<QByteArray> m_entries;
    bool m_null;
    std::vector<char const *> m_pointers;
};

// Reads a QByteArray column as a C string; a null QByteArray stands for a null pointer.
char const *cText(QByteArray const &bytes)
{
    return bytes.isNull() ? nullptr : bytes.constData();
}

// The shape checks, one per kind of identifier.
enum class Shape { Trust, TaxShelter, FileId, SredCode, Date, Digits };

} // namespace

Q_DECLARE_METATYPE(Shape)

class tst_IdChecks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void luhnCheckDigit_data();
    void luhnCheckDigit();
    void socialInsuranceNumber_data();
    void socialInsuranceNumber();
    void exceptionLists_data();
    void exceptionLists();
    void accountNumbers_data();
    void accountNumbers();
    void identifierShapes_data();
    void identifierShapes();
    void nisaPin_data();
    void nisaPin();
};

void tst_IdChecks::luhnCheckDigit_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::addColumn<bool>("accepted");
    // 0 4*2=8 6 4*2=8 5 4*2=8 2 8*2=16->1+6=7: sum 44, check 10-4 = 6
    QTest::newRow("valid nine digits") << QByteArray("046454286") << true;
    QTest::newRow("wrong check digit") << QByteArray("046454287") << false;
    // 1 2*2=4 3 4*2=8 5 6*2=12->3 7 8*2=16->7: sum 38, check 2
    QTest::newRow("doubles folded to one digit") << QByteArray("123456782") << true;
    // body 1 2*2=4: sum 5, check 5
    QTest::newRow("single zero") << QByteArray("0") << true;
    QTest::newRow("single five") << QByteArray("5") << false;
    // body 1: sum 1, check 9; the rule holds but the length is even
    QTest::newRow("even length satisfying the rule") << QByteArray("19") << false;
    QTest::newRow("null") << QByteArray() << false;
    QTest::newRow("127 zeros, the longest") << QByteArray(127, '0') << true;
    QTest::newRow("129 zeros, too long") << QByteArray(129, '0') << false;
}

void tst_IdChecks::luhnCheckDigit()
{
    QFETCH(QByteArray, digits);
    QFETCH(bool, accepted);
    QCOMPARE(CheckMod10(cText(digits)), accepted);
}

void tst_IdChecks::socialInsuranceNumber_data()
{
    QTest::addColumn<QByteArray>("sin");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("valid") << QByteArray("046454286") << true;
    // 1 3*2=6 0 6*2=12->3 9 2*2=4 5 4*2=8: sum 36, check 4
    QTest::newRow("valid, first digit not restricted") << QByteArray("130692544") << true;
    QTest::newRow("wrong check digit") << QByteArray("046454287") << false;
    QTest::newRow("letter in place of a digit") << QByteArray("04645428a") << false;
    QTest::newRow("eight digits") << QByteArray("04645428") << false;
    QTest::newRow("separators are not removed") << QByteArray("046 454 286") << false;
    QTest::newRow("null") << QByteArray() << false;
}

void tst_IdChecks::socialInsuranceNumber()
{
    QFETCH(QByteArray, sin);
    QFETCH(bool, accepted);
    QCOMPARE(CheckSIN(cText(sin)), accepted);
    QCOMPARE(CheckSIN(cText(sin), nullptr), accepted);
}

void tst_IdChecks::exceptionLists_data()
{
    QTest::addColumn<QString>("check");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<QByteArray>>("exceptions");
    QTest::addColumn<bool>("nullList");
    QTest::addColumn<bool>("accepted");
    QList<QByteArray> const nr { "nr" };
    QTest::newRow("SIN listed in another case") << "sin" << QByteArray("NR") << nr << false << true;
    QTest::newRow("SIN listed although not nine digits")
        << "sin" << QByteArray("000") << QList<QByteArray> { "x", "000" } << false << true;
    QTest::newRow("SIN with a null list") << "sin" << QByteArray("NR") << nr << true << false;
    QTest::newRow("valid SIN beside a list") << "sin" << QByteArray("046454286") << nr << false << true;
    QTest::newRow("trust listed") << "trust" << QByteArray("pending") << QList<QByteArray> { "PENDING" } << false
                                  << true;
    QTest::newRow("valid trust beside a list") << "trust" << QByteArray("T12345678") << nr << false << true;
    QTest::newRow("membership of null text") << "member" << QByteArray() << nr << false << false;
    QTest::newRow("membership ignores case") << "member" << QByteArray("Nr") << nr << false << true;
}

void tst_IdChecks::exceptionLists()
{
    QFETCH(QString, check);
    QFETCH(QByteArray, text);
    QFETCH(QList<QByteArray>, exceptions);
    QFETCH(bool, nullList);
    QFETCH(bool, accepted);
    ExceptionList list(exceptions, nullList);
    if (check == QLatin1String("sin"))
        QCOMPARE(CheckSIN(cText(text), list.list()), accepted);
    else if (check == QLatin1String("trust"))
        QCOMPARE(CheckTrustNumber(cText(text), list.list()), accepted);
    else
        QCOMPARE(isStrPartOfArrayOfStrs(cText(text), list.list()), accepted);
}

void tst_IdChecks::accountNumbers_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("business number") << "bn" << QByteArray("123456782RC0001") << true;
    // 8 7*2=14->5 0 1*2=2 2 3*2=6 4 5*2=10->1: sum 28, check 2
    QTest::newRow("business number, another") << "bn" << QByteArray("870123452RC0002") << true;
    QTest::newRow("business number, wrong check digit") << "bn" << QByteArray("123456789RC0001") << false;
    QTest::newRow("business number, nine zeros") << "bn" << QByteArray("000000000RC0001") << false;
    QTest::newRow("business number, other program") << "bn" << QByteArray("123456782RT0001") << false;
    QTest::newRow("business number, 14 characters") << "bn" << QByteArray("123456782RC001") << false;
    QTest::newRow("business number, letter in body") << "bn" << QByteArray("12345678XRC0001") << false;
    QTest::newRow("business number, NR alone") << "bn" << QByteArray("NR") << false;
    QTest::newRow("business number or NR, NR") << "bn2" << QByteArray("NR") << true;
    QTest::newRow("business number or NR, number") << "bn2" << QByteArray("123456782RC0001") << true;
    QTest::newRow("GST account without check digit") << "gst" << QByteArray("123456789RT0001") << true;
    QTest::newRow("GST account, business program") << "gst" << QByteArray("123456789RC0001") << false;
    QTest::newRow("GST account, nine zeros") << "gst" << QByteArray("000000000RT0001") << false;
    QTest::newRow("GST account, accented letter adds a byte") << "gst" << QByteArray("12345678\xC3\xA9RT001") << false;
    QTest::newRow("partnership") << "partnership" << QByteArray("123456782RZ0001") << true;
    QTest::newRow("partnership, nine zeros") << "partnership" << QByteArray("000000000RZ0000") << true;
    QTest::newRow("partnership, wrong check digit") << "partnership" << QByteArray("123456789RZ0001") << false;
    QTest::newRow("partnership, business program") << "partnership" << QByteArray("123456782RC0001") << false;
    QTest::newRow("own program with check digit") << "rp" << QByteArray("123456782RP0001") << true;
    QTest::newRow("own program unchecked") << "rp-unchecked" << QByteArray("123456780rp0001") << true;
    QTest::newRow("null number") << "bn" << QByteArray() << false;
}

void tst_IdChecks::accountNumbers()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, number);
    QFETCH(bool, accepted);
    char const *text = cText(number);
    bool result = false;
    if (kind == QLatin1String("bn"))
        result = CheckBusiNum(text);
    else if (kind == QLatin1String("bn2"))
        result = CheckBusiNum2(text);
    else if (kind == QLatin1String("gst"))
        result = CheckGSTAccountNumber(QString::fromUtf8(number));
    else if (kind == QLatin1String("partnership"))
        result = CheckPartnershipID(text);
    else if (kind == QLatin1String("rp"))
        result = CheckCRAProgNum(text, "RP", true);
    else
        result = CheckCRAProgNum(text, "RP", false);
    QCOMPARE(result, accepted);
}

void tst_IdChecks::identifierShapes_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("trust with T") << Shape::Trust << "T12345678" << true;
    QTest::newRow("trust with A") << Shape::Trust << "A12345678" << true;
    QTest::newRow("trust with a") << Shape::Trust << "a12345678" << false;
    QTest::newRow("trust with a letter at the end") << Shape::Trust << "T1234567X" << false;
    QTest::newRow("tax shelter") << Shape::TaxShelter << "TS123456" << true;
    QTest::newRow("tax shelter, mixed case") << Shape::TaxShelter << "tS123456" << true;
    QTest::newRow("tax shelter, five digits") << Shape::TaxShelter << "TS12345" << false;
    QTest::newRow("tax shelter, long s") << Shape::TaxShelter << QString::fromUtf8("T\u017F123456") << false;
    QTest::newRow("file id") << Shape::FileId << "123456789" << true;
    QTest::newRow("file id, letter") << Shape::FileId << "12345678a" << false;
    QTest::newRow("file id, Arabic-Indic digits")
        << Shape::FileId << QString::fromUtf8("\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669") << false;
    QTest::newRow("SR&ED code with dots") << Shape::SredCode << "1.2.3.4" << true;
    QTest::newRow("SR&ED code of digits") << Shape::SredCode << "1234567" << true;
    QTest::newRow("SR&ED code too short") << Shape::SredCode << "12.34" << false;
    QTest::newRow("date") << Shape::Date << "20240131" << true;
    QTest::newRow("date, only eight characters read") << Shape::Date << "2024130199" << true;
    QTest::newRow("date, seven digits") << Shape::Date << "2024013" << false;
    QTest::newRow("all numbers, empty") << Shape::Digits << "" << true;
    QTest::newRow("all numbers") << Shape::Digits << "0123" << true;
    QTest::newRow("all numbers, space") << Shape::Digits << "12 3" << false;
}

void tst_IdChecks::identifierShapes()
{
    QFETCH(Shape, shape);
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    QByteArray const bytes = text.toUtf8();
    switch (shape) {
    case Shape::Trust:
        QCOMPARE(CheckTrustNumber(bytes.constData(), nullptr), accepted);
        break;
    case Shape::TaxShelter:
        QCOMPARE(CheckTaxShelterNumber(text), accepted);
        break;
    case Shape::FileId:
        QCOMPARE(CheckPartnershipIDOrFileID(text), accepted);
        QCOMPARE(CheckPartnershipNumber(text), accepted);
        break;
    case Shape::SredCode:
        QCOMPARE(CheckSREDFieldCode(bytes.constData()), accepted);
        break;
    case Shape::Date:
        QCOMPARE(CheckDate(bytes.constData()), accepted);
        break;
    case Shape::Digits:
        QCOMPARE(CheckIsAllNumber(bytes.constData()), accepted);
        break;
    }
}

void tst_IdChecks::nisaPin_data()
{
    QTest::addColumn<QByteArray>("pin");
    QTest::addColumn<bool>("accepted");
    // 1*2=2 2 3*2=6 4 5*2=10->1 6 7*2=14->5: sum 26, check 4
    QTest::newRow("valid") << QByteArray("12345674") << true;
    QTest::newRow("wrong check digit") << QByteArray("12345675") << false;
    QTest::newRow("all zeros") << QByteArray("00000000") << true;
    // 2*2=4: sum 4, check 6
    QTest::newRow("first digit 2") << QByteArray("20000006") << true;
    // 3*2=6: sum 6, check 4 would match, but the first digit is above 2
    QTest::newRow("first digit 3") << QByteArray("30000004") << false;
    // CheckMod10's parity would take it (2 2*2=4 3 4*2=8 5 6*2=12->3 7: sum 32, check 8);
    // the PIN's own parity (2*2=4 2 3*2=6 4 5*2=10->1 6 7*2=14->5: sum 28) needs 2
    QTest::newRow("CheckMod10 parity does not apply") << QByteArray("22345678") << false;
    QTest::newRow("seven characters") << QByteArray("1234567") << false;
    // "A" - "0" = 17 stands where 2 stood: sum 26 - 2 + 17 = 41, check 9
    QTest::newRow("a letter counts by its code") << QByteArray("1A345679") << true;
    QTest::newRow("null") << QByteArray() << false;
}

void tst_IdChecks::nisaPin()
{
    QFETCH(QByteArray, pin);
    QFETCH(bool, accepted);
    QCOMPARE(CheckNISAPIN(cText(pin)), accepted);
}

QTEST_GUILESS_MAIN(tst_IdChecks)

#include "tst_idchecks.moc"
