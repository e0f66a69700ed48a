// Windows: their life, their relations, their properties.

#include "afx/offscreen/Internal.h"

#include <strings.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace offscreen
{
bool g_inside = false;

namespace
{
constexpr RECT kScreen{0, 0, 1024, 768};

HandleTable<Window>& Windows()
{
    static auto* windows = new HandleTable<Window>;
    return *windows;
}

// The desktop and the parent of message-only windows, which are not counted as windows.
struct Roots
{
    Window* desktop = nullptr;
    Window* messages = nullptr;
};

Window* MakeRoot(const char* className)
{
    auto* root = new Window;
    root->handle = reinterpret_cast<HWND>(Windows().Add(root));
    root->windowClass = FindClass(className);
    root->procedure = root->windowClass->procedure;
    root->style = WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    root->rect = kScreen;
    return root;
}

Roots& TheRoots()
{
    static auto* roots = [] {
        RegisterStandardClasses();
        auto* made = new Roots;
        made->desktop = MakeRoot("#32769");
        made->messages = MakeRoot("Message");
        return made;
    }();
    return *roots;
}

int g_liveWindows = 0;

bool IsRoot(const Window& window) { return !window.parent; }

void Unlink(Window& window)
{
    Window& parent = *window.parent;
    (window.previous ? window.previous->next : parent.firstChild) = window.next;
    (window.next ? window.next->previous : parent.lastChild) = window.previous;
    window.previous = nullptr;
    window.next = nullptr;
}

// Links the window under its parent, behind `after`, or on top when that is null.
void Link(Window& window, Window* after)
{
    Window& parent = *window.parent;
    window.previous = after;
    window.next = after ? after->next : parent.firstChild;
    (window.previous ? window.previous->next : parent.firstChild) = &window;
    (window.next ? window.next->previous : parent.lastChild) = &window;
}

// ------------------------------------------------------------------------------------------------------ destruction

std::vector<HWND> ChildrenOf(const Window& window)
{
    std::vector<HWND> children;
    for (const Window* child = window.firstChild; child; child = child->next)
        children.push_back(child->handle);
    return children;
}

void SendDestroy(Window& window)
{
    const HWND handle = window.handle;
    Send(handle, WM_DESTROY);
    const Window* found = Find(handle);
    if (!found)
        return;
    for (HWND child : ChildrenOf(*found))
        if (Window* alive = Find(child))
            SendDestroy(*alive);
}

// Takes the window out of the world. Its memory goes when nothing pins it any more.
void Bury(Window& window)
{
    for (HWND child : ChildrenOf(window))
        if (Window* alive = Find(child))
            Bury(*alive);

    const Pin pin(&window);
    Send(window.handle, WM_NCDESTROY);
    if (window.dead)
        return;

    ForgetMessages(window.handle);
    ForgetPaint(window);
    ForgetDcsOf(window.handle);
    InputState& input = Input();
    if (input.focus == window.handle)
        input.focus = nullptr;
    if (input.active == window.handle)
        input.active = nullptr;
    if (input.capture == window.handle)
        input.capture = nullptr;
    // Children that were created while the window was dying.
    while (window.firstChild)
        Bury(*window.firstChild);
    if (!window.IsChild() && window.id)
        DestroyMenu(reinterpret_cast<HMENU>(window.id));

    Unlink(window);
    Windows().Remove(reinterpret_cast<std::uintptr_t>(window.handle));
    --window.windowClass->windows;
    --g_liveWindows;
    window.dead = true;
}

std::vector<HWND> OwnedBy(HWND owner)
{
    std::vector<HWND> owned;
    for (const Window* window = DesktopWindow().firstChild; window; window = window->next)
        if (window->owner == owner)
            owned.push_back(window->handle);
    return owned;
}

void Destroy(Window& window)
{
    const HWND handle = window.handle;
    const Pin pin(&window);
    window.dying = true;

    RunHooks(WH_CBT, HCBT_DESTROYWND, reinterpret_cast<WPARAM>(handle), 0);
    if (window.IsChild() && !(window.exStyle & WS_EX_NOPARENTNOTIFY))
        Send(ParentOf(window), WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, window.id), reinterpret_cast<LPARAM>(handle));
    if (window.dead)
        return;

    if (window.style & WS_VISIBLE)
    {
        if (window.IsChild())
            ShowWindow(handle, SW_HIDE);
        else
            SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    }
    if (window.dead)
        return;
    if (Input().active == handle)
        ActivateAnother(handle);

    if (!window.IsChild())
        for (HWND owned : OwnedBy(handle))
            if (Window* alive = Find(owned); alive && !alive->dying)
                Destroy(*alive);
    if (window.dead)
        return;

    SendDestroy(window);
    if (window.dead)
        return;
    // WM_DESTROY may have given the focus to the window or a child again.
    if (HWND focus = Input().focus; focus && (focus == handle || IsChild(handle, focus)))
        ChangeFocus(nullptr);
    if (!window.dead)
        Bury(window);
}

// --------------------------------------------------------------------------------------------------------- creation

// Default positions of overlapped windows; nobody depends on them.
void ReplaceDefaults(DWORD style, int& x, int& y, int& width, int& height)
{
    const bool overlapped = (style & (WS_CHILD | WS_POPUP)) == 0;
    if (x == CW_USEDEFAULT)
        x = y = 0;
    if (width == CW_USEDEFAULT)
    {
        width = overlapped ? kScreen.right * 3 / 4 : 0;
        height = overlapped ? kScreen.bottom * 3 / 4 : 0;
    }
}

// The frame styles that the system adds by itself.
void CompleteStyles(DWORD& style, DWORD& exStyle)
{
    if ((style & (WS_CHILD | WS_POPUP)) != WS_CHILD)
        style |= WS_CLIPSIBLINGS;
    if ((style & (WS_CHILD | WS_POPUP)) == 0)
        style |= WS_CAPTION;
    const bool dialogFrame = (exStyle & WS_EX_DLGMODALFRAME) || ((style & (WS_DLGFRAME | WS_THICKFRAME)) &&
                                                                  !(exStyle & WS_EX_STATICEDGE));
    if (dialogFrame && (style & WS_CAPTION) != WS_BORDER)
        exStyle |= WS_EX_WINDOWEDGE;
    else
        exStyle &= ~WS_EX_WINDOWEDGE;
}

HWND RejectCreation(DWORD error)
{
    SetLastError(error);
    return nullptr;
}
} // namespace

