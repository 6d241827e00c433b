// A small tax page for the gallery: one line of every widget kind, bound to
// a form the way an application's pages are.

#include "gallery.h"

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/widgets/basetaxpage.h>
#include <LibControl/widgets/cforwardedit.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/scrolltaxform.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>

#include <QGridLayout>
#include <QLabel>

namespace Tool {

namespace {

constexpr int PageWidth = 640;
constexpr int PageHeight = 420;

class GalleryForm : public CTaxData_Form
{
public:
    GalleryForm()
        : CTaxData_Form(FORM_T1GENERAL)
        , fld_Name(1, "", 30, FIELD_VERSION_FIRST)
        , fld_Province(2, 9, FIELD_ATTR_NONE)
        , fld_BirthDate(3, FIELD_ATTR_NONE)
        , fld_Resident(4, 1)
        , fld_10100(78450.0, 10100)
        , fld_12000(1150.0, 12000)
        , fld_30100(0.0, 30100)
        , fld_31260(1471.0, 31260)
        , fld_15000(0.0, 15000)
    {
        std::pair<CField *, char const *> const fields[] = {
            { &fld_Name, "fld_Name" },
            { &fld_Province, "fld_Province" },
            { &fld_BirthDate, "fld_BirthDate" },
            { &fld_Resident, "fld_Resident" },
            { &fld_10100, "fld_10100" },
            { &fld_12000, "fld_12000" },
            { &fld_30100, "fld_30100" },
            { &fld_31260, "fld_31260" },
            { &fld_15000, "fld_15000" },
        };
        for (auto const &entry : fields) {
            entry.first->m_strName = entry.second;
            m_fields.push_back(entry.first);
        }
        fld_Name.m_strValue = CString("Marie Tremblay");
        fld_BirthDate.m_date = QDate(1984, 3, 9);
        Calculate();
    }

    int Calculate() override
    {
        fld_15000 = fld_10100.m_dValue + fld_12000.m_dValue;
        return 0;
    }

    CStringField fld_Name;
    CIntField fld_Province;
    CDateField fld_BirthDate;
    CBoolField fld_Resident;
    CFloatField fld_10100;
    CFloatField fld_12000;
    CFloatField fld_30100;
    CFloatField fld_31260;
    CFloatField fld_15000;
};

class GalleryPage : public BaseTaxPage
{
public:
    GalleryPage(GalleryForm *form, QWidget *parent)
        : BaseTaxPage("Sample tax page", form, parent)
        , m_form(form)
    {
        m_grid = new QGridLayout(this);
        m_name = addRow(new StringLineEdit(this), "fld_Name", "Name", "");
        m_province = addRow(new CT1ComboBox(this), "fld_Province", "Province of residence", "");
        m_province->LoadProvs();
        m_birth = addRow(new StyledDateEdit(this), "fld_BirthDate", "Date of birth", "");
        m_birth->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
        m_resident = addRow(new StyledCheckBox(this), "fld_Resident", "Resident of Canada all year", "");
        m_resident->setText(QStringLiteral("Yes"));
        m_employment = addRow(new DoubleLineEdit(this), "fld_10100", "Employment income", "10100");
        m_dividends = addRow(new DoubleLineEdit(this), "fld_12000", "Taxable amount of dividends", "12000");
        m_dividends->setForwardFormType(FORM_WS_SCHEDULE4);
        m_dividends->setAttID(12000);
        m_age = addRow(new DoubleLineEdit(this), "fld_30100", "Age amount", "30100");
        m_age->setWorksheetType(30100);
        m_age->setAttID(30100);
        m_carried = addRow(new CForwardEdit(this), "fld_31260", "Canada employment amount", "31260");
        m_total = addRow(new DoubleLineEdit(this), "fld_15000", "Total income", "15000");
        m_total->setReadOnly(true);
        m_grid->setRowStretch(m_grid->rowCount(), 1);
        m_grid->setColumnStretch(0, 1);
    }

    void AssociateFormData() override
    {
        bindField(m_name, &m_form->fld_Name);
        bindField(m_province, &m_form->fld_Province);
        bindField(m_birth, &m_form->fld_BirthDate);
        bindField(m_resident, &m_form->fld_Resident);
        for (auto const &amount : { std::make_pair(m_employment, &m_form->fld_10100),
                 std::make_pair(m_dividends, &m_form->fld_12000), std::make_pair(m_age, &m_form->fld_30100),
                 std::make_pair(static_cast<DoubleLineEdit *>(m_carried), &m_form->fld_31260),
                 std::make_pair(m_total, &m_form->fld_15000) })
            bindField(amount.first, amount.second);
        addForwardForm(12000, { FORM_WS_SCHEDULE4, 12000 });
    }

private:
    template<typename W> W *addRow(W *widget, char const *name, char const *caption, char const *line)
    {
        widget->setObjectName(QLatin1String(name));
        int const row = m_grid->rowCount();
        m_grid->addWidget(new QLabel(QString::fromUtf8(caption), this), row, 0);
        m_grid->addWidget(new QLabel(QString::fromLatin1(line), this), row, 1);
        m_grid->addWidget(widget, row, 2);
        return widget;
    }

    GalleryForm *m_form;
    QGridLayout *m_grid;
    StringLineEdit *m_name;
    CT1ComboBox *m_province;
    StyledDateEdit *m_birth;
    StyledCheckBox *m_resident;
    DoubleLineEdit *m_employment;
    DoubleLineEdit *m_dividends;
    DoubleLineEdit *m_age;
    CForwardEdit *m_carried;
    DoubleLineEdit *m_total;
};

} // namespace

void shootTaxPage(Gallery &gallery)
{
    gallery.section(QStringLiteral("Tax page"));
    GalleryForm form;
    auto *page = new GalleryPage(&form, nullptr);
    ScrollTaxForm area(QStringLiteral("#f5f5f0"), nullptr, page);
    area.resize(PageWidth, PageHeight);
    page->syncData();
    gallery.shoot(&area, QStringLiteral("page-sample"),
        QStringLiteral("A tax page in its ScrollTaxForm: text, province, date, check box, an input amount, "
                       "a line carried from a form, a worksheet line, a carried amount and a computed "
                       "total"));
}

} // namespace Tool
