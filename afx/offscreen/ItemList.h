#pragma once

#include "afx/offscreen/Internal.h"

namespace offscreen
{
// The items of a list box or combo box. Without strings (owner-drawn, no HASSTRINGS) an item is its data alone.
class ItemList
{
public:
    // What differs between the two controls.
    struct Traits
    {
        UINT ownerDrawnType; // ODT_LISTBOX or ODT_COMBOBOX when owner-drawn, else 0
        bool hasStrings;
        bool sorted;
        int errorSpaceNotification; // LBN_ERRSPACE or CBN_ERRSPACE
    };

    explicit ItemList(const Traits& traits) : m_traits(traits) {}

    int Count() const { return static_cast<int>(m_items.size()); }
    bool IsIndex(WPARAM index) const { return index < m_items.size(); }
    int Selection() const { return m_selection; }
    void Select(int index) { m_selection = index; }

    const std::string& Text(int index) const { return m_items[static_cast<std::size_t>(index)].text; }
    LPARAM Data(int index) const { return m_items[static_cast<std::size_t>(index)].data; }
    void SetData(int index, LPARAM data) { m_items[static_cast<std::size_t>(index)].data = data; }

    // The results are those of the messages: an index or count, or LB_ERR, LB_ERRSPACE.
    int Add(Window& control, LPARAM textOrData);
    int Insert(Window& control, int index, LPARAM textOrData);
    int Remove(Window& control, WPARAM index);
    void Clear(Window& control);

    // Copies a text (or the data of an item without one) and returns its length.
    LRESULT CopyItem(WPARAM index, LPARAM target) const;
    LRESULT TextLength(WPARAM index) const;

    // Searches after `start` and then from the beginning.
    int FindPrefix(int start, LPARAM text) const;
    int FindExact(int start, LPARAM text) const;
    int FindNext(char first) const;

private:
    struct Item
    {
        std::string text;
        LPARAM data = 0;
    };

    template <class Predicate>
    int FindAfter(int start, Predicate matches) const;
    int SortedPosition(Window& control, LPARAM textOrData) const;
    void TellDeleted(Window& control, int index) const;

    Traits m_traits;
    std::vector<Item> m_items;
    int m_selection = -1;
};
} // namespace offscreen
