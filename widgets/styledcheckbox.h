#ifndef LIBCONTROL_WIDGETS_STYLEDCHECKBOX_H
#define LIBCONTROL_WIDGETS_STYLEDCHECKBOX_H

#include <LibControl/libcontrol_export.h>

#include <QCheckBox>

/**
 * A check box whose unchecked indicator has a heavy black border and whose
 * text turns blue when checked.
 */
class LIBCONTROL_EXPORT StyledCheckBox : public QCheckBox
{
    Q_OBJECT
public:
    /** An unchecked box without text, heavy indicator border. */
    explicit StyledCheckBox(QWidget *parent = nullptr);
    ~StyledCheckBox() override;

    /**
     * Drops the heavy indicator border and keeps only the blue checked text;
     * the pages use it for boxes whose text is empty or long.
     */
    void makeBold();
};

#endif
