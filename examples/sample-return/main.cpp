// A small 2025 return built on LibControl's public API: it calculates,
// validates, saves and reloads the return, and writes its outputs; with
// --gui it is a desktop application instead.

#include "samplegui.h"
#include "samplereturn.h"

#include <LibControl/common/utilities.h>
#include <LibControl/forms/NetfileGeneral.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <tinyxml.h>

namespace {

QString amount(double value)
{
    CString text;
    myDoubleToString(value, -2, text);
    return text.isEmpty() ? QStringLiteral("0.00") : QString(text);
}

void writeText(QString const &path, QString const &text)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(text.toUtf8());
}

bool wellFormed(QString const &path)
{
    TiXmlDocument document;
    return document.LoadFile(path.toLocal8Bit().constData());
}

} // namespace

int main(int argc, char *argv[])
{
    if (sampleGuiWanted(argc, argv))
        return runSampleGui(argc, argv);

    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QString const folder = app.arguments().value(1, QStringLiteral("sample-return-output"));
    if (!QDir().mkpath(folder)) {
        out << "sample-return: cannot create " << folder << '\n';
        return 1;
    }

    // Process-wide switch, set once at start: texts narrower than 256
    // characters travel in the form blocks' XML.
    CStringField::setLargeSizeSerializeOption(SampleReturn::ArchiveVersion, 256);

    SampleReturn ret;
    ret.fillExample();
    ret.t1.Calculate();

    std::list<CString> messages;
    int const problems = ret.t1.Validate(0xFF, messages);

    QString const returnFile = folder + QStringLiteral("/sample.r25");
    QString error;
    if (!ret.save(returnFile, &error)) {
        out << "sample-return: cannot save " << returnFile << ": " << error << '\n';
        return 1;
    }
    SampleReturn reloaded;
    if (!reloaded.load(returnFile, &error)) {
        out << "sample-return: cannot load " << returnFile << ": " << error << '\n';
        return 1;
    }
    // Date-times are never archived; an application recalculates after opening.
    reloaded.t1.Calculate();
    bool const identical = ret.sameAs(reloaded);

    QString const printData = folder + QStringLiteral("/print-data.xml");
    ret.writePrintData(printData);

    CString netfile;
    int lineCount = 0;
    std::map<int, STRUCT_NETFILE_TIA_FIELD_TYPE> filed;
    NetfileGenObjParamStru param{nullptr, &netfile, &lineCount, &filed};
    ret.t1.WriteNetfile(0xFF, param);
    QString const netfileXml = folder + QStringLiteral("/netfile.xml");
    writeText(netfileXml, QStringLiteral("<T1Return>\n") + netfile + QStringLiteral("</T1Return>\n"));

    QDir(folder).mkpath(QStringLiteral("xml"));
    QByteArray const folderBytes = QFile::encodeName(folder);
    ret.t1.WriteLumenFormXmlFile(folderBytes.constData(), "T1", "t1-layout.xml", 0);
    ret.t1.WriteJavaFile(folderBytes.constData(), "SampleT1Form", false);
    QString const layoutXml = folder + QStringLiteral("/xml/t1-layout.xml");

    SampleT1Form const &t1 = ret.t1;
    out << "Sample 2025 return for " << t1.fld_FirstName.m_strValue << ' ' << t1.fld_LastName.m_strValue << '\n'
        << "  total income (15000)       " << amount(t1.fld_15000_TotalIncome.m_dValue) << '\n'
        << "  net income (23600)         " << amount(t1.fld_23600_NetIncome.m_dValue) << '\n'
        << "  eligible dependant (30400) " << amount(t1.fld_30400_EligibleDependant.m_dValue) << '\n'
        << "  caregiver (30450)          " << amount(t1.fld_30450_Caregiver.m_dValue) << '\n'
        << "  credits (33800)            " << amount(t1.fld_33800_CreditAmount.m_dValue) << '\n'
        << "  federal tax (40400)        " << amount(t1.fld_40400_FederalTax.m_dValue) << '\n'
        << "  net federal tax (42000)    " << amount(t1.fld_42000_NetFederalTax.m_dValue) << '\n'
        << "  refund (48400)             " << amount(t1.fld_48400_Refund.m_dValue) << '\n'
        << "  balance owing (48500)      " << amount(t1.fld_48500_Balance.m_dValue) << '\n'
        << "Validation: " << problems << " problem(s)\n";
    for (CString const &message : messages)
        out << "  " << message << '\n';
    out << "Saved " << returnFile << " (" << QFileInfo(returnFile).size() << " bytes); reloaded "
        << (identical ? "identical" : "DIFFERENT") << '\n'
        << "Netfile: " << lineCount << " lines in " << netfileXml << '\n';
    bool allWellFormed = true;
    for (QString const &xml : {printData, netfileXml, layoutXml}) {
        bool const ok = wellFormed(xml);
        allWellFormed = allWellFormed && ok;
        out << "  " << xml << (ok ? " is well-formed XML" : " is NOT well-formed XML") << '\n';
    }
    out << "Java declaration: " << folder << "/SampleT1Form.java\n";
    return identical && allWellFormed ? 0 : 1;
}
