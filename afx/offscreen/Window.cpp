// The life of windows.

#include "afx/offscreen/Internal.h"

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
    const HWND handle = Windows().Add<HWND>(std::make_unique<Window>());
    Window* root = Windows().Find(handle);
    root->handle = handle;
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

// ------------------------------------------------------------------------------------------------------ destruction

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
    --window.windowClass->windows;
    --g_liveWindows;
    window.dead = true;
    static_cast<void>(Windows().Remove(window.handle).release()); // The last pin frees it.
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
    const bool dialogFrame =
        (exStyle & WS_EX_DLGMODALFRAME) || ((style & (WS_DLGFRAME | WS_THICKFRAME)) && !(exStyle & WS_EX_STATICEDGE));
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

Window* Find(HWND window) { return Windows().Find(window); }

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

    const HWND handle = Windows().Add<HWND>(std::make_unique<Window>());
    Window* window = Windows().Find(handle);
    if (!window)
        return RejectCreation(ERROR_NOT_ENOUGH_MEMORY);
    const Pin pin(window);
    window->handle = handle;
    window->windowClass = windowClass;
    window->procedure = windowClass->procedure;
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
