#ifndef LIBCONTROL_TESTS_FIELDS_FIELDARCHIVE_H
#define LIBCONTROL_TESTS_FIELDS_FIELDARCHIVE_H

// Small helpers shared by the archive tests: the bytes a writer puts into a
// fresh archive, and a reader run over given bytes.

#include <LibControl/fields/Field.h>

#include <QBuffer>
#include <QByteArray>

template<class Write>
QByteArray archived(Write const &write)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    MyDataStream ar(&buffer);
    write(ar);
    return bytes;
}

// Returns the stream's status after `read`.
template<class Read>
QDataStream::Status readArchive(QByteArray bytes, Read const &read)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    read(ar);
    return ar.status();
}

inline QByteArray storeField(CField &field, unsigned int version)
{
    return archived([&](MyDataStream &ar) { field.Serialize(version, ar); });
}

inline QDataStream::Status loadField(CField &field, unsigned int version, QByteArray const &bytes)
{
    return readArchive(bytes, [&](MyDataStream &ar) { field.Serialize(version, ar); });
}

#endif
