// Reading and writing the sample's files through the library's archive.

#include "samplereturn.h"

#include <LibControl/fields/datastream.h>

#include <QFile>
#include <QSaveFile>

namespace {

void setError(QString *error, QString const &text)
{
    if (error)
        *error = text;
}

} // namespace

bool SampleReturn::save(QString const &path, QString *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        setError(error, file.errorString());
        return false;
    }
    MyDataStream ar(&file);
    dependants.serilize(int(ArchiveVersion), ar);
    t1.Serialize(ArchiveVersion, CString(Key), ar);
    if (ar.status() != QDataStream::Ok || !file.commit()) {
        setError(error, file.errorString());
        return false;
    }
    return true;
}

bool SampleReturn::load(QString const &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, file.errorString());
        return false;
    }
    MyDataStream ar(&file);
    dependants.serilize(int(ArchiveVersion), ar);
    t1.Serialize(ArchiveVersion, CString(Key), ar);
    if (ar.status() != QDataStream::Ok) {
        setError(error, QStringLiteral("the file is damaged or truncated"));
        return false;
    }
    return true;
}

bool SampleReturn::writePrintData(QString const &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    MyDataStream ar(&file);
    t1.SerializeXml("T1", 1, ar);
    return ar.status() == QDataStream::Ok;
}
