#include <LibControl/common/utilities.h>

#include <QRegularExpression>

#include <cmath>
#include <cstdlib>

namespace {

struct Precision
{
    double scale;
    double upBias;
    double downBias;
};

Precision precisionFor(int decision)
{
    switch (decision) {
    case 2: return {100.0, 0.005001, 0.005};
    case 5: return {100000.0, 0.000005001, 0.000005};
    case 6: return {1000000.0, 0.0000005001, 0.0000005};
    default: return {10000.0, 0.00005001, 0.00005};
    }
}

} // namespace

double RoundFloatAtDecision(double value, int decision)
{
    if (decision == 0)
        return std::trunc(value > 0 ? value + 0.5 : value - 0.5);
    double const base = std::trunc(value / 1000000.0) * 1000000.0;
    double rest = value - base;
    Precision const p = precisionFor(decision);
    // The extra thousandth on the positive side only is intended.
    rest += rest > 0 ? p.upBias : -p.downBias;
    return std::trunc(rest * p.scale) / p.scale + base;
}

int truncateToNearest(double &value, int step)
{
    int const result = int(std::trunc(value)) / step * step;
    value = result;
    return result;
}

double div(double numerator, double denominator, double fallback)
{
    return std::fabs(denominator) < 0.009 ? fallback : numerator / denominator;
}

double GetOneIfZero(double value)
{
    return std::fabs(value) < 0.009 ? 1.0 : value;
}

void myDoubleToString(double value, int decimals, CString &out)
{
    bool const blankZero = decimals < 0;
    int const places = decimals == 0 ? 2 : std::abs(decimals);
    out = QString::number(value, 'f', places);
    if (!blankZero) {
        out.Replace(("." + std::string(size_t(places), '0')).c_str(), "");
    } else if (out == QLatin1String("0.00")) {
        out = CString("");
    }
}

double myStringToDouble(std::string const &text)
{
    static QRegularExpression const noise(QStringLiteral("[,\"#!*()\\[\\]{}<>]"));
    CString cleaned(QString::fromLatin1(text.c_str()).remove(noise));
    if (cleaned.isEmpty() || !isNumericStr(cleaned, false))
        return 0.0;
    bool ok = false;
    double const result = cleaned.toDouble(&ok);
    return ok ? result : 0.0;
}

void GetPercentStringForNetfile(double value, int decimals, CString &out)
{
    out = QString::number(value, 'f', std::abs(decimals));
    if (decimals < 0)
        out.remove(QRegularExpression(QStringLiteral("0+$")));
    out.remove(QRegularExpression(QStringLiteral("\\.$")));
}

void GetPercentStringForAT1(double value, int decimals, CString &out)
{
    if (value >= 100) {
        out = "1";
        return;
    }
    if (value <= 0) {
        out = "0";
        return;
    }
    int digits = decimals < 2 ? 2 : decimals;
    double const scaled = value * std::pow(10.0, digits - 2);
    long long number = static_cast<long long>(scaled);
    if (scaled - double(number) >= 0.5)
        ++number;
    // A value that rounds to nothing would never leave the loop below.
    if (number == 0) {
        out = "0";
        return;
    }
    while (number % 10 == 0) {
        number /= 10;
        --digits;
    }
    out = QStringLiteral(".") + QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
}

bool isNumericStr(CString const &text, bool digitsOnly)
{
    for (char c : text.toUtf8()) {
        bool const digit = c >= '0' && c <= '9';
        bool const sign = c == '-' || c == '.' || c == '+';
        if (!digit && (digitsOnly || !sign))
            return false;
    }
    return true;
}

void abcTwo(char *data, int length, char const *key, int keyLength)
{
    if (keyLength < 1)
        return;
    for (int i = 0; i < length; ++i)
        data[i] = char(data[i] ^ key[i % keyLength]);
}

int getCurrencyCode(CString &out, int code)
{
    if (code < 0 || code > 5)
        return -1;
    out = Global_Currency_Info[code].isoCode;
    return code;
}

bool isCanProv(int province)
{
    return province >= 1 && province <= 13;
}

bool isUsaState(int province)
{
    return province >= 18 && province <= 76;
}
