#include <LibControl/common/utilities.h>

#include <QRegularExpression>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <utility>
#include <vector>

namespace {

// The e-filing character table: the 32 ASCII punctuation characters, then
// the accepted Latin-1 symbol bytes. 0x92 and 0xBF stand twice; harmless.
unsigned char const T2AllowedTable[63] = {
    '-', '\'', '/', '&', '*', '#', '!', '@', '+', '=', '?', '%', '$', '{', '}', '(',
    ')', '_', ';', ':', '"', ',', '.', '<', '>', '~', '`', '^', '[', '\\', ']', '|',
    0x92, 0xA3, 0xF7, 0xA5, 0xB7, 0xA9, 0xBC, 0xBD, 0xBE, 0xA2, 0xA6, 0xBF, 0xB9, 0xB2, 0xB3, 0xAE,
    0xB1, 0x91, 0x92, 0xB0, 0xBA, 0xAF, 0xA8, 0xB8, 0xA1, 0xB6, 0xA7, 0xB4, 0xBF, 0xD7, 0xAC,
};

// French letters with grave, circumflex, diaeresis or cedilla (and É, é),
// and the guillemets.
unsigned char const T2AllowedLetters[] = {
    0xAB, 0xBB, 0xC0, 0xC2, 0xC7, 0xC8, 0xC9, 0xCA, 0xCB, 0xCE, 0xCF, 0xD4, 0xD6, 0xD9, 0xDB, 0xDC,
    0xE0, 0xE2, 0xE7, 0xE8, 0xE9, 0xEA, 0xEB, 0xEE, 0xEF, 0xF4, 0xF6, 0xF9, 0xFB, 0xFC,
};

// The six fixed-width pieces of the corporate address block, in order.
std::vector<CString> t2AddressPieces(char const *country, char const *province, char const *city, char const *line1,
                                     char const *line2, char const *postal)
{
    bool const northAmerica = country && (stricmp(country, "CA") == 0 || stricmp(country, "US") == 0);
    std::string postalCode = postal ? postal : "";
    postalCode.erase(std::remove(postalCode.begin(), postalCode.end(), ' '), postalCode.end());
    std::pair<char const *, int> const sources[] = {
        {line1, 30}, {line2, 30}, {city, 30}, {northAmerica ? province : "  ", 2}, {country, 2}, {postalCode.c_str(), 10},
    };
    std::vector<CString> pieces;
    for (auto const &source : sources) {
        pieces.emplace_back();
        makeStringToFixLengthStringByTrailingSpaces(pieces.back(), source.first, source.second);
    }
    return pieces;
}

template<size_t N>
bool contains(unsigned char const (&table)[N], unsigned char c)
{
    return std::find(table, table + N, c) != table + N;
}

} // namespace

bool IsDigitChar(char c)
{
    return c >= '0' && c <= '9';
}

bool isNumeric(char c)
{
    return IsDigitChar(c);
}

bool isAlphabetic(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool Is26NormalChar(char c)
{
    return isAlphabetic(c);
}

bool IsAlphaChar(char c)
{
    return isAlphabetic(c) || std::memchr(OtherAlpahChars, c, sizeof OtherAlpahChars) != nullptr;
}

bool IsDigits(char *text)
{
    if (!text || !*text)
        return false;
    for (; *text; ++text) {
        if (!IsDigitChar(*text))
            return false;
    }
    return true;
}

bool IsT2AllowedChar(unsigned char c)
{
    if (c == 0)
        return false;
    if (c == ' ' || IsDigitChar(char(c)) || isAlphabetic(char(c)))
        return true;
    return contains(T2AllowedTable, c) || contains(T2AllowedLetters, c);
}

bool CheckT2ValidChar(CString const &text)
{
    for (int i = 0; i < text.GetLength(); ++i) {
        if (!IsT2AllowedChar(static_cast<unsigned char>(text.GetAt(i))))
            return false;
    }
    return true;
}

bool isCharDiacritic(QChar c)
{
    ushort const u = c.unicode();
    return u >= 0xC0 && u <= 0xFF && u != 0xC5 && u != 0xD5 && u != 0xE5 && u != 0xF5;
}

bool IsAllZeroString(CString text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c == QLatin1Char('0'); });
}

