#ifndef LIBCONTROL_WIDGETS_SCROLLTAXFORM_H
#define LIBCONTROL_WIDGETS_SCROLLTAXFORM_H

#include <LibControl/libcontrol_export.h>

#include <QScrollArea>

/**
 * The scroll area that holds one page of a form, on a background colour of
 * the application's choosing, with light grey scroll bars.
 */
class LIBCONTROL_EXPORT ScrollTaxForm : public QScrollArea
{
    Q_OBJECT
public:
    /** Takes `content` as its resizable widget, then applies `bkColor`. */
    ScrollTaxForm(const QString &bkColor, QWidget *parent, QWidget *content);
    ~ScrollTaxForm() override;

    /** Stores the colour and sets the area's style sheet to "background:<colour>". */
    void setBKColor(const QString &bkColor);
    /** The colour last given. */
    QString getBKColor() const { return m_bkColor; }
    /** The content widget given at construction. */
    QWidget *getCtntWgt() const { return m_content; }

private:
    QString m_bkColor;
    QWidget *m_content;
};

#endif
