// Runs every identifier and address check over arbitrary bytes, read both as
// a C string and as UTF-8 and Latin-1 text, and verifies the helpers' own
// promises about their results.

#include <LibControl/common/addresschecks.h>
#include <LibControl/common/idchecks.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkBytes(char const *text)
{
    char const *exceptions[] = {"NR", nullptr};
    CheckMod10(text);
    CheckSIN(text);
    CheckSIN(text, exceptions);
    CheckCRAProgNum(text, "RC", true);
    CheckBusiNum2(text);
    CheckPartnershipID(text);
    CheckTrustNumber(text, exceptions);
    CheckNISAPIN(text);
    CheckSREDFieldCode(text);
    CheckDate(text);
    CheckIsAllNumber(text);
    CheckName(text);
    CheckCAPostCode(text);
    CheckUSPostCode(text);
    CheckCountryCode(text);
    checkEmail(text);
    CString phone;
    myStringToPhone(text, phone);
}

void checkText(CString const &text)
{
    CheckGSTAccountNumber(text);
    CheckPartnershipIDOrFileID(text);
    CheckTaxShelterNumber(text);
    CheckBusiName(text);
    CheckCityName(text);
    CheckIsAlphaOrSpace(text);
    CheckIsDigitStr(text, 0);
    CString street = text;
    CheckAddress(street);
    CString careOf = text;
    CheckAddrCO(careOf);
    GetPurifiedAddr(text);
    require(GetUSRawPostcode(text).size() <= 5);
    CString const raw = GetCARawPostcode(text);
    require(raw.size() <= 6);
    if (raw.size() == 6)
        require(CheckCAPostCode(raw.toUtf8().constData()));
    require(GetRawPhoneStr(text, true).size() >= 10);
    require(CheckPhoneNumber(text, true) == (GetNumStr(text, false, 0).size() >= 10));
    CheckPhoneFlatEditNumber(text, false);
    ChkPhoneStrHasSomething(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    std::string const bytes(reinterpret_cast<char const *>(data), size);
    checkBytes(bytes.c_str());
    checkText(QString::fromUtf8(bytes.data(), int(bytes.size())));
    checkText(QString::fromLatin1(bytes.data(), int(bytes.size())));
    return 0;
}
