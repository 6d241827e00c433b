// Reads arbitrary text as a date under every format code and writes the
// result back in each layout.

#include <LibControl/common/dates.h>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    CString const text(QString::fromUtf8(reinterpret_cast<char const *>(data), int(size)));
    static int const Codes[] = { 4, 5, 6, 7, 8, 10, 18, 19 };
    for (int code : Codes) {
        QDate date;
        ReadQDate2(text, code, date);
        CString out;
        for (int layout : Codes)
            FormatQDate(out, date, layout);
        GetDaysBetween(date, QDate(2025, 12, 31));
        GetDaysWithinYear(date, QDate(2025, 12, 31), 2025);
        DateAsDouble::convertDoubleToDate(DateAsDouble::convertDateToDouble(date));
    }
    QDateTime value;
    ReadQDateTime(text, 28, value);
    GetRawDate(text);
    return 0;
}
