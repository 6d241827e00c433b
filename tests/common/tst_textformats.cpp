#include <LibControl/common/csv.h>
#include <LibControl/common/encodings.h>
#include <LibControl/common/htmltable.h>
#include <LibControl/common/texttemplate.h>

#include <QBuffer>
#include <QtTest>

using Records = QVector<QStringList>;

class tst_TextFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void templateFillsPlaceholders_data();
    void templateFillsPlaceholders();
    void templateListsMissingKeys();
    void base64RoundTrip_data();
    void base64RoundTrip();
    void base64RejectsMalformedText_data();
    void base64RejectsMalformedText();
    void urlEncoding_data();
    void urlEncoding();
    void urlDecodingOddEscapes_data();
    void urlDecodingOddEscapes();
    void formBody();
    void csvRecordQuoting_data();
    void csvRecordQuoting();
    void csvParsing_data();
    void csvParsing();
    void csvRoundTripThroughDevice();
    void htmlTableEscapesText();
};

void tst_TextFormats::templateFillsPlaceholders_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one placeholder") << "Dear $$(name)," << "Dear Ann Lee,";
    QTest::newRow("placeholders side by side") << "$$(name)$$(year)" << "Ann Lee2025";
    QTest::newRow("missing key") << "Hello $$(nickname)!" << "Hello nickname not defined in xmt!";
    QTest::newRow("key is case sensitive") << "$$(Name)" << "Name not defined in xmt";
    QTest::newRow("blanks belong to the key") << "$$( name)" << " name not defined in xmt";
    QTest::newRow("empty key") << "[$$()]" << "[ not defined in xmt]";
    QTest::newRow("value is not expanded again") << "$$(tricky)" << "$$(name)";
    QTest::newRow("unclosed placeholder kept") << "a $$(name $$(year" << "a $$(name $$(year";
    QTest::newRow("closed one before an unclosed one") << "$$(year) $$(name" << "2025 $$(name";
    QTest::newRow("single dollar is text") << "$(name) costs $5" << "$(name) costs $5";
    QTest::newRow("three dollars") << "$$$(year)" << "$2025";
    QTest::newRow("no placeholders") << "plain text" << "plain text";
    QTest::newRow("empty text") << "" << "";
}

void tst_TextFormats::templateFillsPlaceholders()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QMap<QString, QString> const values{{QStringLiteral("name"), QStringLiteral("Ann Lee")},
                                        {QStringLiteral("year"), QStringLiteral("2025")},
                                        {QStringLiteral("tricky"), QStringLiteral("$$(name)")}};
    QCOMPARE(fillTextTemplate(text, values), expected);
}

void tst_TextFormats::templateListsMissingKeys()
{
    QStringList missing;
    QString const result = fillTextTemplate(QStringLiteral("$$(a)$$(b)$$(a)$$(c)"),
                                            {{QStringLiteral("b"), QStringLiteral("B")}}, &missing);
    QCOMPARE(result, QStringLiteral("a not defined in xmtBa not defined in xmtc not defined in xmt"));
    QCOMPARE(missing, QStringList({QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("c")}));
}

void tst_TextFormats::base64RoundTrip_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("two padding characters") << QByteArray("f") << QByteArray("Zg==");
    QTest::newRow("one padding character") << QByteArray("fo") << QByteArray("Zm8=");
    QTest::newRow("no padding") << QByteArray("foo") << QByteArray("Zm9v");
    QTest::newRow("binary with plus and slash") << QByteArray("\xFB\xEF\xFF", 3) << QByteArray("++//");
}

void tst_TextFormats::base64RoundTrip()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, encoded);
    QCOMPARE(base64Encode(data), encoded);
    QByteArray decoded("stale");
    QVERIFY(base64Decode(encoded, decoded));
    QCOMPARE(decoded, data);
}

void tst_TextFormats::base64RejectsMalformedText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QByteArray>("decoded");
    QTest::newRow("line breaks of wrapped text skipped") << QByteArray("Zm9v\r\nYmFy\n") << true << QByteArray("foobar");
    QTest::newRow("incomplete quartet") << QByteArray("Zm9") << false << QByteArray();
    QTest::newRow("padding in the middle") << QByteArray("Zg==Zg==") << false << QByteArray();
    QTest::newRow("three padding characters") << QByteArray("Z===") << false << QByteArray();
    QTest::newRow("URL-safe alphabet") << QByteArray("-_-_") << false << QByteArray();
    QTest::newRow("stray character") << QByteArray("Zm9v!") << false << QByteArray();
}

void tst_TextFormats::base64RejectsMalformedText()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, valid);
    QFETCH(QByteArray, decoded);
    QByteArray out("stale");
    QCOMPARE(base64Decode(text, out), valid);
    QCOMPARE(out, decoded);
}

void tst_TextFormats::urlEncoding_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("unreserved characters stay") << "AZaz09-._~" << QByteArray("AZaz09-._~");
    QTest::newRow("space and reserved characters") << "a b&c=d/e?f+g%" << QByteArray("a%20b%26c%3Dd%2Fe%3Ff%2Bg%25");
    QTest::newRow("accented letter as UTF-8") << QStringLiteral("Qu\u00E9bec") << QByteArray("Qu%C3%A9bec");
    QTest::newRow("character outside the BMP") << QStringLiteral("\U0001F600") << QByteArray("%F0%9F%98%80");
    QTest::newRow("empty") << "" << QByteArray();
}

void tst_TextFormats::urlEncoding()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, encoded);
    QCOMPARE(urlEncode(text), encoded);
    QCOMPARE(urlDecode(encoded), text);
}

