#include "samplepage.h"

#include "samplet1form.h"

#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/stringlineedit.h>

#include <QGridLayout>
#include <QLabel>

namespace {

// Each of the two columns takes caption, line number, widget and a gap.
constexpr int ColumnsPerSection = 4;
constexpr int AmountWidth = 130;

int attachmentId(char const *line)
{
    return QByteArray(line).toInt();
}

} // namespace

SampleFormPage::SampleFormPage(char const *title, SampleT1Form *form, QWidget *parent)
    : BaseTaxPage(title, form, parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(4);
    m_grid->setColumnMinimumWidth(ColumnsPerSection - 1, 24);
    setAutoFillBackground(true);
}

SampleFormPage::~SampleFormPage() = default;

SampleT1Form *SampleFormPage::sampleForm() const
{
    return static_cast<SampleT1Form *>(formData());
}

void SampleFormPage::GetDataFromDoc()
{
    BaseTaxPage::GetDataFromDoc();
    // Setting a text leaves the caret at its end, which scrolls a long
    // e-mail address out of sight.
    for (StringLineEdit *edit : findChildren<StringLineEdit *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!edit->hasFocus())
            edit->setCursorPosition(0);
    }
}

bool SampleFormPage::CalcFormData(CField *pField)
{
    if (SampleT1Form *form = sampleForm())
        form->Calculate();
    return BaseTaxPage::CalcFormData(pField);
}

void SampleFormPage::addHeading(int column, QString const &text)
{
    auto *heading = new QLabel(text, this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    int &row = m_nextRow[column];
    if (row > 0)
        m_grid->setRowMinimumHeight(row++, 12);
    m_grid->addWidget(heading, row++, column * ColumnsPerSection, 1, ColumnsPerSection - 1);
}

void SampleFormPage::addRow(int column, char const *name, QString const &caption, QString const &line, QWidget *widget)
{
    widget->setObjectName(QString::fromLatin1(name));
    int const row = m_nextRow[column]++;
    int const first = column * ColumnsPerSection;
    m_grid->addWidget(new QLabel(caption, this), row, first);
    auto *number = new QLabel(line, this);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(number, row, first + 1);
    m_grid->addWidget(widget, row, first + 2);
}

void SampleFormPage::addAmountRows(int column, AmountRow const *rows, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        AmountRow const &row = rows[i];
        auto *edit = new DoubleLineEdit(this);
        edit->setFixedWidth(AmountWidth);
        switch (row.kind) {
        case LineKind::Input:
            connect(edit, &QLineEdit::editingFinished, this, &BaseTaxPage::onFloatEditFinished);
            break;
        case LineKind::Computed:
            edit->setReadOnly(true);
            break;
        case LineKind::Worksheet:
            edit->setWorksheetType(row.target);
            edit->setAttID(row.target);
            break;
        case LineKind::Forward:
            edit->setForwardFormType(row.target);
            edit->setAttID(attachmentId(row.line));
            break;
        }
        addRow(column, row.name, QString::fromUtf8(row.caption), QString::fromLatin1(row.line), edit);
    }
}

void SampleFormPage::addTextRows(int column, TextRow const *rows, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        auto *edit = new StringLineEdit(this);
        edit->setMaxLen(rows[i].maxLength);
        edit->setFixedWidth(TextWidth);
        connect(edit, &QLineEdit::editingFinished, this, &BaseTaxPage::onStringEditFinished);
        addRow(column, rows[i].name, QString::fromUtf8(rows[i].caption), QString(), edit);
    }
}

void SampleFormPage::bindAmountRows(AmountRow const *rows, std::size_t count)
{
    SampleT1Form *form = sampleForm();
    for (std::size_t i = 0; i < count; ++i) {
        AmountRow const &row = rows[i];
        auto *edit = findChild<DoubleLineEdit *>(QString::fromLatin1(row.name), Qt::FindDirectChildrenOnly);
        bindField(edit, &(form->*row.field));
        if (row.kind == LineKind::Forward)
            addForwardForm(attachmentId(row.line), { row.target, attachmentId(row.line) });
        if (edit && edit->getAttID() > 0)
            edit->setToolTip(getTooltip(edit->getAttID()));
    }
}

void SampleFormPage::bindTextRows(TextRow const *rows, std::size_t count)
{
    SampleT1Form *form = sampleForm();
    for (std::size_t i = 0; i < count; ++i) {
        auto *edit = findChild<StringLineEdit *>(QString::fromLatin1(rows[i].name), Qt::FindDirectChildrenOnly);
        bindField(edit, &(form->*rows[i].field));
    }
}

void SampleFormPage::finishLayout()
{
    int const last = qMax(m_nextRow[0], m_nextRow[1]);
    m_grid->setRowStretch(last, 1);
    m_grid->setColumnStretch(ColumnsPerSection * 2 - 1, 1);
}
