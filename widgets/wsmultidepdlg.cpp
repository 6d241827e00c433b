#include <LibControl/widgets/wsmultidepdlg.h>

#include <LibControl/widgets/basetaxpage.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

WSMultiDepDlg::WSMultiDepDlg(const QString &title, std::list<PpgWizardPage *> &pages, BaseTaxPage *owner)
    : BaseDialog(title, owner)
    , m_pages(pages.begin(), pages.end())
    , m_tabs(new QTabWidget(this))
{
    QFont big = font();
    big.setPointSize(14);
    setFont(big);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &WSMultiDepDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &WSMultiDepDlg::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(buttons);

    // The dialog owns the pages from now on, shown or not.
    for (PpgWizardPage *page : pages)
        if (page)
            page->setParent(this);
    afterCreateUI();
}

WSMultiDepDlg::~WSMultiDepDlg() = default;

void WSMultiDepDlg::initUI(int width, int height)
{
    m_tabs->clear();
    resize(width, height);
    int position = 0;
    for (PpgWizardPage *page : m_pages) {
        ++position; // null entries count too
        if (!page)
            continue;
        const QString title = page->title().isEmpty() ? tr("Dependant %1").arg(position) : page->title();
        m_tabs->addTab(page, title);
        page->AssociateFormData();
        page->GetDataFromDoc();
    }
    m_initialised = true;
}

int WSMultiDepDlg::exec()
{
    if (!m_initialised)
        initUI(770, 640);
    return BaseDialog::exec();
}

void WSMultiDepDlg::accept()
{
    for (PpgWizardPage *page : m_pages)
        if (page)
            page->validatePage();
    BaseDialog::accept();
}
