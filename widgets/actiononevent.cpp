#include <LibControl/widgets/actiononevent.h>

#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/styleddateedit.h>

#include <QEvent>
#include <QLineEdit>
#include <QMetaObject>

ActionOnEvent::ActionOnEvent(int action, QObject *parent)
    : QObject(parent)
    , m_action(action)
{
}

ActionOnEvent::~ActionOnEvent() = default;

void ActionOnEvent::installOn(QLineEdit *w)
{
    if (w)
        w->installEventFilter(this);
}

void ActionOnEvent::installOn(StyledDateEdit *w)
{
    if (w)
        w->installEventFilter(this);
}

void ActionOnEvent::installOn(DoubleLineEdit *w)
{
    if (w)
        w->installEventFilter(this);
}

bool ActionOnEvent::eventFilter(QObject *watched, QEvent *e)
{
    if (e->type() == QEvent::FocusIn || e->type() == QEvent::MouseButtonRelease) {
        if (m_action == 1) {
            auto *edit = qobject_cast<QLineEdit *>(watched);
            // Queued: Qt places the caret after the filter has run.
            if (edit && edit->text().isEmpty())
                QMetaObject::invokeMethod(this, "resetCursor", Qt::QueuedConnection,
                                          Q_ARG(QWidget *, edit));
        } else if (m_action == 5) {
            auto *amount = qobject_cast<DoubleLineEdit *>(watched);
            if (amount) {
                const QString text = amount->text();
                if (text == QLatin1String("0") || text == QLatin1String("0.00") || text == QLatin1String("0.0000"))
                    amount->selectAll();
            }
        }
    }
    return QObject::eventFilter(watched, e);
}

void ActionOnEvent::resetCursor(QWidget *w)
{
    if (auto *edit = qobject_cast<QLineEdit *>(w))
        edit->setCursorPosition(0);
}
