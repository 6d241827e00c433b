#ifndef LIBCONTROL_COMMON_HTMLTABLE_H
#define LIBCONTROL_COMMON_HTMLTABLE_H

#include <LibControl/libcontrol_export.h>

#include <QString>
#include <QStringList>

#include <memory>

class HtmlTablePrivate;

/**
 * Builds an HTML table of plain-text cells: every caption, header and cell
 * text is escaped ("&", "<", ">" and the double quote), so any text is
 * shown as it is and never read as markup. Rows may differ in length.
 */
class LIBCONTROL_EXPORT HtmlTable
{
public:
    HtmlTable();
    ~HtmlTable();

    /** A caption above the table; empty (the default) writes none. */
    void setCaption(QString const &caption);
    /** Column headings, written as a "<thead>" row of "<th>" cells; empty writes none. */
    void setHeader(QStringList const &headings);
    /** Appends a body row of "<td>" cells. */
    void addRow(QStringList const &cells);
    int rowCount() const;

    /**
     * The table as "<table>...</table>", one row a line. `attributes`, when
     * not empty, is written into the opening tag as it is (for example
     * "class=\"slips\""): it is markup, not escaped.
     */
    QString toHtml(QString const &attributes = QString()) const;

private:
    std::unique_ptr<HtmlTablePrivate> const d;
};

#endif
