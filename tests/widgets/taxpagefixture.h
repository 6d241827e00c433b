#ifndef LIBCONTROL_TESTS_WIDGETS_TAXPAGEFIXTURE_H
#define LIBCONTROL_TESTS_WIDGETS_TAXPAGEFIXTURE_H

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/widgets/basetaxpage.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/myevent.h>
#include <LibControl/widgets/stringlineedit.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>

#include <QButtonGroup>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <vector>

// A form with one field of each kind a page can show.
class TestForm : public CTaxData_Form
{
public:
    TestForm()
        : CTaxData_Form(ENUMTYPE_FORM(2))
        , amount(0.0, 10100)
        , name("", 40)
        , note("", 200)
        , flag(0)
        , choice(0, ENUMTYPE_FIELD_ATTR(0))
        , province(0, ENUMTYPE_FIELD_ATTR(0))
        , birth(ENUMTYPE_FIELD_ATTR(0))
    {
    }

    CFloatField amount;
    CStringField name;
    CStringField note;
    CBoolField flag;
    CIntField choice;
    CIntField province;
    CDateField birth;
};

// Type and data of each event a page posted.
using PostedEvents = std::vector<std::pair<int, int>>;

// Receives what a page posts to its parent.
class EventCatcher : public QWidget
{
public:
    PostedEvents events;

    bool event(QEvent *e) override
    {
        if (e->type() >= QEvent::User || e->type() == QEvent::Type(EventForwardEdit::Type)
            || e->type() == QEvent::Type(EventNeedWorksheet::Type))
            events.emplace_back(int(e->type()), static_cast<MyEvent *>(e)->data());
        return QWidget::event(e);
    }
};

// A page with one widget of each kind, bound to TestForm and wired to the
// base slots the way concrete pages do it.
class TestPage : public BaseTaxPage
{
public:
    TestPage(TestForm *form, QWidget *parent)
        : BaseTaxPage(1, form, parent)
        , m_form(form)
    {
        auto *layout = new QVBoxLayout(this);
        amountEdit = named(new DoubleLineEdit(this), "amount");
        nameEdit = named(new StringLineEdit(this), "name");
        noteEdit = named(new QPlainTextEdit(this), "note");
        flagBox = named(new StyledCheckBox(this), "flag");
        provinceBox = named(new CT1ComboBox(this), "province");
        birthEdit = named(new StyledDateEdit(this), "birth");
        group = new QButtonGroup(this);
        group->setObjectName(QStringLiteral("choice"));
        for (int id : { 1, 2 }) {
            auto *radio = new QRadioButton(QString::number(id), this);
            group->addButton(radio, id);
            layout->addWidget(radio);
        }
        for (QWidget *w : std::initializer_list<QWidget *> { amountEdit, nameEdit, noteEdit, flagBox, provinceBox,
                                                             birthEdit })
            layout->addWidget(w);
        provinceBox->LoadProvs();

        connect(amountEdit, &QLineEdit::editingFinished, this, &BaseTaxPage::onFloatEditFinished);
        connect(nameEdit, &QLineEdit::editingFinished, this, &BaseTaxPage::onStringEditFinished);
        connect(flagBox, &QCheckBox::stateChanged, this, &BaseTaxPage::onBoolChanged);
        connect(provinceBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &BaseTaxPage::onCmbCurIndexChanged);
        connect(birthEdit, &QDateEdit::dateChanged, this, &BaseTaxPage::onDateChanged);
        connect(group, &QButtonGroup::idClicked, this, &BaseTaxPage::onRadioIdClicked);
        connect(nameEdit, &StringLineEdit::focussed, this, &BaseTaxPage::onFocussed);
    }

    void AssociateFormData() override
    {
        if (!m_form)
            return;
        bindField(amountEdit, &m_form->amount);
        bindField(nameEdit, &m_form->name);
        bindField(noteEdit, &m_form->note);
        bindField(flagBox, &m_form->flag);
        bindField(provinceBox, &m_form->province);
        bindField(birthEdit, &m_form->birth);
        bindField(group, &m_form->choice);
    }

    using BaseTaxPage::addForwardForm;

    DoubleLineEdit *amountEdit;
    StringLineEdit *nameEdit;
    QPlainTextEdit *noteEdit;
    StyledCheckBox *flagBox;
    CT1ComboBox *provinceBox;
    StyledDateEdit *birthEdit;
    QButtonGroup *group;

private:
    template<typename W>
    static W *named(W *w, const char *name)
    {
        w->setObjectName(QLatin1String(name));
        return w;
    }

    TestForm *m_form;
};

#endif
