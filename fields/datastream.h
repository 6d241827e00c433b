#ifndef LIBCONTROL_FIELDS_DATASTREAM_H
#define LIBCONTROL_FIELDS_DATASTREAM_H

#include <LibControl/libcontrol_export.h>

#include <QDataStream>

class QIODevice;

/**
 * The binary archive of return files: a little-endian QDataStream over a
 * caller's device, with Qt's default stream version and double precision.
 * The stream does not own the device.
 */
class LIBCONTROL_EXPORT MyDataStream : public QDataStream
{
public:
    explicit MyDataStream(QIODevice *device);

    /** True when the device is readable. */
    bool IsLoading() const;
    /**
     * True when the device is writable. A read-write device answers yes to
     * both; every Serialize asks IsStoring() first, so such a stream stores.
     */
    bool IsStoring() const;

    /** Raw bytes, no length prefix; returns the count the device reported. */
    int Read(char *buffer, int length);
    /** Raw bytes, no length prefix; returns the count the device reported. */
    int Write(char const *buffer, int length);
};

#endif
