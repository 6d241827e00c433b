#ifndef LIBCONTROL_WIDGETS_UNDERLINELABEL_H
#define LIBCONTROL_WIDGETS_UNDERLINELABEL_H

#include <LibControl/libcontrol_export.h>

#include <QLabel>

/** A label drawn over a dotted bottom rule, for values shown but not edited. */
class LIBCONTROL_EXPORT UnderlineLabel : public QLabel
{
    Q_OBJECT
public:
    /** An empty label with the dotted bottom rule. */
    explicit UnderlineLabel(QWidget *parent = nullptr);
    ~UnderlineLabel() override;
};

#endif
