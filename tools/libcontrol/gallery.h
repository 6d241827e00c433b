#ifndef LIBCONTROL_TOOLS_GALLERY_H
#define LIBCONTROL_TOOLS_GALLERY_H

#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

namespace Tool {

/**
 * The pictures of the gallery command: each shot is a widget rendered to
 * DIR/<file>.png under a section heading, and the index lists them all.
 */
class Gallery
{
public:
    explicit Gallery(QString const &dir);

    /** Starts a new section of the index. */
    void section(QString const &title);
    /**
     * Renders `widget` (shown first, so its layout is final) to `file`.png;
     * a window with a title gets a drawn title bar above it, since the
     * grab holds the client area only. `focus` is the widget that has the
     * keyboard focus in the picture; without one nothing has it, so no
     * caret or focus colour shows. False when the picture could not be
     * written.
     */
    bool shoot(QWidget *widget, QString const &file, QString const &caption, QWidget *focus = nullptr);
    /** Writes DIR/index.html; false when it cannot. */
    bool writeIndex() const;

    QString indexPath() const;
    /** One line per picture: path, size and caption. */
    QStringList const &lines() const { return m_lines; }
    /** How many pictures could not be written. */
    int failures() const { return m_failures; }

private:
    struct Shot
    {
        QString section;
        QString file;
        QString caption;
        QSize size;
    };

    QString m_dir;
    QString m_section;
    std::vector<Shot> m_shots;
    QStringList m_lines;
    int m_failures = 0;
};

/** Every field widget kind in each of its states. */
void shootWidgets(Gallery &gallery);
/** A small tax page of every widget kind, bound to a form. */
void shootTaxPage(Gallery &gallery);
/** The worksheet pages, filled with worked figures, each in its wizard, and the multi-dependant dialog. */
void shootWorksheetPages(Gallery &gallery);
/** The dialogs and message boxes, shown but never run. */
void shootDialogs(Gallery &gallery);

} // namespace Tool

#endif
