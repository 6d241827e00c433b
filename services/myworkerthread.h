#ifndef LIBCONTROL_SERVICES_MYWORKERTHREAD_H
#define LIBCONTROL_SERVICES_MYWORKERTHREAD_H

#include <LibControl/libcontrol_export.h>

#include <QMutex>
#include <QStringList>
#include <QThread>
#include <QWaitCondition>

/**
 * A thread that runs a job in five equal steps, each one a call to doJob().
 *
 * Before each step it emits progressChanged() with 0, 20, 40, 60 and 80 in
 * turn; 100 is never reported, the end is told by finished() alone (this
 * class's own signal, emitted by run() after the last step or on cancel).
 * cancel() takes effect before the next step, not during one; a thread
 * cancelled before it starts calls doJob() zero times and only emits
 * finished(). Signals reach receivers in other threads through queued
 * connections.
 *
 * Destroying a running thread cancels it and waits for the current step.
 * A subclass whose doJob() uses its own members should do the same
 * (cancel(), then wait()) in its own destructor, before those members go.
 */
class LIBCONTROL_EXPORT MyWorkerThread : public QThread
{
    Q_OBJECT
public:
    explicit MyWorkerThread(QObject *parent = nullptr);
    ~MyWorkerThread() override;

    /** Asks the thread to stop before its next step; callable from any thread. */
    void cancel();

    /**
     * True if some entry of `list` equals `s`, case-sensitively when
     * `caseSensitive` is true; false for an empty list.
     */
    static bool checkStrInStrList(QString &s, QStringList &list, bool caseSensitive);

Q_SIGNALS:
    /** The progress before a step: 0, 20, 40, 60 or 80. */
    void progressChanged(int progress);
    /** The run has ended, complete or cancelled. */
    void finished();

protected:
    /** One step of the work, run on the worker thread; the default sleeps one second. */
    virtual void doJob();
    /** The five steps; see the class description. */
    void run() override;

private:
    bool isCancelled();

    QMutex m_mutex;
    QWaitCondition m_condition;
    bool m_cancelled = false;
};

#endif
