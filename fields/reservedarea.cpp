#include <LibControl/common/utilities.h>
#include <LibControl/fields/datastream.h>
#include <LibControl/fields/reservedarea.h>

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

// Fixed by the return-file format.
constexpr char ScrambleKey[] = "Qv4#tB8!wz";
constexpr int ScrambleKeyLength = 10;
constexpr int CurrentVersion = 2;
constexpr int MaxCharacters = CReservedArea::AreaSize - 1;

void scramble(char *area, int length)
{
    abcTwo(area, length, ScrambleKey, ScrambleKeyLength);
}

} // namespace

CReservedArea::CReservedArea() : m_version(CurrentVersion), m_area1(), m_area2() { }

CReservedArea::~CReservedArea() = default;

char *CReservedArea::area(int which)
{
    return which == 2 ? m_area2 : m_area1;
}

void CReservedArea::setString(int which, CString const &text)
{
    QString kept = text.left(MaxCharacters);
    QByteArray bytes = kept.toUtf8();
    while (bytes.size() > MaxCharacters) {
        kept.chop(1);
        bytes = kept.toUtf8();
    }
    char *const target = area(which);
    std::memcpy(target, bytes.constData(), size_t(bytes.size()) + 1);
    // Characters, not bytes, are scrambled; the format depends on it.
    scramble(target, kept.length());
}

void CReservedArea::getString(int which, CString &out)
{
    char *const source = area(which);
    if (which == 1 || which == 2)
        source[AreaSize - 1] = '\0';
    int const length = int(strnlen(source, AreaSize));
    if (length > 0)
        scramble(source, length);
    out = QString::fromLatin1(source, int(strnlen(source, AreaSize)));
}

void CReservedArea::writeToArchive(MyDataStream &ar)
{
    m_version = CurrentVersion;
    char image[ImageSize];
    qToLittleEndian(m_version, image);
    std::memcpy(image + 4, m_area1, AreaSize);
    std::memcpy(image + 4 + AreaSize, m_area2, AreaSize);
    ar << qint32(ImageSize);
    ar.writeRawData(image, ImageSize);
}

void CReservedArea::readFromArchive(MyDataStream &ar)
{
    // The image is the start of a counted block; the rest of it is skipped.
    char image[ImageSize] = {};
    qint32 count = 0;
    ar >> count;
    if (ar.status() == QDataStream::Ok && count > 0) {
        int const wanted = std::min(count, qint32(ImageSize));
        int const got = ar.readRawData(image, wanted);
        if (got < wanted || (count > wanted && ar.skipRawData(count - wanted) < count - wanted))
            ar.setStatus(QDataStream::ReadPastEnd);
    }
    m_version = qFromLittleEndian<qint32>(image);
    std::memcpy(m_area1, image + 4, AreaSize);
    std::memcpy(m_area2, image + 4 + AreaSize, AreaSize);
    if (m_version != CurrentVersion) {
        m_version = CurrentVersion;
        std::fill(m_area1, m_area1 + AreaSize, '\0');
        std::fill(m_area2, m_area2 + AreaSize, '\0');
    }
}
