#include <LibControl/common/cstring.h>

#include <QtTest>

class tst_CString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodings_data();
    void encodings();
    void nullAndEmpty();
    void mid_data();
    void mid();
    void leftRight_data();
    void leftRight();
    void getAt_data();
    void getAt();
    void search_data();
    void search();
    void compare_data();
    void compare();
    void trim_data();
    void trim();
    void replaceAndRemove();
    void signedByteNeverMatchesLatin1();
    void stdStringLimits_data();
    void stdStringLimits();
    void caseMapping();
    void sprintf2023();
};

void tst_CString::encodings_data()
{
    QTest::addColumn<QString>("constructed");
    QTest::addColumn<QString>("expected");

    char const latin1[] = "\xE9t\xE9";
    char const utf8[] = "\xC3\xA9t\xC3\xA9";
    CString loaded;
    loaded.LoadString(utf8);
    CString assigned;
    assigned = latin1;

    QTest::newRow("constructor reads Latin-1") << QString(CString(latin1)) << QStringLiteral(u"\u00E9t\u00E9");
    QTest::newRow("assignment reads Latin-1") << QString(assigned) << QStringLiteral(u"\u00E9t\u00E9");
    QTest::newRow("LoadString reads UTF-8") << QString(loaded) << QStringLiteral(u"\u00E9t\u00E9");
    QTest::newRow("UTF-8 bytes through the constructor stay bytes")
        << QString(CString(utf8)) << QStringLiteral(u"\u00C3\u00A9t\u00C3\u00A9");
}

void tst_CString::encodings()
{
    QFETCH(QString, constructed);
    QFETCH(QString, expected);
    QCOMPARE(constructed, expected);
}

void tst_CString::nullAndEmpty()
{
    CString defaulted;
    QVERIFY(defaulted.IsEmpty());
    QVERIFY(!defaulted.isNull());

    CString fromNull(static_cast<char const *>(nullptr));
    QVERIFY(fromNull.isNull());

    CString cleared("abc");
    cleared.Empty();
    QVERIFY(cleared.isNull());
    QVERIFY(cleared.IsEmpty());

    CString loaded("x");
    loaded.LoadString(nullptr);
    QVERIFY(loaded.isNull());

    QString const shared = QStringLiteral("shared text");
    CString copy(shared);
    QVERIFY(copy.isSharedWith(shared));
}

void tst_CString::mid_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");

    QTest::newRow("count zero means the rest") << 3 << 0 << QStringLiteral("def");
    QTest::newRow("negative count means the rest") << 3 << -5 << QStringLiteral("def");
    QTest::newRow("ordinary count") << 3 << 2 << QStringLiteral("de");
    QTest::newRow("count past the end is clamped") << 4 << 10 << QStringLiteral("ef");
    QTest::newRow("start beyond the end") << 10 << 2 << QString();
    QTest::newRow("negative start shortens the count") << -1 << 3 << QStringLiteral("ab");
}

void tst_CString::mid()
{
    QFETCH(int, start);
    QFETCH(int, count);
    QFETCH(QString, expected);
    QCOMPARE(QString(CString("abcdef").Mid(start, count)), expected);
}

void tst_CString::leftRight_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");

    QTest::newRow("two") << 2 << QStringLiteral("ab") << QStringLiteral("ef");
    QTest::newRow("length") << 6 << QStringLiteral("abcdef") << QStringLiteral("abcdef");
    QTest::newRow("beyond length") << 9 << QStringLiteral("abcdef") << QStringLiteral("abcdef");
    QTest::newRow("negative gives all") << -1 << QStringLiteral("abcdef") << QStringLiteral("abcdef");
    QTest::newRow("zero") << 0 << QString() << QString();
}

void tst_CString::leftRight()
{
    QFETCH(int, n);
    QFETCH(QString, left);
    QFETCH(QString, right);
    CString const text("abcdef");
    QCOMPARE(QString(text.Left(n)), left);
    QCOMPARE(QString(text.Right(n)), right);
}

void tst_CString::getAt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("byte");

    QTest::newRow("ASCII") << QStringLiteral("A") << 0x41;
    QTest::newRow("e acute is its Latin-1 byte") << QStringLiteral(u"\u00E9") << 0xE9;
    QTest::newRow("y diaeresis is the last byte") << QStringLiteral(u"\u00FF") << 0xFF;
    QTest::newRow("first code above Latin-1 gives 0") << QStringLiteral(u"\u0100") << 0;
    QTest::newRow("euro sign gives 0") << QStringLiteral(u"\u20AC") << 0;
}

void tst_CString::getAt()
{
    QFETCH(QString, text);
    QFETCH(int, byte);
    QCOMPARE(int(static_cast<unsigned char>(CString(text).GetAt(0))), byte);
}

void tst_CString::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("needle");
    QTest::addColumn<int>("find");
    QTest::addColumn<int>("reverseFind");

    QTest::newRow("several matches") << QStringLiteral("banana") << QByteArray("a") << 1 << 5;
    QTest::newRow("absent") << QStringLiteral("banana") << QByteArray("z") << -1 << -1;
    QTest::newRow("case-sensitive") << QStringLiteral("Banana") << QByteArray("b") << -1 << -1;
    QTest::newRow("needle read as UTF-8") << QStringLiteral(u"caf\u00E9") << QByteArray("\xC3\xA9") << 3 << 3;
}

