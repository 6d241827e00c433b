#include <LibControl/widgets/styledcombobox.h>

#include <QWheelEvent>

StyledComboBox::StyledComboBox(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

StyledComboBox::~StyledComboBox() = default;

void StyledComboBox::EnableWindow(bool enable)
{
    Q_UNUSED(enable);
}

int StyledComboBox::AddString(char const *text)
{
    addItem(text ? QString::fromUtf8(text) : QString());
    return count() - 1;
}

void StyledComboBox::SetItemData(int index, int data)
{
    if (index >= 0 && index < count())
        setItemData(index, data, Qt::UserRole);
}

int StyledComboBox::GetItemData(int index) const
{
    return itemData(index, Qt::UserRole).toInt();
}

int StyledComboBox::GetCount() const
{
    return count();
}

void StyledComboBox::SetCurSel(int index)
{
    setCurrentIndex(index);
}

int StyledComboBox::GetCurSel() const
{
    return currentIndex();
}

int StyledComboBox::GetCurSelData() const
{
    return GetItemData(currentIndex());
}

bool StyledComboBox::SetCurSelData(int data)
{
    if (ComboBoxSelectByData(this, data, -1) >= 0)
        return true;
    setCurrentIndex(0);
    return false;
}

void StyledComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

int ComboBoxSelectByData(StyledComboBox *cmb, int data, int fallback)
{
    if (!cmb)
        return fallback;
    for (int i = 0; i < cmb->count(); ++i) {
        if (cmb->GetItemData(i) == data) {
            cmb->setCurrentIndex(i);
            return i;
        }
    }
    if (fallback >= 0)
        cmb->setCurrentIndex(fallback);
    return fallback;
}
