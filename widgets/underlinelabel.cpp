#include <LibControl/widgets/underlinelabel.h>

namespace {

const QString s_underlineLabel_stylesheet
    = QStringLiteral("QLabel { border-width: 1px; border-style: dotted; border-color: white white black white; }");

} // namespace

UnderlineLabel::UnderlineLabel(QWidget *parent)
    : QLabel(parent)
{
    setStyleSheet(s_underlineLabel_stylesheet);
}

UnderlineLabel::~UnderlineLabel() = default;
