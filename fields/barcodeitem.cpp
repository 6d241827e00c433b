#include <LibControl/fields/barcodeitem.h>
#include <LibControl/fields/memoryblock.h>

#include <algorithm>
#include <cstring>

namespace {

int cappedLength(char const *s, int width)
{
    return int(strnlen(s, size_t(width)));
}

} // namespace

FixedBarcodeItem::FixedBarcodeItem(List_FixedBarcodeItem *list, int width, char const *initial) : m_width(width)
{
    if (width >= 1) {
        m_value.reset(new char[size_t(width) + 1]());
        if (initial)
            std::memcpy(m_value.get(), initial, size_t(cappedLength(initial, width)));
    }
    if (list)
        list->append(this);
}

FixedBarcodeItem::~FixedBarcodeItem() = default;

void FixedBarcodeItem::SetAllCharsTo(char c)
{
    if (m_value)
        std::memset(m_value.get(), c, size_t(m_width));
}

void FixedBarcodeItem::SetValue(char const *s)
{
    if (m_value && s)
        std::memcpy(m_value.get(), s, size_t(cappedLength(s, m_width)));
}

void FixedBarcodeItem::SetValue(CString const &s)
{
    SetValue(s.toUtf8().constData());
}

void FixedBarcodeItem::SetValueLeftPadding(char const *s, char pad)
{
    if (!m_value)
        return;
    SetAllCharsTo(pad);
    if (!s)
        return;
    int const length = cappedLength(s, m_width);
    std::memcpy(m_value.get() + (m_width - length), s, size_t(length));
}

void FixedBarcodeItem::SetValueLeftPadding(CString const &s, char pad)
{
    SetValueLeftPadding(s.toUtf8().constData(), pad);
}

void FixedBarcodeItem::SetValueRightPadding(char const *s, char pad)
{
    if (!m_value)
        return;
    SetAllCharsTo(pad);
    if (s)
        std::memcpy(m_value.get(), s, size_t(cappedLength(s, m_width)));
}

void FixedBarcodeItem::SetValueRightPadding(CString const &s, char pad)
{
    SetValueRightPadding(s.toUtf8().constData(), pad);
}

int List_FixedBarcodeItem::OutputToMemoryBlock(CMemoryBlock &block) const
{
    int appended = 0;
    for (FixedBarcodeItem const *item : *this) {
        if (!item || item->width() < 1)
            continue;
        block.Append(item->value(), item->width());
        appended += item->width();
    }
    return appended;
}
