#ifndef LIBCONTROL_WORKSHEETS_POSTCODEINFO_H
#define LIBCONTROL_WORKSHEETS_POSTCODEINFO_H

#include <LibControl/fields/memoryblock.h>
#include <LibControl/forms/taxformtype.h>
#include <LibControl/libcontrol_export.h>

/**
 * Maps a Canadian postal code to its province or territory from its first
 * three characters (the forward sortation area), using the table compiled
 * into the library as ":/misc/res/postcode.txt".
 *
 * One process-wide instance, loaded on first use and used from the
 * user-interface thread only. When the table cannot be loaded every lookup
 * gives 0, and the next lookup tries again.
 */
class LIBCONTROL_EXPORT CPostCodeInfo
{
public:
    /** The single instance, created on first use and kept until exit. */
    static CPostCodeInfo *GetInstance();
    virtual ~CPostCodeInfo();
    CPostCodeInfo(CPostCodeInfo const &) = delete;
    CPostCodeInfo &operator=(CPostCodeInfo const &) = delete;

    /** Loads the table unless that already succeeded. */
    void init();
    /**
     * The province (1 to 13) whose section lists the first three characters
     * of `code`, taken as they are: no case folding, no spaces removed.
     * A null code, one shorter than three characters, or one not listed
     * gives 0.
     */
    int ProvFromPostCode(char const *code);
    /** ProvFromPostCode(code) == prov; an unknown code therefore matches 0. */
    bool IsPostCodeFromProv(char const *code, ENUMTYPE_PROVINCE prov);

    /** The compiled-in table's resource path. */
    static constexpr char const *ResourcePath = ":/misc/res/postcode.txt";

protected:
    CPostCodeInfo();

    bool m_bLoaded;
    CMemoryBlock m_text;
    /** Offset of each province's "[XX]" header (index 1 to 13), -1 when missing. */
    int m_nSectionStart[14];

private:
    int provinceAt(int offset) const;
};

#endif