bool StringHasChars(CString const &text, char const *set)
{
    QString const chars = QString::fromLatin1(set);
    return std::any_of(text.cbegin(), text.cend(), [&](QChar c) { return chars.contains(c); });
}

bool makeValidFilename(CString &name)
{
    // The removal runs first, so spaces vanish instead of becoming "_".
    name.remove(QRegularExpression(QStringLiteral("[^0-9a-zA-Z_]")));
    name.replace(QLatin1Char(' '), QLatin1Char('_'));
    return true;
}

CString getLeadingString(CString const &text, int n)
{
    return text.Left(n);
}

void removeContinuousSpace(CString &text)
{
    // A single pass on purpose: "    " becomes "  ", not " ".
    text.replace(QLatin1String("  "), QLatin1String(" "));
}

void trimSpaces(std::string &text)
{
    text.erase(text.find_last_not_of(" \t") + 1);
    text.erase(0, text.find_first_not_of(" \t"));
}

bool stringEndwith(CString const &text, char const *suffix, bool caseSensitive)
{
    QString const tail = QString::fromUtf8(suffix);
    if (text.length() < tail.length())
        return false;
    return text.right(tail.length()).compare(tail, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
}

size_t findCaseInsensitive(std::string text, std::string what, size_t from)
{
    auto lower = [](std::string &s) {
        std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    };
    lower(text);
    lower(what);
    return text.find(what, from);
}

int stricmp(char const *a, char const *b)
{
    int ca = 0;
    int cb = 0;
    do {
        ca = std::tolower(std::toupper(static_cast<unsigned char>(*a++)));
        cb = std::tolower(std::toupper(static_cast<unsigned char>(*b++)));
    } while (ca == cb && ca != 0);
    return ca - cb;
}

void makeStringToFixLengthStringByTrailingSpaces(CString &out, char const *text, int width)
{
    QString piece = text ? QString::fromLatin1(text).trimmed() : QString();
    int const w = qMax(width, 0);
    out = piece.left(w).leftJustified(w, QLatin1Char(' '));
}

void formatStringToMaxCharsPerLine(CString const &text, int maxChars, CString &out)
{
    out = CString("");
    int column = 0;
    int lastSpace = 0;
    QChar const space(QLatin1Char(' '));
    QChar const newLine(QLatin1Char('\n'));
    for (QChar c : text) {
        if (c == QLatin1Char('\r') || c == newLine) {
            column = lastSpace = 0;
            out += c;
            continue;
        }
        int const next = column + 1;
        if (next > maxChars && c == space) {
            out += newLine;
            column = lastSpace = 0;
        } else if (next > maxChars && lastSpace > 0) {
            // The break goes before the line's last space, which starts the
            // new line; the overflowing character is not counted. Kept as is.
            out.insert(out.length() - (next - lastSpace - 1), newLine);
            column = next - lastSpace - 1;
            lastSpace = 0;
            out += c;
        } else if (next > maxChars) {
            out += newLine;
            column = 1;
            lastSpace = 0;
            out += c;
        } else {
            if (c == space)
                lastSpace = column;
            column = next;
            out += c;
        }
    }
}

void formatStringToT2AddrIn104Letters(CString &out, char const *country, char const *province, char const *city,
                                      char const *line1, char const *line2, char const *postal)
{
    out = CString("");
    for (CString const &piece : t2AddressPieces(country, province, city, line1, line2, postal))
        out += piece;
}

void formatStringToT2AddrForPrint(CString &out, char const *country, char const *province, char const *city,
                                  char const *line1, char const *line2, char const *postal)
{
    std::vector<CString> pieces = t2AddressPieces(country, province, city, line1, line2, postal);
    QStringList parts;
    for (size_t i : {0, 1, 2, 5}) {
        pieces[i].TrimRight();
        if (!pieces[i].isEmpty())
            parts << pieces[i];
    }
    out = parts.join(QLatin1Char(' '));
}
