// Loads arbitrary bytes as a memory block in every reading layout, then
// writes it back and searches it.

#include <LibControl/fields/datastream.h>
#include <LibControl/fields/memoryblock.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>

namespace {

void exercise(CMemoryBlock &block, QByteArray &input)
{
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream in(&buffer);
    while (!in.atEnd() && in.status() == QDataStream::Ok)
        block.ReadFromReturnArchive(in);

    QByteArray output;
    QBuffer sink(&output);
    sink.open(QIODevice::WriteOnly);
    MyDataStream out(&sink);
    block.WriteToReturnArchive(out);
    block.WriteToT1013Archive(out);
    block.WriteToT1BarcodeArchive(out);

    char head[64];
    block.GetContent(0, head, int(sizeof head));
    CString text;
    block.GetContent(text);
    int position = 0;
    while (block.SearchString("ab", position))
        ;
    block.AppendEnding0();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    QByteArray input(reinterpret_cast<char const *>(data), int(size));
    CMemoryBlock plain;
    exercise(plain, input);
    CT1EncryptedMemoryBlock encrypted(CString("key"));
    exercise(encrypted, input);
    return 0;
}
