#include <LibControl/common/dates.h>

#include <cmath>

namespace {

constexpr double SecondsPerDay = 86400.0;
// The 25569 days from 1899-12-30 to 1970-01-01.
constexpr double EpochOffsetSeconds = 2209161600.0;
// Far beyond any date a return holds, and safely inside qint64 and QDateTime.
constexpr double SecondsLimit = 1.0e15;

} // namespace

DateAsDouble::DateAsDouble(double value) : m_value(value) { }

DateAsDouble::DateAsDouble(QDate const &date) : m_value(convertDateToDouble(date)) { }

double DateAsDouble::convertDateToDouble(QDate const &date)
{
    if (!date.isValid())
        return 0.0;
    qint64 const seconds = QDateTime(date, QTime(12, 0, 0), Qt::LocalTime).toSecsSinceEpoch();
    return (double(seconds) + EpochOffsetSeconds + 300.0) / SecondsPerDay;
}

QDate DateAsDouble::convertDoubleToDate(double value)
{
    // The extra day makes day n equal 1899-12-31 + n, one day later than
    // convertDateToDouble counts. Stored values depend on both as they are.
    double const seconds = std::trunc(value * SecondsPerDay - EpochOffsetSeconds + SecondsPerDay);
    if (!std::isfinite(seconds) || std::fabs(seconds) > SecondsLimit)
        return QDate(0, 0, 0);
    QDate const date = QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::LocalTime).addSecs(qint64(seconds)).date();
    if (!date.isValid() || date.year() < 1900)
        return QDate(0, 0, 0);
    return date;
}
