#include <LibControl/common/utilities.h>

#include <QtTest>

#include <set>

class tst_Utilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundFloatAtDecision_data();
    void roundFloatAtDecision();
    void truncateToNearest_data();
    void truncateToNearest();
    void divAndOneIfZero();
    void doubleToString_data();
    void doubleToString();
    void stringToDouble_data();
    void stringToDouble();
    void numericStr_data();
    void numericStr();
    void percentForNetfile_data();
    void percentForNetfile();
    void percentForAT1_data();
    void percentForAT1();
    void eFilingCharacterSet();
    void diacriticTable();
    void checkT2ValidChar_data();
    void checkT2ValidChar();
    void characterClasses();
    void fixedWidth_data();
    void fixedWidth();
    void wrapping_data();
    void wrapping();
    void t2AddressBlock();
    void t2AddressForPrint();
    void textHelpers();
    void caseInsensitiveHelpers();
    void currencyCode();
    void xorScrambling();
};

void tst_Utilities::roundFloatAtDecision_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decision");
    QTest::addColumn<double>("expected");

    QTest::newRow("cents: 1.005 rounds up on the positive side") << 1.005 << 2 << 1.01;
    QTest::newRow("cents: -1.005 stays, the negative bias is exactly half") << -1.005 << 2 << -1.0;
    QTest::newRow("cents: -0.125 rounds away from zero") << -0.125 << 2 << -0.13;
    QTest::newRow("cents: 0.125") << 0.125 << 2 << 0.13;
    QTest::newRow("cents: millions split off") << 2500000.125 << 2 << 2500000.13;
    QTest::newRow("cents: 1234567.8949") << 1234567.8949 << 2 << 1234567.89;
    QTest::newRow("four decimals") << 1.00005 << 4 << 1.0001;
    QTest::newRow("unknown decision means four decimals") << 1.00005 << 3 << 1.0001;
    QTest::newRow("five decimals") << 0.1234567 << 5 << 0.12346;
    QTest::newRow("six decimals") << 0.1234567 << 6 << 0.123457;
    QTest::newRow("whole: 2.5") << 2.5 << 0 << 3.0;
    QTest::newRow("whole: -2.5") << -2.5 << 0 << -3.0;
    QTest::newRow("whole: 2.4999") << 2.4999 << 0 << 2.0;
    QTest::newRow("whole: large amount") << 12345678.5 << 0 << 12345679.0;
}

void tst_Utilities::roundFloatAtDecision()
{
    QFETCH(double, value);
    QFETCH(int, decision);
    QFETCH(double, expected);
    QCOMPARE(RoundFloatAtDecision(value, decision), expected);
}

void tst_Utilities::truncateToNearest_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("expected");

    QTest::newRow("positive") << 1999.99 << 1000 << 1000;
    QTest::newRow("negative truncates toward zero") << -1999.99 << 1000 << -1000;
    QTest::newRow("below one step") << 999.0 << 1000 << 0;
    QTest::newRow("step of one drops cents") << 12.75 << 1 << 12;
}

void tst_Utilities::truncateToNearest()
{
    QFETCH(double, value);
    QFETCH(int, step);
    QFETCH(int, expected);
    QCOMPARE(::truncateToNearest(value, step), expected);
    QCOMPARE(value, double(expected));
}

void tst_Utilities::divAndOneIfZero()
{
    QCOMPARE(div(5, 0.005, 7), 7.0);
    QCOMPARE(div(5, 0.01, 7), 500.0);
    QCOMPARE(div(5, -0.0089, 7), 7.0);
    QCOMPARE(GetOneIfZero(-0.0089), 1.0);
    QCOMPARE(GetOneIfZero(0.009), 0.009);
    QCOMPARE(GetOneIfZero(-4.5), -4.5);
}

void tst_Utilities::doubleToString_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");

    QTest::newRow("zero decimals means two, zero fraction stripped") << 3.0 << 0 << QStringLiteral("3");
    QTest::newRow("zero decimals rounds to cents") << 3.456 << 0 << QStringLiteral("3.46");
    QTest::newRow("non-zero fraction kept") << 12.5 << 2 << QStringLiteral("12.50");
    QTest::newRow("positive count strips a zero fraction") << 12.0 << 2 << QStringLiteral("12");
    QTest::newRow("zero with positive count") << 0.0 << 2 << QStringLiteral("0");
    QTest::newRow("negative count keeps zeros") << 12.0 << -2 << QStringLiteral("12.00");
    QTest::newRow("negative count blanks 0.00") << 0.0 << -2 << QString();
    QTest::newRow("only 0.00 is blanked") << 0.0 << -3 << QStringLiteral("0.000");
    QTest::newRow("negative amount") << -1234.5 << 2 << QStringLiteral("-1234.50");
    QTest::newRow("no thousands separator") << 1234567.0 << 0 << QStringLiteral("1234567");
}

