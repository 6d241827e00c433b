#include <LibControl/fields/stringfield.h>

#include <LibControl/common/utilities.h>
#include <LibControl/common/xmlwriter.h>

#include <QByteArray>

#include <cstring>

namespace {

// A corrupt byte count must not make us allocate it up front: the text is
// read in pieces of this size, so memory grows only with bytes that arrive.
constexpr int LengthPrefixedChunk = 64 * 1024;

} // namespace

bool CStringField::p_for_large_size_serialize = false;
unsigned int CStringField::p_for_large_size_serialize_version = 0;
unsigned int CStringField::p_for_large_size_serialize_size = 0;

CStringField::CStringField(char const *text, int size)
    : CStringField(0, text, size, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
{
}

CStringField::CStringField(int lineCode, char const *text, int size, unsigned int versionFrom)
    : CStringField(lineCode, text, size, FIELD_ATTR_NONE, 0, versionFrom)
{
}

CStringField::CStringField(int lineCode, char const *text, int size, ENUMTYPE_FIELD_ATTR attr, int extra,
                           unsigned int versionFrom)
    : CField(lineCode, false, versionFrom, FIELD_VERSION_LAST, attr, extra)
    , m_strValue(text)
    , m_nSize(size)
{
}

CStringField::~CStringField() = default;

CStringField &CStringField::operator=(CStringField const &other)
{
    m_strValue = other.m_strValue;
    return *this;
}

bool CStringField::operator!=(CStringField const &other) const
{
    return m_strValue.simplified() != other.m_strValue.simplified();
}

void CStringField::RemoveBlanks()
{
    m_strValue.Trim();
}

CString CStringField::GetTrimedString() const
{
    return CString(m_strValue.trimmed());
}

bool CStringField::IsEmptyIfRemoveBlank() const
{
    return m_strValue.trimmed().isEmpty();
}

bool CStringField::IsAllZero() const
{
    return IsAllZeroString(m_strValue);
}

void CStringField::removeContinuousSpaces()
{
    removeContinuousSpace(m_strValue);
}

void CStringField::removeCOInAddr()
{
    // The three-character markers go first, so the forms with a colon can
    // no longer match and the colon stays: existing returns depend on it.
    for (char const *marker : {"A/S", "A/S:", "C/O", "C/O:", "c/o", "C/o", "c/O"})
        m_strValue.Replace(marker, "");
}

CStringField::operator std::string() const
{
    return m_strValue.trimmed().toStdString();
}

int CStringField::GetType() const
{
    return 2;
}

void CStringField::Serialize(unsigned int version, MyDataStream &ar)
{
    if (!isArchivedIn(version))
        return;
    bool const prefixed = usesLengthPrefix(version);
    if (ar.IsStoring()) {
        if (prefixed)
            storeLengthPrefixed(ar);
        else
            storeFixedWidth(ar);
    } else if (prefixed) {
        loadLengthPrefixed(ar);
    } else {
        loadFixedWidth(ar);
    }
}

int CStringField::ValidateAndCorrect()
{
    if (m_eAttr & FIELD_ATTR_KEEP_BLANKS)
        return 0;
    m_strValue.Trim();
    removeContinuousSpaces();
    return 0;
}

bool CStringField::canFieldSavedInXML() const
{
    if (static_cast<unsigned int>(m_nSize) >= p_for_large_size_serialize_size)
        return false;
    return CField::canFieldSavedInXML();
}

int CStringField::readFromString(CString const &text)
{
    m_strValue = CString(text.trimmed().left(qMax(0, m_nSize)));
    return 0;
}

int CStringField::toString(CString &out)
{
    m_strValue.Trim();
    out = convertToXMLString(CString(m_strValue.left(qMax(0, m_nSize))));
    return 0;
}

void CStringField::setLargeSizeSerializeOption(unsigned int version, unsigned int size)
{
    p_for_large_size_serialize = true;
    p_for_large_size_serialize_version = version;
    p_for_large_size_serialize_size = size;
}

bool CStringField::usesLengthPrefix(unsigned int version) const
{
    return p_for_large_size_serialize && version >= p_for_large_size_serialize_version
        && static_cast<unsigned int>(m_nSize) >= p_for_large_size_serialize_size;
}

void CStringField::storeFixedWidth(MyDataStream &ar) const
{
    if (m_nSize <= 0)
        return;
    QByteArray const utf8 = m_strValue.toUtf8();
    QByteArray block(m_nSize, '\0');
    std::memcpy(block.data(), utf8.constData(), size_t(qMin(utf8.size(), m_nSize)));
    ar.writeRawData(block.constData(), block.size());
}

void CStringField::loadFixedWidth(MyDataStream &ar)
{
    if (m_nSize <= 0)
        return;
    QByteArray block(m_nSize, '\0');
    if (ar.readRawData(block.data(), m_nSize) != m_nSize) {
        m_strValue = CString();
        return;
    }
    // Latin-1 on purpose: the bytes were written as UTF-8 (see the class notes).
    m_strValue = QString::fromLatin1(block.constData(), int(qstrnlen(block.constData(), uint(m_nSize))));
}

void CStringField::storeLengthPrefixed(MyDataStream &ar) const
{
    QByteArray const utf8 = m_strValue.toUtf8();
    ar << qint32(utf8.size());
    ar.writeRawData(utf8.constData(), utf8.size());
}

void CStringField::loadLengthPrefixed(MyDataStream &ar)
{
    qint32 count = 0;
    ar >> count;
    m_strValue = CString();
    if (ar.status() != QDataStream::Ok || count <= 0)
        return;
    QByteArray bytes;
    while (bytes.size() < count) {
        int const offset = bytes.size();
        int const wanted = qMin(count - offset, LengthPrefixedChunk);
        bytes.resize(offset + wanted);
        if (ar.readRawData(bytes.data() + offset, wanted) != wanted)
            return;
    }
    m_strValue = QString::fromLocal8Bit(bytes);
}

CStringFieldNotused::CStringFieldNotused(int size, unsigned int versionFrom, unsigned int versionTo)
    : CStringField(0, "", size, FIELD_ATTR_NONE, 0, versionFrom)
{
    m_nVersionTo = versionTo;
}

CStringFieldNotused::~CStringFieldNotused() = default;