// ------------------------------------------------------------------------------------------------ shared with others

bool IsInside() { return g_inside; }

Window* Find(HWND window) { return Windows().Find(reinterpret_cast<std::uintptr_t>(window)); }

Window* Lookup(HWND window)
{
    Window* found = Find(window);
    if (!found)
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return found;
}

Window& DesktopWindow() { return *TheRoots().desktop; }
Window& MessageRoot() { return *TheRoots().messages; }

void FreeIfDead(Window* window)
{
    if (window->dead && window->pins == 0)
        delete window;
}

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

LRESULT NotifyParent(const Window& control, int code)
{
    const HWND parent = ParentOf(control);
    return parent ? Send(parent, WM_COMMAND, MAKEWPARAM(control.id, code), reinterpret_cast<LPARAM>(control.handle)) : 0;
}

void RaiseToTop(Window& window)
{
    if (window.previous && !IsRoot(window))
    {
        Unlink(window);
        Link(window, nullptr);
    }
}

int CountWindows() { return g_liveWindows; }

void DestroyEverything()
{
    for (Window* root : {&DesktopWindow(), &MessageRoot()})
        while (root->firstChild)
        {
            if (root->firstChild->dying)
                Bury(*root->firstChild);
            else
                Destroy(*root->firstChild);
        }
}
} // namespace offscreen

