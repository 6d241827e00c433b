#include <LibControl/widgets/cforwardedit.h>

namespace {

const QString s_ForwardEdit_stylesheet = QStringLiteral(
    "QLineEdit{ border-width: 1px; border-style: solid; border-color: white white black white; color:#32aaa8; } "
    "QLineEdit:hover { border: 1px solid #808080; background-color:%1; border-radius: 2px; }");

} // namespace

CForwardEdit::CForwardEdit(QWidget *parent)
    : DoubleLineEdit(parent)
{
    setStyleSheet(s_ForwardEdit_stylesheet.arg(QStringLiteral("#DEAC37")));
}

CForwardEdit::~CForwardEdit() = default;
