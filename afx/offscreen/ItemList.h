#pragma once

#include "afx/offscreen/Internal.h"

#include <optional>

namespace offscreen
{
// The items of a list box or combo box.
class ItemList
{
public:
    // What differs between the two controls.
    struct Traits
    {
        UINT ownerDrawnType;        // ODT_COMBOBOX when owner-drawn, else 0
        int errorSpaceNotification; // LBN_ERRSPACE or CBN_ERRSPACE
    };

    explicit ItemList(const Traits& traits) : m_traits(traits) {}

    int Count() const { return static_cast<int>(m_items.size()); }
    bool IsIndex(WPARAM index) const { return index < m_items.size(); }
    int Selection() const { return m_selection; }
    void Select(int index) { m_selection = index; }

    const std::u16string& Text(int index) const { return m_items[static_cast<std::size_t>(index)].text; }
    LPARAM Data(int index) const { return m_items[static_cast<std::size_t>(index)].data; }
    void SetData(int index, LPARAM data) { m_items[static_cast<std::size_t>(index)].data = data; }

    // The results are those of the messages: an index, or LB_ERR, LB_ERRSPACE.
    int Add(Window& control, LPARAM text);
    void Clear(Window& control);

    // Copies a text and returns its length.
    LRESULT CopyItem(WPARAM index, LPARAM target) const;
    LRESULT TextLength(WPARAM index) const;

    // The next item after the selection, and then from the beginning, whose text starts with a character; LB_ERR for
    // none.
    int FindNext(char16_t first) const;
    // The item that a key moves the selection to, -1 when there is no item; nothing for a key that does not move it.
    std::optional<int> MovedBy(WPARAM key, int visibleItems) const;

private:
    struct Item
    {
        std::u16string text;
        LPARAM data = 0;
    };

    void TellDeleted(Window& control, int index) const;

    Traits m_traits;
    std::vector<Item> m_items;
    int m_selection = -1;
};
} // namespace offscreen
