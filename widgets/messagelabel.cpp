#include "messagelabel_p.h"

#include <QLabel>

namespace LibControl {
namespace detail {

void showLink(QLabel *label, const QString &href, const QString &text)
{
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(
        Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setOpenExternalLinks(true);
    label->setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(href, text));
    label->setVisible(true);
}

void showText(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

void showPlain(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    showText(label, text);
}

void hideEmpty(std::initializer_list<QLabel *> labels)
{
    for (QLabel *label : labels)
        label->setVisible(!label->text().isEmpty());
}

} // namespace detail
} // namespace LibControl
