// Finding controls: by id, and in the order in which the keyboard visits them.

#include "afx/offscreen/DialogState.h"

using namespace offscreen;

namespace
{
bool CanBeReached(const Window& window) { return (window.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE; }

bool IsPage(const Window& window) { return (window.exStyle & WS_EX_CONTROLPARENT) != 0; }

// All controls of a dialog in tab order, those of a nested page in place of the page.
void Collect(const Window& parent, std::vector<const Window*>& controls)
{
    for (const Window* child = parent.firstChild; child; child = child->next)
    {
        if (!IsPage(*child))
            controls.push_back(child);
        else if (CanBeReached(*child))
            Collect(*child, controls);
    }
}

// The control that a window is, or is a part of, such as the edit of a combo box.
const Window* ControlOf(const Window& dialog, HWND handle)
{
    const Window* window = Find(handle);
    while (window && window->parent && window->parent != &dialog && !IsPage(*window->parent))
        window = window->parent;
    return window;
}

HWND HandleOf(const Window* window) { return window ? window->handle : nullptr; }

// Walks round the windows, starting next to `from` (or at an end, without one), until one pleases.
template <class Predicate>
const Window* FindAround(const std::vector<const Window*>& windows, const Window* from, bool backwards,
                         Predicate pleases)
{
    const std::size_t count = windows.size();
    const auto it = std::find(windows.begin(), windows.end(), from);
    std::size_t position = it != windows.end() ? static_cast<std::size_t>(it - windows.begin())
                           : backwards         ? 0
                                               : count - 1;
    for (std::size_t step = 0; step < count; ++step)
    {
        position = (position + (backwards ? count - 1 : 1)) % count;
        if (pleases(*windows[position]))
            return windows[position];
    }
    return nullptr;
}
} // namespace

HWND GetDlgItem(HWND dialog, int id)
{
    Inside inside;
    const Window* window = Lookup(dialog);
    if (!window)
        return nullptr;
    for (const Window* child = window->firstChild; child; child = child->next)
        if (static_cast<int>(child->id) == id)
            return child->handle;
    SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int GetDlgCtrlID(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found ? static_cast<int>(found->id) : 0;
}

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous)
{
    Inside inside;
    const Window* window = Lookup(dialog);
    if (!window || (control && !IsChild(dialog, control)))
        return nullptr;
    std::vector<const Window*> controls;
    Collect(*window, controls);
    const Window* from = control ? ControlOf(*window, control) : nullptr;
    const Window* next = FindAround(controls, from, previous != 0, [](const Window& candidate) {
        return (candidate.style & WS_TABSTOP) && CanBeReached(candidate);
    });
    return next ? next->handle : HandleOf(from);
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous)
{
    Inside inside;
    const Window* window = Lookup(dialog);
    if (!window || (control && !IsChild(dialog, control)))
        return nullptr;
    const Window* from = control ? ControlOf(*window, control) : window->firstChild;
    if (!from)
        return nullptr;
    if (!control && CanBeReached(*from))
        return from->handle;

    // The group reaches from the last WS_GROUP at or before the control to the next one behind it.
    const Window* first = from;
    while (first->previous && !(first->style & WS_GROUP))
        first = first->previous;
    std::vector<const Window*> group{first};
    for (const Window* sibling = first->next; sibling && !(sibling->style & WS_GROUP); sibling = sibling->next)
        group.push_back(sibling);
    const Window* next = FindAround(group, from, previous != 0, CanBeReached);
    return next ? next->handle : from->handle;
}
