#include <LibControl/widgets/coneqonechkboxdialog.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

COneQOneChkboxDialog::COneQOneChkboxDialog(
    const QString &title, const QString &question, const QString &checkText, QMessageBox::Icon icon, QWidget *parent)
    : QDialog(parent)
    , m_icon(icon)
    , m_question(question)
    , m_checkText(checkText)
{
    buildUi(title);
}

COneQOneChkboxDialog::~COneQOneChkboxDialog() = default;

void COneQOneChkboxDialog::buildUi(const QString &title)
{
    setWindowTitle(title);

    auto iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("iconLabel"));
    iconLabel->setPixmap(QMessageBox::standardIcon(m_icon));
    iconLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    auto questionLabel = new QLabel(m_question, this);
    questionLabel->setObjectName(QStringLiteral("questionLabel"));
    questionLabel->setWordWrap(true);
    questionLabel->setMinimumWidth(320);

    m_checkBox = new QCheckBox(m_checkText, this);

    auto buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto layout = new QGridLayout(this);
    layout->addWidget(iconLabel, 0, 0, 2, 1);
    layout->addWidget(questionLabel, 0, 1);
    layout->addWidget(m_checkBox, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

bool COneQOneChkboxDialog::isCheckboxChecked() const
{
    return m_checkBox->isChecked();
}

int COneQOneChkboxDialog::showDialog(const QString &title, const QString &question, const QString &checkText,
    bool *checked, QMessageBox::Icon icon, QWidget *parent)
{
    COneQOneChkboxDialog dlg(title, question, checkText, icon, parent);
    const int result = dlg.exec();
    if (checked)
        *checked = dlg.isCheckboxChecked();
    return result;
}
