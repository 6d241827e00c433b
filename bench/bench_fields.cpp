// Figures for archiving and texts of a field list of realistic size: a form
// holds a few hundred fields, a return a few thousand.

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>

#include <QBuffer>
#include <QtTest>

#include <memory>
#include <vector>

namespace {

// 400 fields, a hundred of each archived kind but dates, then fifty dates.
class Form
{
public:
    Form()
    {
        for (int i = 0; i < 100; ++i) {
            m_owned.push_back(std::make_unique<CIntField>(i, FIELD_ATTR_NONE));
            m_owned.push_back(std::make_unique<CBoolField>(i % 2));
            m_owned.push_back(std::make_unique<CStringField>("Jean Tremblay", 30));
            m_owned.push_back(std::make_unique<CFloatField>(1234.56 + i, i));
        }
        for (int i = 0; i < 50; ++i)
            m_owned.push_back(std::make_unique<CDateField>(QDate(1960, 5, 17), false, FIELD_ATTR_NONE, 0, 0x10000));
        for (auto &field : m_owned) {
            field->m_strName = "fld_line_" + std::to_string(fields.size());
            fields.push_back(field.get());
        }
    }

    std::vector<CField *> fields;

private:
    std::vector<std::unique_ptr<CField>> m_owned;
};

} // namespace

class bench_Fields : public QObject
{
    Q_OBJECT

private slots:
    void storeList();
    void loadList();
    void xmlElements();
    void compareLists();
};

void bench_Fields::storeList()
{
    Form form;
    QByteArray bytes;
    QBENCHMARK {
        bytes.clear();
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        MyDataStream ar(&buffer);
        Common_Serialize_Func(0x10100, ar, form.fields);
    }
}

void bench_Fields::loadList()
{
    Form form;
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        MyDataStream ar(&buffer);
        Common_Serialize_Func(0x10100, ar, form.fields);
    }
    QBENCHMARK {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        MyDataStream ar(&buffer);
        Common_Serialize_Func(0x10100, ar, form.fields);
    }
}

void bench_Fields::xmlElements()
{
    CStringField::setLargeSizeSerializeOption(0x10100, 1024);
    Form form;
    CString out;
    QBENCHMARK {
        for (CField *field : form.fields)
            field->writeToString(out);
    }
}

void bench_Fields::compareLists()
{
    Form a;
    Form b;
    QBENCHMARK {
        Common_Func_OperatorNotEqual(a.fields, b.fields);
    }
}

QTEST_GUILESS_MAIN(bench_Fields)
#include "bench_fields.moc"
