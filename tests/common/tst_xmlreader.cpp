#include <LibControl/common/xmlreader.h>
#include <LibControl/common/xmlutil.h>

#include <QTest>

#include <map>
#include <memory>
#include <string>

namespace {

using StringMap = std::map<std::string, CString>;

// The document owns every node; keep it alive while its root is used.
struct Parsed
{
    explicit Parsed(char const *xml) { document.Parse(xml, nullptr, TIXML_ENCODING_UTF8); }
    TiXmlElement *root() { return document.RootElement(); }
    TiXmlDocument document;
};

QString describe(StringMap const &values)
{
    QStringList entries;
    for (auto const &entry : values)
        entries << QString::fromStdString(entry.first) + QLatin1Char('=') + entry.second;
    return entries.join(QLatin1Char(';'));
}

} // namespace

class tst_XmlReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subElementSuffixMatch_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("found"); // empty: none
        QTest::newRow("namespace prefix") << QByteArray("<r><x:Amount>1</x:Amount></r>") << QByteArray("Amount")
                                          << QByteArray("x:Amount");
        QTest::newRow("longer tag ending with the name comes first")
            << QByteArray("<r><TotalAmount/><Amount/></r>") << QByteArray("Amount") << QByteArray("TotalAmount");
        QTest::newRow("case ignored") << QByteArray("<r><AMOUNT/></r>") << QByteArray("amount") << QByteArray("AMOUNT");
        QTest::newRow("name not at the end") << QByteArray("<r><Amounts/></r>") << QByteArray("Amount") << QByteArray();
        QTest::newRow("comments and text skipped") << QByteArray("<r><!--c-->text<b:Amount/></r>") << QByteArray("Amount")
                                                   << QByteArray("b:Amount");
        QTest::newRow("grandchildren not searched") << QByteArray("<r><g><Amount/></g></r>") << QByteArray("Amount")
                                                    << QByteArray();
        QTest::newRow("empty name matches the first element") << QByteArray("<r>t<a/><b/></r>") << QByteArray("")
                                                              << QByteArray("a");
    }

    void subElementSuffixMatch()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, found);
        Parsed parsed(xml.constData());
        TiXmlElement *const child = getElementSubElement(parsed.root(), name.constData());
        QCOMPARE(QByteArray(child ? child->Value() : ""), found);
        QCOMPARE(MyTiXmlHandle(parsed.root()).FirstChildElement(name.constData(), "other").ToElement(), child);
    }

    void handleChains()
    {
        Parsed parsed("<r>lead<ns:a><b>deep</b></ns:a></r>");
        MyTiXmlHandle const root(parsed.root());
        TiXmlElement *const b = root.FirstChildElement("a").FirstChildElement("B").ToElement();
        QVERIFY(b);
        QCOMPARE(QByteArray(b->GetText()), QByteArray("deep"));
        QCOMPARE(QByteArray(root.FirstChildElement().ToElement()->Value()), QByteArray("ns:a"));
        // Text is not an element: b has no child element.
        QCOMPARE(root.FirstChildElement().FirstChildElement().FirstChildElement().ToNode(), static_cast<TiXmlNode *>(nullptr));
        MyTiXmlHandle const missing = root.FirstChildElement("zz").FirstChildElement("b").FirstChildElement();
        QCOMPARE(missing.ToNode(), static_cast<TiXmlNode *>(nullptr));
        QCOMPARE(MyTiXmlHandle(nullptr).FirstChildElement(nullptr).ToElement(), static_cast<TiXmlElement *>(nullptr));
    }

    void subElementText_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("text") << QByteArray("<r><p:a>x y</p:a></r>") << QByteArray("x y");
        QTest::newRow("missing child") << QByteArray("<r><b>x</b></r>") << QByteArray();
        QTest::newRow("empty child") << QByteArray("<r><a></a></r>") << QByteArray();
        QTest::newRow("element before the text") << QByteArray("<r><a><i/>x</a></r>") << QByteArray();
    }

    void subElementText()
    {
        QFETCH(QByteArray, xml);
        Parsed parsed(xml.constData());
        char const *const text = getElementSubEleStringText(parsed.root(), "a");
        QVERIFY(text);
        QTEST(QByteArray(text), "text");
    }

    void subElementInt_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<int>("value");
        QTest::newRow("number") << QByteArray("<r><a>42</a></r>") << 42;
        QTest::newRow("negative") << QByteArray("<r><a>-5</a></r>") << -5;
        QTest::newRow("not a number gives 0") << QByteArray("<r><a>abc</a></r>") << 0;
        QTest::newRow("trailing letters give 0") << QByteArray("<r><a>12abc</a></r>") << 0;
        QTest::newRow("empty gives the fallback") << QByteArray("<r><a/></r>") << 7;
        QTest::newRow("missing gives the fallback") << QByteArray("<r/>") << 7;
    }

    void subElementInt()
    {
        QFETCH(QByteArray, xml);
        Parsed parsed(xml.constData());
        QTEST(getElementSubEleStringAsInt(parsed.root(), "a", 7), "value");
    }

    void subElementBool_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<bool>("fallback");
        QTest::addColumn<bool>("value");
        QTest::newRow("TRUE") << QByteArray("<r><a>TRUE</a></r>") << false << true;
        QTest::newRow("one") << QByteArray("<r><a>1</a></r>") << false << true;
        QTest::newRow("False") << QByteArray("<r><a>False</a></r>") << true << false;
        QTest::newRow("zero") << QByteArray("<r><a>0</a></r>") << true << false;
        QTest::newRow("yes gives the fallback") << QByteArray("<r><a>yes</a></r>") << true << true;
        QTest::newRow("empty gives the fallback") << QByteArray("<r><a/></r>") << true << true;
        QTest::newRow("missing gives the fallback") << QByteArray("<r/>") << false << false;
    }

    void subElementBool()
    {
        QFETCH(QByteArray, xml);
        QFETCH(bool, fallback);
        Parsed parsed(xml.constData());
        QTEST(getElementSubEleStringAsBool(parsed.root(), "a", fallback), "value");
    }

    void subElementFloat_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<double>("value");
        QTest::newRow("decimal") << QByteArray("<r><a>1.5</a></r>") << 1.5;
        QTest::newRow("exponent") << QByteArray("<r><a>-1e3</a></r>") << -1000.0;
        QTest::newRow("leading number") << QByteArray("<r><a>12.25abc</a></r>") << 12.25;
        QTest::newRow("no number gives 0") << QByteArray("<r><a>abc</a></r>") << 0.0;
        QTest::newRow("empty gives the fallback") << QByteArray("<r><a/></r>") << 2.5;
        QTest::newRow("missing gives the fallback") << QByteArray("<r/>") << 2.5;
    }

    void subElementFloat()
    {
        QFETCH(QByteArray, xml);
        Parsed parsed(xml.constData());
        QTEST(getElementSubEleAsFloat(parsed.root(), "a", 2.5f), "value");
    }

    void subElementAttribute_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("attribute") << QByteArray("<r><c k='v'/></r>") << QByteArray("v");
        QTest::newRow("exact name only") << QByteArray("<r><x:c k='v'/></r>") << QByteArray();
        QTest::newRow("missing attribute") << QByteArray("<r><c j='v'/></r>") << QByteArray();
    }

    void subElementAttribute()
    {
        QFETCH(QByteArray, xml);
        Parsed parsed(xml.constData());
        char const *const value = getElementSubEleStringAttribute(parsed.root(), "c", "k");
        QVERIFY(value);
        QTEST(QByteArray(value), "value");
    }

    void nullParents()
    {
        QCOMPARE(getElementSubElement(nullptr, "a"), static_cast<TiXmlElement *>(nullptr));
        QCOMPARE(QByteArray(getElementSubEleStringText(nullptr, "a")), QByteArray());
        QCOMPARE(getElementSubEleStringAsInt(nullptr, "a", 3), 3);
        QCOMPARE(getElementSubEleStringAsBool(nullptr, "a", true), true);
        QCOMPARE(getElementSubEleAsFloat(nullptr, "a", 1.25f), 1.25);
        QCOMPARE(QByteArray(getElementSubEleStringAttribute(nullptr, "a", "b")), QByteArray());
        StringMap values;
        readXMLFieldsToStringMap(nullptr, values);
        QVERIFY(values.empty());
    }

    void fieldsToStringMap_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("values");
        QTest::newRow("element without name skipped")
            << QByteArray("<m><f n='a'>1</f><f>2</f><f n='c'>3</f></m>") << "a=1;c=3;old=kept";
        QTest::newRow("later value replaces") << QByteArray("<m><f n='a'>1</f><f n='a'>2</f></m>") << "a=2;old=kept";
        QTest::newRow("replaces an existing entry") << QByteArray("<m><f n='old'>new</f></m>") << "old=new";
        QTest::newRow("siblings of any name after the first f")
            << QByteArray("<m><g n='before'>0</g><f n='a'>1</f><g n='b'>2</g></m>") << "a=1;b=2;old=kept";
        QTest::newRow("no f child") << QByteArray("<m><g n='a'>1</g></m>") << "old=kept";
        QTest::newRow("UTF-8 text and empty text")
            << QByteArray("<m><f n='a'>caf\xc3\xa9</f><f n='e'/></m>") << QString::fromUtf8("a=caf\xc3\xa9;e=;old=kept");
    }

    void fieldsToStringMap()
    {
        QFETCH(QByteArray, xml);
        Parsed parsed(xml.constData());
        StringMap values { { "old", CString("kept") } };
        readXMLFieldsToStringMap(parsed.root(), values);
        QTEST(describe(values), "values");
    }

    void filePartsIntoMap_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("parts");
        QTest::newRow("parts by name")
            << QByteArray("<t><filepart name='a'>A</filepart><other name='o'>O</other><filepart name='b'>B</filepart></t>")
            << "a=A;b=B";
        QTest::newRow("first part found by suffix")
            << QByteArray("<t><x:filepart name='p'>P</x:filepart><filepart name='q'>Q</filepart></t>") << "p=P;q=Q";
        QTest::newRow("markup kept in CDATA")
            << QByteArray("<t><filepart name='c'><![CDATA[<b>$$(key)</b>]]></filepart></t>") << "c=<b>$$(key)</b>";
        QTest::newRow("part without name skipped")
            << QByteArray("<t><filepart>X</filepart><filepart name='y'>Y</filepart></t>") << "y=Y";
        QTest::newRow("does not parse") << QByteArray("<t><filepart name='a'>A</t>") << "";
        QTest::newRow("empty text") << QByteArray() << "";
    }

    void filePartsIntoMap()
    {
        QFETCH(QByteArray, xml);
        StringMap parts;
        parseXMLFilePartIntoMap(xml.toStdString(), parts);
        QTEST(describe(parts), "parts");
    }

    void xmlUtil()
    {
        QCOMPARE(QString(XmlUtil::xmlTagString("t", CString("a&b"))), QStringLiteral("<t>a&#38;b</t>"));
        QCOMPARE(QString(XmlUtil::xmlTagString("t", "\xe9<")), QStringLiteral("<t>\u00e9&#60;</t>"));
        QCOMPARE(QString(XmlUtil::xmlTagString("t", static_cast<char const *>(nullptr))), QStringLiteral("<t></t>"));
        QCOMPARE(QString(XmlUtil::xmlTagString("t", CString("%1%2"))), QStringLiteral("<t>%1%2</t>"));
        QCOMPARE(QString(XmlUtil::xmlTagStringIfNotEmpty("t", CString())), QString());
        QCOMPARE(QString(XmlUtil::xmlTagStringIfNotEmpty("t", CString(" "))), QStringLiteral("<t> </t>"));
        QCOMPARE(QString(XmlUtil::xmlTagFill("t", CString("<x/>&"))), QStringLiteral("<t><x/>&</t>"));
    }
};


QTEST_GUILESS_MAIN(tst_XmlReader)
#include "tst_xmlreader.moc"
