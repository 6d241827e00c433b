// Stores and loads a synthetic return of 150 forms of 200 mixed fields (plus
// two worksheets each) and compares both with a bare TinyXML parse of the
// same plain XML blocks, the one cost loading cannot avoid.

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/datastream.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/worksheets/DepWorkSheetData.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <tinyxml.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int FormCount = 150;
constexpr int FieldsPerForm = 200;
constexpr int Runs = 15;
constexpr unsigned int Version = 0x101F4;

class SyntheticForm : public CTaxData_Form
{
public:
    explicit SyntheticForm(int seed) : CTaxData_Form(FORM_T1GENERAL)
    {
        for (int i = 0; i < FieldsPerForm; ++i)
            addField(i, seed);
        dependant.m_strName = "WSDep";
        disability.m_strName = "WSDis";
        dependant.DepIdx.m_nValue = seed % 3;
        dependant.AmountClaim.m_dValue = 1000.25 + seed;
        disability.fld_claim.m_dValue = 9000.5;
        m_listWorksheets = {&dependant, &disability};
    }

    CWSDepAmtData dependant;
    CWSDisabilityTransferAmtData disability;

private:
    // Amounts 40 %, integers 20 %, flags 15 %, texts 15 %, dates 10 %.
    void addField(int i, int seed)
    {
        std::unique_ptr<CField> field;
        int const kind = i % 20;
        if (kind < 8) {
            auto *amount = new CFloatField(0.0, 1000 + i);
            amount->m_dValue = (seed + 1) * 37.25 + i;
            field.reset(amount);
        } else if (kind < 12) {
            field.reset(new CIntField(1000 + i, seed * i, FIELD_ATTR_NONE));
        } else if (kind < 15) {
            field.reset(new CBoolField(1000 + i, (seed + i) % 2));
        } else if (kind < 18) {
            auto *text = new CStringField(1000 + i, "", 60, FIELD_VERSION_FIRST);
            text->m_strValue = CString(QStringLiteral("Line %1 of form %2 & co").arg(i).arg(seed));
            field.reset(text);
        } else {
            auto *date = new CDateField(1000 + i, FIELD_ATTR_NONE);
            date->m_date = QDate(2024, 1 + i % 12, 1 + seed % 28);
            field.reset(date);
        }
        field->m_strName = "fld_line_" + std::to_string(10000 + i);
        m_fields.push_back(field.get());
        m_owned.push_back(std::move(field));
    }

    std::vector<std::unique_ptr<CField>> m_owned;
};

double medianMs(std::function<void()> const &run)
{
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

QByteArray storeAll(std::vector<std::unique_ptr<SyntheticForm>> &forms, CString const &key)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    MyDataStream ar(&buffer);
    for (auto &form : forms)
        form->Serialize(Version, key, ar);
    return bytes;
}

void loadAll(std::vector<std::unique_ptr<SyntheticForm>> &forms, QByteArray bytes, CString const &key)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    for (auto &form : forms)
        form->Serialize(Version, key, ar);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    CStringField::setLargeSizeSerializeOption(0x10000, 100);
    CString const key("bench-key");

    std::vector<std::unique_ptr<SyntheticForm>> forms;
    std::vector<std::unique_ptr<SyntheticForm>> targets;
    for (int i = 0; i < FormCount; ++i) {
        forms.emplace_back(new SyntheticForm(i));
        targets.emplace_back(new SyntheticForm(i + 1));
    }
    std::vector<QByteArray> plainBlocks;
    for (auto &form : forms)
        plainBlocks.push_back(form->blockText(Version));
    QByteArray const archive = storeAll(forms, key);

    double const storeMs = medianMs([&] { storeAll(forms, key); });
    double const loadMs = medianMs([&] { loadAll(targets, archive, key); });
    double const parseMs = medianMs([&] {
        for (QByteArray const &block : plainBlocks) {
            TiXmlDocument document;
            document.Parse(block.constData(), nullptr, TIXML_ENCODING_UTF8);
        }
    });

    double const megabytes = archive.size() / (1024.0 * 1024.0);
    std::printf("return: %d forms x %d fields + 2 worksheets each, archive %.2f MB, median of %d runs\n", FormCount,
                FieldsPerForm, megabytes, Runs);
    std::printf("store:      %8.2f ms  %9.0f forms/s  %7.1f MB/s\n", storeMs, FormCount * 1000.0 / storeMs,
                megabytes * 1000.0 / storeMs);
    std::printf("load:       %8.2f ms  %9.0f forms/s  %7.1f MB/s\n", loadMs, FormCount * 1000.0 / loadMs,
                megabytes * 1000.0 / loadMs);
    std::printf("bare parse: %8.2f ms  %9.0f forms/s  %7.1f MB/s\n", parseMs, FormCount * 1000.0 / parseMs,
                megabytes * 1000.0 / parseMs);
    std::printf("load / bare parse:  %.2f\n", loadMs / parseMs);
    std::printf("store / bare parse: %.2f\n", storeMs / parseMs);
    return 0;
}
