#include <LibControl/forms/taxformdata.h>

#include <LibControl/common/utilities.h>
#include <LibControl/common/xmlreader.h>
#include <LibControl/fields/datastream.h>
#include <LibControl/worksheets/WorkSheetData.h>

#include <QIODevice>

#include <tinyxml.h>

#include <iterator>
#include <utility>

namespace {

// XOR with the key repeated; the same call scrambles and unscrambles.
void scramble(QByteArray &block, CString const &key)
{
    QByteArray const keyBytes = key.toUtf8();
    if (keyBytes.isEmpty() || block.isEmpty())
        return;
    abcTwo(block.data(), block.size(), keyBytes.constData(), keyBytes.size());
}

void appendElement(CField &field, QString &text)
{
    CString element;
    if (field.writeToString(element) >= 0)
        text += element;
}

void readValue(CField &field, std::map<std::string, CString> const &values)
{
    auto const found = values.find(field.m_strName);
    if (found != values.end())
        field.readFromString(found->second);
}

} // namespace

QByteArray CTaxData_Form::blockText(unsigned int version)
{
    QString text = QStringLiteral("<m>");
    if (version >= FORM_DATAFLAG_VERSION) {
        for (CIntField *flag : {&m_DataFlag1, &m_DataFlag2, &m_DataFlag3, &m_DataFlag4})
            appendElement(*flag, text);
    }
    for (CField *field : m_fields)
        appendElement(*field, text);
    CString worksheets;
    for (CWSBaseData *worksheet : m_listWorksheets)
        worksheet->writeToString(worksheets);
    text += worksheets;
    text += QLatin1String("</m>");
    return text.toUtf8();
}

bool CTaxData_Form::readBlockText(QByteArray const &text, unsigned int version)
{
    if (text.isEmpty())
        return false;
    TiXmlDocument document;
    document.Parse(text.constData(), nullptr, TIXML_ENCODING_UTF8);
    TiXmlElement *root = document.Error() ? nullptr : document.FirstChildElement();
    if (!root)
        return false;
    std::map<std::string, CString> values;
    readXMLFieldsToStringMap(root, values);
    loadFromMap(std::move(values), version);
    return true;
}

void CTaxData_Form::loadFromMap(std::map<std::string, CString> values, unsigned int version)
{
    if (version >= FORM_DATAFLAG_VERSION) {
        for (CIntField *flag : {&m_DataFlag1, &m_DataFlag2, &m_DataFlag3, &m_DataFlag4})
            readValue(*flag, values);
    }
    for (CField *field : m_fields) {
        auto found = values.find(field->m_strName);
        auto const oldNames = m_mapFieldOldNames.find(field->m_strName);
        if (found == values.end() && oldNames != m_mapFieldOldNames.end() && oldNames->second) {
            for (std::string const &oldName : *oldNames->second) {
                found = values.find(oldName);
                if (found != values.end())
                    break;
            }
        }
        if (found != values.end())
            field->readFromString(found->second);
    }
    // Each worksheet takes the map by value; the last one may have it outright.
    for (auto it = m_listWorksheets.begin(); it != m_listWorksheets.end(); ++it) {
        bool const last = std::next(it) == m_listWorksheets.end();
        (*it)->readFromStringMap(last ? std::move(values) : values);
    }
}

void CTaxData_Form::Serialize(unsigned int version, CString const &key, MyDataStream &ar)
{
    if (ar.IsStoring()) {
        m_nDelimiter = FORM_ARCHIVE_DELIMITER;
        QByteArray block = blockText(version);
        scramble(block, key);
        ar << qint32(m_nDelimiter) << qint32(block.size());
        ar.writeRawData(block.constData(), block.size());
        return;
    }

    qint32 marker = 0;
    qint32 length = 0;
    ar >> marker;
    if (ar.status() != QDataStream::Ok)
        return;
    m_nDelimiter = marker;
    if (marker != FORM_ARCHIVE_DELIMITER)
        qInfo("delimeter error");
    ar >> length;
    if (ar.status() != QDataStream::Ok)
        return;
    // A damaged count must not make us allocate what the stream cannot hold.
    qint64 const available = ar.device() ? ar.device()->bytesAvailable() : 0;
    if (length < 0 || length > available) {
        ar.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    QByteArray block(length, Qt::Uninitialized);
    if (ar.readRawData(block.data(), length) != length) {
        ar.setStatus(QDataStream::ReadPastEnd);
        return;
    }
    scramble(block, key);
    readBlockText(block, version);
}
