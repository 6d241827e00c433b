#include <LibControl/forms/NetfileGeneral.h>

#include <LibControl/common/xmlwriter.h>
#include <LibControl/fields/floatfield.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <string>

namespace {

// Any amount of a cent or more is worth a line ...
constexpr double CentThreshold = 0.009;
// ... or, for the whole-dollar lines that need one, a dollar or more.
constexpr double DollarThreshold = 0.99999999;
// Amounts such as 12.9999999 stand for 13: nudge before dropping the cents.
constexpr double CentNudge = 0.000001;
// Cent counts of amounts from here on do not fit a 32-bit long.
constexpr double LongWriterLimit = 21000000.0;

enum TiaType { TiaDollar = 1, TiaDollarCent = 2, TiaNumeric = 3, TiaString = 4 };

char const ValueTag[] = "comm:FieldValue";

// Truncation toward zero that saturates instead of overflowing; NaN gives 0.
long long truncated(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= 9.2e18)
        return LLONG_MAX;
    if (value <= -9.2e18)
        return LLONG_MIN;
    return static_cast<long long>(value);
}

bool isNegative(double value)
{
    return value <= -CentThreshold;
}

long long roundedDollars(double value)
{
    return truncated(isNegative(value) ? value - 0.5 : value + 0.5);
}

double nudged(double value)
{
    return isNegative(value) ? value - CentNudge : value + CentNudge;
}

long long droppedCents(double value)
{
    return truncated(nudged(value));
}

