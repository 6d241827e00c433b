#include <LibControl/widgets/adjustappearance.h>
#include <LibControl/widgets/basedialog.h>

BaseDialog::BaseDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_title(title)
{ }

BaseDialog::~BaseDialog() = default;

void BaseDialog::afterCreateUI()
{
    if (!m_title.isEmpty())
        setWindowTitle(m_title);
    genAdjustWidgetAppearanceToOS(this);
}
