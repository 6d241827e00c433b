#include <LibControl/common/csv.h>

#include <QIODevice>

class CsvWriterPrivate
{
public:
    QIODevice *device;
    QChar delimiter;
};

namespace {

bool needsQuotes(QString const &field, QChar delimiter)
{
    for (QChar c : field) {
        if (c == delimiter || c == QLatin1Char('"') || c == QLatin1Char('\r') || c == QLatin1Char('\n'))
            return true;
    }
    return false;
}

// Reads one record starting at `pos`; leaves `pos` after its line ending.
QStringList readRecord(QString const &text, int &pos, QChar delimiter, bool &ok)
{
    QStringList fields;
    QString field;
    bool quoted = false;
    int const size = text.size();
    while (pos < size) {
        QChar const c = text.at(pos++);
        if (quoted) {
            if (c != QLatin1Char('"'))
                field += c;
            else if (pos < size && text.at(pos) == QLatin1Char('"'))
                field += text.at(pos++);
            else
                quoted = false;
        } else if (c == QLatin1Char('"') && field.isEmpty()) {
            quoted = true;
        } else if (c == delimiter) {
            fields.append(field);
            field.clear();
        } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            if (c == QLatin1Char('\r') && pos < size && text.at(pos) == QLatin1Char('\n'))
                ++pos;
            break;
        } else {
            field += c;
        }
    }
    if (quoted)
        ok = false;
    fields.append(field);
    return fields;
}

} // namespace

QString csvRecord(QStringList const &fields, QChar delimiter)
{
    QString record;
    for (int i = 0; i < fields.size(); ++i) {
        if (i > 0)
            record += delimiter;
        QString const &field = fields.at(i);
        if (needsQuotes(field, delimiter)) {
            QString escaped = field;
            escaped.replace(QLatin1Char('"'), QLatin1String("\"\""));
            record += QLatin1Char('"') + escaped + QLatin1Char('"');
        } else {
            record += field;
        }
    }
    record += QLatin1String("\r\n");
    return record;
}

QVector<QStringList> parseCsv(QString const &text, QChar delimiter, bool *ok)
{
    QVector<QStringList> records;
    bool complete = true;
    int pos = 0;
    while (pos < text.size())
        records.append(readRecord(text, pos, delimiter, complete));
    if (ok)
        *ok = complete;
    return records;
}

CsvWriter::CsvWriter(QIODevice *device, QChar delimiter)
    : d(new CsvWriterPrivate{device, delimiter})
{
}

CsvWriter::~CsvWriter() = default;

bool CsvWriter::writeRecord(QStringList const &fields)
{
    QByteArray const bytes = csvRecord(fields, d->delimiter).toUtf8();
    return d->device && d->device->write(bytes) == bytes.size();
}
