// Reads arbitrary bytes as a reserved-area record and reads both texts.

#include <LibControl/fields/datastream.h>
#include <LibControl/fields/reservedarea.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    QByteArray input(reinterpret_cast<char const *>(data), int(size));
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    CReservedArea area;
    area.readFromArchive(ar);
    CString text;
    for (int which = 0; which <= 3; ++which)
        area.getString(which, text);
    area.setString(1, text);
    return 0;
}
