#include <LibControl/services/filesearcher.h>

#include <QDirIterator>

FileSearcher::FileSearcher(QObject *parent)
    : QObject(parent)
{ }

void FileSearcher::search(const QString &path)
{
    QDirIterator it(path, { QStringLiteral("*.r21") }, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    int count = 0;
    while (it.hasNext()) {
        it.next();
        ++count;
        if (count % 100 == 0)
            emit progressUpdated(count);
    }
    emit searchFinished(count);
}
