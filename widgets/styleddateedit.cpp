#include <LibControl/widgets/styleddateedit.h>

#include <QWheelEvent>

namespace {

// The runs of blanks are part of the text.
const QString s_dateEdit_stylesheet = QStringLiteral(
    "QDateEdit {     background-color: white;     border-style: solid;     border-width: 1px;     "
    "border-color: rgb(100,100,100);     spacing: 5px;  } "
    "QCalendarWidget QWidget#qt_calendar_navigationbar {    background-color: rgb(200,200,200); } "
    "QCalendarWidget QWidget#qt_calendar_navigationbar QToolButton{    background-color: rgb(51,234,255);     "
    "color: black;    border-width: 1;     border-style: solid;     border-color: black; }");

} // namespace

StyledDateEdit::StyledDateEdit(QWidget *parent)
    : QDateEdit(parent)
{
    setLocale(QLocale(QLocale::English, QLocale::AnyCountry));
    setStyleSheet(s_dateEdit_stylesheet);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // Qt shows this text whenever the value equals the minimum date.
    setSpecialValueText(QStringLiteral("0000/01/01"));
}

StyledDateEdit::~StyledDateEdit() = default;

QDate StyledDateEdit::nullDate() const
{
    const QDate shown = date();
    return shown == minimumDate() ? QDate() : shown;
}

void StyledDateEdit::clear()
{
    setDate(minimumDate());
}

void StyledDateEdit::setDate(const QDate &date)
{
    if (!date.isValid())
        QDateTimeEdit::setDate(minimumDate());
    // Qt ignores an invalid date here, which leaves the minimum just set.
    QDateTimeEdit::setDate(date);
}

void StyledDateEdit::mousePressEvent(QMouseEvent *event)
{
    QDateTimeEdit::mousePressEvent(event);
}

void StyledDateEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QDateTimeEdit::mouseReleaseEvent(event);
}

void StyledDateEdit::focusInEvent(QFocusEvent *event)
{
    QDateTimeEdit::focusInEvent(event);
}

void StyledDateEdit::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

StyledDateTimeEdit::StyledDateTimeEdit(QWidget *parent)
    : QDateTimeEdit(parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

StyledDateTimeEdit::~StyledDateTimeEdit() = default;

QDate StyledDateTimeEdit::nullDate() const
{
    return QDate();
}

void StyledDateTimeEdit::clear()
{
    QDateTimeEdit::clear();
}

void StyledDateTimeEdit::setDatetime(const QDateTime &dateTime)
{
    setDateTime(dateTime);
}
