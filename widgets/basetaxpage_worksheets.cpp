// How a tax page opens the worksheets behind its lines.
#include <LibControl/widgets/basetaxpage.h>

#include <LibControl/widgets/ppgwizardpage.h>
#include <LibControl/widgets/wsmultidepdlg.h>

#include <QCoreApplication>

namespace {

const int kWorksheetWidth = 770;
const int kWorksheetHeight = 640;

struct WorksheetTitle
{
    int line;
    const char *title;
    bool translated;
};

const WorksheetTitle kWorksheetTitles[] = {
    {30100, QT_TRANSLATE_NOOP("BaseTaxPage", "Federal Age Amount Worksheet"), true},
    {31400, QT_TRANSLATE_NOOP("BaseTaxPage", "Federal Pension Amount Worksheet"), true},
    {31800, "Federal Dependant Disability Transfer Amount", false},
    {58080, QT_TRANSLATE_NOOP("BaseTaxPage", "Provincial Age Amount Worksheet"), true},
    {58200, QT_TRANSLATE_NOOP("BaseTaxPage", "Provincial Amount for Infirm Dependant Aged 18+"), true},
    {58330, QT_TRANSLATE_NOOP("BaseTaxPage", "Prvocincial Adoption Amount Worksheet"), true},
    {58400, QT_TRANSLATE_NOOP("BaseTaxPage", "Caregiver Amount"), true},
    {58440, QT_TRANSLATE_NOOP("BaseTaxPage", "Disability Amount for Self"), true},
    {58480, "Provincial Dependant Disability Transfer Amount", false},
};

} // namespace

bool BaseTaxPage::getWSDefaultTitle(int line, QString &title)
{
    for (const WorksheetTitle &row : kWorksheetTitles) {
        if (row.line == line) {
            title = row.translated ? QCoreApplication::translate("BaseTaxPage", row.title)
                                   : QString::fromLatin1(row.title);
            return true;
        }
    }
    return false;
}

PpgWizardPage *BaseTaxPage::getWorksheetEditDlg(int id, long ctx, QString &title)
{
    Q_UNUSED(id)
    Q_UNUSED(ctx)
    Q_UNUSED(title)
    return nullptr;
}

int BaseTaxPage::getWorksheetEditDlg(int id, long ctx, QString &title, std::list<PpgWizardPage *> &pages)
{
    Q_UNUSED(id)
    Q_UNUSED(ctx)
    Q_UNUSED(title)
    Q_UNUSED(pages)
    return 0;
}

void BaseTaxPage::ShowWorksheetEditDlg(int id, long ctx)
{
    QString title;
    getWSDefaultTitle(id, title);
    if (PpgWizardPage *page = getWorksheetEditDlg(id, ctx, title)) {
        WizardBase wizard(this, title);
        wizard.setWizardStyle(QWizard::ClassicStyle);
        wizard.addPage(page);
        wizard.setOptions(QWizard::NoBackButtonOnStartPage | QWizard::NoCancelButton);
        wizard.initUI(kWorksheetWidth + page->extraWidth(), kWorksheetHeight + page->extraHeight());
        wizard.exec();
        CalcFormData(nullptr);
        return;
    }
    std::list<PpgWizardPage *> pages;
    getWorksheetEditDlg(id, ctx, title, pages);
    if (pages.empty())
        return;
    WSMultiDepDlg dialog(title, pages, this);
    dialog.initUI(kWorksheetWidth, kWorksheetHeight);
    dialog.exec();
    CalcFormData(nullptr);
}
