// The life of windows.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
thread_local bool g_inside = false;

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

Window* MakeRoot(LPCWSTR className)
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
        made->desktop = MakeRoot(u"#32769");
        made->messages = MakeRoot(u"Message");
        return made;
    }();
    return *roots;
}

int g_liveWindows = 0;

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

namespace
{
bool IsChildStyle(DWORD style) { return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }

// Where a new window belongs.
struct Relations
{
    Window* parent = nullptr;
    HWND owner = nullptr;
    DWORD error = NO_ERROR;
};

Relations RelationsFor(HWND given, DWORD style)
{
    if (given == HWND_MESSAGE || (given && given == MessageRoot().handle))
        return {&MessageRoot(), nullptr, NO_ERROR};
    if (!given && IsChildStyle(style))
        return {nullptr, nullptr, ERROR_TLW_WITH_WSCHILD};
    if (!given || given == DesktopWindow().handle)
        return {&DesktopWindow(), nullptr, NO_ERROR};
    Window* found = Find(given);
    if (!found)
        return {nullptr, nullptr, ERROR_INVALID_WINDOW_HANDLE};
    if (IsChildStyle(style))
        return {found, nullptr, NO_ERROR};
    return {&DesktopWindow(), RootOf(found)->handle, NO_ERROR}; // Only a top-level window can own.
}

// A window in its place among the others, not told of anything yet.
Window* MakeWindow(WindowClass& windowClass, const Relations& relations, const CREATESTRUCTW& create)
{
    const HWND handle = Windows().Add<HWND>(std::make_unique<Window>());
    Window* window = Windows().Find(handle);
    if (!window)
        return nullptr;
    window->handle = handle;
    window->windowClass = &windowClass;
    window->procedure = windowClass.procedure;
    window->style = static_cast<DWORD>(create.style) & ~WS_VISIBLE;
    window->exStyle = create.dwExStyle;
    window->id = reinterpret_cast<LONG_PTR>(create.hMenu);
    window->extra.resize(static_cast<std::size_t>(std::max(windowClass.windowExtra, 0)));
    window->parent = relations.parent;
    window->owner = relations.owner;
    window->rect = {create.x, create.y, create.x + std::max(create.cx, 0), create.y + std::max(create.cy, 0)};
    // A new child stands behind its siblings, as tab order wants it; a top-level window before the others.
    Link(*window, window->IsChild() ? relations.parent->lastChild : nullptr);
    ++windowClass.windows;
    ++g_liveWindows;
    return window;
}

// Asks the window itself. False when it refused or did not survive.
bool AcceptsCreation(Window& window, CREATESTRUCTW& create)
{
    const auto param = reinterpret_cast<LPARAM>(&create);
    if (!Send(window.handle, WM_NCCREATE, 0, param))
    {
        if (!window.dead)
            Bury(window);
        return false;
    }
    if (Send(window.handle, WM_CREATE, 0, param) == -1 && !window.dead)
        Destroy(window);
    return !window.dead;
}

void TellOfCreation(Window& window)
{
    const HWND handle = window.handle;
    const RECT client = ClientRectOf(window);
    Send(handle, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    if (!window.dead)
        Send(handle, WM_MOVE, 0, MAKELPARAM(window.rect.left, window.rect.top));
    if (!window.dead && window.IsChild() && !(window.exStyle & WS_EX_NOPARENTNOTIFY))
        Send(ParentOf(window), WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, window.id), reinterpret_cast<LPARAM>(handle));
}
} // namespace

HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menuOrId, HINSTANCE instance, LPVOID param)
{
    Inside inside;
    DesktopWindow(); // Registers the standard classes.
    WindowClass* windowClass = FindClass(className);
    if (!windowClass)
        return RejectCreation(ERROR_CANNOT_FIND_WND_CLASS);
    const Relations relations = RelationsFor(parent, style);
    if (!relations.parent)
        return RejectCreation(relations.error);
    const bool messageOnly = relations.parent == &MessageRoot();
    ReplaceDefaults(style, x, y, width, height);
    CompleteStyles(style, exStyle);

    CREATESTRUCTW create{};
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

    Window* window = MakeWindow(*windowClass, relations, create);
    if (!window)
        return RejectCreation(ERROR_NOT_ENOUGH_MEMORY);
    const Pin pin(window);
    const HWND handle = window->handle;
    if (!AcceptsCreation(*window, create))
        return nullptr;
    if (!messageOnly)
        TellOfCreation(*window);
    if (!window->dead && (style & WS_VISIBLE))
        ShowWindow(handle, SW_SHOW);
    return window->dead ? nullptr : handle;
}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menuOrId, HINSTANCE instance, LPVOID param)
{
    Inside inside;
    return CreateWindowExW(exStyle, Widened(className), Widened(text), style, x, y, width, height, parent, menuOrId,
                           instance, param);
}

BOOL DestroyWindow(HWND window)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    if (!found->parent)
    {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (!found->dying) // A second call while WM_DESTROY is under way has nothing left to do.
        Destroy(*found);
    return TRUE;
}
