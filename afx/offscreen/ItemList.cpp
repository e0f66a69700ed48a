#include "afx/offscreen/ItemList.h"

namespace offscreen
{
namespace
{
std::size_t g_capacity = kNoListLimit;
}

void SetListCapacity(std::size_t items) { g_capacity = items; }

int ItemList::Add(Window& control, LPARAM text)
{
    if (m_items.size() >= g_capacity)
    {
        NotifyParent(control, m_traits.errorSpaceNotification);
        return LB_ERRSPACE;
    }
    m_items.push_back({text ? reinterpret_cast<LPCWSTR>(text) : u"", 0});
    return Count() - 1;
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
    const std::u16string& text = m_items[index].text;
    return CopyText(text, reinterpret_cast<LPWSTR>(target), text.size() + 1);
}

LRESULT ItemList::TextLength(WPARAM index) const
{
    return IsIndex(index) ? static_cast<LRESULT>(m_items[index].text.size()) : LB_ERR;
}

int ItemList::FindNext(char16_t first) const
{
    for (int step = 1; step <= Count(); ++step)
    {
        const int index = (m_selection + step) % Count();
        if (StartsWith(Text(index), std::u16string_view(&first, 1)))
            return index;
    }
    return LB_ERR;
}

std::optional<int> ItemList::MovedBy(WPARAM key, int visibleItems) const
{
    const int page = std::max(visibleItems - 1, 1);
    int index = m_selection;
    switch (key)
    {
    case VK_LEFT:
    case VK_UP:
        --index;
        break;
    case VK_RIGHT:
    case VK_DOWN:
        ++index;
        break;
    case VK_PRIOR:
        index -= page;
        break;
    case VK_NEXT:
        index = std::max(index, 0) + page;
        break;
    case VK_HOME:
        index = 0;
        break;
    case VK_END:
        index = Count() - 1;
        break;
    default:
        return std::nullopt;
    }
    return Count() ? std::clamp(index, 0, Count() - 1) : -1;
}
} // namespace offscreen
