// Loads a dependant list from arbitrary bytes. The first byte picks the
// archive version, one per record layout; the rest is the stream.

#include <LibControl/fields/datastream.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    if (size < 1)
        return 0;
    static int const versions[] = {0x10211, 0x10200, 0x100b0};
    int const version = versions[data[0] % 3];
    QByteArray bytes(reinterpret_cast<char const *>(data) + 1, int(size - 1));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);

    DependantInfoStruct list;
    list.serilize(version, ar);

    // Whatever was loaded must be safe to use.
    CString text;
    for (int i = 0; i < list.m_nCount; ++i) {
        list.m_pData[size_t(i)].MakeComboBoxString(text);
        list.m_pData[size_t(i)].getName(text);
    }
    int idx = int(size);
    list.ValidateAndCorrectDepIndex(idx);
    list.GetDepOtherThanChildrenNumberForLine305();
    list.GetMonthsDepChildrenAtAge_Infirm(10);

    QByteArray stored;
    QBuffer out(&stored);
    out.open(QIODevice::WriteOnly);
    MyDataStream outAr(&out);
    list.serilize(version, outAr);
    DependantInfoStruct copy;
    copy = list;
    static_cast<void>(copy == list);
    return 0;
}
