#include <LibControl/widgets/doublelineedit.h>

#include <cmath>
#include <limits>

namespace {

qint64 truncatedToInt64(double v)
{
    if (std::isnan(v))
        return 0;
    // 2^63 is exactly representable; anything at or past it does not fit.
    constexpr double limit = 9223372036854775808.0;
    if (v >= limit)
        return std::numeric_limits<qint64>::max();
    if (v < -limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(v);
}

} // namespace

int DoubleLineEdit::s_defDecimals = 2;

DoubleLineEdit::DoubleLineEdit(QWidget *parent)
    : StringLineEdit(parent)
    , m_decimals(s_defDecimals)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setMinimumWidth(90);
}

DoubleLineEdit::~DoubleLineEdit() = default;

void DoubleLineEdit::setDouble(double v)
{
    if (m_decimals < 1)
        setText(QStringLiteral("%1").arg(truncatedToInt64(v)));
    else
        setText(QStringLiteral("%1").arg(v, 0, 'f', m_decimals, QLatin1Char(' ')));
}

double DoubleLineEdit::getDouble() const
{
    QString digits = text();
    digits.remove(QLatin1Char(','));
    const double value = digits.toDouble();
    // Only exactly 0 truncates here, unlike setDouble's "below 1".
    return m_decimals == 0 ? std::trunc(value) : value;
}

void DoubleLineEdit::setAttID(int id)
{
    StringLineEdit::setAttID(id);
}

bool DoubleLineEdit::event(QEvent *e)
{
    return StringLineEdit::event(e);
}
