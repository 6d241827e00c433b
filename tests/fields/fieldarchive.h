#ifndef LIBCONTROL_TESTS_FIELDS_FIELDARCHIVE_H
#define LIBCONTROL_TESTS_FIELDS_FIELDARCHIVE_H

// Small helpers shared by the field tests: archive one field into bytes and
// load one back.

#include <LibControl/fields/Field.h>

#include <QBuffer>
#include <QByteArray>

inline QByteArray storeField(CField &field, unsigned int version)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    MyDataStream ar(&buffer);
    field.Serialize(version, ar);
    return bytes;
}

inline QDataStream::Status loadField(CField &field, unsigned int version, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    field.Serialize(version, ar);
    return ar.status();
}

#endif
