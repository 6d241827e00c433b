#include <LibControl/fields/datastream.h>

#include <QIODevice>

MyDataStream::MyDataStream(QIODevice *device) : QDataStream(device)
{
    setByteOrder(QDataStream::LittleEndian);
}

bool MyDataStream::IsLoading() const
{
    return device() && device()->isReadable();
}

bool MyDataStream::IsStoring() const
{
    return device() && device()->isWritable();
}

int MyDataStream::Read(char *buffer, int length)
{
    return readRawData(buffer, length);
}

int MyDataStream::Write(char const *buffer, int length)
{
    return writeRawData(buffer, length);
}
