#ifndef LIBCONTROL_SERVICES_FILESEARCHER_H
#define LIBCONTROL_SERVICES_FILESEARCHER_H

#include <LibControl/libcontrol_export.h>

#include <QObject>

/**
 * Counts the return files ("*.r21") in a folder tree.
 *
 * Runs in the thread of the object's owner; move it to a worker thread to
 * keep a user interface responsive. Symbolic links are neither counted nor
 * followed. Whether "X.R21" matches follows the platform's file-name case
 * rules.
 */
class LIBCONTROL_EXPORT FileSearcher : public QObject
{
    Q_OBJECT
public:
    explicit FileSearcher(QObject *parent = nullptr);

Q_SIGNALS:
    /** Emitted each time the count reaches a multiple of 100. */
    void progressUpdated(int fileCount);
    /** Emitted once at the end with the total; 0 for a missing folder. */
    void searchFinished(int fileCount);

public Q_SLOTS:
    /** Walks `path` and its subfolders, counting the matching files. */
    void search(const QString &path);
};

#endif
