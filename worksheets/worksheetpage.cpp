#include "worksheetpage_p.h"

#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/ppgwizardpage.h>
#include <LibControl/widgets/styledcombobox.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QWizard>
#include <QWizardPage>

namespace {

bool insideWizard(const QWidget *page)
{
    for (const QWidget *w = page->parentWidget(); w; w = w->parentWidget())
        if (qobject_cast<const QWizard *>(w))
            return true;
    return false;
}

class HeadingFilter : public QObject
{
public:
    HeadingFilter(QWizardPage *page, QLabel *heading)
        : QObject(page)
        , m_page(page)
        , m_heading(heading)
    { }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_page && event->type() == QEvent::Show)
            m_heading->setVisible(!insideWizard(m_page));
        return QObject::eventFilter(watched, event);
    }

private:
    QWizardPage *m_page;
    QLabel *m_heading;
};

} // namespace

namespace LibControl::detail {

void connectAmounts(PpgWizardPage *page, std::initializer_list<DoubleLineEdit *> edits)
{
    for (DoubleLineEdit *edit : edits)
        QObject::connect(edit, &QLineEdit::editingFinished, page, &PpgWizardPage::onFloatEditFinished);
}

void connectCheckBox(PpgWizardPage *page, QCheckBox *box)
{
    QObject::connect(box, &QCheckBox::stateChanged, page, &PpgWizardPage::onBoolChanged);
}

void setUpDependantCombo(PpgWizardPage *page, StyledComboBox *box, const DependantInfoStruct *dependants)
{
    if (dependants)
        dependants->FillComboBox(box, nullptr);
    box->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(
        box, QOverload<int>::of(&QComboBox::currentIndexChanged), page, &PpgWizardPage::onCmbCurIndexChanged);
}

void showHeadingOutsideWizard(QWizardPage *page, QLabel *heading)
{
    page->installEventFilter(new HeadingFilter(page, heading));
}

} // namespace LibControl::detail
