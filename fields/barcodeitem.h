#ifndef LIBCONTROL_FIELDS_BARCODEITEM_H
#define LIBCONTROL_FIELDS_BARCODEITEM_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <QList>

#include <memory>

class CMemoryBlock;
class List_FixedBarcodeItem;

/**
 * One fixed-width item of a printed barcode: `width` characters, kept
 * zero-terminated. Setters never touch the terminator. An item of width
 * below 1 holds nothing and ignores every setter.
 */
class LIBCONTROL_EXPORT FixedBarcodeItem
{
public:
    /**
     * Copies at most `width` characters of `initial` (null allowed; the rest
     * are zero bytes) and appends the item to `list` (when not null), which
     * points to it without owning it.
     */
    FixedBarcodeItem(List_FixedBarcodeItem *list, int width, char const *initial);
    virtual ~FixedBarcodeItem();
    FixedBarcodeItem(FixedBarcodeItem const &) = delete;
    FixedBarcodeItem &operator=(FixedBarcodeItem const &) = delete;

    /** Every one of the width positions becomes `c`. */
    void SetAllCharsTo(char c);
    /** Copies the first min(width, strlen(s)) characters to the start; the rest stay. Null does nothing. */
    void SetValue(char const *s);
    void SetValue(CString const &s);
    /** Right-aligns `s` after `pad` characters; a longer `s` is cut at the end; null fills with `pad`. */
    void SetValueLeftPadding(char const *s, char pad);
    void SetValueLeftPadding(CString const &s, char pad);
    /** Left-aligns `s` and fills with `pad`; a longer `s` is cut at the end; null fills with `pad`. */
    void SetValueRightPadding(char const *s, char pad);
    void SetValueRightPadding(CString const &s, char pad);

    /** The width given to the constructor. */
    int width() const { return m_width; }
    /** The zero-terminated characters; null for a width below 1. */
    char const *value() const { return m_value.get(); }

private:
    int m_width;
    std::unique_ptr<char[]> m_value;
};

/** The items of one barcode in creation order; the list does not own them. */
class LIBCONTROL_EXPORT List_FixedBarcodeItem : public QList<FixedBarcodeItem *>
{
public:
    /**
     * Appends every item's width bytes to `block` in list order, skipping
     * items of width below 1; returns the bytes appended.
     */
    int OutputToMemoryBlock(CMemoryBlock &block) const;
};

#endif
