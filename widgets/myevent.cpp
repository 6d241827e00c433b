#include <LibControl/widgets/myevent.h>

MyEvent::MyEvent(int type, int data)
    : QEvent(static_cast<QEvent::Type>(type))
    , m_data(data)
{ }

MyEvent::~MyEvent() = default;

EventT1013Sync::EventT1013Sync()
    : MyEvent(Type, 0)
{ }

EventRC59ESync::EventRC59ESync()
    : MyEvent(Type, 0)
{ }

EventByEventID::EventByEventID(int id)
    : MyEvent(id, 0)
{ }

EventNeedWorksheet::EventNeedWorksheet(int id)
    : MyEvent(Type, id)
{ }

EventForwardEdit::EventForwardEdit(int formId)
    : MyEvent(Type, formId)
{ }
