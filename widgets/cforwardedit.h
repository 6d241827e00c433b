#ifndef LIBCONTROL_WIDGETS_CFORWARDEDIT_H
#define LIBCONTROL_WIDGETS_CFORWARDEDIT_H

#include <LibControl/widgets/doublelineedit.h>

/**
 * The amount edit of a value carried forward from elsewhere: a
 * DoubleLineEdit whose text is teal (#32aaa8), amber on hover.
 */
class LIBCONTROL_EXPORT CForwardEdit : public DoubleLineEdit
{
    Q_OBJECT
public:
    /** A DoubleLineEdit restyled with the teal forward look. */
    explicit CForwardEdit(QWidget *parent = nullptr);
    ~CForwardEdit() override;
};

#endif
