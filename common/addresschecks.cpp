#include <LibControl/common/addresschecks.h>

#include <LibControl/common/utilities.h>

#include "checks_p.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

using LibControl::detail::checkedLength;
using LibControl::detail::isAsciiDigit;
using LibControl::detail::isAsciiLetter;

namespace {

// Bytes refused inside a name (between its first and last byte).
char const NameRefusedInner[] = "\"#$%&()*+,/:;<=>?@[\\]^_`{|}~";
// Characters an address line may not start with; it may end with a full stop.
char const AddressRefusedFirst[] = "-`\\/&()<>{}[]#.";
char const AddressRefusedLast[] = "-`\\/&()<>{}[]#";
// Punctuation allowed inside a street address line and inside a care-of line.
char const AddressInner[] = " #&'(),-./";
char const CareOfInner[] = " &'-./";
// Punctuation a city name may hold anywhere.
char const CityPunctuation[] = " '-./";

bool inSet(char c, char const *set)
{
    return c != '\0' && std::strchr(set, c) != nullptr;
}

bool inSet(QChar c, char const *set)
{
    return c.unicode() < 0x80 && inSet(char(c.unicode()), set);
}

// The byte checks widen a byte as a signed char before the accented-letter
// test, so 0x80..0xFF become U+FF80..U+FFFF and never count as accented.
// Accented names and addresses are therefore judged by their other rules
// only. Deliberate; do not widen as unsigned.
bool isLetterByte(char c)
{
    return isAlphabetic(c) || isCharDiacritic(QChar(static_cast<ushort>(static_cast<short>(c))));
}

bool isLetterOrDigitByte(char c)
{
    return isLetterByte(c) || IsDigitChar(c);
}

// First, last and inner byte rules of the street and care-of lines.
bool addressBytesFit(QByteArray const &bytes, char const *innerPunctuation)
{
    if (bytes.isEmpty())
        return true;
    if (!isLetterOrDigitByte(bytes.at(0)))
        return false;
    char const last = bytes.at(bytes.size() - 1);
    if (!isLetterOrDigitByte(last) && last != '.')
        return false;
    for (int i = 1; i + 1 < bytes.size(); ++i) {
        if (!isLetterOrDigitByte(bytes[i]) && !inSet(bytes[i], innerPunctuation))
            return false;
    }
    return true;
}

bool hasCareOfMarker(CString const &address)
{
    for (char const *marker : { "C/O", "c/o", "A/S", "a/s" }) {
        if (address.contains(QLatin1String(marker)))
            return true;
    }
    return false;
}

} // namespace

bool CheckName(char const *name)
{
    std::size_t const n = checkedLength(name);
    if (n == 0)
        return true;
    char const last = name[n - 1];
    if (!isLetterByte(name[0]) || !(isLetterOrDigitByte(last) || last == '-'))
        return false;
    return std::none_of(
        name + 1, name + std::max<std::size_t>(n - 1, 1), [](char c) { return inSet(c, NameRefusedInner); });
}

bool CheckSpouseName(char const *name)
{
    return CheckName(name);
}

bool CheckBusiName(CString const &name)
{
    return CheckName(name.toUtf8().constData());
}

bool CheckCityName(CString const &city)
{
    return std::all_of(city.cbegin(), city.cend(),
        [](QChar c) { return isAsciiLetter(c) || isAsciiDigit(c) || inSet(c, CityPunctuation) || isCharDiacritic(c); });
}

bool CheckIsAlphaOrSpace(CString const &text)
{
    return std::all_of(text.cbegin(), text.cend(),
        [](QChar c) { return c == QLatin1Char(' ') || (c.unicode() < 0x80 && IsAlphaChar(char(c.unicode()))); });
}

bool CheckIsDigitStr(CString const &text, int)
{
    return std::all_of(text.cbegin(), text.cend(), isAsciiDigit);
}

bool CheckAddress_common(CString &address)
{
    address.Trim();
    if (address.isEmpty())
        return true;
    if (hasCareOfMarker(address))
        return false;
    return !inSet(address.at(0), AddressRefusedFirst) && !inSet(address.at(address.size() - 1), AddressRefusedLast);
}

bool CheckAddress(CString &address)
{
    return CheckAddress_common(address) && addressBytesFit(address.toUtf8(), AddressInner);
}

bool CheckAddrCO(CString &line)
{
    return CheckAddress_common(line) && addressBytesFit(line.toUtf8(), CareOfInner);
}

CString GetPurifiedAddr(CString const &address)
{
    CString purified = address;
    purified.remove(QLatin1String("c/o "));
    purified.remove(QLatin1String("C/O "));
    return purified;
}

void PurifyT2String(CString &) { }