void tst_Utilities::doubleToString()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    CString out("previous");
    myDoubleToString(value, decimals, out);
    QCOMPARE(QString(out), expected);
}

void tst_Utilities::stringToDouble_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("expected");

    QTest::newRow("grouping and parentheses dropped") << QByteArray("(1,234.50)") << 1234.5;
    QTest::newRow("currency sign is not numeric") << QByteArray("$5") << 0.0;
    QTest::newRow("space is not numeric") << QByteArray("1 000") << 0.0;
    QTest::newRow("negative") << QByteArray("-12.25") << -12.25;
    QTest::newRow("brackets, braces and marks dropped") << QByteArray("[{<#7!*>}]") << 7.0;
    QTest::newRow("empty") << QByteArray("") << 0.0;
    QTest::newRow("only noise") << QByteArray("(),") << 0.0;
    QTest::newRow("signs accepted but conversion fails") << QByteArray("1-2") << 0.0;
    QTest::newRow("letters") << QByteArray("12a") << 0.0;
}

void tst_Utilities::stringToDouble()
{
    QFETCH(QByteArray, text);
    QFETCH(double, expected);
    QCOMPARE(myStringToDouble(text.toStdString()), expected);
}

void tst_Utilities::numericStr_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("digitsOnly");
    QTest::addColumn<bool>("expected");

    QTest::newRow("empty is numeric") << QString() << true << true;
    QTest::newRow("digits") << QStringLiteral("0123") << true << true;
    QTest::newRow("signs refused when digits only") << QStringLiteral("1-2") << true << false;
    QTest::newRow("signs anywhere otherwise") << QStringLiteral("1-2") << false << true;
    QTest::newRow("dot and plus") << QStringLiteral("+.5") << false << true;
    QTest::newRow("non-ASCII digit refused") << QStringLiteral(u"\u0661") << false << false;
    QTest::newRow("comma refused") << QStringLiteral("1,0") << false << false;
}

void tst_Utilities::numericStr()
{
    QFETCH(QString, text);
    QFETCH(bool, digitsOnly);
    QFETCH(bool, expected);
    QCOMPARE(isNumericStr(CString(text), digitsOnly), expected);
}

void tst_Utilities::percentForNetfile_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");

    QTest::newRow("trailing zeros cut") << 12.5 << -3 << QStringLiteral("12.5");
    QTest::newRow("dot cut after the zeros") << 12.0 << -2 << QStringLiteral("12");
    QTest::newRow("positive count keeps zeros") << 12.5 << 3 << QStringLiteral("12.500");
    QTest::newRow("zero decimals") << 7.4 << 0 << QStringLiteral("7");
    QTest::newRow("zeros before the dot survive") << 10.0 << -2 << QStringLiteral("10");
}

void tst_Utilities::percentForNetfile()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    CString out;
    GetPercentStringForNetfile(value, decimals, out);
    QCOMPARE(QString(out), expected);
}

void tst_Utilities::percentForAT1_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");

    QTest::newRow("half") << 50.0 << 2 << QStringLiteral(".5");
    QTest::newRow("five percent") << 5.0 << 2 << QStringLiteral(".05");
    QTest::newRow("twelve and a half at four") << 12.5 << 4 << QStringLiteral(".125");
    QTest::newRow("decimals below two taken as two") << 25.0 << 0 << QStringLiteral(".25");
    QTest::newRow("rounds half up") << 12.345 << 4 << QStringLiteral(".1235");
    QTest::newRow("hundred or more is one") << 100.0 << 2 << QStringLiteral("1");
    QTest::newRow("zero or less is zero") << -3.0 << 2 << QStringLiteral("0");
    QTest::newRow("rounding up to a hundred keeps its odd result") << 99.999 << 2 << QStringLiteral(".1");
    QTest::newRow("a value that rounds to nothing") << 0.001 << 2 << QStringLiteral("0");
}

void tst_Utilities::percentForAT1()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    CString out;
    GetPercentStringForAT1(value, decimals, out);
    QCOMPARE(QString(out), expected);
}

