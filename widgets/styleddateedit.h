#ifndef LIBCONTROL_WIDGETS_STYLEDDATEEDIT_H
#define LIBCONTROL_WIDGETS_STYLEDDATEEDIT_H

#include <LibControl/libcontrol_export.h>

#include <QDate>
#include <QDateEdit>
#include <QDateTime>
#include <QDateTimeEdit>

/**
 * The date edit of every date value on a page. The minimum date stands for
 * "no date" and is shown as "0000/01/01"; the `date` user property reads and
 * writes a null QDate for it, so item-view delegates see no date either.
 * The mouse wheel never changes the value: it scrolls the enclosing page.
 */
class LIBCONTROL_EXPORT StyledDateEdit : public QDateEdit
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ nullDate WRITE setDate USER true)
public:
    /** English dates, right-aligned (0x82), "0000/01/01" for no date. */
    explicit StyledDateEdit(QWidget *parent = nullptr);
    ~StyledDateEdit() override;

    /** The shown date, or a null QDate when the minimum date (no date) is shown. */
    QDate nullDate() const;

public Q_SLOTS:
    /** Shows no date. */
    void clear() override;
    /** Shows `date`; an invalid or null date shows no date. */
    void setDate(const QDate &date);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    /** Ignored, so the wheel scrolls the page rather than the value. */
    void wheelEvent(QWheelEvent *event) override;
};

/**
 * A right-aligned date-and-time edit. Its `date` property always reads a
 * null QDate: date-time values are read through dateTime().
 */
class LIBCONTROL_EXPORT StyledDateTimeEdit : public QDateTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ nullDate)
public:
    /** A right-aligned (0x82) date-time edit with Qt's own look and locale. */
    explicit StyledDateTimeEdit(QWidget *parent = nullptr);
    ~StyledDateTimeEdit() override;

    /** Always a null QDate. */
    QDate nullDate() const;

public Q_SLOTS:
    /** QDateTimeEdit::clear(). */
    void clear() override;
    /** Shows `dateTime`. */
    void setDatetime(const QDateTime &dateTime);
};

#endif