using namespace offscreen;

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menuOrId, HINSTANCE instance, LPVOID param)
{
    Inside inside;
    Window& desktop = DesktopWindow();
    WindowClass* windowClass = FindClass(className);
    if (!windowClass)
        return RejectCreation(ERROR_CANNOT_FIND_WND_CLASS);

    const bool messageOnly = parent == HWND_MESSAGE || (parent && parent == MessageRoot().handle);
    const bool isChild = (style & (WS_CHILD | WS_POPUP)) == WS_CHILD;
    Window* parentWindow = &desktop;
    HWND owner = nullptr;
    if (messageOnly)
        parentWindow = &MessageRoot();
    else if (parent && parent != desktop.handle)
    {
        Window* given = Find(parent);
        if (!given)
            return RejectCreation(ERROR_INVALID_WINDOW_HANDLE);
        if (isChild)
            parentWindow = given;
        else
            owner = RootOf(given)->handle; // Only a top-level window can own.
    }
    else if (isChild && !parent)
        return RejectCreation(ERROR_TLW_WITH_WSCHILD);

    ReplaceDefaults(style, x, y, width, height);
    CompleteStyles(style, exStyle);

    auto* window = new Window;
    const Pin pin(window);
    window->handle = reinterpret_cast<HWND>(Windows().Add(window));
    if (!window->handle)
    {
        delete window;
        return RejectCreation(ERROR_NOT_ENOUGH_MEMORY);
    }
    window->windowClass = windowClass;
    window->procedure = windowClass->procedure;
    window->instance = instance;
    window->style = style & ~WS_VISIBLE;
    window->exStyle = exStyle;
    window->id = reinterpret_cast<LONG_PTR>(menuOrId);
    window->extra.resize(static_cast<std::size_t>(std::max(windowClass->windowExtra, 0)));
    window->parent = parentWindow;
    window->owner = owner;
    window->rect = {x, y, x + std::max(width, 0), y + std::max(height, 0)};
    // A new child stands behind its siblings, as tab order wants it; a top-level window before the others.
    Link(*window, isChild ? parentWindow->lastChild : nullptr);
    ++windowClass->windows;
    ++g_liveWindows;

    const HWND handle = window->handle;
    CREATESTRUCTA create{};
    create.lpCreateParams = param;
    create.hInstance = instance;
    create.hMenu = menuOrId;
    create.hwndParent = messageOnly ? HWND_MESSAGE : parent;
    create.cx = width;
    create.cy = height;
    create.x = x;
    create.y = y;
    create.style = static_cast<LONG>(style);
    create.lpszName = text;
    create.lpszClass = IS_INTRESOURCE(className) ? windowClass->name.c_str() : className;
    create.dwExStyle = exStyle;

    CBT_CREATEWNDA hookData{&create, isChild ? HWND_BOTTOM : HWND_TOP};
    LRESULT refused = 0;
    if (RunHooks(WH_CBT, HCBT_CREATEWND, reinterpret_cast<WPARAM>(handle), reinterpret_cast<LPARAM>(&hookData),
                 &refused) &&
        refused)
    {
        Bury(*window);
        return nullptr;
    }

    const auto createParam = reinterpret_cast<LPARAM>(&create);
    if (!Send(handle, WM_NCCREATE, 0, createParam))
    {
        if (!window->dead)
            Bury(*window);
        return nullptr;
    }
    if (Send(handle, WM_CREATE, 0, createParam) == -1)
    {
        if (!window->dead)
            Destroy(*window);
        return nullptr;
    }
    if (window->dead)
        return nullptr;

    if (!messageOnly)
    {
        const RECT client = ClientRectOf(*window);
        Send(handle, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
        if (!window->dead)
        {
            const POINT origin = {window->rect.left, window->rect.top};
            Send(handle, WM_MOVE, 0, MAKELPARAM(origin.x, origin.y));
        }
        if (!window->dead && isChild && !(window->exStyle & WS_EX_NOPARENTNOTIFY))
            Send(parentWindow->handle, WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, window->id),
                 reinterpret_cast<LPARAM>(handle));
    }
    if (!window->dead && (style & WS_VISIBLE))
        ShowWindow(handle, SW_SHOW);
    return window->dead ? nullptr : handle;
}

