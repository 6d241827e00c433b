#include <LibControl/widgets/styledcheckbox.h>

namespace {

// The double blank is part of the text.
const QString s_checkbox_stylesheet_1
    = QStringLiteral("QCheckBox::indicator:!checked{border:2px solid black}  QCheckBox:checked{color:blue}");
const QString s_checkbox_stylesheet_2 = QStringLiteral("QCheckBox:checked{color:blue}");

} // namespace

StyledCheckBox::StyledCheckBox(QWidget *parent)
    : QCheckBox(parent)
{
    setStyleSheet(s_checkbox_stylesheet_1);
}

StyledCheckBox::~StyledCheckBox() = default;

void StyledCheckBox::makeBold()
{
    setStyleSheet(s_checkbox_stylesheet_2);
}
