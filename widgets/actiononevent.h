#ifndef LIBCONTROL_WIDGETS_ACTIONONEVENT_H
#define LIBCONTROL_WIDGETS_ACTIONONEVENT_H

#include <LibControl/libcontrol_export.h>

#include <QObject>

class DoubleLineEdit;
class QLineEdit;
class StyledDateEdit;

/**
 * A small event filter that tidies the caret and selection of an edit when
 * it gains focus or is clicked. It never consumes an event.
 *
 * Action 1 (line edits): an empty edit gets its caret at position 0, after
 * Qt has placed it. Action 5 (amounts): a zero amount ("0", "0.00" or
 * "0.0000") is selected whole, so typing replaces it. Action 4 (dates):
 * nothing visible.
 */
class LIBCONTROL_EXPORT ActionOnEvent : public QObject
{
    Q_OBJECT
public:
    ActionOnEvent(int action, QObject *parent);
    ~ActionOnEvent() override;

    /** The action number given at construction. */
    int action() const { return m_action; }

    /** Installs this object as event filter on `w` (null is ignored). */
    void installOn(QLineEdit *w);
    void installOn(StyledDateEdit *w);
    void installOn(DoubleLineEdit *w);

    bool eventFilter(QObject *watched, QEvent *e) override;

public Q_SLOTS:
    /** Moves the caret of the line edit `w` to position 0; other widgets are ignored. */
    void resetCursor(QWidget *w);

private:
    int m_action;
};

#endif
