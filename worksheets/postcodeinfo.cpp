#include <LibControl/worksheets/PostCodeInfo.h>

#include <algorithm>
#include <cstring>
#include <iterator>

CPostCodeInfo *CPostCodeInfo::GetInstance()
{
    // Never destroyed before exit, as the applications expect.
    static CPostCodeInfo *const instance = new CPostCodeInfo;
    return instance;
}

CPostCodeInfo::CPostCodeInfo() : m_bLoaded(false)
{
    std::fill(std::begin(m_nSectionStart), std::end(m_nSectionStart), -1);
}

CPostCodeInfo::~CPostCodeInfo() = default;

void CPostCodeInfo::init()
{
    if (m_bLoaded)
        return;
    m_text.Init();
    if (m_text.LoadFile(ResourcePath) != 0)
        return;
    // One zero-terminated segment, so SearchString sees the whole text.
    m_text.AppendEnding0();
    for (int province = 1; province <= 13; ++province) {
        QByteArray const header = QByteArray("[") + Global_Provs_Info[province].code + "]";
        int position = 0;
        if (m_text.SearchString(header.constData(), position))
            m_nSectionStart[province] = position - header.size();
    }
    m_bLoaded = true;
}

int CPostCodeInfo::provinceAt(int offset) const
{
    int best = 0;
    for (int province = 1; province <= 13; ++province) {
        int const start = m_nSectionStart[province];
        if (start >= 0 && start < offset && (best == 0 || start > m_nSectionStart[best]))
            best = province;
    }
    return best;
}

int CPostCodeInfo::ProvFromPostCode(char const *code)
{
    if (!code || std::strlen(code) < 3)
        return 0;
    init();
    if (!m_bLoaded)
        return 0;
    char const area[4] = {code[0], code[1], code[2], '\0'};
    int province = 0;
    int position = 0;
    // Search again from the reported position until no match is left; the
    // last match decides. The text is one segment, so a search from s that
    // matches at m reports m + 3 + s.
    for (int from = position; m_text.SearchString(area, position); from = position)
        province = provinceAt(position - 3 - from);
    return province;
}

bool CPostCodeInfo::IsPostCodeFromProv(char const *code, ENUMTYPE_PROVINCE prov)
{
    return ProvFromPostCode(code) == int(prov);
}