int clampedInt(long long value)
{
    return int(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

void countLine(NetfileGenObjParamStru &param)
{
    if (param.pLineCount)
        ++*param.pLineCount;
}

// The first value recorded for a code stays; later ones are dropped.
void record(NetfileGenObjParamStru &param, int code, STRUCT_NETFILE_TIA_FIELD_TYPE const &entry)
{
    if (param.pTiaFields)
        param.pTiaFields->emplace(code, entry);
}

STRUCT_NETFILE_TIA_FIELD_TYPE blankEntry(int type)
{
    STRUCT_NETFILE_TIA_FIELD_TYPE entry;
    std::memset(&entry, 0, sizeof entry);
    entry.nType = type;
    return entry;
}

void recordAmount(NetfileGenObjParamStru &param, int code, int type, double value)
{
    STRUCT_NETFILE_TIA_FIELD_TYPE entry = blankEntry(type);
    entry.dValue = value;
    record(param, code, entry);
}

void writeLong(CString &out, char const *tag, long long value)
{
    writeXMLForLong(out, tag, static_cast<long>(value), false);
}

template<typename WriteValue>
void writeReturnLine(NetfileGenObjParamStru &param, int code, WriteValue writeValue)
{
    if (param.pOutput) {
        CString &out = *param.pOutput;
        writeXMLOpenTagString(out, "comm:ReturnLine");
        writeXMLInteger(out, "comm:FieldCode", code);
        writeValue(out);
        writeXMLCloseTagString(out, "comm:ReturnLine");
    }
    countLine(param);
}

void writeDollarLine(NetfileGenObjParamStru &param, int code, long long dollars)
{
    writeReturnLine(param, code, [dollars](CString &out) { writeLong(out, ValueTag, dollars); });
}

// The filed figure of the IFZEROTHENONE lines, which are never left out.
void writeDollarOrOne(NetfileGenObjParamStru &param, int code, double value, long long dollars)
{
    if (std::fabs(value) > DollarThreshold) {
        writeDollarLine(param, code, dollars);
        recordAmount(param, code, TiaDollar, value);
    } else {
        writeDollarLine(param, code, 1);
        recordAmount(param, code, TiaDollar, 1.0);
    }
}

} // namespace

int NETFILE_DOLLAR_FIELD_Func(int code, CFloatField &field, NetfileGenObjParamStru &param)
{
    double const value = field.m_dValue;
    if (!(std::fabs(value) > CentThreshold))
        return 0;
    long long dollars = roundedDollars(value);
    if (dollars == 0)
        dollars = value > 0 ? 1 : -1;
    // Code 0 files the field's own line code but still records under 0.
    writeDollarLine(param, code != 0 ? code : field.m_nLineCode, dollars);
    recordAmount(param, code, TiaDollar, double(dollars));
    return 1;
}

int NETFILE_DOLLAR_FIELD_IFZEROTHENONE_Func(int code, CFloatField &field, NetfileGenObjParamStru &param)
{
    writeDollarOrOne(param, code, field.m_dValue, roundedDollars(field.m_dValue));
    return 0;
}

int NETFILE_DOLLAR_VALUE_Func(int code, double value, NetfileGenObjParamStru &param)
{
    if (!(std::fabs(value) > DollarThreshold))
        return 0;
    writeDollarLine(param, code, droppedCents(value));
    recordAmount(param, code, TiaDollar, value);
    return 0;
}

int NETFILE_DOLLAR_VALUE_IFZEROTHENONE_Func(int code, double value, NetfileGenObjParamStru &param)
{
    writeDollarOrOne(param, code, value, droppedCents(value));
    return 0;
}

int NETFILE_DOLLARCENT_VALUE_Func(int code, double value, NetfileGenObjParamStru &param)
{
    if (!(std::fabs(value) > CentThreshold))
        return 0;
    double const amount = nudged(value);
    long long const cents = truncated(amount * 100.0);
    writeReturnLine(param, code, [amount, cents](CString &out) {
        if (std::fabs(amount) < LongWriterLimit)
            writeLong(out, ValueTag, cents);
        else
            writeXMLForLong64(out, ValueTag, cents, false);
    });
    recordAmount(param, code, TiaDollarCent, value);
    return 0;
}

int NETFILE_NUMERIC_VALUE_Func(int code, double value, NetfileGenObjParamStru &param)
{
    if (!(std::fabs(value) > CentThreshold))
        return 0;
    writeDollarLine(param, code, droppedCents(value));
    STRUCT_NETFILE_TIA_FIELD_TYPE entry = blankEntry(TiaNumeric);
    entry.nValue = clampedInt(truncated(value));
    record(param, code, entry);
    return 0;
}

int NETFILE_STRING_Func(int code, int maxLen, CString &text, NetfileGenObjParamStru &param)
{
    // Blank once cut to maxLen (or a negative maxLen): a line without a value is not filed.
    if (convertToXMLString(text, maxLen).trimmed().isEmpty())
        return 0;
    writeReturnLine(param, code, [&text, maxLen](CString &out) { writeXMLString(out, ValueTag, text, maxLen); });

    STRUCT_NETFILE_TIA_FIELD_TYPE entry = blankEntry(TiaString);
    size_t const capacity = sizeof entry.szValue;
    // A limit too long for the buffer records no text at all, on purpose.
    if (size_t(maxLen) < capacity) {
        std::string const utf8 = text.toStdStringUTF8();
        size_t const limit = maxLen == 0 ? capacity - 1 : size_t(maxLen);
        std::memcpy(entry.szValue, utf8.data(), std::min(limit, utf8.size()));
    }
    record(param, code, entry);
    return 0;
}

int NETFILE_STRING_VALUE_Func(int code, int maxLen, char const *text, NetfileGenObjParamStru &param)
{
    if (!text)
        return 0;
    CString latin1(text);
    return NETFILE_STRING_Func(code, maxLen, latin1, param);
}

int NETFILE_DOLLAR_CCMMODITY_FIELD_Func(CString &commodityCode, CFloatField &field, NetfileGenObjParamStru &param)
{
    double const value = field.m_dValue;
    if (!(std::fabs(value) > CentThreshold))
        return 0;
    if (param.pOutput) {
        CString &out = *param.pOutput;
        writeXMLOpenTagString(out, "sfd:Commodity");
        writeXMLString(out, "sfd:CommodityCode", commodityCode);
        writeLong(out, "sfd:CommodityAmount", droppedCents(value));
        writeXMLCloseTagString(out, "sfd:Commodity");
    }
    countLine(param);
    return 1;
}

int NETFILE_COMMODITY_TOTAL_FIELD_Func(int code, CFloatField &field, NetfileGenObjParamStru &param)
{
    double const value = field.m_dValue;
    if (!(std::fabs(value) > DollarThreshold))
        return 0;
    if (param.pOutput) {
        writeXMLInteger(*param.pOutput, "sfd:CommodityTotalFieldCode", code);
        writeLong(*param.pOutput, "sfd:FieldAmount", roundedDollars(value));
    }
    // Two elements, one line.
    countLine(param);
    recordAmount(param, code, TiaDollar, value);
    return 1;
}
