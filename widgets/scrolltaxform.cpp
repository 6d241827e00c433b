#include <LibControl/widgets/scrolltaxform.h>

#include <QScrollBar>

ScrollTaxForm::ScrollTaxForm(const QString &bkColor, QWidget *parent, QWidget *content)
    : QScrollArea(parent)
    , m_content(content)
{
    horizontalScrollBar()->setStyleSheet(QStringLiteral("background: #e0e0e0;"));
    verticalScrollBar()->setStyleSheet(QStringLiteral("background: #e0e0e0;"));
    setWidget(content);
    setWidgetResizable(true);
    setBKColor(bkColor);
}

ScrollTaxForm::~ScrollTaxForm() = default;

void ScrollTaxForm::setBKColor(const QString &bkColor)
{
    m_bkColor = bkColor;
    setStyleSheet(QStringLiteral("background:%1").arg(bkColor));
}