BOOL DestroyWindow(HWND window)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    if (IsRoot(*found))
    {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (!found->dying) // A second call while WM_DESTROY is under way has nothing left to do.
        Destroy(*found);
    return TRUE;
}

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
    if (!found || IsRoot(*found))
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
    case GW_HWNDFIRST: result = found->parent ? found->parent->firstChild : nullptr; break;
    case GW_HWNDLAST: result = found->parent ? found->parent->lastChild : nullptr; break;
    case GW_HWNDNEXT: result = found->next; break;
    case GW_HWNDPREV: result = found->previous; break;
    case GW_CHILD: result = found->firstChild; break;
    case GW_OWNER: return found->owner;
    case GW_ENABLEDPOPUP:
        for (const Window* w = DesktopWindow().firstChild; w; w = w->next)
            if (w->owner == window && (w->style & WS_VISIBLE) && !(w->style & WS_DISABLED))
                return w->handle;
        return window;
    default: SetLastError(ERROR_INVALID_PARAMETER); return nullptr;
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

BOOL EnableWindow(HWND window, BOOL enable)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    const Pin pin(found);
    const bool wasDisabled = (found->style & WS_DISABLED) != 0;
    if (enable && wasDisabled)
    {
        found->style &= ~WS_DISABLED;
        Invalidate(*found);
        Send(window, WM_ENABLE, TRUE);
    }
    else if (!enable && !wasDisabled)
    {
        Send(window, WM_CANCELMODE);
        found->style |= WS_DISABLED;
        Invalidate(*found);
        if (window == Input().focus)
            SetFocus(nullptr); // The window stays active, nothing has the focus.
        if (window == Input().capture)
            ReleaseCapture();
        Send(window, WM_ENABLE, FALSE);
    }
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found && !(found->style & WS_DISABLED);
}

BOOL IsWindowVisible(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found && IsEffectivelyVisible(*found);
}

BOOL IsIconic(HWND window)
{
    const Window* found = Find(window);
    return found && (found->style & WS_MINIMIZE);
}

BOOL IsZoomed(HWND window)
{
    const Window* found = Find(window);
    return found && (found->style & WS_MAXIMIZE);
}

BOOL IsWindowUnicode(HWND) { return FALSE; }

