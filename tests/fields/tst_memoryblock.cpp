#include "fieldarchive.h"

#include <LibControl/fields/barcodeitem.h>
#include <LibControl/fields/memoryblock.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>

namespace {

enum Layout { ReturnLayout, ContentLayout, T1013Layout, BarcodeLayout, EncryptedReturnLayout };

void fill(CMemoryBlock &block, QByteArray const &bytes)
{
    block.Append(bytes.constData(), bytes.size());
}

// A device that hides its length, like a pipe or a socket.
class SequentialDevice : public QIODevice
{
public:
    explicit SequentialDevice(QByteArray const &bytes) : m_bytes(bytes) { open(QIODevice::ReadOnly); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        qint64 const n = qMin(maxSize, qint64(m_bytes.size()) - m_offset);
        memcpy(data, m_bytes.constData() + m_offset, size_t(n));
        m_offset += n;
        return n;
    }
    qint64 writeData(char const *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_offset = 0;
};

} // namespace

Q_DECLARE_METATYPE(Layout)

class tst_MemoryBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void growth_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<int>("capacity");
        QTest::newRow("nothing") << 0 << 819600;
        QTest::newRow("exactly the capacity") << 819600 << 819600;
        QTest::newRow("capacity plus one uses the spare byte") << 819601 << 819600;
        QTest::newRow("capacity plus two grows one step") << 819602 << 1639200;
        QTest::newRow("two steps plus two grows two steps") << 1639202 << 2458800;
    }

    void growth()
    {
        QFETCH(int, bytes);
        QByteArray content(bytes, 'a');
        if (bytes > 0) {
            content[0] = 'F';
            content[bytes - 1] = 'L';
        }
        CMemoryBlock block;
        // In two parts, so a growth has to keep what was there.
        block.Append(content.constData(), bytes / 2);
        block.Append(content.constData() + bytes / 2, bytes - bytes / 2);
        QTEST(block.capacity(), "capacity");
        QCOMPARE(block.GetContentSize(), bytes);
        QCOMPARE(block.content(), content);
    }

    void t1013Records_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("recordNo"); // 0: a single field
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("text") << 5 << 0 << QVariant(QStringLiteral("ABC")) << QByteArray("  5ABC*");
        QTest::newRow("integer") << 7 << 0 << QVariant(0) << QByteArray("  70*");
        QTest::newRow("four-digit code not cut") << 1234 << 0 << QVariant(QStringLiteral("A")) << QByteArray("1234A*");
        QTest::newRow("non-ASCII text as UTF-8") << 5 << 0 << QVariant(QStringLiteral("\u00e9")) << QByteArray("  5\xc3\xa9*");
        QTest::newRow("record with integer") << 12 << 3 << QVariant(450) << QByteArray(" 12450+3*");
        QTest::newRow("record with text") << 105 << 2 << QVariant(QStringLiteral("X")) << QByteArray("105X+2*");
        QTest::newRow("record with placeholder-like text") << 1 << 9 << QVariant(QStringLiteral("%1")) << QByteArray("  1%1+9*");
    }

    void t1013Records()
    {
        QFETCH(int, code);
        QFETCH(int, recordNo);
        QFETCH(QVariant, value);
        CMemoryBlock block;
        CString text(value.toString());
        bool const isInt = value.type() == QVariant::Int;
        if (recordNo == 0 && isInt)
            block.AppendT1013Field(code, value.toInt());
        else if (recordNo == 0)
            block.AppendT1013Field(code, text);
        else if (isInt)
            block.AppendT1013FieldRecord(code, recordNo, value.toInt());
        else
            block.AppendT1013FieldRecord(code, recordNo, text);
        QTEST(block.content(), "expected");
    }

    void t1013RecordsFollowEachOther()
    {
        CMemoryBlock block;
        block.AppendT1013Field(1, "\xe9"); // Latin-1 input
        block.AppendT1013Field(2, static_cast<char const *>(nullptr));
        block.AppendT1013Field(3, 9);
        QCOMPARE(block.content(), QByteArray("  1\xc3\xa9*  2*  39*"));
    }

    void writeLayouts_data()
    {
        QTest::addColumn<Layout>("layout");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("expectedHex");
        QByteArray const ab("AB");
        QTest::newRow("return") << ReturnLayout << ab << QByteArray("020000004142");
        QTest::newRow("return, empty") << ReturnLayout << QByteArray() << QByteArray("00000000");
        QTest::newRow("content only") << ContentLayout << ab << QByteArray("4142");
        QTest::newRow("t1013") << T1013Layout << ab << QByteArray("020000004142");
        QTest::newRow("t1013, empty") << T1013Layout << QByteArray() << QByteArray("00000000");
        QTest::newRow("barcode counts its prefix") << BarcodeLayout << ab << QByteArray("06000000" "30303036" "4142");
        QTest::newRow("barcode, empty") << BarcodeLayout << QByteArray() << QByteArray("04000000" "30303034");
        QTest::newRow("barcode of 96 bytes")
            << BarcodeLayout << QByteArray(96, '\x01') << QByteArray("64000000" "30313030") + QByteArray(96, '\x01').toHex();
        QTest::newRow("barcode at the limit")
            << BarcodeLayout << QByteArray(9995, 'z') << QByteArray("0f270000" "39393939") + QByteArray(9995, 'z').toHex();
        // 'A' ^ 'k' = 0x2a, 'B' ^ 'e' = 0x27
        QTest::newRow("encrypted return") << EncryptedReturnLayout << QByteArray("ABA") << QByteArray("030000002a272a");
    }

    void writeLayouts()
    {
        QFETCH(Layout, layout);
        QFETCH(QByteArray, content);
        CT1EncryptedMemoryBlock encrypted(CString("ke"));
        CMemoryBlock plain;
        CMemoryBlock &block = layout == EncryptedReturnLayout ? encrypted : plain;
        fill(block, content);
        QByteArray const bytes = archived([&](MyDataStream &ar) {
            switch (layout) {
            case ReturnLayout:
            case EncryptedReturnLayout: block.WriteToReturnArchive(ar); break;
            case ContentLayout: block.WriteContentToArchive(ar); break;
            case T1013Layout: block.WriteToT1013Archive(ar); break;
            case BarcodeLayout: QVERIFY(block.WriteToT1BarcodeArchive(ar)); break;
            }
        });
        QTEST(bytes.toHex(), "expectedHex");
    }

    void barcodeRefusesOversizedBlock()
    {
        CMemoryBlock block;
        fill(block, QByteArray(9996, 'z'));
        bool written = true;
        QByteArray const bytes = archived([&](MyDataStream &ar) { written = block.WriteToT1BarcodeArchive(ar); });
        QCOMPARE(written, false);
        QCOMPARE(bytes, QByteArray());
    }

    void encryptedBlock()
    {
        CT1EncryptedMemoryBlock block(CString("ke"));
        fill(block, "ABA");
        QByteArray bytes = archived([&](MyDataStream &ar) { block.WriteToReturnArchive(ar); });
        // Left scrambled in memory after the write.
        QCOMPARE(block.content(), QByteArray("\x2a\x27\x2a"));

        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        MyDataStream ar(&buffer);
        CT1EncryptedMemoryBlock loaded(CString("ke"));
        QCOMPARE(loaded.ReadFromReturnArchive(ar), 3);
        QCOMPARE(loaded.content(), QByteArray("ABA"));
    }

    void readFromReturnArchive_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("result");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("capacity");
        QTest::addColumn<int>("status");
        int const ok = QDataStream::Ok;
        int const pastEnd = QDataStream::ReadPastEnd;
        QTest::newRow("two bytes") << QByteArray::fromHex("020000004142") << 2 << QByteArray("AB") << 819600 << ok;
        QTest::newRow("zero count") << QByteArray::fromHex("0000000041") << 0 << QByteArray() << 819600 << ok;
        QTest::newRow("negative count") << QByteArray::fromHex("ffffffff41") << 0 << QByteArray() << 819600 << ok;
        QTest::newRow("no count") << QByteArray::fromHex("4142") << 0 << QByteArray() << 819600 << pastEnd;
        QTest::newRow("count beyond data") << QByteArray::fromHex("100000004142") << 2 << QByteArray("AB") << 819600 << pastEnd;
        QTest::newRow("huge count allocates nothing")
            << QByteArray::fromHex("ffffff7f41") << 1 << QByteArray("A") << 819600 << pastEnd;
        QByteArray const big(819601, 'b');
        QTest::newRow("above capacity gets exact capacity")
            << QByteArray::fromHex("91810c00") + big << 819601 << big << 819601 << ok;
        QTest::newRow("huge count, a bit more than the capacity there")
            << QByteArray::fromHex("ffffff7f") + big << 819601 << big << 819601 << pastEnd;
    }

    void readFromReturnArchive()
    {
        QFETCH(QByteArray, input);
        QBuffer buffer(&input);
        buffer.open(QIODevice::ReadOnly);
        MyDataStream ar(&buffer);
        CMemoryBlock block;
        fill(block, "previous");
        QTEST(block.ReadFromReturnArchive(ar), "result");
        QTEST(block.content(), "content");
        QTEST(block.capacity(), "capacity");
        QTEST(int(ar.status()), "status");
    }

    void readFromSequentialDevice()
    {
        QByteArray const big(900000, 's');
        SequentialDevice device(QByteArray::fromHex("ffffff7f") + big);
        MyDataStream ar(&device);
        CMemoryBlock block;
        QCOMPARE(block.ReadFromReturnArchive(ar), big.size());
        QCOMPARE(block.content(), big);
        QCOMPARE(block.capacity(), big.size());
        QCOMPARE(ar.status(), QDataStream::ReadPastEnd);
    }

    void getContentCount_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("count");
        QTest::newRow("from the start") << 0 << 3 << 3;
        QTest::newRow("offset does not move the source") << 2 << 3 << 3;
        QTest::newRow("offset near the capacity shortens") << 819598 << 5 << 2;
        QTest::newRow("offset at the capacity") << 819600 << 1 << 0;
        QTest::newRow("negative offset never passes the array") << -10 << 819605 << 819600;
    }

    void getContentCount()
    {
        QFETCH(int, offset);
        QFETCH(int, n);
        QFETCH(int, count);
        CMemoryBlock block;
        fill(block, "ABCDE");
        QByteArray dst(qMax(n, 8), '-');
        QCOMPARE(block.GetContent(offset, dst.data(), n), count);
        QCOMPARE(dst.left(qMin(count, 5)), QByteArray("ABCDE").left(qMin(count, 5)));
    }

    void getContentText()
    {
        CMemoryBlock block;
        CString out("stale");
        QCOMPARE(block.GetContent(out), 0);
        QCOMPARE(QString(out), QString());
        fill(block, "caf\xc3\xa9");
        QCOMPARE(block.GetContent(out), 5);
        QCOMPARE(QString(out), QStringLiteral("caf\u00e9"));
    }

    void appendEnding0()
    {
        CMemoryBlock block;
        fill(block, "ABC");
        block.Init();
        QCOMPARE(block.GetContentSize(), 0);
        fill(block, "AB");
        block.AppendEnding0();
        QCOMPARE(block.GetContentSize(), 2);
        char bytes[4] = { 'x', 'x', 'x', 'x' };
        block.GetContent(0, bytes, 4);
        QCOMPARE(QByteArray(bytes, 4), QByteArray("AB\0\0", 4));
    }

    void xorWith()
    {
        CMemoryBlock block;
        fill(block, "ABCD");
        unsigned char const key[] = { 1, 2, 3 };
        block.XORWith(key, 0);
        QCOMPARE(block.content(), QByteArray("ABCD"));
        block.XORWith(key, 3);
        QCOMPARE(block.content(), QByteArray("\x40\x40\x40\x45"));
    }

    void searchString_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("needle");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("matchOffset"); // -1: not found
        QTest::addColumn<int>("position");
        QTest::newRow("match in first segment") << QByteArray("xxAB") << QByteArray("AB") << 0 << 2 << 4;
        QTest::newRow("start position added again") << QByteArray("xxAB") << QByteArray("AB") << 1 << 2 << 5;
        QTest::newRow("second segment adds its offset")
            << QByteArray("AB\0xxAB", 7) << QByteArray("AB") << 3 << 5 << 10;
        QTest::newRow("short segment skipped") << QByteArray("a\0xAB", 5) << QByteArray("AB") << 0 << 3 << 7;
        QTest::newRow("segments without match skipped")
            << QByteArray("ab\0cd\0ABx", 9) << QByteArray("AB") << 0 << 6 << 14;
        QTest::newRow("match ending the content not reached")
            << QByteArray("ab\0cd\0AB", 8) << QByteArray("AB") << 0 << -1 << 6;
        QTest::newRow("not found") << QByteArray("xxxx") << QByteArray("AB") << 0 << -1 << 5;
        QTest::newRow("content too short") << QByteArray("AB") << QByteArray("AB") << 0 << -1 << 0;
        QTest::newRow("negative start") << QByteArray("xxAB") << QByteArray("AB") << -1 << -1 << -1;
    }

    void searchString()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, needle);
        QFETCH(int, start);
        QFETCH(int, matchOffset);
        CMemoryBlock block;
        fill(block, content);
        int position = start;
        char const *match = block.SearchString(needle.constData(), position, false);
        QCOMPARE(match ? int(match - block.constData()) : -1, matchOffset);
        QTEST(position, "position");
    }

    void loadFile()
    {
        QTemporaryDir dir;
        QString const path = dir.filePath(QStringLiteral("text.txt"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("h\xc3\xa9llo\n");
        file.close();

        CMemoryBlock block;
        fill(block, "X");
        QCOMPARE(block.LoadFile(QFile::encodeName(path).constData()), 0);
        QCOMPARE(block.content(), QByteArray("Xh\xc3\xa9llo\n"));

        block.Init();
        QCOMPARE(block.LoadFile(":/tst_memoryblock/resource.txt"), 0);
        QCOMPARE(block.content(), QByteArray("resource line\n"));

        QFile empty(dir.filePath(QStringLiteral("empty.txt")));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        QCOMPARE(block.LoadFile(QFile::encodeName(empty.fileName()).constData()), 0);
        QCOMPARE(block.content(), QByteArray("resource line\n"));
    }

    void loadFileFailures()
    {
        QTemporaryDir dir;
        CMemoryBlock block;
        fill(block, "kept");
        QCOMPARE(block.LoadFile(QFile::encodeName(dir.filePath(QStringLiteral("missing.txt"))).constData()), 107);
        QCOMPARE(block.LoadFile(":/tst_memoryblock/missing.txt"), 107);
        QCOMPARE(block.LoadFile(nullptr), 107);
        QCOMPARE(block.content(), QByteArray("kept"));
    }

    void dumpToLogfile()
    {
        CMemoryBlock block;
        fill(block, "AB");
        block.dumpToLogfile(nullptr);
        std::unique_ptr<FILE, int (*)(FILE *)> file(std::tmpfile(), &std::fclose);
        QVERIFY(file);
        block.dumpToLogfile(file.get());
        std::rewind(file.get());
        char text[64] = {};
        size_t const read = std::fread(text, 1, sizeof text, file.get());
        QCOMPARE(QByteArray(text, int(read)), QByteArray("\n--begin--\nAB\n--end--\n"));
    }

    void barcodeItemSetters_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QByteArray>("initial");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QByteArray>("argument"); // a null array passes a null pointer
        QTest::addColumn<QByteArray>("expected");
        QByteArray const none;
        QTest::newRow("initial cut to width") << 5 << QByteArray("ABCDEFG") << "none" << none << QByteArray("ABCDE");
        QTest::newRow("no initial gives zeros") << 3 << none << "none" << none << QByteArray(3, '\0');
        QTest::newRow("all chars") << 4 << QByteArray("ab") << "all" << QByteArray("#") << QByteArray("####");
        QTest::newRow("set value keeps the rest") << 5 << QByteArray("ZZZZZ") << "set" << QByteArray("ab") << QByteArray("abZZZ");
        QTest::newRow("set value cut") << 3 << QByteArray("ZZZ") << "set" << QByteArray("abcdef") << QByteArray("abc");
        QTest::newRow("left padding") << 5 << none << "left" << QByteArray("42") << QByteArray("00042");
        QTest::newRow("left padding exact") << 2 << none << "left" << QByteArray("42") << QByteArray("42");
        QTest::newRow("left padding cuts the end") << 5 << none << "left" << QByteArray("1234567") << QByteArray("12345");
        QTest::newRow("left padding of null") << 5 << QByteArray("ABCDE") << "left" << none << QByteArray("00000");
        QTest::newRow("right padding") << 5 << none << "right" << QByteArray("42") << QByteArray("42   ");
        QTest::newRow("right padding cuts the end") << 5 << none << "right" << QByteArray("1234567") << QByteArray("12345");
        QTest::newRow("right padding of null") << 3 << QByteArray("ABC") << "right" << none << QByteArray("   ");
        QTest::newRow("text form uses UTF-8") << 4 << none << "left text" << QByteArray("\xc3\xa9") << QByteArray("00\xc3\xa9");
    }

    void barcodeItemSetters()
    {
        QFETCH(int, width);
        QFETCH(QByteArray, initial);
        QFETCH(QString, operation);
        QFETCH(QByteArray, argument);
        char const *arg = argument.isNull() ? nullptr : argument.constData();
        char const pad = operation.startsWith(QLatin1String("left")) ? '0' : ' ';
        FixedBarcodeItem item(nullptr, width, initial.isNull() ? nullptr : initial.constData());
        if (operation == QLatin1String("all"))
            item.SetAllCharsTo(argument.at(0));
        else if (operation == QLatin1String("set"))
            item.SetValue(arg);
        else if (operation == QLatin1String("left"))
            item.SetValueLeftPadding(arg, pad);
        else if (operation == QLatin1String("right"))
            item.SetValueRightPadding(arg, pad);
        else if (operation == QLatin1String("left text"))
            item.SetValueLeftPadding(CString(QString::fromUtf8(argument)), pad);
        QTEST(QByteArray(item.value(), width), "expected");
        QCOMPARE(item.value()[width], '\0');
    }

    void barcodeListOutput()
    {
        List_FixedBarcodeItem list;
        CMemoryBlock block;
        QCOMPARE(list.OutputToMemoryBlock(block), 0);
        FixedBarcodeItem first(&list, 3, "abc");
        FixedBarcodeItem empty(&list, 0, "ignored");
        FixedBarcodeItem last(&list, 2, "de");
        QCOMPARE(list.size(), 3);
        QCOMPARE(empty.value(), static_cast<char const *>(nullptr));
        empty.SetAllCharsTo('x');
        QCOMPARE(list.OutputToMemoryBlock(block), 5);
        QCOMPARE(block.content(), QByteArray("abcde"));
    }
};


QTEST_GUILESS_MAIN(tst_MemoryBlock)
#include "tst_memoryblock.moc"
