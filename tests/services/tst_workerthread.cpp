#include <LibControl/services/filesearcher.h>
#include <LibControl/services/myworkerthread.h>

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A worker whose steps only count, so a run takes no time; it can cancel
// itself during a chosen step or wait for the test during the first one.
class CountingWorker : public MyWorkerThread
{
public:
    QAtomicInt jobs;
    int cancelDuringJob = 0;
    QSemaphore *firstJobStarted = nullptr;
    QSemaphore *mayContinue = nullptr;

protected:
    void doJob() override
    {
        const int job = jobs.fetchAndAddOrdered(1) + 1;
        if (job == cancelDuringJob)
            cancel();
        if (job == 1 && firstJobStarted) {
            firstJobStarted->release();
            mayContinue->tryAcquire(1, 5000);
        }
    }
};

// Lives in the test's thread, so the worker's signals reach it queued.
class Recorder : public QObject
{
public:
    explicit Recorder(MyWorkerThread &worker)
    {
        connect(&worker, &MyWorkerThread::progressChanged, this, [this](int value) { progress.append(value); });
        connect(&worker, &MyWorkerThread::finished, this, [this] { ++finished; });
    }
    QList<int> progress;
    int finished = 0;
};

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class tst_WorkerThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void progressUntilCancelled_data();
    void progressUntilCancelled();
    void cancelFromAnotherThread();
    void checkStrInStrList_data();
    void checkStrInStrList();
    void fileSearchCountsR21Files();
    void fileSearchOfMissingFolder();
};

void tst_WorkerThread::progressUntilCancelled_data()
{
    QTest::addColumn<bool>("cancelBeforeStart");
    QTest::addColumn<int>("cancelDuringJob");
    QTest::addColumn<QList<int>>("progress");

    QTest::newRow("full run reports 0 to 80") << false << 0 << QList<int> { 0, 20, 40, 60, 80 };
    QTest::newRow("cancelled before start runs no step") << true << 0 << QList<int> {};
    // The step that saw the cancel still completes and reports.
    QTest::newRow("cancel takes effect before the next step") << false << 2 << QList<int> { 0, 20 };
}

void tst_WorkerThread::progressUntilCancelled()
{
    QFETCH(bool, cancelBeforeStart);
    QFETCH(int, cancelDuringJob);
    QFETCH(QList<int>, progress);

    CountingWorker worker;
    worker.cancelDuringJob = cancelDuringJob;
    Recorder recorder(worker);
    if (cancelBeforeStart)
        worker.cancel();
    worker.start();
    QTRY_COMPARE_WITH_TIMEOUT(recorder.finished, 1, 10000);
    QVERIFY(worker.wait(10000));
    QCOMPARE(recorder.progress, progress);
    QCOMPARE(worker.jobs.loadAcquire(), progress.size());
}

void tst_WorkerThread::cancelFromAnotherThread()
{
    QSemaphore started;
    QSemaphore mayContinue;
    CountingWorker worker;
    worker.firstJobStarted = &started;
    worker.mayContinue = &mayContinue;
    Recorder recorder(worker);
    worker.start();
    QVERIFY(started.tryAcquire(1, 10000));
    worker.cancel();
    mayContinue.release();
    QTRY_COMPARE_WITH_TIMEOUT(recorder.finished, 1, 10000);
    QVERIFY(worker.wait(10000));
    QCOMPARE(recorder.progress, QList<int>({ 0 }));
    QCOMPARE(worker.jobs.loadAcquire(), 1);
}

void tst_WorkerThread::checkStrInStrList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<bool>("caseSensitive");
    QTest::addColumn<bool>("found");

    const QStringList provinces { QStringLiteral("ON"), QStringLiteral("QC") };
    QTest::newRow("exact match") << QStringLiteral("QC") << provinces << true << true;
    QTest::newRow("case differs, sensitive") << QStringLiteral("qc") << provinces << true << false;
    QTest::newRow("case differs, insensitive") << QStringLiteral("qc") << provinces << false << true;
    QTest::newRow("absent") << QStringLiteral("BC") << provinces << false << false;
    QTest::newRow("prefix is not a match") << QStringLiteral("O") << provinces << false << false;
    QTest::newRow("empty list") << QStringLiteral("ON") << QStringList() << false << false;
}

void tst_WorkerThread::checkStrInStrList()
{
    QFETCH(QString, text);
    QFETCH(QStringList, list);
    QFETCH(bool, caseSensitive);
    QFETCH(bool, found);
    QCOMPARE(MyWorkerThread::checkStrInStrList(text, list, caseSensitive), found);
}

void tst_WorkerThread::fileSearchCountsR21Files()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QDir root(dir.path());
    QVERIFY(root.mkpath(QStringLiteral("2024/clients")));
    for (int i = 0; i < 250; ++i) {
        const QString folder = i % 3 == 0 ? QStringLiteral(".")
            : i % 3 == 1                  ? QStringLiteral("2024")
                                          : QStringLiteral("2024/clients");
        touch(root.filePath(QStringLiteral("%1/return%2.r21").arg(folder).arg(i)));
    }
    touch(root.filePath(QStringLiteral("notes.txt")));
    touch(root.filePath(QStringLiteral("return.r20")));
    QVERIFY(root.mkdir(QStringLiteral("folder.r21")));
    QVERIFY(QFile::link(root.filePath(QStringLiteral("return0.r21")), root.filePath(QStringLiteral("link.r21"))));

    FileSearcher searcher;
    QSignalSpy progress(&searcher, &FileSearcher::progressUpdated);
    QSignalSpy finished(&searcher, &FileSearcher::searchFinished);
    searcher.search(dir.path());

    QCOMPARE(progress.count(), 2);
    QCOMPARE(progress.at(0).at(0).toInt(), 100);
    QCOMPARE(progress.at(1).at(0).toInt(), 200);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().at(0).toInt(), 250);
}

void tst_WorkerThread::fileSearchOfMissingFolder()
{
    FileSearcher searcher;
    QSignalSpy finished(&searcher, &FileSearcher::searchFinished);
    searcher.search(QStringLiteral("/nonexistent/folder"));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().at(0).toInt(), 0);
}

QTEST_GUILESS_MAIN(tst_WorkerThread)
#include "tst_workerthread.moc"
