#include <LibControl/common/xmlwriter.h>

#include <QTest>

#include <cstdio>
#include <functional>
#include <limits>
#include <memory>

namespace {

using FileWriter = std::function<void(FILE *)>;
using StringWriter = std::function<void(CString &)>;

QByteArray writtenToFile(FileWriter const &write)
{
    std::unique_ptr<FILE, int (*)(FILE *)> file(std::tmpfile(), &std::fclose);
    if (!file)
        return "tmpfile failed";
    write(file.get());
    std::fflush(file.get());
    std::rewind(file.get());
    QByteArray bytes;
    char chunk[256];
    size_t read = 0;
    while ((read = std::fread(chunk, 1, sizeof chunk, file.get())) > 0)
        bytes.append(chunk, int(read));
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(FileWriter)
Q_DECLARE_METATYPE(StringWriter)

class tst_XmlWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertToXMLString_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<int>("flags");
        QTest::addColumn<QString>("expected");
        QString const specials = QStringLiteral("\"'&<>");
        QTest::newRow("five characters in order") << specials << 0 << 4 << "&#34;&#39;&#38;&#60;&#62;";
        QTest::newRow("flag 8 escapes too") << specials << 0 << 8 << "&#34;&#39;&#38;&#60;&#62;";
        QTest::newRow("flags 0 return the text") << specials << 0 << 0 << specials;
        QTest::newRow("flags without 4 or 8 return the text") << specials << 0 << 3 << specials;
        QTest::newRow("flags 0 do not cut") << "abcdef" << 2 << 0 << "abcdef";
        QTest::newRow("limit counts source characters") << "&&&&&" << 3 << 4 << "&#38;&#38;&#38;";
        QTest::newRow("limit above the length") << "a<b" << 10 << 4 << "a&#60;b";
        QTest::newRow("negative limit") << "abc" << -1 << 4 << "";
        QTest::newRow("empty text") << "" << 0 << 4 << "";
        QTest::newRow("controls and non-ASCII kept") << "a\tb\n\u00e9\u20ac" << 0 << 4 << "a\tb\n\u00e9\u20ac";
        QTest::newRow("existing references escaped again") << "&#38;" << 0 << 4 << "&#38;#38;";
    }