void tst_TextFormats::urlDecodingOddEscapes_data()
{
    QTest::addColumn<QByteArray>("encoded");
    QTest::addColumn<QString>("text");
    QTest::newRow("lower-case hex digits") << QByteArray("%c3%a9") << QStringLiteral("\u00E9");
    QTest::newRow("plus stays a plus") << QByteArray("a+b") << "a+b";
    QTest::newRow("percent at the end") << QByteArray("100%") << "100%";
    QTest::newRow("percent without hex digits") << QByteArray("%zz") << "%zz";
}

void tst_TextFormats::urlDecodingOddEscapes()
{
    QFETCH(QByteArray, encoded);
    QFETCH(QString, text);
    QCOMPARE(urlDecode(encoded), text);
}

void tst_TextFormats::formBody()
{
    QCOMPARE(urlEncodeForm({}), QByteArray());
    QCOMPARE(urlEncodeForm({{QStringLiteral("sin"), QStringLiteral("046 454 286")},
                            {QStringLiteral("a&b"), QStringLiteral("x=y")},
                            {QString(), QString()}}),
             QByteArray("sin=046%20454%20286&a%26b=x%3Dy&="));
}

void tst_TextFormats::csvRecordQuoting_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("record");
    QTest::newRow("plain fields") << QStringList{"a", "b c", ""} << "a,b c,\r\n";
    QTest::newRow("delimiter quoted") << QStringList{"1,5", "x"} << "\"1,5\",x\r\n";
    QTest::newRow("quotes doubled") << QStringList{"say \"hi\""} << "\"say \"\"hi\"\"\"\r\n";
    QTest::newRow("line breaks quoted") << QStringList{"a\nb", "c\rd"} << "\"a\nb\",\"c\rd\"\r\n";
    QTest::newRow("no fields") << QStringList() << "\r\n";
}

void tst_TextFormats::csvRecordQuoting()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, record);
    QCOMPARE(csvRecord(fields), record);
    if (!fields.isEmpty())
        QCOMPARE(parseCsv(record), Records{fields});
}

void tst_TextFormats::csvParsing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Records>("records");
    QTest::addColumn<bool>("complete");
    QTest::newRow("empty text") << "" << Records() << true;
    QTest::newRow("no final line ending") << "a,b\nc,d" << Records{{"a", "b"}, {"c", "d"}} << true;
    QTest::newRow("mixed line endings") << "a\r\nb\rc\n" << Records{{"a"}, {"b"}, {"c"}} << true;
    QTest::newRow("blank line is one empty field") << "a\n\nb\n" << Records{{"a"}, {""}, {"b"}} << true;
    QTest::newRow("quoted line break") << "\"x\r\ny\",z\r\n" << Records{{"x\r\ny", "z"}} << true;
    QTest::newRow("empty quoted field") << "\"\",a" << Records{{"", "a"}} << true;
    QTest::newRow("quote inside unquoted field kept") << "5\" pipe,b" << Records{{"5\" pipe", "b"}} << true;
    QTest::newRow("text after closing quote kept") << "\"a\"b,c" << Records{{"ab", "c"}} << true;
    QTest::newRow("unterminated quote") << "a,\"open\nstill" << Records{{"a", "open\nstill"}} << false;
}

void tst_TextFormats::csvParsing()
{
    QFETCH(QString, text);
    QFETCH(Records, records);
    QFETCH(bool, complete);
    bool ok = !complete;
    QCOMPARE(parseCsv(text, QLatin1Char(','), &ok), records);
    QCOMPARE(ok, complete);
}

void tst_TextFormats::csvRoundTripThroughDevice()
{
    Records const records{{QStringLiteral("Nom"), QStringLiteral("Montant")},
                          {QStringLiteral("L\u00E9a; \"B\""), QStringLiteral("1 234,50")}};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    CsvWriter writer(&buffer, QLatin1Char(';'));
    for (QStringList const &record : records)
        QVERIFY(writer.writeRecord(record));
    QCOMPARE(buffer.data(), QByteArray("Nom;Montant\r\n\"L\xC3\xA9" "a; \"\"B\"\"\";1 234,50\r\n"));
    QCOMPARE(parseCsv(QString::fromUtf8(buffer.data()), QLatin1Char(';')), records);

    QBuffer readOnly;
    readOnly.open(QIODevice::ReadOnly);
    CsvWriter refused(&readOnly);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
    QCOMPARE(refused.writeRecord({QStringLiteral("x")}), false);
}

void tst_TextFormats::htmlTableEscapesText()
{
    HtmlTable table;
    QCOMPARE(table.toHtml(), QStringLiteral("<table>\n<tbody>\n</tbody>\n</table>\n"));

    table.setCaption(QStringLiteral("Slips & <receipts>"));
    table.setHeader({QStringLiteral("Box"), QStringLiteral("Amount")});
    table.addRow({QStringLiteral("<b>14</b>"), QStringLiteral("\"1\" & 2")});
    table.addRow({QStringLiteral("only one cell")});
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.toHtml(QStringLiteral("class=\"slips\"")),
             QStringLiteral("<table class=\"slips\">\n"
                            "<caption>Slips &amp; &lt;receipts&gt;</caption>\n"
                            "<thead>\n<tr><th>Box</th><th>Amount</th></tr>\n</thead>\n"
                            "<tbody>\n"
                            "<tr><td>&lt;b&gt;14&lt;/b&gt;</td><td>&quot;1&quot; &amp; 2</td></tr>\n"
                            "<tr><td>only one cell</td></tr>\n"
                            "</tbody>\n</table>\n"));
}

QTEST_GUILESS_MAIN(tst_TextFormats)
#include "tst_textformats.moc"
