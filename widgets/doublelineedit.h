#ifndef LIBCONTROL_WIDGETS_DOUBLELINEEDIT_H
#define LIBCONTROL_WIDGETS_DOUBLELINEEDIT_H

#include <LibControl/widgets/stringlineedit.h>

/**
 * The line edit of an amount: right-aligned, at least 90 pixels wide,
 * showing a fixed number of decimals.
 *
 * Writing and reading treat a whole-number edit differently on purpose:
 * setDouble writes a whole number when the decimals are below 1, while
 * getDouble truncates only when the decimals are exactly 0.
 */
class LIBCONTROL_EXPORT DoubleLineEdit : public StringLineEdit
{
    Q_OBJECT
public:
    /** The decimals every new edit starts with: 2. */
    static int s_defDecimals;

    /** Styled as StringLineEdit, aligned right (0x82), decimals from s_defDecimals. */
    explicit DoubleLineEdit(QWidget *parent = nullptr);
    ~DoubleLineEdit() override;

    /** Digits shown after the point; below 1 shows whole numbers. */
    int getDecimals() const { return m_decimals; }
    /** Sets the digits shown by later setDouble calls; the current text is kept. */
    void setDecimals(int decimals) { m_decimals = decimals; }

    /**
     * Shows `v` in fixed notation with the edit's decimals, without grouping
     * separators. With decimals below 1 the value is truncated toward zero,
     * not rounded: 2.9 shows "2" and -2.9 shows "-2". A value beyond the
     * 64-bit range shows that range's limit, and NaN shows "0".
     */
    void setDouble(double v);
    /**
     * The text as a number: every "," is dropped first (1,234.50 reads as
     * 1234.5) and an unparsable text gives 0.0. With decimals exactly 0 the
     * result is truncated toward zero.
     */
    double getDouble() const;

    /** As StringLineEdit::setAttID. */
    void setAttID(int id) override;
    /** As StringLineEdit::event: QLineEdit's own handler is skipped. */
    bool event(QEvent *e) override;

protected:
    int m_decimals;
};

#endif
