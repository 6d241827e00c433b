// Postal codes, country codes, phone numbers and e-mail addresses.

#include <LibControl/common/addresschecks.h>

#include <LibControl/common/utilities.h>

#include "checks_p.h"

#include <algorithm>
#include <string>

using LibControl::detail::checkedLength;
using LibControl::detail::isAsciiDigit;
using LibControl::detail::isAsciiLetter;

namespace {

// A North American phone number: area code and seven digits.
constexpr int PhoneDigits = 10;

CString digitsOf(CString const &text)
{
    CString digits;
    std::copy_if(text.cbegin(), text.cend(), std::back_inserter(digits), isAsciiDigit);
    return digits;
}

bool isEmailChar(char c)
{
    return isAlphabetic(c) || IsDigitChar(c) || c == '.' || c == '_' || c == '-' || c == '@';
}

bool isAlnumByte(char c)
{
    return isAlphabetic(c) || IsDigitChar(c);
}

} // namespace

bool CheckCAPostCode(char const *code)
{
    std::size_t const n = checkedLength(code);
    if (n < 6)
        return false;
    std::string six(code, 6);
    if (n >= 7) {
        if (code[3] != '-' && code[3] != ' ')
            return false;
        six = std::string(code, 3) + std::string(code + 4, 3);
    }
    for (std::size_t i = 0; i < 6; ++i) {
        bool const fits = i % 2 == 0 ? isAlphabetic(six[i]) : IsDigitChar(six[i]);
        if (!fits)
            return false;
    }
    return true;
}

bool CheckUSPostCode(char const *code)
{
    std::size_t const n = checkedLength(code);
    if (n != 5 && n != 9 && n != 10)
        return false;
    return std::all_of(code, code + n, [](char c) { return IsDigitChar(c) || c == '-'; });
}

bool CheckCountryCode(char const *code)
{
    return checkedLength(code) == 3 && std::all_of(code, code + 3, [](char c) { return c >= 'A' && c <= 'Z'; });
}

CString GetCARawPostcode(CString const &text)
{
    CString raw;
    for (QChar const c : text) {
        if (raw.size() == 6)
            break;
        bool const letterExpected = raw.size() % 2 == 0;
        if (letterExpected ? isAsciiLetter(c) : isAsciiDigit(c))
            raw.append(c.toUpper());
    }
    return raw;
}

CString GetUSRawPostcode(CString const &text)
{
    return text.trimmed().left(5);
}

CString GetRawPostcode(CString const &text)
{
    return GetCARawPostcode(text);
}

CString GetRawPhoneStr(CString const &text, bool padToTen)
{
    CString digits = digitsOf(text);
    if (padToTen && digits.size() < PhoneDigits)
        digits.append(QString(PhoneDigits - digits.size(), QLatin1Char('0')));
    return digits;
}

CString GetNumStr(CString const &text, bool, int)
{
    return digitsOf(text);
}

bool CheckPhoneNumber(CString const &text, bool allowAllZero)
{
    CString const digits = GetRawPhoneStr(text, false);
    if (digits.size() < PhoneDigits)
        return false;
    return allowAllZero || digits != QLatin1String("0000000000");
}

bool CheckPhoneNumber(CString const &text)
{
    return CheckPhoneNumber(text, false);
}

bool CheckPhoneFlatEditNumber(CString const &text, bool allowAllZero)
{
    // The edit's own pattern test (some digit, parenthesis, hyphen or space)
    // always holds for a text with the ten digits CheckPhoneNumber requires.
    return CheckPhoneNumber(GetRawPhoneStr(text, false), allowAllZero);
}

bool ChkPhoneStrHasSomething(CString const &text)
{
    return !GetRawPhoneStr(text, true).startsWith(QLatin1String("0000000000"));
}

void myStringToPhone(char const *digits, CString &out)
{
    out = QString::fromLatin1(digits);
    if (out.isEmpty() || out.startsWith(QLatin1Char('(')))
        return;
    out.prepend(QLatin1Char('('));
    out.insert(std::min(4, out.size()), QLatin1String(")-"));
}

bool checkEmail(char const *address)
{
    std::string const text = address ? address : "";
    std::size_t const at = text.find('@');
    if (at == std::string::npos || text.find('@', at + 1) != std::string::npos)
        return false;
    for (char const *bad : { ".@", "@.", ".." }) {
        if (text.find(bad) != std::string::npos)
            return false;
    }
    if (text.front() == '.' || text.back() == '.' || !std::all_of(text.begin(), text.end(), isEmailChar))
        return false;
    auto const domainBegin = text.begin() + at + 1;
    return std::any_of(text.begin(), text.begin() + at, isAlnumByte)
        && std::any_of(domainBegin, text.end(), isAlphabetic) && std::find(domainBegin, text.end(), '.') != text.end();
}
