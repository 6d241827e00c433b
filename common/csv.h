#ifndef LIBCONTROL_COMMON_CSV_H
#define LIBCONTROL_COMMON_CSV_H

#include <LibControl/libcontrol_export.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class QIODevice;

/**
 * One CSV record (RFC 4180): the fields joined by `delimiter` and ended by
 * "\r\n". A field is quoted when it holds the delimiter, a double quote, a
 * carriage return or a line feed; its double quotes are then doubled. An
 * empty list gives a record with one empty field, "\r\n".
 */
LIBCONTROL_EXPORT QString csvRecord(QStringList const &fields, QChar delimiter = QLatin1Char(','));

/**
 * Splits CSV text into records of fields (RFC 4180, leniently read).
 *
 * Records end with "\r\n", "\n" or a lone "\r"; a final line ending does
 * not start another record, and a blank line is a record with one empty
 * field. Quoted fields may hold delimiters, line breaks and doubled quotes.
 * A quote inside an unquoted field and text after a closing quote are
 * kept as they are. `ok`, when given, becomes false only when the text ends
 * inside a quoted field (the records read so far are returned, the open
 * field included).
 */
LIBCONTROL_EXPORT QVector<QStringList> parseCsv(QString const &text, QChar delimiter = QLatin1Char(','),
                                                bool *ok = nullptr);

class CsvWriterPrivate;

/**
 * Writes CSV records (csvRecord()) as UTF-8 to a device the caller owns
 * and has opened for writing.
 */
class LIBCONTROL_EXPORT CsvWriter
{
public:
    explicit CsvWriter(QIODevice *device, QChar delimiter = QLatin1Char(','));
    ~CsvWriter();

    /** Writes one record; false when the device refused any of its bytes. */
    bool writeRecord(QStringList const &fields);

private:
    std::unique_ptr<CsvWriterPrivate> const d;
};

#endif
