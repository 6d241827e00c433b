#ifndef LIBCONTROL_WIDGETS_MYEVENT_H
#define LIBCONTROL_WIDGETS_MYEVENT_H

#include <LibControl/libcontrol_export.h>

#include <QEvent>

/**
 * An application event that carries one integer. Always created with `new`
 * and handed to QCoreApplication::postEvent, which owns and frees it.
 */
class LIBCONTROL_EXPORT MyEvent : public QEvent
{
public:
    /** An event of the given QEvent type carrying `data`. */
    MyEvent(int type, int data);
    ~MyEvent() override;

    /** The integer the event carries. */
    int data() const { return m_data; }

private:
    int m_data;
};

/** Type 1013, data 0: the application re-reads its T1013 authorisation data. */
class LIBCONTROL_EXPORT EventT1013Sync : public MyEvent
{
public:
    static constexpr int Type = 1013;
    EventT1013Sync();
};

/** Type 5901, data 0: the application re-reads its RC59E consent data. */
class LIBCONTROL_EXPORT EventRC59ESync : public MyEvent
{
public:
    static constexpr int Type = 5901;
    EventRC59ESync();
};

/** An event of a type the caller chooses (`id`), data 0. */
class LIBCONTROL_EXPORT EventByEventID : public MyEvent
{
public:
    explicit EventByEventID(int id);
};

/**
 * Type 1234: a line edit with an attached worksheet was clicked or typed
 * into; the data is the edit's worksheet attachment identifier.
 */
class LIBCONTROL_EXPORT EventNeedWorksheet : public MyEvent
{
public:
    static constexpr int Type = 1234;
    explicit EventNeedWorksheet(int id);
};

/** Type 1235: the application should open the form whose identifier is the data. */
class LIBCONTROL_EXPORT EventForwardEdit : public MyEvent
{
public:
    static constexpr int Type = 1235;
    explicit EventForwardEdit(int formId);
};

#endif
