#include <LibControl/fields/memoryblock.h>

#include <QFile>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace {

Q_LOGGING_CATEGORY(lcMemoryBlock, "libcontrol.fields", QtInfoMsg)

// The array holds one spare byte beyond the capacity: the size may reach
// capacity + 1 before the block grows.
std::unique_ptr<char[]> allocate(int capacity)
{
    return std::unique_ptr<char[]>(new (std::nothrow) char[size_t(capacity) + 1]());
}

QString t1013Code(int code)
{
    return QString::number(code).rightJustified(3, QLatin1Char(' '));
}

} // namespace

CMemoryBlock::CMemoryBlock() : m_data(allocate(AllocationStep)), m_capacity(m_data ? AllocationStep : 0), m_size(0) { }

CMemoryBlock::~CMemoryBlock() = default;

void CMemoryBlock::Init()
{
    m_size = 0;
}

bool CMemoryBlock::replaceArray(int capacity)
{
    std::unique_ptr<char[]> data = allocate(capacity);
    if (!data) {
        qCWarning(lcMemoryBlock) << "cannot allocate a memory block of" << capacity << "bytes";
        return false;
    }
    if (m_size > 0)
        std::memcpy(data.get(), m_data.get(), size_t(m_size));
    m_data = std::move(data);
    m_capacity = capacity;
    return true;
}

bool CMemoryBlock::reserve(qint64 newSize)
{
    if (m_data && newSize <= qint64(m_capacity) + 1)
        return true;
    qint64 capacity = m_capacity;
    while (capacity < newSize)
        capacity += AllocationStep;
    if (capacity >= std::numeric_limits<int>::max()) {
        qCWarning(lcMemoryBlock) << "memory block would exceed" << std::numeric_limits<int>::max() << "bytes";
        return false;
    }
    return replaceArray(int(capacity));
}

void CMemoryBlock::Append(char const *bytes, int n)
{
    if (!bytes || n < 1 || !reserve(qint64(m_size) + n))
        return;
    std::memcpy(m_data.get() + m_size, bytes, size_t(n));
    m_size += n;
}

void CMemoryBlock::Append(char const *text)
{
    if (text)
        Append(text, int(std::min<size_t>(std::strlen(text), std::numeric_limits<int>::max())));
}

void CMemoryBlock::AppendEnding0()
{
    if (m_data && m_size < m_capacity)
        m_data[m_size] = '\0';
}

void CMemoryBlock::AppendT1013Field(int code, CString &value)
{
    Append(QStringLiteral("%1%2*").arg(t1013Code(code), value).toUtf8().constData());
}

void CMemoryBlock::AppendT1013Field(int code, char const *value)
{
    CString text(value);
    AppendT1013Field(code, text);
}

void CMemoryBlock::AppendT1013Field(int code, int value)
{
    CString text(QString::number(value));
    AppendT1013Field(code, text);
}

void CMemoryBlock::AppendT1013FieldRecord(int code, int recordNo, CString &value)
{
    QString const record = QStringLiteral("%1%2+%3*").arg(t1013Code(code), value, QString::number(recordNo));
    Append(record.toUtf8().constData());
}

void CMemoryBlock::AppendT1013FieldRecord(int code, int recordNo, int value)
{
    CString text(QString::number(value));
    AppendT1013FieldRecord(code, recordNo, text);
}

int CMemoryBlock::GetContentSize() const
{
    return m_size;
}

int CMemoryBlock::GetContent(int offset, char *dst, int n) const
{
    qint64 count = n;
    if (qint64(offset) + n > m_capacity)
        count = qint64(m_capacity) - offset;
    // The source is always the start of the block; never copy past the array.
    count = std::min<qint64>(count, m_capacity);
    if (count < 1 || !dst || !m_data)
        return 0;
    std::memcpy(dst, m_data.get(), size_t(count));
    return int(count);
}

int CMemoryBlock::GetContent(CString &out) const
{
    out = m_size > 0 ? CString(QString::fromLocal8Bit(m_data.get(), m_size)) : CString();
    return m_size;
}

QByteArray CMemoryBlock::content() const
{
    return m_size > 0 ? QByteArray(m_data.get(), m_size) : QByteArray();
}

void CMemoryBlock::XORWith(unsigned char const *key, int keyLength)
{
    if (!key || keyLength < 1)
        return;
    for (int i = 0; i < m_size; ++i)
        m_data[i] = char(m_data[i] ^ key[i % keyLength]);
}

char const *CMemoryBlock::SearchString(char const *needle, int &position, bool) const
{
    if (!m_data || !needle || position < 0)
        return nullptr;
    qint64 const k = qint64(std::strlen(needle));
    qint64 s = position;
    if (m_size <= s + k)
        return nullptr;
    char const *const begin = m_data.get();
    for (;;) {
        char const *const segment = begin + s;
        qint64 const length = qint64(strnlen(segment, size_t(m_size - s)));
        if (length >= k) {
            char const *const end = segment + length;
            char const *const match = std::search(segment, end, needle, needle + k);
            if (match != end || k == 0) {
                // The segment's own offset is added on purpose: callers that
                // search on from this position depend on it.
                position = int(std::min<qint64>((match - begin) + k + s, std::numeric_limits<int>::max()));
                return match;
            }
        }
        s += length + 1;
        position = int(s);
        if (s + k >= m_size)
            return nullptr;
    }
}

int CMemoryBlock::LoadFile(char const *path)
{
    if (!path)
        return LoadFileError;
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return LoadFileError;
    QByteArray const text = QTextStream(&file).readAll().toUtf8();
    if (!text.isEmpty())
        Append(text.constData(), text.size());
    return 0;
}

void CMemoryBlock::dumpToLogfile(FILE *stream) const
{
    if (!stream)
        return;
    std::fputs("\n--begin--\n", stream);
    if (m_size > 0)
        std::fwrite(m_data.get(), 1, size_t(m_size), stream);
    std::fputs("\n--end--\n", stream);
    std::fflush(stream);
}
