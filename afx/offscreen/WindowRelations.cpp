// How windows are related to each other, and how they are found.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
void CollectDescendants(const Window& window, std::vector<HWND>& found)
{
    for (const Window* child = window.firstChild; child; child = child->next)
    {
        found.push_back(child->handle);
        CollectDescendants(*child, found);
    }
}
} // namespace

Window* RootOf(Window* window)
{
    while (window && window->parent && window->parent->parent)
        window = window->parent;
    return window;
}

bool IsEffectivelyVisible(const Window& window)
{
    for (const Window* w = &window; w; w = w->parent)
        if (!(w->style & WS_VISIBLE))
            return false;
    return true;
}

bool IsEffectivelyEnabled(const Window& window)
{
    for (const Window* w = &window; w; w = w->parent)
        if (w->style & WS_DISABLED)
            return false;
    return true;
}

void Unlink(Window& window)
{
    Window& parent = *window.parent;
    (window.previous ? window.previous->next : parent.firstChild) = window.next;
    (window.next ? window.next->previous : parent.lastChild) = window.previous;
    window.previous = nullptr;
    window.next = nullptr;
}

void Link(Window& window, Window* after)
{
    Window& parent = *window.parent;
    window.previous = after;
    window.next = after ? after->next : parent.firstChild;
    (window.previous ? window.previous->next : parent.firstChild) = &window;
    (window.next ? window.next->previous : parent.lastChild) = &window;
}

std::vector<HWND> ChildrenOf(const Window& window)
{
    std::vector<HWND> children;
    for (const Window* child = window.firstChild; child; child = child->next)
        children.push_back(child->handle);
    return children;
}

LRESULT NotifyParent(const Window& control, int code)
{
    const HWND parent = ParentOf(control);
    return parent ? Send(parent, WM_COMMAND, MAKEWPARAM(control.id, code), reinterpret_cast<LPARAM>(control.handle))
                  : 0;
}

void RaiseToTop(Window& window)
{
    if (window.previous && window.parent)
    {
        Unlink(window);
        Link(window, nullptr);
    }
}

std::vector<HWND> DescendantsOf(const Window& window)
{
    std::vector<HWND> descendants;
    CollectDescendants(window, descendants);
    return descendants;
}
} // namespace offscreen

using namespace offscreen;

BOOL IsWindow(HWND window) { return Find(window) != nullptr; }

HWND GetParent(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return nullptr;
    if (found->style & WS_POPUP)
        return found->owner;
    if (found->style & WS_CHILD)
        return ParentOf(*found);
    return nullptr;
}

HWND GetWindow(HWND window, UINT relation)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return nullptr;
    const Window* result = nullptr;
    switch (relation)
    {
    case GW_HWNDNEXT:
        result = found->next;
        break;
    case GW_HWNDPREV:
        result = found->previous;
        break;
    case GW_CHILD:
        result = found->firstChild;
        break;
    case GW_OWNER:
        return found->owner;
    default:
        return NotModelled("GetWindow with this relation", HWND{});
    }
    return result ? result->handle : nullptr;
}

HWND GetDesktopWindow()
{
    Inside inside;
    return DesktopWindow().handle;
}

HWND GetLastActivePopup(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return nullptr;
    return found->lastActivePopup && Find(found->lastActivePopup) ? found->lastActivePopup : window;
}

BOOL IsChild(HWND parent, HWND window)
{
    const Window* ancestor = Find(parent);
    const Window* found = Find(window);
    while (ancestor && found && found->IsChild())
    {
        found = found->parent;
        if (found == ancestor)
            return TRUE;
    }
    return FALSE;
}

namespace
{
BOOL Enumerate(const std::vector<HWND>& windows, WNDENUMPROC callback, LPARAM param)
{
    for (HWND window : windows)
    {
        if (!Find(window))
            continue;
        Outside outside;
        if (!callback(window, param))
            return FALSE;
    }
    return TRUE;
}
} // namespace

BOOL EnumThreadWindows(DWORD threadId, WNDENUMPROC callback, LPARAM param)
{
    Inside inside;
    return threadId == GetCurrentThreadId() ? Enumerate(ChildrenOf(DesktopWindow()), callback, param) : FALSE;
}
