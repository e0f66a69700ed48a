#include "afx/offscreen/ItemList.h"

namespace offscreen
{
namespace
{
std::size_t g_capacity = kNoListLimit;
}

void SetListCapacity(std::size_t items) { g_capacity = items; }

int ItemList::SortedPosition(Window& control, LPARAM textOrData) const
{
    int low = 0;
    int high = Count();
    while (low < high)
    {
        const int middle = (low + high) / 2;
        int order = 0;
        if (m_traits.hasStrings)
            order = CompareTexts(reinterpret_cast<LPCSTR>(textOrData), Text(middle));
        else
        {
            COMPAREITEMSTRUCT compare{};
            compare.CtlType = m_traits.ownerDrawnType;
            compare.CtlID = static_cast<UINT>(control.id);
            compare.hwndItem = control.handle;
            compare.itemID1 = static_cast<UINT>(-1);
            compare.itemData1 = static_cast<ULONG_PTR>(textOrData);
            compare.itemID2 = static_cast<UINT>(middle);
            compare.itemData2 = static_cast<ULONG_PTR>(Data(middle));
            order = static_cast<int>(
                Send(ParentOf(control), WM_COMPAREITEM, compare.CtlID, reinterpret_cast<LPARAM>(&compare)));
        }
        if (order < 0)
            high = middle;
        else
            low = middle + 1; // Equal items keep the order of their arrival.
    }
    return low;
}

int ItemList::Add(Window& control, LPARAM textOrData)
{
    return Insert(control, m_traits.sorted ? SortedPosition(control, textOrData) : Count(), textOrData);
}

int ItemList::Insert(Window& control, int index, LPARAM textOrData)
{
    if (index == -1)
        index = Count();
    if (index < 0 || index > Count())
        return LB_ERR;
    if (m_items.size() >= g_capacity)
    {
        NotifyParent(control, m_traits.errorSpaceNotification);
        return LB_ERRSPACE;
    }
    Item item;
    if (!m_traits.hasStrings)
        item.data = textOrData;
    else if (textOrData)
        item.text = reinterpret_cast<LPCSTR>(textOrData);
    m_items.insert(m_items.begin() + index, std::move(item));
    if (m_selection >= index)
        ++m_selection;
    return index;
}

void ItemList::TellDeleted(Window& control, int index) const
{
    // The system tells for owner-drawn items and for items that carry data.
    if (!m_traits.ownerDrawnType && Data(index) == 0)
        return;
    DELETEITEMSTRUCT deleted{};
    deleted.CtlType = m_traits.ownerDrawnType ? m_traits.ownerDrawnType : ODT_LISTBOX;
    deleted.CtlID = static_cast<UINT>(control.id);
    deleted.itemID = static_cast<UINT>(index);
    deleted.hwndItem = control.handle;
    deleted.itemData = static_cast<ULONG_PTR>(Data(index));
    Send(ParentOf(control), WM_DELETEITEM, deleted.CtlID, reinterpret_cast<LPARAM>(&deleted));
}

int ItemList::Remove(Window& control, WPARAM index)
{
    if (!IsIndex(index))
        return LB_ERR;
    const int at = static_cast<int>(index);
    TellDeleted(control, at);
    if (!IsIndex(index))
        return LB_ERR;
    m_items.erase(m_items.begin() + at);
    if (m_selection == at)
        m_selection = -1;
    else if (m_selection > at)
        --m_selection;
    return Count();
}

void ItemList::Clear(Window& control)
{
    for (int i = Count() - 1; i >= 0 && i < Count(); --i)
        TellDeleted(control, i);
    m_items.clear();
    m_selection = -1;
}

LRESULT ItemList::CopyItem(WPARAM index, LPARAM target) const
{
    if (!IsIndex(index))
        return LB_ERR;
    const Item& item = m_items[index];
    if (!m_traits.hasStrings)
    {
        *reinterpret_cast<LPARAM*>(target) = item.data;
        return sizeof(DWORD);
    }
    return CopyText(item.text, reinterpret_cast<LPSTR>(target), item.text.size() + 1);
}

LRESULT ItemList::TextLength(WPARAM index) const
{
    if (!IsIndex(index))
        return LB_ERR;
    return m_traits.hasStrings ? static_cast<LRESULT>(m_items[index].text.size()) : LRESULT{sizeof(DWORD)};
}

template <class Predicate>
int ItemList::FindAfter(int start, Predicate matches) const
{
    const int count = Count();
    if (start < -1 || start >= count)
        start = -1;
    for (int step = 1; step <= count; ++step)
    {
        const int index = (start + step) % count;
        if (matches(index))
            return index;
    }
    return LB_ERR;
}

int ItemList::FindPrefix(int start, LPARAM text) const
{
    if (!m_traits.hasStrings)
        return FindExact(start, text);
    return FindAfter(start, [&](int index) { return StartsWith(Text(index), reinterpret_cast<LPCSTR>(text)); });
}

int ItemList::FindExact(int start, LPARAM text) const
{
    return FindAfter(start, [&](int index) {
        return m_traits.hasStrings ? CompareTexts(Text(index), reinterpret_cast<LPCSTR>(text)) == 0
                                   : Data(index) == text;
    });
}

int ItemList::FindNext(char first) const
{
    return FindAfter(m_selection, [&](int index) { return StartsWith(Text(index), std::string_view(&first, 1)); });
}
} // namespace offscreen