void tst_Utilities::eFilingCharacterSet()
{
    // Written out from the accepted list, independently of the implementation.
    std::set<int> allowed;
    for (int c = 0x20; c < 0x7F; ++c)
        allowed.insert(c);
    for (int c : {0x91, 0x92, 0xA1, 0xA2, 0xA3, 0xA5, 0xA6, 0xA7, 0xA8, 0xA9, 0xAB, 0xAC, 0xAE, 0xAF, 0xB0,
                  0xB1, 0xB2, 0xB3, 0xB4, 0xB6, 0xB7, 0xB8, 0xB9, 0xBA, 0xBB, 0xBC, 0xBD, 0xBE, 0xBF, 0xC0,
                  0xC2, 0xC7, 0xC8, 0xC9, 0xCA, 0xCB, 0xCE, 0xCF, 0xD4, 0xD6, 0xD7, 0xD9, 0xDB, 0xDC, 0xE0,
                  0xE2, 0xE7, 0xE8, 0xE9, 0xEA, 0xEB, 0xEE, 0xEF, 0xF4, 0xF6, 0xF7, 0xF9, 0xFB, 0xFC})
        allowed.insert(c);
    for (int c = 0; c < 256; ++c)
        QVERIFY2(IsT2AllowedChar(static_cast<unsigned char>(c)) == (allowed.count(c) == 1),
                 qPrintable(QStringLiteral("byte 0x%1").arg(c, 2, 16, QLatin1Char('0'))));
}

void tst_Utilities::diacriticTable()
{
    int count = 0;
    for (int u = 0; u < 0x10000; ++u) {
        if (isCharDiacritic(QChar(ushort(u))))
            ++count;
    }
    QCOMPARE(count, 60);
    QVERIFY(isCharDiacritic(QChar(0xD7)));
    QVERIFY(isCharDiacritic(QChar(0xF7)));
    for (ushort u : {0xC5, 0xD5, 0xE5, 0xF5, 0xBF, 0x100})
        QVERIFY(!isCharDiacritic(QChar(u)));
}

void tst_Utilities::checkT2ValidChar_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    QTest::newRow("empty") << QString() << true;
    QTest::newRow("address") << QStringLiteral("12-34 Rue de l'\u00C9glise #5") << true;
    QTest::newRow("e acute allowed") << QStringLiteral(u"\u00E9") << true;
    QTest::newRow("a acute refused") << QStringLiteral(u"\u00E1") << false;
    QTest::newRow("euro sign fails as byte 0") << QStringLiteral(u"\u20AC") << false;
    QTest::newRow("tab refused") << QStringLiteral("a\tb") << false;
}

void tst_Utilities::checkT2ValidChar()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QCOMPARE(CheckT2ValidChar(CString(text)), expected);
}

void tst_Utilities::characterClasses()
{
    QString const others = QStringLiteral("-_+$%<>");
    for (int c = 1; c < 128; ++c) {
        char const ch = char(c);
        bool const digit = c >= '0' && c <= '9';
        bool const letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        QCOMPARE(IsDigitChar(ch), digit);
        QCOMPARE(isNumeric(ch), digit);
        QCOMPARE(isAlphabetic(ch), letter);
        QCOMPARE(Is26NormalChar(ch), letter);
        QCOMPARE(IsAlphaChar(ch), letter || others.contains(QLatin1Char(ch)));
    }
    char digits[] = "0123";
    char mixed[] = "01a";
    char empty[] = "";
    QVERIFY(IsDigits(digits));
    QVERIFY(!IsDigits(mixed));
    QVERIFY(!IsDigits(empty));
    QVERIFY(IsAllZeroString(CString("")));
    QVERIFY(IsAllZeroString(CString("000")));
    QVERIFY(!IsAllZeroString(CString("010")));
    QVERIFY(StringHasChars(CString("a-b"), "-_"));
    QVERIFY(!StringHasChars(CString(""), "-_"));
}

void tst_Utilities::fixedWidth_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("null");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("expected");

    QTest::newRow("trimmed and padded") << QByteArray("  ab  ") << false << 4 << QStringLiteral("ab  ");
    QTest::newRow("cut to width") << QByteArray("  ab  ") << false << 1 << QStringLiteral("a");
    QTest::newRow("null gives spaces") << QByteArray() << true << 3 << QStringLiteral("   ");
    QTest::newRow("width zero") << QByteArray("abc") << false << 0 << QString();
    QTest::newRow("Latin-1 byte is one character") << QByteArray("\xE9t\xE9") << false << 4
                                                   << QStringLiteral(u"\u00E9t\u00E9 ");
}

void tst_Utilities::fixedWidth()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, null);
    QFETCH(int, width);
    QFETCH(QString, expected);
    CString out;
    makeStringToFixLengthStringByTrailingSpaces(out, null ? nullptr : text.constData(), width);
    QCOMPARE(QString(out), expected);
}

