// Loads medical-expense records from arbitrary bytes at the archive version
// held in the first four bytes.

#include <LibControl/fields/datastream.h>
#include <LibControl/worksheets/medexpinfo.h>

#include <QBuffer>

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    if (size < 4)
        return 0;
    quint32 version = 0;
    std::memcpy(&version, data, 4);
    QByteArray bytes(reinterpret_cast<char const *>(data + 4), int(size - 4));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    _MedExpInfoStruct info;
    info.serilize(int(version), ar);
    _MedExpInfoStruct copy;
    copy = info;
    return copy == info ? 0 : 0;
}
