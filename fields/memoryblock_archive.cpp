#include <LibControl/fields/datastream.h>
#include <LibControl/fields/memoryblock.h>

#include <QIODevice>
#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(lcMemoryBlockArchive, "libcontrol.fields", QtInfoMsg)

constexpr int ReadChunk = 64 * 1024;

// Reads up to `count` bytes from a device whose length is unknown, growing
// only by what actually arrives, so a corrupt count cannot force a huge
// allocation.
QByteArray readSequential(MyDataStream &ar, int count)
{
    QByteArray bytes;
    while (bytes.size() < count) {
        int const want = std::min(ReadChunk, count - bytes.size());
        int const offset = bytes.size();
        bytes.resize(offset + want);
        int const got = ar.readRawData(bytes.data() + offset, want);
        bytes.resize(offset + std::max(got, 0));
        if (got < want)
            break;
    }
    return bytes;
}

} // namespace

int CMemoryBlock::ReadFromReturnArchive(MyDataStream &ar)
{
    qint32 count = 0;
    ar >> count;
    m_size = 0;
    if (ar.status() != QDataStream::Ok || count < 1 || !ar.device())
        return 0;
    QIODevice *const device = ar.device();
    if (device->isSequential()) {
        QByteArray const bytes = readSequential(ar, count);
        if (bytes.size() > m_capacity && !replaceArray(bytes.size()))
            return 0;
        std::copy(bytes.cbegin(), bytes.cend(), m_data.get());
        if (bytes.size() < count)
            ar.setStatus(QDataStream::ReadPastEnd);
        m_size = bytes.size();
        return m_size;
    }
    // Short of bytes, the stream reports ReadPastEnd; the content is what was read.
    int const readable = int(std::min<qint64>(count, std::max<qint64>(device->bytesAvailable(), 0)));
    if (readable > m_capacity && !replaceArray(readable))
        return 0;
    if (readable < count)
        qCInfo(lcMemoryBlockArchive) << "memory block claims" << count << "bytes, only" << readable << "left";
    int const got = readable > 0 ? ar.readRawData(m_data.get(), readable) : 0;
    if (got < count)
        ar.setStatus(QDataStream::ReadPastEnd);
    m_size = std::max(got, 0);
    return m_size;
}

void CMemoryBlock::WriteToReturnArchive(MyDataStream &ar)
{
    ar << qint32(m_size);
    WriteContentToArchive(ar);
}

void CMemoryBlock::WriteContentToArchive(MyDataStream &ar) const
{
    if (m_size >= 1)
        ar.writeRawData(m_data.get(), m_size);
}

void CMemoryBlock::WriteToT1013Archive(MyDataStream &ar) const
{
    ar << qint32(m_size);
    WriteContentToArchive(ar);
}

bool CMemoryBlock::WriteToT1BarcodeArchive(MyDataStream &ar) const
{
    if (m_size > MaxBarcodeContent) {
        qCWarning(lcMemoryBlockArchive) << "barcode block of" << m_size << "bytes refused; the limit is"
                                        << MaxBarcodeContent;
        return false;
    }
    // The length counts its own four-digit prefix.
    int const length = m_size + 4;
    ar << qint32(length);
    QByteArray const digits = QByteArray::number(length).rightJustified(4, '0');
    ar.writeRawData(digits.constData(), digits.size());
    WriteContentToArchive(ar);
    return true;
}

CT1EncryptedMemoryBlock::CT1EncryptedMemoryBlock(CString const &key) : m_key(key.toUtf8()) { }

CT1EncryptedMemoryBlock::~CT1EncryptedMemoryBlock() = default;

void CT1EncryptedMemoryBlock::applyKey()
{
    XORWith(reinterpret_cast<unsigned char const *>(m_key.constData()), m_key.size());
}

int CT1EncryptedMemoryBlock::ReadFromReturnArchive(MyDataStream &ar)
{
    int const read = CMemoryBlock::ReadFromReturnArchive(ar);
    applyKey();
    return read;
}

void CT1EncryptedMemoryBlock::WriteToReturnArchive(MyDataStream &ar)
{
    applyKey();
    CMemoryBlock::WriteToReturnArchive(ar);
}