void tst_Utilities::wrapping_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maxChars");
    QTest::addColumn<QString>("expected");

    // Worked by hand: the break goes before the line's last space, which
    // then starts the next line.
    QTest::newRow("words move with their space") << QStringLiteral("aaa bbb ccc") << 5
                                                 << QStringLiteral("aaa\n bbb\n ccc");
    QTest::newRow("a space at the overflow becomes the break") << QStringLiteral("abc def") << 3
                                                               << QStringLiteral("abc\ndef");
    QTest::newRow("a long word is broken") << QStringLiteral("abcdefg") << 3 << QStringLiteral("abc\ndef\ng");
    QTest::newRow("line breaks reset the column") << QStringLiteral("ab\ncd") << 2 << QStringLiteral("ab\ncd");
    QTest::newRow("short text unchanged") << QStringLiteral("a b") << 10 << QStringLiteral("a b");
    QTest::newRow("empty") << QString() << 5 << QString();
}

void tst_Utilities::wrapping()
{
    QFETCH(QString, text);
    QFETCH(int, maxChars);
    QFETCH(QString, expected);
    CString out("previous");
    formatStringToMaxCharsPerLine(CString(text), maxChars, out);
    QCOMPARE(QString(out), expected);
}

void tst_Utilities::t2AddressBlock()
{
    CString out;
    formatStringToT2AddrIn104Letters(out, "ca", "ON", " Ottawa ", "100 Main Street", nullptr, "K1A 0B1");
    QString const expected = QStringLiteral("100 Main Street").leftJustified(30) + QString(30, QLatin1Char(' '))
                             + QStringLiteral("Ottawa").leftJustified(30) + QStringLiteral("ONcaK1A0B1    ");
    QCOMPARE(QString(out), expected);
    QCOMPARE(out.GetLength(), 104);

    formatStringToT2AddrIn104Letters(out, "FR", "ON", "Paris", "1 rue de Rivoli, appartement 123456789", "", "75001");
    QCOMPARE(out.GetLength(), 104);
    QCOMPARE(QString(out.Mid(0, 30)), QStringLiteral("1 rue de Rivoli, appartement 1"));
    QCOMPARE(QString(out.Mid(90, 14)), QStringLiteral("  FR75001     "));
}

void tst_Utilities::t2AddressForPrint()
{
    CString out;
    formatStringToT2AddrForPrint(out, "CA", "ON", "Ottawa", "100 Main Street", "  ", "K1A 0B1");
    QCOMPARE(QString(out), QStringLiteral("100 Main Street Ottawa K1A0B1"));
}

void tst_Utilities::textHelpers()
{
    CString name("Form T1 (2025).pdf");
    QVERIFY(makeValidFilename(name));
    QCOMPARE(QString(name), QStringLiteral("FormT12025pdf"));

    CString spaces("a  b   c    d");
    removeContinuousSpace(spaces);
    QCOMPARE(QString(spaces), QStringLiteral("a b  c  d"));

    std::string padded = " \t text \t\n\t ";
    trimSpaces(padded);
    QCOMPARE(QByteArray::fromStdString(padded), QByteArray("text \t\n"));

    QCOMPARE(QString(getLeadingString(CString("abcdef"), 2)), QStringLiteral("ab"));
    QVERIFY(stringEndwith(CString("report.XML"), ".xml", false));
    QVERIFY(!stringEndwith(CString("report.XML"), ".xml", true));
    QVERIFY(!stringEndwith(CString("ml"), ".xml", false));
}

void tst_Utilities::caseInsensitiveHelpers()
{
    QCOMPARE(findCaseInsensitive("Hello World", "WORLD", 0), size_t(6));
    QCOMPARE(findCaseInsensitive("Hello World", "o", 5), size_t(7));
    QCOMPARE(findCaseInsensitive("Hello", "z", 0), std::string::npos);
    QCOMPARE(stricmp("Abc", "aBC"), 0);
    QVERIFY(stricmp("abc", "abd") < 0);
    QVERIFY(stricmp("abcd", "abc") > 0);
}

void tst_Utilities::currencyCode()
{
    CString out("kept");
    QCOMPARE(getCurrencyCode(out, 6), -1);
    QCOMPARE(QString(out), QStringLiteral("kept"));
    QCOMPARE(getCurrencyCode(out, -1), -1);
    QCOMPARE(getCurrencyCode(out, 3), 3);
    QCOMPARE(QString(out), QStringLiteral("AUD"));
    QCOMPARE(QByteArray(Global_Currency_Info[3].name), QByteArray("Australia Dolloar"));
}

void tst_Utilities::xorScrambling()
{
    QByteArray data("return block");
    QByteArray const original = data;
    abcTwo(data.data(), data.size(), "k\x01", 2);
    QCOMPARE(data.at(0), char('r' ^ 'k'));
    QCOMPARE(data.at(1), char('e' ^ 0x01));
    abcTwo(data.data(), data.size(), "k\x01", 2);
    QCOMPARE(data, original);
    abcTwo(data.data(), data.size(), "k", 0);
    QCOMPARE(data, original);
}

QTEST_GUILESS_MAIN(tst_Utilities)
#include "tst_utilities.moc"
