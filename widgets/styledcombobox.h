#ifndef LIBCONTROL_WIDGETS_STYLEDCOMBOBOX_H
#define LIBCONTROL_WIDGETS_STYLEDCOMBOBOX_H

#include <LibControl/libcontrol_export.h>

#include <QComboBox>

class QWheelEvent;

/**
 * A combo box whose every item carries an int in Qt::UserRole, with the
 * selection names the pages are written against (AddString, GetCurSel ...).
 *
 * Turning the mouse wheel over the closed box never changes the value: the
 * event is passed on so the enclosing scroll area scrolls instead.
 */
class LIBCONTROL_EXPORT StyledComboBox : public QComboBox
{
    Q_OBJECT
public:
    /** Takes keyboard focus by tab and click (Qt::StrongFocus). */
    explicit StyledComboBox(QWidget *parent = nullptr);
    ~StyledComboBox() override;

    /** Does nothing: enabling is left to the page; kept so that callers compile. */
    void EnableWindow(bool enable);
    /**
     * Appends an item with the text `text` (ASCII, UTF-8 beyond it; null gives
     * an empty text) and no item data; returns the new item's index.
     */
    int AddString(char const *text);
    /** Stores `data` in Qt::UserRole of item `index`; an index out of range is ignored. */
    void SetItemData(int index, int data);
    /** The Qt::UserRole int of item `index`; 0 when unset or out of range. */
    int GetItemData(int index) const;
    /** The number of items. */
    int GetCount() const;
    /** Selects item `index` (-1 clears the selection). */
    void SetCurSel(int index);
    /** The selected index, -1 when none. */
    int GetCurSel() const;
    /** The item data of the selected item; 0 when nothing is selected. */
    int GetCurSelData() const;
    /**
     * Selects the first item (lowest index) whose data equals `data` and
     * returns true; when none does, selects index 0 and returns false.
     */
    bool SetCurSelData(int data);

protected:
    /** Ignored, so the wheel scrolls the page rather than the value. */
    void wheelEvent(QWheelEvent *event) override;
};

/**
 * Selects the first item of `cmb` whose data equals `data` and returns its
 * index. When none matches (an empty box included) a `fallback` of 0 or more
 * is selected and returned; a negative `fallback` is returned and the
 * selection is left alone. A null `cmb` returns `fallback` and selects nothing.
 */
LIBCONTROL_EXPORT int ComboBoxSelectByData(StyledComboBox *cmb, int data, int fallback);

#endif
