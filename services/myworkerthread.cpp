#include <LibControl/services/myworkerthread.h>

#include <QMutexLocker>

MyWorkerThread::MyWorkerThread(QObject *parent)
    : QThread(parent)
{ }

MyWorkerThread::~MyWorkerThread()
{
    cancel();
    wait();
}

void MyWorkerThread::cancel()
{
    QMutexLocker locker(&m_mutex);
    m_cancelled = true;
    m_condition.wakeAll();
}

bool MyWorkerThread::isCancelled()
{
    QMutexLocker locker(&m_mutex);
    return m_cancelled;
}

void MyWorkerThread::doJob()
{
    QThread::msleep(1000);
}

void MyWorkerThread::run()
{
    // Progress is reported before each step's increment, so a full run
    // reports 0 to 80 and never 100; receivers rely on finished() instead.
    for (int progress = 0; progress < 100; progress += 20) {
        if (isCancelled())
            break;
        doJob();
        emit progressChanged(progress);
    }
    emit finished();
}

bool MyWorkerThread::checkStrInStrList(QString &s, QStringList &list, bool caseSensitive)
{
    return list.contains(s, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
}