void tst_CString::search()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, needle);
    QFETCH(int, find);
    QFETCH(int, reverseFind);
    CString const s(text);
    QCOMPARE(s.Find(needle.constData()), find);
    QCOMPARE(s.ReverseFind(needle.constData()), reverseFind);
    QCOMPARE(s.Find(""), 0);
}

void tst_CString::compare_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<int>("sign");
    QTest::addColumn<int>("signNoCase");

    QTest::newRow("equal") << QStringLiteral("abc") << QByteArray("abc") << 0 << 0;
    QTest::newRow("case differs") << QStringLiteral("abc") << QByteArray("ABC") << 1 << 0;
    QTest::newRow("less") << QStringLiteral("abc") << QByteArray("abd") << -1 << -1;
    QTest::newRow("accented argument read as UTF-8")
        << QStringLiteral(u"\u00C9T\u00C9") << QByteArray("\xC3\xA9t\xC3\xA9") << -1 << 0;
}

void tst_CString::compare()
{
    QFETCH(QString, left);
    QFETCH(QByteArray, right);
    QFETCH(int, sign);
    QFETCH(int, signNoCase);
    auto signOf = [](int v) { return (v > 0) - (v < 0); };
    CString const s(left);
    QCOMPARE(signOf(s.Compare(right.constData())), sign);
    QCOMPARE(signOf(s.CompareNoCase(right.constData())), signNoCase);
    CString other;
    other.LoadString(right.constData());
    QCOMPARE(signOf(s.Compare(other)), sign);
    QCOMPARE(signOf(s.CompareNoCase(other)), signNoCase);
}

void tst_CString::trim_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("both");

    QTest::newRow("spaces, tab and line feed") << QStringLiteral(" \tin ner\n") << QStringLiteral("in ner\n")
                                               << QStringLiteral(" \tin ner") << QStringLiteral("in ner");
    QTest::newRow("Unicode spaces count") << QStringLiteral(u"\u00A0x\u2003") << QStringLiteral(u"x\u2003")
                                          << QStringLiteral(u"\u00A0x") << QStringLiteral("x");
    QTest::newRow("only white space") << QStringLiteral(" \r\n ") << QString() << QString() << QString();
}

void tst_CString::trim()
{
    QFETCH(QString, text);
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(QString, both);
    CString l(text), r(text), b(text);
    l.TrimLeft();
    r.TrimRight();
    b.Trim();
    QCOMPARE(QString(l), left);
    QCOMPARE(QString(r), right);
    QCOMPARE(QString(b), both);
}

void tst_CString::replaceAndRemove()
{
    CString text("abab");
    QCOMPARE(text.Replace("ab", "x"), 0);
    QCOMPARE(QString(text), QStringLiteral("xx"));

    CString chars("a-b-c");
    QCOMPARE(chars.Replace('-', '+'), 0);
    QCOMPARE(QString(chars), QStringLiteral("a+b+c"));
    QCOMPARE(chars.Remove('+'), 0);
    QCOMPARE(QString(chars), QStringLiteral("abc"));
}

void tst_CString::signedByteNeverMatchesLatin1()
{
    CString text(QStringLiteral(u"caf\u00E9"));
    text.Replace(char(0xE9), 'e');
    QCOMPARE(QString(text), QStringLiteral(u"caf\u00E9"));
    text.Remove(char(0xE9));
    QCOMPARE(text.GetLength(), 4);
}

void tst_CString::stdStringLimits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QByteArray>("latin1");
    QTest::addColumn<QByteArray>("utf8");

    QString const eee = QStringLiteral(u"\u00E9\u00E9\u00E9");
    QTest::newRow("limit counts UTF-16 units") << eee << 3 << QByteArray("\xE9\xE9\xE9")
                                               << QByteArray("\xC3\xA9\xC3\xA9\xC3\xA9");
    QTest::newRow("limit cuts") << eee << 1 << QByteArray("\xE9") << QByteArray("\xC3\xA9");
    QTest::newRow("zero converts all") << QStringLiteral("abc") << 0 << QByteArray("abc") << QByteArray("abc");
    QTest::newRow("stops at NUL") << QStringLiteral(u"ab\u0000cd") << -1 << QByteArray("ab") << QByteArray("ab");
    QTest::newRow("outside Latin-1 becomes a question mark")
        << QStringLiteral(u"\u20AC1") << 0 << QByteArray("?1") << QByteArray("\xE2\x82\xAC" "1");
}

void tst_CString::stdStringLimits()
{
    QFETCH(QString, text);
    QFETCH(int, limit);
    QFETCH(QByteArray, latin1);
    QFETCH(QByteArray, utf8);
    CString const s(text);
    QCOMPARE(QByteArray::fromStdString(s.toStdStringLatin1(limit)), latin1);
    QCOMPARE(QByteArray::fromStdString(s.toStdStringUTF8(limit)), utf8);
}

void tst_CString::caseMapping()
{
    CString text(QStringLiteral(u"\u00E9t\u00E9 Street"));
    text.MakeUpper();
    QCOMPARE(QString(text), QStringLiteral(u"\u00C9T\u00C9 STREET"));
    text.MakeLower();
    QCOMPARE(QString(text), QStringLiteral(u"\u00E9t\u00E9 street"));
}

void tst_CString::sprintf2023()
{
    CString const text = CString::sprintf2023("%s=%05.1f %d", "\xC3\xA9", 3.14159, -7);
    QCOMPARE(QString(text), QStringLiteral(u"\u00E9=003.1 -7"));
}

QTEST_GUILESS_MAIN(tst_CString)
#include "tst_cstring.moc"