BOOL SetWindowTextA(HWND window, LPCSTR text)
{
    Inside inside;
    if (!Lookup(window))
        return FALSE;
    return static_cast<BOOL>(Send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextA(HWND window, LPSTR text, int size)
{
    Inside inside;
    if (!text || size <= 0)
        return 0;
    text[0] = 0;
    if (!Lookup(window))
        return 0;
    return static_cast<int>(Send(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthA(HWND window)
{
    Inside inside;
    return Lookup(window) ? static_cast<int>(Send(window, WM_GETTEXTLENGTH)) : 0;
}

namespace
{
LONG_PTR ReadExtra(const Window& window, int index, std::size_t size)
{
    if (index < 0 || static_cast<std::size_t>(index) + size > window.extra.size())
    {
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    LONG_PTR value = 0;
    if (size == sizeof(LONG))
    {
        LONG narrow = 0;
        std::memcpy(&narrow, window.extra.data() + index, sizeof narrow);
        value = narrow;
    }
    else
        std::memcpy(&value, window.extra.data() + index, size);
    return value;
}

LONG_PTR GetLong(HWND window, int index, std::size_t size)
{
    const Window* found = Lookup(window);
    if (!found)
        return 0;
    switch (index)
    {
    case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(found->procedure);
    case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(found->instance);
    case GWLP_HWNDPARENT: return reinterpret_cast<LONG_PTR>(GetParent(window));
    case GWLP_ID: return found->id;
    case GWL_STYLE: return static_cast<LONG>(found->style);
    case GWL_EXSTYLE: return static_cast<LONG>(found->exStyle);
    case GWLP_USERDATA: return found->userData;
    default: return ReadExtra(*found, index, size);
    }
}

LONG_PTR SetLong(HWND window, int index, LONG_PTR value, std::size_t size)
{
    const LONG_PTR before = GetLong(window, index, size);
    Window* found = Find(window);
    if (!found)
        return 0;
    switch (index)
    {
    case GWLP_WNDPROC: found->procedure = reinterpret_cast<WNDPROC>(value); break;
    case GWLP_HINSTANCE: found->instance = reinterpret_cast<HINSTANCE>(value); break;
    case GWLP_HWNDPARENT: found->owner = reinterpret_cast<HWND>(value); break;
    case GWLP_ID: found->id = value; break;
    case GWL_STYLE:
    {
        // WS_VISIBLE may be set and cleared this way too, without any message.
        found->style = static_cast<DWORD>(value);
        break;
    }
    case GWL_EXSTYLE: found->exStyle = static_cast<DWORD>(value); break;
    case GWLP_USERDATA: found->userData = value; break;
    default:
        if (index < 0 || static_cast<std::size_t>(index) + size > found->extra.size())
            return 0;
        if (size == sizeof(LONG))
        {
            const LONG narrow = static_cast<LONG>(value);
            std::memcpy(found->extra.data() + index, &narrow, sizeof narrow);
        }
        else
            std::memcpy(found->extra.data() + index, &value, size);
        break;
    }
    return before;
}
} // namespace

LONG GetWindowLongA(HWND window, int index)
{
    Inside inside;
    return static_cast<LONG>(GetLong(window, index, sizeof(LONG)));
}

LONG SetWindowLongA(HWND window, int index, LONG value)
{
    Inside inside;
    if (index == GWLP_WNDPROC)
        return NotModelled("SetWindowLong(GWL_WNDPROC), which would cut the pointer: use SetWindowLongPtr", 0);
    return static_cast<LONG>(SetLong(window, index, value, sizeof(LONG)));
}

LONG_PTR GetWindowLongPtrA(HWND window, int index)
{
    Inside inside;
    return GetLong(window, index, sizeof(LONG_PTR));
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value)
{
    Inside inside;
    return SetLong(window, index, value, sizeof(LONG_PTR));
}

namespace
{
std::string PropertyKey(LPCSTR name) { return IS_INTRESOURCE(name) ? "#" + std::to_string(LOWORD(name)) : name; }
} // namespace

HANDLE GetPropA(HWND window, LPCSTR name)
{
    Inside inside;
    if (const Window* found = Lookup(window))
        for (const auto& [key, value] : found->properties)
            if (key == PropertyKey(name))
                return value;
    return nullptr;
}

BOOL SetPropA(HWND window, LPCSTR name, HANDLE value)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    for (auto& [key, old] : found->properties)
        if (key == PropertyKey(name))
        {
            old = value;
            return TRUE;
        }
    found->properties.emplace_back(PropertyKey(name), value);
    return TRUE;
}

HANDLE RemovePropA(HWND window, LPCSTR name)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return nullptr;
    for (auto it = found->properties.begin(); it != found->properties.end(); ++it)
        if (it->first == PropertyKey(name))
        {
            const HANDLE value = it->second;
            found->properties.erase(it);
            return value;
        }
    return nullptr;
}

DWORD GetCurrentThreadId() { return 0x24; }
DWORD GetCurrentProcessId() { return 0x20; }
HANDLE GetCurrentProcess() { return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)); }
HANDLE GetCurrentThread() { return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-2)); }

DWORD GetWindowThreadProcessId(HWND window, LPDWORD processId)
{
    Inside inside;
    if (!Lookup(window))
        return 0;
    if (processId)
        *processId = GetCurrentProcessId();
    return GetCurrentThreadId();
}
