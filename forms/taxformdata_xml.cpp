#include <LibControl/forms/taxformdata.h>

#include <LibControl/fields/datastream.h>

namespace {

void writeUtf8(MyDataStream &ar, QString const &text)
{
    QByteArray const bytes = text.toUtf8();
    ar.writeRawData(bytes.constData(), bytes.size());
}

} // namespace

void CTaxData_Form::SerializeXml(std::string const &name, int number, MyDataStream &ar)
{
    if (!ar.IsStoring())
        return;
    SerializeXmlStart(name, number, ar);
    SerializeXmlBody(ar);
    SerializeXmlEnd(ar);
}

void CTaxData_Form::SerializeXmlStart(std::string const &name, int number, MyDataStream &ar)
{
    writeUtf8(ar, QStringLiteral("<item>\n<c>%1</c>\n<d>%2</d>\n").arg(QString::fromStdString(name)).arg(number));
}

void CTaxData_Form::SerializeXmlBody(MyDataStream &ar)
{
    QString body;
    for (CField *field : m_fields) {
        CString element;
        if (field->writeToXmlForPdf(element) >= 0)
            body += element + QLatin1Char('\n');
    }
    writeUtf8(ar, body);
}

void CTaxData_Form::SerializeXmlEnd(MyDataStream &ar)
{
    writeUtf8(ar, QStringLiteral("</item>"));
}