    void convertToXMLString()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLength);
        QFETCH(int, flags);
        QTEST(QString(::convertToXMLString(CString(text), maxLength, flags)), "expected");
    }

    void convertShortForms()
    {
        CString const text("a&b<c");
        QCOMPARE(QString(::convertToXMLString(text)), QStringLiteral("a&#38;b&#60;c"));
        QCOMPARE(QString(::convertToXMLString(text, 2)), QStringLiteral("a&#38;"));
        QCOMPARE(QString(text.toXmlString()), QStringLiteral("a&#38;b&#60;c"));
    }

    void stringWriters_data()
    {
        QTest::addColumn<StringWriter>("write");
        QTest::addColumn<QString>("expected");
        QTest::newRow("open tag") << StringWriter([](CString &o) { writeXMLOpenTagString(o, "a"); }) << "<a>\n";
        QTest::newRow("close tag") << StringWriter([](CString &o) { writeXMLCloseTagString(o, "a"); }) << "</a>\n";
        QTest::newRow("escaped value")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString("a&b")); }) << "<t>a&#38;b</t>\n";
        QTest::newRow("blank value appends nothing")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString("   ")); }) << "";
        QTest::newRow("empty value appends nothing")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString()); }) << "";
        QTest::newRow("surrounding spaces kept")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString(" x ")); }) << "<t> x </t>\n";
        QTest::newRow("cut by the limit")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString("abcdef"), 3); }) << "<t>abc</t>\n";
        QTest::newRow("flags 0 not escaped")
            << StringWriter([](CString &o) { writeXMLString(o, "t", CString("a&b"), 0, 0); }) << "<t>a&b</t>\n";
        QTest::newRow("integer") << StringWriter([](CString &o) { writeXMLInteger(o, "n", 7); }) << "<n>7</n>\n";
        QTest::newRow("integer zero-padded") << StringWriter([](CString &o) { writeXMLInteger(o, "n", 7, 3); })
                                             << "<n>007</n>\n";
        QTest::newRow("integer wider than width") << StringWriter([](CString &o) { writeXMLInteger(o, "n", 1234, 2); })
                                                  << "<n>1234</n>\n";
        QTest::newRow("long") << StringWriter([](CString &o) { writeXMLForLong(o, "n", -12L, false); })
                              << "<n>-12</n>\n";
        QTest::newRow("long long") << StringWriter([](CString &o) { writeXMLForLong64(o, "n", 1LL << 40, true); })
                                   << "<n>1099511627776</n>\n";
        QTest::newRow("double half rounds up") << StringWriter([](CString &o) { writeXMLForLong(o, "n", 2.5, false); })
                                               << "<n>3</n>\n";
        QTest::newRow("negative half rounds away")
            << StringWriter([](CString &o) { writeXMLForLong(o, "n", -2.5, false); }) << "<n>-3</n>\n";
        QTest::newRow("false written") << StringWriter([](CString &o) { writeXMLForBool(o, "b", false, false); })
                                       << "<b>0</b>\n";
        QTest::newRow("false only when true") << StringWriter([](CString &o) { writeXMLForBool(o, "b", false, true); })
                                              << "";
        QTest::newRow("true only when true") << StringWriter([](CString &o) { writeXMLForBool(o, "b", true, true); })
                                             << "<b>1</b>\n";
    }

    void stringWriters()
    {
        QFETCH(StringWriter, write);
        QFETCH(QString, expected);
        CString out("kept\n");
        write(out);
        QCOMPARE(QString(out), QStringLiteral("kept\n") + expected);
    }

    void fileWriters_data()
    {
        QTest::addColumn<FileWriter>("write");
        QTest::addColumn<QByteArray>("expected");
        double const nan = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("open tag") << FileWriter([](FILE *f) { xmlWriteOpenTag(f, "a"); }) << QByteArray("<a>\n");
        QTest::newRow("close tag") << FileWriter([](FILE *f) { xmlWriteCloseTag(f, "a"); }) << QByteArray("</a>\n");
        QTest::newRow("escaped") << FileWriter([](FILE *f) { xmlWriteTag(f, "t", "a&b"); })
                                 << QByteArray("<t>a&#38;b</t>\n");
        QTest::newRow("Latin-1 input written as UTF-8") << FileWriter([](FILE *f) { xmlWriteTag(f, "t", "\xe9"); })
                                                        << QByteArray("<t>\xc3\xa9</t>\n");
        QTest::newRow("text value as UTF-8")
            << FileWriter([](FILE *f) { xmlWriteTag(f, "t", CString(QStringLiteral("\u00e9<"))); })
            << QByteArray("<t>\xc3\xa9&#60;</t>\n");
        QTest::newRow("empty value still written") << FileWriter([](FILE *f) { xmlWriteTag(f, "t", ""); })
                                                   << QByteArray("<t></t>\n");
        QTest::newRow("if not empty, blank") << FileWriter([](FILE *f) { xmlWriteTagIfNotEmpty(f, "t", " \t "); })
                                             << QByteArray();
        QTest::newRow("if not empty, trimmed") << FileWriter([](FILE *f) { xmlWriteTagIfNotEmpty(f, "t", " x&y ") ; })
                                               << QByteArray("<t>x&#38;y</t>\n");
        // Kept byte-identical with existing files: U+00E9 comes out as C3 83 C2 A9.
        QTest::newRow("if not empty encodes twice")
            << FileWriter([](FILE *f) { xmlWriteTagIfNotEmpty(f, "t", CString(QStringLiteral("\u00e9"))); })
            << QByteArray("<t>\xc3\x83\xc2\xa9</t>\n");
        QTest::newRow("if not empty, Latin-1 input encodes twice")
            << FileWriter([](FILE *f) { xmlWriteTagIfNotEmpty(f, "t", "\xe9"); }) << QByteArray("<t>\xc3\x83\xc2\xa9</t>\n");
        QTest::newRow("long of -2.5") << FileWriter([](FILE *f) { xmlWriteTagForLong(f, "n", -2.5); })
                                      << QByteArray("<n>-3</n>\n");
        QTest::newRow("long of 2.4999") << FileWriter([](FILE *f) { xmlWriteTagForLong(f, "n", 2.4999); })
                                        << QByteArray("<n>2</n>\n");
        QTest::newRow("long of -0.4") << FileWriter([](FILE *f) { xmlWriteTagForLong(f, "n", -0.4); })
                                      << QByteArray("<n>0</n>\n");
        QTest::newRow("long of NaN") << FileWriter([nan](FILE *f) { xmlWriteTagForLong(f, "n", nan); })
                                     << QByteArray("<n>0</n>\n");
        QTest::newRow("long of a huge amount saturates") << FileWriter([](FILE *f) { xmlWriteTagForLong(f, "n", 1e300); })
                                                         << QByteArray("<n>9223372036854775807</n>\n");
        QTest::newRow("bool false") << FileWriter([](FILE *f) { xmlWriteTagForBool(f, "b", false, false); })
                                    << QByteArray("<b>0</b>\n");
        QTest::newRow("bool false only when true") << FileWriter([](FILE *f) { xmlWriteTagForBool(f, "b", false, true); })
                                                   << QByteArray();
        QTest::newRow("bool true") << FileWriter([](FILE *f) { xmlWriteTagForBool(f, "b", true, true); })
                                   << QByteArray("<b>1</b>\n");
    }

    void fileWriters()
    {
        QFETCH(FileWriter, write);
        QTEST(writtenToFile(write), "expected");
    }

    void nullFileWritesNothing()
    {
        xmlWriteOpenTag(nullptr, "a");
        xmlWriteCloseTag(nullptr, "a");
        xmlWriteTag(nullptr, "a", "x");
        xmlWriteTag(nullptr, "a", CString("x"));
        xmlWriteTagIfNotEmpty(nullptr, "a", "x");
        xmlWriteTagForLong(nullptr, "a", 1.0);
        xmlWriteTagForBool(nullptr, "a", true, false);
    }
};


QTEST_GUILESS_MAIN(tst_XmlWriter)
#include "tst_xmlwriter.moc"
