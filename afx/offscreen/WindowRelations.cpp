// How windows are related to each other, and how they are found.

#include "afx/offscreen/Internal.h"

#include <strings.h>

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

HWND SetParent(HWND window, HWND parent)
{
    Inside inside;
    Window* found = Lookup(window);
    Window* newParent = parent ? Lookup(parent) : &DesktopWindow();
    if (!found || !newParent || found == newParent || IsChild(window, parent))
        return nullptr;
    const HWND before = ParentOf(*found);
    Unlink(*found);
    found->parent = newParent;
    Link(*found, nullptr);
    return before;
}

HWND GetAncestor(HWND window, UINT flags)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found || !found->parent)
        return nullptr;
    if (flags == GA_PARENT)
        return ParentOf(*found);
    Window* root = RootOf(found);
    while (flags == GA_ROOTOWNER && root->owner && Find(root->owner))
        root = RootOf(Find(root->owner));
    return root->handle;
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
    case GW_HWNDFIRST:
        result = found->parent ? found->parent->firstChild : nullptr;
        break;
    case GW_HWNDLAST:
        result = found->parent ? found->parent->lastChild : nullptr;
        break;
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
    case GW_ENABLEDPOPUP:
        for (const Window* w = DesktopWindow().firstChild; w; w = w->next)
            if (w->owner == window && (w->style & WS_VISIBLE) && !(w->style & WS_DISABLED))
                return w->handle;
        return window;
    default:
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return result ? result->handle : nullptr;
}

HWND GetTopWindow(HWND window) { return GetWindow(window ? window : GetDesktopWindow(), GW_CHILD); }

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

void CollectDescendants(const Window& window, std::vector<HWND>& found)
{
    for (const Window* child = window.firstChild; child; child = child->next)
    {
        found.push_back(child->handle);
        CollectDescendants(*child, found);
    }
}

bool Matches(const Window& window, LPCSTR className, LPCSTR text)
{
    const WindowClass* windowClass = className ? FindClass(className) : nullptr;
    if (className && window.windowClass != windowClass)
        return false;
    return !text || strcasecmp(window.text.c_str(), text) == 0;
}
} // namespace

BOOL EnumWindows(WNDENUMPROC callback, LPARAM param)
{
    Inside inside;
    return Enumerate(ChildrenOf(DesktopWindow()), callback, param);
}

BOOL EnumThreadWindows(DWORD threadId, WNDENUMPROC callback, LPARAM param)
{
    return threadId == GetCurrentThreadId() ? EnumWindows(callback, param) : FALSE;
}

BOOL EnumChildWindows(HWND parent, WNDENUMPROC callback, LPARAM param)
{
    Inside inside;
    const Window* found = parent ? Lookup(parent) : &DesktopWindow();
    if (!found)
        return FALSE;
    std::vector<HWND> windows;
    CollectDescendants(*found, windows);
    return Enumerate(windows, callback, param);
}

HWND FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text)
{
    Inside inside;
    if (!parent && !after) // Then message-only windows are looked through as well.
    {
        const HWND found = FindWindowExA(DesktopWindow().handle, nullptr, className, text);
        return found ? found : FindWindowExA(HWND_MESSAGE, nullptr, className, text);
    }
    const Window* parentWindow = parent == HWND_MESSAGE ? &MessageRoot() : parent ? Lookup(parent) : &DesktopWindow();
    if (!parentWindow)
        return nullptr;
    const Window* start = parentWindow->firstChild;
    if (after)
    {
        const Window* afterWindow = Lookup(after);
        if (!afterWindow || afterWindow->parent != parentWindow)
            return nullptr;
        start = afterWindow->next;
    }
    for (const Window* window = start; window; window = window->next)
        if (Matches(*window, className, text))
            return window->handle;
    return nullptr;
}

HWND FindWindowA(LPCSTR className, LPCSTR text) { return FindWindowExA(nullptr, nullptr, className, text); }
