#include <LibControl/common/htmltable.h>

#include <QVector>

class HtmlTablePrivate
{
public:
    QString caption;
    QStringList header;
    QVector<QStringList> rows;
};

namespace {

void appendRow(QString &html, QStringList const &cells, QLatin1String tag)
{
    html += QLatin1String("<tr>");
    for (QString const &cell : cells)
        html += QLatin1Char('<') + tag + QLatin1Char('>') + cell.toHtmlEscaped() + QLatin1String("</") + tag
            + QLatin1Char('>');
    html += QLatin1String("</tr>\n");
}

} // namespace

HtmlTable::HtmlTable()
    : d(new HtmlTablePrivate)
{
}

HtmlTable::~HtmlTable() = default;

void HtmlTable::setCaption(QString const &caption)
{
    d->caption = caption;
}

void HtmlTable::setHeader(QStringList const &headings)
{
    d->header = headings;
}

void HtmlTable::addRow(QStringList const &cells)
{
    d->rows.append(cells);
}

int HtmlTable::rowCount() const
{
    return d->rows.size();
}

QString HtmlTable::toHtml(QString const &attributes) const
{
    QString html = QLatin1String("<table");
    if (!attributes.isEmpty())
        html += QLatin1Char(' ') + attributes;
    html += QLatin1String(">\n");
    if (!d->caption.isEmpty())
        html += QLatin1String("<caption>") + d->caption.toHtmlEscaped() + QLatin1String("</caption>\n");
    if (!d->header.isEmpty()) {
        html += QLatin1String("<thead>\n");
        appendRow(html, d->header, QLatin1String("th"));
        html += QLatin1String("</thead>\n");
    }
    html += QLatin1String("<tbody>\n");
    for (QStringList const &row : d->rows)
        appendRow(html, row, QLatin1String("td"));
    html += QLatin1String("</tbody>\n</table>\n");
    return html;
}
