#include <LibControl/common/idchecks.h>

#include <LibControl/common/utilities.h>

#include "checks_p.h"

#include <algorithm>
#include <cstring>
#include <string>

char const *s_Allowed_BusinessNumbers[2] = { "NR", nullptr };

namespace {

// The longest text CheckMod10 accepts.
constexpr std::size_t MaxMod10Length = 127;
// The length of every program account number: 9 digits, 2 letters, 4 digits.
constexpr std::size_t ProgramAccountLength = 15;

using LibControl::detail::checkedLength;
using LibControl::detail::isAsciiDigit;

bool allDigits(char const *text, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (!IsDigitChar(text[i]))
            return false;
    }
    return true;
}

// The doubled value of a check-digit position, folded to the sum of its digits.
int foldedDouble(int value)
{
    int const doubled = 2 * value;
    return doubled >= 10 ? doubled / 10 + doubled % 10 : doubled;
}

// 10 minus the sum modulo 10, where 10 itself becomes 0.
int checkValue(int sum)
{
    int const value = 10 - sum % 10;
    return value == 10 ? 0 : value;
}

bool sameProgram(char const *letters, char const *program)
{
    if (!program)
        return false;
    char const pair[3] = { letters[0], letters[1], '\0' };
    return stricmp(pair, program) == 0;
}

// The shape shared by the 15-character accounts: digits, program, digits.
bool programAccountShape(char const *number, char const *program, bool checkDigit)
{
    if (checkedLength(number) != ProgramAccountLength || !allDigits(number, 9))
        return false;
    if (checkDigit && !CheckMod10(std::string(number, 9).c_str()))
        return false;
    return allDigits(number + 11, 4) && sameProgram(number + 9, program);
}

} // namespace

bool isStrPartOfArrayOfStrs(char const *text, char const *const *list)
{
    if (!text || !list)
        return false;
    for (; *list; ++list) {
        if (stricmp(text, *list) == 0)
            return true;
    }
    return false;
}

bool CheckMod10(char const *digits)
{
    std::size_t const n = checkedLength(digits);
    if (n % 2 == 0 || n > MaxMod10Length || !allDigits(digits, n))
        return false;
    int sum = 0;
    for (std::size_t i = 0; i + 1 < n; ++i) {
        int const digit = digits[i] - '0';
        sum += i % 2 == 1 ? foldedDouble(digit) : digit;
    }
    return digits[n - 1] - '0' == checkValue(sum);
}

bool CheckSIN(char const *sin, char const **exceptions)
{
    if (isStrPartOfArrayOfStrs(sin, exceptions))
        return true;
    return checkedLength(sin) == 9 && CheckMod10(sin);
}

bool CheckSIN(char const *sin)
{
    return CheckSIN(sin, nullptr);
}

bool CheckCRAProgNum(char const *number, char const *program, bool checkDigit)
{
    if (checkedLength(number) != ProgramAccountLength || std::strncmp(number, "000000000", 9) == 0)
        return false;
    return programAccountShape(number, program, checkDigit);
}

bool CheckBusiNum(char const *number)
{
    return CheckCRAProgNum(number, "RC", true);
}

bool CheckBusiNum2(char const *number)
{
    return isStrPartOfArrayOfStrs(number, s_Allowed_BusinessNumbers) || CheckBusiNum(number);
}

bool CheckGSTAccountNumber(CString const &number)
{
    return CheckCRAProgNum(number.toStdStringUTF8().c_str(), "RT", false);
}

bool CheckPartnershipID(char const *number)
{
    return programAccountShape(number, "RZ", true);
}

bool CheckPartnershipIDOrFileID(CString const &id)
{
    if (id.size() != 9)
        return false;
    return std::all_of(id.cbegin(), id.cend(), isAsciiDigit);
}

bool CheckPartnershipNumber(CString const &id)
{
    return CheckPartnershipIDOrFileID(id);
}

bool CheckTrustNumber(char const *number, char const **exceptions)
{
    if (isStrPartOfArrayOfStrs(number, exceptions))
        return true;
    if (checkedLength(number) != 9)
        return false;
    char const first = number[0];
    return (first == 'T' || first == 't' || first == 'A') && allDigits(number + 1, 8);
}

bool CheckTaxShelterNumber(CString const &number)
{
    if (number.size() != 8)
        return false;
    // Explicit letters: QChar::toUpper would also map the long s (U+017F) to "S".
    if ((number[0] != QLatin1Char('T') && number[0] != QLatin1Char('t'))
        || (number[1] != QLatin1Char('S') && number[1] != QLatin1Char('s')))
        return false;
    return std::all_of(number.cbegin() + 2, number.cend(), isAsciiDigit);
}

bool CheckNISAPIN(char const *pin)
{
    if (checkedLength(pin) != 8)
        return false;
    int numbers[8];
    for (int i = 0; i < 8; ++i)
        numbers[i] = pin[i] - '0';
    if (numbers[0] > 2)
        return false;
    int sum = 0;
    for (int i = 0; i < 7; ++i)
        sum += i % 2 == 0 ? foldedDouble(numbers[i]) : numbers[i];
    return numbers[7] == checkValue(sum);
}

bool CheckSREDFieldCode(char const *code)
{
    if (checkedLength(code) != 7)
        return false;
    for (int i = 0; i < 7; ++i) {
        if (!IsDigitChar(code[i]) && code[i] != '.')
            return false;
    }
    return true;
}

bool CheckDate(char const *date)
{
    return checkedLength(date) >= 8 && allDigits(date, 8);
}

bool CheckIsAllNumber(char const *text)
{
    return allDigits(text, checkedLength(text));
}
